#include "forms/form_dialog.h"

#include <QCloseEvent>
#include <QGroupBox>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

#include "forms/bindings.h"
#include "forms/look.h"
#include "forms/session.h"

namespace vn::forms {

FormDialog::FormDialog(Session* session, std::string form, const QString& title, QWidget* owner,
                       std::string closeControl)
    : QDialog(owner),
      session_(session),
      form_(std::move(form)),
      close_(std::move(closeControl)),
      bindings_(new Bindings(session, this)) {
  setObjectName(QString::fromStdString(form_));
  setAttribute(Qt::WA_DeleteOnClose);
  setModal(false);
  setWindowTitle(title);
  connect(session_, &Session::changed, this, &FormDialog::refresh);
}

QPushButton* FormDialog::closeButton(const QString& caption) {
  auto* b = new QPushButton(caption);
  b->setObjectName(QString::fromStdString(close_ == "Unload" ? "ok" : close_));
  b->setAutoDefault(false);
  connect(b, &QPushButton::clicked, this, [this] { close(); });
  return b;
}

void FormDialog::showEvent(QShowEvent* event) {
  KeepCaptionsWhole(this);
  // The dialog takes the size of what it shows: frames come and go with the state.
  if (layout()) layout()->setSizeConstraint(QLayout::SetFixedSize);
  QDialog::showEvent(event);
}

void FormDialog::refresh() {
  bindings_->refresh();
  if (extra_) extra_();
}

bool FormDialog::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate && session_->activated(this)) {
    const std::string activate = key("Activate");
    if (Session::knows(activate)) session_->fire(activate);
  }
  return QDialog::event(event);
}

void FormDialog::reject() { close(); }

void FormDialog::closeEvent(QCloseEvent* event) {
  auto& open = session_->state().view.openDialogs;
  if (!DialogOpen(session_->state().view, form_)) {
    event->accept();  // the core has closed it
    return;
  }
  // A field left by the click on the close button is left first; a refused value keeps the dialog.
  if (!bindings_->flushFields()) {
    event->ignore();
    return;
  }
  const std::string control = key(close_);
  if (!Session::knows(control)) {
    // A dialog the core keeps no controls for: it only leaves the list.
    open.erase(std::remove(open.begin(), open.end(), form_), open.end());
    event->accept();
    session_->refreshViews();
    return;
  }
  const EventResult r = session_->fire(control);
  if (!r.refused) {
    event->accept();
    return;
  }
  // Refused: the dialog stays, the warning is shown, the field the core names takes the focus.
  event->ignore();
  if (!r.message.empty()) boxes().warning(this, QString::fromStdString(r.message));
  if (QWidget* w = bindings_->widget(r.focus)) {
    session_->restoringFocus = true;
    activateWindow();
    w->setFocus(Qt::OtherFocusReason);
    session_->restoringFocus = false;
    if (auto* edit = qobject_cast<QLineEdit*>(w)) edit->selectAll();
  }
}

}  // namespace vn::forms
