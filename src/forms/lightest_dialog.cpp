#include "forms/lightest_dialog.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>
#include <QThread>
#include <QVBoxLayout>

#include "core/format.h"
#include "forms/session.h"

namespace vn::forms {

LightestDialog::LightestDialog(Session* session, QWidget* owner)
    : QDialog(owner), session_(session), cancel_(std::make_shared<std::atomic<bool>>(false)) {
  setObjectName("lightest");
  setWindowTitle("Lightest section that passes");
  auto* layout = new QVBoxLayout(this);
  auto* note = new QLabel(
      "Every row of the families ticked is run on the member as it stands (loads, supports, restraints, "
      "settings). The rows whose every ratio is within the limit are listed by mass. The project is not "
      "changed until a row is chosen by a double click.");
  note->setWordWrap(true);
  layout->addWidget(note);

  auto* row = new QHBoxLayout;
  families_ = new QListWidget;
  families_->setObjectName("families");
  const int type = session_->state().project.ProfileType;
  for (const CatalogueFamily& f : CatalogueFamilies()) {
    auto* item = new QListWidgetItem(QString::fromLatin1(f.name), families_);
    item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
    item->setCheckState(f.type == type ? Qt::Checked : Qt::Unchecked);
  }
  families_->setMaximumWidth(130);
  row->addWidget(families_);

  auto* right = new QVBoxLayout;
  table_ = new QTableWidget(0, 4);
  table_->setObjectName("results");
  table_->setHorizontalHeaderLabels({"g (kg/m)", "Section", "IR", "Governing control"});
  table_->verticalHeader()->setVisible(false);
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setSelectionMode(QAbstractItemView::SingleSelection);
  table_->horizontalHeader()->setStretchLastSection(true);
  table_->setWordWrap(false);  // a row a line; the whole control text in the tool tip
  table_->setColumnWidth(0, 70);
  table_->setColumnWidth(1, 130);
  table_->setColumnWidth(2, 50);
  right->addWidget(table_);
  status_ = new QLabel(" ");
  status_->setObjectName("status");
  status_->setWordWrap(true);
  right->addWidget(status_);
  progress_ = new QProgressBar;
  progress_->setObjectName("progress");
  progress_->setRange(0, 1);
  progress_->setValue(0);
  right->addWidget(progress_);
  row->addLayout(right, 1);
  layout->addLayout(row, 1);

  auto* buttons = new QHBoxLayout;
  auto* all = new QPushButton("All");
  auto* none = new QPushButton("None");
  searchButton_ = new QPushButton("Search");
  searchButton_->setObjectName("search");
  searchButton_->setDefault(true);
  auto* close = new QPushButton("Close");
  buttons->addWidget(all);
  buttons->addWidget(none);
  buttons->addStretch(1);
  buttons->addWidget(searchButton_);
  buttons->addWidget(close);
  layout->addLayout(buttons);
  connect(all, &QPushButton::clicked, this, [this] {
    for (int i = 0; i < families_->count(); ++i) families_->item(i)->setCheckState(Qt::Checked);
  });
  connect(none, &QPushButton::clicked, this, [this] {
    for (int i = 0; i < families_->count(); ++i) families_->item(i)->setCheckState(Qt::Unchecked);
  });
  connect(searchButton_, &QPushButton::clicked, this, [this] {
    if (searching())
      stop();
    else
      search();
  });
  connect(close, &QPushButton::clicked, this, &QDialog::close);
  connect(table_, &QTableWidget::cellDoubleClicked, this, [this](int r, int) { choose(r); });
  resize(780, 460);
}

LightestDialog::~LightestDialog() { stop(); }

void LightestDialog::stop() {
  if (!thread_) return;
  cancel_->store(true);
  thread_->wait();
}

void LightestDialog::search() {
  if (thread_) return;
  searched_.clear();
  const auto& all = CatalogueFamilies();
  for (int i = 0; i < families_->count() && i < static_cast<int>(all.size()); ++i)
    if (families_->item(i)->checkState() == Qt::Checked) searched_.push_back(&all[static_cast<size_t>(i)]);
  if (searched_.empty()) {
    status_->setText("Tick at least one family.");
    return;
  }
  int total = 0;
  for (const CatalogueFamily* f : searched_) total += CatalogueInfo(f->table).rows;
  progress_->setRange(0, total);
  progress_->setValue(0);
  status_->setText(QString("Running %1 rows ...").arg(total));
  searchButton_->setText("Stop");
  table_->setRowCount(0);

  // The worker reads its own copy of the member: the person may go on editing the project.
  auto member = std::make_shared<const State>(session_->state());
  auto families = searched_;
  cancel_ = std::make_shared<std::atomic<bool>>(false);
  result_ = std::make_shared<LightestResult>();
  auto cancel = cancel_;
  auto result = result_;
  QPointer<QProgressBar> bar = progress_;
  thread_ = QThread::create([member, families, cancel, result, bar] {
    *result = FindLightest(
        *member, families, 0,
        [bar](int done, int) {
          // Told from the workers; the bar is set on the thread of the forms.
          if (done % 8 == 0 && bar)
            QMetaObject::invokeMethod(bar, "setValue", Qt::QueuedConnection, Q_ARG(int, done));
        },
        cancel.get());
  });
  thread_->setParent(this);  // waited for and deleted with the dialog when it goes first
  connect(thread_, &QThread::finished, this, [this] {
    thread_->deleteLater();
    thread_ = nullptr;
    searchButton_->setText("Search");
    showResult();
    emit searchFinished();
  });
  thread_->start();
}

void LightestDialog::showResult() {
  shown_ = *result_;
  const LightestResult& r = shown_;
  const bool dc = session_->state().decimalComma;
  progress_->setValue(r.rowsRun);
  table_->setRowCount(static_cast<int>(r.passing.size()));
  for (int i = 0; i < static_cast<int>(r.passing.size()); ++i) {
    const LightestRow& row = r.passing[static_cast<size_t>(i)];
    const QString cells[4] = {
        QString::fromStdString(FormatNumber(row.outcome.g, "#0.0", dc)), QString::fromStdString(row.section),
        QString::fromStdString(row.outcome.ratioText), QString::fromStdString(DescribeControl(row.outcome))};
    for (int c = 0; c < 4; ++c) {
      auto* item = new QTableWidgetItem(cells[c]);
      if (c == 0 || c == 2) item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
      if (c == 3) item->setToolTip(cells[c]);
      table_->setItem(i, c, item);
    }
  }
  QString text = QString("%1 rows run, %2 pass").arg(r.rowsRun).arg(r.passing.size());
  if (r.failedRuns > 0) text += QString(", %1 ended in the calculation error").arg(r.failedRuns);
  if (r.cancelled) text += " (stopped)";
  text += r.passing.empty() ? ". No row of these families passes." : ". Double click a row to choose it.";
  status_->setText(text);
}

void LightestDialog::choose(int listed) {
  if (listed < 0 || listed >= static_cast<int>(shown_.passing.size())) return;
  const LightestRow& row = shown_.passing[static_cast<size_t>(listed)];
  // The events of choosing it by hand: the family's menu entry, its table, the row of the list.
  for (const auto& [control, text] : ChoiceEvents(*row.family, row.row)) {
    const EventResult r = session_->fireAndTell(this, control, text);
    if (r.refused) return;
  }
  status_->setText(QString::fromStdString(row.section) +
                   " chosen. The list belongs to the member before; search again after a change.");
}

void LightestDialog::closeEvent(QCloseEvent* event) {
  stop();
  QDialog::closeEvent(event);
}

}  // namespace vn::forms
