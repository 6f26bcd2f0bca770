#include "members/batch.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <unordered_map>

#include "core/csv.h"
#include "core/events.h"
#include "core/file_actions.h"
#include "core/format.h"
#include "core/safe_file.h"
#include "core/state.h"
#include "design/design_basis.h"
#include "members/lightest.h"
#include "members/parallel.h"

namespace vn {

namespace {

// A batch file of 100 000 members is some 10 MB; anything far beyond is something else.
constexpr std::size_t kBatchFileLimit = 256u << 20;

std::string Key(std::string_view text) {
  std::string k;
  for (char c : text)
    if (c != ' ' && c != '\t') k += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return k;
}

std::string Trim(std::string_view t) {
  size_t a = 0, b = t.size();
  while (a < b && (t[a] == ' ' || t[a] == '\t' || t[a] == '\r')) ++a;
  while (b > a && (t[b - 1] == ' ' || t[b - 1] == '\t' || t[b - 1] == '\r')) --b;
  return std::string(t.substr(a, b - a));
}

// The cells of a line, each trimmed.
std::vector<std::string> Cells(std::string_view line, char sep) {
  std::vector<std::string> cells = SplitCsvCells(line, sep);
  for (std::string& c : cells) c = Trim(c);
  return cells;
}

enum Column {
  colMember,
  colFamily,
  colSection,
  colGrade,
  colL,
  colSupport,
  colKy,
  colKz,
  colLtb,
  colNG,
  colNQ,
  colQzG,
  colQzQ,
  colQyG,
  colQyQ,
  colNEd,
  colMy1,
  colMy2,
  colVz1,
  colVz2,
  colMz1,
  colMz2,
  colVy1,
  colVy2,
  colCount
};

constexpr const char* kColumnNames[colCount] = {
    "member", "family", "section", "grade", "L",   "support", "ky",  "kz",  "ltb", "N_G", "N_Q", "qz_G",
    "qz_Q",   "qy_G",   "qy_Q",    "NEd",   "My1", "My2",     "Vz1", "Vz2", "Mz1", "Mz2", "Vy1", "Vy2"};

bool IsLoadColumn(int c) { return c >= colNG && c <= colQyQ; }
bool IsEndForceColumn(int c) { return c >= colNEd && c <= colVy2; }

// One member of the CSV, read and checked; applied to a State by Apply.
struct MemberSpec {
  const CatalogueFamily* family = nullptr;
  int row = 0;
  int grade = -1;  // -1: the setup's grade
  Single L = 0;
  int support = 0;
  std::optional<Single> ky, kz;
  int ltb = -1;  // -1 as a new project has it
  bool endForces = false;
  std::array<Single, colCount> value{};  // the loads or end forces, by column
};

struct ParsedLine {
  int line = 0;
  std::string member;
  std::string section, grade;
  MemberSpec spec;
  std::string error;
};

class CsvReader {
 public:
  CsvReader(const State& started) : started_(started) {}

  // The header: false with the message when a column is unknown or a required one is missing.
  bool Header(const std::string& line, std::string* error) {
    sep_ = line.find(';') != std::string::npos ? ';' : ',';
    const std::vector<std::string> cells = Cells(line, sep_);
    index_.assign(cells.size(), -1);
    std::array<bool, colCount> seen{};
    for (size_t i = 0; i < cells.size(); ++i) {
      int found = -1;
      for (int c = 0; c < colCount; ++c)
        if (Key(cells[i]) == Key(kColumnNames[c])) found = c;
      if (found < 0) {
        *error = "unknown column \"" + cells[i] + "\"; the columns are";
        for (const char* n : kColumnNames) *error += std::string(" ") + n;
        return false;
      }
      if (seen[static_cast<size_t>(found)]) {
        *error = "column \"" + cells[i] + "\" given twice";
        return false;
      }
      seen[static_cast<size_t>(found)] = true;
      index_[i] = found;
    }
    for (int c : {colFamily, colSection, colL}) {
      if (!seen[static_cast<size_t>(c)]) {
        *error = std::string("the column \"") + kColumnNames[c] + "\" is missing";
        return false;
      }
    }
    return true;
  }

