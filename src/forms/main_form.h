// The main form: menus, the input frame, the charts, the results and the calculation data. It shows
// the State through the View and forwards every input to the core by control name.
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QString>
#include <map>
#include <string>

class QAction;
class QLabel;
class QMenu;
class QTextEdit;

namespace vn::forms {

class Bindings;
class Session;
class PictureBox;
class HelpWindow;

// A text of the summary as rich text that breaks at its blanks only, each formula and row of numbers
// whole and every "=" kept with the word before it.
QString KeepWordsWhole(const std::string& text);

class MainForm : public QMainWindow {
  Q_OBJECT

 public:
  explicit MainForm(Session* session, QWidget* parent = nullptr);
  ~MainForm() override;

  Session* session() const { return session_; }
  Bindings* bindings() const { return bindings_; }
  QMenu* profilesMenu() const { return profilesMenu_; }
  // The menu entry of a control ("mnuopen", "mnup04"), or nullptr.
  QAction* menuAction(const std::string& control) const;

  // The size of the form at start: 1024 by 0.965 * 768 at 96 pixels per inch, in proportion to the
  // screen's pixels per inch, kept within the screen.
  QSize startSize() const;

  // An open dialog by name, or nullptr.
  QWidget* dialog(const std::string& name) const;
  // Opens a dialog as its menu entry does; where the core has no entry for it yet, the form shows it
  // with whatever the State holds. nullptr if the form has no such dialog.
  QWidget* openDialog(const std::string& name);

  // The help window as Contents (search false) or Search of the Help menu opens it; nullptr, after a
  // warning naming the page, when the page is not there.
  HelpWindow* showHelp(bool search);
  HelpWindow* helpWindow() const;

  // Shows the State anew: caption, every bound widget, the menus, the summary, the dialogs.
  void refresh();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void buildMenus();
  void buildSectionButtons();
  void buildForm();
  void onMenu(const std::string& control);
  void syncDialogs();
  // Moves a dialog that edits the loads where it leaves the charts in view.
  void placeBesideCharts(QWidget* d);
  QWidget* createDialog(const std::string& name);
  QAction* addEntry(QMenu* menu, const std::string& control, const QString& caption);

  Session* session_;
  Bindings* bindings_;
  QMenu* profilesMenu_ = nullptr;
  std::map<std::string, QAction*> actions_;
  std::map<std::string, QPointer<QWidget>> dialogs_;
  QPointer<HelpWindow> help_;
  QTextEdit* summary_ = nullptr;
  QString shownSummary_;
  QLabel* error_ = nullptr;
  QLabel* verdict_ = nullptr;
  QLabel* note_ = nullptr;
  bool syncing_ = false;
};

}  // namespace vn::forms
