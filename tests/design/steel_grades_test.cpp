// The steel grade table and the two lists of grades: the main form's and the Setup dialog's.
#include <gtest/gtest.h>

#include "core/events.h"
#include "core/state.h"
#include "design/design_basis.h"
#include "design_test_support.h"

namespace vn {
namespace {

using vn::test::kGradeFile;
using vn::test::TempFolder;

State StateReading(const TempFolder& dir) {
  State s;
  s.appPath = dir.Path();
  ReadSteelGrades(s);
  return s;
}

TEST(SteelGradeFile, NamesAndBothStrengthsOfEachLine) {
  TempFolder dir;
  dir.Write(kSteelGradeFile, kGradeFile);
  State s = StateReading(dir);
  EXPECT_EQ(s.steel.gradeLast, 7);  // 8 lines
  EXPECT_EQ(s.steel.rows[0].name, "S235");
  EXPECT_EQ(s.steel.rows[0].fy40, 235.0f);
  EXPECT_EQ(s.steel.rows[0].fyOver40, 215.0f);
  EXPECT_EQ(s.steel.rows[5].name, "S355 (default)");  // blanks are part of the name
  EXPECT_EQ(s.steel.rows[7].name, "User defined");
  EXPECT_EQ(s.steel.rows[8].name, "");  // beyond the file: untouched
}

TEST(SteelGradeFile, LinesEndingInCarriageReturnAndLineFeed) {
  TempFolder dir;
  dir.Write(kSteelGradeFile,
            "S235\t235\t215\r\nS355\t355.5\t335\r\nUser\t0\t0");  // no end on the last
  State s = StateReading(dir);
  EXPECT_EQ(s.steel.gradeLast, 2);
  EXPECT_EQ(s.steel.rows[1].name, "S355");
  EXPECT_EQ(s.steel.rows[1].fy40, 355.5f);
  EXPECT_EQ(s.steel.rows[1].fyOver40, 335.0f);
  EXPECT_EQ(s.steel.rows[2].name, "User");
}

TEST(SteelGradeFile, ShortOrBadLinesLeaveZerosAndTheReadingGoesOn) {
  TempFolder dir;
  dir.Write(kSteelGradeFile, "S235\t235\nOnly a name\n\nS355\tabc\t335\nS460\t460\t430\n");
  State s = StateReading(dir);
  EXPECT_EQ(s.steel.gradeLast, 4);  // the empty line is a row too
  EXPECT_EQ(s.steel.rows[0].fy40, 235.0f);
  EXPECT_EQ(s.steel.rows[0].fyOver40, 0.0f);
  EXPECT_EQ(s.steel.rows[1].name, "Only a name");
  EXPECT_EQ(s.steel.rows[1].fy40, 0.0f);
  EXPECT_EQ(s.steel.rows[2].name, "");
  EXPECT_EQ(s.steel.rows[3].fy40, 0.0f);
  EXPECT_EQ(s.steel.rows[3].fyOver40, 335.0f);
  EXPECT_EQ(s.steel.rows[4].fyOver40, 430.0f);
}

TEST(SteelGradeFile, MoreThan31LinesLeaveNoUserRow) {
  TempFolder dir;
  std::string text;
  for (int i = 0; i < 34; ++i) text += "G" + std::to_string(i) + "\t" + std::to_string(200 + i) + "\t100\n";
  dir.Write(kSteelGradeFile, text);
  State s = StateReading(dir);
  EXPECT_EQ(s.steel.gradeLast, 33);  // 34 lines - 1: beyond the last row 30
  EXPECT_EQ(s.steel.rows[30].name, "G30");
  EXPECT_EQ(s.steel.rows[30].fy40, 230.0f);
  // Row 30 is a catalogued row now: its strength is taken, not a typed one.
  s.project.fyk = 999;
  Fire(s, "cbofyk", "30");
  EXPECT_EQ(s.project.fyk, 230.0f);
  EXPECT_FALSE(s.view.enabled["ifyk"]);
  // The list has 31 items only.
  EXPECT_TRUE(Fire(s, "cbofyk", "31").refused);
  Fire(s, "setup.Activate");
  EXPECT_EQ(s.view.items["setup.cbofyk"].size(), 31u);
}

TEST(SteelGradeFile, MissingFileLeavesAnEmptyTable) {
  TempFolder dir;
  State s = StateReading(dir);
  EXPECT_EQ(s.steel.gradeLast, -1);
  EXPECT_EQ(s.steel.rows[0].name, "");
  EXPECT_TRUE(Fire(s, "cbofyk", "0").refused);  // an empty list has nothing to choose
  EXPECT_EQ(s.project.steelGrade, 0);
}

TEST(MainSteelList, CatalogedRowTakesItsStrengthAndLocksTheField) {
  TempFolder dir;
  dir.Write(kSteelGradeFile, kGradeFile);
  State s = StateReading(dir);
  s.project.fyk = 999;
  EventResult r = Fire(s, "cbofyk", "3");
  EXPECT_FALSE(r.refused);
  EXPECT_TRUE(r.recalculated);
  EXPECT_EQ(s.project.steelGrade, 3);
  EXPECT_EQ(s.project.fyk, 420.0f);  // fy40 of S420: no section yet, tmax 0 <= 40
  EXPECT_FALSE(s.view.enabled["ifyk"]);
  EXPECT_EQ(s.view.value["cbofyk"], 3);
  // Then the code's factors (neta by fyk) and the formula list.
  EXPECT_EQ(s.project.neta, 1.2f);
  EXPECT_DOUBLE_EQ(s.project.gammaM0, 1.0);
  EXPECT_EQ(s.view.items["setup.lstCombination"].size(), 2u);
}

TEST(MainSteelList, UserRowUnlocksTheFieldAndKeepsTheTypedStrength) {
  TempFolder dir;
  dir.Write(kSteelGradeFile, kGradeFile);
  State s = StateReading(dir);
  s.project.fyk = 500;
  Fire(s, "cbofyk", "7");
  EXPECT_EQ(s.project.steelGrade, 7);
  EXPECT_EQ(s.project.fyk, 500.0f);
  EXPECT_TRUE(s.view.enabled["ifyk"]);
  EXPECT_EQ(s.project.neta, 1.0f);  // 500 > 460
}

TEST(MainSteelList, GradeWithoutStrengthDoesNotStopTheHandler) {
  TempFolder dir;
  dir.Write(kSteelGradeFile, "Broken\nUser\t0\t0\n");
  State s = StateReading(dir);
  s.project.gammaM0 = 1;
  EventResult r = Fire(s, "cbofyk", "0");  // fyk 0: sqrt(235 / 0) can't be formed
  EXPECT_FALSE(r.refused);
  EXPECT_EQ(s.project.fyk, 0.0f);
  EXPECT_FALSE(s.view.enabled["ifyk"]);
  EXPECT_TRUE(r.recalculated);
  EXPECT_EQ(s.project.neta, 1.2f);  // the code's factors still ran: 0 <= 460
}

TEST(SetupSteelList, TwinSetsItsOwnFieldAndTheMainList) {
  TempFolder dir;
  dir.Write(kSteelGradeFile, kGradeFile);
  State s = StateReading(dir);
  s.project.codeIndex = 3;
  Fire(s, "setup.cbofyk", "2");
  EXPECT_EQ(s.project.fyk, 355.0f);
  EXPECT_EQ(s.view.value["setup.cbofyk"], 2);
  EXPECT_FALSE(s.view.enabled["setup.ifyk"]);
  EXPECT_EQ(s.view.text["setup.ifyk"], "355");
  EXPECT_EQ(s.view.value["cbofyk"], 2);      // the main form's list follows
  EXPECT_DOUBLE_EQ(s.project.gammaM0, 1.1);  // Danish factors re-applied
  Fire(s, "setup.cbofyk", "7");
  EXPECT_TRUE(s.view.enabled["setup.ifyk"]);
  EXPECT_EQ(s.view.value["cbofyk"], 7);
  EXPECT_EQ(s.project.fyk, 355.0f);  // the user row keeps the strength in force
}

TEST(SetupSteelList, IndexBeyondTheRowsIsRefused) {
  TempFolder dir;
  dir.Write(kSteelGradeFile, kGradeFile);
  State s = StateReading(dir);
  EXPECT_TRUE(Fire(s, "setup.cbofyk", "8").refused);
  EXPECT_TRUE(Fire(s, "setup.cbofyk", "-1").refused);
  EXPECT_TRUE(Fire(s, "setup.cbofyk", "x").refused);
  EXPECT_EQ(s.project.steelGrade, 0);
}

}  // namespace
}  // namespace vn
