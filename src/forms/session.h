// The one State of the desktop program and the way every widget changes it: by firing a control of
// the core's table by its name. After each event every window shows the View anew.
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>
#include <functional>
#include <string>

#include "core/events.h"
#include "core/state.h"

class QWidget;

namespace vn::forms {

// Title of the program's message boxes.
QString AppTitle();

// The boxes the forms show. The program shows real message boxes; tests put their own in.
struct Boxes {
  // A warning with one OK button and the exclamation icon; returns when it is closed.
  std::function<void(QWidget* parent, const QString& text)> warning;
  // A question with Yes, No and Cancel; returns "Yes", "No" or "Cancel".
  std::function<QString(QWidget* parent, const QString& text)> question;
  // Opens a local file in the system's viewer for its type (the help page, the manual); false when
  // nothing could open it.
  std::function<bool(const QString& path)> openFile;
};
Boxes& boxes();
// The default boxes again.
void ResetBoxes();

struct LoadsSeen;

class Session : public QObject {
  Q_OBJECT

 public:
  explicit Session(QObject* parent = nullptr);

  State& state() { return state_; }
  const State& state() const { return state_; }

  // Starts the core as the program starts: data files from `appPath`, a new project, the settings,
  // the refresh of the main form.
  void start(const std::string& appPath, bool decimalComma);

  // Fires one event. A question the core asks is put to the user and the event fired again with the
  // answer. Every window shows the state anew afterwards (changed()).
  EventResult fire(const std::string& control, const std::string& text = {});
  // Fires and shows a refusal in a warning box over `parent`.
  EventResult fireAndTell(QWidget* parent, const std::string& control, const std::string& text = {});

  // What the last events took off the member without being asked ("Loads removed: q-load 1 (Z),
  // axial load 1 (not carried by T)."), shown in the main form's message area; empty when nothing.
  // The person's own edits of the loads, a new project and an opened one never make it.
  const QString& loadsNote() const { return loadsNote_; }

  // Whether the core has a control of that name.
  static bool knows(const std::string& control);

  // The main form is active again after one of the program's own windows: the record is copied
  // into it.
  void refreshMainForm();

  // Every window shows the State anew (after a change made outside the core's events).
  void refreshViews() { emit changed(); }

  // Set while a field takes the focus back after its warning: the focus change this causes is not
  // the user leaving another field.
  bool restoringFocus = false;

  // A window of the program became active. True when it takes over from another of the program's
  // windows, or is the first: that is when a form's Activate event runs. A message box or another
  // program in between changes nothing, so that closing a warning box activates nothing.
  bool activated(QWidget* window);

 signals:
  // The state may have changed: show it.
  void changed();
  // The core asked the program to end.
  void exitRequested();

 private:
  void noteRemovedLoads(const std::string& control, const LoadsSeen& before);

  State state_;
  QPointer<QWidget> lastActive_;
  QString loadsNote_;
};

}  // namespace vn::forms
