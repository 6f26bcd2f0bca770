// The widgets of one window bound to the controls of the core by name.
//
// Inputs fire their control: a numeric field on leaving it (the field protocol, FieldBinder below),
// a list with the index chosen, a check box with 1 or 0, a button or option with no text. refresh()
// copies the View into the widgets: texts, list items and index, checks, options, labels,
// visibility and enabled flags. An input whose control the core does not have yet is disabled.
#pragma once

#include <QLineEdit>
#include <QObject>
#include <QPointer>
#include <string>
#include <vector>

class QAbstractButton;
class QCheckBox;
class QComboBox;
class QLabel;
class QListWidget;
class QWidget;

namespace vn::forms {

class Session;
class PictureBox;

// Background of a field being edited (65280, pure green) and of a field at rest (white).
QColor EditingColor();
QColor RestingColor();

// The protocol of a field in a window:
//   focus in      green, the whole text selected (a text field only turns green)
//   Enter         swallowed; the field is left: on a valid value the focus goes to the control the
//                 core names (the field's Enter target)
//   focus out     Fire(name, text); refused: the warning box, then the focus back on the field,
//                 which stays green; accepted: white, and every window shows the new state
// Leaving the window (another window, a menu, the warning box itself) is not leaving the field.
class FieldBinder : public QObject {
  Q_OBJECT

 public:
  // `numeric` false: a free text field (no selection on focus, never refused).
  FieldBinder(Session* session, QLineEdit* edit, std::string name, bool numeric, class Bindings* owner);
  QLineEdit* edit() const { return edit_; }
  const std::string& name() const { return name_; }
  // Runs a leave that is still queued now, before the window goes: the field is left before the
  // button that closes its window acts, as the person did it. False when the core refused the text
  // (the warning was shown and the focus is back on the field).
  bool flush();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool leave(bool byEnter);  // false when refused
  void setColour(const QColor& c);

  Session* session_;
  QPointer<QLineEdit> edit_;
  std::string name_;
  bool numeric_;
  Bindings* owner_;
  bool moving_ = false;   // the focus is being moved on by Enter after an accepted value
  bool pending_ = false;  // a leave is queued
};

class Bindings : public QObject {
  Q_OBJECT

 public:
  Bindings(Session* session, QWidget* window);

  void field(QLineEdit* edit, const std::string& name);      // numeric field protocol
  void textField(QLineEdit* edit, const std::string& name);  // free text: iproj, iident
  void list(QComboBox* box, const std::string& name);
  void check(QCheckBox* box, const std::string& name);
  // An option button of a group: set while view.value[group] == value.
  void option(QAbstractButton* button, const std::string& name, const std::string& group, int value);
  // A button; a caption in view.text replaces its own ("G", "Q1", "Q2" of a case button).
  void button(QAbstractButton* button, const std::string& name);
  void label(QLabel* label, const std::string& name);  // text from view.text
  // Visibility and enabled; a frame with a caption in view.text shows it as its title.
  void frame(QWidget* widget, const std::string& name);
  void lines(QListWidget* list, const std::string& name);  // the lines of view.items, read only
  void picture(PictureBox* box);                           // redrawn, fires its name on a click

  // The widget bound to a control name (the first one), or nullptr.
  QWidget* widget(const std::string& name) const;
  // The first field of the window, where the focus goes when a target can't take it.
  QWidget* firstField() const;
  // Runs the leaves of the window's fields that are still queued (FieldBinder::flush); false when
  // one was refused, so that the window stays.
  bool flushFields();

  void refresh();

 private:
  enum class Kind { Field, Text, List, Check, Option, Button, Label, Frame, Picture, Lines };
  struct Entry {
    Kind kind;
    std::string name;
    QPointer<QWidget> widget;
    std::string group;
    int value = 0;
  };
  void add(Kind kind, QWidget* w, const std::string& name, std::string group = {}, int value = 0);

  Session* session_;
  QWidget* window_;
  std::vector<Entry> entries_;
};

}  // namespace vn::forms
