#include "cli/project_text.h"

#include <algorithm>
#include <sstream>

#include "core/file_actions.h"
#include "core/format.h"
#include "core/project_file.h"
#include "core/state.h"
#include "results/detail_table.h"
#include "results/summary.h"
#include "sections/section_dialogs.h"

namespace vn::cli {

namespace {

const char* kSupportNames[6] = {"simple",
                                "pinned at x=0 and fixed at x=L",
                                "fixed at both ends",
                                "spring restraint at both ends",
                                "cantilever fixed at x=0 and free at x=L",
                                "pinned at x=0 and spring at x=L"};
const char* kLoadCombTexts[6] = {"EN 1990 Eq 6.10",    "EN 1990 Eq 6.10a", "EN 1990 Eq 6.10b",
                                 "EN 1990 Eq 6.10a/b", "ULS/SLS",          "Basic loads"};
const char* kCases[3] = {"G", "Q1", "Q2"};

const char* CaseText(double c) { return c == 0 ? kCases[0] : (c == 1.0 ? kCases[1] : kCases[2]); }

}  // namespace

std::string ProjectText(const State& s) {
  const Project& p = s.project;
  std::ostringstream o;
  auto f = [&s](double v, const char* pattern) { return FormatNumber(v, pattern, s.decimalComma); };
  o << s.view.caption << "\n";
  o << "Project: " << p.projectName << "   Ident: " << p.projectIdent << "\n";
  std::string section = p.profileName;
  if (const SectionDialogInfo* d = SectionDialogOfType(p.ProfileType)) {
    auto name = s.view.text.find(std::string(d->form) + ".oname");
    if (name != s.view.text.end() && !name->second.empty()) section = name->second;
  }
  o << "Section: " << section << " (ProfileType " << p.ProfileType << ")\n";
  std::string grade = p.steelGrade >= 0 && p.steelGrade <= s.steel.gradeLast && p.steelGrade < 31
                          ? s.steel.rows[static_cast<size_t>(p.steelGrade)].name
                          : std::string("?");
  o << "Steel: " << grade << "  fyk = " << f(p.fyk, "#0") << " MPa  E = " << f(p.E, "#0") << " MPa\n";
  o << "Member: L = " << f(p.L, "#0.000") << " m  support " << p.SupportType << " ("
    << (p.SupportType >= 0 && p.SupportType <= 5 ? kSupportNames[p.SupportType] : "?") << ")"
    << "  buckling factors y " << f(p.bucklingFactorY, "#0.00") << ", z " << f(p.bucklingFactorZ, "#0.00")
    << "\n";
  if (p.AnalysisMode == 1) {
    o << "Loading (beam mode), combination "
      << (p.LoadCombMode >= 0 && p.LoadCombMode <= 5 ? kLoadCombTexts[p.LoadCombMode] : "?") << ":\n";
    for (int i = 1; i <= 3; ++i) {
      const AxialLoad& a = s.loads.axial[i];
      if (a.N != 0) o << "  N = " << f(a.N, "#0.0") << " kN (" << CaseText(a.Case) << ")\n";
    }
    for (int i = 1; i <= 4; ++i) {
      const UniformLoad& u = s.loads.uniform[i];
      if (u.q != 0)
        o << "  q = " << f(u.q, "#0.0") << " kN/m " << (u.Dir == 1 ? "Z" : "Y") << " (" << CaseText(u.Case)
          << ")\n";
    }
    for (int i = 1; i <= 3; ++i) {
      const TrapezoidLoad& t = s.loads.trapezoid[i];
      if (t.q1 != 0 || t.q2 != 0)
        o << "  trapezoid q1 = " << f(t.q1, "#0.0") << ", q2 = " << f(t.q2, "#0.0")
          << " kN/m from x = " << f(t.x1, "#0.000") << " to " << f(t.x2, "#0.000") << " m "
          << (t.Dir == 1 ? "Z" : "Y") << " (" << CaseText(t.Case) << ")\n";
    }
    for (int i = 1; i <= 8; ++i) {
      const PointLoad& pt = s.loads.point[i];
      if (pt.Value != 0)
        o << "  " << (pt.Kind == 0 ? "P = " : "M = ") << f(pt.Value, "#0.0")
          << (pt.Kind == 0 ? " kN" : " kNm") << " at x = " << f(pt.x, "#0.000") << " m (" << CaseText(pt.Case)
          << ")\n";
    }
  } else {
    o << "End forces: N = " << f(p.NEndForce, "#0.0") << " kN, My = " << f(p.My12[1], "#0.0") << " / "
      << f(p.My12[2], "#0.0") << " kNm, Vz = " << f(p.Vz12[1], "#0.0") << " / " << f(p.Vz12[2], "#0.0")
      << " kN, Mz = " << f(p.Mz12[1], "#0.0") << " / " << f(p.Mz12[2], "#0.0")
      << " kNm, Vy = " << f(p.Vy12[1], "#0.0") << " / " << f(p.Vy12[2], "#0.0") << " kN\n";
  }
  std::string summary = SummaryText(s);
  if (!summary.empty()) o << "\n" << summary;
  return o.str();
}

std::string DetailText(const State& s) {
  // The rows down to the last one with text, in columns as wide as their widest cell; the values
  // to the right so that their decimal signs line up, a rule under the header. A value wider than
  // kValueWidth (NcrTF is 1E+25 where the section has no such mode) overruns its own line only.
  constexpr size_t kValueWidth = 12;
  const DetailTable t = MakeDetailTable(s);
  size_t last = 0;
  for (size_t r = 0; r < t.rows.size(); ++r)
    for (const std::string& cell : t.rows[r])
      if (!cell.empty()) last = r;
  size_t width[kDetailColumns] = {};
  for (size_t r = 0; r <= last; ++r)
    for (size_t c = 0; c < kDetailColumns; ++c) width[c] = std::max(width[c], t.rows[r][c].size());
  width[1] = std::min(width[1], kValueWidth);

  std::string out;
  for (size_t r = 0; r <= last; ++r) {
    const DetailRow& row = t.rows[r];
    std::string line = row[0] + std::string(width[0] - row[0].size(), ' ') + "  " +
                       std::string(width[1] - std::min(width[1], row[1].size()), ' ') + row[1] + "  " +
                       row[2] + std::string(width[2] - row[2].size(), ' ') + "  " + row[3];
    line.erase(line.find_last_not_of(' ') + 1);
    out += line + "\n";
    if (r == 0) out += std::string(width[0] + width[1] + width[2] + width[3] + 6, '-') + "\n";
  }
  return out;
}

namespace {

// The file-action message as the desktop program shows it, then the path and the system's reason.
std::string FileActionError(const EventResult& r) {
  return r.fileError.empty() ? r.message : r.message + "\nvarnelt-cli: " + r.fileError;
}

}  // namespace

bool OpenProject(State& s, const std::string& path, std::string* error) {
  FileResult result = FileResult::Ok;
  EventResult r = OpenAction(s, path, &result);
  if (r.refused) {
    *error = FileActionError(r);
    return false;
  }
  // The form ends such a read silently; a script must not go on with the default project.
  if (result != FileResult::Ok) {
    *error = "varnelt-cli: " + path + " is not a project file of this program";
    return false;
  }
  return true;
}

bool SaveProject(State& s, const std::string& path, std::string* error) {
  EventResult r = SaveAsAction(s, path);
  if (r.refused) *error = FileActionError(r);
  return !r.refused;
}

}  // namespace vn::cli
