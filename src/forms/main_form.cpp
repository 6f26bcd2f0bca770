#include "forms/main_form.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QTextEdit>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <functional>
#include <tuple>

#include "core/captions.h"
#include "core/recalculate.h"
#include "forms/bindings.h"
#include "forms/form_dialog.h"
#include "forms/help_window.h"
#include "forms/lightest_dialog.h"
#include "forms/painter_canvas.h"
#include "forms/picture_box.h"
#include "forms/profiles.h"
#include "forms/report_page.h"
#include "forms/section_dialog.h"
#include "forms/session.h"
#include "graphics/section_figure.h"
#include "graphics/support_symbols.h"
#include "results/summary.h"

namespace vn::forms {

namespace {

QGroupBox* Frame(const QString& caption, const char* name, QWidget* parent = nullptr) {
  auto* g = new QGroupBox(caption, parent);
  g->setObjectName(name);
  return g;
}

// The layout of a frame, kept close to its border.
template <class L>
L* Inside(QWidget* frame) {
  auto* l = new L(frame);
  l->setContentsMargins(6, 2, 6, 2);
  l->setSpacing(3);
  return l;
}

QLineEdit* Field(int width = 0) {
  auto* e = new QLineEdit;
  e->setAlignment(Qt::AlignRight);
  if (width > 0) e->setFixedWidth(width);
  return e;
}

// The picture of an end support option, drawn by the core's symbol routine.
QIcon SupportIcon(int type, QSize size) {
  const qreal ratio = qApp->devicePixelRatio();
  QPixmap pm(size * ratio);
  pm.setDevicePixelRatio(ratio);
  pm.fill(Qt::transparent);
  QPainter p(&pm);
  PainterCanvas canvas(p, QRectF(QPointF(0, 0), QSizeF(size)));
  DrawSupportIcon(canvas, type);
  p.end();
  return QIcon(pm);
}

// A small picture on a transparent ground, sharp on a scaled display.
QIcon SmallIcon(const QSize& size, const std::function<void(QPainter&, const QSize&)>& draw) {
  const qreal ratio = qApp->devicePixelRatio();
  QPixmap pm(size * ratio);
  pm.setDevicePixelRatio(ratio);
  pm.fill(Qt::transparent);
  QPainter p(&pm);
  draw(p, size);
  p.end();
  return QIcon(pm);
}

// The picture of a buckling length button (1..6).
QIcon BucklingIcon(int picture) {
  static QIcon icons[7];
  if (picture < 1 || picture > 6) picture = 6;
  if (icons[picture].isNull()) {
    icons[picture] = SmallIcon(QSize(14, 28), [picture](QPainter& p, const QSize& size) {
      PainterCanvas canvas(p, QRectF(QPointF(0, 0), QSizeF(size)));
      DrawBucklingCaseIcon(canvas, picture);
    });
  }
  return icons[picture];
}

// The colours of the ratios: index 2 green, 4 red, as the program's palette has them.
QString RatioColour(int index) {
  if (index == 2) return QStringLiteral("#008000");
  if (index == 4) return QStringLiteral("#c00000");
  return QStringLiteral("#000000");
}

}  // namespace

// A text of the summary that breaks at its blanks only: a formula or a row of numbers stays whole
// (no break after "/" or "(" inside it), and an "=" stays with the word before it, so that no line
// begins with "=" and no "=" stands alone.
QString KeepWordsWhole(const std::string& text) {
  const QString t = QString::fromStdString(text);
  const QChar joiner(0x2060), noBreakSpace(0x00A0);
  QString out;
  for (int i = 0; i < t.size(); ++i) {
    QChar c = t[i];
    const bool next = i + 1 < t.size();
    if (c == ' ' && next && t[i + 1] == '=') c = noBreakSpace;
    out += c;
    // Inside a word the text breaks after "/" and "-" only: a joiner there, and nowhere else, so
    // that a copied text keeps its characters.
    if (next && (c == '/' || c == '-') && t[i + 1] != ' ') out += joiner;
  }
  return out.toHtmlEscaped();
}

namespace {

// The summary of controls: titles bold and underlined with their note in plain type, each control
// line with its formula and numbers, the ratio in its colour and the limit, in three columns.
QString SummaryHtml(const View& v) {
  auto esc = [](const std::string& t) { return KeepWordsWhole(t); };
  // The formulas wrap where the results area is too narrow; ratio and limit stay whole.
  QString html = QStringLiteral("<table width='100%' cellspacing=0 cellpadding=1>");
  bool first = true;
  for (const SummaryLine& l : v.summary) {
    if (l.title) {
      html += QStringLiteral("<tr><td colspan=3 style='padding-top:%1px'><b><u>%2</u></b>%3</td></tr>")
                  .arg(first ? 0 : 8)
                  .arg(esc(l.left), esc(l.note));
    } else if (l.ratio.empty()) {
      html += QStringLiteral("<tr><td colspan=3>%1 %2</td></tr>").arg(esc(l.left), esc(l.note));
    } else {
      html += QStringLiteral(
                  "<tr><td>%1</td><td align=right valign=bottom style='white-space:pre'><b><font color='%2'>"
                  "&nbsp;%3</font></b></td><td valign=bottom style='white-space:pre'>%4%5</td></tr>")
                  .arg(esc(l.left), RatioColour(l.colour), esc(l.ratio), esc(l.limit), esc(l.note));
    }
    first = false;
  }
  return html + QStringLiteral("</table>");
}

// The main form's texts from the core's table of captions.
QString MainCaption(const std::string& name) { return QString::fromStdString(CaptionOf("", name).caption); }
QString MainLabel(const std::string& name) {
  return QString::fromStdString(ShownText(CaptionOf("", name).caption));
}
QString MainFrame(const std::string& name) { return QString::fromStdString(CaptionOf("", name).frame); }
QString MainTip(const std::string& name) { return QString::fromStdString(CaptionOf("", name).tip); }

// Menu entries the form handles itself, whether or not the core has a control for them.
bool FormHandles(const std::string& control) {
  return control == "mnuexit" || control == "mnuabout" || control == "mnuProfDB" ||
         control == "mnuhelpcont" || control == "mnuhelpsearch" || control == "mnuTheory" ||
         control == "mnuprint0" || control == "mnuprint00" || control == "mnuprint1" ||
         control == "mnuprint11" || control == "mnupdf0" || control == "mnupdf1" || control == "mnulightest";
}

// The help pages, in help/ beside the data files.
QString HelpPagePath(const Session* s) {
  return QString::fromStdString(s->state().appPath) + QStringLiteral("/help/index.html");
}

QString TheoryManualPath(const Session* s) {
  return QString::fromStdString(s->state().appPath) +
         QStringLiteral("/Documentation/Varnelt EC3 Theory Manual.pdf");
}

// Opens a document of the program in the system's viewer; a missing file or a viewer that can't be
// started is told in a warning box naming the path.
void OpenDocument(QWidget* parent, const QString& path, const QString& missing) {
  const QString shown = QDir::toNativeSeparators(path);
  if (!QFileInfo::exists(path)) {
    boxes().warning(parent, missing + shown);
    return;
  }
  if (!boxes().openFile(path)) boxes().warning(parent, QStringLiteral("Can't open ") + shown);
}

}  // namespace

MainForm::MainForm(Session* session, QWidget* parent)
    : QMainWindow(parent), session_(session), bindings_(new Bindings(session, this)) {
  setObjectName("frmMain");
  buildMenus();
  buildSectionButtons();
  buildForm();
  resize(startSize());
  connect(session_, &Session::changed, this, &MainForm::refresh);
  connect(session_, &Session::exitRequested, this, [] { QCoreApplication::exit(0); });
  // The right mouse button anywhere on the form brings up the Profiles menu.
  qApp->installEventFilter(this);
  refresh();
}

MainForm::~MainForm() { qApp->removeEventFilter(this); }

QSize MainForm::startSize() const {
  QScreen* screen = this->screen() ? this->screen() : QGuiApplication::primaryScreen();
  double dpiX = 96, dpiY = 96;
  QSize room(1 << 15, 1 << 15);
  if (screen) {
    // Logical pixels: with the display scaled, Qt already multiplies them by the device ratio.
    dpiX = screen->logicalDotsPerInchX();
    dpiY = screen->logicalDotsPerInchY();
    // A picture drawn without a display keeps the designed size.
    if (QGuiApplication::platformName() != "offscreen") room = screen->availableGeometry().size();
  }
  const int w = qRound(dpiX / 96.0 * 1024);
  const int h = qRound(dpiY / 96.0 * 0.965 * 768);
  return QSize(std::min(w, room.width()), std::min(h, room.height()));
}

QAction* MainForm::addEntry(QMenu* menu, const std::string& control, const QString& caption) {
  QAction* a = menu->addAction(caption);
  a->setObjectName(QString::fromStdString(control));
  actions_[control] = a;
  connect(a, &QAction::triggered, this, [this, control] { onMenu(control); });
  return a;
}

QAction* MainForm::menuAction(const std::string& control) const {
  auto it = actions_.find(control);
  return it == actions_.end() ? nullptr : it->second;
}

void MainForm::buildMenus() {
  QMenuBar* bar = menuBar();

  QMenu* file = bar->addMenu(MainCaption("mnufile"));
  file->setObjectName("mnufile");
  addEntry(file, "mnunew", MainCaption("mnunew"));
  addEntry(file, "mnuopen", MainCaption("mnuopen"));
  addEntry(file, "mnusave", MainCaption("mnusave"));
  addEntry(file, "mnusaveas", MainCaption("mnusaveas"));
  file->addSeparator()->setObjectName("mnuspc");
  addEntry(file, "mnuprint00", MainCaption("mnuprint00"));
  addEntry(file, "mnuprint11", MainCaption("mnuprint11"));
  // The reports as PDF files, written without the print dialog.
  addEntry(file, "mnupdf0", MainCaption("mnupdf0"));
  addEntry(file, "mnupdf1", MainCaption("mnupdf1"));
  QAction* recentLine = file->addSeparator();
  recentLine->setObjectName("mnurecentfile(0)");
  actions_["mnurecentfile(0)"] = recentLine;
  recentLine->setVisible(false);
  for (int i = 1; i <= 4; ++i) {
    QAction* a = addEntry(file, "mnurecentfile(" + std::to_string(i) + ")", QString("oldfile%1").arg(i));
    a->setVisible(false);
  }
  file->addSeparator()->setObjectName("mnuspace");
  addEntry(file, "mnuexit", MainCaption("mnuexit"));

  // Entries of the menu bar that act at once.
  auto top = [this, bar](const std::string& control, const QString& caption) {
    QAction* a = bar->addAction(caption);
    a->setObjectName(QString::fromStdString(control));
    actions_[control] = a;
    connect(a, &QAction::triggered, this, [this, control] { onMenu(control); });
  };
  top("mnusetup", MainCaption("mnusetup"));

  profilesMenu_ = bar->addMenu(MainCaption("mnustiff"));
  profilesMenu_->setObjectName("mnustiff");
  for (const ProfileEntry& e : kProfiles) {
    if (e.separatorBefore) profilesMenu_->addSeparator();
    if (std::string(e.menu) == "mnuu") {
      QAction* label = profilesMenu_->addAction(MainCaption(kBritishLabelControl));
      label->setObjectName(kBritishLabelControl);
      label->setEnabled(false);
    }
    addEntry(profilesMenu_, e.menu, MainCaption(e.menu));
  }
  // The lightest section of the catalogue families that carries the member as it stands.
  profilesMenu_->addSeparator();
  addEntry(profilesMenu_, "mnulightest", MainCaption("mnulightest"));

  top("mnuload1", MainCaption("mnuload1"));
  top("mnuendforces", MainCaption("mnuendforces"));

  QMenu* print = bar->addMenu(MainCaption("mnuprint"));
  print->setObjectName("mnuprint");
  addEntry(print, "mnuprint0", MainCaption("mnuprint0"));
  addEntry(print, "mnuprint1", MainCaption("mnuprint1"));

  top("mnuProfDB", MainCaption("mnuProfDB"));

  QMenu* help = bar->addMenu(MainCaption("mnuhelp"));
  help->setObjectName("mnuhelp");
  addEntry(help, "mnuhelpcont", MainCaption("mnuhelpcont"));
  addEntry(help, "mnuhelpsearch", MainCaption("mnuhelpsearch"));
  addEntry(help, "mnuTheory", MainCaption("mnuTheory"));
  help->addSeparator()->setObjectName("line");
  addEntry(help, "mnuabout", MainCaption("mnuabout"));
}

// The row of section buttons under the menu: one small picture of each family, in the order and
// groups of the Profiles menu, and the program's picture at the end.
void MainForm::buildSectionButtons() {
  auto* row = new QToolBar("Sections", this);
  row->setObjectName("sectionButtons");
  row->setMovable(false);
  row->setFloatable(false);
  row->setIconSize(QSize(18, 18));
  row->setContextMenuPolicy(Qt::PreventContextMenu);
  addToolBar(Qt::TopToolBarArea, row);
  const State& s = session_->state();
  for (const ProfileEntry& e : kProfiles) {
    if (e.separatorBefore) row->addSeparator();
    const int type = e.type;
    const QIcon icon = SmallIcon(QSize(18, 18), [&s, type](QPainter& p, const QSize&) {
      p.setRenderHint(QPainter::Antialiasing);
      if (type == 41) {
        // The general section has no shape of its own: its values are typed.
        QFont f = p.font();
        f.setBold(true);
        f.setPixelSize(12);
        p.setFont(f);
        p.drawText(QRectF(0, 0, 18, 18), Qt::AlignCenter, "A,I");
        return;
      }
      PainterCanvas canvas(p, QRectF(QPointF(1, 1), QSizeF(16, 16)));
      try {
        DrawStockSection(canvas, s, type, false);
      } catch (const std::exception&) {
      }
    });
    const std::string control = ButtonOf(e);
    QAction* a = row->addAction(icon, MainLabel(e.menu).trimmed());
    a->setObjectName(QString::fromStdString(control));
    connect(a, &QAction::triggered, this, [this, control] { session_->fireAndTell(this, control); });
  }
  auto* spacer = new QWidget;
  spacer->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  row->addWidget(spacer);
  auto* picture = new QToolButton;
  picture->setObjectName("Picture");
  picture->setText(MainCaption("Picture"));
  picture->setToolTip(MainTip("Picture"));
  QFont f = picture->font();
  f.setBold(true);
  f.setItalic(true);
  picture->setFont(f);
  picture->setAutoRaise(true);
  connect(picture, &QToolButton::clicked, this, [this] { session_->fireAndTell(this, "Picture"); });
  row->addWidget(picture);
}

void MainForm::buildForm() {
  auto* central = new QWidget(this);
  central->setObjectName("central");
  setCentralWidget(central);
  auto* grid = new QGridLayout(central);
  grid->setContentsMargins(8, 2, 8, 4);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(6);
  Bindings& b = *bindings_;

  // ---- Input ----
  auto* fr1 = Frame("Input", "fr1");
  auto* input = Inside<QVBoxLayout>(fr1);
  input->setSpacing(2);

  auto* names = new QFormLayout;
  names->setHorizontalSpacing(6);
  names->setVerticalSpacing(3);
  auto* iproj = new QLineEdit;
  auto* iident = new QLineEdit;
  b.textField(iproj, "iproj");
  b.textField(iident, "iident");
  names->addRow(MainLabel("iproj"), iproj);
  names->addRow(MainLabel("iident"), iident);
  input->addLayout(names);

  auto* fr11 = Frame(MainFrame("il"), "fr11");
  auto* member = Inside<QHBoxLayout>(fr11);
  auto* il = Field(70);
  b.field(il, "il");
  member->addWidget(new QLabel(MainLabel("il")));
  member->addWidget(il);
  member->addStretch();
  input->addWidget(fr11);

  auto* column = Frame(MainFrame("ibly"), "columnframe");
  b.frame(column, "columnframe");
  auto* cgrid = Inside<QGridLayout>(column);
  cgrid->setHorizontalSpacing(4);
  cgrid->setVerticalSpacing(3);
  cgrid->addWidget(new QLabel("Y-axis"), 0, 1, 1, 2, Qt::AlignCenter);
  cgrid->addWidget(new QLabel("Z-axis"), 0, 3, 1, 2, Qt::AlignCenter);
  cgrid->addWidget(new QLabel(MainLabel("ibly")), 1, 0);
  cgrid->addWidget(new QLabel(MainLabel("cbobcy")), 2, 0);
  const char* axes[2][5] = {{"ibly", "cbuttbucklingy", "cbobcy", "obcy", "Y"},
                            {"iblz", "cbuttbucklingz", "cbobcz", "obcz", "Z"}};
  for (int k = 0; k < 2; ++k) {
    const int col = 1 + 2 * k;
    auto* factor = Field(48);
    b.field(factor, axes[k][0]);
    auto* cases = new QToolButton;
    cases->setIconSize(QSize(14, 28));
    cases->setToolTip(MainTip(axes[k][1]));
    b.button(cases, axes[k][1]);
    auto* curve = new QComboBox;
    curve->setFixedWidth(58);
    b.list(curve, axes[k][2]);
    auto* curveText = new QLabel;
    b.label(curveText, axes[k][3]);
    cgrid->addWidget(factor, 1, col);
    cgrid->addWidget(cases, 1, col + 1);
    cgrid->addWidget(curve, 2, col);
    cgrid->addWidget(curveText, 2, col + 1);
  }
  cgrid->setColumnStretch(0, 1);
  input->addWidget(column);

  auto* material = Frame(MainFrame("ifyk"), "Frame4");
  auto* mat = Inside<QHBoxLayout>(material);
  auto* cbofyk = new QComboBox;
  cbofyk->setMinimumContentsLength(8);
  b.list(cbofyk, "cbofyk");
  auto* ifyk = Field(48);
  b.field(ifyk, "ifyk");
  mat->addWidget(cbofyk, 1);
  mat->addWidget(new QLabel(MainLabel("ifyk")));
  mat->addWidget(ifyk);
  mat->addWidget(new QLabel("MPa"));
  input->addWidget(material);

  auto* ltb = Frame(MainFrame("ch_vipp"), "Frame1");
  auto* lt = Inside<QHBoxLayout>(ltb);
  auto* vipp = new QCheckBox(MainCaption("ch_vipp"));
  b.check(vipp, "ch_vipp");
  auto* ltbButton = new QToolButton;
  ltbButton->setText(MainCaption("cbuttlateral"));
  ltbButton->setToolTip(MainTip("cbuttlateral"));
  b.button(ltbButton, "cbuttlateral");
  auto* zaa = new QLabel;
  b.label(zaa, "zaa");
  b.frame(zaa, "zaa");
  auto* picVipp = new PictureBox(session_, "pic_vipp");
  picVipp->setFixedSize(50, 20);
  picVipp->setFrameShape(QFrame::NoFrame);
  b.picture(picVipp);
  b.frame(picVipp, "pic_vipp");
  auto* picLevel = new PictureBox(session_, "pic_loadlevel");
  picLevel->setFixedSize(24, 22);
  picLevel->setFrameShape(QFrame::NoFrame);
  picLevel->setToolTip("Load level");
  b.picture(picLevel);
  b.frame(picLevel, "pic_loadlevel");
  lt->addWidget(vipp);
  lt->addWidget(ltbButton);
  lt->addWidget(picVipp);
  lt->addStretch();
  lt->addWidget(zaa);
  lt->addWidget(picLevel);
  input->addWidget(ltb);

  auto* supports = Frame(MainFrame("cbutt0"), "Frame2");
  auto* sup = Inside<QGridLayout>(supports);
  sup->setSpacing(3);
  const QSize iconSize(54, 27);
  for (int type = 0; type <= 5; ++type) {
    auto* option = new QToolButton;
    option->setIcon(SupportIcon(type, iconSize));
    option->setIconSize(iconSize);
    option->setToolTip(MainTip("cbutt" + std::to_string(type)));
    option->setAutoRaise(false);
    b.option(option, "cbutt" + std::to_string(type), "cbutt", type);
    sup->addWidget(option, type / 3, type % 3);
  }
  input->addWidget(supports);

  auto* support = Frame(MainFrame("ispring"), "fr14");
  auto* sp = Inside<QGridLayout>(support);
  sp->setSpacing(4);
  auto* springBox = new QWidget;
  auto* spring = new QHBoxLayout(springBox);
  spring->setContentsMargins(0, 0, 0, 0);
  auto* ispring = Field(40);
  b.frame(springBox, "ispring");
  b.field(ispring, "ispring");
  spring->addWidget(new QLabel(MainLabel("ispring")));
  spring->addWidget(ispring);
  spring->addWidget(new QLabel("%"));
  spring->addStretch();
  auto* stiffeners = new QPushButton(MainCaption("cbuttsupport"));
  b.button(stiffeners, "cbuttsupport");
  auto* pic11 = new PictureBox(session_, "pic11");
  pic11->setMinimumHeight(46);
  b.picture(pic11);
  // The web stiffeners and the shear capacities of the families that have them.
  auto* webRow = new QHBoxLayout;
  webRow->setSpacing(4);
  for (const char* name : {"owebstiff", "owebcc"}) {
    auto* l = new QLabel;
    b.label(l, name);
    b.frame(l, name);
    webRow->addWidget(l);
  }
  webRow->addStretch();
  auto* capacities = new QVBoxLayout;
  capacities->setSpacing(0);
  for (const char* name : {"ovplzrd", "ovbzrd"}) {
    auto* l = new QLabel;
    QFont f = l->font();
    f.setPointSizeF(f.pointSizeF() * 0.92);
    l->setFont(f);
    b.label(l, name);
    b.frame(l, name);
    capacities->addWidget(l);
  }
  auto* top = new QHBoxLayout;
  top->addWidget(springBox);
  top->addLayout(webRow, 1);
  sp->addLayout(top, 0, 0);
  sp->addWidget(stiffeners, 0, 1, Qt::AlignRight);
  sp->addWidget(pic11, 1, 0, 1, 2);
  sp->addLayout(capacities, 2, 0, 1, 2);
  input->addWidget(support);
  input->addStretch();

  // ---- Calculation data ----
  auto* calc = Frame("Calculation data", "Frame3");
  auto* cl = Inside<QVBoxLayout>(calc);
  cl->setSpacing(4);
  auto* modalFrame = Frame(MainFrame("ch_modal"), "Frame5");
  auto* modal = Inside<QHBoxLayout>(modalFrame);
  auto* chModal = new QCheckBox(MainCaption("ch_modal"));
  b.check(chModal, "ch_modal");
  auto* modalResults = new QPushButton(MainCaption("cmd_modresult"));
  b.button(modalResults, "cmd_modresult");
  modal->addWidget(chModal);
  modal->addStretch();
  modal->addWidget(modalResults);
  cl->addWidget(modalFrame);

  auto* pointsFrame = Frame(MainFrame("cp"), "cpframe");
  auto* points = Inside<QHBoxLayout>(pointsFrame);
  auto* cp = new QPushButton(MainCaption("cp"));
  b.button(cp, "cp");
  points->addWidget(cp);
  points->addStretch();
  cl->addWidget(pointsFrame);

  auto* lc = Frame(MainFrame("CboLoadComb"), "frLc");
  b.frame(lc, "frLc");
  auto* lcl = Inside<QGridLayout>(lc);
  lcl->setSpacing(4);
  auto* combos = new QComboBox;
  b.list(combos, "CboLoadComb");
  auto* sls = new QCheckBox(MainCaption("CheckSLS"));
  b.check(sls, "CheckSLS");
  auto* limit = Field(48);
  b.field(limit, "idef_limit");
  lcl->addWidget(combos, 0, 0, 1, 2);
  lcl->addWidget(sls, 1, 0);
  lcl->addWidget(limit, 1, 1);
  lcl->setColumnStretch(0, 1);
  cl->addWidget(lc);
  cl->addStretch();

  // ---- Charts ----
  auto chartFrame = [this, &b](const QString& caption, const char* frame, const char* load,
                               const char* result) {
    auto* f = Frame(caption, frame);
    auto* l = Inside<QVBoxLayout>(f);
    auto* loads = new PictureBox(session_, load);
    auto* results = new PictureBox(session_, result);
    b.picture(loads);
    b.picture(results);
    b.frame(loads, load);
    b.frame(results, result);
    loads->setMinimumHeight(60);
    results->setMinimumHeight(120);
    results->setReadout(true);
    l->addWidget(loads, 1);
    l->addWidget(results, 2);
    // While the direction carries nothing both charts are hidden: the frame says so.
    auto* none = new QLabel(QStringLiteral("No loading in this direction"));
    none->setObjectName(QString(frame) + "None");
    none->setAlignment(Qt::AlignCenter);
    none->setEnabled(false);
    none->hide();
    l->addWidget(none, 1);
    return f;
  };
  auto* fr2 = chartFrame(MainFrame("PicLoadZ"), "fr2", "PicLoadZ", "PicMy");
  auto* fr3 = chartFrame(MainFrame("PicLoadY"), "fr3", "PicLoadY", "PicMz");

  // ---- Results ----
  auto* fr4 = Frame(MainFrame("CmdResult"), "fr4");
  auto* rl = Inside<QGridLayout>(fr4);
  rl->setSpacing(4);
  auto* picture4 = new PictureBox(session_, "Picture4");
  picture4->setFixedSize(96, 96);
  picture4->setSquare(true);
  b.picture(picture4);
  auto* profile = new QLabel;
  profile->setObjectName("profileName");
  profile->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
  profile->setWordWrap(true);
  summary_ = new QTextEdit;
  summary_->setObjectName("summary");
  summary_->setReadOnly(true);
  summary_->setFrameShape(QFrame::Panel);
  summary_->setFrameShadow(QFrame::Sunken);
  summary_->setLineWrapMode(QTextEdit::WidgetWidth);
  summary_->setWordWrapMode(QTextOption::WordWrap);  // a word never breaks inside itself
  summary_->setFocusPolicy(Qt::NoFocus);
  error_ = new QLabel;
  error_->setObjectName("txtError");
  error_->setWordWrap(true);
  QPalette red = error_->palette();
  red.setColor(QPalette::WindowText, Qt::red);
  error_->setPalette(red);
  QFont bold = error_->font();
  bold.setBold(true);
  error_->setFont(bold);
  error_->hide();
  // The message area: what the program took off the member on its own.
  note_ = new QLabel;
  note_->setObjectName("txtNote");
  note_->setWordWrap(true);
  QPalette brown = note_->palette();
  brown.setColor(QPalette::WindowText, QColor(0x8a, 0x4b, 0x00));
  note_->setPalette(brown);
  note_->hide();
  auto* more = new QPushButton(MainCaption("CmdResult"));
  b.button(more, "CmdResult");
  // The verdict of the run in one line above the three blocks.
  verdict_ = new QLabel;
  verdict_->setObjectName("verdict");
  verdict_->setWordWrap(true);
  verdict_->setTextFormat(Qt::RichText);
  verdict_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  verdict_->hide();
  auto* told = new QVBoxLayout;
  told->setSpacing(2);
  told->addWidget(verdict_);
  told->addWidget(summary_, 1);
  rl->addWidget(picture4, 0, 0);
  rl->addWidget(profile, 1, 0);
  rl->addLayout(told, 0, 1, 3, 1);
  rl->addWidget(error_, 3, 0, 1, 2);
  rl->addWidget(note_, 4, 0, 1, 2);
  rl->addWidget(more, 2, 0, Qt::AlignBottom);
  rl->setColumnStretch(1, 1);
  rl->setRowStretch(2, 1);

  // ---- Arrangement: input and calculation data at the left, charts, results at the foot ----
  auto* left = new QVBoxLayout;
  left->setSpacing(2);
  left->addWidget(fr1, 1);
  left->addWidget(calc);
  fr1->setFixedWidth(300);
  calc->setFixedWidth(300);
  grid->addLayout(left, 0, 0, 2, 1);
  grid->addWidget(fr2, 0, 1);
  grid->addWidget(fr3, 0, 2);
  grid->addWidget(fr4, 1, 1, 1, 2);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(2, 1);
  // The charts and the results share the height: the summary with its deflection block stands
  // whole at the start size.
  grid->setRowStretch(0, 1);
  grid->setRowStretch(1, 1);
}

void MainForm::refresh() {
  const State& s = session_->state();
  const View& v = s.view;
  setWindowTitle(QString::fromStdString(v.caption));
  bindings_->refresh();

  for (auto& [control, action] : actions_) {
    if (auto it = v.visible.find(control); it != v.visible.end()) action->setVisible(it->second);
    if (action->isSeparator()) continue;
    if (auto it = v.text.find(control); it != v.text.end()) {
      QString caption = QString::fromStdString(it->second);
      caption.replace("&", "&&");
      action->setText(caption);
    }
    bool enabled = Session::knows(control) || FormHandles(control);
    if (auto it = v.enabled.find(control); it != v.enabled.end()) enabled = enabled && it->second;
    action->setEnabled(enabled);
  }

  // The section in use: its name as the family writes it, else the row chosen in its dialog's
  // list, else the family's short name.
  QString profile = QString::fromStdString(s.project.profileName);
  for (const ProfileEntry& e : kProfiles) {
    if (e.type != s.project.ProfileType) continue;
    const std::string list = std::string(e.dialog) + ".cbo";
    auto name = v.text.find(std::string(e.dialog) + ".oname");
    auto items = v.items.find(list);
    auto index = v.value.find(list);
    if (name != v.text.end() && !name->second.empty())
      profile = QString::fromStdString(name->second);
    else if (items != v.items.end() && index != v.value.end() && index->second >= 0 &&
             index->second < static_cast<int>(items->second.size()))
      profile = QString::fromStdString(items->second[static_cast<size_t>(index->second)]);
    break;
  }
  if (auto* label = findChild<QLabel*>("profileName")) label->setText(profile);

  // The buckling length buttons show the case in force.
  for (const char* name : {"cbuttbucklingy", "cbuttbucklingz"}) {
    auto it = v.value.find(name);
    if (auto* button = findChild<QToolButton*>(name))
      button->setIcon(BucklingIcon(it != v.value.end() ? it->second : 2));
  }

  for (const auto& [frame, load, result] :
       {std::tuple{"fr2", "PicLoadZ", "PicMy"}, std::tuple{"fr3", "PicLoadY", "PicMz"}}) {
    auto shown = [&v](const char* name) {
      auto it = v.visible.find(name);
      return it == v.visible.end() || it->second;
    };
    if (auto* none = findChild<QLabel*>(QString(frame) + "None"))
      none->setVisible(!shown(load) && !shown(result));
  }

  const QString summary = SummaryHtml(v);
  if (summary != shownSummary_) {
    shownSummary_ = summary;
    summary_->setHtml(summary);
  }
  // No verdict on the results of a run that failed.
  const bool verdict = s.resultsValid && !v.verdict.empty();
  if (verdict) {
    verdict_->setText(QStringLiteral("<b><font color='%1'>%2</font></b>")
                          .arg(RatioColour(v.verdictColour), KeepWordsWhole(v.verdict)));
  }
  verdict_->setVisible(verdict);
  note_->setText(session_->loadsNote());
  note_->setVisible(!session_->loadsNote().isEmpty());
  error_->setText(QString::fromStdString(v.txtError));
  error_->setVisible(v.txtErrorVisible);

  syncDialogs();
}

void MainForm::onMenu(const std::string& control) {
  State& s = session_->state();
  if (control == "mnuexit") {
    if (Session::knows(control)) session_->fire(control);
    QCoreApplication::exit(0);  // at once: nothing asked, nothing saved
    return;
  }
  if (control == "mnuabout" && !Session::knows(control)) {
    QMessageBox::about(this, "About Varnelt - EC3",
                       "Varnelt EC3\n\nDesign of one steel member, beam or column, to Eurocode 3.");
    return;
  }
  if (control == "mnuProfDB" && !Session::knows(control)) return;  // no action of its own
  if (control == "mnuhelpcont" || control == "mnuhelpsearch") {
    showHelp(control == "mnuhelpsearch");
    return;
  }
  const bool print = control == "mnuprint0" || control == "mnuprint00" || control == "mnuprint1" ||
                     control == "mnuprint11" || control == "mnupdf0" || control == "mnupdf1";
  if (print && !s.resultsValid) {
    // No report of an earlier run under the inputs that failed.
    boxes().warning(this, QString::fromUtf8(kNoResultsText));
    return;
  }
  if (control == "mnuprint0" || control == "mnuprint00") {
    PrintReport(this, s, ReportKind::SectionCapacity);
    return;
  }
  if (control == "mnuprint1" || control == "mnuprint11") {
    PrintReport(this, s, ReportKind::Stability);
    return;
  }
  if (control == "mnupdf0" || control == "mnupdf1") {
    const auto kind = control == "mnupdf0" ? ReportKind::SectionCapacity : ReportKind::Stability;
    const QString folder = QString::fromStdString(s.currentDir.empty() ? s.appPath : s.currentDir);
    QString path = QFileDialog::getSaveFileName(this, "Export PDF", folder, "PDF (*.pdf)");
    if (path.isEmpty()) return;
    if (QFileInfo(path).suffix().isEmpty()) path += ".pdf";
    if (WriteReportPdf(s, kind, path) == 0)
      boxes().warning(this, "Can't write " + QDir::toNativeSeparators(path));
    return;
  }
  if (control == "mnulightest") {
    openDialog("lightest");
    return;
  }
  if (control == "mnuTheory") {
    OpenDocument(this, TheoryManualPath(session_), QStringLiteral("Theory manual not found: "));
    return;
  }
  const QString filter = "Varnelt EC3 (*.vnt);;All files (*)";
  const QString folder = QString::fromStdString(s.currentDir.empty() ? s.appPath : s.currentDir);
  if (control == "mnuopen") {
    const QString path = QFileDialog::getOpenFileName(this, "Open", folder, filter);
    if (path.isEmpty()) return;
    session_->fireAndTell(this, control, path.toStdString());
    return;
  }
  if (control == "mnusaveas" || (control == "mnusave" && s.project.fileName == "New File")) {
    QString path = QFileDialog::getSaveFileName(this, "Save As", folder, filter);
    if (path.isEmpty()) return;
    if (QFileInfo(path).suffix().isEmpty()) path += ".vnt";
    session_->fireAndTell(this, control, path.toStdString());
    return;
  }
  session_->fireAndTell(this, control);
}

// ---- Dialogs ----

QWidget* MainForm::createDialog(const std::string& name) {
  if (name == "lightest") {
    auto* d = new LightestDialog(session_, this);
    d->setAttribute(Qt::WA_DeleteOnClose);
    return d;
  }
  if (const ProfileEntry* e = ProfileOfDialog(name)) {
    auto* d = new SectionDialog(session_, *e, this);
    return d;
  }
  return CreateFormDialog(session_, name, this);
}

namespace {

// The control of the main form that opens a dialog, as the person opens it.
std::string OpenerOf(const std::string& dialog) {
  static const std::pair<const char*, const char*> openers[] = {
      {"setup", "mnusetup"},           {"Loading", "mnuload1"},         {"endforce", "mnuendforces"},
      {"bucklingy", "cbuttbucklingy"}, {"bucklingz", "cbuttbucklingz"}, {"chpoints", "cp"},
      {"Modal_ns", "cmd_modresult"},   {"about", "mnuabout"},           {"endstiff", "cbuttsupport"},
      {"vipping", "cbuttlateral"},     {"detailedresult", "CmdResult"}};
  for (const auto& [name, control] : openers)
    if (dialog == name) return control;
  return {};
}

}  // namespace

QWidget* MainForm::dialog(const std::string& name) const {
  auto it = dialogs_.find(name);
  return it == dialogs_.end() ? nullptr : it->second.data();
}

void MainForm::placeBesideCharts(QWidget* d) {
  const auto* z = findChild<QWidget*>("fr2");
  const auto* y = findChild<QWidget*>("fr3");
  if (!z || !y) return;
  const QRect charts =
      QRect(z->mapToGlobal(QPoint(0, 0)), z->size()).united(QRect(y->mapToGlobal(QPoint(0, 0)), y->size()));
  const QRect own = frameGeometry();
  // The frame of the dialog around its contents, as the window manager draws it.
  const QSize size = d->frameGeometry().size().expandedTo(d->sizeHint());
  QRect room(-(1 << 14), -(1 << 14), 1 << 15, 1 << 15);
  QScreen* screen = this->screen();
  if (screen && QGuiApplication::platformName() != "offscreen") room = screen->availableGeometry();
  auto inside = [&room](QRect r) {
    if (r.right() > room.right()) r.moveRight(room.right());
    if (r.bottom() > room.bottom()) r.moveBottom(room.bottom());
    if (r.left() < room.left()) r.moveLeft(room.left());
    if (r.top() < room.top()) r.moveTop(room.top());
    return r;
  };
  // Beside the main form, then over the input frame at its left, then under the charts: the first
  // place that leaves the charts free, else the one that hides the least of them.
  const QRect places[] = {QRect(QPoint(own.right() + 1, charts.top()), size),
                          QRect(QPoint(own.left() - size.width(), charts.top()), size),
                          QRect(QPoint(own.left(), charts.top()), size),
                          QRect(QPoint(charts.left(), charts.bottom() + 1), size)};
  QRect best;
  qint64 least = -1;
  for (const QRect& place : places) {
    const QRect r = inside(place);
    const QRect hidden = r.intersected(charts);
    const qint64 area = hidden.isEmpty() ? 0 : qint64(hidden.width()) * hidden.height();
    if (least < 0 || area < least) {
      least = area;
      best = r;
    }
    if (area == 0) break;
  }
  d->move(best.topLeft());
}

void MainForm::syncDialogs() {
  if (syncing_) return;
  syncing_ = true;
  const State& s = session_->state();
  const auto& open = s.view.openDialogs;
  for (const std::string& name : open) {
    if (dialog(name)) continue;
    if (QWidget* d = createDialog(name)) {
      dialogs_[name] = d;
      // The loads are edited while their charts are watched.
      if (name == "Loading" || name == "endforce") {
        d->adjustSize();
        placeBesideCharts(d);
      }
      d->show();
    }
  }
  for (auto it = dialogs_.begin(); it != dialogs_.end();) {
    QWidget* d = it->second.data();
    const bool listed = std::find(open.begin(), open.end(), it->first) != open.end();
    if (!d) {
      it = dialogs_.erase(it);
    } else if (!listed && !d->property("keptByForm").toBool()) {
      it = dialogs_.erase(it);
      d->close();
    } else {
      ++it;
    }
  }
  // One family's dialog at a time: choosing another family closes the dialog of the one before,
  // through its own close, so that it leaves the core's list of open dialogs.
  std::vector<QPointer<QWidget>> older;
  for (const auto& [name, d] : dialogs_) {
    const ProfileEntry* e = ProfileOfDialog(name);
    if (e && d && e->type != s.project.ProfileType && !d->property("keptByForm").toBool()) older.push_back(d);
  }
  syncing_ = false;
  for (const QPointer<QWidget>& d : older)
    if (d) d->close();
}

HelpWindow* MainForm::helpWindow() const { return help_.data(); }

HelpWindow* MainForm::showHelp(bool search) {
  // The program shows the pages itself: a desktop without a web browser still has its help.
  const QString page = HelpPagePath(session_);
  if (!help_ || help_->page() != page) {
    if (!QFileInfo(page).isReadable()) {
      boxes().warning(this, QStringLiteral("Help not found: ") + QDir::toNativeSeparators(page));
      return nullptr;
    }
    delete help_.data();
    help_ = new HelpWindow(this);
    help_->setAttribute(Qt::WA_DeleteOnClose);
    if (!help_->load(page)) {
      boxes().warning(this, QStringLiteral("Can't open ") + QDir::toNativeSeparators(page));
      delete help_.data();
      return nullptr;
    }
  }
  if (search)
    help_->showSearch();
  else
    help_->showContents();
  help_->show();
  help_->raise();
  help_->activateWindow();
  return help_.data();
}

QWidget* MainForm::openDialog(const std::string& name) {
  // The help window: "help" as Contents opens it, "help-search" or "help-search=WORDS" as Search.
  if (name == "help") return showHelp(false);
  if (name.rfind("help-search", 0) == 0) {
    HelpWindow* h = showHelp(true);
    if (h && name.size() > 12 && name[11] == '=') h->search(QString::fromStdString(name.substr(12)));
    return h;
  }
  if (QWidget* d = dialog(name)) {
    d->raise();
    return d;
  }
  std::string opener;
  if (const ProfileEntry* e = ProfileOfDialog(name))
    opener = e->menu;
  else
    opener = OpenerOf(name);
  if (!opener.empty() && Session::knows(opener)) {
    session_->fireAndTell(this, opener);
    if (QWidget* d = dialog(name)) return d;
  }
  // The core has no entry for it yet: the form shows it with what the State holds.
  QWidget* d = createDialog(name);
  if (!d) return nullptr;
  d->setProperty("keptByForm", true);
  dialogs_[name] = d;
  d->show();
  return d;
}

// ---- Events ----

bool MainForm::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  if (type == QEvent::FocusIn && (watched->objectName() == "ibly" || watched->objectName() == "iblz")) {
    // Typing a factor: its button shows the picture of a typed factor.
    const QString button = watched->objectName() == "ibly" ? "cbuttbucklingy" : "cbuttbucklingz";
    if (auto* b = findChild<QToolButton*>(button)) b->setIcon(BucklingIcon(6));
    return false;
  }
  if (type != QEvent::MouseButtonRelease && type != QEvent::ContextMenu) return false;
  auto* w = qobject_cast<QWidget*>(watched);
  if (!w || w->window() != this) return false;
  if (type == QEvent::ContextMenu) return true;  // the fields' own menus give way to the Profiles menu
  auto* mouse = static_cast<QMouseEvent*>(event);
  if (mouse->button() != Qt::RightButton) return false;
  profilesMenu_->popup(mouse->globalPosition().toPoint());
  return true;
}

bool MainForm::event(QEvent* event) {
  // The Activate event of the main form copies the record into it.
  if (event->type() == QEvent::WindowActivate && session_->activated(this)) session_->refreshMainForm();
  return QMainWindow::event(event);
}

void MainForm::closeEvent(QCloseEvent* event) {
  event->accept();
  QCoreApplication::exit(0);  // closing the main form ends the program at once
}

}  // namespace vn::forms
