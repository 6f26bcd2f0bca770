// The lightest section that passes, from the Profiles menu: the families to search, a progress bar
// while every row runs on copies of the member in a worker thread, and the passing rows by mass. A
// double click chooses the row by the same events as choosing it in its section dialog.
#pragma once

#include <QDialog>
#include <atomic>
#include <memory>
#include <vector>

#include "members/lightest.h"

class QLabel;
class QListWidget;
class QProgressBar;
class QPushButton;
class QTableWidget;
class QThread;

namespace vn::forms {

class Session;

class LightestDialog : public QDialog {
  Q_OBJECT

 public:
  LightestDialog(Session* session, QWidget* owner);
  ~LightestDialog() override;

  // Starts the search over the families ticked, on a copy of the member as it stands now.
  void search();
  // Whether a search is running.
  bool searching() const { return thread_ != nullptr; }
  // Chooses the listed row (0 = the lightest) as a double click on it does.
  void choose(int listed);

  QTableWidget* table() const { return table_; }
  QListWidget* families() const { return families_; }

 signals:
  void searchFinished();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void showResult();
  void stop();

  Session* session_;
  QListWidget* families_;
  QPushButton* searchButton_;
  QProgressBar* progress_;
  QLabel* status_;
  QTableWidget* table_;
  QThread* thread_ = nullptr;
  std::shared_ptr<std::atomic<bool>> cancel_;
  std::shared_ptr<LightestResult> result_;
  std::vector<const CatalogueFamily*> searched_;
  LightestResult shown_;
};

}  // namespace vn::forms
