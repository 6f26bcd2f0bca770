#include "forms/section_dialog.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>

#include "core/captions.h"
#include "core/events.h"
#include "core/state.h"
#include "forms/bindings.h"
#include "forms/look.h"
#include "forms/picture_box.h"
#include "forms/session.h"
#include "sections/section_dialogs.h"

namespace vn::forms {

// ---- ValueBlock ----

ValueBlock::ValueBlock(QWidget* parent) : QWidget(parent), grid_(new QGridLayout(this)) {
  grid_->setContentsMargins(0, 0, 0, 0);
  grid_->setHorizontalSpacing(6);
  grid_->setVerticalSpacing(2);
}

void ValueBlock::setLines(const std::vector<View::Line>& lines) {
  const bool same =
      lines.size() == lines_.size() &&
      std::equal(lines.begin(), lines.end(), lines_.begin(), [](const View::Line& a, const View::Line& b) {
        return a.label == b.label && a.value == b.value && a.unit == b.unit && a.tip == b.tip;
      });
  if (same) return;
  lines_ = lines;
  while (QLayoutItem* item = grid_->takeAt(0)) {
    delete item->widget();
    delete item;
  }
  int row = 0;
  for (const View::Line& l : lines_) {
    auto* label = new QLabel(QString::fromStdString(l.label));
    auto* value = new QLabel(QString::fromStdString(l.value));
    auto* unit = new QLabel(QString::fromStdString(l.unit).trimmed());
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    if (!l.tip.empty()) label->setToolTip(QString::fromStdString(l.tip));
    value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    value->setObjectName(QString::fromStdString(l.label));
    grid_->addWidget(label, row, 0);
    grid_->addWidget(value, row, 1);
    grid_->addWidget(unit, row, 2);
    ++row;
  }
  grid_->setRowStretch(row, 1);
  grid_->setColumnStretch(2, 1);
}

QString ValueBlock::valueOf(const QString& label) const {
  for (const View::Line& l : lines_)
    if (QString::fromStdString(l.label) == label) return QString::fromStdString(l.value);
  return {};
}

// ---- The typed dimensions and options ----

namespace {

// A control's texts from the core's table of captions.
struct Captions {
  QString caption, frame, tip;
};
Captions CaptionIn(const std::string& form, const std::string& name) {
  const ControlCaption c = CaptionOf(form, name);
  return {QString::fromStdString(c.caption), QString::fromStdString(c.frame), QString::fromStdString(c.tip)};
}

// The unit of a typed dimension as the core gives it ("mm", "mm4"); none for a percentage.
QString UnitIn(const State& s, const std::string& form, const std::string& name) {
  int index = -1;
  const ControlEntry* e = Controls().Find(form + "." + name, &index);
  return e ? QString::fromStdString(UnitOfField(s, *e, index)) : QString();
}

// The options of the dialogs: control, the group whose value sets it, its own value; their captions
// and frames are in the core's table of captions.
struct DialogOption {
  const char* form;
  const char* control;
  const char* group;
  int value;
};

constexpr DialogOption kOptions[] = {
    {"p07", "optturn1", "turned", 1},
    {"p07", "optturn0", "turned", 0},
    {"p09", "optturn1", "turned", 1},
    {"p09", "optturn0", "turned", 0},
    {"p10", "opt_l10_1", "angle", 1},
    {"p10", "opt_l10_2", "angle", 2},
    {"p11", "opt_l10_1", "angle", 1},
    {"p11", "opt_l10_2", "angle", 2},
    {"p23", "oweld0", "oweld", 0},
    {"p23", "oweld1", "oweld", 1},
    {"p24", "opthsq0", "opthsq", 0},
    {"p24", "opthsq1", "opthsq", 1},
    {"p25", "opthsq0", "opthsq", 0},
    {"p25", "opthsq1", "opthsq", 1},
    {"p24", "OptClass23Y", "OptClass23", 0},
    {"p24", "OptClass23N", "OptClass23", 1},
    {"p25", "OptClass23Y", "OptClass23", 0},
    {"p25", "OptClass23N", "OptClass23", 1},
    {"p31", "opthot", "tube", 1},
    {"p31", "optcold", "tube", 0},
};

}  // namespace

// ---- SectionDialog ----

SectionDialog::SectionDialog(Session* session, const ProfileEntry& family, QWidget* owner)
    : QDialog(owner),
      session_(session),
      family_(family),
      form_(family.dialog),
      bindings_(new Bindings(session, this)) {
  setObjectName(QString::fromStdString(form_));
  setAttribute(Qt::WA_DeleteOnClose);
  setModal(false);
  QString title = ProfileTitle(family);
  setWindowTitle(title);

  auto Caption = [this](const std::string& name) { return CaptionIn(form_, name); };
  auto Unit = [this](const std::string& name) { return UnitIn(session_->state(), form_, name); };

  auto* grid = new QGridLayout(this);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(6);

  list_ = new QComboBox;
  list_->setMinimumContentsLength(12);
  list_->setMaxVisibleItems(24);
  bindings_->list(list_, key("cbo"));

  // A frame keeps a width of its own when it is empty, and grows with its lines.
  auto frame = [](const QString& caption, ValueBlock*& block, int width) {
    auto* g = new QGroupBox(caption);
    auto* l = new QVBoxLayout(g);
    block = new ValueBlock;
    l->addWidget(block);
    l->addItem(new QSpacerItem(width, 0, QSizePolicy::Minimum, QSizePolicy::Minimum));
    return g;
  };
  QGroupBox* dims = frame("Dimension && Weight", dimensions_, 150);
  QGroupBox* props = frame("Section property", properties_, 190);
  QGroupBox* caps = frame("Capacity", capacity_, 210);

  figureFrame_ = new QGroupBox(Caption("pic1").frame);
  auto* fl = new QVBoxLayout(figureFrame_);
  figure_ = new PictureBox(session_, key("pic1"));
  figure_->setMinimumSize(170, 170);
  figure_->setToolTip(Caption("pic1").tip);
  figure_->setSquare(true);
  bindings_->picture(figure_);
  fl->addWidget(figure_);

  auto* close = new QPushButton(Caption("Command1").caption);
  close->setObjectName("Command1");
  connect(close, &QPushButton::clicked, this, [this] { this->close(); });

  // The section's name as the family writes it ("HEA 200").
  auto* name = new QLabel;
  QFont bold = name->font();
  bold.setBold(true);
  name->setFont(bold);
  bindings_->label(name, key("oname"));

  auto* left = new QVBoxLayout;
  // The families with several tables choose the table first.
  size_t tables = 0;
  while (tables < 3 && !Caption("prof" + std::to_string(tables + 1)).caption.isEmpty()) ++tables;
  if (tables > 0) {
    auto* row = new QHBoxLayout;
    for (size_t k = 0; k < tables; ++k) {
      const std::string name = "prof" + std::to_string(k + 1);
      auto* option = new QRadioButton(Caption(name).caption);
      const std::string control = key(name.c_str());
      bindings_->option(option, control, control, 1);
      row->addWidget(option);
    }
    row->addStretch();
    left->addLayout(row);
  }
  const std::vector<std::string> fields = DimensionFieldNames(form_);
  const bool plate = family.type >= 51 && family.type <= 56;
  const bool listed = fields.empty() || family.type == 52 || family.type == 54;
  if (fields.empty()) left->addWidget(list_);
  // Typed dimensions: a plate with a stiffener has its plate (b1, t1 or tf1) and its stiffener
  // apart; the other families one frame.
  auto fieldFrame = [this, Caption, Unit](const QString& caption, const std::vector<std::string>& names,
                                          QComboBox* list) {
    auto* g = new QGroupBox(caption);
    auto* l = new QGridLayout(g);
    int row = 0;
    if (list) l->addWidget(list, row++, 0, 1, 3);
    for (const std::string& f : names) {
      auto* edit = new QLineEdit;
      edit->setAlignment(Qt::AlignRight);
      // The general section's properties run to ten digits.
      edit->setFixedWidth(fontMetrics().horizontalAdvance(form_ == "p41" ? "00000000000000" : "0000000.0") +
                          12);
      bindings_->field(edit, key(f.c_str()));
      l->addWidget(new QLabel(Caption(f).caption), row, 0, Qt::AlignRight);
      l->addWidget(edit, row, 1);
      l->addWidget(new QLabel(Unit(f)), row, 2);
      ++row;
    }
    l->setColumnStretch(2, 1);
    return g;
  };
  QGroupBox* typedProperties = nullptr;
  if (!fields.empty() && plate) {
    std::vector<std::string> sheet, stiffener;
    for (const std::string& f : fields) (f.back() == '1' ? sheet : stiffener).push_back(f);
    left->addWidget(fieldFrame(Caption(sheet.front()).frame, sheet, nullptr));
    left->addWidget(fieldFrame(Caption(stiffener.front()).frame, stiffener, listed ? list_ : nullptr));
  } else if (family.type == 41) {
    // The general section's properties are what the engineer types: they fill the property frame.
    typedProperties = fieldFrame(Caption(fields.front()).frame, fields, nullptr);
  } else if (!fields.empty()) {
    left->addWidget(fieldFrame(Caption(fields.front()).frame, fields, nullptr));
  }
  // The general section: its name, and the classes the engineer gives it.
  if (family.type == 41 && Session::knows(key("istname"))) {
    auto* g = new QGroupBox(Caption("istname").frame);
    auto* l = new QGridLayout(g);
    auto* nameEdit = new QLineEdit;
    nameEdit->setObjectName("istname");
    bindings_->textField(nameEdit, key("istname"));
    l->addWidget(new QLabel(Caption("istname").caption), 0, 0, Qt::AlignRight);
    l->addWidget(nameEdit, 0, 1, 1, 3);
    l->addWidget(new QLabel(Caption("cboclassN").caption), 1, 0, 1, 4);
    int column = 0;
    for (const char* list : {"cboclassN", "cboclassMy", "cboclassMz"}) {
      auto* box = new QComboBox;
      box->setObjectName(list);
      bindings_->list(box, key(list));
      l->addWidget(box, 2, column++);
    }
    l->addWidget(new QLabel("(N/My/Mz)"), 2, column);
    left->addWidget(g);
  }
  if (!listed) list_->hide();
  // The options of the family, those the core knows.
  std::vector<std::pair<QString, QVBoxLayout*>> frames;
  for (const DialogOption& o : kOptions) {
    if (form_ != o.form || !Session::knows(key(o.control))) continue;
    QVBoxLayout* box = nullptr;
    const Captions c = Caption(o.control);
    for (auto& [caption, layout] : frames)
      if (caption == c.frame) box = layout;
    if (!box) {
      auto* g = new QGroupBox(c.frame);
      box = new QVBoxLayout(g);
      frames.emplace_back(c.frame, box);
      left->addWidget(g);
    }
    auto* option = new QRadioButton(c.caption);
    option->setObjectName(o.control);
    bindings_->option(option, key(o.control), key(o.group), o.value);
    box->addWidget(option);
  }
  left->addWidget(name);
  left->addWidget(dims);
  left->addWidget(figureFrame_, 1);
  auto* right = new QVBoxLayout;
  right->addWidget(caps);
  right->addStretch();
  right->addWidget(close, 0, Qt::AlignRight);
  grid->addLayout(left, 0, 0);
  if (typedProperties) {
    grid->addWidget(typedProperties, 0, 1, Qt::AlignTop);
    props->hide();  // the section values of this family are its inputs
  } else {
    grid->addWidget(props, 0, 1);
  }
  grid->addLayout(right, 0, 2);
  // The dialog takes the height of what it shows.
  grid->setSizeConstraint(QLayout::SetFixedSize);

  // The figure's frame carries the longer of its two captions now.
  KeepCaptionsWhole(this);
  connect(session_, &Session::changed, this, &SectionDialog::refresh);
  refresh();
}

void SectionDialog::refresh() {
  const State& s = session_->state();
  bindings_->refresh();
  // The values belong to the family in use; another family's dialog shows none.
  SectionBlocks blocks;
  if (s.project.ProfileType == family_.type) blocks = SplitSectionValues(s.view.sectionValues);
  dimensions_->setLines(blocks.dimensions);
  properties_->setLines(blocks.properties);
  capacity_->setLines(blocks.capacity);

  auto caption = s.view.text.find(key("pic1"));
  figureFrame_->setTitle(caption != s.view.text.end()
                             ? QString::fromStdString(caption->second)
                             : (s.project.figureNotToScale != 0 ? "Figure not to scale" : "Figure to scale"));
}

bool SectionDialog::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate && session_->activated(this)) {
    const std::string activate = key("Activate");
    if (Session::knows(activate)) session_->fire(activate);
  }
  return QDialog::event(event);
}

void SectionDialog::reject() { close(); }  // Esc closes as the Close button does

void SectionDialog::closeEvent(QCloseEvent* event) {
  if (!closing_) {
    auto& open = session_->state().view.openDialogs;
    const bool listed = std::find(open.begin(), open.end(), form_) != open.end();
    // A field left by the click on Close is left first; a refused value keeps the dialog open.
    if (listed && !bindings_->flushFields()) {
      event->ignore();
      return;
    }
    closing_ = true;
    // Unloading keeps the inputs in the project.
    const std::string unload = key("Command1");
    if (listed && Session::knows(unload))
      session_->fire(unload);
    else if (listed)
      open.erase(std::remove(open.begin(), open.end(), form_), open.end());
  }
  event->accept();
}

}  // namespace vn::forms
