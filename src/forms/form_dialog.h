// A dialog of the core's control table: a widget for each control name of the form, bound by
// Bindings, shown anew after every event. Coming to the front from another of the program's windows
// fires "<form>.Activate"; closing fires the form's close control ("<form>.ok", "setup.CmdOK",
// "Loading.Unload") and a refusal keeps the dialog open with its warning and the focus on the field
// the core names. A dialog the core closes (it left view.openDialogs) simply goes.
#pragma once

#include <QDialog>
#include <functional>
#include <string>

class QPushButton;

namespace vn::forms {

class Bindings;
class Session;

class FormDialog : public QDialog {
  Q_OBJECT

 public:
  FormDialog(Session* session, std::string form, const QString& title, QWidget* owner,
             std::string closeControl = "ok");

  const std::string& form() const { return form_; }
  Bindings* bindings() const { return bindings_; }
  Session* session() const { return session_; }
  // "Loading.iq(1)" of "iq(1)".
  std::string key(const std::string& control) const { return form_ + "." + control; }

  // A button that closes the dialog by the close protocol.
  QPushButton* closeButton(const QString& caption = QStringLiteral("OK"));
  // Something of the dialog's own to show after every event, besides the bound widgets.
  void setExtraRefresh(std::function<void()> f) { extra_ = std::move(f); }

  void refresh();

 public slots:
  // Esc closes the dialog by the close protocol, as its close button does.
  void reject() override;

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  Session* session_;
  std::string form_;
  std::string close_;
  Bindings* bindings_;
  std::function<void()> extra_;
};

// The dialog of that name over the core's controls, or nullptr when the program has none:
// setup, Loading, endforce, bucklingy, bucklingz, chpoints, Modal_ns, about, InfoPsi, endstiff,
// vipping, detailedresult.
FormDialog* CreateFormDialog(Session* session, const std::string& name, QWidget* owner);

}  // namespace vn::forms
