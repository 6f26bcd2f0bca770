#include "forms/session.h"

#include <QApplication>
#include <QDesktopServices>
#include <QMessageBox>
#include <QUrl>

#include "core/recalculate.h"
#include "core/startup.h"
#include "forms/profiles.h"

#include <array>
#include <tuple>
#include <vector>

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

// The loads of the member as the person gave them, to tell afterwards what a run took off.
struct LoadsSeen {
  Loads loads;
  std::array<Single, 3> My{}, Mz{}, Vy{}, Vz{};
  int type = 0;
  bool endForceMode = false;  // the end forces are the member's loads, not the load tables
};

namespace {

LoadsSeen Seen(const State& s) {
  const Project& p = s.project;
  return {s.loads, p.My12, p.Mz12, p.Vy12, p.Vz12, p.ProfileType, p.AnalysisMode == 0};
}

// The events with which the person edits or replaces the loads: what they zero is meant.
bool OwnLoadEdit(const std::string& control) {
  for (const char* form : {"Loading.", "endforce."})
    if (control.rfind(form, 0) == 0) return true;
  for (const char* c : {"mnunew", "mnuopen", "mnurecentfile"})
    if (control.rfind(c, 0) == 0) return true;
  return false;
}

// "q-load 1 (Z), point load 2 (Y), end forces Mz1, Vy2": the slots that held a value before and
// hold none now.
std::string RemovedLoads(const LoadsSeen& a, const LoadsSeen& b) {
  std::vector<std::string> gone;
  if (a.endForceMode || b.endForceMode) {
    // The end forces stand for the loads: in beam mode they only echo the last run.
    std::string ends;
    for (const auto& [name, before, after] :
         {std::tuple{"My", &a.My, &b.My}, {"Mz", &a.Mz, &b.Mz}, {"Vy", &a.Vy, &b.Vy}, {"Vz", &a.Vz, &b.Vz}})
      for (size_t i = 1; i <= 2; ++i)
        if ((*before)[i] != 0 && (*after)[i] == 0)
          ends += (ends.empty() ? "" : ", ") + std::string(name) + std::to_string(i);
    return ends.empty() ? std::string() : "end forces " + ends;
  }
  auto dir = [](double d) { return d == 0 ? std::string(" (Y)") : std::string(" (Z)"); };
  for (size_t i = 1; i <= 3; ++i)
    if (a.loads.axial[i].N != 0 && b.loads.axial[i].N == 0) gone.push_back("axial load " + std::to_string(i));
  for (size_t i = 1; i <= 4; ++i)
    if (a.loads.uniform[i].q != 0 && b.loads.uniform[i].q == 0)
      gone.push_back("q-load " + std::to_string(i) + dir(a.loads.uniform[i].Dir));
  for (size_t i = 1; i <= 3; ++i) {
    const TrapezoidLoad &x = a.loads.trapezoid[i], &y = b.loads.trapezoid[i];
    if ((x.q1 != 0 || x.q2 != 0) && y.q1 == 0 && y.q2 == 0)
      gone.push_back("trapezoidal load " + std::to_string(i) + dir(x.Dir));
  }
  for (size_t i = 1; i <= 8; ++i) {
    const PointLoad &x = a.loads.point[i], &y = b.loads.point[i];
    if (x.Value != 0 && y.Value == 0) {
      // A force in Z and a moment about y bend the member about y.
      const bool z = x.Dir == 1;
      gone.push_back((x.Kind == 1 ? "point moment " : "point load ") + std::to_string(i) +
                     (x.Kind == 1 ? (z ? " (My)" : " (Mz)") : (z ? " (Z)" : " (Y)")));
    }
  }
  std::string text;
  for (const std::string& g : gone) text += (text.empty() ? "" : ", ") + g;
  return text;
}

QString FamilyName(int type) {
  for (const ProfileEntry& e : kProfiles)
    if (e.type == type) return ProfileTitle(e);
  return {};
}

}  // namespace

EventResult Session::fire(const std::string& control, const std::string& text) {
  const LoadsSeen before = Seen(state_);
  EventResult r = Fire(state_, control, text);
  noteRemovedLoads(control, before);
  if (r.known && !r.question.empty()) {
    const std::string question = r.question;
    const QString answer = boxes().question(QApplication::activeWindow(), QString::fromStdString(question));
    r = Fire(state_, control, answer.toStdString());
    noteRemovedLoads(control, before);
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

void Session::noteRemovedLoads(const std::string& control, const LoadsSeen& before) {
  const LoadsSeen after = Seen(state_);
  if (OwnLoadEdit(control)) {
    if (control.rfind("mnu", 0) == 0) loadsNote_.clear();  // another project
    return;
  }
  const std::string gone = RemovedLoads(before, after);
  if (gone.empty()) {
    if (after.type != before.type) loadsNote_.clear();  // another family that keeps them all
    return;
  }
  loadsNote_ = QStringLiteral("Loads removed: ") + QString::fromStdString(gone);
  if (after.type != before.type)
    loadsNote_ += QStringLiteral(" (not carried by ") + FamilyName(after.type) + ")";
  loadsNote_ += '.';
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
