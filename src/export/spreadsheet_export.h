// The spreadsheet export of the More Results table: a real .xlsx workbook (libxlsxwriter) or a
// comma-separated text file. Each writes a temporary file beside the target and renames it over the
// target at the end, so a failed export leaves no partial file behind.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "results/detail_table.h"

namespace vn {

struct State;

// One worksheet: a cell that is a number written as a number with the decimals the grid shows,
// every other cell as its text, empty cells left empty;
// the header row and the group heads in bold. False with the reason in *error (naming the path).
bool WriteDetailXlsx(const std::vector<DetailRow>& rows, const std::set<int>& bold, const std::string& path,
                     std::string* error);

// The rows as comma-separated text, UTF-8, CRLF line ends; a cell with a comma, a double quote or
// a line break is quoted, its quotes doubled. Every row has its four cells, empty ones included.
std::string DetailCsvText(const std::vector<DetailRow>& rows);
bool WriteDetailCsv(const std::vector<DetailRow>& rows, const std::string& path, std::string* error);

// Any table of text cells (a row a vector, rows of any length) as a workbook of one worksheet, the
// columns `widths` wide (characters; missing ones 12), cells that are numbers written as numbers,
// the rows in `bold` and row 0 bold; and as comma-separated text as above. False with the reason.
using TableRow = std::vector<std::string>;
bool WriteTableXlsx(const std::vector<TableRow>& rows, const std::vector<double>& widths,
                    const std::set<int>& bold, const std::string& path, std::string* error);
std::string TableCsvText(const std::vector<TableRow>& rows);
bool WriteTableCsv(const std::vector<TableRow>& rows, const std::string& path, std::string* error);

// The grid of the More Results dialog (filled as on its Activate when it is still empty) to `path`:
// CSV when the name ends in ".csv" (any case), else .xlsx. This is the State's `spreadsheet`.
bool ExportDetailGrid(const State& s, const std::string& path, std::string* error);

}  // namespace vn
