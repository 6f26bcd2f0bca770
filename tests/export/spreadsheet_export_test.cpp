// The spreadsheet export of the table of detailed results: a real .xlsx workbook and a CSV file,
// written whole or not at all.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "core/recalculate.h"
#include "core/state.h"
#include "export/spreadsheet_export.h"
#include "results/detail_table.h"
#include "support/test_support.h"

namespace vn {
namespace {

namespace fs = std::filesystem;

// A fresh folder of its own for each test, removed afterwards.
class ExportFiles : public ::testing::Test {
 protected:
  std::string Path(const std::string& name) const { return folder_.Path(name); }
  int FilesInFolder() const {
    int n = 0;
    for ([[maybe_unused]] const auto& e : fs::directory_iterator(folder_.Dir())) ++n;
    return n;
  }

  test::TempFolder folder_;
};

std::string ReadFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream o;
  o << in.rdbuf();
  return o.str();
}

bool HaveUnzip() { return std::system("unzip -v >/dev/null 2>&1") == 0; }

// One member of the zip archive, through the unzip program.
std::string ZipMember(const std::string& zip, const std::string& member) {
  std::string out;
  const std::string cmd = "unzip -p '" + zip + "' '" + member + "' 2>/dev/null";
  if (std::FILE* p = popen(cmd.c_str(), "r")) {
    char buf[4096];
    size_t n;
    while ((n = std::fread(buf, 1, sizeof buf, p)) > 0) out.append(buf, n);
    pclose(p);
  }
  return out;
}

size_t Count(const std::string& text, const std::string& what) {
  size_t n = 0;
  for (size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + 1)) ++n;
  return n;
}

DetailTable TableWithMcr(bool decimalComma) {
  State s;
  NewProject(s);
  s.decimalComma = decimalComma;
  s.project.interactionMethod = 2;
  s.checks.Mcr = 123456789;  // 123.456789 kNm -> "123.457"
  return MakeDetailTable(s);
}

// ---- CSV ----

TEST(DetailCsv, CellsAreQuotedOnlyWhereTheyMustBe) {
  const std::vector<DetailRow> rows = {{" Parameter", "Value", "unit", " Reference"},
                                       {" Mcr", "123,457", " kNm", ""},
                                       {"say \"q\"", "", "", "line\nbreak"}};
  EXPECT_EQ(DetailCsvText(rows),
            " Parameter,Value,unit, Reference\r\n"
            " Mcr,\"123,457\", kNm,\r\n"
            "\"say \"\"q\"\"\",,,\"line\nbreak\"\r\n");
}

TEST_F(ExportFiles, CsvHoldsAllFiftyFiveRowsAndReadsBackExactly) {
  DetailTable t = TableWithMcr(true);
  std::string error;
  ASSERT_TRUE(WriteDetailCsv(t.rows, Path("detail.csv"), &error)) << error;
  const std::string text = ReadFile(Path("detail.csv"));
  EXPECT_EQ(text, DetailCsvText(t.rows));
  EXPECT_EQ(Count(text, "\r\n"), 55u);
  EXPECT_EQ(text.substr(0, 34), " Parameter,Value,unit, Reference\r\n");
  EXPECT_NE(text.find("\r\n Mcr,\"123,457\", kNm,\r\n"), std::string::npos);
  EXPECT_NE(text.find("\r\n Other,,,\r\n,,,\r\n"), std::string::npos);  // empty rows stay empty
  EXPECT_EQ(FilesInFolder(), 1);                                        // no temporary file left beside it
}

TEST_F(ExportFiles, AnExistingFileIsReplacedWhole) {
  {
    std::ofstream old(Path("detail.csv"));
    old << std::string(5000, 'x');
  }
  DetailTable t = TableWithMcr(false);
  std::string error;
  ASSERT_TRUE(WriteDetailCsv(t.rows, Path("detail.csv"), &error)) << error;
  EXPECT_EQ(ReadFile(Path("detail.csv")), DetailCsvText(t.rows));
}

// ---- Failures ----

TEST_F(ExportFiles, AMissingFolderIsAnErrorNamingThePath) {
  DetailTable t = TableWithMcr(false);
  const std::string target = Path("no-such-folder/detail.csv");
  std::string error;
  EXPECT_FALSE(WriteDetailCsv(t.rows, target, &error));
  EXPECT_NE(error.find("'" + target + "'"), std::string::npos) << error;
  error.clear();
  EXPECT_FALSE(WriteDetailXlsx(t.rows, t.bold, Path("no-such-folder/detail.xlsx"), &error));
  EXPECT_NE(error.find("no-such-folder/detail.xlsx"), std::string::npos) << error;
  EXPECT_EQ(FilesInFolder(), 0);
}

