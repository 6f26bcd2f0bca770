// Lateral torsional buckling: the C factor tables, the critical moment, chi by the rolled and the
// general curve, the parts between restraints, and the dialog `vipping`.
#include <gtest/gtest.h>

#include <cmath>

#include "checks/buckling.h"
#include "checks/buckling_fixture.h"
#include "checks/control_routines.h"
#include "core/recalculate.h"

namespace vn {
namespace {

using test::Do;
using test::kChain;
using test::Near;

// ---- A complete beam checked by hand ----

// IPE 300, S355, L = 6 m, simply supported, laterally unrestrained, q = 15 kN/m on the top
// flange, no axial force. G = E/2.6 = 80769.23 MPa, pi in single precision.
//   My,Ed = 15 * 6^2 / 8 = 67.5 kNm
//   Wpl,y = 10.7*150*289.3 + 278.6^2*7.1/4 + 4*15^2*(1 - pi/4)*(139.3 - 0.2234*15) = 628355.8 mm3
//   My,Rd = 628355.8 * 355 / 1E6 = 223.066 kNm (gammaM1 = 1)
//   C1 = 1.12, C2 = 0.45, C3 = 0.525 (pinned, q-load, k = 1); zg = h/2 = 150 mm
//   X = 6000^2 * 80769.23 * 201.2E3 / 210000 / pi^2 / 6.038E6 + 125.9E9 / 6.038E6
//     = 46748.13 + 20851.28 = 67599.41 mm2
//   pi^2 E Iz / LT^2 = 347623.94 N;  C2 zg = 67.5 mm
//   Mcr = 1.12 * 347623.94 * (sqrt(67599.41 + 67.5^2) - 67.5) = 1.12 * 347623.94 * 201.118
//       = 78.3031E6 Nmm
//   lamda,LT = sqrt(355 * 628355.8 / 78.3031E6) = 1.687826
//   Phi = 0.5 (1 + 0.34 (1.687826 - 0.4) + 0.75 * 1.687826^2) = 1.787214
//   chi,LT = 1 / (1.787214 + sqrt(1.787214^2 - 0.75 * 1.687826^2)) = 0.355165
//   kc = 1/sqrt(1.12) = 0.944911;  f = 1 - 0.5 (1 - 0.944911)(1 - 2 (0.887826)^2) = 1.0159 -> 1
//   chi,LT,mod = 0.355165, above 1/lamda,LT^2 = 0.351030, so x,LT = 0.351030
//   IR = 67.5 / (0.351030 * 223.066) = 0.8620 -> "0.86"
TEST(IpeBeam, UnrestrainedUnderUniformLoadAgreesWithTheHandCalculation) {
  State s = test::Ipe300("6", "0", "15");
  ASSERT_EQ(s.project.ltbOn, 1);
  ASSERT_EQ(s.project.ltbCurve, 3);
  ASSERT_EQ(s.project.ltbLoadLevel, 1);
  const Checks& k = s.checks;
  EXPECT_DOUBLE_EQ(k.C1, 1.12);
  EXPECT_DOUBLE_EQ(k.C2, 0.45);
  EXPECT_DOUBLE_EQ(k.C3, 0.525);
  EXPECT_TRUE(Near(k.kc, 0.9449112, kChain));
  EXPECT_TRUE(Near(k.Mcr, 78.30306e6, kChain));
  EXPECT_TRUE(Near(k.lamdaLT, 1.687826, kChain));
  EXPECT_TRUE(Near(k.XLt, 0.3551648, kChain));
  EXPECT_EQ(k.fLT, 1.0);
  EXPECT_TRUE(Near(k.xLT, 0.3510304, kChain));  // the bound 1/lamda^2 governs
  EXPECT_DOUBLE_EQ(k.LTlength, 6.0);
  EXPECT_DOUBLE_EQ(k.MyLT, 67.5);
  EXPECT_TRUE(Near(k.MyRdLT, 223.0663, kChain));

  EXPECT_EQ(k.buckTextLT.Formula, "IR = My,Ed/(xLT*My,Rd) = ");
  EXPECT_EQ(k.buckTextLT.Numbers, "67.5/(0.35*223.1) = ");
  EXPECT_EQ(k.buckTextLT.Ratio, "0.86");
  EXPECT_EQ(k.buckTextLT.Limit, " < 1.0 (Ch 6.3.2)");
  EXPECT_EQ(k.colLT, kGreen);
  EXPECT_TRUE(k.buckTextY.Formula.empty());
  EXPECT_TRUE(k.buckTextZ.Formula.empty());
  EXPECT_TRUE(Near(s.analysis.IRbuckling, 0.862035, kChain));
}

TEST(IpeBeam, TheLoadLevelMovesTheCriticalMoment) {
  // zg = 0: Mcr = 1.12 * 347623.94 * sqrt(67599.41) = 101.2276E6 Nmm
  // zg = -150: 1.12 * 347623.94 * (sqrt(67599.41 + 67.5^2) + 67.5) = 130.8638E6 Nmm
  State s = test::Ipe300("6", "0", "15");
  Do(s, "vipping.loadl2");
  EXPECT_TRUE(Near(s.checks.Mcr, 101.22765e6, kChain));
  Do(s, "vipping.loadl3");
  EXPECT_TRUE(Near(s.checks.Mcr, 130.86380e6, kChain));
  // Level 4 with Za = 150 mm is the top flange again.
  Do(s, "vipping.iza", "150");
  Do(s, "vipping.loadl4");
  EXPECT_TRUE(Near(s.checks.Mcr, 78.30306e6, kChain));
}

TEST(IpeBeam, EndsFixedAgainstWarpingTakeTheRowOfHalfLength) {
  // k = 0.5: kk = 1, Aq gives C1 = 0.97, C2 = 0.36, C3 = 0.478 over LT = 3 m:
  //   X = 3000^2 * 80769.23 * 201.2E3 / 210000 / pi^2 / 6.038E6 + 20851.28 = 32538.31
  //   Mcr = 0.97 * 1390495.74 * (sqrt(32538.31 + 54^2) - 54) = 181.1320E6 Nmm
  State s = test::Ipe300("6", "0", "15");
  Do(s, "vipping.latbuckl4");
  EXPECT_FLOAT_EQ(s.project.ltbFactor, 0.5f);
  EXPECT_DOUBLE_EQ(s.checks.C1, 0.97);
  EXPECT_NEAR(s.checks.C2, 0.36, 1e-15);
  EXPECT_DOUBLE_EQ(s.checks.LTlength, 3.0);
  EXPECT_TRUE(Near(s.checks.Mcr, 181.13202e6, kChain));
}

TEST(IpeBeam, TheGeneralCurveTakesCurveA) {
  // h/b = 2 <= 2: alpha 0.21. Phi = 0.5 (1 + 0.21 (1.687826 - 0.2) + 1.687826^2) = 2.080600
  // x,LT = 1 / (2.080600 + sqrt(2.080600^2 - 1.687826^2)) = 0.303287
  State s = test::Ipe300("6", "0", "15");
  Do(s, "vipping.Curve2");
  EXPECT_TRUE(Near(s.checks.xLT, 0.3032868, kChain));
}

TEST(IpeBeam, SwitchedOffTheFactorIsOneAndNoLineIsWritten) {
  State s = test::Ipe300("6", "0", "15");
  Do(s, "ch_vipp", "0");
  EXPECT_EQ(s.checks.xLT, 1.0);
  EXPECT_TRUE(s.checks.buckTextLT.Formula.empty());
  EXPECT_EQ(s.analysis.IRbuckling, 0.0);
}

TEST(IpeBeam, InpWithTheRolledCurveKeepsTheFactorOfTheLastRun) {
  // The rolled curve has no row for INP: x,LT stays what the IPE left.
  State s = test::Ipe300("6", "0", "15");
  const double before = s.checks.xLT;
  Do(s, "mnup15");
  ASSERT_EQ(s.project.ProfileType, 15);
  EXPECT_EQ(s.checks.xLT, before);
}

// ---- Restraints: the parts of the member ----

TEST(Restraints, TwoSymmetricPartsGoToTheLaterOne) {
  // Each half: Ma = 0, Mb = 67.5 (or the mirror), psi = 0: C1 = 1.77 at k = 1, LT = 3 m, C2 = 0:
  //   Mcr = 1.77 * 1390495.74 * sqrt(32538.31) = 443.9565E6 Nmm
  //   lamda,LT = sqrt(355 * 628355.8 / 443.9565E6) = 0.708838; kc = 1/sqrt(1.77) = 0.751646
  //   Phi = 0.5 (1 + 0.34 * 0.308838 + 0.75 * 0.708838^2) = 0.740920, chi = 0.865200
  //   f = 1 - 0.5 * 0.248354 * (1 - 2 * 0.091162^2) = 0.877887; x,LT = 0.985548
  State s = test::Ipe300("6", "0", "15");
  Do(s, "vipping.cbo", "1");
  const Checks& k = s.checks;
  EXPECT_EQ(s.project.ltbPart, 1);
  EXPECT_EQ(k.ltbPartLabel[1], "1L/2 -  L");
  EXPECT_EQ(k.buckTextLT.Limit, " < 1.0 (1L/2 -  L;  (Ch 6.3.2))");
  EXPECT_NEAR(k.C1, 1.77, 1e-12);
  EXPECT_EQ(k.C2, 0.0);
  EXPECT_DOUBLE_EQ(k.LTlength, 3.0);
  EXPECT_TRUE(Near(k.Mcr, 443.95649e6, kChain));
  EXPECT_TRUE(Near(k.xLT, 0.9855477, kChain));
  EXPECT_TRUE(Near(k.fLT, 0.8778870, kChain));
}

TEST(Restraints, TheMiddleOfThreePartsGovernsAndIsNamed) {
  State s = test::Ipe300("6", "0", "15");
  Do(s, "vipping.cbo", "2");
  EXPECT_EQ(s.project.ltbPart, 1);
  EXPECT_EQ(s.checks.buckTextLT.Limit, " < 1.0 (1L/3 - 2L/3;  (Ch 6.3.2))");
  EXPECT_DOUBLE_EQ(s.checks.LTlength, 2.0);
}

TEST(PartLabel, FirstMiddleAndLastParts) {
  EXPECT_EQ(PartLabel(0, 2, false), "0 - L/2");
  EXPECT_EQ(PartLabel(1, 2, false), "1L/2 -  L");
  EXPECT_EQ(PartLabel(2, 5, false), "2L/5 - 3L/5");
  EXPECT_EQ(PartLabel(0, 1, false), "0 - L/1");
}

TEST(Restraints, EndForcesWithEqualMomentsAreOnePartWithPsiOne) {
  // psi = 1, t = 1: C1 = 1.19 - 0.14 = 1.05 at k = 0.5 and 1.14 - 0.14 = 1.00 at k = 1.
  State s = test::StartedState();
  Do(s, "mnup04");
  Do(s, "p04.cbo", "10");
  Do(s, "il", "6");
  Do(s, "mnuendforces");
  Do(s, "endforce.ine", "0");
  Do(s, "endforce.imy1", "50");
  Do(s, "endforce.imy2", "50");
  Do(s, "endforce.ivz1", "0");
  EXPECT_DOUBLE_EQ(s.checks.C1, 1.00);
  // Mcr = 1.00 * 347623.94 * sqrt(67599.41) = 90.3818E6 Nmm: uniform moment, warping and torsion
  EXPECT_TRUE(Near(s.checks.Mcr, 90.381826e6, kChain));
  Do(s, "vipping.latbuckl4");
  EXPECT_DOUBLE_EQ(s.checks.C1, 1.05);
  EXPECT_TRUE(s.checks.buckTextY.Formula.empty());  // no axial force, one moment
}

// ---- The tables ----

TEST(LoadCaseCFactors, PinnedEndsByLengthFactor) {
  // Rows Aq and AP at k = 1 (kk = 0) and k = 0.5 (kk = 1); the k = 0.5 q-load row is that of the
  // published tables of ENV 1993-1-1 Annex F: 0.970, 0.360, 0.478.
  CFactors q1 = LoadCaseCFactors(0, true, 1.0, 50, 0, 0, 0);
  EXPECT_DOUBLE_EQ(q1.C1, 1.12);
  EXPECT_DOUBLE_EQ(q1.C2, 0.45);
  EXPECT_DOUBLE_EQ(q1.C3, 0.525);
  CFactors q05 = LoadCaseCFactors(0, true, 0.5, 50, 0, 0, 0);
  EXPECT_NEAR(q05.C1, 0.97, 1e-12);
  EXPECT_NEAR(q05.C2, 0.36, 1e-12);
  EXPECT_NEAR(q05.C3, 0.478, 1e-12);
  CFactors p1 = LoadCaseCFactors(0, false, 1.0, 50, 0, 0, 0);
  EXPECT_DOUBLE_EQ(p1.C1, 1.35);
  EXPECT_DOUBLE_EQ(p1.C2, 0.59);
  EXPECT_DOUBLE_EQ(p1.C3, 0.411);
}

TEST(LoadCaseCFactors, FixedEndsAtHalfLengthMatchThePublishedTable) {
  // ENV 1993-1-1 Annex F, k = 0.5, fixed ends: q-load 0.712, 0.652, 1.070; central point load
  // 0.938, 0.715, 4.800 (the program's C3 row gives 4.805).
  CFactors q = LoadCaseCFactors(2, true, 0.5, 50, 0, 0, 0);
  EXPECT_NEAR(q.C1, 0.712, 1e-12);
  EXPECT_NEAR(q.C2, 0.652, 1e-12);
  EXPECT_NEAR(q.C3, 1.070, 1e-12);
  CFactors p = LoadCaseCFactors(2, false, 0.5, 50, 0, 0, 0);
  EXPECT_NEAR(p.C1, 0.938, 1e-12);
  EXPECT_NEAR(p.C2, 0.715, 1e-12);
  EXPECT_NEAR(p.C3, 4.805, 1e-12);
}

TEST(LoadCaseCFactors, SpringsAtFullStiffnessAreTheFixedCase) {
  for (bool curved : {true, false}) {
    const CFactors fixed = LoadCaseCFactors(2, curved, 1.0, 0, 0, 0, 0);
    const CFactors spring = LoadCaseCFactors(3, curved, 1.0, 100, 0, 0, 0);
    EXPECT_DOUBLE_EQ(spring.C1, fixed.C1);
    EXPECT_DOUBLE_EQ(spring.C2, fixed.C2);
    EXPECT_DOUBLE_EQ(spring.C3, fixed.C3);
  }
}

TEST(LoadCaseCFactors, SpringsWithoutStiffnessUseTheirOwnPointLoadRow) {
  // s = 0 at k = 0.5: AP' gives C1 = 1.35 - 0.28 = 1.07, C2 = 0.59 - 0.158 = 0.432; AP would
  // give 1.05 and 0.48. The q-load falls back to Aq.
  const CFactors p = LoadCaseCFactors(3, false, 0.5, 0, 0, 0, 0);
  EXPECT_NEAR(p.C1, 1.07, 1e-12);
  EXPECT_NEAR(p.C2, 0.432, 1e-12);
  const CFactors q = LoadCaseCFactors(3, true, 0.5, 0, 0, 0, 0);
  EXPECT_NEAR(q.C1, 0.97, 1e-12);
  // Pinned + spring at 50 %: 0.5 (0.5 Aq + 0.5 Bq) + 0.5 Aq at k = 1:
  // C1 = 0.5 (0.56 + 1.289) + 0.56 = 1.4845
  EXPECT_NEAR(LoadCaseCFactors(5, true, 1.0, 50, 0, 0, 0).C1, 1.4845, 1e-12);
  // Pinned + fixed: 0.5 AP + 0.5 BP at k = 1: C1 = 0.5 (1.35 + 1.565) = 1.4575
  EXPECT_NEAR(LoadCaseCFactors(1, false, 1.0, 50, 0, 0, 0).C1, 1.4575, 1e-12);
}

TEST(LoadCaseCFactors, CantileverHalvesTheFactorAndChoosesItsRowByTheMoments) {
  // k = 2 halved to 1: kk = 0. A uniform load on a cantilever: M0 = -qL^2/2, Mmid = -qL^2/8,
  // ML = 0: |Mmid| = 0.125 is not above 1.2 * 0.5 / 2 = 0.3: the P-load row.
  const CFactors uniform = LoadCaseCFactors(4, true, 2.0, 50, -0.5, -0.125, 0);
  EXPECT_DOUBLE_EQ(uniform.C1, 1.35);
  EXPECT_DOUBLE_EQ(uniform.C2, 0.59);
  // A diagram peaked in the middle takes the q-load row, whatever the shape flag says.
  const CFactors peaked = LoadCaseCFactors(4, false, 2.0, 50, 0, 10, 0);
  EXPECT_DOUBLE_EQ(peaked.C1, 1.12);
}

TEST(MomentRatioTable, EndValuesOfTheTable) {
  // psi = 1: C1 1.05 at k = 0.5, 1.00 at k = 1; C3 1.019 and 1.
  CFactors a = MomentRatioTable(1, 0, 0.5);
  EXPECT_NEAR(a.C1, 1.05, 1e-12);
  EXPECT_NEAR(a.C3, 1.019, 1e-12);
  CFactors b = MomentRatioTable(1, 0, 1.0);
  EXPECT_NEAR(b.C1, 1.00, 1e-12);
  EXPECT_NEAR(b.C3, 1.0, 1e-12);
  EXPECT_NEAR(MomentRatioTable(0, 0, 1.0).C1, 1.77, 1e-12);
  EXPECT_NEAR(MomentRatioTable(0, 0, 0.5).C1, 1.86, 1e-12);
  EXPECT_NEAR(MomentRatioTable(-1, 0, 1.0).C1, 2.6, 1e-12);
  EXPECT_NEAR(MomentRatioTable(-1, 0, 0.5).C1, 2.45, 1e-12);
  // Between: psi = 0.6 at k = 0.7 (kk2 = 0.4): t = 0.4, C1a = 1.37 - 0.072 = 1.298,
  // C1b = 1.31 - 0.068 = 1.242, C1 = 1.298 + 0.4 (1.242 - 1.298) = 1.2756
  EXPECT_NEAR(MomentRatioTable(0.6, 0, 0.7).C1, 1.2756, 1e-12);
}

TEST(MomentRatioTable, C1IsContinuousAcrossTheIntervals) {
  for (double p0 : {0.75, 0.5, 0.25, 0.0, -0.25, -0.5, -0.75}) {
    for (double k : {0.5, 1.0}) {
      const double at = MomentRatioTable(p0, 0, k).C1;
      const double below = MomentRatioTable(p0 - 1e-9, 0, k).C1;
      EXPECT_NEAR(at, below, 1e-6) << "psi " << p0 << " k " << k;
    }
  }
}

TEST(MomentRatioTable, TheOddRowsOfC3StandAsTheyAre) {
  // psif > 0, psi in [-0.25, 0): u from -0.5: psi = -0.1, u = 1.6: C3a = 0.65 + 0.56 = 1.21,
  // C3b = 0.85 + 0.24 = 1.09.
  EXPECT_NEAR(MomentRatioTable(-0.1, 0.5, 0.5).C3, 1.21, 1e-12);
  EXPECT_NEAR(MomentRatioTable(-0.1, 0.5, 1.0).C3, 1.09, 1e-12);
  // psif <= 0, psi = -1, psif = -0.5: v = -1,
  // C3a = 0.475 - (0.85 - 0.475) = 0.1, C3b = 0.5 - 0.5 = 0
  EXPECT_NEAR(MomentRatioTable(-1, -0.5, 0.5).C3, 0.1, 1e-12);
  EXPECT_NEAR(MomentRatioTable(-1, -0.5, 1.0).C3, 0.0, 1e-12);
  // psif > 0, psi = -0.875, psif = 0.5: v = -0.5,
  // C3a = -0.5 - 0.5 ((0.35 - 0.5) - (-0.125 - 0.35)) = -0.6625,
  // C3b = -0.5 - 0.5 (0.05 + 0.5) = -0.775
  EXPECT_NEAR(MomentRatioTable(-0.875, 0.5, 0.5).C3, -0.6625, 1e-12);
  EXPECT_NEAR(MomentRatioTable(-0.875, 0.5, 1.0).C3, -0.775, 1e-12);
  // psif <= 0 in [-0.75, -0.5): psi = -0.6, t = 0.6: C3a = 0.85 + 0.06 = 0.91
  EXPECT_NEAR(MomentRatioTable(-0.6, 0, 0.5).C3, 0.91, 1e-12);
}

TEST(AlternativeC1, UniformMomentIsOneAtEveryLength) {
  const double M[5] = {10, 10, 10, 10, 10};
  EXPECT_NEAR(AlternativeC1Of(1.0, M, 10), 1.0, 1e-12);
  // k = 0.5: a = 0.5, 2.5, 20, 2.5, 0.5: A = 27/27 = 1, B = 1, q = 0.70711:
  // C1 = sqrt(0.70711 + 0.14645^2) + 0.14645 = 0.85355 + 0.14645 = 1.0
  EXPECT_NEAR(AlternativeC1Of(0.5, M, 10), 1.0, 1e-12);
}

TEST(AlternativeC1, ParabolaOnTheGridPoints) {
  // Grid points 0, 12, 25, 38, 50 of a parabola: 0, 0.7296, 1, 0.7296, 0 of Mmax (x = 0.24, 0.76).
  // A = (1 + 5 * 0.7296^2 * 2 + 10) / 21 = 0.777293; C1 = sqrt(A)/A = 1.134247
  // (the ECCS rules give 1.13 for a uniform load).
  const double M[5] = {0, 0.7296, 1, 0.7296, 0};
  EXPECT_NEAR(AlternativeC1Of(1.0, M, 1), 1.134247, 1e-6);
}

TEST(CFactorsInForce, ManualFactorsWithTheAlternativeC1) {
  State s = test::Ipe300("6", "0", "15");
  Do(s, "vipping.Cfactor", "1");
  // The factors in force are the start.
  EXPECT_DOUBLE_EQ(s.project.ltbC1, 1.12);
  EXPECT_DOUBLE_EQ(s.project.ltbC2, 0.45);
  EXPECT_DOUBLE_EQ(s.project.ltbC3, 0.525);
  Do(s, "vipping.ic1", "1.5");
  Do(s, "vipping.ic2", "0.3");
  EXPECT_DOUBLE_EQ(s.checks.C1, 1.5);
  EXPECT_FLOAT_EQ(static_cast<float>(s.checks.C2), 0.3f);
  // Both on: C1 by the formula (the parabola above, 1.134247), C2 and C3 from the fields.
  Do(s, "vipping.C1factor", "1");
  EXPECT_NEAR(s.checks.C1, 1.134247, 1e-5);
  EXPECT_FLOAT_EQ(static_cast<float>(s.checks.C2), 0.3f);
  EXPECT_DOUBLE_EQ(s.checks.C3, 0.525);
  // Off again: the tables.
  Do(s, "vipping.Cfactor", "0");
  Do(s, "vipping.C1factor", "0");
  EXPECT_DOUBLE_EQ(s.checks.C1, 1.12);
}

// ---- The dialog ----

TEST(LtbDialog, FieldsRefuseValuesOutsideTheirLimitsWithTheirOwnText) {
  State s = test::Ipe300("6", "0", "15");
  Do(s, "vipping.Cfactor", "1");  // the fields take input only with the user's factors
  EventResult r = Fire(s, "vipping.ic1", "0.1");
  EXPECT_TRUE(r.refused);
  EXPECT_EQ(r.message, " 0.2 <= C1i <= 4 ");
  EXPECT_EQ(r.focus, "vipping.ic1");
  EXPECT_FALSE(Fire(s, "vipping.ic1", "0.2").refused);  // bounds included
  EXPECT_FALSE(Fire(s, "vipping.ic1", "4").refused);
  r = Fire(s, "vipping.ic2", "-0.1");
  EXPECT_EQ(r.message, " 0 <= C2i <= 4 ");
  r = Fire(s, "vipping.ic2", "0");
  EXPECT_FALSE(r.refused);
  EXPECT_EQ(r.text, "0.000");
  EXPECT_EQ(r.focus, "vipping.ic1");  // ic3 only for the single symmetric I
  r = Fire(s, "vipping.ic3", "4.5");
  EXPECT_EQ(r.message, " 0 <= C3i <= 4 ");
}

TEST(LtbDialog, ZaIsWholeMillimetresWithoutAWord) {
  State s = test::Ipe300("6", "0", "15");
  EventResult r = Fire(s, "vipping.iza", "12,6");
  EXPECT_FALSE(r.refused);
  EXPECT_EQ(s.project.ltbZa, 13);
  EXPECT_EQ(r.text, "13");
  EXPECT_EQ(r.focus, "vipping.loadl4");
  r = Fire(s, "vipping.iza", "abc");  // read as 0 under a decimal point
  EXPECT_FALSE(r.refused);
  EXPECT_EQ(r.text, "00");
  s.decimalComma = true;
  Do(s, "vipping.iza", "7");
  r = Fire(s, "vipping.iza", "abc");  // a mismatch keeps the value and says nothing
  EXPECT_FALSE(r.refused);
  EXPECT_TRUE(r.message.empty());
  EXPECT_EQ(s.project.ltbZa, 7);
}

TEST(LtbDialog, ShowsNotApplicableWhereAFactorDoesNotEnter) {
  State s = test::Ipe300("6", "0", "15");
  Do(s, "cbuttlateral");
  EXPECT_EQ(s.view.text["vipping.ic1"], "1.120");
  EXPECT_EQ(s.view.text["vipping.ic2"], "0.450");
  EXPECT_EQ(s.view.text["vipping.ic3"], "N/A");
  EXPECT_EQ(s.view.text["vipping.Mcr"], "Mcr = 78.303 kNm");
  Do(s, "vipping.cbo", "1");
  EXPECT_EQ(s.view.text["vipping.ic2"], "N/A");
  EXPECT_EQ(s.view.items["vipping.Beampart"].size(), 2u);
  EXPECT_EQ(s.view.text["vipping.Beampart"], "1L/2 -  L");
}

TEST(LtbDialog, ChannelsAreOfferedTheGeneralCurveOnly) {
  State s = test::StartedState();
  Do(s, "mnup05");
  ASSERT_EQ(s.project.ltbCurve, 3);
  Do(s, "vipping.Activate");
  EXPECT_EQ(s.project.ltbCurve, 2);
  EXPECT_FALSE(s.view.visible["vipping.Curve3"]);
  EXPECT_FALSE(s.view.txtErrorVisible);
}

TEST(LtbDialog, TheLengthFactorWaitsWhileTheControlIsOff) {
  State s = test::Ipe300("6", "0", "15");
  Do(s, "ch_vipp", "0");
  Do(s, "vipping.latbuckl3");
  EXPECT_EQ(s.project.ltbCase, 3);
  EXPECT_FLOAT_EQ(s.project.ltbFactor, 0.001f);
  Do(s, "ch_vipp", "1");
  EXPECT_FLOAT_EQ(s.project.ltbFactor, 0.7f);
}

// A channel has only the general curve: with the stored curve left at the rolled one (the dialog
// never opened), it must not inherit the reduction factor of the section chosen before it.
TEST(LateralTorsionalChannels, TakeTheGeneralCurveWithoutTheDialog) {
  State fromHea = test::StartedState();
  Fire(fromHea, "mnup05");
  Fire(fromHea, "p05.cbo", "6");
  ASSERT_EQ(fromHea.project.ltbCurve, 3);
  State general = test::StartedState();
  general.project.ltbCurve = 2;
  Fire(general, "mnup05");
  Fire(general, "p05.cbo", "6");
  ASSERT_FALSE(fromHea.view.txtErrorVisible);
  EXPECT_GT(fromHea.checks.xLT, 0.0);
  EXPECT_EQ(fromHea.checks.xLT, general.checks.xLT);
  EXPECT_EQ(fromHea.checks.buckTextLT.Ratio, general.checks.buckTextLT.Ratio);
}

}  // namespace
}  // namespace vn
