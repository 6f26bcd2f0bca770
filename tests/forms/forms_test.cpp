// The forms as a person uses them: fields refused and accepted through the one protocol, the
// Profiles menu on the right button, the menus, the start size, the section dialog.
#include <QAbstractTextDocumentLayout>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>
#include <QTextLayout>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>
#include <clocale>
#include <memory>

#include "core/recalculate.h"
#include "forms/bindings.h"
#include "forms/form_dialog.h"
#include "forms/help_window.h"
#include "forms/lightest_dialog.h"
#include "forms/look.h"
#include "forms/main_form.h"
#include "forms/picture_box.h"
#include "forms/report_page.h"
#include "forms/section_dialog.h"
#include "forms/session.h"
#include "graphics/canvas.h"

using namespace vn::forms;

class FormsTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<Session> session;
  std::unique_ptr<MainForm> form;
  QStringList warnings;  // the texts of the warning boxes shown
  QStringList opened;    // the documents handed to the system's viewer
  bool viewerWorks = true;

  template <class W>
  W* control(const char* name) {
    W* w = form->findChild<W*>(name);
    if (!w) qFatal("no control %s", name);
    return w;
  }

  // Gives a field the focus as a click or Tab would.
  void focus(QWidget* w) {
    w->setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
  }

  // Types into a field whose whole text is selected, as after the focus came in.
  void type(QLineEdit* edit, const QString& text) {
    edit->selectAll();
    QTest::keyClicks(edit, text);
  }

  static QColor background(QLineEdit* e) { return e->palette().color(QPalette::Base); }

 private slots:
  void init() {
    warnings.clear();
    boxes().warning = [this](QWidget*, const QString& text) { warnings << text; };
    // No viewer is started by a test: the paths asked for are noted instead.
    opened.clear();
    viewerWorks = true;
    boxes().openFile = [this](const QString& path) {
      opened << path;
      return viewerWorks;
    };
    session = std::make_unique<Session>();
    session->start(VARNELT_BIN_DIR, false);
    form = std::make_unique<MainForm>(session.get());
    form->show();
    form->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(form.get()));
  }

  void cleanup() {
    form.reset();
    session.reset();
    ResetBoxes();
  }

  // ---- the lightest section ----

  // From the Profiles menu: the search runs in the background with its bar, the rows that pass are
  // listed by mass, and a double click chooses one by the events of its section dialog.
  void lightestSectionIsFoundAndChosenByADoubleClick() {
    session->fire("mnup04");
    session->fire("Loading.inn(1)", "0");
    const int rowBefore = session->state().project.SelectedRow[vn::catIpe];
    QAction* entry = form->menuAction("mnulightest");
    QVERIFY(entry);
    QVERIFY(form->profilesMenu()->actions().contains(entry));
    entry->trigger();
    auto* d = qobject_cast<LightestDialog*>(form->dialog("lightest"));
    QVERIFY(d);
    QCOMPARE(d->families()->item(3)->text(), QString("IPE"));  // the member's own family ticked
    QCOMPARE(d->families()->item(3)->checkState(), Qt::Checked);
    QSignalSpy finished(d, &LightestDialog::searchFinished);
    d->search();
    QVERIFY(d->searching() || finished.count() == 1);
    QVERIFY(finished.count() == 1 || finished.wait(30000));
    QVERIFY(d->table()->rowCount() > 0);
    QCOMPARE(d->findChild<QProgressBar*>("progress")->value(), 18);
    // Nothing chosen yet: the project is as it was.
    QCOMPARE(session->state().project.SelectedRow[vn::catIpe], rowBefore);
    const QString lightest = d->table()->item(0, 1)->text();
    QVERIFY(lightest.startsWith("IPE"));
    d->choose(0);
    const vn::State& s = session->state();
    QCOMPARE(s.project.ProfileType, 4);
    QCOMPARE(QString::fromStdString(
                 vn::CatalogueListText(s.catalogues, vn::catIpe, s.project.SelectedRow[vn::catIpe])),
             lightest);
    QVERIFY(s.resultsValid);
    QVERIFY(form->dialog("p04"));  // chosen as in its dialog, which stands open
  }

  // ---- the printed reports ----

  void printEntriesAreOfferedAndTheReportPageIsDrawn() {
    for (const char* entry : {"mnuprint0", "mnuprint00", "mnuprint1", "mnuprint11"}) {
      QAction* a = form->menuAction(entry);
      QVERIFY(a);
      QVERIFY2(a->isEnabled(), entry);
    }
    QTemporaryDir dir;
    const QString path = dir.filePath("stability.png");
    QVERIFY(SaveReportPicture(session->state(), vn::ReportKind::Stability, path));
    QImage page(path);
    QCOMPARE(page.size(), QSize(1240, 1754));  // A4 at 150 dpi
    // The green of a ratio that passes stands somewhere on the page.
    bool green = false;
    for (int y = 0; y < page.height() && !green; y += 2)
      for (int x = page.width() / 2; x < page.width() && !green; ++x)
        green = page.pixelColor(x, y) == QColor(0, 128, 0);
    QVERIFY(green);
  }

  // The reports as PDF files: A4 pages, as many as the content needs, each numbered n/N.
  void reportsAreWrittenAsPdfPagesWithoutThePrintDialog() {
    QVERIFY(form->menuAction("mnupdf0") && form->menuAction("mnupdf0")->isEnabled());
    QVERIFY(form->menuAction("mnupdf1") && form->menuAction("mnupdf1")->isEnabled());
    QTemporaryDir dir;
    auto pages = [](const QString& path) {
      QFile f(path);
      if (!f.open(QIODevice::ReadOnly)) return -1;
      const QByteArray pdf = f.readAll();
      if (!pdf.startsWith("%PDF")) return -1;
      // Each page object is "/Type /Page"; the page tree is "/Type /Pages".
      int n = 0;
      auto it = QRegularExpression("/Type\\s*/Page(?!s)").globalMatch(QString::fromLatin1(pdf));
      for (; it.hasNext(); it.next()) ++n;
      return n;
    };
    // The section report of an HEA 300 fits on one page with its figure; the stability report
    // with its member figure and charts needs a second.
    const QString section = dir.filePath("section.pdf"), stability = dir.filePath("stability.pdf");
    QCOMPARE(WriteReportPdf(session->state(), vn::ReportKind::SectionCapacity, section), 1);
    QCOMPARE(pages(section), 1);
    const int n = WriteReportPdf(session->state(), vn::ReportKind::Stability, stability);
    QVERIFY(n >= 2);
    QCOMPARE(pages(stability), n);
  }

  // After a failed run no result of the run before is on show or printed: the summary is empty
  // beside the error text, and each print entry answers with its message instead of a report.
  void aFailedRunShowsNoResultAndPrintsNoReport() {
    for (auto [control, text] :
         {std::pair{"mnup04", ""}, {"p04.cbo", "0"}, {"il", "10"}, {"Loading.inn(1)", "500"}})
      session->fire(control, text);
    QVERIFY(!session->state().resultsValid);
    QTRY_VERIFY(control<QLabel>("txtError")->isVisible());
    QVERIFY(control<QTextEdit>("summary")->toPlainText().trimmed().isEmpty());
    QVERIFY(!control<QLabel>("verdict")->isVisible());  // no verdict without results
    for (const char* entry : {"mnuprint0", "mnuprint1", "mnupdf0", "mnupdf1"})
      form->menuAction(entry)->trigger();
    QCOMPARE(warnings,
             (QStringList{vn::kNoResultsText, vn::kNoResultsText, vn::kNoResultsText, vn::kNoResultsText}));
  }

  // ---- file actions ----

  // A save that can't be written, and "Save as default" into a folder that is gone, show the file
  // action's message in a warning box.
  void aFailedWriteShowsTheFileActionMessage() {
    QTemporaryDir dir;
    const std::string gone = dir.filePath("gone").toStdString();
    session->fireAndTell(form.get(), "mnusaveas", gone + "/a.vnt");
    QCOMPARE(warnings, QStringList{QString::fromStdString("can't save file - " + gone + "/a.vnt")});
    warnings.clear();
    session->state().appPath = gone;
    session->fireAndTell(form.get(), "setup.Command2");
    QCOMPARE(warnings,
             QStringList{QString::fromStdString("can't save file - " + gone + "/VarneltEC3Setup.dat")});
  }

  // ---- the summary of controls ----

  // At the start size with the deflection control on: every ratio in one right-hand column, the
  // lines broken at blanks only (a number never inside itself), no line that begins with "=", the
  // deflection block in view without scrolling, and the verdict above in its colour.
  void summaryReadsAtAGlanceAtTheStartSize() {
    QCOMPARE(form->size(), form->startSize());
    session->fire("CheckSLS", "1");
    QCoreApplication::processEvents();
    auto* summary = control<QTextEdit>("summary");
    QTextDocument* doc = summary->document();
    QVERIFY(doc->toPlainText().remove(QChar(0x2060)).contains("DEFLECTION CONTROL:"));
    const QRegularExpression ratio("^\\s*\\d+[.,]\\d\\d$");
    QList<qreal> ratioRights;
    int broken = 0;
    for (QTextBlock b = doc->begin(); b.isValid(); b = b.next()) {
      QString text = b.text();
      text.remove(QChar(0x2060));
      text.replace(QChar(0x00A0), ' ');
      const QTextLayout* layout = b.layout();
      for (int i = 0; i < layout->lineCount(); ++i) {
        const QTextLine line = layout->lineAt(i);
        const QString shown =
            b.text().mid(line.textStart(), line.textLength()).remove(QChar(0x2060)).trimmed();
        QVERIFY2(!shown.startsWith('='), qPrintable(text));
        if (i > 0) {
          ++broken;
          QVERIFY2(b.text().at(line.textStart() - 1) == ' ', qPrintable(text));  // at a blank only
        }
      }
      if (ratio.match(text).hasMatch()) ratioRights << doc->documentLayout()->blockBoundingRect(b).right();
    }
    QVERIFY(broken > 0);  // the start size does wrap some formulas: the rule above was put to work
    QVERIFY(ratioRights.size() >= 6);  // 3 section, 3 buckling lines and the deflection
    for (qreal r : ratioRights) QVERIFY(qAbs(r - ratioRights.first()) < 1.0);
    QCOMPARE(summary->verticalScrollBar()->maximum(), 0);  // the deflection block is in view
    auto* verdict = control<QLabel>("verdict");
    QVERIFY(verdict->isVisible());
    QVERIFY(verdict->text()
                .remove(QChar(0x2060))
                .replace(QChar(0x00A0), QChar(' '))
                .contains("OK: governing IR = "));
    QVERIFY(verdict->text().contains("#008000"));  // green: the default member passes
    // A larger window gives the summary the width.
    const int before = summary->width();
    form->resize(form->startSize() + QSize(600, 200));
    QCoreApplication::processEvents();
    QVERIFY(summary->width() >= before + 300);
  }

  // ---- loads that a family can't carry ----

  // The T takes axial loads only, HSQ and plates bend about y only and carry no axial force: a
  // change to such a family that takes loads off the member names them in the message area.
  void familyChangeThatRemovesLoadsSaysSo() {
    auto* note = control<QLabel>("txtNote");
    QVERIFY(!note->isVisible());
    // The person's own zero is no removal.
    session->fire("Loading.iq(1)", "0");
    QVERIFY(note->text().isEmpty());
    session->fire("Loading.iq(1)", "10");
    form->menuAction("mnu26")->trigger();  // T
    QVERIFY(note->isVisible());
    QCOMPARE(note->text(), QString("Loads removed: q-load 1 (Z) (not carried by T)."));

    for (const char* family : {"mnup24", "mnuplateFb"}) {
      session->fire("mnunew");
      QVERIFY(note->text().isEmpty());  // a new project starts with no note
      // The default axial load of 100 kN, and 5 kN/m in Y beside the 10 kN/m in Z.
      session->fire("Loading.iq(2)", "5");
      session->fire("Loading.iq_yz(2)");
      const vn::Loads& l = session->state().loads;
      QVERIFY(l.uniform[2].q == 5 && l.uniform[2].Dir == 0 && l.axial[1].N == 100);
      form->menuAction(family)->trigger();
      QVERIFY2(note->isVisible(), family);
      QVERIFY2(note->text().startsWith("Loads removed: axial load 1, q-load 2 (Y) (not carried by "), family);
      QCOMPARE(session->state().loads.uniform[1].q, 10.0f);  // the Z load stays, and is not named
      QVERIFY(!note->text().contains("q-load 1"));
    }
  }

  // ---- the field protocol ----

  void fieldTurnsGreenAndSelectsItsTextOnFocus() {
    auto* il = control<QLineEdit>("il");
    focus(il);
    QCOMPARE(background(il), QColor(0, 255, 0));  // 65280
    QCOMPARE(il->selectedText(), il->text());
    QCOMPARE(il->text(), QString("5.000"));
  }

  void tooShortLengthIsRefusedWithItsMessageAndKeepsTheFocus() {
    auto* il = control<QLineEdit>("il");
    focus(il);
    type(il, "0.01");
    QTest::keyClick(il, Qt::Key_Return);
    QCOMPARE(warnings, QStringList{" L >= 0.050 "});
    QCOMPARE(QApplication::focusWidget(), il);
    QCOMPARE(background(il), QColor(0, 255, 0));  // a refused field stays green
    // Stored before the test and shown in the field's format.
    QCOMPARE(session->state().project.L, 0.01f);
    QCOMPARE(il->text(), QString("0.010"));
  }

  void leavingARefusedFieldByClickingAnotherBringsTheFocusBack() {
    auto* il = control<QLineEdit>("il");
    auto* iident = control<QLineEdit>("iident");
    focus(il);
    type(il, "0.02");
    const int runs = session->state().recalcCount;
    focus(iident);  // the user clicks another field
    QTRY_COMPARE(warnings.size(), 1);
    QCOMPARE(warnings.first(), QString(" L >= 0.050 "));
    QTRY_COMPARE(QApplication::focusWidget(), il);
    QCOMPARE(background(il), QColor(0, 255, 0));
    QCOMPARE(background(iident), QColor(255, 255, 255));
    QCOMPARE(session->state().recalcCount, runs);  // nothing recalculated with the bad value
    // Once the box has closed nothing more is asked: the focus stays, no second box.
    QTest::qWait(20);
    QCOMPARE(warnings.size(), 1);
  }

  void validLengthReachesTheStateAndMovesOn() {
    auto* il = control<QLineEdit>("il");
    focus(il);
    type(il, "6,5");  // either decimal sign is read under a decimal point locale
    const int runs = session->state().recalcCount;
    QTest::keyClick(il, Qt::Key_Return);
    QVERIFY(warnings.isEmpty());
    QCOMPARE(session->state().project.L, 6.5f);
    QCOMPARE(QString::fromStdString(session->state().view.text.at("il")), QString("6.500"));
    QCOMPARE(il->text(), QString("6.500"));
    QVERIFY(session->state().recalcCount > runs);
    QCOMPARE(background(il), QColor(255, 255, 255));
    QVERIFY(QApplication::focusWidget() != il);  // Enter moved on
  }

  void textBeingTypedIsKeptWhileAnotherControlActs() {
    // A menu entry acts without the field being left: what is typed stays until the field is left.
    auto* il = control<QLineEdit>("il");
    focus(il);
    type(il, "7");
    session->fire("cbutt2");
    QCOMPARE(session->state().project.SupportType, int16_t(2));
    QCOMPARE(il->text(), QString("7"));
    QTest::keyClick(il, Qt::Key_Return);
    QCOMPARE(session->state().project.L, 7.0f);
    QCOMPARE(il->text(), QString("7.000"));
  }

  void enterFromTheLastBucklingFieldGoesToTheProjectName() {
    auto* iblz = control<QLineEdit>("iblz");
    focus(iblz);
    type(iblz, "0.7");
    QTest::keyClick(iblz, Qt::Key_Return);
    QCOMPARE(session->state().project.bucklingFactorZ, 0.7f);
    QCOMPARE(QApplication::focusWidget(), control<QLineEdit>("iproj"));
  }

  void projectNameIsStoredWithoutARecalculation() {
    auto* iproj = control<QLineEdit>("iproj");
    focus(iproj);
    iproj->setText("Hall B, purlin");
    const int runs = session->state().recalcCount;
    QTest::keyClick(iproj, Qt::Key_Return);
    QCOMPARE(session->state().project.projectName, std::string("Hall B, purlin"));
    QCOMPARE(session->state().recalcCount, runs);
    QCOMPARE(QApplication::focusWidget(), control<QLineEdit>("iident"));
  }

  // ---- lists, check boxes, options ----

  void modalAnalysisIsRefusedForSpringSupports() {
    control<QToolButton>("cbutt3")->click();
    QCOMPARE(session->state().project.SupportType, int16_t(3));
    QVERIFY(control<QToolButton>("cbutt3")->isChecked());
    QVERIFY(!control<QToolButton>("cbutt0")->isChecked());
    auto* modal = control<QCheckBox>("ch_modal");
    modal->click();
    QCOMPARE(warnings, QStringList{" Modal analysis not possible for spring supports "});
    QVERIFY(!modal->isChecked());  // the box clears itself
    QCOMPARE(session->state().project.chModal, int16_t(0));
  }

  void loadCombinationListFiresTheIndexChosen() {
    auto* list = control<QComboBox>("CboLoadComb");
    QCOMPARE(list->count(), 6);
    QCOMPARE(list->itemText(3), QString("EN 1990 Eq 6.10a/b"));
    list->setCurrentIndex(4);
    emit list->activated(4);
    QCOMPARE(session->state().project.LoadCombMode, int16_t(4));
  }

  // ---- menus ----

  void rightButtonAnywherePopsUpTheProfilesMenu() {
    QMenu* profiles = form->profilesMenu();
    QVERIFY(!profiles->isVisible());
    QTest::mouseClick(control<QGroupBox>("Frame2"), Qt::RightButton, {}, QPoint(20, 20));
    QTRY_VERIFY(profiles->isVisible());
    profiles->hide();
    // Over a field too, instead of the field's own menu.
    QTest::mouseClick(control<QLineEdit>("il"), Qt::RightButton);
    QTRY_VERIFY(profiles->isVisible());
    profiles->hide();
    QTest::mouseClick(control<QLineEdit>("il"), Qt::LeftButton);
    QVERIFY(!profiles->isVisible());
  }

  void menusCarryTheirCaptionsAndControls() {
    QCOMPARE(form->menuAction("mnusaveas")->text(), QString("Save &As"));
    QCOMPARE(form->menuAction("mnuprint11")->text(), QString("Print  - Section and Stability Control"));
    QCOMPARE(form->menuAction("mnuhelpsearch")->text(), QString("&Search for Help On . . . "));
    QCOMPARE(form->profilesMenu()->title(), QString("&Profiles"));
    // Profiles: four separators between the groups, the British entries under their label, and
    // after a fifth the search for the lightest section.
    QStringList captions;
    int separators = 0;
    for (QAction* a : form->profilesMenu()->actions()) {
      if (a->isSeparator()) {
        ++separators;
        captions << "-";
      } else {
        captions << a->text();
      }
    }
    QCOMPARE(separators, 5);
    QCOMPARE(captions.size(), 38);
    QCOMPARE(captions.indexOf("I - double symmetric") - 1, captions.indexOf("-"));
    const int british = captions.indexOf("British profiles");
    QCOMPARE(captions.mid(british - 1),
             (QStringList{"-", "British profiles", "U", "J", "C", "-", "Lightest Section that Passes..."}));
    QCOMPARE(form->menuAction("mnuc")->text(), QString("C"));
    // An entry is there to be used exactly when the core has its control.
    for (const char* name : {"mnup01", "mnup41", "mnuopen", "mnusetup", "mnuload1"})
      QCOMPARE(form->menuAction(name)->isEnabled(), Session::knows(name));
    QVERIFY(form->menuAction("mnuexit")->isEnabled());
    // The recent list is hidden while it is empty.
    QVERIFY(!form->menuAction("mnurecentfile(0)")->isVisible());
    QVERIFY(!form->menuAction("mnurecentfile(1)")->isVisible());
  }

  void newOnASavedProjectAsksBeforeItDropsIt() {
    QStringList asked;
    boxes().question = [&asked](QWidget*, const QString& q) {
      asked << q;
      return QStringLiteral("Cancel");
    };
    session->state().project.fileName = "/tmp/hall-b.vnt";
    QAction* entry = form->menuAction("mnunew");
    if (!entry->isEnabled()) QSKIP("the core has no New entry yet");
    entry->trigger();
    if (asked.isEmpty()) QSKIP("the core asks nothing before New yet");
    QCOMPARE(asked, QStringList{"Do you want to save the actual project?"});
    QCOMPARE(session->state().project.fileName, std::string("/tmp/hall-b.vnt"));  // Cancel keeps all
  }

  void recentEntriesShowWhatTheViewHolds() {
    auto& v = session->state().view;
    v.visible["mnurecentfile(0)"] = true;
    v.visible["mnurecentfile(1)"] = true;
    v.text["mnurecentfile(1)"] = "1. /home/eng/R&D/beam.vnt";
    form->refresh();
    QVERIFY(form->menuAction("mnurecentfile(1)")->isVisible());
    QCOMPARE(form->menuAction("mnurecentfile(1)")->text(), QString("1. /home/eng/R&&D/beam.vnt"));
  }

  // ---- the form ----

  void startSizeFollowsThePixelsPerInch() {
    // At 96 pixels per inch: 1024 by 0.965 * 768 = 741.12.
    QScreen* screen = form->screen();
    QVERIFY(screen);
    const double dpiX = screen->logicalDotsPerInchX(), dpiY = screen->logicalDotsPerInchY();
    QCOMPARE(form->startSize(), QSize(qRound(dpiX / 96 * 1024), qRound(dpiY / 96 * 0.965 * 768)));
    if (dpiX == 96 && dpiY == 96) QCOMPARE(form->size(), QSize(1024, 741));
  }

  void captionAndErrorLabelFollowTheView() {
    QCOMPARE(form->windowTitle(), QString::fromStdString(session->state().view.caption));
    QVERIFY(form->windowTitle().startsWith("Varnelt EC3"));
    auto& v = session->state().view;
    v.txtError = " Calculation Error. Axial load too big. Increase profile or reduce axial force ";
    v.txtErrorVisible = true;
    form->refresh();
    auto* error = control<QLabel>("txtError");
    QVERIFY(error->isVisible());
    QCOMPARE(error->text(), QString::fromStdString(v.txtError));
    QCOMPARE(error->palette().color(QPalette::WindowText), QColor(Qt::red));
    v.txtErrorVisible = false;
    form->refresh();
    QVERIFY(!error->isVisible());
  }

  void hiddenFramesFollowTheView() {
    auto& v = session->state().view;
    v.visible["columnframe"] = false;
    form->refresh();
    QVERIFY(!control<QGroupBox>("columnframe")->isVisible());
    // Enter on the length goes to the buckling factor while "Column data" is shown when the key
    // is pressed, else to the project name: hidden here, so the project name.
    auto* il = control<QLineEdit>("il");
    focus(il);
    QTest::keyClick(il, Qt::Key_Return);
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(control<QLineEdit>("iproj")));
  }

  void realWarningBoxClosesAndGivesTheFocusBack() {
    ResetBoxes();  // the program's own message box
    QString shown;
    QTimer::singleShot(100, [&shown] {
      if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
        shown = box->text();
        box->accept();
      }
    });
    auto* ibly = control<QLineEdit>("ibly");
    focus(ibly);
    type(ibly, "0.1");
    const int runs = session->state().recalcCount;
    QTest::keyClick(ibly, Qt::Key_Return);
    QCOMPARE(shown, QString(" Buckling length factor Y-axis >= 0.2 "));
    QTRY_COMPARE(QApplication::focusWidget(), ibly);
    QCOMPARE(background(ibly), QColor(0, 255, 0));
    // The form active again after the box is no return from a dialog: nothing is refreshed, so
    // nothing runs with the refused value.
    QTest::qWait(20);
    QCOMPARE(session->state().recalcCount, runs);
  }

  void mainFormRefreshesWhenActiveAgainAfterADialog() {
    QWidget* d = form->openDialog("p01");
    QVERIFY(d);
    // The dialog shares the form's activation in some styles: wait for the window system instead.
    d->activateWindow();
    QTRY_COMPARE(QGuiApplication::focusWindow(), d->windowHandle());
    const int runs = session->state().recalcCount;
    form->activateWindow();
    QTRY_COMPARE(QGuiApplication::focusWindow(), form->windowHandle());
    QVERIFY(session->state().recalcCount > runs);  // RefreshMainForm recalculates
  }

  // ---- the section dialog ----

  void sectionDialogShowsTheFamilysListAndValues() {
    // What the family's routines leave in the View, as a stand-in.
    vn::State& s = session->state();
    s.view.items["p01.cbo"] = {"HEA100", "HEA120", "HEA140"};
    s.view.value["p01.cbo"] = 1;
    s.project.ProfileType = 1;
    // HEA 120 as the rolled section tables give it.
    s.view.sectionValues = {{"h =", "114", " mm"},
                            {"b =", "120", " mm"},
                            {"tf =", "8.0", " mm"},
                            {"tw =", "5.0", " mm"},
                            {"r =", "12", " mm"},
                            {"A =", "2534", " mm2"},
                            {"Ix =", "5.990E+4", " mm4"},
                            {"Iy =", "6.062E+6", " mm4"},
                            {"Iz =", "2.309E+6", " mm4"},
                            {"Wel,y =", "1.063E+5", " mm3"},
                            {"Wel,z =", "3.848E+4", " mm3"},
                            {"Wpl,y =", "1.195E+5", " mm3"},
                            {"Wpl,z =", "5.885E+4", " mm3"},
                            {"Iw =", "6.472E+9", " mm6"},
                            {"g =", "19.9", " kg/m"},
                            {"S =", "0.677", " m2/m"},
                            {"Cross Section Class: ", "1/1/1", "(N/My/Mz)"},
                            {"Nc,Rd =", "595.5", " kN"},
                            {"My,Rd =", "28.1", " kNm"}};
    auto* d = qobject_cast<SectionDialog*>(form->openDialog("p01"));
    QVERIFY(d);
    QCOMPARE(form->dialog("p01"), d);
    // Where the core has the family, opening the dialog fills the list and values anew: the dialog
    // shows whatever the View holds then.
    auto* list = d->findChild<QComboBox*>("p01.cbo");
    QVERIFY(list);
    const auto& items = s.view.items.at("p01.cbo");
    QCOMPARE(list->count(), int(items.size()));
    QCOMPARE(list->currentText().toStdString(), items.at(size_t(s.view.value.at("p01.cbo"))));
    auto value = [&s](const std::string& label) {
      for (const auto& l : s.view.sectionValues)
        if (l.label == label) return QString::fromStdString(l.value);
      return QString();
    };
    QVERIFY(!value("h =").isEmpty());
    QCOMPARE(d->dimensions()->valueOf("h ="), value("h ="));
    QCOMPARE(d->properties()->valueOf("A ="), value("A ="));
    QCOMPARE(d->capacity()->valueOf("Cross Section Class: "), value("Cross Section Class: "));
    QCOMPARE(d->properties()->valueOf("h ="), QString());  // each line in one frame only
    auto titles = d->findChildren<QGroupBox*>();
    QStringList captions;
    for (auto* g : titles) captions << g->title();
    QVERIFY(captions.contains("Dimension && Weight"));
    QVERIFY(captions.contains("Section property"));
    QVERIFY(captions.contains("Capacity"));
    QVERIFY(captions.contains(s.project.figureNotToScale ? "Figure not to scale" : "Figure to scale"));
    if (!qEnvironmentVariableIsEmpty("VARNELT_SHOTS")) {
      d->grab().save(qEnvironmentVariable("VARNELT_SHOTS") + "/p01.png");
      form->grab().save(qEnvironmentVariable("VARNELT_SHOTS") + "/main.png");
      for (const char* frame : {"columnframe", "Frame2"}) {
        QPixmap shot = control<QGroupBox>(frame)->grab();
        shot.scaled(shot.size() * 3).save(qEnvironmentVariable("VARNELT_SHOTS") + "/" + frame + ".png");
      }
    }
  }

  // A dimension dialog just opened has the focus in its first field. The click on Close leaves
  // that field first (its leave runs before the button acts) and closes the dialog at once: it
  // does not come back, and the core lists it no more.
  void freshDimensionDialogClosesOnTheFirstClickOnClose() {
    for (const char* name : {"p21", "p22", "p26", "p31"}) {
      QWidget* d = form->openDialog(name);
      QVERIFY2(d, name);
      d->activateWindow();
      QTRY_COMPARE(QGuiApplication::focusWindow(), d->windowHandle());
      auto* first =
          d->findChild<QLineEdit*>(QString(name) + (std::string(name) == "p31" ? ".istd" : ".isth"));
      QVERIFY2(first, name);
      focus(first);
      auto* close = d->findChild<QPushButton*>("Command1");
      QVERIFY(close);
      QPointer<QWidget> gone(d);
      QTest::mouseClick(close, Qt::LeftButton);
      QTRY_VERIFY2(gone.isNull(), name);
      QTest::qWait(20);  // whatever was queued behind the click has run
      QVERIFY2(!vn::DialogOpen(session->state().view, name), name);
      QVERIFY2(!form->dialog(name), name);
      QVERIFY(warnings.isEmpty());
    }
  }

  // A value refused on the way out keeps the dialog open with its message.
  void closeAfterARefusedDimensionKeepsTheDialog() {
    QWidget* d = form->openDialog("p21");
    QVERIFY(d);
    d->activateWindow();
    QTRY_COMPARE(QGuiApplication::focusWindow(), d->windowHandle());
    auto* h = d->findChild<QLineEdit*>("p21.isth");
    focus(h);
    type(h, "15");
    QTest::mouseClick(d->findChild<QPushButton*>("Command1"), Qt::LeftButton);
    QTest::qWait(20);
    QCOMPARE(warnings, QStringList{" h >= 20 "});
    QVERIFY(d->isVisible());
    QVERIFY(vn::DialogOpen(session->state().view, "p21"));
  }

  // Esc closes a dialog as its close button does: the core no longer lists it.
  void escapeClosesADialogAsItsCloseButtonDoes() {
    for (const char* name : {"p01", "p21", "Loading", "setup", "bucklingy"}) {
      QWidget* d = form->openDialog(name);
      QVERIFY2(d, name);
      QVERIFY2(vn::DialogOpen(session->state().view, name), name);
      d->activateWindow();
      QTRY_COMPARE(QGuiApplication::focusWindow(), d->windowHandle());
      QPointer<QWidget> gone(d);
      QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : d, Qt::Key_Escape);
      QTRY_VERIFY2(gone.isNull(), name);
      QVERIFY2(!vn::DialogOpen(session->state().view, name), name);
    }
  }

  // Choosing another family closes the dialog of the family before instead of piling them up.
  void anotherFamilyClosesThePreviousFamilysDialog() {
    QPointer<QWidget> hea = form->openDialog("p01");
    QVERIFY(hea);
    form->menuAction("mnup04")->trigger();
    QTRY_VERIFY(hea.isNull());
    QVERIFY(form->dialog("p04"));
    const auto& open = session->state().view.openDialogs;
    QCOMPARE(std::count(open.begin(), open.end(), std::string("p01")), 0);
    QCOMPARE(std::count(open.begin(), open.end(), std::string("p04")), 1);
    // And by the section buttons too.
    QPointer<QWidget> ipe = form->dialog("p04");
    for (QAction* a : control<QToolBar>("sectionButtons")->actions())
      if (a->objectName() == "p31i") a->trigger();
    QTRY_VERIFY(ipe.isNull());
    QVERIFY(form->dialog("p31"));
    QCOMPARE(session->state().project.ProfileType, 31);
  }

  // The Loading dialog stands beside the charts it drives, not over them.
  void loadingDialogLeavesTheChartsInView() {
    form->menuAction("mnuload1")->trigger();
    QWidget* d = form->dialog("Loading");
    QVERIFY(d);
    QTRY_VERIFY(d->isVisible());
    for (const char* frame : {"fr2", "fr3"}) {
      auto* chart = control<QGroupBox>(frame);
      const QRect onScreen(chart->mapToGlobal(QPoint(0, 0)), chart->size());
      QVERIFY2(!d->frameGeometry().intersects(onScreen), frame);
    }
  }

  // ---- the dialogs over the core's controls ----

  // Types a value into a dialog's field and leaves it by Enter, as a person does.
  void enter(QWidget* dialog, const char* name, const QString& text) {
    auto* edit = dialog->findChild<QLineEdit*>(name);
    if (!edit) qFatal("no field %s", name);
    focus(edit);
    type(edit, text);
    QTest::keyClick(edit, Qt::Key_Return);
  }

  static QStringList texts(const vn::draw::Drawing& d) {
    QStringList t;
    for (const auto& c : d.commands)
      if (c.kind == vn::draw::DrawCommand::Kind::Text) t << QString::fromStdString(c.text);
    return t;
  }

  void loadingDialogRefusesCrossedPositionsOnClose() {
    form->menuAction("mnuload1")->trigger();
    QWidget* d = form->dialog("Loading");
    QVERIFY(d);
    QTRY_VERIFY(d->isVisible());
    d->activateWindow();
    QTRY_COMPARE(QGuiApplication::focusWindow(), d->windowHandle());
    // A trapezoid of 5 kN/m from 3 m back to 1 m.
    enter(d, "Loading.iqt1(1)", "5");
    enter(d, "Loading.iqt2(1)", "5");
    enter(d, "Loading.iqtx1(1)", "3");
    enter(d, "Loading.iqtx2(1)", "1");
    QVERIFY(warnings.isEmpty());
    d->close();
    QCOMPARE(warnings, QStringList{" x1 < x2 "});
    QVERIFY(d->isVisible());
    QVERIFY(vn::DialogOpen(session->state().view, "Loading"));
    QTRY_COMPARE(QApplication::focusWidget(), d->findChild<QLineEdit*>("Loading.iqtx1(1)"));
    // Put right, the dialog closes; the trapezoid stays on the member's load chart.
    enter(d, "Loading.iqtx2(1)", "4");
    QPointer<QWidget> gone(d);
    gone->close();
    QTRY_VERIFY(gone.isNull());
    QCOMPARE(warnings.size(), 1);
    QVERIFY(!vn::DialogOpen(session->state().view, "Loading"));
    QVERIFY(texts(session->state().view.pictures["PicLoadZ"]).contains("4.000"));
  }

  void resultChartReadsTheForcesUnderTheMouse() {
    auto* chart = form->findChild<PictureBox*>("PicMy");
    QVERIFY(chart && chart->isVisible());
    const QRect area = chart->contentsRect();
    const int px = area.left() + area.width() / 2;
    QTest::mouseMove(chart, QPoint(px, area.center().y()));
    // The chart runs 0..100 across the picture and the member from 16 to 86, 5 m long.
    const double x = double(px - area.left()) / area.width() * 100;
    const QString position = QString::number((x - 16) / 70 * 5, 'f', 3);
    QTRY_VERIFY(chart->toolTip().startsWith(" x = " + position + " m  My = "));
    QVERIFY(chart->toolTip().contains("  Vz = "));
  }

  void sectionFromTheMenuUpdatesTheFigureAndTheResults() {
    auto& v = session->state().view;
    auto deflection = [&v] {
      for (const QString& t : texts(v.pictures["PicMy"]))
        if (t.startsWith("Deflection: ")) return t;
      return QString();
    };
    const QString before = deflection();
    QVERIFY(!before.isEmpty());
    form->menuAction("mnup04")->trigger();
    auto* d = qobject_cast<SectionDialog*>(form->dialog("p04"));
    QVERIFY(d);
    auto* list = d->findChild<QComboBox*>("p04.cbo");
    QVERIFY(list && list->count() > 0);
    QVERIFY(control<QLabel>("profileName")->text().startsWith("IPE"));
    QVERIFY(deflection() != before);  // an IPE bends more than the HEA of the same row
    // Another row of the list: a deeper IPE deflects less.
    const QString ipe = deflection();
    list->setCurrentIndex(list->count() - 1);
    emit list->activated(list->count() - 1);
    QVERIFY(deflection() != ipe);
    QCOMPARE(control<QLabel>("profileName")->text(), list->currentText());
    // The figure: a click turns the stock picture into the section to scale.
    auto* figure = d->findChild<PictureBox*>("p04.pic1");
    QVERIFY(figure);
    QVERIFY(texts(v.pictures["p04.pic1"]).contains("h"));
    QTest::mouseClick(figure, Qt::LeftButton);
    QCOMPARE(d->findChildren<QGroupBox*>().last()->title().isEmpty(), false);
    QVERIFY(!texts(v.pictures["p04.pic1"]).contains("h"));
    QVERIFY(texts(v.pictures["p04.pic1"]).contains("Y"));
    if (!qEnvironmentVariableIsEmpty("VARNELT_SHOTS")) {
      QTest::qWait(20);  // the value lines just made show once the events have run
      d->grab().save(qEnvironmentVariable("VARNELT_SHOTS") + "/p04-to-scale.png");
      form->grab().save(qEnvironmentVariable("VARNELT_SHOTS") + "/main-ipe.png");
    }
  }

  void sectionButtonOpensTheDimensionDialogWhoseFieldsKeepTheirLimits() {
    auto* row = control<QToolBar>("sectionButtons");
    QAction* welded = nullptr;
    int buttons = 0;
    for (QAction* a : row->actions()) {
      if (a->objectName() == "p21i") welded = a;
      if (!a->isSeparator() && !a->objectName().isEmpty()) ++buttons;
    }
    QCOMPARE(buttons, 31);  // one for each family
    QVERIFY(welded);
    welded->trigger();
    QCOMPARE(session->state().project.ProfileType, 21);
    auto* d = qobject_cast<SectionDialog*>(form->dialog("p21"));
    QVERIFY(d);
    auto* h = d->findChild<QLineEdit*>("p21.isth");
    QVERIFY(h);
    QCOMPARE(h->text(), QString("600"));  // the stored depth of a new project
    h->setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
    type(h, "15");
    QTest::keyClick(h, Qt::Key_Return);
    QCOMPARE(warnings, QStringList{" h >= 20 "});
    QCOMPARE(QApplication::focusWidget(), h);
    QCOMPARE(session->state().project.p21.isth, 15.0f);  // stored before the test

    // The plate with a bulb flat is opened by its own button name.
    bool plate = false;
    for (QAction* a : row->actions()) plate = plate || a->objectName() == "Command2";
    QVERIFY(plate);
    // The program's picture at the end of the row opens the information form.
    QTest::mouseClick(control<QToolButton>("Picture"), Qt::LeftButton);
    QVERIFY(form->dialog("InfoVARNELT"));
  }

  // ---- the Help menu ----

  void helpPageLiesBesideTheProgram() {
    QFile page(QStringLiteral(VARNELT_BIN_DIR "/help/index.html"));
    QVERIFY2(page.open(QIODevice::ReadOnly), "bin/help/index.html was not copied beside the program");
    const QString html = QString::fromUtf8(page.readAll());
    QVERIFY(html.contains("<html"));
    // The page stands alone: nothing is fetched from elsewhere, and every picture it shows lies
    // beside it (drawn by the build).
    QVERIFY(!html.contains("http://") && !html.contains("https://"));
    const QRegularExpression src("src=\"([^\"]+)\"");
    int pictures = 0;
    for (auto it = src.globalMatch(html); it.hasNext(); ++pictures) {
      const QString file = QStringLiteral(VARNELT_BIN_DIR "/help/") + it.next().captured(1);
      QVERIFY2(QFileInfo::exists(file), qPrintable(file));
      QVERIFY2(!QImage(file).isNull(), qPrintable("can't be shown: " + file));
    }
    QVERIFY(pictures >= 4);
  }

  // Contents and Search open the pages in the program's own help window (no browser is needed);
  // the contents list the topics the manual must have, and the search finds the topics that hold
  // every word typed.
  void helpEntriesOpenTheHelpWindow() {
    for (const char* name : {"mnuhelpcont", "mnuhelpsearch", "mnuTheory"})
      QVERIFY2(form->menuAction(name)->isEnabled(), name);
    form->menuAction("mnuhelpcont")->trigger();
    HelpWindow* help = form->helpWindow();
    QVERIFY(help && help->isVisible());
    QCOMPARE(help->page(), QStringLiteral(VARNELT_BIN_DIR "/help/index.html"));
    const QStringList topics = help->headings();
    for (const char* topic :
         {"Units and sign conventions", "Main form inputs", "End supports and buckling lengths", "Loading",
          "End forces mode", "Load combinations", "National annexes", "Lateral torsional buckling",
          "The control lines", "Files", "The command line", "Departures"})
      QVERIFY2(topics.contains(topic), topic);
    QCOMPARE(help->findChild<QTabWidget*>()->currentIndex(), 0);

    form->menuAction("mnuhelpsearch")->trigger();
    QCOMPARE(form->helpWindow(), help);  // the same window, on its search
    QCOMPARE(help->findChild<QTabWidget*>()->currentIndex(), 1);
    const QStringList found = help->search("EN 1993 STRICT");
    QVERIFY(found.contains("Setup dialog") && found.contains("Departures"));
    QVERIFY(!found.contains("Loading"));
    QCOMPARE(help->sectionShown(), found.front());
    QCOMPARE(help->browser()->extraSelections().isEmpty(), false);  // the words are marked
    QCOMPARE(help->search("NORSOK 1.15"), QStringList{"National annexes"});
    QVERIFY(help->search("nosuchwordatall").isEmpty());
    // Words match at their start: "sign" is in "sign conventions", not in every "design".
    QVERIFY(help->search("sign").contains("Units and sign conventions"));
    QVERIFY(!help->search("sign").contains("Getting started"));
    QVERIFY(opened.isEmpty() && warnings.isEmpty());
  }

  void aboutShowsTheVersionAndTheIcon() {
    QWidget* about = form->openDialog("about");
    QVERIFY(about);
    auto* version = about->findChild<QLabel*>("aboutVersion");
    QVERIFY(version);
    QCOMPARE(version->text(), QStringLiteral("Version " VARNELT_VERSION));
    auto* icon = about->findChild<QLabel*>("aboutIcon");
    QVERIFY2(icon, "the icon varnelt.svg beside the data files was not shown");
  }

  void missingHelpAndManualAreToldWithTheirPaths() {
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    session->state().appPath = dir.path().toStdString();
    const QString manual = dir.path() + "/Documentation/Varnelt EC3 Theory Manual.pdf";
    form->menuAction("mnuhelpcont")->trigger();
    form->menuAction("mnuTheory")->trigger();
    QVERIFY(opened.isEmpty());
    QCOMPARE(warnings,
             (QStringList{"Help not found: " + QDir::toNativeSeparators(dir.path() + "/help/index.html"),
                          "Theory manual not found: " + QDir::toNativeSeparators(manual)}));
  }

  void theoryManualOpensWhereItIsInstalled() {
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    QVERIFY(QDir(dir.path()).mkdir("Documentation"));
    const QString manual = dir.path() + "/Documentation/Varnelt EC3 Theory Manual.pdf";
    QFile pdf(manual);
    QVERIFY(pdf.open(QIODevice::WriteOnly));
    pdf.close();
    session->state().appPath = dir.path().toStdString();
    form->menuAction("mnuTheory")->trigger();
    QCOMPARE(opened, QStringList{manual});
    QVERIFY(warnings.isEmpty());
    // A viewer that can't be started is told too.
    viewerWorks = false;
    form->menuAction("mnuTheory")->trigger();
    QCOMPARE(warnings, QStringList{"Can't open " + QDir::toNativeSeparators(manual)});
  }
};

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  std::setlocale(LC_NUMERIC, "C");
  ApplyLook(app);
  FormsTest t;
  return QTest::qExec(&t, argc, argv);
}

#include "forms_test.moc"
