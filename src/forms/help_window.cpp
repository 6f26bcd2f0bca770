#include "forms/help_window.h"

#include <QAbstractTextDocumentLayout>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSplitter>
#include <QTabWidget>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>
#include <QTreeWidget>
#include <QUrl>
#include <QVBoxLayout>

namespace vn::forms {

namespace {
QRegularExpression WordStart(const QString& word) {
  return QRegularExpression("(?<![\\w])" + QRegularExpression::escape(word),
                            QRegularExpression::CaseInsensitiveOption);
}
}  // namespace

HelpWindow::HelpWindow(QWidget* parent) : QWidget(parent, Qt::Window) {
  setObjectName("help");
  setWindowTitle("Varnelt EC3 - Help");
  resize(1000, 720);

  tabs_ = new QTabWidget;
  contents_ = new QTreeWidget;
  contents_->setObjectName("helpContents");
  contents_->setHeaderHidden(true);
  contents_->setRootIsDecorated(true);
  tabs_->addTab(contents_, "Contents");

  auto* searchPage = new QWidget;
  auto* sl = new QVBoxLayout(searchPage);
  sl->addWidget(new QLabel("Type the words to find:"));
  auto* row = new QHBoxLayout;
  searchField_ = new QLineEdit;
  searchField_->setObjectName("helpSearchField");
  searchField_->setClearButtonEnabled(true);
  auto* go = new QPushButton("List Topics");
  row->addWidget(searchField_, 1);
  row->addWidget(go);
  sl->addLayout(row);
  foundNote_ = new QLabel;
  sl->addWidget(foundNote_);
  found_ = new QListWidget;
  found_->setObjectName("helpFound");
  sl->addWidget(found_, 1);
  tabs_->addTab(searchPage, "Search");

  browser_ = new QTextBrowser;
  browser_->setObjectName("helpPage");
  browser_->setOpenLinks(true);
  browser_->setOpenExternalLinks(false);

  auto* split = new QSplitter;
  split->addWidget(tabs_);
  split->addWidget(browser_);
  split->setStretchFactor(0, 0);
  split->setStretchFactor(1, 1);
  split->setSizes({270, 730});
  auto* main = new QVBoxLayout(this);
  main->setContentsMargins(4, 4, 4, 4);
  main->addWidget(split);

  connect(contents_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
    if (item) showSection(item->data(0, Qt::UserRole).toInt());
  });
  auto run = [this] { search(searchField_->text()); };
  connect(searchField_, &QLineEdit::returnPressed, this, run);
  connect(go, &QPushButton::clicked, this, run);
  connect(found_, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row < 0) return;
    const int index = found_->item(row)->data(Qt::UserRole).toInt();
    showSection(index);
    markWords(index);
  });
}

bool HelpWindow::load(const QString& path) {
  if (!QFileInfo(path).isReadable()) return false;
  page_ = path;
  browser_->setSource(QUrl::fromLocalFile(path));
  readSections();
  return !browser_->document()->isEmpty();
}

void HelpWindow::readSections() {
  sections_.clear();
  contents_->clear();
  const QTextDocument* doc = browser_->document();
  QTreeWidgetItem* chapter = nullptr;
  for (QTextBlock b = doc->begin(); b.isValid(); b = b.next()) {
    const int level = b.blockFormat().headingLevel();
    if (level < 2 || level > 3) continue;  // h1 is the page's title
    if (!sections_.empty()) sections_.back().end = b.position();
    sections_.push_back({b.text().trimmed(), level, b.position(), doc->characterCount()});
    auto* item = new QTreeWidgetItem(QStringList{b.text().trimmed()});
    item->setData(0, Qt::UserRole, static_cast<int>(sections_.size() - 1));
    if (level == 2 || !chapter) {
      contents_->addTopLevelItem(item);
      if (level == 2) chapter = item;
    } else {
      chapter->addChild(item);
    }
  }
  contents_->expandAll();
}

QStringList HelpWindow::headings() const {
  QStringList out;
  for (const Section& s : sections_) out << s.heading;
  return out;
}

void HelpWindow::showContents() {
  tabs_->setCurrentIndex(0);
  contents_->setFocus();
}

void HelpWindow::showSearch() {
  tabs_->setCurrentIndex(1);
  searchField_->setFocus();
  searchField_->selectAll();
}

void HelpWindow::showSection(int index) {
  if (index < 0 || index >= static_cast<int>(sections_.size())) return;
  const QTextBlock block = browser_->document()->findBlock(sections_[index].start);
  const QRectF r = browser_->document()->documentLayout()->blockBoundingRect(block);
  browser_->verticalScrollBar()->setValue(static_cast<int>(r.top()));
}

QString HelpWindow::sectionShown() const {
  const int top = browser_->verticalScrollBar()->value();
  const QTextDocument* doc = browser_->document();
  QString shown;
  for (const Section& s : sections_) {
    const QRectF r = doc->documentLayout()->blockBoundingRect(doc->findBlock(s.start));
    if (r.top() <= top + 1) shown = s.heading;
  }
  return shown;
}

QStringList HelpWindow::search(const QString& words) {
  if (searchField_->text() != words) searchField_->setText(words);
  words_ = words.simplified().toLower().split(' ', Qt::SkipEmptyParts);
  found_->clear();
  QStringList headings;
  if (words_.isEmpty()) {
    foundNote_->clear();
    browser_->setExtraSelections({});
    return headings;
  }
  const QString all = browser_->document()->toPlainText().toLower();
  for (int i = 0; i < static_cast<int>(sections_.size()); ++i) {
    // A chapter's own text runs to its first sub-section; each sub-section is a topic of its own.
    const QString text = all.mid(sections_[i].start, sections_[i].end - sections_[i].start);
    // A word matches at the start of a word of the page: "sign" finds "signs", not "design".
    bool every = true;
    for (const QString& w : words_) every = every && text.contains(WordStart(w));
    if (!every) continue;
    auto* item = new QListWidgetItem(sections_[i].heading);
    item->setData(Qt::UserRole, i);
    found_->addItem(item);
    headings << sections_[i].heading;
  }
  foundNote_->setText(headings.isEmpty() ? QString("No topic holds every word.")
                                         : QString("%1 topic(s) found:").arg(headings.size()));
  if (!headings.isEmpty()) found_->setCurrentRow(0);
  return headings;
}

void HelpWindow::markWords(int index) {
  QList<QTextEdit::ExtraSelection> marks;
  QTextDocument* doc = browser_->document();
  QTextCharFormat yellow;
  yellow.setBackground(QColor(255, 235, 110));
  for (const QString& w : words_) {
    const QRegularExpression start = WordStart(w);
    for (QTextCursor c = doc->find(start); !c.isNull(); c = doc->find(start, c)) marks.push_back({c, yellow});
  }
  browser_->setExtraSelections(marks);
  // The first word found in the topic, in view.
  const Section& s = sections_[index];
  for (const QTextEdit::ExtraSelection& m : marks)
    if (m.cursor.selectionStart() >= s.start && m.cursor.selectionStart() < s.end) {
      const QRectF r = doc->documentLayout()->blockBoundingRect(m.cursor.block());
      const int top = browser_->verticalScrollBar()->value();
      if (r.bottom() > top + browser_->viewport()->height())
        browser_->verticalScrollBar()->setValue(static_cast<int>(r.top()) - 40);
      break;
    }
}

}  // namespace vn::forms
