// varnelt-cli: the system without forms. Starts as the program does, fires events by control name,
// and prints the state, the summary or the project.
//
//   varnelt-cli [PROJECT.vnt] [--do CONTROL[=TEXT]]... [--json | --summary | --detail] [--save PATH]
//               [--xlsx PATH] [--csv PATH] [--svg DIR]
//
// Exit status: 0 done; 2 an event was refused; 3 a file error; 1 the last run ended in the
// calculation error.
#include <unistd.h>
#include <ctime>

#include <climits>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "cli/project_text.h"
#include "core/events.h"
#include "core/json.h"
#include "core/safe_file.h"
#include "core/startup.h"
#include "core/state.h"
#include "export/spreadsheet_export.h"
#include "graphics/canvas.h"
#include "results/detail_table.h"
#include "results/report.h"
#include "results/summary.h"

namespace {

const char* kUsage =
    "usage: varnelt-cli [PROJECT.vnt] [options]\n"
    "  --do CONTROL[=TEXT]  fire one event of a form control, e.g. --do il=6,0 --do cbutt2\n"
    "                       --do p04.cbo=9 --do \"Loading.iq(1)=12\" (repeatable, run in order)\n"
    "  --json               print the whole state as JSON\n"
    "  --summary            print the summary of controls\n"
    "  --detail             print the table of detailed results\n"
    "  --report KIND        print the report \"section\" (Section Property and Capacity) or\n"
    "                       \"stability\" (Section and Stability Control) as text\n"
    "  --save PATH          save the project to PATH\n"
    "  --xlsx PATH          write the table of detailed results to an .xlsx workbook\n"
    "  --csv PATH           write the table of detailed results as comma-separated text\n"
    "  --svg DIR            write every picture drawn (charts, figures) as DIR/<name>.svg\n"
    "  --decimal-comma      parse and print numbers as a decimal-comma locale does\n"
    "  --decimal-point      parse and print numbers as a decimal-point locale does\n"
    "  --data DIR           read the data files from DIR instead of the program's folder\n"
    "  --controls           list the names of all controls\n"
    "  --help               this text\n";

std::string ProgramFolder(const char* argv0) {
  char buf[PATH_MAX];
  ssize_t n = readlink("/proc/self/exe", buf, sizeof buf - 1);
  std::string path = n > 0 ? std::string(buf, static_cast<size_t>(n)) : std::string(argv0);
  auto slash = path.rfind('/');
  return slash == std::string::npos ? std::string(".") : path.substr(0, slash);
}

// The size in pixels a picture is written at: about the size of its box on the forms.
std::pair<double, double> PictureSize(const std::string& name) {
  if (name.rfind("Pic", 0) == 0) return {420, 220};
  if (name == "pic11") return {300, 54};
  if (name == "pic_vipp") return {60, 24};
  if (name == "pic_loadlevel") return {40, 40};
  return {220, 220};  // the section figures and Picture4 are square
}

// Writes each picture as DIR/<name>.svg; false with a message when the folder can't be written.
bool WritePictures(const vn::State& s, const std::string& dir, std::string* error) {
  std::error_code ec;
  std::filesystem::create_directories(dir, ec);
  for (const auto& [name, drawing] : s.view.pictures) {
    const auto [w, h] = PictureSize(name);
    vn::draw::SvgCanvas svg(w, h);
    vn::draw::Replay(drawing, svg);
    const std::string path = (std::filesystem::path(dir) / (name + ".svg")).string();
    std::string reason;
    if (!vn::ReplaceFile(path, svg.Svg(), &reason)) {
      *error = "varnelt-cli: cannot write '" + path + "': " + reason;
      return false;
    }
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  std::string projectPath, savePath, dataDir, svgDir;
  std::optional<std::string> xlsxPath, csvPath;  // given, even empty: written (or refused)
  std::vector<std::string> events;
  enum class Out { Project, Json, Summary, Detail, Report, Controls } out = Out::Project;
  vn::ReportKind reportKind = vn::ReportKind::SectionCapacity;
  int decimal = -1;  // -1 from the locale
  for (int i = 1; i < argc; ++i) {
    std::string a = argv[i];
    auto next = [&](const char* what) -> std::string {
      if (i + 1 >= argc) {
        std::cerr << "varnelt-cli: " << a << " needs " << what << "\n" << kUsage;
        std::exit(2);
      }
      return argv[++i];
    };
    if (a == "--do")
      events.push_back(next("CONTROL[=TEXT]"));
    else if (a.rfind("--do=", 0) == 0)
      events.push_back(a.substr(5));
    else if (a == "--json")
      out = Out::Json;
    else if (a == "--summary")
      out = Out::Summary;
    else if (a == "--detail")
      out = Out::Detail;
    else if (a == "--controls")
      out = Out::Controls;
    else if (a == "--report") {
      const std::string kind = next("section or stability");
      if (kind != "section" && kind != "stability") {
        std::cerr << "varnelt-cli: --report takes section or stability, not " << kind << "\n";
        return 2;
      }
      out = Out::Report;
      reportKind = kind == "section" ? vn::ReportKind::SectionCapacity : vn::ReportKind::Stability;
    } else if (a == "--save")
      savePath = next("PATH");
    else if (a == "--xlsx")
      xlsxPath = next("PATH");
    else if (a == "--csv")
      csvPath = next("PATH");
    else if (a == "--data")
      dataDir = next("DIR");
    else if (a == "--svg")
      svgDir = next("DIR");
    else if (a == "--decimal-comma")
      decimal = 1;
    else if (a == "--decimal-point")
      decimal = 0;
    else if (a == "--help" || a == "-h") {
      std::cout << kUsage;
      return 0;
    } else if (!a.empty() && a[0] == '-') {
      std::cerr << "varnelt-cli: unknown option " << a << "\n" << kUsage;
      return 2;
    } else if (projectPath.empty()) {
      projectPath = a;
    } else {
      std::cerr << "varnelt-cli: more than one project file given\n";
      return 2;
    }
  }

  if (out == Out::Controls) {
    for (const std::string& n : vn::Controls().Names()) std::cout << n << "\n";
    return 0;
  }

  vn::State s;
  const bool comma = decimal < 0 ? vn::DetectDecimalComma() : decimal == 1;
  vn::StartUp(s, dataDir.empty() ? ProgramFolder(argv[0]) : dataDir, comma);
  s.spreadsheet = vn::ExportDetailGrid;  // the export button of More Results

  if (!projectPath.empty()) {
    std::string error;
    if (!vn::cli::OpenProject(s, projectPath, &error)) {
      std::cerr << error << "\n";
      return 3;
    }
  }

  for (const std::string& e : events) {
    auto eq = e.find('=');
    std::string control = e.substr(0, eq);
    std::string text = eq == std::string::npos ? std::string() : e.substr(eq + 1);
    vn::EventResult r = vn::Fire(s, control, text);
    if (!r.known) {
      std::cerr << "varnelt-cli: unknown control '" << control << "'\n";
      return 2;
    }
    if (r.refused) {
      std::cerr << r.message << "\n";
      // A file action that failed (a save, "Save as default", the export): the path and the reason.
      if (!r.fileError.empty()) {
        std::cerr << "varnelt-cli: " << r.fileError << "\n";
        return 3;
      }
      return 2;
    }
  }

  if (!savePath.empty()) {
    std::string error;
    if (!vn::cli::SaveProject(s, savePath, &error)) {
      std::cerr << error << "\n";
      return 3;
    }
  }

  // After a failed run there are no results: the summary, the tables and the reports give the
  // message alone, and no file is written.
  const bool wantsResults =
      xlsxPath || csvPath || out == Out::Summary || out == Out::Detail || out == Out::Report;
  if (wantsResults && !s.resultsValid) {
    std::cerr << s.view.txtError << "\n";
    return 1;
  }

  // The table of detailed results as the dialog shows it after the events, then written out.
  if (xlsxPath || csvPath) {
    vn::BuildDetailTable(s);
    std::string error;
    const bool written =
        (!xlsxPath || vn::WriteDetailXlsx(s.view.detailGrid, s.view.detailGridBold, *xlsxPath, &error)) &&
        (!csvPath || vn::WriteDetailCsv(s.view.detailGrid, *csvPath, &error));
    if (!written) {
      std::cerr << "varnelt-cli: " << error << "\n";
      return 3;
    }
  }

  if (!svgDir.empty()) {
    std::string error;
    if (!WritePictures(s, svgDir, &error)) {
      std::cerr << error << "\n";
      return 3;
    }
  }

  switch (out) {
    case Out::Json: std::cout << vn::StateToJson(s) << "\n"; break;
    case Out::Summary: std::cout << vn::SummaryText(s); break;
    case Out::Detail: std::cout << vn::cli::DetailText(s); break;
    case Out::Report: {
      const std::time_t now = std::time(nullptr);
      char date[16], clock[16];
      std::strftime(date, sizeof date, "%d.%m.%Y", std::localtime(&now));
      std::strftime(clock, sizeof clock, "%H:%M:%S", std::localtime(&now));
      std::cout << vn::ReportText(vn::BuildReport(s, reportKind, date, clock));
      break;
    }
    case Out::Project: std::cout << vn::cli::ProjectText(s); break;
    case Out::Controls: break;
  }
  return s.view.txtErrorVisible ? 1 : 0;
}
