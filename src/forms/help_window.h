// The program's help: the HTML pages shipped with it (help/index.html beside the data files), shown
// in a window of its own with the table of contents and a search, as the Help menu's Contents and
// Search open it. The program shows the pages itself, so that the help needs no web browser.
#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>
#include <vector>

class QLabel;
class QLineEdit;
class QListWidget;
class QTabWidget;
class QTextBrowser;
class QTreeWidget;

namespace vn::forms {

class HelpWindow : public QWidget {
  Q_OBJECT

 public:
  explicit HelpWindow(QWidget* parent = nullptr);

  // Shows the page at `path`; false when it can't be read.
  bool load(const QString& path);
  const QString& page() const { return page_; }

  // The two entries of the Help menu: the contents, or the search with the focus in its field.
  void showContents();
  void showSearch();

  // The headings of the page, in order, as the contents lists them.
  QStringList headings() const;
  // Searches the page for every word of `words` and lists the sections that hold all of them; the
  // first is shown with the words marked. Returns the headings found.
  QStringList search(const QString& words);
  // The heading of the section at the top of the page as shown.
  QString sectionShown() const;

  QTextBrowser* browser() const { return browser_; }

 private:
  struct Section {
    QString heading;
    int level = 2;
    int start = 0;  // positions in the document
    int end = 0;
  };
  void readSections();
  void showSection(int index);
  void markWords(int index);

  QString page_;
  QTabWidget* tabs_;
  QTreeWidget* contents_;
  QLineEdit* searchField_;
  QListWidget* found_;
  QLabel* foundNote_;
  QTextBrowser* browser_;
  std::vector<Section> sections_;
  QStringList words_;
};

}  // namespace vn::forms
