// The Loading dialog through its controls: fields, buttons, ticks, and the checks on closing.
#include <gtest/gtest.h>

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

// ---- Fields ----

TEST(LoadingFields, AValueIsStoredShownWithOneDecimalAndRecalculated) {
  State s = NewState();
  EventResult r = Fire(s, "Loading.iq(2)", "5,25");
  EXPECT_FALSE(r.refused);
  EXPECT_TRUE(r.recalculated);
  EXPECT_EQ(s.loads.uniform[2].q, 5.25f);
  EXPECT_EQ(s.view.text["Loading.iq(2)"], "5.3");
  Fire(s, "Loading.inn(3)", "-12");
  EXPECT_EQ(s.loads.axial[3].N, -12.0f);
  Fire(s, "Loading.ipm(8)", "7.5");
  EXPECT_EQ(s.loads.point[8].Value, 7.5f);
}

TEST(LoadingFields, AnUnreadableValueIsAMismatchUnderADecimalComma) {
  State s = NewState(true);
  s.loads.uniform[1].q = 10;
  EventResult r = Fire(s, "Loading.iq(1)", "abc");
  EXPECT_EQ(r.message, "Input string mismatch ");
  EXPECT_EQ(r.focus, "Loading.iq(1)");
  EXPECT_EQ(s.loads.uniform[1].q, 10.0f);
}

TEST(LoadingFields, ARelativePositionIsStoredInMetres) {
  State s = NewState();
  s.project.L = 4;
  Fire(s, "Loading.pmxrelative");
  EXPECT_EQ(s.loads.PointLoadXRelative, 1);
  EventResult r = Fire(s, "Loading.ipmx(1)", "0.5");
  EXPECT_FALSE(r.refused);
  EXPECT_EQ(s.loads.point[1].x, 2.0f);  // 0.5 * 4
  EXPECT_EQ(s.view.text["Loading.ipmx(1)"], "0.500");
  EXPECT_EQ(s.view.text["Loading.pmx"], "x/L");
}

TEST(LoadingFields, APositionOutOfRangeIsClearedWithItsMessage) {
  State s = NewState();
  s.project.L = 4;
  s.loads.point[2].x = 1;
  Fire(s, "Loading.pmxrelative");
  EventResult r = Fire(s, "Loading.ipmx(2)", "1.5");
  EXPECT_EQ(r.message, " 0 < x <= 1 ");
  EXPECT_EQ(r.focus, "Loading.ipmx(2)");
  EXPECT_EQ(s.loads.point[2].x, 0.0f);
  Fire(s, "Loading.pmxabsolute");
  r = Fire(s, "Loading.ipmx(2)", "0");  // 0 is no place for a load
  EXPECT_EQ(r.message, " 0 < x <= l ");
  r = Fire(s, "Loading.ipmx(2)", "4");  // the end is, here
  EXPECT_FALSE(r.refused);
  EXPECT_EQ(s.loads.point[2].x, 4.0f);
  r = Fire(s, "Loading.iqtx1(1)", "4.5");
  EXPECT_EQ(r.message, " 0 < x1 <= l ");
  Fire(s, "Loading.qtxrelative");
  r = Fire(s, "Loading.iqtx2(3)", "-0.1");
  EXPECT_EQ(r.message, " 0 < x2 <= 1 ");
}

// ---- Buttons and ticks ----

TEST(LoadingButtons, TheCaseButtonCyclesGQ1Q2) {
  State s = NewState();
  EXPECT_EQ(s.loads.axial[1].Case, 0.0f);
  Fire(s, "Loading.inn_gq(1)");
  EXPECT_EQ(s.loads.axial[1].Case, 1.0f);
  EXPECT_EQ(s.view.text["Loading.inn_gq(1)"], "Q1");
  Fire(s, "Loading.inn_gq(1)");
  EXPECT_EQ(s.view.text["Loading.inn_gq(1)"], "Q2");
  Fire(s, "Loading.inn_gq(1)");
  EXPECT_EQ(s.loads.axial[1].Case, 0.0f);
  EXPECT_EQ(s.view.text["Loading.inn_gq(1)"], "G");
  // A case held as 1.5 (read from a file) is Q2, and the next click gives G.
  s.loads.trapezoid[2].Case = 1.5f;
  Fire(s, "Loading.iqt_gq(2)");
  EXPECT_EQ(s.loads.trapezoid[2].Case, 0.0f);
}

