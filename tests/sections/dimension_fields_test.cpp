// The typed dimensions of the section dialogs: store, show, test the limit its message states.
#include <gtest/gtest.h>

#include "core/events.h"
#include "core/state.h"
#include "support/test_support.h"

namespace vn {
namespace {

TEST(DimensionFields, AFailedLimitStoresTheValueKeepsTheFocusAndDoesNotRecalculate) {
  State s = test::StartedState();
  Fire(s, "mnup21");  // the field is reached with its dialog open
  EXPECT_EQ(s.project.ProfileType, 21);
  EXPECT_EQ(s.view.text["p21.isth"], "600");  // the dialog shows the stored dimensions
  const int runs = s.recalcCount;
  EventResult r = Fire(s, "p21.isth", "19");
  EXPECT_TRUE(r.refused);
  EXPECT_EQ(r.message, " h >= 20 ");
  EXPECT_EQ(r.focus, "p21.isth");
  EXPECT_EQ(s.project.p21.isth, 19.0f);
  EXPECT_EQ(r.text, "19");
  EXPECT_EQ(s.recalcCount, runs);
  r = Fire(s, "p21.isth", "20");
  EXPECT_FALSE(r.refused);
  EXPECT_EQ(s.recalcCount, runs + 1);
}

TEST(DimensionFields, ThicknessesShowOneDecimalAndOtherDimensionsNone) {
  State s = test::StartedState();
  EXPECT_EQ(Fire(s, "p21.isttw", "12.345").text, "12.3");
  EXPECT_EQ(Fire(s, "p21.istb1", "300.6").text, "301");
  EXPECT_EQ(Fire(s, "p21.isttw", "0.1").refused, false);  // the bound itself passes
  EXPECT_EQ(Fire(s, "p21.isttw", "0.09").message, " tw >= 0.1 ");
}

TEST(DimensionFields, LimitsThatDependOnOtherDimensionsTestAsTheirTextSays) {
  State s = test::StartedState();
  // Box: b = 600, tw = 10, so a < 600/2 - 10 = 290, strictly.
  EXPECT_EQ(Fire(s, "p23.ista", "290").message, " a < b/2-tw ");
  EXPECT_FALSE(Fire(s, "p23.ista", "289.5").refused);
  EXPECT_EQ(Fire(s, "p23.ista", "-1").message, " a >= 0 ");
  // HSQ: c of family 24 is typed in istc, 0 <= c <= b1/2 = 150.
  EXPECT_FALSE(Fire(s, "p24.istc", "150").refused);
  EXPECT_EQ(s.project.p24.c, 150.0f);
  EXPECT_EQ(Fire(s, "p24.istc", "151").message, " 0 <= c <= b1/2 ");
  // b2 > 50 strictly, then b2 >= b1 - 2 tw = 300 - 12 = 288.
  EXPECT_EQ(Fire(s, "p24.istb2", "50").message, " b2 > 50 ");
  EXPECT_EQ(Fire(s, "p24.istb2", "287").message, " b2 >= b1-2*tw ");
  EXPECT_FALSE(Fire(s, "p24.istb2", "288").refused);
  EXPECT_EQ(Fire(s, "p24.iload", "91").message, " 50% <= Load on one flange <= 90% ");
}

TEST(DimensionFields, TheGeneralSectionsPlasticModuliMustExceedTheirBound) {
  State s = test::StartedState();
  EXPECT_EQ(Fire(s, "p41.istwply", "1000").message, " 1000 < Wply ");
  EXPECT_FALSE(Fire(s, "p41.istwply", "1001").refused);
  EXPECT_FALSE(Fire(s, "p41.istwely", "1000").refused);
  EXPECT_EQ(Fire(s, "p41.istax", "49").message, " A >= 50 ");
}

TEST(DimensionFields, AMismatchKeepsTheOldValueWithTheDialogsOwnText) {
  State s = test::StartedState();
  s.decimalComma = true;
  EventResult r = Fire(s, "p28.isth", "abc");
  EXPECT_TRUE(r.refused);
  EXPECT_EQ(r.message, "Input string mismatch");
  EXPECT_EQ(s.project.p28.isth, 150.0f);
  EXPECT_EQ(Fire(s, "p28.isth", "4,5").message, " h >= 5 ");
  EXPECT_EQ(s.project.p28.isth, 4.5f);
}

}  // namespace
}  // namespace vn