  ParsedLine Line(const std::string& text, int lineNumber) {
    ParsedLine out;
    out.line = lineNumber;
    out.member = "line " + std::to_string(lineNumber);
    const std::vector<std::string> cells = Cells(text, sep_);
    if (cells.size() > index_.size()) {
      out.error = std::to_string(cells.size()) + " cells, the header names " + std::to_string(index_.size());
      return out;
    }
    std::array<std::string, colCount> cell;
    for (size_t i = 0; i < cells.size(); ++i) cell[static_cast<size_t>(index_[i])] = cells[i];
    auto at = [&cell](int c) -> const std::string& { return cell[static_cast<size_t>(c)]; };
    if (!at(colMember).empty()) out.member = at(colMember);
    MemberSpec& m = out.spec;

    // Numbers, each checked; the first failure is the line's message.
    auto number = [&](int c, double* v) {
      if (!out.error.empty()) return false;
      std::string t = at(c);
      if (sep_ == ';') std::replace(t.begin(), t.end(), ',', '.');
      if (!t.empty() && t[0] == '+') t.erase(0, 1);
      const auto [end, ec] = std::from_chars(t.data(), t.data() + t.size(), *v);
      if (t.empty() || ec != std::errc() || end != t.data() + t.size() || !std::isfinite(*v) ||
          std::fabs(*v) > 1e30) {
        out.error = std::string(kColumnNames[c]) + " \"" + at(c) + "\" is no number";
        return false;
      }
      return true;
    };

    m.family = FamilyByName(at(colFamily));
    if (!m.family) {
      out.error = at(colFamily).empty() ? "no family" : "no catalogue family \"" + at(colFamily) + "\"";
      return out;
    }
    const int row = SectionRow(*m.family, at(colSection));
    if (row < 0) {
      out.error = "no section \"" + at(colSection) + "\" in the table of " + m.family->name;
      return out;
    }
    m.row = row;
    out.section = CatalogueListText(started_.catalogues, m.family->table, row);
    if (!at(colGrade).empty()) {
      m.grade = GradeRow(at(colGrade));
      if (m.grade < 0) {
        out.error = "no steel grade \"" + at(colGrade) + "\"";
        return out;
      }
    }
    const int grade = m.grade >= 0 ? m.grade : started_.project.steelGrade;
    out.grade = grade >= 0 && grade <= started_.steel.gradeLast
                    ? started_.steel.rows[static_cast<size_t>(grade)].name
                    : std::string();
    double v = 0;
    if (!number(colL, &v)) return out;
    if (v < 0.05) {
      out.error = "L = " + at(colL) + ": L >= 0.050";
      return out;
    }
    m.L = static_cast<Single>(v);
    if (!at(colSupport).empty()) {
      if (!number(colSupport, &v)) return out;
      if (v != std::floor(v) || v < 0 || v > 5) {
        out.error = "support \"" + at(colSupport) + "\" is none of 0 to 5";
        return out;
      }
      m.support = static_cast<int>(v);
    }
    for (int c : {colKy, colKz}) {
      if (at(c).empty()) continue;
      if (!number(c, &v)) return out;
      if (v < 0.2) {
        out.error = std::string(kColumnNames[c]) + " = " + at(c) + ": a buckling length factor >= 0.2";
        return out;
      }
      (c == colKy ? m.ky : m.kz) = static_cast<Single>(v);
    }
    if (!at(colLtb).empty()) {
      if (at(colLtb) != "0" && at(colLtb) != "1") {
        out.error = "ltb \"" + at(colLtb) + "\" is neither 1 nor 0";
        return out;
      }
      m.ltb = at(colLtb) == "1" ? 1 : 0;
    }
    bool loads = false;
    for (int c = colNG; c < colCount; ++c) {
      if (at(c).empty()) continue;
      if (!number(c, &v)) return out;
      m.value[static_cast<size_t>(c)] = static_cast<Single>(v);
      if (IsLoadColumn(c)) loads = true;
      if (IsEndForceColumn(c)) m.endForces = true;
    }
    if (loads && m.endForces) {
      out.error = "both loads and end forces given: a member takes one or the other";
      return out;
    }
    if (m.endForces && m.support != 0) {
      out.error =
          "support " + at(colSupport) + " with end forces: a member given by its end forces has supports 0";
      return out;
    }
    return out;
  }