TEST(LoadingButtons, KindAndDirectionCaptionsFollowEachOther) {
  State s = NewState();
  EXPECT_EQ(s.loads.point[3].Dir, 1);
  Fire(s, "Loading.ipm_yz(3)");
  EXPECT_EQ(s.loads.point[3].Dir, 0);
  EXPECT_EQ(s.view.text["Loading.ipm_yz(3)"], "Y");
  Fire(s, "Loading.ipm_pm(3)");
  EXPECT_EQ(s.loads.point[3].Kind, 1);
  EXPECT_EQ(s.view.text["Loading.ipm_pm(3)"], "M");
  EXPECT_EQ(s.view.text["Loading.ipm_yz(3)"], "Mz");
  Fire(s, "Loading.ipm_yz(3)");
  EXPECT_EQ(s.view.text["Loading.ipm_yz(3)"], "My");
  Fire(s, "Loading.iq_yz(4)");
  EXPECT_EQ(s.loads.uniform[4].Dir, 0);
  Fire(s, "Loading.iqt_yz(1)");
  EXPECT_EQ(s.loads.trapezoid[1].Dir, 0.0f);
}

TEST(LoadingButtons, TicksAndTheSelfweightBox) {
  State s = NewState();
  Fire(s, "Loading.ch_pm(5)", "1");
  EXPECT_EQ(s.loads.point[5].Checked, True);
  Fire(s, "Loading.ch_q(1)", "0");
  EXPECT_EQ(s.loads.uniform[1].Checked, False);
  Fire(s, "Loading.check_selfweight", "1");
  EXPECT_EQ(s.project.SelfweightOn, 1);
}

TEST(LoadingButtons, TheModeDecidesWhichFramesShow) {
  State s = NewState();
  Fire(s, "Loading.CboLoadComb", "5");
  EXPECT_EQ(s.project.LoadCombMode, 5);
  EXPECT_TRUE(s.view.visible["Loading.frN"]);
  EXPECT_TRUE(s.view.visible["Loading.CmdRemove"]);
  EXPECT_FALSE(s.view.visible["Loading.frPsi"]);
  Fire(s, "Loading.CboLoadComb", "4");
  EXPECT_FALSE(s.view.visible["Loading.frPM"]);
  EXPECT_FALSE(s.view.visible["Loading.frPsi"]);
  Fire(s, "Loading.CboLoadComb", "3");
  EXPECT_TRUE(s.view.visible["Loading.frPsi"]);
  EXPECT_FALSE(s.view.visible["Loading.CmdRemove"]);
}

TEST(LoadingButtons, RemoveAllCheckedLoadsClearsTheTickedRows) {
  State s = NewState();
  s.project.LoadCombMode = 5;
  s.loads.point[2] = {0, 5, 2, 0, 1, True};
  s.loads.point[3] = {0, 6, 3, 0, 1, False};
  Fire(s, "Loading.CmdRemove");
  EXPECT_EQ(s.loads.axial[1].N, 0.0f);  // slot 1 of each table is ticked in a new project
  EXPECT_EQ(s.loads.uniform[1].q, 0.0f);
  EXPECT_EQ(s.loads.point[2].Value, 0.0f);
  EXPECT_EQ(s.loads.point[2].x, 0.0f);
  EXPECT_EQ(s.loads.point[3].Value, 6.0f);
}

// ---- Closing ----

TEST(LoadingClose, ATrapezoidIsCutToTheMemberAndDisappearsWhenWhollyBeyond) {
  State s = NewState();
  s.project.L = 5;
  s.loads.trapezoid[1] = {2, 3, 4, 7, 0, 1.0f, False};
  s.loads.trapezoid[2] = {2, 3, 5, 6, 0, 1.0f, False};
  s.loads.trapezoid[3] = {0, 0, 1, 2, 0, 1.0f, False};
  EventResult r = Fire(s, "Loading.ok");
  EXPECT_FALSE(r.refused);
  EXPECT_EQ(s.loads.trapezoid[1].x2, 5.0f);
  EXPECT_EQ(s.loads.trapezoid[1].x1, 4.0f);
  EXPECT_EQ(s.loads.trapezoid[2].q1, 0.0f);
  EXPECT_EQ(s.loads.trapezoid[2].x1, 0.0f);
  // No values: no positions.
  EXPECT_EQ(s.loads.trapezoid[3].x1, 0.0f);
  EXPECT_EQ(s.loads.trapezoid[3].x2, 0.0f);
}

