// The small dialogs of the program over the core's control table: Setup, Loading, End forces,
// buckling length factors, calculation points, modal results, about, and the psi table.
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QToolButton>
#include <QVBoxLayout>
#include <cmath>
#include <functional>

#include "core/captions.h"
#include "forms/bindings.h"
#include "forms/form_dialog.h"
#include "forms/painter_canvas.h"
#include "forms/picture_box.h"
#include "forms/session.h"
#include "graphics/member_figure.h"
#include "graphics/support_symbols.h"

#ifndef VARNELT_VERSION
#define VARNELT_VERSION "unknown"
#endif

namespace vn::forms {

namespace {

// ---- Widgets bound to controls ----

// The captions come from the core's table of captions, the one the command line lists.
std::string Bare(const std::string& control) { return control.substr(0, control.find('(')); }
QString CaptionText(FormDialog* d, const std::string& control) {
  return QString::fromStdString(CaptionOf(d->form(), Bare(control)).caption);
}
// A label shows its text as it stands: no accelerator marks.
QString LabelText(FormDialog* d, const std::string& control) {
  return QString::fromStdString(ShownText(CaptionOf(d->form(), Bare(control)).caption));
}
QString FrameText(FormDialog* d, const std::string& control) {
  return QString::fromStdString(CaptionOf(d->form(), Bare(control)).frame);
}
QString RowText(FormDialog* d, const std::string& control) {
  return QString::fromStdString(CaptionOf(d->form(), Bare(control)).row);
}
QString TipText(FormDialog* d, const std::string& control) {
  return QString::fromStdString(CaptionOf(d->form(), Bare(control)).tip);
}

QLineEdit* NumberField(FormDialog* d, const std::string& control, int width = 56) {
  auto* e = new QLineEdit;
  e->setAlignment(Qt::AlignRight);
  e->setFixedWidth(width);
  d->bindings()->field(e, d->key(control));
  return e;
}

QComboBox* List(FormDialog* d, const std::string& control, int minimumChars = 0) {
  auto* box = new QComboBox;
  if (minimumChars > 0) box->setMinimumContentsLength(minimumChars);
  box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  d->bindings()->list(box, d->key(control));
  return box;
}

QCheckBox* Check(FormDialog* d, const std::string& control) {
  auto* box = new QCheckBox(CaptionText(d, control));
  d->bindings()->check(box, d->key(control));
  return box;
}

// An option whose own value says whether it is set (view.value["setup.rbtnMethod1"] == 1).
QRadioButton* Option(FormDialog* d, const std::string& control) {
  auto* b = new QRadioButton(CaptionText(d, control));
  d->bindings()->option(b, d->key(control), d->key(control), 1);
  return b;
}

QPushButton* Button(FormDialog* d, const std::string& control, int width = 0) {
  auto* b = new QPushButton(CaptionText(d, control));
  b->setAutoDefault(false);
  if (width > 0) b->setFixedWidth(width);
  d->bindings()->button(b, d->key(control));
  return b;
}

QLabel* Shown(FormDialog* d, const std::string& control) {
  auto* l = new QLabel;
  d->bindings()->label(l, d->key(control));
  return l;
}

QGroupBox* Group(const QString& caption, const char* name = nullptr) {
  auto* g = new QGroupBox(caption);
  if (name) g->setObjectName(name);
  return g;
}

template <class L>
L* Inside(QWidget* frame) {
  auto* l = new L(frame);
  l->setContentsMargins(6, 4, 6, 4);
  l->setSpacing(4);
  return l;
}

QLabel* Note(const QString& text) {
  auto* l = new QLabel(text);
  QFont f = l->font();
  f.setItalic(true);
  l->setFont(f);
  l->setWordWrap(true);
  return l;
}

QLabel* Right(const QString& text) {
  auto* l = new QLabel(text);
  l->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  return l;
}

std::string Slot(const char* name, int i) { return std::string(name) + "(" + std::to_string(i) + ")"; }

// The row of buttons at the foot of a dialog.
QHBoxLayout* Foot(std::initializer_list<QWidget*> left, QWidget* close) {
  auto* row = new QHBoxLayout;
  for (QWidget* w : left) row->addWidget(w);
  row->addStretch();
  row->addWidget(close);
  return row;
}

// ---- Setup ----

FormDialog* SetupDialog(Session* s, QWidget* owner) {
  auto* d = new FormDialog(s, "setup", "Setup", owner, "CmdOK");
  auto* main = new QGridLayout(d);
  main->setHorizontalSpacing(10);
  main->setVerticalSpacing(8);

  // EN 1993-1-1 and the national annex.
  auto* code = Group(FrameText(d, "Cbo1993"));
  auto* cl = Inside<QVBoxLayout>(code);
  cl->addWidget(List(d, "Cbo1993", 22));
  auto* partial = Group(FrameText(d, "igammam0"));
  auto* pl = Inside<QGridLayout>(partial);
  pl->addWidget(new QLabel(LabelText(d, "igammam0")), 0, 0);
  pl->addWidget(NumberField(d, "igammam0"), 0, 1);
  pl->addWidget(new QLabel(LabelText(d, "igammam1")), 1, 0);
  pl->addWidget(NumberField(d, "igammam1"), 1, 1);
  pl->setColumnStretch(2, 1);
  cl->addWidget(partial);
  auto* shear = Group(FrameText(d, "ineta"));
  auto* sl = Inside<QHBoxLayout>(shear);
  sl->addWidget(new QLabel(LabelText(d, "ineta")));
  sl->addWidget(NumberField(d, "ineta"));
  sl->addSpacing(8);
  QLabel* see = Note("See EN 1993-1-5, ch 5.1");
  see->setWordWrap(false);
  sl->addWidget(see);
  sl->addStretch();
  cl->addWidget(shear);
  auto* lt = Group(FrameText(d, "ilamdaLT0"));
  auto* ll = Inside<QGridLayout>(lt);
  ll->addWidget(new QLabel(LabelText(d, "ilamdaLT0")), 0, 1, Qt::AlignCenter);
  ll->addWidget(new QLabel(LabelText(d, "ibeta")), 0, 2, Qt::AlignCenter);
  const char* rows[2][2] = {{"ilamdaLT0", "ibeta"}, {"ilamdaLT0w", "ibetaw"}};
  for (int r = 0; r < 2; ++r) {
    ll->addWidget(new QLabel(RowText(d, rows[r][0])), r + 1, 0);
    QLineEdit* lamda = NumberField(d, rows[r][0]);
    lamda->setToolTip(TipText(d, rows[r][0]));
    QLineEdit* beta = NumberField(d, rows[r][1]);
    beta->setToolTip(TipText(d, rows[r][1]));
    ll->addWidget(lamda, r + 1, 1);
    ll->addWidget(beta, r + 1, 2);
  }
  ll->setColumnStretch(3, 1);
  cl->addWidget(lt);
  auto* interaction = Group(FrameText(d, "rbtnMethod1"));
  auto* il = Inside<QVBoxLayout>(interaction);
  il->addWidget(Option(d, "rbtnMethod1"));
  il->addWidget(Option(d, "rbtnMethod2"));
  il->addWidget(Note(" Valid for Double Symmetric Profiles "));
  cl->addWidget(interaction);
  cl->addWidget(Note("Parameters can only be changed when using EC3 - User defined"));
  cl->addStretch();

  // Load combinations.
  auto* comb = Group(FrameText(d, "CboLoadComb"));
  auto* co = Inside<QVBoxLayout>(comb);
  co->addWidget(List(d, "CboLoadComb", 18));
  auto* formulas = new QListWidget;
  formulas->setObjectName("setup.lstCombination");
  formulas->setFixedHeight(64);
  formulas->setMinimumWidth(formulas->fontMetrics().horizontalAdvance(QString(60, 'x')));
  d->bindings()->lines(formulas, d->key("lstCombination"));
  co->addWidget(formulas);
  auto* norway = Group(FrameText(d, "rbtnSafetyNorwayClass1"), "setup.frSafetyNorway");
  d->bindings()->frame(norway, d->key("frSafetyNorway"));
  auto* nl = Inside<QHBoxLayout>(norway);
  nl->addWidget(Option(d, "rbtnSafetyNorwayClass1"));
  nl->addWidget(Option(d, "rbtnSafetyNorwayClass24"));
  nl->addStretch();
  co->addWidget(norway);
  auto* safety = Group(FrameText(d, "rbtnSafetyClass1"), "setup.frSafetyClass");
  d->bindings()->frame(safety, d->key("frSafetyClass"));
  auto* scl = Inside<QHBoxLayout>(safety);
  for (int c = 1; c <= 3; ++c) scl->addWidget(Option(d, "rbtnSafetyClass" + std::to_string(c)));
  scl->addStretch();
  co->addWidget(safety);
  auto* psi = Group(FrameText(d, "Cbo_Q1_Psi1"), "setup.frPsi");
  d->bindings()->frame(psi, d->key("frPsi"));
  auto* ps = Inside<QGridLayout>(psi);
  ps->addWidget(new QLabel(LabelText(d, "Cbo_Q1_Psi1")), 0, 0);
  ps->addWidget(List(d, "Cbo_Q1_Psi1", 4), 0, 1);
  ps->addWidget(new QLabel("Main "), 0, 2);
  ps->addWidget(new QLabel(LabelText(d, "Cbo_Q2_Psi2")), 1, 0);
  ps->addWidget(List(d, "Cbo_Q2_Psi2", 4), 1, 1);
  ps->addWidget(new QLabel("Secondary "), 1, 2);
  ps->addWidget(Button(d, "cmdPsi"), 0, 3, 2, 1, Qt::AlignRight | Qt::AlignVCenter);
  ps->setColumnStretch(3, 1);
  co->addWidget(psi);
  auto* uls = Group(FrameText(d, "iLfULS_G"), "setup.frULS");
  d->bindings()->frame(uls, d->key("frULS"));
  auto* ul = Inside<QGridLayout>(uls);
  const char* fields[2][3] = {{"iLfULS_G", "iLfULS_Q1", "iLfULS_Q2"}, {"iLfSLS_G", "iLfSLS_Q1", "iLfSLS_Q2"}};
  for (int c = 0; c < 3; ++c)
    ul->addWidget(new QLabel(LabelText(d, fields[0][c])), 0, c + 1, Qt::AlignCenter);
  ul->addWidget(new QLabel(RowText(d, fields[0][0])), 1, 0);
  ul->addWidget(new QLabel(RowText(d, fields[1][0])), 2, 0);
  for (int r = 0; r < 2; ++r)
    for (int c = 0; c < 3; ++c)
      ul->addWidget(NumberField(d, fields[r][c], 48), r + 1, c + 1, Qt::AlignCenter);
  ul->addWidget(Button(d, "cmdULS"), 3, 1, 1, 3, Qt::AlignRight);
  co->addWidget(uls);
  co->addStretch();

  auto* sls = Group(FrameText(d, "idef_limit"));
  auto* dl = Inside<QHBoxLayout>(sls);
  dl->addWidget(new QLabel(LabelText(d, "idef_limit")));
  dl->addWidget(NumberField(d, "idef_limit", 48));
  dl->addStretch();

  auto* material = Group(FrameText(d, "ifyk"));
  auto* ml = Inside<QHBoxLayout>(material);
  ml->addWidget(List(d, "cbofyk", 8), 1);
  ml->addWidget(new QLabel(LabelText(d, "ifyk")));
  ml->addWidget(NumberField(d, "ifyk", 48));
  ml->addWidget(new QLabel(LabelText(d, "ie")));
  ml->addWidget(NumberField(d, "ie", 64));

  auto* other = Group("Other setup");
  auto* ol = Inside<QVBoxLayout>(other);
  auto* minor = Group(FrameText(d, "iuflimit"));
  auto* mnl = Inside<QHBoxLayout>(minor);
  auto* minorText = new QLabel(LabelText(d, "iuflimit"));
  minorText->setWordWrap(true);
  mnl->addWidget(minorText, 1);
  mnl->addWidget(NumberField(d, "iuflimit", 48), 0, Qt::AlignBottom);
  ol->addWidget(minor);
  auto* section = Group(FrameText(d, "CheckElastic"));
  auto* scl2 = Inside<QVBoxLayout>(section);
  scl2->addWidget(Check(d, "CheckConserControl"));
  scl2->addWidget(Note(" Valid for Double Symmetric Profiles "));
  scl2->addWidget(Check(d, "CheckElastic"));
  ol->addWidget(section);
  auto* class4 = Group(FrameText(d, "CheckWebbuck"));
  auto* c4 = Inside<QVBoxLayout>(class4);
  c4->addWidget(Check(d, "CheckFlangebuck"));
  c4->addWidget(Check(d, "CheckWebbuck"));
  ol->addWidget(class4);
  auto* rules = Group(FrameText(d, "rbtnRulesStrict"));
  auto* rl = Inside<QVBoxLayout>(rules);
  rl->addWidget(Option(d, "rbtnRulesSpecified"));
  rl->addWidget(Option(d, "rbtnRulesStrict"));
  rl->addWidget(Note(" See the help page Departures "));
  ol->addWidget(rules);
  ol->addStretch();

  auto* right = new QVBoxLayout;
  right->addWidget(comb);
  right->addWidget(sls);
  right->addWidget(material);
  main->addWidget(code, 0, 0);
  main->addLayout(right, 0, 1);
  right->addStretch();
  main->addWidget(other, 0, 2);
  main->addLayout(Foot({Button(d, "Command2")}, d->closeButton()), 1, 0, 1, 3);
  return d;
}

// ---- Loading ----

FormDialog* LoadingDialog(Session* s, QWidget* owner) {
  auto* d = new FormDialog(s, "Loading", "Loading", owner, "Unload");
  auto* main = new QVBoxLayout(d);
  main->setSpacing(6);

  // The combination and its psi factors.
  auto* top = new QHBoxLayout;
  auto* comb = Group(FrameText(d, "CboLoadComb"));
  auto* cl = Inside<QVBoxLayout>(comb);
  cl->addWidget(List(d, "CboLoadComb", 18));
  auto* formulas = new QListWidget;
  formulas->setObjectName("Loading.lstCombination");
  formulas->setFixedHeight(52);
  formulas->setMinimumWidth(formulas->fontMetrics().horizontalAdvance(QString(56, 'x')));
  formulas->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
  d->bindings()->lines(formulas, d->key("lstCombination"));
  cl->addWidget(formulas);
  top->addWidget(comb, 3);
  auto* psi = Group(FrameText(d, "Cbo_Q1_Psi1"), "Loading.frPsi");
  d->bindings()->frame(psi, d->key("frPsi"));
  auto* ps = Inside<QGridLayout>(psi);
  ps->addWidget(new QLabel(LabelText(d, "Cbo_Q1_Psi1")), 0, 0);
  ps->addWidget(List(d, "Cbo_Q1_Psi1", 4), 0, 1);
  ps->addWidget(new QLabel("Main "), 0, 2);
  ps->addWidget(new QLabel(LabelText(d, "Cbo_Q2_Psi2")), 1, 0);
  ps->addWidget(List(d, "Cbo_Q2_Psi2", 4), 1, 1);
  ps->addWidget(new QLabel("Secondary "), 1, 2);
  auto* help = Button(d, "Command3");
  ps->addWidget(help, 2, 0, 1, 3);
  top->addWidget(psi, 2);
  main->addLayout(top);
  main->addWidget(Check(d, "check_selfweight"));

  // A tick in front of each row, seen and counted in "Basic loads" only: each tick follows the
  // visibility of its table's frame of ticks (frN, frq, frqt, frPM).

  // A case or direction cell shows its value (view.text) in place of the column's caption.
  auto caseButton = [d](const std::string& control) { return Button(d, control, 34); };
  auto dirButton = [d](const std::string& control) { return Button(d, control, 34); };

  auto* tables = new QGridLayout;
  tables->setHorizontalSpacing(8);
  tables->setVerticalSpacing(6);

  // Axial forces.
  auto* axial = Group(FrameText(d, "inn"));
  auto* ag = Inside<QGridLayout>(axial);
  ag->addWidget(new QLabel(LabelText(d, "inn")), 0, 1, Qt::AlignCenter);
  ag->addWidget(new QLabel(LabelText(d, "inn_gq")), 0, 2, Qt::AlignCenter);
  for (int i = 1; i <= 3; ++i) {
    QCheckBox* tick = Check(d, Slot("ch_nn", i));
    d->bindings()->frame(tick, d->key("frN"));
    ag->addWidget(tick, i, 0);
    ag->addWidget(NumberField(d, Slot("inn", i)), i, 1);
    ag->addWidget(caseButton(Slot("inn_gq", i)), i, 2);
  }
  ag->setRowStretch(4, 1);
  tables->addWidget(axial, 0, 0);

  // Uniform loads.
  auto* uniform = Group(FrameText(d, "iq"));
  auto* ug = Inside<QGridLayout>(uniform);
  ug->addWidget(new QLabel(LabelText(d, "iq")), 0, 1, Qt::AlignCenter);
  ug->addWidget(new QLabel(LabelText(d, "iq_gq")), 0, 2, Qt::AlignCenter);
  ug->addWidget(new QLabel(LabelText(d, "iq_yz")), 0, 3, Qt::AlignCenter);
  for (int i = 1; i <= 4; ++i) {
    QCheckBox* tick = Check(d, Slot("ch_q", i));
    d->bindings()->frame(tick, d->key("frq"));
    ug->addWidget(tick, i, 0);
    ug->addWidget(NumberField(d, Slot("iq", i)), i, 1);
    ug->addWidget(caseButton(Slot("iq_gq", i)), i, 2);
    ug->addWidget(dirButton(Slot("iq_yz", i)), i, 3);
  }
  tables->addWidget(uniform, 0, 1);

  // Trapezoidal loads.
  auto* trapezoid = Group(FrameText(d, "iqt1"));
  auto* tg = Inside<QGridLayout>(trapezoid);
  tg->addWidget(new QLabel(LabelText(d, "iqt1")), 0, 1, Qt::AlignCenter);
  tg->addWidget(new QLabel(LabelText(d, "iqt2")), 0, 2, Qt::AlignCenter);
  auto* qtx = Shown(d, "qtx");
  qtx->setAlignment(Qt::AlignCenter);
  tg->addWidget(qtx, 0, 3, 1, 2);
  tg->addWidget(new QLabel(LabelText(d, "iqt_gq")), 0, 5, Qt::AlignCenter);
  tg->addWidget(new QLabel(LabelText(d, "iqt_yz")), 0, 6, Qt::AlignCenter);
  for (int i = 1; i <= 3; ++i) {
    QCheckBox* tick = Check(d, Slot("ch_qt", i));
    d->bindings()->frame(tick, d->key("frqt"));
    tg->addWidget(tick, i, 0);
    tg->addWidget(NumberField(d, Slot("iqt1", i), 50), i, 1);
    tg->addWidget(NumberField(d, Slot("iqt2", i), 50), i, 2);
    tg->addWidget(NumberField(d, Slot("iqtx1", i), 50), i, 3);
    tg->addWidget(NumberField(d, Slot("iqtx2", i), 50), i, 4);
    tg->addWidget(caseButton(Slot("iqt_gq", i)), i, 5);
    tg->addWidget(dirButton(Slot("iqt_yz", i)), i, 6);
  }
  auto* tx = new QHBoxLayout;
  tx->addWidget(Option(d, "qtxrelative"));
  tx->addWidget(Option(d, "qtxabsolute"));
  tx->addStretch();
  tg->addLayout(tx, 4, 0, 1, 7);
  tables->addWidget(trapezoid, 1, 0, 1, 2);

  // Point forces and moments.
  auto* point = Group(FrameText(d, "ipm"));
  auto* pg = Inside<QGridLayout>(point);
  pg->addWidget(new QLabel(LabelText(d, "ipm")), 0, 1, Qt::AlignCenter);
  auto* pmx = Shown(d, "pmx");
  pmx->setAlignment(Qt::AlignCenter);
  pg->addWidget(pmx, 0, 2);
  pg->addWidget(new QLabel(LabelText(d, "ipm_pm")), 0, 3, Qt::AlignCenter);
  pg->addWidget(new QLabel(LabelText(d, "ipm_gq")), 0, 4, Qt::AlignCenter);
  pg->addWidget(new QLabel(LabelText(d, "ipm_yz")), 0, 5, Qt::AlignCenter);
  for (int i = 1; i <= 8; ++i) {
    QCheckBox* tick = Check(d, Slot("ch_pm", i));
    d->bindings()->frame(tick, d->key("frPM"));
    pg->addWidget(tick, i, 0);
    pg->addWidget(NumberField(d, Slot("ipm", i)), i, 1);
    pg->addWidget(NumberField(d, Slot("ipmx", i)), i, 2);
    pg->addWidget(Button(d, Slot("ipm_pm", i), 30), i, 3);
    pg->addWidget(caseButton(Slot("ipm_gq", i)), i, 4);
    pg->addWidget(dirButton(Slot("ipm_yz", i)), i, 5);
  }
  auto* px = new QHBoxLayout;
  px->addWidget(Option(d, "pmxrelative"));
  px->addWidget(Option(d, "pmxabsolute"));
  px->addStretch();
  pg->addLayout(px, 9, 0, 1, 6);
  tables->addWidget(point, 0, 2, 2, 1);
  main->addLayout(tables);

  auto* remove = Button(d, "CmdRemove");
  d->bindings()->frame(remove, d->key("CmdRemove"));
  main->addLayout(Foot({remove}, d->closeButton()));
  return d;
}

// ---- End forces ----

FormDialog* EndForceDialog(Session* s, QWidget* owner) {
  auto* d = new FormDialog(s, "endforce", "Endforce", owner);
  auto* main = new QVBoxLayout(d);
  auto* frame = Group(FrameText(d, "ine"));
  auto* g = Inside<QGridLayout>(frame);
  g->setHorizontalSpacing(6);
  g->addWidget(Right(LabelText(d, "ine")), 0, 0);
  g->addWidget(NumberField(d, "ine", 64), 0, 1);
  g->addWidget(new QLabel(" (+=compression)"), 0, 2, 1, 3);
  // My and Vz in the left pair of columns, Mz and Vy in the right; end 1 above end 2.
  const char* left[4] = {"imy1", "imy2", "ivz1", "ivz2"};
  const char* right[4] = {"imz1", "imz2", "ivy1", "ivy2"};
  for (int r = 0; r < 4; ++r) {
    for (int side = 0; side < 2; ++side) {
      const char* f = side == 0 ? left[r] : right[r];
      QLabel* label = Right(LabelText(d, f));
      QLineEdit* field = NumberField(d, f, 64);
      // A field the family can't carry is hidden with its label.
      auto* holder = new QWidget;
      auto* hl = new QHBoxLayout(holder);
      hl->setContentsMargins(0, 0, 0, 0);
      hl->addWidget(label);
      hl->addWidget(field);
      d->bindings()->frame(holder, d->key(f));
      g->addWidget(holder, r + 1, side == 0 ? 0 : 3, 1, 2, Qt::AlignRight);
    }
  }
  g->setColumnMinimumWidth(2, 16);
  main->addWidget(frame);
  main->addWidget(
      Note("End 1 at x = 0, end 2 at x = L. Positive My compresses the upper flange; "
           "the forces vary linearly between the ends."));
  main->addLayout(Foot({}, d->closeButton()));
  return d;
}

// ---- Buckling length factors ----

// A small picture drawn on the canvas, at twice the pixels for sharp high-DPI screens.
QIcon CanvasIcon(QSize size, const std::function<void(draw::Canvas&)>& paint) {
  QPixmap pm(size * 2);
  pm.setDevicePixelRatio(2);
  pm.fill(Qt::transparent);
  QPainter p(&pm);
  p.setRenderHint(QPainter::Antialiasing);
  PainterCanvas canvas(p, QRectF(QPointF(0, 0), QSizeF(size)));
  paint(canvas);
  p.end();
  return QIcon(pm);
}

QIcon BucklingCaseIcon(int picture) {
  return CanvasIcon(QSize(30, 60), [picture](draw::Canvas& c) { DrawBucklingCaseIcon(c, picture); });
}

FormDialog* BucklingDialog(Session* s, QWidget* owner, bool yAxis) {
  const std::string form = yAxis ? "bucklingy" : "bucklingz";
  auto* d = new FormDialog(
      s, form, yAxis ? "Buckling length factors - Y-axis" : "Buckling length factors - Z-axis", owner);
  auto* main = new QVBoxLayout(d);
  auto* row = new QHBoxLayout;
  for (int c = 1; c <= 5; ++c) {
    auto* b = new QToolButton;
    b->setIcon(BucklingCaseIcon(c));
    b->setIconSize(QSize(30, 60));
    const std::string control = form + std::to_string(c);
    b->setText(CaptionText(d, control));
    b->setToolTip(TipText(d, control));
    b->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    b->setMinimumWidth(52);
    d->bindings()->option(b, d->key(control), d->key(control), 1);
    row->addWidget(b);
  }
  main->addLayout(row);
  main->addWidget(Note("Lcr = factor * L"));
  main->addLayout(Foot({}, d->closeButton()));
  return d;
}

// ---- Calculation points ----

FormDialog* CheckPointDialog(Session* s, QWidget* owner) {
  auto* d = new FormDialog(s, "chpoints", "Section Control - calculation points", owner);
  auto* main = new QVBoxLayout(d);
  main->addWidget(Option(d, "cp_0"));
  main->addWidget(Option(d, "cp_1"));
  auto* frame = Group(FrameText(d, "cprelative"), "chpoints.fr_cp");
  d->bindings()->frame(frame, d->key("fr_cp"));
  auto* g = Inside<QGridLayout>(frame);
  auto* count = new QHBoxLayout;
  count->addWidget(new QLabel(RowText(d, "no_cp1")));
  for (int n = 1; n <= 3; ++n) count->addWidget(Option(d, "no_cp" + std::to_string(n)));
  count->addStretch();
  g->addLayout(count, 0, 0, 1, 3);
  auto* kind = new QHBoxLayout;
  kind->addWidget(Option(d, "cprelative"));
  kind->addWidget(Option(d, "cpabsolute"));
  kind->addStretch();
  g->addLayout(kind, 1, 0, 1, 3);
  auto* cpx = Shown(d, "cpx");
  cpx->setAlignment(Qt::AlignCenter);
  g->addWidget(cpx, 2, 1);
  for (int n = 1; n <= 3; ++n) {
    auto* label = new QLabel(RowText(d, "icp") + QString::number(n));
    g->addWidget(label, 2 + n, 0);
    QLineEdit* field = NumberField(d, Slot("icp", n), 64);
    g->addWidget(field, 2 + n, 1);
  }
  g->setColumnStretch(2, 1);
  main->addWidget(frame);
  main->addStretch();
  main->addLayout(Foot({}, d->closeButton()));
  return d;
}

// ---- Modal results ----

// The first three mode shapes of a simple beam.
void DrawModeShapes(QPainter& p, const QRectF& area) {
  p.setRenderHint(QPainter::Antialiasing);
  const double band = area.height() / 3;
  for (int n = 1; n <= 3; ++n) {
    const double base = area.top() + band * (n - 0.5);
    p.setPen(QPen(Qt::black, 1));
    p.drawLine(QPointF(area.left() + 8, base), QPointF(area.right() - 8, base));
    QPolygonF shape;
    for (int i = 0; i <= 60; ++i) {
      const double t = i / 60.0;
      shape << QPointF(area.left() + 8 + t * (area.width() - 16),
                       base - band * 0.32 * std::sin(3.14159265358979 * n * t));
    }
    p.setPen(QPen(QColor(0, 0, 255), 1.5));
    p.drawPolyline(shape);
    p.setPen(Qt::black);
    p.drawText(QPointF(area.left() + 2, base - band * 0.3), QString::number(n));
  }
}

FormDialog* ModalDialog(Session* s, QWidget* owner) {
  auto* d = new FormDialog(s, "Modal_ns", "Modal analysis for q-loads (SLS)", owner);
  auto* main = new QHBoxLayout(d);
  auto* shapes = new PictureBox(s, "Modal_ns.pic");
  shapes->setFixedSize(180, 120);
  shapes->setBackdrop(DrawModeShapes);
  main->addWidget(shapes);
  auto* texts = new QVBoxLayout;
  for (const char* name : {"massa", "mod1", "mod2", "mod3"}) texts->addWidget(Shown(d, name));
  texts->addStretch();
  texts->addWidget(d->closeButton(), 0, Qt::AlignRight);
  main->addLayout(texts);
  d->setMinimumWidth(420);
  return d;
}

// ---- About ----

// The program's name in large bold type, at the head of the about and information forms.
QLabel* ProgramTitle() {
  auto* title = new QLabel("Varnelt EC3");
  QFont f = title->font();
  f.setPointSizeF(f.pointSizeF() * 1.8);
  f.setBold(true);
  title->setFont(f);
  return title;
}

FormDialog* AboutDialog(Session* s, QWidget* owner) {
  auto* d = new FormDialog(s, "about", "About Varnelt - EC3", owner);
  auto* main = new QVBoxLayout(d);
  auto* head = new QHBoxLayout;
  // The program's icon, beside the data files; without Qt's SVG plugin the title stands alone.
  const QIcon icon(QString::fromStdString(s->state().appPath) + "/varnelt.svg");
  if (!icon.isNull() && !icon.pixmap(64, 64).isNull()) {
    auto* picture = new QLabel;
    picture->setObjectName("aboutIcon");
    picture->setPixmap(icon.pixmap(64, 64));
    head->addWidget(picture);
    head->addSpacing(8);
  }
  auto* names = new QVBoxLayout;
  names->addWidget(ProgramTitle());
  auto* version = new QLabel("Version " VARNELT_VERSION);
  version->setObjectName("aboutVersion");
  names->addWidget(version);
  head->addLayout(names);
  head->addStretch(1);
  main->addLayout(head);
  main->addSpacing(4);
  main->addWidget(
      new QLabel("Design of one steel member, beam or column, to Eurocode 3:\n"
                 "EN 1993-1-1 for members and sections, EN 1993-1-5 for plated parts,\n"
                 "EN 1990 for the combinations of loads, with a choice of national annexes."));
  main->addSpacing(4);
  main->addWidget(Note(QString("Data files and help: %1").arg(QString::fromStdString(s->state().appPath))));
  main->addSpacing(6);
  main->addLayout(Foot({}, d->closeButton()));
  return d;
}

// ---- The psi factors ----

FormDialog* PsiDialog(Session* s, QWidget* owner) {
  static const char* const kCaptions[6] = {"Psi-factors - Eurocode", "Psi-factors - Norway",
                                           "Psi-factors - Sweden",   "Psi-factors - Denmark",
                                           "Psi-factors - UK",       "Psi-factors - Finland"};
  const int code = s->state().project.codeIndex;
  auto* d = new FormDialog(s, "InfoPsi", code >= 0 && code <= 5 ? kCaptions[code] : kCaptions[0], owner);
  auto* main = new QVBoxLayout(d);
  auto* table = new QLabel(
      "<table cellspacing=0 cellpadding=2>"
      "<tr><th align=left>Action</th><th>&psi;0</th><th>&psi;1</th><th>&psi;2</th></tr>"
      "<tr><td>Imposed loads, category A: domestic, residential</td><td>0.7</td><td>0.5</td><td>0.3</td></tr>"
      "<tr><td>Category B: office areas</td><td>0.7</td><td>0.5</td><td>0.3</td></tr>"
      "<tr><td>Category C: congregation areas</td><td>0.7</td><td>0.7</td><td>0.6</td></tr>"
      "<tr><td>Category D: shopping areas</td><td>0.7</td><td>0.7</td><td>0.6</td></tr>"
      "<tr><td>Category E: storage areas</td><td>1.0</td><td>0.9</td><td>0.8</td></tr>"
      "<tr><td>Category F: traffic area, vehicle weight &le; 30 "
      "kN</td><td>0.7</td><td>0.7</td><td>0.6</td></tr>"
      "<tr><td>Category G: traffic area, 30 kN &lt; vehicle weight &le; 160 "
      "kN</td><td>0.7</td><td>0.5</td><td>0.3</td></tr>"
      "<tr><td>Category H: roofs</td><td>0</td><td>0</td><td>0</td></tr>"
      "<tr><td>Snow loads: Finland, Iceland, Norway, Sweden</td><td>0.70</td><td>0.50</td><td>0.20</td></tr>"
      "<tr><td>Snow loads elsewhere, site above 1000 m "
      "a.s.l.</td><td>0.70</td><td>0.50</td><td>0.20</td></tr>"
      "<tr><td>Snow loads elsewhere, site up to 1000 m a.s.l.</td><td>0.50</td><td>0.20</td><td>0</td></tr>"
      "<tr><td>Wind loads</td><td>0.6</td><td>0.2</td><td>0</td></tr>"
      "<tr><td>Temperature (non-fire)</td><td>0.6</td><td>0.5</td><td>0</td></tr>"
      "</table>");
  main->addWidget(table);
  main->addWidget(Note("Recommended values of EN 1990, Table A1.1; a national annex may set others."));
  main->addLayout(Foot({}, d->closeButton()));
  return d;
}

// The load factors of the offshore standard that the ULS/SLS frame refers to.
FormDialog* UlsDialog(Session* s, QWidget* owner) {
  auto* d = new FormDialog(s, "InfoULS", "Partial Factors ref DNV-OS-C101", owner);
  auto* main = new QVBoxLayout(d);
  main->addWidget(new QLabel(
      "<b>Load factors &gamma;f for ULS</b>"
      "<table cellspacing=0 cellpadding=3>"
      "<tr><th align=left>Combination of design loads</th><th>G</th><th>Q</th><th>E</th><th>D</th></tr>"
      "<tr><td>a)</td><td>1.3</td><td>1.3</td><td>0.7</td><td>1.0</td></tr>"
      "<tr><td>b)</td><td>1.0</td><td>1.0</td><td>1.3</td><td>1.0</td></tr>"
      "</table>"));
  main->addWidget(
      Note("G permanent loads, Q variable functional loads, E environmental loads, "
           "D deformation loads.\nWhere a permanent load G causes a favourable load effect, "
           "its factor is 1.0 in combination a).\nSLS: all load factors 1.0."));
  main->addLayout(Foot({}, d->closeButton()));
  return d;
}

// What the program is and where it reads its tables from.
FormDialog* ProgramInfoDialog(Session* s, QWidget* owner) {
  auto* d = new FormDialog(s, "InfoVARNELT", "Varnelt EC3", owner);
  auto* main = new QVBoxLayout(d);
  main->addWidget(ProgramTitle());
  const State& st = s->state();
  main->addWidget(new QLabel(
      QString("Design of one steel member, beam or column, to EN 1993-1-1, EN 1993-1-5 and EN 1990.\n\n"
              "Sections: 31 families, rolled, welded, hollow, angles, channels, plates and British tables.\n"
              "Every input recalculates the member at once; the governing ratio, its formula and\n"
              "its clause stand in the Results frame, the full set under More Results.\n\n"
              "Profile tables, steel grades and setup are read from:\n%1")
          .arg(QString::fromStdString(st.appPath))));
  main->addLayout(Foot({}, d->closeButton()));
  return d;
}

// ---- End supports and web stiffeners ----

FormDialog* EndStiffenerDialog(Session* s, QWidget* owner) {
  auto* d = new FormDialog(s, "endstiff", "End Supports/Web stiffener", owner);
  auto* main = new QVBoxLayout(d);
  auto* web = Group(FrameText(d, "iweba"), "endstiff.frwebstiff");
  d->bindings()->frame(web, d->key("frwebstiff"));
  auto* wl = Inside<QGridLayout>(web);
  wl->addWidget(Option(d, "cwebstiff0"), 0, 0, 1, 4);
  wl->addWidget(Option(d, "cwebstiff1"), 1, 0);
  auto* spacing = new QWidget;
  auto* sl = new QHBoxLayout(spacing);
  sl->setContentsMargins(0, 0, 0, 0);
  sl->addWidget(new QLabel(LabelText(d, "iweba")));
  sl->addWidget(NumberField(d, "iweba", 56));
  sl->addWidget(new QLabel("mm"));
  d->bindings()->frame(spacing, d->key("iweba"));
  wl->addWidget(spacing, 1, 1, 1, 3, Qt::AlignLeft);
  main->addWidget(web);
  auto* end = Group(FrameText(d, "oendstiff0"), "endstiff.frendsupport");
  d->bindings()->frame(end, d->key("frendsupport"));
  auto* el = Inside<QVBoxLayout>(end);
  auto* nonRigid = Option(d, "oendstiff0");
  auto* rigid = Option(d, "oendstiff1");
  el->addWidget(nonRigid);
  el->addWidget(rigid);
  QLabel* note = Note("Minimum two webstiffeners at the support");
  d->bindings()->label(note, d->key("note"));
  el->addWidget(note);
  main->addWidget(end);
  auto* capacity = Group("Capacity  (EN 1993-1-5, ch 5.2-5.4)", "endstiff.frcapacity");
  d->bindings()->frame(capacity, d->key("frcapacity"));
  auto* cl = Inside<QVBoxLayout>(capacity);
  cl->addWidget(Shown(d, "ovbrzd"));
  main->addWidget(capacity);
  main->addLayout(Foot({}, d->closeButton()));
  return d;
}

// ---- Lateral torsional buckling ----

QIcon LoadLevelIcon(int level) {
  return CanvasIcon(QSize(28, 28), [level](draw::Canvas& c) {
    draw::Drawing drawing;
    draw::RecordingCanvas record(drawing);
    DrawLoadLevelPicture(record, level, false);
    draw::Replay(drawing, c);
  });
}

FormDialog* LtbDialog(Session* s, QWidget* owner) {
  auto* d = new FormDialog(s, "vipping", "Lateral Torsional Buckling parameters", owner, "Unload");
  auto* main = new QGridLayout(d);
  main->setHorizontalSpacing(10);
  main->setVerticalSpacing(8);

  auto* curves = Group(FrameText(d, "Curve2"));
  auto* cv = Inside<QVBoxLayout>(curves);
  cv->addWidget(Option(d, "Curve2"));
  cv->addWidget(Option(d, "Curve3"));
  cv->addWidget(Note(" Valid for Double Symmetric Profiles "));
  cv->addWidget(Note(" Deeper slender beams "));
  main->addWidget(curves, 0, 0);

  auto* level = Group(FrameText(d, "iza"));
  auto* ll = Inside<QHBoxLayout>(level);
  for (int i = 1; i <= 4; ++i) {
    auto* b = new QToolButton;
    b->setIcon(LoadLevelIcon(i));
    b->setIconSize(QSize(28, 28));
    const std::string control = "loadl" + std::to_string(i);
    b->setToolTip(TipText(d, control));
    d->bindings()->option(b, d->key(control), d->key(control), 1);
    ll->addWidget(b);
  }
  ll->addSpacing(6);
  ll->addWidget(new QLabel(LabelText(d, "iza")));
  ll->addWidget(NumberField(d, "iza", 48));
  ll->addWidget(new QLabel("mm"));
  ll->addStretch();
  main->addWidget(level, 1, 0);

  auto* restraints = Group(FrameText(d, "cbo"));
  auto* rl = Inside<QHBoxLayout>(restraints);
  rl->addWidget(List(d, "cbo", 3));
  rl->addStretch();
  main->addWidget(restraints, 2, 0);

  auto* length = Group(FrameText(d, "latbuckl1"));
  auto* ln = Inside<QVBoxLayout>(length);
  auto* ks = new QHBoxLayout;
  for (int i = 1; i <= 4; ++i) ks->addWidget(Option(d, "latbuckl" + std::to_string(i)));
  ks->addStretch();
  ln->addLayout(ks);
  ln->addWidget(Note("k-factor is related to member length or the  length between restraint points "));
  main->addWidget(length, 3, 0);

  auto* capacity = Group(FrameText(d, "ic1"));
  auto* cg = Inside<QGridLayout>(capacity);
  cg->addWidget(Check(d, "Cfactor"), 0, 0, 1, 3);
  const char* fields[3] = {"ic1", "ic2", "ic3"};
  // Each factor the program works out stands on the row of the factor typed in its place.
  const char* results[3] = {"C1", "C2", "C3"};
  for (int r = 0; r < 3; ++r) {
    cg->addWidget(Right(LabelText(d, fields[r])), r + 1, 0);
    cg->addWidget(NumberField(d, fields[r], 56), r + 1, 1);
    cg->addWidget(Shown(d, results[r]), r + 1, 2);
  }
  cg->addWidget(Shown(d, "Mcr"), 4, 1, 1, 2);
  cg->addWidget(Shown(d, "MdRb"), 5, 1, 1, 2);
  cg->addWidget(Check(d, "C1factor"), 6, 0, 1, 3);
  auto* part = new QHBoxLayout;
  part->addWidget(new QLabel("Beampart:"));
  part->addWidget(Shown(d, "Beampart"));
  part->addStretch();
  cg->addLayout(part, 7, 0, 1, 3);
  auto* only = Group("Only valid for loaded member and no restraints");
  auto* ol = Inside<QVBoxLayout>(only);
  ol->addWidget(
      Note("This has only influence if you have loading on the beam and that  lateral "
           "restraint points = 0 (C2-factor)"));
  cg->addWidget(only, 8, 0, 1, 3);
  cg->setColumnStretch(2, 1);
  main->addWidget(capacity, 0, 1, 4, 1);

  // Where Mcr comes from: the C factor tables above, or the eigenvalue analysis of the member with
  // its moment diagram, load height, supports, k and restraints; what that found stands beside.
  auto* method = Group("Elastic critical moment Mcr");
  auto* ml = Inside<QHBoxLayout>(method);
  ml->addWidget(Option(d, "McrTables"));
  ml->addWidget(Option(d, "McrEigen"));
  ml->addSpacing(12);
  ml->addWidget(Shown(d, "McrMethod"));
  ml->addStretch();
  main->addWidget(method, 4, 0, 1, 2);
  main->addLayout(Foot({}, d->closeButton()), 5, 0, 1, 2);
  return d;
}

// ---- More Results ----

FormDialog* DetailDialog(Session* s, QWidget* owner) {
  auto* d = new FormDialog(s, "detailedresult", "More Results", owner);
  auto* main = new QVBoxLayout(d);
  auto* grid = new QTableWidget(55, 4);
  grid->setObjectName("MSFlexGrid1");
  grid->horizontalHeader()->hide();
  grid->verticalHeader()->hide();
  grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
  grid->setSelectionMode(QAbstractItemView::NoSelection);
  grid->setFocusPolicy(Qt::NoFocus);
  // About thirty rows in view, the rest a scroll away; the values whole.
  grid->setMinimumSize(640, 30 * (grid->fontMetrics().height() + 4));
  grid->verticalHeader()->setDefaultSectionSize(grid->fontMetrics().height() + 4);
  main->addWidget(grid);
  auto fill = [d, grid] {
    const View& v = d->session()->state().view;
    const int width = grid->viewport()->width();
    grid->setColumnWidth(0, static_cast<int>(width * 0.35));
    grid->setColumnWidth(1, static_cast<int>(width * 0.26));
    grid->setColumnWidth(2, static_cast<int>(width * 0.1));
    grid->horizontalHeader()->setStretchLastSection(true);
    for (int r = 0; r < 55; ++r) {
      for (int c = 0; c < 4; ++c) {
        const std::string text = r < static_cast<int>(v.detailGrid.size())
                                     ? v.detailGrid[static_cast<size_t>(r)][static_cast<size_t>(c)]
                                     : std::string();
        QTableWidgetItem* item = grid->item(r, c);
        if (!item) {
          item = new QTableWidgetItem;
          grid->setItem(r, c, item);
        }
        item->setText(QString::fromStdString(text));
        const bool head = r == 0 || v.detailGridBold.count(r) > 0;
        QFont f = grid->font();
        f.setBold(head);
        item->setFont(f);
        item->setBackground(head ? grid->palette().button() : grid->palette().base());
        if (c == 1) item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
      }
    }
  };
  d->setExtraRefresh(fill);
  auto* exportButton = new QPushButton(CaptionText(d, "cmdDetailedResult"));
  exportButton->setObjectName("cmdDetailedResult");
  exportButton->setAutoDefault(false);
  QObject::connect(exportButton, &QPushButton::clicked, d, [d] {
    const QString path =
        QFileDialog::getSaveFileName(d, "Export", QString::fromStdString(d->session()->state().currentDir),
                                     "Excel workbook (*.xlsx);;Comma-separated values (*.csv)");
    if (path.isEmpty()) return;
    d->session()->fireAndTell(d, d->key("cmdDetailedResult"), path.toStdString());
  });
  exportButton->setEnabled(Session::knows(d->key("cmdDetailedResult")));
  main->addLayout(Foot({exportButton}, d->closeButton()));
  fill();
  return d;
}

}  // namespace

FormDialog* CreateFormDialog(Session* session, const std::string& name, QWidget* owner) {
  if (name == "setup") return SetupDialog(session, owner);
  if (name == "Loading") return LoadingDialog(session, owner);
  if (name == "endforce") return EndForceDialog(session, owner);
  if (name == "bucklingy") return BucklingDialog(session, owner, true);
  if (name == "bucklingz") return BucklingDialog(session, owner, false);
  if (name == "chpoints") return CheckPointDialog(session, owner);
  if (name == "Modal_ns") return ModalDialog(session, owner);
  if (name == "about") return AboutDialog(session, owner);
  if (name == "InfoPsi") return PsiDialog(session, owner);
  if (name == "InfoULS") return UlsDialog(session, owner);
  if (name == "InfoVARNELT") return ProgramInfoDialog(session, owner);
  if (name == "endstiff") return EndStiffenerDialog(session, owner);
  if (name == "vipping") return LtbDialog(session, owner);
  if (name == "detailedresult") return DetailDialog(session, owner);
  return nullptr;
}

}  // namespace vn::forms
