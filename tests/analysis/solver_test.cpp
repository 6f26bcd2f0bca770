// The unit-load solver: closed-form values of each support type and load kind on both grids.
#include <gtest/gtest.h>

#include <cmath>

#include "beam_fixture.h"

namespace vn {
namespace {

using test::AddPoint;
using test::AddUniform;
using test::BeamState;
using test::kMmPerKNm3;
using test::Printed;

const Analysis& Analyse(State& s) {
  MemberAnalysis(s);
  return s.analysis;
}

// ---- Uniform load q = 10 kN/m on L = 6 m, E = 210000, I = 8E7 ----

TEST(UniformLoad, SimpleBeamGivesTheTextbookMomentShearAndDeflection) {
  State s = BeamState(6, 0);
  AddUniform(s, 1, 10);
  const Analysis& a = Analyse(s);
  // M = q L^2 / 8 = 10 * 36 / 8 = 45.0; V(0) = q L / 2 = 30.0
  EXPECT_EQ(Printed(a.MyGrid[25], "0.0"), "45.0");
  EXPECT_EQ(Printed(a.VzGrid[0], "0.0"), "30.0");
  EXPECT_EQ(Printed(a.VzGrid[50], "0.0"), "-30.0");
  // d = 5 q L^4 / (384 E I) = 168.75 kN m3 * 0.0595238 = 10.0446 mm
  EXPECT_EQ(Printed(a.dzGrid[25], "0.00"), "10.04");
  EXPECT_EQ(a.dzGrid[0], 0.0f);
  EXPECT_EQ(a.dzGrid[50], 0.0f);
  EXPECT_EQ(a.MyGrid[0], 0.0f);
  EXPECT_EQ(a.MyGrid[50], 0.0f);
}

TEST(UniformLoad, FixedBeamGivesEndMomentsOfATwelfth) {
  State s = BeamState(6, 2);
  AddUniform(s, 1, 10);
  const Analysis& a = Analyse(s);
  // M(0) = -q L^2 / 12 = -30.0; M(mid) = q L^2 / 24 = 15.0; d = q L^4 / (384 E I) = 2.0089 mm
  EXPECT_EQ(Printed(a.MyGrid[0], "0.0"), "-30.0");
  EXPECT_EQ(Printed(a.MyGrid[50], "0.0"), "-30.0");
  EXPECT_EQ(Printed(a.MyGrid[25], "0.0"), "15.0");
  EXPECT_EQ(Printed(a.dzGrid[25], "0.000"), "2.009");
}

TEST(UniformLoad, CantileverHangsFromItsFixedStart) {
  State s = BeamState(6, 4);
  AddUniform(s, 1, 10);
  const Analysis& a = Analyse(s);
  // M(0) = -q L^2 / 2 = -180.0; d(L) = q L^4 / (8 E I) = 1620 * 0.0595238 = 96.43 mm
  EXPECT_EQ(Printed(a.MyGrid[0], "0.0"), "-180.0");
  EXPECT_EQ(Printed(a.dzGrid[50], "0.00"), "96.43");
  EXPECT_EQ(a.dzGrid[0], 0.0f);
  // The cantilever's shear keeps the sign of the load: V(0) = -q L = -60, against dM/dx = +60.
  EXPECT_EQ(Printed(a.VzGrid[0], "0.0"), "-60.0");
  EXPECT_EQ(a.VzGrid[50], 0.0f);
}

TEST(UniformLoad, TwoSpringEndsMixTheSimpleAndTheFixedBeam) {
  State s = BeamState(6, 3, 40);
  AddUniform(s, 1, 10);
  const Analysis& a = Analyse(s);
  // r = 0.4: M(0) = 0.6 * 0 + 0.4 * -30 = -12.0; M(mid) = 0.6 * 45 + 0.4 * 15 = 33.0;
  // d = 0.6 * 10.0446 + 0.4 * 2.0089 = 6.8304 mm
  EXPECT_EQ(Printed(a.MyGrid[0], "0.0"), "-12.0");
  EXPECT_EQ(Printed(a.MyGrid[25], "0.0"), "33.0");
  EXPECT_EQ(Printed(a.dzGrid[25], "0.000"), "6.830");
}

TEST(UniformLoad, PinnedFixedBeamHasThreeEighthsAtThePin) {
  State s = BeamState(8, 1);
  AddUniform(s, 1, 10);
  const Analysis& a = Analyse(s);
  // R = 3 q L / 8 = 30; V(L) = -5 q L / 8 = -50; M(L) = -q L^2 / 8 = -80
  EXPECT_FLOAT_EQ(a.VzGrid[0], 30.0f);
  EXPECT_FLOAT_EQ(a.VzGrid[50], -50.0f);
  EXPECT_FLOAT_EQ(a.MyGrid[50], -80.0f);
  // Field moment at x = 3 (k = 18.75 is off the grid; k = 20, x = 3.2): 30 * 3.2 - 5 * 3.2^2 = 44.8
  EXPECT_FLOAT_EQ(a.MyGrid[20], 44.8f);
}

// ---- Trapezoid: 20 strips carried as point forces ----

TEST(TrapezoidLoad, IsCarriedAsTwentyStripsWithTheirOwnReaction) {
  State s = BeamState(6, 0);
  TrapezoidLoad& t = s.loads.trapezoid[1];
  t = {5, 15, 1, 5, 0, 1.0f, True};
  const Analysis& a = Analyse(s);
  // Strip j: P = (0.95 + 0.1 j) kN at b = 5.1 - 0.2 j from the end.
  // R = sum P b / L = (20 * 4.845 + 0.32 * 210 - 0.02 * 2870) / 6 = 106.7 / 6 = 17.78333
  // (the exact integral gives 17.7778).
  EXPECT_EQ(Printed(a.VzGrid[0], "0.0000"), "17.7833");
  // M(3) = 3 R - sum over the strips left of 3 m of P (3 - a) = 53.35 - 13.35 = 40.000
  EXPECT_EQ(Printed(a.MyGrid[25], "0.000"), "40.000");
}

TEST(TrapezoidLoad, ShearIsAStaircaseThatSeesOnlyTheStripsToItsLeft) {
  State s = BeamState(6, 0);
  s.loads.trapezoid[1] = {10, 10, 0, 6, 0, 1.0f, True};
  const Analysis& a = Analyse(s);
  // Strips of 0.3 m with 3 kN each at 0.15, 0.45, ... At x = 0.12 (k = 1) no strip is passed:
  // V = R = 30; a uniform load would give 28.8.
  EXPECT_FLOAT_EQ(a.VzGrid[1], 30.0f);
  // At x = 0.24 (k = 2) the strip at 0.15 is passed: 27; at x = 0.48 (k = 4) two strips: 24.
  EXPECT_FLOAT_EQ(a.VzGrid[2], 27.0f);
  EXPECT_FLOAT_EQ(a.VzGrid[4], 24.0f);
}

TEST(TrapezoidLoad, EqualPositionsGiveNothing) {
  State s = BeamState(6, 0);
  s.loads.trapezoid[2] = {10, 20, 3, 3, 0, 1.0f, True};
  const Analysis& a = Analyse(s);
  for (int k = 0; k <= 50; ++k) EXPECT_EQ(a.MyGrid[k], 0.0f);
}

// ---- Point loads ----

TEST(PointMoment, TypeFiveTakesTheMixedShearTwiceLeftOfTheLoad) {
  State s = BeamState(6, 5, 40);
  AddPoint(s, 1, 1, 10, 2.1f);
  const Analysis& a = Analyse(s);
  // Type 0: R0 = -M0 / L = -1.66667. Type 1: M(L) = -(10 / 2)(1 - 3 * 2.1^2 / 36) = -3.1625,
  // R1 = (-3.1625 - 10) / 6 = -2.19375. Mix: 0.6 R0 + 0.4 R1 = -1.8775.
  EXPECT_EQ(Printed(a.VzGrid[0], "0.0000"), "-1.8775");
  // Left of the load, k >= 1: 0.6 R0 + 0.4 * (-1.8775) = -1.7510
  EXPECT_EQ(Printed(a.VzGrid[1], "0.0000"), "-1.7510");
  EXPECT_EQ(Printed(a.VzGrid[17], "0.0000"), "-1.7510");  // x = 2.04 < 2.1
  // Beyond the load the plain mix.
  EXPECT_EQ(Printed(a.VzGrid[18], "0.0000"), "-1.8775");
  EXPECT_EQ(Printed(a.VzGrid[50], "0.0000"), "-1.8775");
  // The check points left of the load, x = 0 included, take the exception too.
  EXPECT_EQ(Printed(a.VzPt[0], "0.0000"), "-1.7510");
}

TEST(PointForce, AtTheFreeEndOfACantileverActsOnTheWholeLength) {
  State s = BeamState(4, 4);
  AddPoint(s, 1, 0, 5, 4);
  const Analysis& a = Analyse(s);
  // x = a takes the left branch on the cantilever: V = -P everywhere, V(L) included.
  for (int k = 0; k <= 50; ++k) EXPECT_FLOAT_EQ(a.VzGrid[k], -5.0f) << k;
  // M(0) = -P a = -20; d(L) = P L^3 / (3 E I) = 5 * 64 / 3 = 106.667 kN m3 * 0.0595238 = 6.349 mm
  EXPECT_FLOAT_EQ(a.MyGrid[0], -20.0f);
  EXPECT_EQ(Printed(a.dzGrid[50], "0.000"), "6.349");
}

TEST(PointMoment, AtTheEndOfASimpleBeamReadsTheEndMomentWithNoShearAtTheEndPoint) {
  State s = BeamState(5, 0);
  AddPoint(s, 1, 1, 8, 5);
  const Analysis& a = Analyse(s);
  // A load at x = L adds no check points: the grid is the eleven tenth points.
  ASSERT_EQ(a.NPoints, 10);
  EXPECT_FLOAT_EQ(a.MyGrid[50], -8.0f);
  EXPECT_FLOAT_EQ(a.MyPt[10], -8.0f);
  EXPECT_EQ(a.VzPt[10], 0.0f);
  // Inside: R = -M0 / L = -1.6, M = R x.
  EXPECT_FLOAT_EQ(a.VzGrid[25], -1.6f);
  EXPECT_FLOAT_EQ(a.MyGrid[25], -4.0f);
  EXPECT_FLOAT_EQ(a.VzPt[5], -1.6f);
}

TEST(PointForce, FixedBeamTakesTheLeftValueAtTheLoadAndSimpleBeamTheRight) {
  // P = 10 at a = 2.5 = x of k = 25 exactly (2.5 is exact in single precision).
  State fixed = BeamState(5, 2);
  AddPoint(fixed, 1, 0, 10, 2.5f);
  // Fixed-fixed, central load: R = P / 2 = 5 on the left branch.
  EXPECT_FLOAT_EQ(Analyse(fixed).VzGrid[25], 5.0f);
  State simple = BeamState(5, 0);
  AddPoint(simple, 1, 0, 10, 2.5f);
  // Simple beam: the right branch, R - P = -5.
  EXPECT_FLOAT_EQ(Analyse(simple).VzGrid[25], -5.0f);
  // Both give the same moment there: simple P L / 4 = 12.5, fixed P L / 8 = 6.25.
  EXPECT_FLOAT_EQ(simple.analysis.MyGrid[25], 12.5f);
  EXPECT_FLOAT_EQ(fixed.analysis.MyGrid[25], 6.25f);
}

// ---- Independent checks against beam theory, for loads the examples do not list ----

// Propped cantilever (pinned at 0, fixed at L = 6), P = 20 kN at a = 2.5 m, b = 3.5 m.
// Textbook: R_A = P b^2 (3 L - b) / (2 L^3) = 20 * 12.25 * 14.5 / 432 = 8.223380 kN,
// M_B = -P a (L^2 - a^2) / (2 L^2) = -50 * 29.75 / 72 = -20.659722 kNm.
TEST(TextbookCheck, ProppedCantileverWithAnOffCentreForce) {
  State s = BeamState(6, 1);
  AddPoint(s, 1, 0, 20, 2.5f);
  const Analysis& a = Analyse(s);
  const double RA = 8.223380, MB = -20.659722, h = 0.12;
  EXPECT_NEAR(a.VzGrid[0], RA, 1e-5);
  EXPECT_NEAR(a.VzGrid[50], RA - 20, 1e-5);
  EXPECT_NEAR(a.MyGrid[50], MB, 1e-5);
  EXPECT_EQ(a.MyGrid[0], 0.0f);
  // Equilibrium on the grid: no distributed load, so V is constant on each side of the load, and
  // dM/dx = V on every interval that does not hold the load (2.5 lies between k = 20 and 21).
  for (int k = 0; k < 50; ++k) {
    const double V = k < 21 ? RA : RA - 20;
    EXPECT_NEAR(a.VzGrid[k], V, 1e-5) << k;
    if (k == 20) continue;
    EXPECT_NEAR((a.MyGrid[k + 1] - a.MyGrid[k]) / h, V, 2e-4) << k;
  }
  // Deflection: zero at both supports; zero slope at the fixed end. Right of the load the line
  // is a cubic, so with d(L) = d'(L) = 0: E I d(L - h) = -M_B h^2 / 2 + V h^3 / 6
  // = 0.148750 - 0.003392 = 0.145358 kN m3 = 0.0086523 mm.
  EXPECT_EQ(a.dzGrid[0], 0.0f);
  EXPECT_EQ(a.dzGrid[50], 0.0f);
  EXPECT_NEAR(a.dzGrid[49], 0.0086523, 2e-7);
  // The check points beside the load show both sides of the step of the shear.
  ASSERT_EQ(a.NPoints, 12);
  EXPECT_NEAR(a.VzPt[11], RA, 1e-5);
  EXPECT_NEAR(a.VzPt[12], RA - 20, 1e-5);
  // M at 0.999 a = R_A * 2.4975 = 20.53789; at 1.001 a = M_B - (R_A - P)(L - 2.5025) = 20.52901
  EXPECT_NEAR(a.MyPt[11], 20.53789, 1e-4);
  EXPECT_NEAR(a.MyPt[12], 20.52901, 1e-4);
}

// Fixed-fixed beam, L = 6, moment M0 = 12 kNm at a = 2 (b = 4).
// Fixed ends need no end rotation and no end deflection: with M(x) = M_A + R x + M0 [x > a],
// int M dx = 0 and int M x dx = 0. M_A = 0, M_B = -4, R = (M_B - M_A - M0) / L = -8/3 satisfy
// both: -8/3 * 18 + 12 * 4 = 0 and -8/3 * 72 + 12 * (36 - 4) / 2 = 0.
TEST(TextbookCheck, FixedBeamWithAPointMoment) {
  State s = BeamState(6, 2);
  AddPoint(s, 1, 1, 12, 2);
  const Analysis& a = Analyse(s);
  const double R = -8.0 / 3.0, h = 0.12;
  EXPECT_NEAR(a.MyGrid[0], 0.0, 1e-5);
  EXPECT_NEAR(a.MyGrid[50], -4.0, 1e-5);
  for (int k = 0; k < 50; ++k) {
    EXPECT_NEAR(a.VzGrid[k], R, 1e-5) << k;
    if (k == 16) continue;  // 2 m lies between k = 16 (1.92) and 17 (2.04): the jump of M0
    EXPECT_NEAR((a.MyGrid[k + 1] - a.MyGrid[k]) / h, R, 2e-4) << k;
  }
  EXPECT_NEAR(a.MyGrid[17] - a.MyGrid[16], 12 + R * h, 1e-4);
  // Zero deflection at the ends, zero slope at both: the line is a cubic on each side, so
  // E I d(h) = -M_A h^2 / 2 - R h^3 / 6 = 0.000768 kN m3 = 4.5714E-5 mm and
  // E I d(L - h) = -M_B h^2 / 2 + R h^3 / 6 = 0.0288 - 0.000768 = 0.028032 kN m3 = 0.00166857 mm.
  EXPECT_EQ(a.dzGrid[0], 0.0f);
  EXPECT_EQ(a.dzGrid[50], 0.0f);
  EXPECT_NEAR(a.dzGrid[1], 4.5714e-5, 1e-9);
  EXPECT_NEAR(a.dzGrid[49], 0.00166857, 1e-8);
}

// ---- Routing ----

TEST(Routing, AYLoadBendsAboutZAndDividesByIz) {
  State s = BeamState(6, 0);
  s.section.Iz = 4e7f;  // half of Iy
  AddUniform(s, 1, 10, 0);
  const Analysis& a = Analyse(s);
  EXPECT_EQ(a.MyGrid[25], 0.0f);
  EXPECT_EQ(a.dzGrid[25], 0.0f);
  EXPECT_FLOAT_EQ(a.MzGrid[25], 45.0f);
  EXPECT_FLOAT_EQ(a.VyGrid[0], 30.0f);
  // Twice the deflection of the same load in Z: 2 * 10.0446 = 20.089 mm
  EXPECT_EQ(Printed(a.dyGrid[25], "0.000"), "20.089");
}

TEST(Routing, APointMomentMzGoesToTheYPlane) {
  State s = BeamState(5, 0);
  AddPoint(s, 1, 1, 10, 2.5f, 0);
  const Analysis& a = Analyse(s);
  // R = -M0 / L = -2: Vy everywhere -2, nothing in the z plane.
  EXPECT_FLOAT_EQ(a.VyGrid[10], -2.0f);
  EXPECT_EQ(a.VzGrid[10], 0.0f);
}

TEST(Routing, ASectionWithoutIyEndsInACalculationFault) {
  State s = BeamState(6, 0);
  s.section.Iy = 0;
  AddUniform(s, 1, 10);
  EXPECT_THROW(MemberAnalysis(s), CalcFault);
}

}  // namespace
}  // namespace vn
