// More Results: the working values of the last control in one table of four columns, and the
// dialog "detailedresult" that shows it and hands it to a spreadsheet.
#pragma once

#include <array>
#include <set>
#include <string>
#include <vector>

namespace vn {

struct State;
class ControlTable;

inline constexpr int kDetailRows = 55;  // the header row and 54 rows of the table
inline constexpr int kDetailColumns = 4;

using DetailRow = std::array<std::string, kDetailColumns>;

struct DetailTable {
  std::vector<DetailRow> rows;  // kDetailRows rows; empty strings for empty cells
  std::set<int> bold;           // the group heads
};

// The table as the dialog shows it for the values the last control left: row 0 the header
// " Parameter", "Value", "unit", " Reference"; the rows of Method 1 only when that method is on,
// the groups below running on without a gap; the rows after the last group empty.
DetailTable MakeDetailTable(const State& s);

// The dialog's Activate: clears the grid and fills it anew.
void BuildDetailTable(State& s);

// The text of the failed export.
inline constexpr const char* kExportFailedText = " Error on tranfere data to Excel ";

}  // namespace vn