TEST_F(ExportFiles, AFolderInTheWayLeavesNoTemporaryFileBehind) {
  fs::create_directory(Path("taken"));
  DetailTable t = TableWithMcr(false);
  std::string error;
  EXPECT_FALSE(WriteDetailXlsx(t.rows, t.bold, Path("taken"), &error));
  EXPECT_NE(error.find("taken"), std::string::npos) << error;
  EXPECT_FALSE(WriteDetailCsv(t.rows, Path("taken"), &error));
  EXPECT_EQ(FilesInFolder(), 1);  // only the folder
  EXPECT_TRUE(fs::is_directory(Path("taken")));
}

TEST(DetailExport, AnEmptyPathIsRefused) {
  std::string error;
  EXPECT_FALSE(WriteDetailCsv({}, "", &error));
  EXPECT_FALSE(error.empty());
}

// ---- XLSX ----

// Numbers as numbers, so that a spreadsheet computes with them, shown with the table's decimals;
// texts as texts; the same workbook whichever decimal sign the table was printed with.
TEST_F(ExportFiles, XlsxWritesNumbersAsNumbersAndTextsAsTexts) {
  for (bool comma : {false, true}) {
    SCOPED_TRACE(comma ? "decimal comma" : "decimal point");
    DetailTable t = TableWithMcr(comma);
    std::string error;
    ASSERT_TRUE(WriteDetailXlsx(t.rows, t.bold, Path("detail.xlsx"), &error)) << error;
    const std::string bytes = ReadFile(Path("detail.xlsx"));
    ASSERT_GE(bytes.size(), 4u);
    EXPECT_EQ(bytes.substr(0, 4), std::string("PK\x03\x04", 4));  // a zip local file header
    EXPECT_EQ(FilesInFolder(), 1);

    if (!HaveUnzip()) GTEST_SKIP() << "unzip is not installed: the workbook's parts are not read";
    const std::string sheet = ZipMember(Path("detail.xlsx"), "xl/worksheets/sheet1.xml");
    const std::string strings = ZipMember(Path("detail.xlsx"), "xl/sharedStrings.xml");
    const std::string styles = ZipMember(Path("detail.xlsx"), "xl/styles.xml");
    ASSERT_FALSE(sheet.empty());
    // Text cells, the leading blanks kept; Mcr (row 6) the number 123.457 shown with 3 decimals.
    EXPECT_NE(strings.find("<t xml:space=\"preserve\"> Parameter</t>"), std::string::npos);
    EXPECT_NE(strings.find("<t xml:space=\"preserve\"> Lateral Buckling Factors</t>"), std::string::npos);
    EXPECT_EQ(strings.find("123"), std::string::npos);
    EXPECT_NE(sheet.find("<c r=\"B6\" s=\"2\"><v>123.457</v></c>"), std::string::npos) << sheet;
    EXPECT_NE(styles.find("formatCode=\"0.000\""), std::string::npos) << styles;
    // An empty cell of the grid is no cell at all; the string cells are the non-numbers.
    size_t filled = 0, numbers = 0;
    for (const DetailRow& r : t.rows)
      for (const std::string& cell : r) {
        filled += cell.empty() ? 0 : 1;
        numbers += !cell.empty() && cell.find_first_not_of("0123456789.,-") == std::string::npos ? 1 : 0;
      }
    EXPECT_GE(numbers, 1u);  // Mcr at least
    EXPECT_EQ(Count(sheet, "<c r="), filled);
    EXPECT_EQ(Count(sheet, "t=\"s\""), filled - numbers);
    // A1 is the header's first cell, A2 the first group head: both bold (style 1).
    EXPECT_NE(sheet.find("<c r=\"A1\" s=\"1\" t=\"s\">"), std::string::npos) << sheet;
    EXPECT_NE(sheet.find("<c r=\"A2\" s=\"1\" t=\"s\">"), std::string::npos);
    EXPECT_NE(sheet.find("<c r=\"A3\" t=\"s\">"), std::string::npos);  // " My": plain
    EXPECT_NE(styles.find("<b/>"), std::string::npos);
  }
}

TEST_F(ExportFiles, TheStateExportChoosesCsvByTheFileName) {
  State s;
  NewProject(s);
  BuildDetailTable(s);
  std::string error;
  ASSERT_TRUE(ExportDetailGrid(s, Path("detail.CSV"), &error)) << error;
  EXPECT_EQ(ReadFile(Path("detail.CSV")).substr(0, 11), " Parameter,");
  ASSERT_TRUE(ExportDetailGrid(s, Path("detail.xlsx"), &error)) << error;
  EXPECT_EQ(ReadFile(Path("detail.xlsx")).substr(0, 2), "PK");
}

}  // namespace
}  // namespace vn
