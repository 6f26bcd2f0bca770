// The steel grade table: one grade a line, "name<TAB>fy up to 40 mm<TAB>fy over 40 mm", the last
// line standing for a strength typed by the user.
#include <filesystem>
#include <sstream>
#include <vector>

#include "core/format.h"
#include "core/safe_file.h"
#include "core/state.h"
#include "design/design_basis.h"

namespace vn {

namespace {

std::vector<std::string> SplitTabs(const std::string& line) {
  std::vector<std::string> fields;
  size_t start = 0;
  for (;;) {
    size_t tab = line.find('\t', start);
    fields.push_back(line.substr(start, tab == std::string::npos ? std::string::npos : tab - start));
    if (tab == std::string::npos) return fields;
    start = tab + 1;
  }
}

// A strength column; a text that is no number leaves the column as it was.
void ReadStrength(const std::vector<std::string>& fields, size_t i, bool decimalComma, Single& out) {
  if (i >= fields.size()) return;  // a short line: the column stays 0
  bool mismatch = false, overflow = false;
  Single v = ParseNumber(fields[i], decimalComma, &mismatch, &overflow);
  if (!mismatch && !overflow) out = v;
}

}  // namespace

void ReadSteelGrades(State& s) {
  s.steel = SteelGrades{};
  // No file, no regular file or one far larger than a table of grades: an empty table, gradeLast -1.
  std::string text;
  const std::string path = (std::filesystem::path(s.appPath) / kSteelGradeFile).string();
  if (ReadFileBounded(path, kSettingsFileLimit, &text, nullptr) != ReadStatus::Ok) return;
  ReadSteelGradesText(s, text);
}

void ReadSteelGradesText(State& s, const std::string& text) {
  SteelGrades& t = s.steel;
  t = SteelGrades{};
  std::istringstream in(text);

  long lines = 0;
  std::string line;
  while (std::getline(in, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    const long row = lines++;
    // Lines beyond the 31 rows are counted but have no room: gradeLast then points beyond the
    // table and no row of the lists is the user row.
    if (row > 30) continue;
    SteelGradeRow& r = t.rows[static_cast<size_t>(row)];
    std::vector<std::string> fields = SplitTabs(line);
    r.name = fields[0];
    ReadStrength(fields, 1, s.decimalComma, r.fy40);
    ReadStrength(fields, 2, s.decimalComma, r.fyOver40);
  }
  t.gradeLast = static_cast<Integer>(std::min(lines - 1, 32767L));
}

}  // namespace vn
