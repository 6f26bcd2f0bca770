// Extremes, five-point values, zero points and shape of the moment diagram, deflection lines.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "beam_fixture.h"

namespace vn {
namespace {

using test::Printed;

// A state whose diagrams are set by hand; one check point at x = 0 that holds zeros.
State WithMoments(const std::function<double(int)>& m, int supportType = 0) {
  State s;
  s.project.L = 6;
  s.project.deflectionLimit = 300;
  s.project.SupportType = static_cast<Integer>(supportType);
  s.analysis.NPoints = 0;
  for (int k = 0; k <= 50; ++k) {
    s.analysis.MyGrid[k] = static_cast<Single>(m(k));
    s.analysis.MzGrid[k] = static_cast<Single>(m(k));
  }
  return s;
}

// ---- Shape ----

TEST(MomentShape, AUniformDiagramIsLinearAndCurvedWithPsiOne) {
  State s = WithMoments([](int) { return 10.0; });
  ForceExtremes(s);
  const MomentShape& y = s.analysis.ShapeY;
  EXPECT_EQ(y.Psi, 1.0f);
  EXPECT_EQ(y.Linear, True);
  EXPECT_EQ(y.Curved, True);  // the bands have no width
  EXPECT_EQ(y.MidDominates, False);
  EXPECT_EQ(y.AlphaS, 1.0f);  // M3 / larger end moment = 10 / 10
  // About z the band of Linear is open: M3 = p3 = p7 is not strictly between.
  EXPECT_EQ(s.analysis.ShapeZ.Linear, False);
}

TEST(MomentShape, AStraightDiagramIsNotCurvedAndTakesItsInnerMomentByAxis) {
  // 10 at x = 0 to -5 at x = L: M[k] = 10 - 0.3 k.
  State s = WithMoments([](int k) { return 10 - 0.3 * k; });
  ForceExtremes(s);
  const MomentShape& y = s.analysis.ShapeY;
  const MomentShape& z = s.analysis.ShapeZ;
  EXPECT_EQ(y.Psi, -0.5f);    // -5 / 10
  EXPECT_EQ(y.Linear, True);  // M3 = 2.5 between p3 = 5.5 and p7 = -0.5
  EXPECT_EQ(z.Linear, True);
  // Peak in 12..38 at k = 12 (|6.4| against |-1.4| at 38). Left band: c1 = 8.2, w1 = 0.2 * -0.3 * 6
  // = -0.36, M[6] = 8.2 inside; right band: c2 = 0.7, w2 = 0.2 * -0.3 * 19 = -1.14, M[31] = 0.7.
  EXPECT_EQ(y.Curved, False);
  EXPECT_EQ(y.MidDominates, False);
  EXPECT_FLOAT_EQ(y.AlphaS, 0.25f);  // M3 / M1 = 2.5 / 10
  EXPECT_FLOAT_EQ(z.AlphaS, 0.64f);  // Mi / M1 = 6.4 / 10
}

TEST(MomentShape, TheParabolaOfASimpleBeamIsCurvedAndDominatedByItsMiddle) {
  // q = 10, L = 6: M = 10 x (6 - x) / 2 with x = 0.12 k.
  State s = WithMoments([](int k) {
    const double x = 0.12 * k;
    return 5 * x * (6 - x);
  });
  ForceExtremes(s);
  const MomentShape& y = s.analysis.ShapeY;
  EXPECT_EQ(y.Curved, True);  // M[12] = 32.83 lies outside the band 18..27 about 22.5
  EXPECT_EQ(y.MidDominates, True);
  EXPECT_EQ(y.Psi, 0.0f);
  EXPECT_EQ(y.Linear, False);  // both ends 0
  EXPECT_EQ(y.AlphaH, 0.0f);   // larger end moment 0 over M3
}

TEST(MomentShape, TheDiagramOfACentralForceIsNotCurved) {
  // P = 10 at midspan of L = 6: M = 15 k / 25 up to k = 25, symmetric.
  State s = WithMoments([](int k) { return 15.0 * std::min(k, 50 - k) / 25; });
  ForceExtremes(s);
  const MomentShape& y = s.analysis.ShapeY;
  // j1 = 12.5 rounds to 12: M[12] = 7.2 inside 7.5 +- 1.5; j2 = 37.5 rounds to 38: M[38] = 7.2.
  EXPECT_EQ(y.Curved, False);
  EXPECT_EQ(y.MidDominates, True);
}

TEST(MomentShape, AllZeroIsCurvedAndEverythingElseZero) {
  State s = WithMoments([](int) { return 0.0; });
  ForceExtremes(s);
  const MomentShape& y = s.analysis.ShapeY;
  EXPECT_EQ(y.Curved, True);
  EXPECT_EQ(y.MidDominates, False);
  EXPECT_EQ(y.Linear, False);
  EXPECT_EQ(y.Psi, 0.0f);
  EXPECT_EQ(y.AlphaS, 0.0f);
  EXPECT_EQ(y.AlphaH, 0.0f);
}

TEST(MomentShape, AlphaKeepsItsFormerValueWhenTheOtherIsSet) {
  State s = WithMoments([](int) { return 10.0; });
  s.analysis.ShapeY.AlphaH = 0.7f;
  ForceExtremes(s);
  EXPECT_EQ(s.analysis.ShapeY.AlphaH, 0.7f);
}

TEST(MomentShape, PsiIsSmallerOverLargerEndMomentWithItsSign) {
  FivePoints f;
  f.M1 = -4;
  f.M5 = 8;
  EXPECT_EQ(PsiOf(f), -0.5f);
  f.M1 = 8;
  f.M5 = 0;
  EXPECT_EQ(PsiOf(f), 0.0f);
  f.M1 = 6;
  f.M5 = 6;
  EXPECT_EQ(PsiOf(f), 1.0f);
}

// ---- Zero points ----

TEST(Inflections, AFixedEndParabolaChangesSignNearAFifthFromEachEnd) {
  // M = 60 s - 60 s^2 - 10: -10 at the ends, +5 at midspan; exact zeros 0.5 -+ sqrt(1/12).
  State s = WithMoments(
      [](int k) {
        const double x = k / 50.0;
        return 60 * x - 60 * x * x - 10;
      },
      2);
  ForceExtremes(s);
  // M[10] = -0.4, M[11] = 0.296: 0.2 + (0.4 / 0.696) / 50 = 0.211494
  EXPECT_EQ(Printed(s.analysis.InflectionY1, "0.0000"), "0.2115");
  // M[39] = 0.296, M[40] = -0.4: 0.78 + (0.296 / 0.696) / 50 = 0.788506
  EXPECT_EQ(Printed(s.analysis.InflectionY2, "0.0000"), "0.7885");
  EXPECT_EQ(Printed(s.analysis.InflectionZ1, "0.0000"), "0.2115");
}

TEST(Inflections, AreOnlyLookedForWhereAnEndIsHeld) {
  State s = WithMoments(
      [](int k) {
        const double x = k / 50.0;
        return 60 * x - 60 * x * x - 10;
      },
      0);
  s.analysis.InflectionY1 = 0.3f;
  ForceExtremes(s);
  EXPECT_EQ(s.analysis.InflectionY1, 0.0f);
  EXPECT_EQ(s.analysis.InflectionY2, 0.0f);
}

// ---- Extremes ----

TEST(Extremes, TheCheckPointsCanRaiseAnExtremeButATieKeepsTheGridPosition) {
  State s = WithMoments([](int k) {
    const double x = 0.12 * k;
    return 5 * x * (6 - x);
  });
  Analysis& a = s.analysis;
  a.NPoints = 2;
  a.ChPointXrel = {};
  a.ChPointXrel[1] = 0.51f;
  a.MyPt[1] = 45;  // equal to the grid's maximum at 0.5
  a.ChPointXrel[2] = 0.3f;
  a.VzPt[2] = 40;  // above the grid's largest shear of 30
  for (int k = 0; k <= 50; ++k) a.VzGrid[k] = static_cast<Single>(30 - 10 * 0.12 * k);
  ForceExtremes(s);
  EXPECT_EQ(a.MyMax, 45.0f);
  EXPECT_EQ(a.MyMaxPos, 0.5f);
  EXPECT_EQ(a.VzMax, 40.0f);
  EXPECT_EQ(a.VzMaxPos, 0.3f);
  EXPECT_FLOAT_EQ(a.VzMin, -30.0f);
  EXPECT_EQ(a.VzMinPos, 1.0f);
}

TEST(Extremes, StartAtZeroSoAHoggingDiagramHasNoPositiveMaximum) {
  State s = WithMoments([](int k) { return -1.0 - k; });
  ForceExtremes(s);
  const Analysis& a = s.analysis;
  EXPECT_EQ(a.MyMax, 0.0f);
  EXPECT_EQ(a.MyMaxPos, 0.0f);
  EXPECT_EQ(a.MyMin, -51.0f);
  EXPECT_EQ(a.MyMinPos, 1.0f);
  EXPECT_EQ(a.MyAbs, 51.0f);
}

TEST(Extremes, FivePointsTakeTheMeanOfTheTwoGridPointsAtTheQuarters) {
  State s = WithMoments([](int k) { return k; });
  ForceExtremes(s);
  const FivePoints& f = s.analysis.PointsY;
  EXPECT_EQ(f.M1, 0.0f);
  EXPECT_EQ(f.M2, 12.5f);
  EXPECT_EQ(f.M3, 25.0f);
  EXPECT_EQ(f.M4, 37.5f);
  EXPECT_EQ(f.M5, 50.0f);
}

// ---- Deflection lines ----

TEST(DeflectionText, ComparesTheLargerDeflectionWithTheLimit) {
  State s = WithMoments([](int) { return 0.0; });
  s.analysis.dzGrid[25] = 10.0446f;
  ForceExtremes(s);
  DeflectionText(s);
  const ControlText& t = s.analysis.deflTextZ;
  // limit = 6 * 1000 / 300 = 20 mm; IR = 10.0446 / 20 = 0.502
  EXPECT_EQ(t.Formula, "IR = dz/dzMax = ");
  EXPECT_EQ(t.Numbers, "10.0/20.0 = ");
  EXPECT_EQ(t.Ratio, "0.50");
  EXPECT_EQ(t.Limit, " < 1.0");
  EXPECT_EQ(s.analysis.colDeflZ, 2);
  EXPECT_TRUE(s.analysis.deflTextY.Formula.empty());
  EXPECT_EQ(s.analysis.dzAbs, 10.0446f);
}

TEST(DeflectionText, KeepsTheSignOfALargerUpwardDeflectionAndTurnsRed) {
  State s = WithMoments([](int) { return 0.0; });
  s.analysis.dyGrid[10] = -25;
  s.analysis.dyGrid[30] = 12;
  ForceExtremes(s);
  DeflectionText(s);
  const ControlText& t = s.analysis.deflTextY;
  EXPECT_EQ(t.Formula, "IR = dy/dyMax = ");
  EXPECT_EQ(t.Numbers, "-25.0/20.0 = ");
  EXPECT_EQ(t.Ratio, "1.25");
  EXPECT_EQ(s.analysis.colDeflY, 4);
}

TEST(DeflectionText, ARatioOfExactlyOneIsGreen) {
  State s = WithMoments([](int) { return 0.0; });
  s.analysis.dzGrid[25] = 20;  // = L / 300
  ForceExtremes(s);
  DeflectionText(s);
  EXPECT_EQ(s.analysis.deflTextZ.Ratio, "1.00");
  EXPECT_EQ(s.analysis.colDeflZ, 2);
  // A later run without deflection empties the lines.
  s.analysis.dzGrid[25] = 0;
  ForceExtremes(s);
  DeflectionText(s);
  EXPECT_TRUE(s.analysis.deflTextZ.Formula.empty());
}

}  // namespace
}  // namespace vn