 private:
  int SectionRow(const CatalogueFamily& f, const std::string& text) {
    auto& keys = rows_[f.table];
    if (keys.empty()) {
      for (int r = 0; r < CatalogueInfo(f.table).rows; ++r) {
        try {
          keys.emplace(Key(CatalogueListText(started_.catalogues, f.table, r)), r);
        } catch (const std::exception&) {
        }
      }
    }
    for (const std::string& k : {Key(text), Key(std::string(CatalogueInfo(f.table).prefix) + text)}) {
      auto it = keys.find(k);
      if (it != keys.end()) return it->second;
    }
    return -1;
  }

  int GradeRow(const std::string& text) const {
    // The catalogued rows only; the last row is the user's own fyk.
    for (int g = 0; g < started_.steel.gradeLast; ++g)
      if (Key(started_.steel.rows[static_cast<size_t>(g)].name) == Key(text)) return g;
    return -1;
  }

  const State& started_;
  char sep_ = ',';
  std::vector<int> index_;
  std::unordered_map<int, std::unordered_map<std::string, int>> rows_;
};

// The member of a CSV line put into a started State, as entering it in the program does: the
// section from its list, the grade, the length, the supports, the buckling factors, the LT check,
// then the loads (or the end forces).
void Apply(State& s, const MemberSpec& m) {
  Project& p = s.project;
  PutCatalogueRow(s, *m.family, m.row);
  if (m.grade >= 0) p.steelGrade = static_cast<Integer>(m.grade);
  p.L = m.L;
  if (m.endForces) {
    p.AnalysisMode = 0;
    p.SupportType = 0;
  } else {
    p.AnalysisMode = 1;
    OnSupportButton(s, m.support);
  }
  if (m.ky) {
    p.bucklingFactorY = *m.ky;
    p.bucklingCaseY = 6;
  }
  if (m.kz) {
    p.bucklingFactorZ = *m.kz;
    p.bucklingCaseZ = 6;
  }
  if (m.ltb >= 0) OnLtbCheck(s, m.ltb == 1);
  auto value = [&m](int c) { return m.value[static_cast<size_t>(c)]; };
  if (m.endForces) {
    p.NEndForce = value(colNEd);
    p.My12 = {0, value(colMy1), value(colMy2)};
    p.Vz12 = {0, value(colVz1), value(colVz2)};
    p.Mz12 = {0, value(colMz1), value(colMz2)};
    p.Vy12 = {0, value(colVy1), value(colVy2)};
  } else {
    Loads& l = s.loads;
    for (auto& a : l.axial) a = AxialLoad{};
    for (auto& u : l.uniform) u = UniformLoad{0, 0, 1, False};
    l.axial[1] = {value(colNG), 0, True};
    l.axial[2] = {value(colNQ), 1, True};
    l.uniform[1] = {value(colQzG), 0, 1, True};
    l.uniform[2] = {value(colQzQ), 1, 1, True};
    l.uniform[3] = {value(colQyG), 0, 0, True};
    l.uniform[4] = {value(colQyQ), 1, 0, True};
    for (auto& t : l.trapezoid) t = TrapezoidLoad{0, 0, 0, 0, 0, 1, False};
    for (auto& pt : l.point) pt = PointLoad{0, 0, 0, 0, 1, False};
  }
}

// Runs the member; where its grade gives another neta for the section's own thickness (as the
// grade's list re-derives it after its run), once more with that factor.
void RunCsvMember(State& s) {
  const Single neta = s.project.neta;
  RunMember(s);
  SetCodeFactors(s, s.project.codeIndex);
  if (s.project.neta != neta) RunMember(s);
}

std::string SectionLabel(const State& s) {
  const Project& p = s.project;
  for (const CatalogueFamily& f : CatalogueFamilies()) {
    if (f.type != p.ProfileType) continue;
    if (f.type == 101 && f.subFamily != p.subFamily101) continue;
    if (f.type == 103 && f.subFamily != (p.subFamily103 == 1 ? 1 : 2)) continue;
    try {
      return CatalogueListText(s.catalogues, f.table, p.SelectedRow[static_cast<size_t>(f.table)]);
    } catch (const std::exception&) {
      return f.name;
    }
  }
  return "family " + std::to_string(p.ProfileType);
}

std::string GradeLabel(const State& s) {
  const Project& p = s.project;
  if (p.steelGrade >= 0 && p.steelGrade < s.steel.gradeLast)
    return s.steel.rows[static_cast<size_t>(p.steelGrade)].name;
  return "fyk " + FormatNumber(p.fyk, "#0", false);
}

// A State for one member: a copy of the started one, with a settings store of its own (opening a
// project writes the recent files), run without the pictures and the dialog values.
State MemberState(const State& base) {
  State s = base;
  s.headless = true;
  s.settings = std::make_shared<MemorySettingsStore>();
  return s;
}

void OpenProjectEntry(const State& base, BatchEntry& e, const std::string& path) {
  State s = MemberState(base);
  FileResult result = FileResult::Ok;
  try {
    const EventResult r = OpenAction(s, path, &result);
    if (r.refused) {
      e.error = r.message;
      return;
    }
  } catch (const std::exception& x) {
    e.error = std::string("can't open: ") + x.what();
    return;
  }
  if (result != FileResult::Ok) {
    e.error = "not a project file of this program";
    return;
  }
  // Opened as the program opens it: its results are those the program shows then.
  e.section = SectionLabel(s);
  e.grade = GradeLabel(s);
  e.L = s.project.L;
  e.outcome = OutcomeOf(s);
}

void Count(BatchResult& r) {
  for (const BatchEntry& e : r.entries) {
    if (!e.error.empty())
      ++r.bad;
    else if (e.outcome.passes)
      ++r.ok;
    else
      ++r.notOk;
  }
}

std::string FirstLine(const std::string& text) {
  size_t at = 0;
  while (at < text.size()) {
    size_t end = text.find('\n', at);
    if (end == std::string::npos) end = text.size();
    const std::string line = Trim(std::string_view(text).substr(at, end - at));
    if (!line.empty() && line[0] != '#') return line;
    at = end + 1;
  }
  return {};
}

bool IsMemberHeader(const std::string& line) {
  const char sep = line.find(';') != std::string::npos ? ';' : ',';
  for (const std::string& c : Cells(line, sep))
    if (Key(c) == "FAMILY") return true;
  return false;
}

}  // namespace

BatchResult RunBatchText(const State& started, const std::string& text, const std::string& name,
                         const std::string& folder, int workers) {
  BatchResult result;
  State base = started;
  base.view.pictures.clear();
  base.view.items.clear();
  const bool csv = IsMemberHeader(FirstLine(text));

  // The lines, numbered from 1, comments and blank lines left out.
  std::vector<std::pair<int, std::string>> lines;
  {
    size_t at = 0;
    int number = 0;
    while (at < text.size()) {
      size_t end = text.find('\n', at);
      if (end == std::string::npos) end = text.size();
      ++number;
      std::string line = Trim(std::string_view(text).substr(at, end - at));
      if (number == 1 && line.rfind("\xEF\xBB\xBF", 0) == 0) line.erase(0, 3);  // a byte order mark
      if (!line.empty() && line[0] != '#') lines.emplace_back(number, std::move(line));
      at = end + 1;
    }
  }

  if (csv) {
    CsvReader reader(base);
    std::string error;
    if (!reader.Header(lines.front().second, &error)) {
      result.fileError = name + ":" + std::to_string(lines.front().first) + ": " + error;
      return result;
    }
    std::vector<ParsedLine> parsed;
    parsed.reserve(lines.size());
    for (size_t i = 1; i < lines.size(); ++i) parsed.push_back(reader.Line(lines[i].second, lines[i].first));
    result.entries.resize(parsed.size());
    ParallelFor(parsed.size(), WorkerCount(workers), [&](std::size_t i, int) {
      const ParsedLine& pl = parsed[i];
      BatchEntry& e = result.entries[i];
      e.source = name;
      e.line = pl.line;
      e.member = pl.member;
      e.section = pl.section;
      e.grade = pl.grade;
      e.L = pl.spec.L;
      e.error = pl.error;
      if (!e.error.empty()) return;
      try {
        State s = base;  // each member on its own copy
        Apply(s, pl.spec);
        RunCsvMember(s);
        e.outcome = OutcomeOf(s);
      } catch (const std::exception& x) {
        e.error = std::string("the member could not be run: ") + x.what();
      }
    });
  } else {
    result.entries.resize(lines.size());
    ParallelFor(lines.size(), WorkerCount(workers), [&](std::size_t i, int) {
      BatchEntry& e = result.entries[i];
      e.source = name;
      e.line = lines[i].first;
      e.member = lines[i].second;
      std::filesystem::path path(lines[i].second);
      if (path.is_relative() && !folder.empty()) path = std::filesystem::path(folder) / path;
      OpenProjectEntry(base, e, path.string());
    });
  }
  if (result.entries.empty()) {
    result.fileError = name + ": no member and no project file in it";
    return result;
  }
  Count(result);
  return result;
}

BatchResult RunBatch(const State& started, const std::string& path, int workers) {
  std::string ext = std::filesystem::path(path).extension().string();
  for (char& c : ext) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  if (ext == ".vnt") {
    BatchResult result;
    result.entries.resize(1);
    BatchEntry& e = result.entries[0];
    e.source = path;
    e.member = path;
    State base = started;
    base.view.pictures.clear();
    OpenProjectEntry(base, e, path);
    Count(result);
    return result;
  }
  std::string text, reason;
  if (ReadFileBounded(path, kBatchFileLimit, &text, &reason) != ReadStatus::Ok) {
    BatchResult result;
    result.fileError = "cannot read '" + path + "': " + reason;
    return result;
  }
  return RunBatchText(started, text, path, std::filesystem::path(path).parent_path().string(), workers);
}

std::vector<std::vector<std::string>> BatchTable(const BatchResult& r, bool decimalComma) {
  std::vector<std::vector<std::string>> rows;
  rows.reserve(r.entries.size() + 1);
  rows.push_back({"file", "line", "member", "section", "grade", "L (m)", "IR", "verdict", "control"});
  for (const BatchEntry& e : r.entries) {
    const bool bad = !e.error.empty();
    const bool ran = !bad && e.outcome.ran;
    rows.push_back({e.source, e.line > 0 ? std::to_string(e.line) : std::string(), e.member, e.section,
                    e.grade, e.L > 0 ? FormatNumber(e.L, "#0.000", decimalComma) : std::string(),
                    ran ? FormatNumber(e.outcome.ratio, "0.00", decimalComma) : std::string(),
                    bad ? "BAD INPUT" : VerdictText(e.outcome), bad ? e.error : DescribeControl(e.outcome)});
  }
  return rows;
}

std::string BatchText(const BatchResult& r, bool decimalComma) {
  const auto rows = BatchTable(r, decimalComma);
  // The file's name stands once, above; each line starts with the line number.
  std::vector<size_t> width(rows.front().size(), 0);
  for (const auto& row : rows)
    for (size_t c = 1; c < row.size(); ++c) width[c] = std::max(width[c], row[c].size());
  std::string out;
  for (const auto& row : rows) {
    std::string line;
    for (size_t c = 1; c < row.size(); ++c) {
      std::string cell = row[c];
      const bool right = c == 1 || c == 5 || c == 6;
      if (c + 1 < row.size()) {
        const std::string pad(width[c] - cell.size(), ' ');
        cell = right ? pad + cell : cell + pad;
        cell += "  ";
      }
      line += cell;
    }
    while (!line.empty() && line.back() == ' ') line.pop_back();
    out += line + "\n";
  }
  out += std::to_string(r.entries.size()) + " members: " + std::to_string(r.ok) + " OK, " +
         std::to_string(r.notOk) + " NOT OK, " + std::to_string(r.bad) + " not read\n";
  return out;
}

}  // namespace vn
