// The small dialogs of the analysis: calculation points, end forces, buckling length factors, and
// the main form's entries that open them.
#include <gtest/gtest.h>

#include "analysis/member_analysis.h"
#include "core/events.h"
#include "core/recalculate.h"
#include "core/state.h"

namespace vn {
namespace {

State NewState(bool decimalComma = false) {
  State s;
  s.decimalComma = decimalComma;
  NewProject(s);
  return s;
}

// ---- Calculation points ----

TEST(CheckPointDialog, ARelativeValueIsStoredInMetres) {
  State s = NewState();
  s.project.L = 4;
  Fire(s, "chpoints.cprelative");
  EventResult r = Fire(s, "chpoints.icp(1)", "0.5");
  EXPECT_FALSE(r.refused);
  EXPECT_EQ(s.project.ChPointX[1], 2.0f);
  EXPECT_EQ(s.view.text["chpoints.icp(1)"], "0.500");
  EXPECT_TRUE(r.recalculated);
}

TEST(CheckPointDialog, ZeroIsALegalPointUnlikeALoadPosition) {
  State s = NewState();
  EventResult r = Fire(s, "chpoints.icp(2)", "0");
  EXPECT_FALSE(r.refused);
  EXPECT_EQ(s.project.ChPointX[2], 0.0f);
}

TEST(CheckPointDialog, OutOfRangeClearsThePointWithTheLoadFieldsMessage) {
  State s = NewState();
  s.project.L = 5;
  EventResult r = Fire(s, "chpoints.icp(3)", "5.5");
  EXPECT_EQ(r.message, " 0 < x <= l ");
  EXPECT_EQ(r.focus, "chpoints.icp(3)");
  EXPECT_EQ(s.project.ChPointX[3], 0.0f);
  EXPECT_FALSE(r.recalculated);
  Fire(s, "chpoints.cprelative");
  r = Fire(s, "chpoints.icp(1)", "1.2");
  EXPECT_EQ(r.message, " 0 <= x <= 1 ");
  EXPECT_EQ(s.project.ChPointX[1], 0.0f);
}

TEST(CheckPointDialog, EnterGoesToTheNextVisiblePointOrToOk) {
  State s = NewState();
  Fire(s, "chpoints.no_cp2");
  EXPECT_EQ(s.project.ChPointCount, 2);
  EXPECT_EQ(Fire(s, "chpoints.icp(1)", "1").focus, "chpoints.icp(2)");
  EXPECT_EQ(Fire(s, "chpoints.icp(2)", "2").focus, "chpoints.ok");
  EXPECT_FALSE(s.view.visible["chpoints.icp(3)"]);
}

TEST(CheckPointDialog, ModeOptionsShowTheFrameOfPoints) {
  State s = NewState();
  Fire(s, "chpoints.cp_1");
  EXPECT_EQ(s.project.ChPointMode, 1);
  EXPECT_TRUE(s.view.visible["chpoints.fr_cp"]);
  Fire(s, "chpoints.cp_0");
  EXPECT_EQ(s.project.ChPointMode, 0);
  EXPECT_FALSE(s.view.visible["chpoints.fr_cp"]);
}

// ---- End forces ----

TEST(EndForceDialog, AFieldIsStoredWithOneDecimalAndRecalculates) {
  State s = NewState();
  EventResult r = Fire(s, "endforce.imy2", "-35,25");
  EXPECT_EQ(s.project.My12[2], -35.25f);
  EXPECT_EQ(s.view.text["endforce.imy2"], "-35.3");
  EXPECT_EQ(r.focus, "endforce.ivz1");
  EXPECT_TRUE(r.recalculated);
  Fire(s, "endforce.ine", "250");
  EXPECT_EQ(s.project.NEndForce, 250.0f);
}

TEST(EndForceDialog, AMismatchIsToldAndRecalculatesAllTheSame) {
  State s = NewState(true);
  EventResult r = Fire(s, "endforce.ivy1", "abc");
  EXPECT_EQ(r.message, "Input string mismatch ");
  EXPECT_TRUE(r.recalculated);
  EXPECT_EQ(s.project.Vy12[1], 0.0f);
}

TEST(EndForceDialog, EnterAfterVz2FollowsTheFieldsOfTheFamily) {
  State s = NewState();
  EXPECT_EQ(Fire(s, "endforce.ivz2", "1").focus, "endforce.imz1");
  s.project.ProfileType = 25;
  EXPECT_EQ(Fire(s, "endforce.ivz2", "1").focus, "endforce.imy1");
}

TEST(EndForceDialog, TheMenuEntryEntersEndForceModeOnASimpleSupport) {
  State s = NewState();
  s.project.SupportType = 3;
  EventResult r = Fire(s, "mnuendforces");
  EXPECT_TRUE(r.recalculated);
  EXPECT_EQ(s.project.AnalysisMode, 0);
  EXPECT_EQ(s.project.SupportType, 0);
  EXPECT_FALSE(s.view.visible["frLc"]);
  EXPECT_TRUE(DialogOpen(s.view, "endforce"));
  EXPECT_EQ(s.view.text["endforce.imy1"], "100.0");
  EXPECT_EQ(s.view.text["endforce.ivz1"], "50.0");
}

TEST(EndForceDialog, AOneAxisFamilyHidesTheForcesAboutZ) {
  State s = NewState();
  s.project.ProfileType = 27;
  Fire(s, "endforce.Activate");
  EXPECT_FALSE(s.view.visible["endforce.imz1"]);
  EXPECT_TRUE(s.view.visible["endforce.imy1"]);
  s.project.ProfileType = 26;
  Fire(s, "endforce.Activate");
  EXPECT_FALSE(s.view.visible["endforce.imy1"]);
}

// ---- Buckling length factors ----

TEST(BucklingDialog, ACaseButtonSetsCaseAndFactor) {
  State s = NewState();
  Fire(s, "bucklingy.bucklingy3");
  EXPECT_EQ(s.project.bucklingCaseY, 3);
  EXPECT_EQ(s.project.bucklingFactorY, 0.7f);
  EXPECT_EQ(s.view.text["ibly"], "0.70");
  Fire(s, "bucklingz.bucklingz5");
  EXPECT_EQ(s.project.bucklingCaseZ, 5);
  EXPECT_EQ(s.project.bucklingFactorZ, 0.001f);  // the only way under 0.2
  EXPECT_EQ(s.view.value["cbuttbucklingz"], 5);
  Fire(s, "bucklingz.bucklingz1");
  EXPECT_EQ(s.project.bucklingFactorZ, 2.0f);
}

TEST(BucklingDialog, ActivationMarksTheCurrentCase) {
  State s = NewState();
  s.project.bucklingCaseY = 6;
  Fire(s, "bucklingy.Activate");
  EXPECT_EQ(s.view.value["bucklingy.bucklingy6"], 1);
  EXPECT_EQ(s.view.value["bucklingy.bucklingy2"], 0);
}

TEST(BucklingLength, TheSupportTypeSetsTheCaseButLeavesTheUsersChoice) {
  State s = NewState();
  Project& p = s.project;
  p.SupportType = 2;
  ApplySupportTypeToBuckling(s);
  EXPECT_EQ(p.bucklingCaseY, 4);
  EXPECT_EQ(p.bucklingFactorY, 0.5f);
  p.SupportType = 4;
  ApplySupportTypeToBuckling(s);
  EXPECT_EQ(p.bucklingFactorZ, 2.0f);
  p.SupportType = 1;
  ApplySupportTypeToBuckling(s);
  EXPECT_EQ(p.bucklingFactorY, 0.7f);
  // A typed factor of 0.85 (case 6) and case 5 stay.
  p.bucklingCaseY = 6;
  p.bucklingFactorY = 0.85f;
  p.bucklingCaseZ = 5;
  p.bucklingFactorZ = 0.001f;
  p.SupportType = 5;
  ApplySupportTypeToBuckling(s);
  EXPECT_EQ(p.bucklingFactorY, 0.85f);
  EXPECT_EQ(p.bucklingFactorZ, 0.001f);
  p.bucklingCaseY = 3;
  ApplySupportTypeToBuckling(s);
  EXPECT_EQ(p.bucklingCaseY, 2);
  EXPECT_EQ(p.bucklingFactorY, 1.0f);
}

// ---- Modal results ----

TEST(ModalDialog, TheResultButtonWorksOnlyWhileModalAnalysisIsOn) {
  State s = NewState();
  EventResult r = Fire(s, "cmd_modresult");
  EXPECT_FALSE(r.recalculated);
  s.project.chModal = 1;
  r = Fire(s, "cmd_modresult");
  EXPECT_TRUE(r.recalculated);
  EXPECT_TRUE(DialogOpen(s.view, "Modal_ns"));
}

// ---- The main form's buttons and pictures ----

TEST(AnalysisDialogs, TheMainFormsButtonsOpenTheirDialogs) {
  State s = NewState();
  s.project.bucklingCaseZ = 4;
  Fire(s, "cbuttbucklingz");
  EXPECT_TRUE(DialogOpen(s.view, "bucklingz"));
  EXPECT_EQ(s.view.value["bucklingz.bucklingz4"], 1);  // the case in force is marked
  Fire(s, "bucklingz.ok");
  EXPECT_FALSE(DialogOpen(s.view, "bucklingz"));
  Fire(s, "cp");
  EXPECT_TRUE(DialogOpen(s.view, "chpoints"));
  Fire(s, "chpoints.ok");
  EXPECT_FALSE(DialogOpen(s.view, "chpoints"));
}

TEST(AnalysisDialogs, AClickOnAChartOpensTheLoadsOfTheModeInForce) {
  State s = NewState();
  s.view.visible["PicMy"] = true;  // a chart takes a click where it is shown
  Fire(s, "PicMy");
  EXPECT_TRUE(DialogOpen(s.view, "Loading"));
  EXPECT_FALSE(DialogOpen(s.view, "endforce"));
  Fire(s, "Loading.ok");
  s.project.AnalysisMode = 0;
  Fire(s, "PicLoadZ");
  EXPECT_TRUE(DialogOpen(s.view, "endforce"));
  EXPECT_EQ(s.project.AnalysisMode, 0);
}

}  // namespace
}  // namespace vn
