// The analysis driver: check grid, loads cleaned for the family, selfweight, combination forms,
// the choice between Eq 6.10a and 6.10b, governing moments.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "beam_fixture.h"
#include "core/json.h"

namespace vn {
namespace {

using test::AddPoint;
using test::AddUniform;
using test::BeamState;
using test::Printed;

// ---- Check grid ----

TEST(CheckGrid, EightInnerPointLoadsGiveTwentySixPointsOutOfOrder) {
  State s = BeamState(8, 0);
  for (int i = 1; i <= 8; ++i) AddPoint(s, i, i % 2, 1, static_cast<Single>(i * 0.5));
  ComputeCheckGrid(s);
  const Analysis& a = s.analysis;
  EXPECT_EQ(a.NPoints, 26);
  EXPECT_EQ(a.ChPointXrel[0], 0.0f);
  EXPECT_EQ(a.ChPointXrel[10], 1.0f);
  // Slot 1 at 0.5 m: 0.5 * 0.999 / 8 = 0.0624375 and 0.5 * 1.001 / 8 = 0.0625625, after x/L = 1.
  EXPECT_FLOAT_EQ(a.ChPointXrel[11], 0.0624375f);
  EXPECT_FLOAT_EQ(a.ChPointXrel[12], 0.0625625f);
  // Slot 8 at 4 m: 0.4995 and 0.5005.
  EXPECT_FLOAT_EQ(a.ChPointXrel[25], 0.4995f);
  EXPECT_FLOAT_EQ(a.ChPointXrel[26], 0.5005f);
}

TEST(CheckGrid, ALoadAtTheEndOrAtZeroAddsNoPointsButAZeroValueWithAPositionDoes) {
  State s = BeamState(5, 0);
  AddPoint(s, 1, 0, 10, 5);  // at L
  AddPoint(s, 2, 0, 10, 0);  // at 0
  AddPoint(s, 3, 0, 0, 2);   // no value, but a position
  ComputeCheckGrid(s);
  EXPECT_EQ(s.analysis.NPoints, 12);
  EXPECT_FLOAT_EQ(s.analysis.ChPointXrel[11], 0.3996f);  // 2 * 0.999 / 5
}

TEST(CheckGrid, TheUserPointsReplaceTheGridAndTakeNoLoadPoints) {
  State s = BeamState(4, 0);
  s.project.ChPointMode = 1;
  s.project.ChPointX = {0, 1, 2, 3};
  AddPoint(s, 1, 0, 10, 1.5f);
  s.project.ChPointCount = 2;
  ComputeCheckGrid(s);
  EXPECT_EQ(s.analysis.NPoints, 1);
  EXPECT_FLOAT_EQ(s.analysis.ChPointXrel[0], 0.25f);
  EXPECT_FLOAT_EQ(s.analysis.ChPointXrel[1], 0.5f);
  s.project.ChPointCount = 1;
  ComputeCheckGrid(s);
  EXPECT_EQ(s.analysis.NPoints, 0);
  s.project.ChPointCount = 7;  // any other count means three points
  ComputeCheckGrid(s);
  EXPECT_EQ(s.analysis.NPoints, 2);
  EXPECT_FLOAT_EQ(s.analysis.ChPointXrel[2], 0.75f);
}

// ---- Loads cleaned for the family ----

TEST(FamilyCleanUp, OneAxisFamiliesLoseTheirYLoadsForGood) {
  State s = BeamState(6, 0);
  s.project.ProfileType = 24;
  s.loads.axial[1] = {50, 0, True};
  AddUniform(s, 1, 5, 0);
  AddUniform(s, 2, 7, 1);
  s.loads.trapezoid[1] = {3, 4, 1, 2, 0, 0.0f, True};
  AddPoint(s, 1, 0, 9, 2, 0, 2);
  AddPoint(s, 2, 1, 4, 3, 1, 1);
  MemberAnalysis(s);
  const Loads& l = s.loads;
  EXPECT_EQ(l.axial[1].N, 0.0f);
  EXPECT_EQ(l.uniform[1].q, 0.0f);
  EXPECT_EQ(l.uniform[1].Dir, 1);
  EXPECT_EQ(l.uniform[2].q, 7.0f);
  EXPECT_EQ(l.trapezoid[1].q1, 0.0f);
  EXPECT_EQ(l.trapezoid[1].x1, 1.0f);  // the positions stay
  EXPECT_EQ(l.trapezoid[1].Dir, 1.0f);
  // A Y point load loses its position as well as its value.
  EXPECT_EQ(l.point[1].Value, 0.0f);
  EXPECT_EQ(l.point[1].x, 0.0f);
  EXPECT_EQ(l.point[1].Case, 0);
  EXPECT_EQ(l.point[1].Dir, 1);
  EXPECT_EQ(l.point[2].Value, 4.0f);
  EXPECT_EQ(s.analysis.MzGrid[25], 0.0f);
}

TEST(FamilyCleanUp, TheFlatBarKeepsItsAxialForce) {
  State s = BeamState(6, 0);
  s.project.ProfileType = 28;
  s.loads.axial[2] = {40, 0, True};
  MemberAnalysis(s);
  EXPECT_EQ(s.loads.axial[2].N, 40.0f);
  EXPECT_EQ(s.analysis.NEd, 40.0);
}

TEST(FamilyCleanUp, TheTSectionKeepsOnlyAxialForcesAndTheSelfweight) {
  State s = BeamState(6, 0);
  s.project.ProfileType = 26;
  s.project.SelfweightOn = 1;
  s.section.g = 30;
  s.loads.axial[1] = {20, 0, True};
  AddUniform(s, 1, 5);
  s.loads.trapezoid[2] = {3, 4, 1, 2, 0, 1.0f, True};
  AddPoint(s, 3, 0, 9, 2);
  MemberAnalysis(s);
  EXPECT_EQ(s.loads.uniform[1].q, 0.0f);
  EXPECT_EQ(s.loads.trapezoid[2].x2, 0.0f);
  EXPECT_EQ(s.loads.point[3].x, 0.0f);
  EXPECT_EQ(s.loads.axial[1].N, 20.0f);
  // The selfweight 30 * 0.01 = 0.3 kN/m still acts: M = 0.3 * 36 / 8 = 1.35
  EXPECT_FLOAT_EQ(s.analysis.MyGrid[25], 1.35f);
}

// ---- Selfweight slot ----

TEST(Selfweight, IsTheSectionWeightTimesAHundredthInZAsPermanentLoad) {
  State s = BeamState(6, 0);
  s.project.SelfweightOn = 1;
  s.section.g = 42.2f;  // IPE 300
  s.loads.uniform[0].Case = 2;
  s.loads.uniform[0].Dir = 0;
  MemberAnalysis(s);
  const UniformLoad& u = s.loads.uniform[0];
  EXPECT_FLOAT_EQ(u.q, 0.422f);
  EXPECT_EQ(u.Case, 0);
  EXPECT_EQ(u.Dir, 1);
  EXPECT_EQ(u.Checked, True);
  s.project.SelfweightOn = 0;
  MemberAnalysis(s);
  EXPECT_EQ(s.loads.uniform[0].q, 0.0f);
  EXPECT_EQ(s.loads.uniform[0].Checked, False);
}

// ---- Combination forms ----
//
// Simple beam L = 6, E I as in the solver's examples (10 kN/m gives 10.0446 mm). Loads:
// G: q = 10, N = 100; Q1: q = 4, N = 20; Q2: q = 2, N = 10 with the case held as 1.5.
// Factors of the EU code: 1.35 / 1.5 / 1.5, 6.10a 1.35 / 1.5 / 1.5, 6.10b 1.35 with xi = 0.85,
// KFIG = KFI = 1; psiQ1 = 0.7, psiQ2 = 0.5.
State CombinationState(int mode) {
  State s = BeamState(6, 0);
  CombinationFactors& c = s.comb;
  c.gammaG_610 = 1.35f;
  c.gammaQ1_610 = c.gammaQ2_610 = 1.5f;
  c.gammaG_610a = 1.35f;
  c.gammaQ1_610a = c.gammaQ2_610a = 1.5f;
  c.gammaG_610b = 1.35f;
  c.xi = 0.85f;
  c.KFIG = 1;
  c.KFI = 1;
  s.project.psiQ1 = 0.7f;
  s.project.psiQ2 = 0.5f;
  s.project.LoadCombMode = static_cast<Integer>(mode);
  AddUniform(s, 1, 10, 1, 0);
  AddUniform(s, 2, 4, 1, 1);
  AddUniform(s, 3, 2, 1, 2);
  s.loads.uniform[2].Checked = False;
  s.loads.axial[1] = {100, 0, True};
  s.loads.axial[2] = {20, 1, False};
  s.loads.axial[3] = {10, 1.5f, True};
  return s;
}

TEST(Combination, Eq610PutsThePsiOfTheMainLoadOnQ2) {
  State s = CombinationState(0);
  MemberAnalysis(s);
  const Analysis& a = s.analysis;
  // q = 1.35 * 10 + 1.5 * 4 + 1.5 * 0.7 * 2 = 21.6; M = 21.6 * 36 / 8 = 97.2
  EXPECT_EQ(Printed(a.qTotal, "0.000"), "21.600");
  EXPECT_EQ(Printed(a.MyGrid[25], "0.00"), "97.20");
  // NEd = 135 + 30 + 1.05 * 10 = 175.5 (the case 1.5 is Q2)
  EXPECT_EQ(Printed(a.NEd, "0.00"), "175.50");
  // SLS: 10 + 4 + 0.5 * 2 = 15 kN/m: d = 1.5 * 10.0446 = 15.067 mm
  EXPECT_EQ(Printed(a.dzGrid[25], "0.000"), "15.067");
}

TEST(Combination, Eq610aTakesPsiOnBothVariableLoads) {
  State s = CombinationState(1);
  MemberAnalysis(s);
  // q = 13.5 + 1.5 * 0.7 * 4 + 1.5 * 0.5 * 2 = 13.5 + 4.2 + 1.5 = 19.2; M = 86.4
  EXPECT_EQ(Printed(s.analysis.MyGrid[25], "0.00"), "86.40");
  // NEd = 135 + 21 + 7.5 = 163.5
  EXPECT_EQ(Printed(s.analysis.NEd, "0.00"), "163.50");
}

TEST(Combination, Eq610bReducesThePermanentLoadAndTakesAConstantOneAndAHalf) {
  State s = CombinationState(2);
  s.comb.gammaQ1_610 = 9;  // not read by 6.10b
  MemberAnalysis(s);
  // q = 1.35 * 0.85 * 10 + 1.5 * 4 + 1.5 * 0.5 * 2 = 11.475 + 6 + 1.5 = 18.975; M = 85.3875
  EXPECT_EQ(Printed(s.analysis.MyGrid[25], "0.0000"), "85.3875");
  // NEd = 114.75 + 30 + 7.5 = 152.25
  EXPECT_EQ(Printed(s.analysis.NEd, "0.00"), "152.25");
}

TEST(Combination, ReliabilityFactorsMultiplyTheirLoads) {
  State s = CombinationState(0);
  s.comb.KFIG = 1.1;
  s.comb.KFI = 0.9f;
  MemberAnalysis(s);
  // q = 1.35 * 1.1 * 10 + 1.5 * 0.9 * 4 + 1.5 * 0.9 * 0.7 * 2 = 14.85 + 5.4 + 1.89 = 22.14
  EXPECT_EQ(Printed(s.analysis.qTotal, "0.000"), "22.140");
}

TEST(Combination, UserFactorsHaveTheirOwnSlsFactors) {
  State s = CombinationState(4);
  Project& p = s.project;
  p.LfULS_G = 1.2f;
  p.LfULS_Q1 = 1.6f;
  p.LfULS_Q2 = 1.4f;
  p.LfSLS_G = 1.0f;
  p.LfSLS_Q1 = 0.5f;
  p.LfSLS_Q2 = 0.5f;
  MemberAnalysis(s);
  // ULS q = 12 + 6.4 + 2.8 = 21.2: M = 95.4; SLS q = 10 + 2 + 1 = 13: d = 1.3 * 10.0446 = 13.058
  EXPECT_EQ(Printed(s.analysis.MyGrid[25], "0.00"), "95.40");
  EXPECT_EQ(Printed(s.analysis.dzGrid[25], "0.000"), "13.058");
}

TEST(Combination, BasicLoadsCountTheTickedSlotsOnlyWhateverTheirCase) {
  State s = CombinationState(5);
  MemberAnalysis(s);
  // Ticked: q 10 (G) and 2 (Q2): 12 kN/m, M = 54, d = 1.2 * 10.0446 = 12.054 mm
  EXPECT_EQ(Printed(s.analysis.MyGrid[25], "0.00"), "54.00");
  EXPECT_EQ(Printed(s.analysis.dzGrid[25], "0.000"), "12.054");
  // N: 100 (ticked) + 10 (ticked); 20 not ticked
  EXPECT_EQ(s.analysis.NEd, 110.0);
}

TEST(Combination, TicksHaveNoEffectOutsideBasicLoads) {
  State s = CombinationState(0);
  for (auto& u : s.loads.uniform) u.Checked = False;
  MemberAnalysis(s);
  EXPECT_EQ(Printed(s.analysis.MyGrid[25], "0.00"), "97.20");
}

// Each slot is added in turn and every sum stored as a Single. A sum too small for a Single keeps
// only its sign: 0.25 * -1.4E-45 (the smallest Single) is stored as -0. The slots after it carry
// nothing and add 0.25 * (+0) = +0, and -0 + +0 is +0: so the moment there is +0, as printed.
TEST(Combination, AMomentStoredAsMinusZeroIsPlusZeroAfterTheEmptySlots) {
  State s = BeamState(6, 0);
  s.project.LoadCombMode = 4;
  s.project.LfULS_G = 0.25f;
  AddUniform(s, 1, 10);
  ComputeCheckGrid(s);
  SolveAllSlots(s);
  s.analysis.unit.uniform.z[1].M[5] = -std::numeric_limits<float>::denorm_min();
  CombineLoads(s, CombForm::UserFactors);
  EXPECT_EQ(s.analysis.MyGrid[5], 0.0f);
  EXPECT_FALSE(std::signbit(s.analysis.MyGrid[5]));
  EXPECT_EQ(Printed(s.analysis.MyGrid[25], "0.00"), "11.25");  // 0.25 * 10 * 36 / 8
}

// A sum beyond a Single ends the run at that sum, with every sum before it stored: here the
// second of two slots of 10 kN/m, at the 11th point of the diagram, where both carry 3E38.
TEST(Combination, ASumBeyondASingleFaultsThereWithTheSumsBeforeItStored) {
  State s = BeamState(6, 0);
  AddUniform(s, 1, 10);
  AddUniform(s, 2, 10);
  ComputeCheckGrid(s);
  SolveAllSlots(s);
  s.analysis.unit.uniform.z[1].M[10] = 3e38f;
  s.analysis.unit.uniform.z[2].M[10] = 3e38f;
  EXPECT_THROW(CombineLoads(s, CombForm::BasicLoads), CalcFault);
  const Analysis& a = s.analysis;
  // x = 1.08 m: M = 10 * 1.08 * 4.92 / 2 = 26.568 a slot, V = 30 - 10.8 = 19.2: both slots.
  EXPECT_EQ(Printed(a.MyGrid[9], "0.000"), "53.136");
  EXPECT_EQ(Printed(a.VzGrid[9], "0.0"), "38.4");
  // x = 1.2 m: the first slot's 3E38 and V = 18; the second faulted on its moment.
  EXPECT_EQ(a.MyGrid[10], 3e38f);
  EXPECT_EQ(Printed(a.VzGrid[10], "0.0"), "18.0");
  // x = 1.32 m: the first slot only, M = 10 * 1.32 * 4.68 / 2 = 30.888.
  EXPECT_EQ(Printed(a.MyGrid[11], "0.000"), "30.888");
}

// ---- Eq 6.10a/b ----

void RatioFromMoment(State& s) { s.analysis.IRsection = s.analysis.MyMax / 100.0; }
void RatioFromDeflectionOnly(State& s) { s.analysis.IRbuckling = 0.5; }
void RatioFromAxialForce(State& s) { s.analysis.IRbuckling = s.analysis.NEd / 100.0; }
void RaisesTheError(State& s) { s.project.calcError = -1; }

TEST(Eq610ab, TheLargerUtilisationGovernsNotTheLargerForce) {
  State s = CombinationState(3);
  s.analysis.controlRunner = RatioFromMoment;
  MemberAnalysis(s);
  // 6.10a gives M = 86.4 and 6.10b 85.3875: the ratios 0.864 and 0.854, so 6.10a governs and the
  // final combination is 6.10a again.
  EXPECT_EQ(s.analysis.GoverningEquation, 1);
  EXPECT_EQ(Printed(s.analysis.MyGrid[25], "0.00"), "86.40");
  EXPECT_EQ(Printed(s.analysis.MyMax, "0.00"), "86.40");
}

TEST(Eq610ab, EqualRatiosChoose610b) {
  State s = CombinationState(3);
  s.analysis.controlRunner = RatioFromDeflectionOnly;
  MemberAnalysis(s);
  EXPECT_EQ(s.analysis.GoverningEquation, 2);
  EXPECT_EQ(Printed(s.analysis.MyGrid[25], "0.0000"), "85.3875");
}

TEST(Eq610ab, TheRatiosAreClearedBeforeEachEquation) {
  State s = CombinationState(3);
  s.analysis.IRsection = 5;  // left from another run
  s.analysis.controlRunner = RatioFromAxialForce;
  MemberAnalysis(s);
  // Only IRbuckling is written: 1.635 for 6.10a, 1.5225 for 6.10b; the stale 5 must not count.
  EXPECT_EQ(s.analysis.GoverningEquation, 1);
}

TEST(Eq610ab, ACalculationErrorEndsTheAnalysisAtOnce) {
  State s = CombinationState(3);
  s.analysis.GoverningEquation = 0;
  s.analysis.controlRunner = RaisesTheError;
  MemberAnalysis(s);
  EXPECT_EQ(s.analysis.GoverningEquation, 0);
  // The 6.10a run got as far as its extremes: M = 86.4.
  EXPECT_EQ(Printed(s.analysis.MyGov, "0.00"), "86.40");
  EXPECT_TRUE(s.analysis.deflTextZ.Formula.empty());
}

// ---- Governing moments ----

TEST(GoverningMoments, MyKeepsItsSignAndMzIsAMagnitude) {
  State s;
  Analysis& a = s.analysis;
  a.MyMax = 10;
  a.MyMin = -12;
  a.MzMax = 5;
  a.MzMin = -7;
  GoverningMoments(s);
  EXPECT_EQ(a.MyGov, -12.0f);
  EXPECT_EQ(a.MzGov, 7.0f);
  a.MyMin = -10;  // a tie takes the minimum
  GoverningMoments(s);
  EXPECT_EQ(a.MyGov, -10.0f);
}

TEST(MemberAnalysis, BadInputEndsInAFaultNotACrash) {
  State s = BeamState(6, 0);
  s.project.E = 0;  // a missing setup file
  AddUniform(s, 1, 10);
  EXPECT_THROW(MemberAnalysis(s), CalcFault);
  State t = BeamState(6, 9);  // no such support type: nothing is solved
  AddUniform(t, 1, 10);
  MemberAnalysis(t);
  EXPECT_EQ(t.analysis.MyGrid[25], 0.0f);
}

TEST(MemberAnalysis, ItsResultsStandInTheJsonViewOfTheState) {
  State s = BeamState(6, 0);
  AddUniform(s, 1, 10);
  MemberAnalysis(s);
  const std::string json = StateToJson(s);
  EXPECT_NE(json.find("\"Analysis\":{\"NPoints\":10,"), std::string::npos);
  EXPECT_NE(json.find("\"MyGov\":45,"), std::string::npos);
  EXPECT_NE(json.find("\"deflTextZ\":{\"Formula\":\"IR = dz/dzMax = \""), std::string::npos);
}

}  // namespace
}  // namespace vn
