// varnelt-cli: the system without forms. Starts as the program does, fires events by control name,
// and prints the state, the summary or the project. kUsage below is the manual.
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

#include "cli/cli_controls.h"
#include "cli/project_text.h"
#include "core/events.h"
#include "core/file_actions.h"
#include "core/format.h"
#include "core/json.h"
#include "core/project_file.h"
#include "core/safe_file.h"
#include "core/startup.h"
#include "core/state.h"
#include "export/spreadsheet_export.h"
#include "graphics/canvas.h"
#include "members/batch.h"
#include "members/lightest.h"
#include "results/detail_table.h"
#include "results/report.h"
#include "results/summary.h"
#include "sections/section_dialogs.h"

#ifndef VARNELT_VERSION
#define VARNELT_VERSION "unknown"
#endif

namespace {

const char* kUsage =
    "usage: varnelt-cli [PROJECT.vnt] [--do CONTROL[=TEXT]]... [OUTPUT]... [FILES]\n"
    "\n"
    "Starts as the desktop program does (a new project, the data files of its own folder), opens\n"
    "PROJECT.vnt if given, fires the events in the order given, then prints the outputs asked for,\n"
    "in the order given. With no output asked for it prints the project: the member, its loading\n"
    "and the summary of controls.\n"
    "\n"
    "Events:\n"
    "  --do CONTROL[=TEXT]  fire one event of a form control (repeatable, run in order):\n"
    "                       a field with the text typed (--do il=6.5, --do \"Loading.iq(1)=12\"),\n"
    "                       a button or menu entry (--do cbutt2, --do mnup04), a check box with\n"
    "                       1 or 0, a list with the index of its entry, counted from 0, or the\n"
    "                       entry's text (--do cbofyk=2 or --do cbofyk=S275, --do p04.cbo=\"IPE 360\").\n"
    "                       Controls of a dialog are dialog.control, slots of an array control(i).\n"
    "Outputs (several may be given; each is printed once, in the order given):\n"
    "  --json               the whole state as JSON\n"
    "  --summary            the summary of controls\n"
    "  --detail             the table of detailed results (More Results)\n"
    "  --report KIND        the printed report as text: section (Section Property and Capacity)\n"
    "                       or stability (Section and Stability Control)\n"
    "  --project            the project as text (what is printed when no output is asked for)\n"
    "  --controls           every control with its kind, dialog, its caption as the form shows\n"
    "                       it, its frame and tip, and for a field its unit, the limits it tests and\n"
    "                       its message (with --json as JSON); a list's entries are given by --do\n"
    "                       with a text it does not hold\n"
    "  --lightest FAMILIES  the lightest sections that pass: every row of the families is run on a\n"
    "                       copy of the member as it stands after the events, and the rows whose\n"
    "                       every ratio is within the limit are listed by mass (kg/m) with the\n"
    "                       governing ratio and control (with --json as JSON); the project is not\n"
    "                       changed. FAMILIES: names or numbers, comma separated: HEA (1), HEB (2),\n"
    "                       HEM (3), IPE (4), INP (15), UPE (5), UNP (16), SHS (6), RHS (7),\n"
    "                       CFSHS (8), CFRHS (9), L-equal (10), L-unequal (11), UB, UC, UBP (101),\n"
    "                       J (102), PFC, CH (103), or all\n"
    "Many members:\n"
    "  --batch FILE         run many members, one line each: FILE is a project file (.vnt), a list\n"
    "                       of project files (one path a line), or a CSV of members whose header\n"
    "                       names the columns (see README.md: member, family, section, grade, L,\n"
    "                       support, ky, kz, ltb, loads N_G N_Q qz_G qz_Q qy_G qy_Q or end forces\n"
    "                       NEd My1 My2 Vz1 Vz2 Mz1 Mz2 Vy1 Vy2); prints a line per member with\n"
    "                       its governing ratio, verdict and control; a bad line or file is named\n"
    "                       on stderr with its line number and the others run all the same.\n"
    "                       --csv and --xlsx write the table of the members\n"
    "  --threads N          worker threads of --lightest and --batch (default: all cores)\n"
    "Files:\n"
    "  --save PATH          save the project to PATH\n"
    "  --xlsx PATH          write the table of detailed results as an .xlsx workbook\n"
    "  --csv PATH           write the table of detailed results as comma-separated text\n"
    "  --svg DIR            write every picture on show (charts, figures) as DIR/<name>.svg\n"
    "Settings:\n"
    "  --decimal-comma      read and print numbers with a decimal comma (default: the locale's)\n"
    "  --decimal-point      read and print numbers with a decimal point\n"
    "  --data DIR           read the data files from DIR instead of the program's folder\n"
    "                       (or ../share/varnelt beside it, where the program is installed)\n"
    "  --help, --version\n"
    "\n"
    "Exit status:\n"
    "  0  done\n"
    "  1  the calculation ended in its error message; the results are not printed\n"
    "  2  an event was refused (its message on stderr, the later events not run), an unknown\n"
    "     control or option, or a list text that names no entry\n"
    "  3  a file error: a project file missing or not a project, a data file missing or\n"
    "     unreadable, a file that can't be written, the --batch file unreadable or empty\n"
    "  4  --lightest: no row passes; --batch: a member is NOT OK or its run ended in the\n"
    "     calculation error (all lines read)\n"
    "  5  --batch: a line or project file could not be read (the others were run)\n"
    "\n"
    "Examples:\n"
    "  A beam: IPE 360 in S275, 6.5 m, simply supported, 12 kN/m and no axial force; the summary\n"
    "  and the detailed results\n"
    "    varnelt-cli --do mnup04 --do p04.cbo=\"IPE 360\" --do cbofyk=S275 --do il=6.5 \\\n"
    "                --do \"Loading.iq(1)=12\" --do \"Loading.inn(1)=0\" --summary --detail\n"
    "  A column: HEB 200, 4 m, 800 kN, no lateral load, fixed at both ends; the state as JSON\n"
    "    varnelt-cli --do mnup02 --do p02.cbo=HEB200 --do il=4 --do cbutt2 \\\n"
    "                --do \"Loading.inn(1)=800\" --do \"Loading.iq(1)=0\" --json\n"
    "  A project file, its stability report, its table exported to a workbook\n"
    "    varnelt-cli beam.vnt --report stability --xlsx beam.xlsx\n"
    "  The lightest IPE or HEA that carries the member of a project file\n"
    "    varnelt-cli beam.vnt --lightest IPE,HEA\n"
    "  A CSV of members, the results written to a workbook\n"
    "    varnelt-cli --batch members.csv --xlsx members.xlsx\n";

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

// Writes each picture on show as DIR/<name>.svg; false with a message when one can't be written.
// Only the current family's section figure is written (a figure drawn for an earlier section is
// no longer on show), and a chart with nothing drawn gives a note on stderr instead of an empty file.
bool WritePictures(const vn::State& s, const std::string& dir, std::string* error) {
  std::error_code ec;
  std::filesystem::create_directories(dir, ec);
  const vn::SectionDialogInfo* current = vn::SectionDialogOfType(s.project.ProfileType);
  for (const auto& [name, drawing] : s.view.pictures) {
    if (const auto dot = name.find('.'); dot != std::string::npos &&
                                         vn::SectionDialogOfForm(name.substr(0, dot)) &&
                                         (!current || name.substr(0, dot) != current->form))
      continue;
    if (drawing.empty()) {
      std::cerr << "varnelt-cli: " << name << " has nothing to show; no file written\n";
      continue;
    }
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

enum class Out { Project, Json, Summary, Detail, Report, Controls };
struct Output {
  Out kind;
  vn::ReportKind report = vn::ReportKind::SectionCapacity;
};

std::string ReportNow(const vn::State& s, vn::ReportKind kind) {
  const std::time_t now = std::time(nullptr);
  char date[16], clock[16];
  std::strftime(date, sizeof date, "%d.%m.%Y", std::localtime(&now));
  std::strftime(clock, sizeof clock, "%H:%M:%S", std::localtime(&now));
  return vn::ReportText(vn::BuildReport(s, kind, date, clock));
}

}  // namespace

int main(int argc, char** argv) {
  std::string projectPath, savePath, dataDir, svgDir;
  std::optional<std::string> xlsxPath, csvPath;  // given, even empty: written (or refused)
  std::vector<std::string> events;
  std::vector<Output> outputs;
  bool controls = false;
  std::optional<std::string> lightest, batchFile;
  int threads = 0;   // 0: all cores
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
      outputs.push_back({Out::Json});
    else if (a == "--summary")
      outputs.push_back({Out::Summary});
    else if (a == "--detail")
      outputs.push_back({Out::Detail});
    else if (a == "--project")
      outputs.push_back({Out::Project});
    else if (a == "--controls")
      controls = true;
    else if (a == "--lightest")
      lightest = next("FAMILIES");
    else if (a == "--batch")
      batchFile = next("FILE");
    else if (a == "--threads") {
      const std::string n = next("N");
      char* end = nullptr;
      const long v = std::strtol(n.c_str(), &end, 10);
      if (n.empty() || *end != '\0' || v < 0 || v > 256) {
        std::cerr << "varnelt-cli: --threads takes a number of threads from 0 (all cores) to 256, not " << n
                  << "\n";
        return 2;
      }
      threads = static_cast<int>(v);
    } else if (a == "--report") {
      const std::string kind = next("section or stability");
      if (kind != "section" && kind != "stability") {
        std::cerr << "varnelt-cli: --report takes section or stability, not " << kind << "\n";
        return 2;
      }
      outputs.push_back(
          {Out::Report, kind == "section" ? vn::ReportKind::SectionCapacity : vn::ReportKind::Stability});
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
    } else if (a == "--version") {
      std::cout << "varnelt-cli " VARNELT_VERSION "\n";
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
  // --batch runs the members of its file and nothing else; --lightest prints its list alone (or
  // with --json as JSON), after the project and the events that make the member.
  if (batchFile && (!projectPath.empty() || !events.empty() || !outputs.empty() || controls || lightest ||
                    !savePath.empty() || !svgDir.empty())) {
    std::cerr << "varnelt-cli: --batch runs the members of its file alone (with --csv, --xlsx, --threads, "
                 "--data and the decimal sign)\n";
    return 2;
  }
  bool lightestJson = false;
  std::vector<const vn::CatalogueFamily*> families;
  if (lightest) {
    for (const Output& o : outputs) {
      if (o.kind != Out::Json || controls || xlsxPath || csvPath || !svgDir.empty()) {
        std::cerr << "varnelt-cli: --lightest prints its list alone (or with --json as JSON); run the other "
                     "outputs separately\n";
        return 2;
      }
      lightestJson = true;
    }
    if (controls || xlsxPath || csvPath || !svgDir.empty()) {
      std::cerr << "varnelt-cli: --lightest prints its list alone (or with --json as JSON); run the other "
                   "outputs separately\n";
      return 2;
    }
    std::string error;
    if (!vn::ParseFamilies(*lightest, &families, &error)) {
      std::cerr << "varnelt-cli: " << error << "\n";
      return 2;
    }
    outputs.clear();
  }

  // --controls prints the listing, as text or (with --json) as JSON; other outputs beside it
  // would be lost in it, so they are refused.
  if (controls) {
    bool json = false;
    for (const Output& o : outputs) {
      if (o.kind != Out::Json) {
        std::cerr << "varnelt-cli: --controls prints the controls alone (or with --json as JSON); "
                     "run the other outputs separately\n";
        return 2;
      }
      json = true;
    }
    outputs = {{Out::Controls}};
    if (json) outputs.push_back({Out::Json});  // marks the JSON form of the listing
  }
  if (outputs.empty() && !controls && !lightest && !batchFile) outputs.push_back({Out::Project});

  // The data files beside the program, or in ../share/varnelt of an installed one.
  const std::string dataFolder = dataDir.empty() ? vn::DataFolder(ProgramFolder(argv[0])) : dataDir;
  if (const auto problems = vn::cli::DataFileProblems(dataFolder); !problems.empty()) {
    for (const std::string& p : problems) std::cerr << "varnelt-cli: " << p << "\n";
    return 3;
  }

  vn::State s;
  const bool comma = decimal < 0 ? vn::DetectDecimalComma() : decimal == 1;
  vn::StartUp(s, dataFolder, comma);
  s.spreadsheet = vn::ExportDetailGrid;  // the export button of More Results

  if (batchFile) {
    const vn::BatchResult r = vn::RunBatch(s, *batchFile, threads);
    if (!r.fileError.empty()) {
      std::cerr << "varnelt-cli: " << r.fileError << "\n";
      return 3;
    }
    for (const vn::BatchEntry& e : r.entries)
      if (!e.error.empty())
        std::cerr << "varnelt-cli: " << e.source
                  << (e.line > 0 ? ":" + std::to_string(e.line) : std::string()) << ": " << e.member << ": "
                  << e.error << "\n";
    std::cout << vn::BatchText(r, s.decimalComma);
    if (xlsxPath || csvPath) {
      const auto table = vn::BatchTable(r, s.decimalComma);
      std::string error;
      const bool written = (!xlsxPath || vn::WriteTableXlsx(table, {24, 6, 16, 20, 10, 8, 8, 11, 60}, {},
                                                            *xlsxPath, &error)) &&
                           (!csvPath || vn::WriteTableCsv(table, *csvPath, &error));
      if (!written) {
        std::cerr << "varnelt-cli: " << error << "\n";
        return 3;
      }
    }
    return r.bad > 0 ? 5 : r.notOk > 0 ? 4 : 0;
  }

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
    std::string error;
    if (!vn::cli::ResolveEventText(s, control, &text, &error)) {
      std::cerr << error << "\n";
      return 2;
    }
    if (const std::string w = vn::cli::NumberWarning(s, control, text); !w.empty()) std::cerr << w << "\n";
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

  if (lightest) {
    const vn::LightestResult r = vn::FindLightest(s, families, threads);
    const double limit = s.analysis.IRlimit;
    std::cout << (lightestJson ? vn::LightestJson(r, families, limit) + "\n"
                               : vn::LightestText(r, families, limit, s.decimalComma));
    return r.passing.empty() ? 4 : 0;
  }

  if (controls) {
    std::cout << (outputs.size() > 1 ? vn::cli::ControlsJson(s) + "\n" : vn::cli::ControlsText(s));
    return 0;
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
  bool wantsResults = xlsxPath || csvPath;
  for (const Output& o : outputs)
    if (o.kind == Out::Summary || o.kind == Out::Detail || o.kind == Out::Report) wantsResults = true;
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

  for (const Output& o : outputs) {
    switch (o.kind) {
      case Out::Json: std::cout << vn::StateToJson(s) << "\n"; break;
      case Out::Summary: std::cout << vn::SummaryText(s); break;
      case Out::Detail: std::cout << vn::cli::DetailText(s); break;
      case Out::Report: std::cout << ReportNow(s, o.report); break;
      case Out::Project: std::cout << vn::cli::ProjectText(s); break;
      case Out::Controls: break;
    }
  }
  return s.view.txtErrorVisible ? 1 : 0;
}
