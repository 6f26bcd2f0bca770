#include "forms/session.h"

#include <QApplication>
#include <QDesktopServices>
#include <QMessageBox>
#include <QUrl>

#include "core/recalculate.h"
#include "core/startup.h"

namespace vn::forms {

QString AppTitle() { return QStringLiteral("Varnelt EC3"); }

namespace {

Boxes DefaultBoxes() {
  Boxes b;
  b.warning = [](QWidget* parent, const QString& text) { QMessageBox::warning(parent, AppTitle(), text); };
  b.question = [](QWidget* parent, const QString& text) {
    auto answer = QMessageBox::question(
        parent, AppTitle(), text, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes);
    if (answer == QMessageBox::Yes) return QStringLiteral("Yes");
    if (answer == QMessageBox::No) return QStringLiteral("No");
    return QStringLiteral("Cancel");
  };
  b.openFile = [](const QString& path) { return QDesktopServices::openUrl(QUrl::fromLocalFile(path)); };
  return b;
}

}  // namespace

Boxes& boxes() {
  static Boxes b = DefaultBoxes();
  return b;
}

void ResetBoxes() { boxes() = DefaultBoxes(); }

Session::Session(QObject* parent) : QObject(parent) {}

void Session::start(const std::string& appPath, bool decimalComma) {
  StartUp(state_, appPath, decimalComma);
  emit changed();
}

EventResult Session::fire(const std::string& control, const std::string& text) {
  EventResult r = Fire(state_, control, text);
  if (r.known && !r.question.empty()) {
    const std::string question = r.question;
    const QString answer = boxes().question(QApplication::activeWindow(), QString::fromStdString(question));
    r = Fire(state_, control, answer.toStdString());
  }
  emit changed();
  if (r.exit) emit exitRequested();
  return r;
}

EventResult Session::fireAndTell(QWidget* parent, const std::string& control, const std::string& text) {
  EventResult r = fire(control, text);
  if (r.known && r.refused && !r.message.empty()) boxes().warning(parent, QString::fromStdString(r.message));
  return r;
}

bool Session::knows(const std::string& control) { return Controls().Find(control, nullptr) != nullptr; }

bool Session::activated(QWidget* window) {
  const bool other = lastActive_.data() != window;
  lastActive_ = window;
  return other;
}

void Session::refreshMainForm() {
  RefreshMainForm(state_);
  emit changed();
}

}  // namespace vn::forms
