// varnelt: the desktop program.
//
//   varnelt [PROJECT.vnt]
//   varnelt --screenshot PATH [PROJECT.vnt]        the main form as a PNG picture, no display needed
//   varnelt --screenshot-dialog NAME PATH [PROJECT] a dialog ("p01", "about") as a PNG picture; "help"
//                                                  the help window, "help-search=WORDS" its search
//   varnelt --screenshot-report KIND PATH [PROJECT] the printed report "section" or "stability"
//   varnelt --pdf KIND PATH [PROJECT.vnt]          the report written as a PDF, no print dialog
//   --do CONTROL[=TEXT]  fires an event before the picture is taken, as varnelt-cli does
//                        (--do p10.pic1 shows the figures to scale)
#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QPixmap>
#include <QTimer>
#include <clocale>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "core/file_actions.h"
#include "core/recalculate.h"
#include "core/startup.h"
#include "export/spreadsheet_export.h"
#include "forms/look.h"
#include "forms/main_form.h"
#include "forms/report_page.h"
#include "forms/session.h"
#include "forms/settings_store.h"

#ifndef VARNELT_VERSION
#define VARNELT_VERSION "unknown"
#endif

namespace {

const char* kUsage =
    "usage: varnelt [PROJECT.vnt]  (a missing or damaged project file ends with exit status 3)\n"
    "       varnelt --screenshot PATH [PROJECT.vnt]\n"
    "       varnelt --screenshot-dialog NAME PATH [PROJECT.vnt]   (NAME help, help-search=WORDS: the help)\n"
    "       varnelt --screenshot-report section|stability PATH [PROJECT.vnt]\n"
    "       varnelt --pdf section|stability PATH [PROJECT.vnt]\n"
    "       --do CONTROL[=TEXT] before a screenshot fires an event, e.g. --do p10.pic1 (repeatable)\n"
    "       varnelt --version\n";

// Lets the window settle: layouts, deferred events, the first paint.
void Settle() {
  for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
}

bool Save(QWidget* w, const QString& path) {
  Settle();
  QPixmap shot = w->grab();
  if (!shot.save(path, "PNG")) {
    std::fprintf(stderr, "varnelt: can't write %s\n", path.toLocal8Bit().constData());
    return false;
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  std::string shotPath, dialogName, reportKind, projectPath;
  std::vector<std::string> events;
  bool shot = false, pdf = false;
  for (int i = 1; i < argc; ++i) {
    const std::string a = argv[i];
    if (a == "--screenshot" && i + 1 < argc) {
      shot = true;
      shotPath = argv[++i];
    } else if (a == "--screenshot-dialog" && i + 2 < argc) {
      shot = true;
      dialogName = argv[++i];
      shotPath = argv[++i];
    } else if (a == "--screenshot-report" && i + 2 < argc) {
      shot = true;
      reportKind = argv[++i];
      shotPath = argv[++i];
      if (reportKind != "section" && reportKind != "stability") {
        std::fprintf(stderr, "varnelt: --screenshot-report takes section or stability\n");
        return 2;
      }
    } else if (a == "--pdf" && i + 2 < argc) {
      shot = pdf = true;  // made without a display, as a picture is
      reportKind = argv[++i];
      shotPath = argv[++i];
      if (reportKind != "section" && reportKind != "stability") {
        std::fprintf(stderr, "varnelt: --pdf takes section or stability\n");
        return 2;
      }
    } else if (a == "--do" && i + 1 < argc) {
      events.push_back(argv[++i]);
    } else if (a == "--help" || a == "-h") {
      std::fputs(kUsage, stdout);
      return 0;
    } else if (a == "--version") {
      std::fputs("varnelt " VARNELT_VERSION "\n", stdout);
      return 0;
    } else if (a == "-style" || a == "-platform") {
      ++i;  // Qt's own options with a value
    } else if (!a.empty() && a[0] == '-' && a.rfind("-style=", 0) != 0 && a.rfind("-platform=", 0) != 0) {
      std::fprintf(stderr, "varnelt: unknown option %s\n%s", a.c_str(), kUsage);
      return 2;
    } else if (!a.empty() && a[0] != '-') {
      if (!projectPath.empty()) {
        std::fprintf(stderr, "varnelt: more than one project file given\n");
        return 2;
      }
      projectPath = a;
    }
  }
  // A picture needs no display.
  if (shot && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");

  QApplication app(argc, argv);
  // The core reads and writes numbers itself; the C library stays with the point.
  std::setlocale(LC_NUMERIC, "C");
  QApplication::setApplicationName("Varnelt EC3");
  QApplication::setOrganizationName("Varnelt_ns");
  vn::forms::ApplyLook(app);

  vn::forms::Session session;
  // The recent files in the platform's per-user store; a picture or a PDF made from the command
  // line keeps the default in-memory store, so it never writes the person's list or settings.
  if (!shot) session.state().settings = std::make_shared<vn::forms::PlatformSettingsStore>();
  // The export of More Results: an .xlsx workbook, or CSV by the name.
  session.state().spreadsheet = vn::ExportDetailGrid;
  // The data files and the help beside the program, or in ../share/varnelt of an installed one.
  session.start(vn::DataFolder(QCoreApplication::applicationDirPath().toStdString()),
                vn::DetectDecimalComma());
  // The program's icon on its windows, and its desktop entry (varnelt.desktop) for the desktop.
  QApplication::setWindowIcon(QIcon(QString::fromStdString(session.state().appPath) + "/varnelt.svg"));
  QGuiApplication::setDesktopFileName("varnelt");
  vn::forms::MainForm form(&session);

  if (!projectPath.empty()) {
    const std::string path =
        QDir::current().absoluteFilePath(QString::fromStdString(projectPath)).toStdString();
    if (!vn::forms::Session::knows("mnuopen")) {
      std::fprintf(stderr, "varnelt: opening project files is not available in this build\n");
    } else {
      // A file that is missing or no project ends the program: it must not go on to show (or take
      // a picture of) the default project as if it were the file's.
      vn::FileResult result = vn::FileResult::Ok;
      vn::EventResult r = vn::OpenAction(session.state(), path, &result);
      session.refreshViews();  // the form shows the record read, as after any event
      if (r.refused || result != vn::FileResult::Ok) {
        std::fprintf(stderr, "%s\n",
                     r.refused ? r.message.c_str()
                               : ("varnelt: " + path + " is not a project file of this program").c_str());
        return 3;
      }
    }
  }

  for (const std::string& e : events) {
    const size_t eq = e.find('=');
    const std::string control = e.substr(0, eq), text = eq == std::string::npos ? "" : e.substr(eq + 1);
    if (!vn::forms::Session::knows(control)) {
      std::fprintf(stderr, "varnelt: no control %s\n", control.c_str());
      return 2;
    }
    vn::EventResult r = session.fire(control, text);
    if (r.refused) std::fprintf(stderr, "%s\n", r.message.c_str());
  }

  if (shot && !reportKind.empty()) {
    const auto kind = reportKind == "section" ? vn::ReportKind::SectionCapacity : vn::ReportKind::Stability;
    if (!session.state().resultsValid) {  // no report of an earlier run under inputs that failed
      std::fprintf(stderr, "%s\n", vn::kNoResultsText);
      return 1;
    }
    if (pdf) {
      if (vn::forms::WriteReportPdf(session.state(), kind, QString::fromStdString(shotPath)) > 0) return 0;
    } else if (vn::forms::SaveReportPicture(session.state(), kind, QString::fromStdString(shotPath))) {
      return 0;
    }
    std::fprintf(stderr, "varnelt: can't write %s\n", shotPath.c_str());
    return 3;
  }
  if (shot) {
    form.show();
    if (dialogName.empty()) return Save(&form, QString::fromStdString(shotPath)) ? 0 : 3;
    QWidget* d = form.openDialog(dialogName);
    if (!d) {
      std::fprintf(stderr, "varnelt: no dialog %s\n", dialogName.c_str());
      return 2;
    }
    return Save(d, QString::fromStdString(shotPath)) ? 0 : 3;
  }

  form.show();
  return app.exec();
}
