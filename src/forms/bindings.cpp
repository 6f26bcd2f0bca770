#include "forms/bindings.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QFocusEvent>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalBlocker>
#include <QTimer>

#include "forms/picture_box.h"
#include "forms/session.h"

namespace vn::forms {

QColor EditingColor() { return QColor(0, 255, 0); }
QColor RestingColor() { return QColor(255, 255, 255); }

// ---- FieldBinder ----

FieldBinder::FieldBinder(Session* session, QLineEdit* edit, std::string name, bool numeric, Bindings* owner)
    : QObject(edit),
      session_(session),
      edit_(edit),
      name_(std::move(name)),
      numeric_(numeric),
      owner_(owner) {
  edit->installEventFilter(this);
  setColour(RestingColor());
}

void FieldBinder::setColour(const QColor& c) {
  if (!edit_) return;
  QPalette pal = edit_->palette();
  pal.setColor(QPalette::Base, c);
  edit_->setPalette(pal);
}

bool FieldBinder::eventFilter(QObject* watched, QEvent* event) {
  if (watched != edit_) return false;
  switch (event->type()) {
    case QEvent::FocusIn:
      setColour(EditingColor());
      if (numeric_) {
        edit_->selectAll();
        // A click that gave the focus places the cursor afterwards; select once it is done.
        QTimer::singleShot(0, edit_, [e = edit_] {
          if (e && e->hasFocus()) e->selectAll();
        });
      }
      break;
    case QEvent::KeyPress: {
      auto* key = static_cast<QKeyEvent*>(event);
      if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
        leave(true);
        return true;  // the key itself is swallowed
      }
      break;
    }
    case QEvent::FocusOut: {
      const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
      // Another window, a menu or the warning box took the focus: the field is not left.
      if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason) break;
      if (moving_) break;  // Enter has already run the protocol
      if (session_->restoringFocus) {
        // Another field takes its focus back after a warning: this one was never really entered.
        setColour(RestingColor());
        break;
      }
      if (pending_) break;
      pending_ = true;
      // The protocol runs once the focus has settled, so that the warning box is not shown from
      // inside the focus change.
      QMetaObject::invokeMethod(
          this,
          [this] {
            if (!pending_) return;  // run already, before its window closed
            pending_ = false;
            leave(false);
          },
          Qt::QueuedConnection);
      break;
    }
    default: break;
  }
  return false;
}

bool FieldBinder::flush() {
  if (!pending_) return true;
  pending_ = false;
  return leave(false);
}

bool FieldBinder::leave(bool byEnter) {
  if (!edit_ || !Session::knows(name_)) return true;
  const std::string text = edit_->text().toStdString();
  edit_->setModified(false);  // the field shows what the core makes of the text
  EventResult r = session_->fire(name_, text);
  if (!edit_) return !r.refused;
  if (r.refused) {
    setColour(EditingColor());
    if (!r.message.empty()) boxes().warning(edit_->window(), QString::fromStdString(r.message));
    if (!edit_) return false;
    // After the box has closed: the focus back on the field, which stays green.
    session_->restoringFocus = true;
    edit_->activateWindow();
    edit_->setFocus(Qt::OtherFocusReason);
    session_->restoringFocus = false;
    setColour(EditingColor());
    if (numeric_) edit_->selectAll();
    return false;
  }
  setColour(RestingColor());
  if (!byEnter) return true;
  QWidget* target = owner_->widget(r.focus);
  QWidget* window = edit_->window();
  auto canTake = [window](QWidget* w) {
    return w && w->isVisibleTo(window) && w->isEnabled() && w->focusPolicy() != Qt::NoFocus;
  };
  if (!canTake(target)) target = owner_->firstField();
  if (canTake(target) && target != edit_) {
    moving_ = true;
    target->setFocus(Qt::TabFocusReason);
    moving_ = false;
  } else {
    // The focus stays: the field is being edited again.
    setColour(EditingColor());
    if (numeric_) edit_->selectAll();
  }
  return true;
}

// ---- Bindings ----

Bindings::Bindings(Session* session, QWidget* window) : QObject(window), session_(session), window_(window) {}

void Bindings::add(Kind kind, QWidget* w, const std::string& name, std::string group, int value) {
  if (w->objectName().isEmpty()) w->setObjectName(QString::fromStdString(name));
  entries_.push_back({kind, name, w, std::move(group), value});
}

void Bindings::field(QLineEdit* edit, const std::string& name) {
  add(Kind::Field, edit, name);
  new FieldBinder(session_, edit, name, true, this);
}

void Bindings::textField(QLineEdit* edit, const std::string& name) {
  add(Kind::Text, edit, name);
  new FieldBinder(session_, edit, name, false, this);
}

void Bindings::list(QComboBox* box, const std::string& name) {
  add(Kind::List, box, name);
  connect(box, &QComboBox::activated, this, [this, box, name](int index) {
    session_->fireAndTell(box->window(), name, std::to_string(index));
  });
}

void Bindings::check(QCheckBox* box, const std::string& name) {
  add(Kind::Check, box, name);
  connect(box, &QCheckBox::clicked, this,
          [this, box, name](bool on) { session_->fireAndTell(box->window(), name, on ? "1" : "0"); });
}

void Bindings::option(QAbstractButton* button, const std::string& name, const std::string& group, int value) {
  button->setAutoExclusive(false);  // which one is set comes from the state alone
  button->setCheckable(true);
  add(Kind::Option, button, name, group, value);
  connect(button, &QAbstractButton::clicked, this,
          [this, button, name] { session_->fireAndTell(button->window(), name); });
}

