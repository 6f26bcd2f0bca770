// The cells of one line of a CSV text: a cell in double quotes may hold the separator, and "" in it
// stands for one quote. Shared by the catalogue generator and the batch of members.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vn {

inline std::vector<std::string> SplitCsvCells(std::string_view line, char sep = ',') {
  std::vector<std::string> cells;
  std::string cell;
  bool quoted = false;
  for (size_t i = 0; i < line.size(); ++i) {
    const char c = line[i];
    if (quoted) {
      if (c == '"' && i + 1 < line.size() && line[i + 1] == '"') {
        cell += '"';
        ++i;
      } else if (c == '"') {
        quoted = false;
      } else {
        cell += c;
      }
    } else if (c == '"') {
      quoted = true;
    } else if (c == sep) {
      cells.push_back(cell);
      cell.clear();
    } else {
      cell += c;
    }
  }
  cells.push_back(cell);
  return cells;
}

}  // namespace vn
