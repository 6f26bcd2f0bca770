#include "export/spreadsheet_export.h"

#include <xlsxwriter.h>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <map>

#include "core/safe_file.h"
#include "core/state.h"

namespace vn {

namespace {

std::string CannotWrite(const std::string& path, const std::string& reason) {
  return "cannot write '" + path + "': " + reason;
}

bool EndsWithCsv(const std::string& path) {
  if (path.size() < 4) return false;
  std::string ext = path.substr(path.size() - 4);
  for (char& ch : ext) ch = static_cast<char>(std::tolower(static_cast<unsigned char>(ch)));
  return ext == ".csv";
}

std::string CsvCell(const std::string& text) {
  if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
  std::string out = "\"";
  for (char ch : text) {
    if (ch == '"') out += '"';
    out += ch;
  }
  return out + "\"";
}

// A cell whose whole text is a number as the table prints one ("0,852", "-12.5", "1E+25"): its value
// and the decimals shown. A thousands separator never occurs, so a comma is the decimal sign.
bool CellNumber(const std::string& text, double* value, int* decimals, bool* exponent) {
  size_t i = 0;
  const size_t n = text.size();
  if (i < n && (text[i] == '-' || text[i] == '+')) ++i;
  const size_t digits = i;
  while (i < n && std::isdigit(static_cast<unsigned char>(text[i]))) ++i;
  if (i == digits) return false;
  *decimals = 0;
  if (i < n && (text[i] == '.' || text[i] == ',')) {
    const size_t after = ++i;
    while (i < n && std::isdigit(static_cast<unsigned char>(text[i]))) ++i;
    if (i == after) return false;
    *decimals = static_cast<int>(i - after);
  }
  *exponent = false;
  if (i < n && (text[i] == 'E' || text[i] == 'e')) {
    ++i;
    if (i < n && (text[i] == '-' || text[i] == '+')) ++i;
    const size_t e = i;
    while (i < n && std::isdigit(static_cast<unsigned char>(text[i]))) ++i;
    if (i == e) return false;
    *exponent = true;
  }
  if (i != n) return false;
  std::string point = text;
  for (char& ch : point)
    if (ch == ',') ch = '.';
  char* end = nullptr;
  *value = std::strtod(point.c_str(), &end);
  return end == point.c_str() + point.size() && std::isfinite(*value);
}

}  // namespace

bool WriteTableXlsx(const std::vector<TableRow>& rows, const std::vector<double>& widths,
                    const std::set<int>& bold, const std::string& path, std::string* error) {
  // libxlsxwriter opens the file by its name: it is given the name of the temporary file.
  auto fill = [&](const std::string& temp, std::string* reason) {
    lxw_workbook* book = workbook_new(temp.c_str());
    if (!book) {
      *reason = "the workbook could not be created";
      return false;
    }
    lxw_worksheet* sheet = workbook_add_worksheet(book, nullptr);
    lxw_format* strong = workbook_add_format(book);
    format_set_bold(strong);

    size_t columns = widths.size();
    for (const TableRow& row : rows) columns = std::max(columns, row.size());
    for (size_t c = 0; c < columns; ++c)
      worksheet_set_column(sheet, static_cast<lxw_col_t>(c), static_cast<lxw_col_t>(c),
                           c < widths.size() ? widths[c] : 12, nullptr);

    // A number is written as a number, shown with the decimals the table shows (so that a
    // spreadsheet computes with it); every other cell as its text.
    std::map<std::string, lxw_format*> numberFormats;
    auto numberFormat = [&](int decimals, bool exponent, bool isBold) {
      std::string pattern = decimals > 0 ? "0." + std::string(static_cast<size_t>(decimals), '0') : "0";
      if (exponent) pattern += "E+00";
      const std::string key = pattern + (isBold ? "b" : "");
      auto it = numberFormats.find(key);
      if (it != numberFormats.end()) return it->second;
      lxw_format* f = workbook_add_format(book);
      format_set_num_format(f, pattern.c_str());
      if (isBold) format_set_bold(f);
      return numberFormats[key] = f;
    };
    lxw_error failed = LXW_NO_ERROR;
    for (size_t r = 0; r < rows.size() && failed == LXW_NO_ERROR; ++r) {
      const bool isBold = r == 0 || bold.count(static_cast<int>(r)) > 0;
      for (size_t c = 0; c < rows[r].size() && failed == LXW_NO_ERROR; ++c) {
        const std::string& text = rows[r][c];
        if (text.empty()) continue;  // an empty cell stays empty
        const auto row = static_cast<lxw_row_t>(r);
        const auto col = static_cast<lxw_col_t>(c);
        double value = 0;
        int decimals = 0;
        bool exponent = false;
        if (CellNumber(text, &value, &decimals, &exponent))
          failed = worksheet_write_number(sheet, row, col, value, numberFormat(decimals, exponent, isBold));
        else
          failed = worksheet_write_string(sheet, row, col, text.c_str(), isBold ? strong : nullptr);
      }
    }
    errno = 0;
    const lxw_error closed = workbook_close(book);  // writes the file and frees the workbook
    if (failed == LXW_NO_ERROR) failed = closed;
    if (failed != LXW_NO_ERROR) {
      // The library's text, and the system's where it has one (a full disk, a file size limit).
      *reason = lxw_strerror(failed);
      if (errno != 0) *reason += std::string(" (") + std::strerror(errno) + ")";
      return false;
    }
    return true;
  };
  std::string reason;
  if (ReplaceFileWith(path, fill, &reason)) return true;
  *error = CannotWrite(path, reason);
  return false;
}

std::string TableCsvText(const std::vector<TableRow>& rows) {
  std::string out;
  for (const TableRow& row : rows) {
    for (size_t c = 0; c < row.size(); ++c) {
      if (c > 0) out += ',';
      out += CsvCell(row[c]);
    }
    out += "\r\n";
  }
  return out;
}

bool WriteTableCsv(const std::vector<TableRow>& rows, const std::string& path, std::string* error) {
  std::string reason;
  if (ReplaceFile(path, TableCsvText(rows), &reason)) return true;
  *error = CannotWrite(path, reason);
  return false;
}

namespace {

std::vector<TableRow> DetailRows(const std::vector<DetailRow>& rows) {
  std::vector<TableRow> out;
  out.reserve(rows.size());
  for (const DetailRow& row : rows) out.emplace_back(row.begin(), row.end());
  return out;
}

}  // namespace

bool WriteDetailXlsx(const std::vector<DetailRow>& rows, const std::set<int>& bold, const std::string& path,
                     std::string* error) {
  // The first column takes about a third of the table's width, as in the dialog.
  return WriteTableXlsx(DetailRows(rows), {24, 16, 10, 18}, bold, path, error);
}

std::string DetailCsvText(const std::vector<DetailRow>& rows) { return TableCsvText(DetailRows(rows)); }

bool WriteDetailCsv(const std::vector<DetailRow>& rows, const std::string& path, std::string* error) {
  return WriteTableCsv(DetailRows(rows), path, error);
}

bool ExportDetailGrid(const State& s, const std::string& path, std::string* error) {
  DetailTable table;
  if (s.view.detailGrid.empty()) {
    table = MakeDetailTable(s);
  } else {
    table.rows = s.view.detailGrid;
    table.bold = s.view.detailGridBold;
  }
  return EndsWithCsv(path) ? WriteDetailCsv(table.rows, path, error)
                           : WriteDetailXlsx(table.rows, table.bold, path, error);
}

}  // namespace vn
