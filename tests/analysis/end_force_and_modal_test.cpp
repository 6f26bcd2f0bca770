// End force mode and modal analysis.
#include <gtest/gtest.h>

#include "beam_fixture.h"
#include "core/events.h"

namespace vn {
namespace {

using test::AddUniform;
using test::BeamState;
using test::Printed;

State EndForceState() {
  State s = BeamState(5, 0);
  Project& p = s.project;
  p.AnalysisMode = 0;
  p.NEndForce = 100;
  p.My12 = {0, 100, 0};
  p.Vz12 = {0, 50, 0};
  return s;
}

// ---- End forces ----

TEST(EndForces, VaryLinearlyBetweenTheEndsOnBothGrids) {
  State s = EndForceState();
  MemberAnalysis(s);
  const Analysis& a = s.analysis;
  // My from 100 at x = 0 to 0 at L: the step is -2 per grid point; 50 at midspan.
  EXPECT_EQ(a.MyGrid[0], 100.0f);
  EXPECT_EQ(a.MyGrid[25], 50.0f);
  EXPECT_EQ(a.MyGrid[50], 0.0f);
  EXPECT_EQ(a.VzGrid[25], 25.0f);
  // Check point x/L = 0.3: 100 + (0 - 100) * 0.3 = 70
  EXPECT_FLOAT_EQ(a.MyPt[3], 70.0f);
  EXPECT_FLOAT_EQ(a.VzPt[3], 35.0f);
  EXPECT_EQ(a.NEd, 100.0);
  EXPECT_EQ(a.MyMax, 100.0f);
  EXPECT_EQ(a.MyGov, 100.0f);
  // No deflection in this mode, and no deflection lines.
  EXPECT_EQ(a.dzGrid[25], 0.0f);
  EXPECT_TRUE(a.deflTextZ.Formula.empty());
}

TEST(EndForces, EqualEndMomentsGiveAConstantDiagramAndPsiOne) {
  State s = EndForceState();
  s.project.My12 = {0, 40, 40};
  MemberAnalysis(s);
  for (int k = 0; k <= 50; ++k) EXPECT_EQ(s.analysis.MyGrid[k], 40.0f);
  EXPECT_EQ(s.analysis.ShapeY.Psi, 1.0f);
  EXPECT_EQ(s.analysis.PointsY.M3, 40.0f);
}

TEST(EndForces, TheMaximumStartsFromTheFirstEndAndTheMinimumFromZero) {
  State s = EndForceState();
  s.project.My12 = {0, -10, -20};
  MemberAnalysis(s);
  // No value exceeds -10, the value at x = 0; no value is below -20.
  EXPECT_EQ(s.analysis.MyMax, -10.0f);
  EXPECT_EQ(s.analysis.MyMin, -20.0f);
  EXPECT_EQ(s.analysis.MyGov, -20.0f);  // |-10| is not above |-20|
}

TEST(EndForces, ShapeFlagsKeepTheValuesOfTheLastBeamRun) {
  State s = EndForceState();
  s.analysis.ShapeY.Curved = True;
  s.analysis.ShapeY.AlphaS = 0.33f;
  MemberAnalysis(s);
  EXPECT_EQ(s.analysis.ShapeY.Curved, True);
  EXPECT_EQ(s.analysis.ShapeY.AlphaS, 0.33f);
  EXPECT_EQ(s.analysis.ShapeY.Psi, 0.0f);  // 0 at the second end
}

TEST(EndForces, ATSectionKeepsOnlyItsAxialForce) {
  State s = EndForceState();
  Project& p = s.project;
  p.ProfileType = 26;
  p.Mz12 = {0, 5, 6};
  p.Vy12 = {0, 7, 8};
  MemberAnalysis(s);
  EXPECT_EQ(p.My12[1], 0.0f);
  EXPECT_EQ(p.Vz12[1], 0.0f);
  EXPECT_EQ(p.Mz12[2], 0.0f);
  EXPECT_EQ(p.Vy12[2], 0.0f);
  EXPECT_EQ(p.NEndForce, 100.0f);
  EXPECT_EQ(s.analysis.MyGrid[0], 0.0f);
}

TEST(EndForces, OneAxisFamiliesLoseTheirForcesAboutZOnly) {
  State s = EndForceState();
  Project& p = s.project;
  p.ProfileType = 28;
  p.Mz12 = {0, 5, 6};
  MemberAnalysis(s);
  EXPECT_EQ(p.Mz12[1], 0.0f);
  EXPECT_EQ(p.My12[1], 100.0f);
}

TEST(EndForces, ZeroPointsOfMyOnlyForAHeldEnd) {
  State s = EndForceState();
  s.project.SupportType = 2;
  s.project.My12 = {0, -10, 15};
  MemberAnalysis(s);
  // -10 + 0.5 k: zero at k = 20. The pairs 19 -> 20 and 20 -> 21 both count; the last is kept:
  // 20 / 50 + (0 / 0.5) / 50 = 0.4. No change of sign in the second half.
  EXPECT_FLOAT_EQ(s.analysis.InflectionY1, 0.4f);
  EXPECT_EQ(s.analysis.InflectionY2, 0.0f);
  s.project.SupportType = 0;
  MemberAnalysis(s);
  EXPECT_EQ(s.analysis.InflectionY1, 0.0f);
}

// ---- Modal analysis ----

// IPE 300: Iy = 8.356E7 mm4, g = 42.2 kg/m; L = 6 m, E = 210000, q = 10 kN/m in slot 1.
// m = 102 * 10 + 42.2 = 1062.2 kg/m; sqrt(Iy E 1E-6 / (L^4 m)) = sqrt(1.75476E7 / 1376611.2)
// = 3.570288 1/s; f1 = 1.57 * 3.570288 = 5.6054 Hz, f2 = 22.4214, f3 = 50.3411.
State ModalState(int supportType) {
  State s = BeamState(6, supportType);
  s.section.Iy = 8.356e7f;
  s.section.g = 42.2f;
  AddUniform(s, 1, 10);
  return s;
}

TEST(Modal, GivesTheFirstThreeFrequenciesOfASimpleBeam) {
  State s = ModalState(0);
  ModalAnalysis(s);
  EXPECT_EQ(s.view.text["Modal_ns.massa"], "Mass: m = 1062 kg/m");
  EXPECT_EQ(s.view.text["Modal_ns.mod1"], "Mode 1: 5.61 Hz/0.18s");
  EXPECT_EQ(s.view.text["Modal_ns.mod2"], "Mode 2: 22.42 Hz/0.04s");
  EXPECT_EQ(s.view.text["Modal_ns.mod3"], "Mode 3: 50.34 Hz/0.02s");
  // The coefficients, not n^2, set the ratios: 1 : 4 : 8.98.
  EXPECT_EQ(Printed(s.analysis.ModalFreq[2] / s.analysis.ModalFreq[1], "0.00"), "4.00");
  EXPECT_EQ(Printed(s.analysis.ModalFreq[3] / s.analysis.ModalFreq[1], "0.00"), "8.98");
}

TEST(Modal, CountsAllUniformLoadsAndTheSectionWeightButNothingElse) {
  State s = ModalState(0);
  AddUniform(s, 2, -2, 0, 2);  // in Y and Q2: counted, and negative
  s.loads.trapezoid[1] = {5, 5, 1, 2, 0, 1.0f, True};
  s.loads.uniform[0].q = 99;  // the selfweight slot is not counted
  ModalAnalysis(s);
  // m = 102 * (10 - 2) + 42.2 = 858.2
  EXPECT_FLOAT_EQ(s.analysis.ModalMass, 858.2f);
}

// The strict rules: the mass of the quasi-permanent combination of EN 1990, G + psi Q, with the psi of
// each variable load's list (psi0, an upper bound of psi2). G 10 kN/m, Q1 10 kN/m with psi 0.7, Q2
// 5 kN/m in y with psi 0.3, on the IPE 300 of 6 m above:
//   as specified: m = 102 * (10 + 10 + 5) + 42.2 = 2592.2 kg/m; sqrt(1.75476E7/(1296 * 2592.2))
//                 = 2.285452, f1 = 1.57 * 2.285452 = 3.5882 Hz
//   strict:       m = 102 * (10 + 0.7 * 10 + 0.3 * 5) + 42.2 = 1929.2 kg/m; sqrt(1.75476E7/(1296 *
//                 1929.2)) = 2.649218, f1 = 4.1593 Hz, f2 = 16.6371 Hz, f3 = 37.3540 Hz
TEST(Modal, TheStrictRulesTakeTheQuasiPermanentMass) {
  State s = ModalState(0);
  AddUniform(s, 2, 10, 1, 1);
  AddUniform(s, 3, 5, 0, 2);
  s.project.psiQ1 = 0.7f;
  s.project.psiQ2 = 0.3f;
  ModalAnalysis(s);
  EXPECT_FLOAT_EQ(s.analysis.ModalMass, 2592.2f);
  EXPECT_EQ(s.view.text["Modal_ns.mod1"], "Mode 1: 3.59 Hz/0.28s");
  s.project.strictRules = True;
  ModalAnalysis(s);
  EXPECT_FLOAT_EQ(s.analysis.ModalMass, 1929.2f);
  EXPECT_EQ(s.view.text["Modal_ns.massa"], "Mass: m = 1929 kg/m");
  EXPECT_EQ(s.view.text["Modal_ns.mod1"], "Mode 1: 4.16 Hz/0.24s");
  EXPECT_EQ(s.view.text["Modal_ns.mod2"], "Mode 2: 16.64 Hz/0.06s");
  EXPECT_EQ(s.view.text["Modal_ns.mod3"], "Mode 3: 37.35 Hz/0.03s");
}

TEST(Modal, UsesBendingAboutYOnly) {
  State s = ModalState(2);
  ModalAnalysis(s);
  const Single f1 = s.analysis.ModalFreq[1];
  s.section.Iz *= 10;
  ModalAnalysis(s);
  EXPECT_EQ(s.analysis.ModalFreq[1], f1);
  // Fixed-fixed: 3.56 * 3.570288 = 12.7102 Hz
  EXPECT_EQ(Printed(f1, "0.00"), "12.71");
}

TEST(Modal, PinnedFixedCoefficients) {
  State s = ModalState(1);
  ModalAnalysis(s);
  // 2.45, 7.95 and 16.6 times 3.570288: 8.7472, 28.3838 and 59.2668 Hz
  EXPECT_EQ(Printed(s.analysis.ModalFreq[1], "0.00"), "8.75");
  EXPECT_EQ(Printed(s.analysis.ModalFreq[2], "0.00"), "28.38");
  EXPECT_EQ(Printed(s.analysis.ModalFreq[3], "0.00"), "59.27");
}

TEST(Modal, CantileverCoefficients) {
  State s = ModalState(4);
  ModalAnalysis(s);
  // 0.56 * 3.570288 = 1.99936 Hz; 1 / f = 0.50016 s
  EXPECT_EQ(s.view.text["Modal_ns.mod1"], "Mode 1: 2.00 Hz/0.50s");
}

TEST(Modal, IsRefusedForSpringSupports) {
  State s = ModalState(3);
  EventResult r = Fire(s, "ch_modal", "1");
  EXPECT_EQ(r.message, " Modal analysis not possible for spring supports ");
  EXPECT_EQ(s.project.chModal, 0);
}

TEST(Modal, AMassOfZeroOrLessEndsInACalculationFault) {
  State s = ModalState(0);
  s.loads.uniform[1].q = -1;  // 102 * -1 + 42.2 < 0
  EXPECT_THROW(ModalAnalysis(s), CalcFault);
}

}  // namespace
}  // namespace vn
