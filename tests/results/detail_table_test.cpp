// The table of detailed results: its fixed layout of 55 rows by 4 cells, the rows of Method 1 that
// come and go, the number formats, and the dialog that shows and exports it.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "core/events.h"
#include "core/recalculate.h"
#include "core/state.h"
#include "results/detail_table.h"
#include "support/test_support.h"

namespace vn {
namespace {

// A new project without data files: the table only reads the records, so their values are set by
// hand below and no recalculation runs between the setting and the reading.
State NewState(Integer method) {
  State s;
  NewProject(s);
  s.project.interactionMethod = method;
  return s;
}

std::vector<std::string> Labels(const DetailTable& t) {
  std::vector<std::string> out;
  for (const DetailRow& r : t.rows) out.push_back(r[0]);
  return out;
}

const std::vector<std::string> kCommonLabels = {" Parameter",
                                                " Moment shape",
                                                " My",
                                                " My",
                                                " Lateral Buckling Factors",
                                                " Mcr",
                                                " C1",
                                                " lamdaLt",
                                                " Mcr0",
                                                " lamda0",
                                                " XLt",
                                                " XLtmod",
                                                " kc",
                                                " f",
                                                " Buckling Factors",
                                                " Ncr,y",
                                                " lamday",
                                                " Xy",
                                                " Ncr,z",
                                                " lamdaz",
                                                " Xz",
                                                " NcrT",
                                                " NcrTF",
                                                " Interaction Factors",
                                                " kyy",
                                                " kyz",
                                                " kzz",
                                                " kzy",
                                                " Cmy",
                                                " Cmy0",
                                                " Cmz",
                                                " CmLt"};
const std::vector<std::string> kMethod1Labels = {" Cyy", " Cyz", " Czy", " Czz", " aLt",
                                                 " bLt", " cLt", " dLt", " eLt", " npl",
                                                 " uy",  " uz",  " wy",  " wz",  " ey"};
const std::vector<std::string> kTailLabels = {" Shear area", " Az", " Ay", " Other"};

std::vector<std::string> ExpectedLabels(bool method1) {
  std::vector<std::string> l = kCommonLabels;
  if (method1) l.insert(l.end(), kMethod1Labels.begin(), kMethod1Labels.end());
  l.insert(l.end(), kTailLabels.begin(), kTailLabels.end());
  l.resize(kDetailRows);  // the rest of the grid stays empty
  return l;
}

// ---- Layout ----

TEST(DetailTableLayout, FiftyFiveRowsOfFourCellsUnderTheHeader) {
  DetailTable t = MakeDetailTable(NewState(2));
  ASSERT_EQ(t.rows.size(), 55u);
  EXPECT_EQ(t.rows[0], (DetailRow{" Parameter", "Value", "unit", " Reference"}));
  EXPECT_EQ(t.bold.count(0), 0u);  // the header is no group head
}

TEST(DetailTableLayout, MethodTwoRunsOnWithoutTheAnnexARows) {
  DetailTable t = MakeDetailTable(NewState(2));
  EXPECT_EQ(Labels(t), ExpectedLabels(false));
  EXPECT_EQ(t.bold, (std::set<int>{1, 4, 14, 23, 32, 35}));
  for (int r = 24; r <= 31; ++r) EXPECT_EQ(t.rows[r][3], " Method 2") << "row " << r;
  for (int r = 36; r < 55; ++r) EXPECT_EQ(t.rows[r], DetailRow{}) << "row " << r;
}

TEST(DetailTableLayout, MethodOneAddsRows32To46AndPushesTheTailDown) {
  DetailTable t = MakeDetailTable(NewState(1));
  EXPECT_EQ(Labels(t), ExpectedLabels(true));
  EXPECT_EQ(t.bold, (std::set<int>{1, 4, 14, 23, 47, 50}));
  for (int r = 24; r <= 46; ++r) EXPECT_EQ(t.rows[r][3], " Method 1") << "row " << r;
  for (int r = 51; r < 55; ++r) EXPECT_EQ(t.rows[r], DetailRow{}) << "row " << r;
}

TEST(DetailTableLayout, AnyMethodOtherThanOneIsShownAsMethodTwo) {
  DetailTable t = MakeDetailTable(NewState(0));
  EXPECT_EQ(Labels(t), ExpectedLabels(false));
  EXPECT_EQ(t.rows[24][3], " Method 2");
}

TEST(DetailTableLayout, GroupHeadsHaveOnlyTheirName) {
  DetailTable t = MakeDetailTable(NewState(1));
  for (int r : t.bold) {
    EXPECT_FALSE(t.rows[r][0].empty());
    EXPECT_EQ(t.rows[r][1], "");
    EXPECT_EQ(t.rows[r][2], "");
    EXPECT_EQ(t.rows[r][3], "");
  }
}

TEST(DetailTableLayout, UnitsAndReferencesAsTheyStand) {
  DetailTable t = MakeDetailTable(NewState(2));
  EXPECT_EQ(t.rows[5][2], " kNm");
  EXPECT_EQ(t.rows[5][3], "");
  EXPECT_EQ(t.rows[6][3], " (Mcr)");
  EXPECT_EQ(t.rows[7][3], " Ch 6.3.2");
  EXPECT_EQ(t.rows[8][2], " kNm");
  EXPECT_EQ(t.rows[9][3], "");
  for (int r : {10, 11, 12}) EXPECT_EQ(t.rows[r][3], " Ch 6.3.2.3");
  EXPECT_EQ(t.rows[13][3], "  ");  // two blanks
  for (int r : {15, 18, 21, 22}) EXPECT_EQ(t.rows[r][2], " kN") << "row " << r;
  for (int r = 15; r <= 20; ++r) EXPECT_EQ(t.rows[r][3], " Ch 6.3.1.2") << "row " << r;
  EXPECT_EQ(t.rows[21][3], "");
  EXPECT_EQ(t.rows[22][3], "");
  EXPECT_EQ(t.rows[33][2], " mm2");
  EXPECT_EQ(t.rows[34][2], " mm2");
}

// ---- Values ----

TEST(DetailTableValues, McrIsShownInKnmWithThreeDecimals) {
  State s = NewState(2);
  s.checks.Mcr = 123456789;  // Nmm: 123456789 / 1e6 = 123.456789 kNm -> "123.457"
  s.checks.Mcr0 = 2500000;   // 2.5 kNm -> "2.500"
  DetailTable t = MakeDetailTable(s);
  EXPECT_EQ(t.rows[5][1], "123.457");
  EXPECT_EQ(t.rows[8][1], "2.500");
}

TEST(DetailTableValues, SmallValuesKeepTheLeadingZeroAndRoundHalfAway) {
  State s = NewState(2);
  s.checks.Mcr = 1e6;       // a lateral torsional run: C1 is shown with it
  s.checks.C1 = 1.1325;     // "0.000": 1.1325 -> 1.133 (half away from zero on the decimal text)
  s.checks.lamdaLT = 0.25;  // "#0.000": 0.250 with its zero before the point
  s.checks.kzy = -0.0004;   // rounds to zero: no minus sign
  s.checks.Cmz = -0.4;      // a negative factor keeps its sign
  DetailTable t = MakeDetailTable(s);
  EXPECT_EQ(t.rows[6][1], "1.133");
  EXPECT_EQ(t.rows[7][1], "0.250");
  EXPECT_EQ(t.rows[27][1], "0.000");
  EXPECT_EQ(t.rows[30][1], "-0.400");
}

TEST(DetailTableValues, ShearAreasAreWholeMillimetresWithATrailingBlank) {
  State s = NewState(2);
  s.section.Avz = 3724.6;  // "#0 " -> "3725 "
  s.section.Avy = 0;       // "#0 " of 0 -> "0 "
  DetailTable t = MakeDetailTable(s);
  EXPECT_EQ(t.rows[33][1], "3725 ");
  EXPECT_EQ(t.rows[34][1], "0 ");
}

TEST(DetailTableValues, DecimalCommaLocaleWritesACommaInEveryValue) {
  State s = NewState(2);
  s.decimalComma = true;
  s.checks.Mcr = 123456789;
  s.checks.chiz = 0.5;
  DetailTable t = MakeDetailTable(s);
  EXPECT_EQ(t.rows[5][1], "123,457");
  EXPECT_EQ(t.rows[20][1], "0,500");
}

// Each row reads its own field: the fields get the values 1.5, 2.5, 3.5 ... in the order of the
// rows, so that a swapped pair shows as two wrong texts.
TEST(DetailTableValues, EveryRowShowsItsOwnField) {
  State s = NewState(1);
  Checks& c = s.checks;
  Number* fields[] = {&c.C1,     &c.lamdaLT, &c.lamda0, &c.XLt,    &c.xLT,  &c.kc,   &c.fLT,   &c.Ncry,
                      &c.lamday, &c.chiy,    &c.Ncrz,   &c.lamdaz, &c.chiz, &c.NcrT, &c.NcrTF, &c.kyy,
                      &c.kyz,    &c.kzz,     &c.kzy,    &c.Cmy,    &c.Cmy0, &c.Cmz,  &c.CmLt,  &c.Cyy,
                      &c.Cyz,    &c.Czy,     &c.Czz,    &c.aLt,    &c.bLt,  &c.cLt,  &c.dLt,   &c.eLt,
                      &c.npl,    &c.uy,      &c.uz,     &c.wy,     &c.wz,   &c.ey};
  const int rows[] = {6,  7,  9,  10, 11, 12, 13, 15, 16, 17, 18, 19, 20, 21, 22, 24, 25, 26, 27,
                      28, 29, 30, 31, 32, 33, 34, 35, 36, 37, 38, 39, 40, 41, 42, 43, 44, 45, 46};
  static_assert(std::size(fields) == std::size(rows));
  for (size_t i = 0; i < std::size(fields); ++i) *fields[i] = static_cast<double>(i) + 1.5;
  c.Mcr = 1e6;
  DetailTable t = MakeDetailTable(s);
  for (size_t i = 0; i < std::size(rows); ++i)
    EXPECT_EQ(t.rows[rows[i]][1], std::to_string(i + 1) + ".500") << t.rows[rows[i]][0];
}

TEST(DetailTableValues, MomentShapeRowsReadTheFlagsOfTheMyDiagram) {
  State s = NewState(2);
  s.analysis.ShapeY.Curved = True;
  s.analysis.ShapeY.Linear = False;
  s.analysis.ShapeZ.Linear = True;  // the z diagram is not shown
  DetailTable t = MakeDetailTable(s);
  EXPECT_EQ(t.rows[2][1], "q-load");
  EXPECT_EQ(t.rows[3][1], "Curve");

  s.analysis.ShapeY.Curved = False;
  s.analysis.ShapeY.Linear = True;
  s.analysis.ShapeZ.Curved = True;
  t = MakeDetailTable(s);
  EXPECT_EQ(t.rows[2][1], "P-load");
  EXPECT_EQ(t.rows[3][1], "Line");
}

// ---- The dialog ----

TEST(DetailDialog, MoreResultsOpensTheDialogWithTheGridFilled) {
  State s = test::StartedState();
  EventResult r = Fire(s, "CmdResult");
  EXPECT_TRUE(r.known);
  const auto& open = s.view.openDialogs;
  EXPECT_NE(std::find(open.begin(), open.end(), "detailedresult"), open.end());
  ASSERT_EQ(s.view.detailGrid.size(), 55u);
  EXPECT_EQ(s.view.detailGrid[0][0], " Parameter");

  Fire(s, "detailedresult.ok");
  EXPECT_EQ(std::find(open.begin(), open.end(), "detailedresult"), open.end());
}

TEST(DetailDialog, ChangingTheMethodShowsOnTheNextActivate) {
  State s = test::StartedState();
  Fire(s, "setup.rbtnMethod2");
  Fire(s, "CmdResult");
  EXPECT_EQ(s.view.detailGrid[32][0], " Shear area");

  Fire(s, "setup.rbtnMethod1");
  EXPECT_EQ(s.view.detailGrid[32][0], " Shear area");  // not rebuilt until it has the focus
  Fire(s, "detailedresult.Activate");
  EXPECT_EQ(s.view.detailGrid[32][0], " Cyy");
  EXPECT_EQ(s.view.detailGrid[47][0], " Shear area");
  EXPECT_TRUE(s.view.detailGridBold.count(47));

  Fire(s, "setup.rbtnMethod2");
  Fire(s, "detailedresult.Activate");
  EXPECT_EQ(s.view.detailGrid[32][0], " Shear area");
  EXPECT_EQ(s.view.detailGrid[47], DetailRow{});
  EXPECT_FALSE(s.view.detailGridBold.count(47));
}

TEST(DetailDialog, ExportHandsTheGridAsShownToTheSpreadsheet) {
  State s = NewState(2);
  s.checks.Mcr = 123456789;
  BuildDetailTable(s);
  s.checks.Mcr = 0;  // changed after the dialog was filled: the export takes the grid's text
  std::string target;
  std::string exportedMcr;
  s.spreadsheet = [&](const State& st, const std::string& path, std::string*) {
    target = path;
    exportedMcr = st.view.detailGrid[5][1];
    return true;
  };
  EventResult r = Fire(s, "detailedresult.cmdDetailedResult", "/tmp/out.xlsx");
  EXPECT_FALSE(r.refused);
  EXPECT_EQ(target, "/tmp/out.xlsx");
  EXPECT_EQ(exportedMcr, "123.457");
}

TEST(DetailDialog, AFailedExportShowsTheOneMessage) {
  State s = NewState(2);
  BuildDetailTable(s);
  EventResult r = Fire(s, "detailedresult.cmdDetailedResult", "/tmp/out.xlsx");  // no spreadsheet
  EXPECT_TRUE(r.refused);
  EXPECT_EQ(r.message, " Error on tranfere data to Excel ");

  s.spreadsheet = [](const State&, const std::string&, std::string* error) {
    *error = "disk full";
    return false;
  };
  r = Fire(s, "detailedresult.cmdDetailedResult", "/tmp/out.xlsx");
  EXPECT_EQ(r.message, " Error on tranfere data to Excel ");
}

// ---- Values of other inputs ----

// A value the run did not compute is blank, never the one an earlier section left: the LT block of
// an angle (which has no lateral torsional control) after an HEA beam, and XLt of the rolled curve
// when the general curve is in force.
TEST(DetailTableValues, ValuesTheRunDidNotComputeAreBlank) {
  State s = test::StartedState();  // HEA 300 beam with the lateral torsional control
  BuildDetailTable(s);
  ASSERT_NE(s.view.detailGrid[5][1], "");   // Mcr of the HEA
  ASSERT_NE(s.view.detailGrid[10][1], "");  // XLt of the rolled curve
  // Without the lateral torsional control the HEA computes x,LT = 1 but no XLt.
  Fire(s, "ch_vipp", "0");
  BuildDetailTable(s);
  EXPECT_EQ(s.view.detailGrid[10][0], " XLt");
  EXPECT_EQ(s.view.detailGrid[10][1], "");
  EXPECT_EQ(s.view.detailGrid[11][1], "1.000");
  Fire(s, "ch_vipp", "1");
  Fire(s, "vipping.Curve2");  // the general case of 6.3.2.2: XLt is not computed either
  BuildDetailTable(s);
  EXPECT_EQ(s.view.detailGrid[10][1], "");
  EXPECT_NE(s.view.detailGrid[11][1], "");  // XLtmod, the factor in use
  Fire(s, "mnup10");
  ASSERT_EQ(s.project.ProfileType, 10);
  BuildDetailTable(s);
  // XLtmod stays: the angle takes 1.0 for it in its own lines.
  for (int row : {5, 6, 7, 8, 9, 10, 12, 13})
    EXPECT_EQ(s.view.detailGrid[row][1], "") << s.view.detailGrid[row][0];
}

// After a failed run the dialog shows the message alone and its export is refused: no value of the
// run before may leave the program as if it belonged to the inputs that failed.
TEST(DetailDialog, AfterAFailedRunShowsTheMessageAndExportsNothing) {
  State s = test::StartedState();
  bool exported = false;
  s.spreadsheet = [&](const State&, const std::string&, std::string*) { return exported = true; };
  s.project.L = 0;  // not reachable by the field: the run faults
  Recalculate(s);
  ASSERT_TRUE(s.view.txtErrorVisible);
  Fire(s, "CmdResult");
  EXPECT_EQ(s.view.detailGrid[1][0],
            " Calculation Error. Axial load too big. Increase profile or reduce axial force ");
  for (size_t row = 2; row < s.view.detailGrid.size(); ++row) EXPECT_EQ(s.view.detailGrid[row][1], "") << row;
  EventResult r = Fire(s, "detailedresult.cmdDetailedResult", "/tmp/out.xlsx");
  EXPECT_TRUE(r.refused);
  EXPECT_EQ(r.message, kNoResultsText);
  EXPECT_FALSE(exported);
}

}  // namespace
}  // namespace vn
