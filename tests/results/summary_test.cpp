// The summary of controls: the three blocks as lines with a colour per ratio, and their plain text.
#include "results/summary.h"

#include <gtest/gtest.h>

#include <sstream>

#include "core/events.h"
#include "core/json.h"
#include "core/pipeline.h"
#include "core/recalculate.h"
#include "results/report.h"
#include "support/test_support.h"

namespace vn::test {
namespace {

ControlText Text(const char* formula, const char* numbers, const char* ratio, const char* limit) {
  return ControlText{formula, numbers, ratio, limit};
}

// A record as the controls leave it, of an HEA with the plain combination texts.
State Recorded() {
  State s;
  Project& p = s.project;
  p.ProfileType = 1;
  p.LoadCombMode = 0;
  p.checkSLS = False;
  p.deflectionLimit = 300;
  p.L = 5;
  p.ltbOn = 0;
  CombinationFactors& c = s.comb;
  c.text610 = "ULS: Eq 6.10: LC = 1.35*G + 1.5*Q1 + 1.5*0.7*Q2";
  c.text610a = "ULS: Eq 6.10a: LC = 1.35*G + 1.5*0.7*Q1 + 1.5*0.7*Q2";
  c.text610b = "ULS: Eq 6.10b: LC = 0.85*1.35*G + 1.5*Q1 + 1.5*0.7*Q2";
  c.textSLS = "SLS: Eq 6.14a: LC = G + Q1 + 0.7*Q2";
  c.textULSUser = "ULS: 1.35*G + 1.50*Q1 + 1.50*Q2";
  c.textSLSUser = "SLS: 1.00*G + 1.00*Q1 + 1.00*Q2";
  c.textBasic = "Basic loads: G + Q1 + Q2";
  return s;
}

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> out;
  std::istringstream in(text);
  for (std::string l; std::getline(in, l);) out.push_back(l);
  return out;
}

// The default project, whose section control is worked by hand in the checks tests:
// HEA 300 S355, NEd = 135 kN, MyEd = 42.1875 kNm, VzEd = 33.75 kN; My,Rd = 447.0552 kNm,
// NcRd = 3993.75 kN, Vz,Rd = 763.4736 kN.
TEST(SummaryText, DefaultProjectDigitForDigit) {
  State s = StartedState();
  const std::vector<std::string> lines = Lines(SummaryText(s));
  ASSERT_GE(lines.size(), 6u);
  EXPECT_EQ(lines[0], "Governing Loadcase: EN1990 ULS: Eq 6.10: LC = 1.35*G + 1.5*Q1 + 1.5*0.7*Q2");
  EXPECT_EQ(lines[1], "");
  EXPECT_EQ(lines[2], "SECTION CONTROL:");
  EXPECT_EQ(lines[3],
            "IR = My,Ed/My,Rd = 42.2/447.1 =                        "
            "0.09 [OK]     < 1.0 (0.50L; Ch 6.2.5)");
  EXPECT_EQ(lines[4],
            "IR = NEd/NRd+My,Ed/My,Rd = 135.0/3993.8+42.2/447.1 =   "
            "0.13 [OK]     < 1.0 (0.50L; Ch 6.2.1/6.2.9)");
  EXPECT_EQ(lines[5],
            "IR = Vz,Ed/Vz,Rd = 33.8/763.5 =                        "
            "0.04 [OK]     < 1.0 (0.00L; Ch 6.2.6)");
  // The view state behind it: the load case name keeps its trailing blank.
  const std::vector<SummaryLine>& v = s.view.summary;
  ASSERT_GE(v.size(), 5u);
  EXPECT_EQ(v[0].left, "Governing Loadcase:");
  EXPECT_EQ(v[0].note, "EN1990 ULS: Eq 6.10: LC = 1.35*G + 1.5*Q1 + 1.5*0.7*Q2 ");
  EXPECT_TRUE(v[1].title);
  EXPECT_EQ(v[1].left, "SECTION CONTROL:");
  EXPECT_EQ(v[2].left, "IR = My,Ed/My,Rd = 42.2/447.1 = ");
  EXPECT_EQ(v[2].ratio, "0.09");
  EXPECT_EQ(v[2].colour, 2);
  EXPECT_EQ(v[2].limit, " < 1.0 (0.50L; Ch 6.2.5)");
}

// The rules in force are named on the summary's first line, in the report and in the JSON; the
// default rules add nothing to the summary or the report.
TEST(RulesInForce, TheStrictRulesAreNamedAndTheDefaultLeavesTheTextsAsTheyWere) {
  State s = StartedState();
  const std::string plainReport = ReportText(BuildReport(s, ReportKind::Stability, "1.1.2026", "12:00:00"));
  EXPECT_EQ(plainReport.find("Rules"), std::string::npos);
  EXPECT_NE(StateToJson(s).find("\"Rules\":\"as specified\""), std::string::npos);
  Fire(s, "setup.strict", "1");
  EXPECT_EQ(Lines(SummaryText(s))[0],
            "Governing Loadcase: EN1990 ULS: Eq 6.10: LC = 1.35*G + 1.5*Q1 + 1.5*0.7*Q2    [Rules: EN 1993 "
            "strict]");
  for (ReportKind kind : {ReportKind::SectionCapacity, ReportKind::Stability}) {
    const std::string report = ReportText(BuildReport(s, kind, "1.1.2026", "12:00:00"));
    EXPECT_NE(report.find("Rules: "), std::string::npos);
    EXPECT_NE(report.find("EN 1993 strict"), std::string::npos);
  }
  EXPECT_NE(StateToJson(s).find("\"Rules\":\"EN 1993 strict\""), std::string::npos);
  Fire(s, "setup.strict", "x");  // a damaged value is the default rules
  EXPECT_EQ(s.project.strictRules, False);
  EXPECT_EQ(Lines(SummaryText(s))[0],
            "Governing Loadcase: EN1990 ULS: Eq 6.10: LC = 1.35*G + 1.5*Q1 + 1.5*0.7*Q2");
}

TEST(ShowControls, NoForcesLeaveTheSectionTitleAlone) {
  State s = Recorded();
  ShowControls(s);
  ASSERT_EQ(s.view.summary.size(), 2u);
  EXPECT_EQ(s.view.summary[1].left, "SECTION CONTROL:");
  EXPECT_TRUE(s.view.summary[1].title);
  EXPECT_EQ(s.view.summary[1].note, "");
}

TEST(ShowControls, RedRatioKeepsItsLimitTextAndOnlyTheColourTells) {
  State s = Recorded();
  s.checks.secText[1] = Text("IR = My,Ed/My,Rd = ", "632.8/447.1 = ", "1.42", " < 1.0 (0.50L; Ch 6.2.5)");
  s.checks.colSec[1] = 4;
  s.checks.secText[3] = Text("IR = Vz,Ed/Vz,Rd = ", "506.3/763.5 = ", "0.66", " < 1.0 (0.00L; Ch 6.2.6)");
  s.checks.colSec[3] = 2;
  ShowControls(s);
  ASSERT_EQ(s.view.summary.size(), 4u);  // group 2 has no formula: no line
  EXPECT_EQ(s.view.summary[2].colour, 4);
  EXPECT_EQ(s.view.summary[2].limit, " < 1.0 (0.50L; Ch 6.2.5)");
  const std::vector<std::string> lines = Lines(SummaryText(s));
  ASSERT_EQ(lines.size(), 5u);
  EXPECT_EQ(lines[3], "IR = My,Ed/My,Rd = 632.8/447.1 =   1.42 [NOT OK] < 1.0 (0.50L; Ch 6.2.5)");
  EXPECT_EQ(lines[4], "IR = Vz,Ed/Vz,Rd = 506.3/763.5 =   0.66 [OK]     < 1.0 (0.00L; Ch 6.2.6)");
}

TEST(ShowControls, CheckPointsAsEnteredJoinedBySlashes) {
  State s = Recorded();
  Project& p = s.project;
  p.ChPointMode = 1;
  p.ChPointCount = 3;
  p.ChPointX = {0, 1, 2.5f, 4};
  ShowControls(s);
  EXPECT_EQ(s.view.summary[1].note, " At: x= 1.00 / 2.50 / 4.00 (m)");
  // Entered as x/L: the record holds metres, the summary shows x/L (L = 5 m).
  p.ChPointRelative = 1;
  p.ChPointCount = 2;
  ShowControls(s);
  EXPECT_EQ(s.view.summary[1].note, " At: x= 0.20 / 0.50 (L)");
  EXPECT_EQ(Lines(SummaryText(s))[2], "SECTION CONTROL: At: x= 0.20 / 0.50 (L)");
}

TEST(ShowControls, GoverningLoadcaseByMode) {
  State s = Recorded();
  Project& p = s.project;
  EXPECT_EQ(GoverningLoadcaseText(s), "EN1990 ULS: Eq 6.10: LC = 1.35*G + 1.5*Q1 + 1.5*0.7*Q2 ");
  p.checkSLS = True;
  EXPECT_EQ(GoverningLoadcaseText(s),
            "EN1990 ULS: Eq 6.10: LC = 1.35*G + 1.5*Q1 + 1.5*0.7*Q2 "
            " / EN1990 SLS: Eq 6.14a: LC = G + Q1 + 0.7*Q2");
  p.LoadCombMode = 3;
  s.analysis.GoverningEquation = 1;
  EXPECT_EQ(GoverningLoadcaseText(s).rfind("EN1990 ULS: Eq 6.10a:", 0), 0u);
  s.analysis.GoverningEquation = 2;
  EXPECT_EQ(GoverningLoadcaseText(s).rfind("EN1990 ULS: Eq 6.10b:", 0), 0u);
  p.LoadCombMode = 4;
  EXPECT_EQ(GoverningLoadcaseText(s), "ULS: 1.35*G + 1.50*Q1 + 1.50*Q2 / SLS: 1.00*G + 1.00*Q1 + 1.00*Q2");
  p.checkSLS = False;
  EXPECT_EQ(GoverningLoadcaseText(s), "ULS: 1.35*G + 1.50*Q1 + 1.50*Q2");
  p.LoadCombMode = 5;
  EXPECT_EQ(GoverningLoadcaseText(s), "Basic loads: G + Q1 + Q2");
}

TEST(ShowControls, BucklingBlockWithItsOwnLeftTexts) {
  State s = Recorded();
  s.project.ltbOn = 1;
  Checks& k = s.checks;
  k.buckTextY = Text("IR = NEd/(Xy*NRd)", "135.0/(0.95*3993.8)", "0.04", " < 1.0 (Ch 6.3.1)");
  k.colBuckY = 2;
  k.buckTextLT = Text("IR = My,Ed/(XLT*My,Rd) = ", "42.2/(0.90*447.1) = ", "0.10", " < 1.0 (Ch 6.3.2)");
  k.colLT = 2;
  ShowControls(s);
  const std::vector<SummaryLine>& v = s.view.summary;
  ASSERT_EQ(v.size(), 5u);
  EXPECT_EQ(v[2].left, "BUCKLING CONTROL:");
  EXPECT_EQ(v[2].note, " (incl Lateral Torsional Buckling)");
  EXPECT_TRUE(v[2].title);
  EXPECT_EQ(v[3].left, "IR = NEd/(Xy*NRd) = 135.0/(0.95*3993.8) =");
  EXPECT_EQ(v[4].left, "IR = My,Ed/(XLT*My,Rd) = 42.2/(0.90*447.1) = ");
  s.project.ltbOn = 0;
  ShowControls(s);
  EXPECT_EQ(s.view.summary[2].note, "");
}

TEST(ShowControls, NoBucklingBlockForHsqAndTheUnequalBox) {
  for (int type : {24, 25, 27}) {
    State s = Recorded();
    s.project.ProfileType = static_cast<Integer>(type);
    s.checks.buckTextZ = Text("IR = NEd/(Xz*NRd)", "1.0/(1.00*10.0)", "0.10", " < 1.0");
    ShowControls(s);
    EXPECT_EQ(s.view.summary.size(), 2u) << type;
  }
}

TEST(ShowControls, DeflectionBlockOnlyWithTheServiceabilityCheck) {
  State s = Recorded();
  Analysis& an = s.analysis;
  an.deflTextZ = Text("IR = dz/dzMax = ", "2.1/16.7 = ", "0.13", " < 1.0");
  an.colDeflZ = 2;
  an.deflTextY = Text("IR = dy/dyMax = ", "-20.0/16.7 = ", "1.20", " < 1.0");
  an.colDeflY = 4;
  ShowControls(s);
  EXPECT_EQ(s.view.summary.size(), 2u);  // checkSLS off
  s.project.checkSLS = True;
  ShowControls(s);
  const std::vector<SummaryLine>& v = s.view.summary;
  ASSERT_EQ(v.size(), 5u);
  EXPECT_EQ(v[2].left, "DEFLECTION CONTROL:");
  EXPECT_EQ(v[2].note, " (L/300)");
  EXPECT_EQ(v[3].left, "IR = dz/dzMax = 2.1/16.7 = ");
  EXPECT_EQ(v[3].limit, " < 1.0      ");
  EXPECT_EQ(v[4].left, "IR = dy/dyMax = -20.0/16.7 = ");
  EXPECT_EQ(v[4].colour, 4);
  const std::vector<std::string> lines = Lines(SummaryText(s));
  EXPECT_EQ(lines.back(), "IR = dy/dyMax = -20.0/16.7 =   1.20 [NOT OK] < 1.0");
}

// The verdict line: the largest ratio of the lines shown governs, with its block, its formula
// without the closing "=" and its clause; any red line makes the run NOT OK.
TEST(ShowVerdict, LargestShownRatioGovernsWithItsFormulaAndClause) {
  State s = Recorded();
  Checks& k = s.checks;
  k.secText[1] = Text("IR = My,Ed/My,Rd = ", "42.2/447.1 = ", "0.09", " < 1.0 (0.50L; Ch 6.2.5)");
  k.IRsec[1] = 42.2 / 447.1;
  k.colSec[1] = 2;
  k.buckTextZ = Text("IR = NEd/(Xz*NRd)", "135.0/(0.60*3993.8)", "0.06", " < 1.0 (Ch 6.3.1)");
  k.IRbuckZ = 135.0 / (0.60 * 3993.8);
  k.colBuckZ = 2;
  k.buckTextLT = Text("IR = My,Ed/(xLT*My,Rd) = ", "42.2/(0.85*447.1) = ", "0.11", " < 1.0 (Ch 6.3.2)");
  k.IRbuckLT = 42.2 / (0.85 * 447.1);
  k.colLT = 2;
  ShowControls(s);
  EXPECT_EQ(s.view.verdict,
            "OK: governing IR = 0.11 <= 1.0, buckling control: IR = My,Ed/(xLT*My,Rd) (Ch 6.3.2)");
  EXPECT_EQ(s.view.verdictColour, 2);

  // A deflection of L/250 against L/300 (20.0 / 16.7 = 1.20) governs and fails.
  Analysis& an = s.analysis;
  s.project.checkSLS = True;
  an.deflTextZ = Text("IR = dz/dzMax = ", "20.0/16.7 = ", "1.20", " < 1.0");
  an.IRdeflZ = 20.0f / 16.7f;
  an.colDeflZ = 4;
  ShowControls(s);
  EXPECT_EQ(s.view.verdict, "NOT OK: governing IR = 1.20 > 1.0, deflection control: IR = dz/dzMax (L/300)");
  EXPECT_EQ(s.view.verdictColour, 4);
  // The specified summary text is not touched by the verdict.
  EXPECT_EQ(Lines(SummaryText(s))[0],
            "Governing Loadcase: EN1990 ULS: Eq 6.10: LC = 1.35*G + 1.5*Q1 + 1.5*0.7*Q2 "
            " / EN1990 SLS: Eq 6.14a: LC = G + Q1 + 0.7*Q2");
}

// A ratio whose kept number lags behind its text is read from the text: the verdict never reads
// lower than the summary beside it. A red line fails the run whatever the numbers say.
TEST(ShowVerdict, NeverReadsLowerThanTheSummary) {
  State s = Recorded();
  Checks& k = s.checks;
  k.secText[1] = Text("IR = My,Ed/My,Rd = ", "632.8/447.1 = ", "1.42", " < 1.0 (0.50L; Ch 6.2.5)");
  k.IRsec[1] = 0;  // not kept as a number
  k.colSec[1] = 4;
  k.secText[3] = Text("IR = Vz,Ed/Vz,Rd = ", "506.3/763.5 = ", "0.66", " < 1.0 (0.00L; Ch 6.2.6)");
  k.IRsec[3] = 506.3 / 763.5;
  k.colSec[3] = 2;
  ShowControls(s);
  EXPECT_EQ(s.view.verdict,
            "NOT OK: governing IR = 1.42 > 1.0, section control: IR = My,Ed/My,Rd (Ch 6.2.5)");
  EXPECT_EQ(s.view.verdictColour, 4);
}

TEST(ShowVerdict, NoControlLineNoVerdictAndNoneAfterAFailedRun) {
  State s = Recorded();
  ShowControls(s);
  EXPECT_EQ(s.view.verdict, "");
  State started = StartedState();
  EXPECT_EQ(started.view.verdict.rfind("OK: governing IR = ", 0), 0u);
  started.section = Section{};
  started.project.SelectedRow[0] = 999;
  Recalculate(started);
  ASSERT_FALSE(started.resultsValid);
  EXPECT_EQ(started.view.verdict, "");
  EXPECT_EQ(started.view.verdictColour, 0);
}

TEST(SummaryText, AFailedRunShowsTheMessageAlone) {
  State s = StartedState();
  s.section = Section{};  // nothing to compute with: the run faults in the section stage
  s.project.ProfileType = 1;
  s.project.SelectedRow[0] = 999;
  Recalculate(s);
  ASSERT_TRUE(s.view.txtErrorVisible);
  const std::string after = SummaryText(s);
  EXPECT_EQ(
      after.rfind(" Calculation Error. Axial load too big. Increase profile or reduce axial force\n", 0), 0u);
  EXPECT_EQ(after, " Calculation Error. Axial load too big. Increase profile or reduce axial force\n");
}

}  // namespace
}  // namespace vn::test