void Bindings::button(QAbstractButton* button, const std::string& name) {
  add(Kind::Button, button, name);
  connect(button, &QAbstractButton::clicked, this,
          [this, button, name] { session_->fireAndTell(button->window(), name); });
}

void Bindings::label(QLabel* label, const std::string& name) { add(Kind::Label, label, name); }

void Bindings::frame(QWidget* widget, const std::string& name) { add(Kind::Frame, widget, name); }

void Bindings::lines(QListWidget* list, const std::string& name) {
  list->setSelectionMode(QAbstractItemView::NoSelection);
  list->setFocusPolicy(Qt::NoFocus);
  add(Kind::Lines, list, name);
}

void Bindings::picture(PictureBox* box) {
  add(Kind::Picture, box, box->name());
  connect(box, &PictureBox::clicked, this, [this, box] {
    if (Session::knows(box->name())) session_->fireAndTell(box->window(), box->name());
  });
}

QWidget* Bindings::widget(const std::string& name) const {
  if (name.empty()) return nullptr;
  for (const Entry& e : entries_)
    if (e.name == name && e.kind != Kind::Frame && e.kind != Kind::Label && e.widget) return e.widget;
  return nullptr;
}

QWidget* Bindings::firstField() const {
  for (const Entry& e : entries_)
    if ((e.kind == Kind::Field || e.kind == Kind::Text) && e.widget && e.widget->isVisibleTo(window_) &&
        e.widget->isEnabled())
      return e.widget;
  return nullptr;
}

bool Bindings::flushFields() {
  for (const Entry& e : entries_) {
    if ((e.kind != Kind::Field && e.kind != Kind::Text) || !e.widget) continue;
    if (auto* binder = e.widget->findChild<FieldBinder*>(QString(), Qt::FindDirectChildrenOnly))
      if (!binder->flush()) return false;
  }
  return true;
}

void Bindings::refresh() {
  const View& v = session_->state().view;
  for (Entry& e : entries_) {
    QWidget* w = e.widget;
    if (!w) continue;
    if (auto it = v.visible.find(e.name); it != v.visible.end()) w->setVisible(it->second);
    const bool input =
        e.kind != Kind::Label && e.kind != Kind::Frame && e.kind != Kind::Picture && e.kind != Kind::Lines;
    bool enabled = input ? Session::knows(e.name) : true;
    auto en = v.enabled.find(e.name);
    if (en != v.enabled.end()) enabled = enabled && en->second;
    if (input || en != v.enabled.end()) w->setEnabled(enabled);

    auto text = v.text.find(e.name);
    auto value = v.value.find(e.name);
    switch (e.kind) {
      case Kind::Field:
      case Kind::Text: {
        auto* edit = static_cast<QLineEdit*>(w);
        // A field being typed in keeps its text until it is left.
        if (edit->hasFocus() && edit->isModified()) break;
        if (text != v.text.end()) {
          const QString t = QString::fromStdString(text->second);
          if (edit->text() != t) {
            edit->setText(t);
            if (edit->hasFocus() && e.kind == Kind::Field) edit->selectAll();
          }
        }
        break;
      }
      case Kind::List: {
        auto* box = static_cast<QComboBox*>(w);
        QSignalBlocker block(box);
        if (auto items = v.items.find(e.name); items != v.items.end()) {
          QStringList list;
          for (const std::string& s : items->second) list << QString::fromStdString(s);
          QStringList now;
          for (int i = 0; i < box->count(); ++i) now << box->itemText(i);
          if (now != list) {
            box->clear();
            box->addItems(list);
          }
        }
        const int index = value != v.value.end() ? value->second : -1;
        box->setCurrentIndex(index >= 0 && index < box->count() ? index : -1);
        break;
      }
      case Kind::Check: {
        auto* box = static_cast<QCheckBox*>(w);
        QSignalBlocker block(box);
        box->setChecked(value != v.value.end() && value->second != 0);
        break;
      }
      case Kind::Option: {
        auto* button = static_cast<QAbstractButton*>(w);
        QSignalBlocker block(button);
        auto set = v.value.find(e.group);
        button->setChecked(set != v.value.end() && set->second == e.value);
        break;
      }
      case Kind::Label:
        if (text != v.text.end()) static_cast<QLabel*>(w)->setText(QString::fromStdString(text->second));
        break;
      case Kind::Button:
        if (text != v.text.end()) {
          auto* button = static_cast<QAbstractButton*>(w);
          const QString t = QString::fromStdString(text->second);
          if (button->text() != t) button->setText(t);
        }
        break;
      case Kind::Frame:
        if (auto* group = qobject_cast<QGroupBox*>(w); group && text != v.text.end())
          group->setTitle(QString::fromStdString(text->second));
        break;
      case Kind::Lines: {
        auto* list = static_cast<QListWidget*>(w);
        QStringList now, want;
        for (int i = 0; i < list->count(); ++i) now << list->item(i)->text();
        if (auto items = v.items.find(e.name); items != v.items.end())
          for (const std::string& line : items->second) want << QString::fromStdString(line);
        if (now != want) {
          list->clear();
          list->addItems(want);
        }
        break;
      }
      case Kind::Picture: w->update(); break;
    }
  }
}

}  // namespace vn::forms