TEST(LoadingClose, OppositeSignsKeepTheDialogOpen) {
  State s = NewState();
  s.loads.trapezoid[2] = {2, -3, 1, 2, 0, 1.0f, False};
  s.loads.trapezoid[3] = {1, 1, 3, 2, 0, 1.0f, False};  // also wrong, but only one box is shown
  EventResult r = Fire(s, "Loading.ok");
  EXPECT_EQ(r.message, " Trapezoidal load: One positive and one negative value ");
  EXPECT_EQ(r.focus, "Loading.iqt1(2)");
}

TEST(LoadingClose, PositionsMustRiseButMayBeEqual) {
  State s = NewState();
  s.loads.trapezoid[1] = {1, 1, 2, 2, 0, 1.0f, False};
  s.loads.trapezoid[3] = {1, 1, 3, 2, 0, 1.0f, False};
  EventResult r = Fire(s, "Loading.Unload");
  EXPECT_EQ(r.message, " x1 < x2 ");
  EXPECT_EQ(r.focus, "Loading.iqtx1(3)");
}

TEST(LoadingClose, AZeroValueLosesItsPosition) {
  State s = NewState();
  s.loads.point[4] = {0, 0, 2, 0, 1, False};
  Fire(s, "Loading.ok");
  EXPECT_EQ(s.loads.point[4].x, 0.0f);
}

struct SupportCase {
  int supportType;
  int kind;
  Single x;
  bool kept;
};

TEST(LoadingClose, PointLoadsWhereTheSupportTakesThemAreRemovedSilently) {
  const SupportCase cases[] = {
      {4, 0, 5, true},  {0, 0, 5, false}, {2, 0, 5, false}, {5, 0, 5, false}, {0, 0, 0, false},
      {4, 0, 0, false}, {0, 0, 2, true},  {0, 1, 5, true},  {3, 1, 5, true},  {1, 1, 5, false},
      {5, 1, 5, false}, {0, 1, 0, true},  {1, 1, 0, true},  {5, 1, 0, true},  {3, 1, 0, true},
      {2, 1, 0, false}, {4, 1, 0, false}, {2, 1, 5, false}, {4, 1, 2, true},
  };
  for (const SupportCase& c : cases) {
    State s = NewState();
    s.project.L = 5;
    s.project.SupportType = static_cast<Integer>(c.supportType);
    s.loads.point[1] = {static_cast<Integer>(c.kind), 10, c.x, 0, 1, True};
    EventResult r = Fire(s, "Loading.ok");
    EXPECT_FALSE(r.refused);
    EXPECT_EQ(s.loads.point[1].Value, c.kept ? 10.0f : 0.0f)
        << "type " << c.supportType << " kind " << c.kind << " x " << c.x;
  }
}

TEST(LoadingClose, CheckPointsAndTheStiffenerDistanceStayOnTheMember) {
  State s = NewState();
  s.project.L = 2;
  s.project.ChPointX = {0, 1, 2.5f, 3};
  s.project.webStiffeners = 1;
  s.project.a = 2500;
  Fire(s, "Loading.ok");
  EXPECT_EQ(s.project.ChPointX[1], 1.0f);
  EXPECT_EQ(s.project.ChPointX[2], 2.0f);
  EXPECT_EQ(s.project.ChPointX[3], 2.0f);
  EXPECT_EQ(s.project.webStiffeners, 0);
  EXPECT_EQ(s.project.a, 1000.0f);  // L * 1000 / 2
}

// ---- Menu ----

TEST(LoadingMenu, OpeningTheDialogEntersBeamMode) {
  State s = NewState();
  s.project.AnalysisMode = 0;
  EventResult r = Fire(s, "mnuload1");
  EXPECT_TRUE(r.recalculated);
  EXPECT_EQ(s.project.AnalysisMode, 1);
  EXPECT_TRUE(s.view.visible["frLc"]);
  EXPECT_TRUE(DialogOpen(s.view, "Loading"));
  EXPECT_EQ(s.view.text["Loading.iq(1)"], "10.0");
  Fire(s, "Loading.ok");
  EXPECT_FALSE(DialogOpen(s.view, "Loading"));
}

}  // namespace
}  // namespace vn
