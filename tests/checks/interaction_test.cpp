// The interaction factors of 6.3.3 by Method 1 (Annex A) and Method 2 (Annex B), their equivalent
// moment factors, and the departures from the plain standard that the program keeps.
#include <gtest/gtest.h>

#include "checks/buckling.h"
#include "checks/buckling_fixture.h"
#include "checks/control_routines.h"
#include "core/recalculate.h"

namespace vn {
namespace {

using test::Do;
using test::kChain;
using test::Near;

// ---- A beam-column checked by hand, by both methods ----
//
// HEB 200, S355, L = 4 m, pinned, N = 500 kN, q = 20 kN/m in z on the top flange: My = 40 kNm.
// From the column of buckling_test.cpp: Ncr,y = 7378.517, Ncr,z = 2594.657 kN, lamda,y = 0.612914,
// lamda,z = 1.033580, chi,y = 0.830526, chi,z = 0.520703, Nb,y,Rd = 2302.09, Nb,z,Rd = 1443.30 kN.
// Wpl,y = 15*200*185 + 170^2*9/4 + 4*18^2*(1 - pi/4)*(85 - 0.2234*18) = 642547.1 mm3,
// Wel,y = 56.96E6/100 = 569600; Wpl,z = 4.5^2*340/2 + 100^2*60/2 + 4*18^2*(1 - pi/4)*(4.5 + 4.0212)
// = 305812.5 mm3, Wel,z = 200300 mm3. My,Rd = 228.104 kNm, Mpl,z,Rd = 108.563 kNm,
// NcRd = 2771.84 kN.
// LT: C1 = 1.12, C2 = 0.45, zg = 100, LT = 4 m:
//   X = 4000^2*80769.23*592.8E3/210000/pi^2/20.03E6 + 171.1E9/20.03E6 = 26995.49 mm2
//   Mcr = 1.12 * 2594657.5 * (sqrt(26995.49 + 45^2) - 45) = 364.2808E6 Nmm
//   lamda,LT = sqrt(355 * 642547.1 / 364.2808E6) = 0.791313, Phi = 0.801340, chi,LT = 0.821905
//   f = 1 - 0.5 (1 - 0.944911)(1 - 2 * 0.008687^2) = 0.972460, x,LT = 0.845181 (below 1/lamda^2)
//   xLT My,Rd = 0.845181 * 228.104 = 192.789 kNm;  My/(xLT My,Rd) = 40/192.789 = 0.207480
State BeamColumn(int method) {
  State s = test::Heb200("4", "500", "20");
  Do(s, method == 1 ? "setup.rbtnMethod1" : "setup.rbtnMethod2");
  return s;
}

// The single symmetric I has no factors of its own under Method 2: it takes those the run before
// it computed (the HEB column's here), and they are shown as the ones it used.
TEST(MethodTwo, TheSingleSymmetricITakesTheFactorsOfTheRunBefore) {
  State s = BeamColumn(2);
  const double kyy = s.checks.kyy, kzy = s.checks.kzy;
  ASSERT_GT(kyy, 0);
  Do(s, "mnup22");
  ASSERT_EQ(s.project.ProfileType, 22);
  EXPECT_FALSE(s.view.txtErrorVisible);
  EXPECT_EQ(s.checks.kyy, kyy);
  EXPECT_EQ(s.checks.kzy, kzy);
}

// Method 1:
//   Cmy,0 = 1 + 0.03 * 500/7378.517 = 1.0020329 (pinned ends, q-load);
//   Cmz,0 = 1 + 0.03 * 500/2594.657 = 1.0057811 (nothing about z: a zero diagram counts as curved)
//   Mcr0 = 1.0 * 2594657.5 * sqrt(26995.49) = 426.3101E6 Nmm (C10 = 1 at k = 1)
//   lamda0 = sqrt(228.104E6 / 426.3101E6) = 0.731482
//   aLT = 1 - 592.8E3/56.96E6 = 0.989593; eps,y = 1000 * 40 * 7808 / 500 / 569600 = 1.096629
//   0.2 sqrt(1.12) (1 - 500/2594.657)^0.25 = 0.200631 < lamda0:
//   Cmy = 1.0020329 + (1 - 1.0020329) * 1.036306/(1 + 1.036306) = 1.0009983
//   CmLT = 1.0009983^2 * 0.989593 / sqrt(0.807297) = 1.1035873
//   mu,y = (1 - 0.0677644)/(1 - 0.830526 * 0.0677644) = 0.9878308; mu,z = 0.8973363
//   wy = 642547.1/569600 = 1.128067; wz = 305812.5/200300 = 1.5268 -> 1.5;
//   npl = 500/2771.84 = 0.180386
//   My/(Cmy xLT Mpl,y,Rd) = 40/(1.0009983 * 0.845181 * 228.104) = 0.207274
//   cLT = 10 * 0.989593 * 0.731482^2 / (5 + 1.033580^4) * 0.207273 = 0.178711
//   eLT = 1.7 * 0.989593 * 0.731482 / (0.1 + 1.033580^4) * 0.207273 = 0.205493;
//   bLT = dLT = 0 (Mz = 0)
//   Cyy = 1 + 0.128067 ((2 - 1.418356 * 1.001997 * (1.033580 + 1.068288)) * 0.180386) = 0.977195
//   Czy = 1 + 0.128067 ((2 - 14 * 1.001997 * 1.068288 / 1.128067^5) * 0.180386) = 0.856686
//   Cyz = 1 + 0.5 ((2 - 14 * 1.011596 * 1.068288 / 7.59375) * 0.180386 - 0.178711) = 0.911334
//   Czz = 1 + 0.5 (2 - 1.066667 * 1.011596 * (1.033580 + 1.068288) - 0.205493) * 0.180386
//       = 0.957295
//   kyy = 1.0009983 * 1.1035873 * 0.9878308 / 0.9322356 / 0.977195 = 1.197886
//   kzy = 1.0009983 * 1.1035873 * 0.8973363 / 0.9322356 / 0.856686 * 0.6 sqrt(1.128067/1.5)
//       = 0.645834
//   kyz = 1.0057811 * 0.9878308 / 0.807297 / 0.911334 * 0.6 sqrt(1.5/1.128067) = 0.934340
//   kzz = 1.0057811 * 0.8973363 / 0.807297 / 0.957295 = 1.167830
//   IR,y = 500/2302.09 + 1.197886 * 0.207480 = 0.21720 + 0.24854 = 0.46573 -> "0.47"
//   IR,z = 500/1443.30 + 0.645834 * 0.207480 = 0.34643 + 0.13400 = 0.48042 -> "0.48"
TEST(BeamColumn, MethodOneAgreesWithTheHandCalculation) {
  State s = BeamColumn(1);
  ASSERT_EQ(s.project.interactionMethod, 1);
  const Checks& k = s.checks;
  const struct {
    const char* name;
    double Checks::*field;
    double value;
  } hand[] = {
      {"Cmy0", &Checks::Cmy0, 1.0020329},   {"Cmz0", &Checks::Cmz0, 1.0057811},
      {"Mcr0", &Checks::Mcr0, 426.31011e6}, {"lamda0", &Checks::lamda0, 0.7314824},
      {"aLT", &Checks::aLt, 0.9895927},     {"eps,y", &Checks::ey, 1.0966292},
      {"Cmy", &Checks::Cmy, 1.0009983},     {"Cmz", &Checks::Cmz, 1.0057811},
      {"CmLT", &Checks::CmLt, 1.1035873},   {"mu,y", &Checks::uy, 0.9878308},
      {"mu,z", &Checks::uz, 0.8973363},     {"wy", &Checks::wy, 1.1280673},
      {"npl", &Checks::npl, 0.1803856},     {"cLT", &Checks::cLt, 0.1787111},
      {"eLT", &Checks::eLt, 0.2054932},     {"Cyy", &Checks::Cyy, 0.9771954},
      {"Cyz", &Checks::Cyz, 0.9113339},     {"Czy", &Checks::Czy, 0.8566861},
      {"Czz", &Checks::Czz, 0.9572953},     {"kyy", &Checks::kyy, 1.1978861},
      {"kzy", &Checks::kzy, 0.6458341},     {"kyz", &Checks::kyz, 0.9343399},
      {"kzz", &Checks::kzz, 1.1678304},     {"xLT", &Checks::xLT, 0.8451813},
      {"Mcr", &Checks::Mcr, 364.28081e6},
  };
  for (const auto& h : hand) EXPECT_TRUE(Near(k.*h.field, h.value, kChain)) << h.name;
  EXPECT_EQ(k.wz, 1.5);
  EXPECT_EQ(k.bLt, 0.0);
  EXPECT_EQ(k.dLt, 0.0);

  EXPECT_EQ(k.buckTextY.Formula, "IR = NEd/Nb,y,Rd +kyy*My,Ed/(xLT*My,Rd) ");
  EXPECT_EQ(k.buckTextY.Numbers, "500.0/2302.1+1.20*40.0/(0.85*228.1)");
  EXPECT_EQ(k.buckTextY.Ratio, "0.47");
  EXPECT_EQ(k.buckTextY.Limit, " < 1.0 (Ch 6.3.3)");
  EXPECT_EQ(k.buckTextZ.Formula, "IR = NEd/Nb,z,Rd +kzy*My,Ed/(xLT*My,Rd) ");
  EXPECT_EQ(k.buckTextZ.Numbers, "500.0/1443.3+0.65*40.0/(0.85*228.1)");
  EXPECT_EQ(k.buckTextZ.Ratio, "0.48");
  EXPECT_EQ(k.buckTextLT.Numbers, "40.0/(0.85*228.1) = ");
  EXPECT_EQ(k.buckTextLT.Ratio, "0.21");
  EXPECT_TRUE(Near(s.analysis.IRbuckling, 0.4804250, kChain));
}

// The strict rules: CmLT of Table A.1 takes Ncr,T, the torsional critical force, in place of Ncr,TF
// (1E+25 for the double symmetric HEB). LT = 4 m, i0^2 = (56.96E6 + 20.03E6)/7808 = 9860.400 mm2,
//   Ncr,T = (pi^2 * 210000 * 171.1E9 / 4000^2 + 80769.23 * 592.8E3) / 9860.400 / 1000 = 7103.571 kN
//   CmLT = 1.0009983^2 * 0.9895927 / sqrt(0.807297 * (1 - 500/7103.571)) = 1.1446049
//   kyy = 1.1978861 * 1.1446049/1.1035873 = 1.2424086; kzy = 0.6458341 * 1.0371676 = 0.6698382
//   IR,y = 0.21720 + 1.2424086 * 0.207480 = 0.47497 -> "0.47"
//   IR,z = 0.34643 + 0.6698382 * 0.207480 = 0.48541 -> "0.49" (0.48 by the program's own method)
TEST(StrictRules, MethodOneCmLTTakesTheTorsionalCriticalForce) {
  State s = BeamColumn(1);
  Do(s, "setup.strict", "1");
  const Checks& k = s.checks;
  EXPECT_TRUE(Near(k.NcrT, 7103.571, kChain));
  EXPECT_TRUE(Near(k.CmLt, 1.1446049, kChain));
  EXPECT_TRUE(Near(k.kyy, 1.2424086, kChain));
  EXPECT_TRUE(Near(k.kzy, 0.6698382, kChain));
  EXPECT_EQ(k.buckTextY.Numbers, "500.0/2302.1+1.24*40.0/(0.85*228.1)");
  EXPECT_EQ(k.buckTextZ.Numbers, "500.0/1443.3+0.67*40.0/(0.85*228.1)");
  EXPECT_EQ(k.buckTextZ.Ratio, "0.49");
  // And back: the program's own method gives its own numbers again.
  Do(s, "setup.rbtnRulesSpecified");
  EXPECT_TRUE(Near(s.checks.CmLt, 1.1035873, kChain));
  EXPECT_EQ(s.checks.buckTextZ.Ratio, "0.48");
}

// Method 2:
//   Cmy = 0.95 + 0.05 * 0 = 0.95 (q-load, the middle dominates, alpha,h = 0); CmLT = Cmy;
//   Cmz = 0.95: nothing acts about z, so z reads the shape flags of y.
//   n/Nb,y = 500/2302.086 = 0.217195; n/Nb,z = 500/1443.305 = 0.346427. Class 1: Table B.2 rows.
//   kyy = min(0.95 (1 + 0.412914 * 0.217195), 0.95 (1 + 0.8 * 0.217195)) = min(1.035198, 1.115068)
//   kzy = max(1 - 0.1 * 1.033580/0.7 * 0.346427, 1 - 0.1/0.7 * 0.346427) = max(0.948849, 0.950510)
//   kzz = min(0.95 (1 + 1.467160 * 0.346427), 0.95 (1 + 1.4 * 0.346427)) = 1.410748; kyz = 0.6 kzz
//   IR,y = 0.21720 + 1.035198 * 0.207480 = 0.43198 -> "0.43"
//   IR,z = 0.34643 + 0.950510 * 0.207480 = 0.54364 -> "0.54"
TEST(BeamColumn, MethodTwoAgreesWithTheHandCalculation) {
  State s = BeamColumn(2);
  const Checks& k = s.checks;
  EXPECT_DOUBLE_EQ(k.Cmy, 0.95);
  EXPECT_DOUBLE_EQ(k.Cmz, 0.95);
  EXPECT_DOUBLE_EQ(k.CmLt, 0.95);
  EXPECT_TRUE(Near(k.kyy, 1.0351985, kChain));
  EXPECT_TRUE(Near(k.kzy, 0.9505104, kChain));
  EXPECT_TRUE(Near(k.kzz, 1.4107481, kChain));
  EXPECT_TRUE(Near(k.kyz, 0.8464489, kChain));
  EXPECT_EQ(k.buckTextY.Numbers, "500.0/2302.1+1.04*40.0/(0.85*228.1)");
  EXPECT_EQ(k.buckTextY.Ratio, "0.43");
  EXPECT_EQ(k.buckTextZ.Numbers, "500.0/1443.3+0.95*40.0/(0.85*228.1)");
  EXPECT_EQ(k.buckTextZ.Ratio, "0.54");
  EXPECT_TRUE(Near(s.analysis.IRbuckling, 0.5436393, kChain));
}

// ---- Method 1: the calculation error and its limits ----

// HEB 200 over L = 4 m, pinned, under end forces: N and the end moments My1, My2, Mz1, Mz2.
State HebEndForces(const char* method, const char* N, const char* my1, const char* my2,
                   const char* mz1 = nullptr, const char* mz2 = nullptr) {
  State s = test::StartedState();
  Do(s, "mnup02");
  Do(s, "p02.cbo", "5");
  Do(s, "il", "4");
  Do(s, method);
  Do(s, "mnuendforces");
  Do(s, "endforce.ine", N);
  Do(s, "endforce.imy1", my1);
  Do(s, "endforce.imy2", my2);
  if (mz1) Do(s, "endforce.imz1", mz1);
  if (mz2) Do(s, "endforce.imz2", mz2);
  return s;
}

TEST(MethodOne, AnAxialForceAboveTheCriticalLoadEndsTheRunInTheMessage) {
  State s = BeamColumn(1);
  Do(s, "Loading.inn(1)", "2600");  // Ncr,z = 2594.66 kN
  EXPECT_EQ(s.project.calcError, -1);
  EXPECT_TRUE(s.view.txtErrorVisible);
  EXPECT_EQ(s.view.txtError,
            " Calculation Error. Axial load too big. Increase profile or reduce axial force ");
  EXPECT_TRUE(s.view.summary.empty());
  // Method 2 has no guard: the ratios just grow, red.
  Do(s, "setup.rbtnMethod2");
  EXPECT_EQ(s.project.calcError, 0);
  EXPECT_FALSE(s.view.txtErrorVisible);
  EXPECT_EQ(s.checks.colBuckZ, kRed);
}

// A state for FactorsMethod1 alone: a section and the results of the stages before it.
//   Iy = 1E8, Ix = 1E6: aLT = 0.99; Wpl,y/Wel,y = 1.6, Wpl,z/Wel,z = 1.5; N = 1000, NcRd = 2000.
State MethodOneState() {
  State s;
  Section& c = s.section;
  c.Iy = 1e8f;
  c.Ix = 1e6f;
  c.A = 10000;
  c.Wely = 1e6f;
  c.Wply = 1.6e6f;
  c.Welz = 1e5f;
  c.Wplz = 1.5e5f;
  c.classMy = 1;
  c.classMz = 1;
  c.NcRd = 2000;
  c.MplyRd = 500;
  c.MplzRd = 50;
  c.ltbRelevant = -1;
  Checks& k = s.checks;
  k.kc = 1;
  k.lamda0 = 0;
  k.Cmy0 = 1;
  k.Cmz0 = 1;
  k.Ncry = 10000;
  k.Ncrz = 5000;
  k.NcrTF = 1.0E+25;
  k.chiy = 0.5;
  k.chiz = 0.5;
  k.lamdaMax = 2;
  k.lamdaz = 2;
  k.xLT = 1;
  s.analysis.NEd = 1000;
  s.analysis.MyGov = 100;
  return s;
}

TEST(MethodOne, AtTheCriticalLoadExactlyTheTestPassesAndTheDivisionFails) {
  State s = MethodOneState();
  s.checks.Ncry = 1000;  // NEd = Ncr,y: not above it
  EXPECT_THROW(FactorsMethod1(s), CalcFault);
  EXPECT_EQ(s.project.calcError, 0);
  s.checks.Ncry = 999.999;
  FactorsMethod1(s);
  EXPECT_EQ(s.project.calcError, -1);
}

TEST(MethodOne, ATensionPassesTheTest) {
  State s = MethodOneState();
  s.analysis.NEd = -1000;
  s.checks.Ncrz = 10;
  FactorsMethod1(s);
  EXPECT_EQ(s.project.calcError, 0);
}

TEST(MethodOne, PlasticRatioAboveOnePointFiveIsHeldButTheBoundUsesTheTrueRatio) {
  // wy = 1.6 -> 1.5; npl = 0.5; lamda,max = 2; Cmy = Cmy0 = 1 (lamda0 = 0 <= the limit):
  //   Cyy = 1 + 0.5 ((2 - 1.6/1.5 * 2 - 1.6/1.5 * 4) * 0.5) = -0.1
  //     -> Wel,y/Wpl,y = 0.625 (not 1/1.5)
  //   Czy = 1 + 0.5 ((2 - 14 * 4 / 1.5^5) * 0.5) = -0.34362 -> 0.6 sqrt(1.5/1.5) * 0.625 = 0.375
  //   mu,y = (1 - 0.1)/(1 - 0.5 * 0.1) = 0.947368; kyy = 0.947368 / 0.9 / 0.625 = 1.684211
  State s = MethodOneState();
  FactorsMethod1(s);
  const Checks& k = s.checks;
  EXPECT_EQ(k.wy, 1.5);
  EXPECT_EQ(k.wz, 1.5);
  EXPECT_DOUBLE_EQ(k.Cyy, 0.625);
  EXPECT_DOUBLE_EQ(k.Czy, 0.375);
  EXPECT_EQ(k.CmLt, 1.0);
  EXPECT_NEAR(k.kyy, 1.6842105, 1e-6);
}

TEST(MethodOne, WithoutAxialForceCmyStaysAtItsBaseValue) {
  // End forces My 50 / -25 (psi = -0.5) and Mz 10 / 10, N = 0: Cmy,0 = 0.79 - 0.105 = 0.685;
  // eps,y = 0 so Cmy = Cmy,0 though lamda0 is above its limit; CmLT = 0.685^2 * aLT < 1 -> 1.
  State s = HebEndForces("setup.rbtnMethod1", "0", "50", "-25", "10", "10");
  const Checks& k = s.checks;
  EXPECT_EQ(k.ey, 0.0);
  EXPECT_NEAR(k.Cmy0, 0.685, 1e-7);
  EXPECT_EQ(k.Cmy, k.Cmy0);
  EXPECT_EQ(k.CmLt, 1.0);
  EXPECT_EQ(k.buckTextY.Limit, " < 1.0 (Ch 6.3.1)");  // the biaxial form without axial force
}

TEST(MethodOne, EndForcesTakeTheLinearFormForBothAxes) {
  // My 50 / -25: psi = -0.5; N = 500:
  //   Cmy,0 = 0.79 - 0.105 + 0.36 (-0.83) * 500/7378.517 = 0.664752
  //   Cmz,0 with no Mz at all (psi = 0): 0.79 + 0.36 (-0.33) * 500/2594.657 = 0.767107
  State s = HebEndForces("setup.rbtnMethod1", "500", "50", "-25");
  EXPECT_TRUE(Near(s.checks.Cmy0, 0.6647520, kChain));
  EXPECT_TRUE(Near(s.checks.Cmz0, 0.7671068, kChain));
}

TEST(MethodOne, EndMomentsWithALoadTakeCmFromTheDeflection) {
  // Fixed ends, q = 20 kN/m: M1 = M5 = -qL^2/12 = -26.667 kNm, not linear.
  //   delta = qL^4/(384 E Iy) = 20 * 4000^4 / (384 * 210000 * 56.96E6) = 1.114678 mm
  //   pi^2 E Iy delta / (L^2 M) = pi^2 * 12 / 384 = 0.308425
  //   Cmy,0 = 1 + (0.308425 - 1) * 500/7378.517 = 0.953136
  State s = test::Heb200("4", "500", "20");
  Do(s, "cbutt2");
  Do(s, "ibly", "1");
  Do(s, "iblz", "1");
  Do(s, "setup.rbtnMethod1");
  ASSERT_EQ(s.analysis.ShapeY.Linear, False);
  EXPECT_TRUE(Near(s.checks.Cmy0, 0.9531359, test::kSolver));
}

// ---- Method 2: equivalent moment factors ----

TEST(MethodTwo, APointLoadInTheMiddleGivesNinetyHundredths) {
  State s = test::Heb200("4", "500", "0");
  Do(s, "Loading.ipm(1)", "40");
  Do(s, "Loading.ipmx(1)", "2");
  ASSERT_EQ(s.analysis.ShapeY.Curved, False);
  ASSERT_NE(s.analysis.ShapeY.MidDominates, False);
  EXPECT_NEAR(s.checks.Cmy, 0.90, 1e-12);
}

TEST(MethodTwo, APlaneWithNothingInItReadsTheOtherPlanesFlags) {
  // Only a load in y: about y the flags of z (q-load, middle dominates) give 0.95, where the empty
  // y diagram alone would give 0.2 + 0.8 * 0 -> 0.4.
  State s = test::Heb200("4", "500", "0");
  Do(s, "Loading.iq(2)", "5");
  Do(s, "Loading.iq_yz(2)");
  Do(s, "Loading.ch_q(2)", "1");
  EXPECT_EQ(s.checks.hasLoadZ, False);
  EXPECT_NE(s.checks.hasLoadY, False);
  EXPECT_DOUBLE_EQ(s.checks.Cmy, 0.95);
  EXPECT_DOUBLE_EQ(s.checks.Cmz, 0.95);
}

TEST(MethodTwo, EndForcesPutTheLowerBoundOfCmzIntoCmy) {
  // My 50/50: Cmy = 0.6 + 0.4 = 1.0; Mz 10/-10: psi = -1, Cmz = 0.2 < 0.4: Cmy := 0.4, Cmz stays.
  State s = HebEndForces("setup.rbtnMethod2", "500", "50", "50", "10", "-10");
  EXPECT_DOUBLE_EQ(s.checks.Cmy, 0.4);
  EXPECT_NEAR(s.checks.Cmz, 0.2, 1e-12);
  EXPECT_DOUBLE_EQ(s.checks.CmLt, 0.4);
}

TEST(CmTableB3, BranchesOfTheEndMomentAndMidspanRatios) {
  // Through EquivalentMomentB with both planes loaded, so each reads its own flags.
  State s;
  s.project.AnalysisMode = 0;  // end forces: no diagrams to read the planes from
  s.project.My12 = {0, 1, 1};
  s.project.Mz12 = {0, 1, 1};
  s.section.ltbRelevant = -1;
  MomentShape& y = s.analysis.ShapeY;
  auto cm = [&](bool curved, bool mid, double psi, double aS, double aH) {
    y.Curved = ToBoolean(curved);
    y.MidDominates = ToBoolean(mid);
    y.Linear = False;
    y.Psi = static_cast<Single>(psi);
    y.AlphaS = static_cast<Single>(aS);
    y.AlphaH = static_cast<Single>(aH);
    EquivalentMomentB(s);
    return s.checks.Cmy;
  };
  EXPECT_NEAR(cm(true, false, 0.5, 0.5, 0), 0.6, 1e-7);       // 0.2 + 0.8 * 0.5
  EXPECT_NEAR(cm(true, false, 0.5, 0.1, 0), 0.4, 1e-7);       // 0.28 held at 0.4
  EXPECT_NEAR(cm(true, false, 0.5, -0.5, 0), 0.5, 1e-7);      // 0.1 + 0.4
  EXPECT_NEAR(cm(false, false, 0.5, -0.75, 0), 0.6, 1e-7);    // 0.8 * 0.75
  EXPECT_NEAR(cm(true, false, -0.5, -0.5, 0), 0.55, 1e-7);    // 0.1 * 1.5 + 0.4
  EXPECT_NEAR(cm(false, false, -0.5, -0.5, 0), 0.5, 1e-7);    // 0.2 * 0.5 + 0.4
  EXPECT_NEAR(cm(true, true, -0.25, 0, -0.5), 0.9375, 1e-7);  // 0.95 + 0.05 (-0.5)(0.5)
  EXPECT_NEAR(cm(false, true, 0.5, 0, -0.5), 0.85, 1e-7);     // 0.9 + 0.1 (-0.5)
  EXPECT_DOUBLE_EQ(s.checks.CmLt, s.checks.Cmy);
  s.section.ltbRelevant = 0;
  EquivalentMomentB(s);
  EXPECT_EQ(s.checks.CmLt, 1.0);  // no torsional deformation in the family
}

// ---- Method 2: the factors and their departures ----

State MethodTwoState(int type, double classMy) {
  State s;
  s.project.ProfileType = static_cast<Integer>(type);
  s.section.classMy = classMy;
  s.section.classMz = 1;
  Checks& k = s.checks;
  k.Cmy = 0.9;
  k.Cmz = 0.95;
  k.CmLt = 0.9;
  k.lamday = 0.5;
  k.lamdaz = 1.0;
  k.NbyRd = 1000;
  k.NbzRd = 500;
  s.analysis.NEd = 200;
  return s;
}

TEST(MethodTwo, ElasticSectionWithoutLateralTorsionalBucklingTakesTableB1) {
  // n/Nb,y = 0.2, n/Nb,z = 0.4:
  //   kyy = min(0.9 (1 + 0.6 * 0.5 * 0.2), 0.9 (1 + 0.6 * 0.2)) = 0.954; kzy = 0.8 kyy = 0.7632
  //   kzz = 0.95 (1 + 0.6 * 1.0 * 0.4) = 1.178 and kyz = kzz, by the class about y (Mz class is 1).
  State s = MethodTwoState(1, 3);
  s.project.ltbOn = 0;
  FactorsMethod2(s);
  EXPECT_NEAR(s.checks.kyy, 0.954, 1e-12);
  EXPECT_NEAR(s.checks.kzy, 0.7632, 1e-12);
  EXPECT_NEAR(s.checks.kzz, 1.178, 1e-12);
  EXPECT_EQ(s.checks.kyz, s.checks.kzz);
}

TEST(MethodTwo, TableB2HoldsAtLowSlendernessToo) {
  // lamda,z = 0.3 < 0.4, where the standard would take 0.6 + lamda,z: here
  //   kzy = max(1 - 0.05 * 0.3/0.65 * 0.4, 1 - 0.05/0.65 * 0.4) = max(0.990769, 0.969231)
  State s = MethodTwoState(1, 3);
  s.project.ltbOn = 1;
  s.checks.lamdaz = 0.3;
  FactorsMethod2(s);
  EXPECT_NEAR(s.checks.kzy, 0.9907692, 1e-7);
}

TEST(MethodTwo, PlasticRowsDifferForIAndHollowSections) {
  // kzz, I: min(0.95 (1 + (2 - 0.6) * 0.4), 0.95 (1 + 1.4 * 0.4)) = 1.482 (equal);
  //      hollow: min(0.95 (1 + 0.8 * 0.4), 0.95 (1 + 0.8 * 0.4)) = 1.254; kyz = 0.6 kzz.
  State i = MethodTwoState(2, 1);
  FactorsMethod2(i);
  EXPECT_NEAR(i.checks.kzz, 1.482, 1e-12);
  EXPECT_NEAR(i.checks.kyz, 0.6 * 1.482, 1e-12);
  State hollow = MethodTwoState(6, 1);
  FactorsMethod2(hollow);
  EXPECT_NEAR(hollow.checks.kzz, 1.254, 1e-12);
  // kyy = min(0.9 (1 + 0.3 * 0.2), 0.9 (1 + 0.8 * 0.2)) = 0.954
  EXPECT_NEAR(hollow.checks.kyy, 0.954, 1e-12);
}

TEST(MethodTwo, TheSingleSymmetricIKeepsTheFactorsItHad) {
  State s = MethodTwoState(22, 1);
  s.checks.kyy = 7;
  FactorsMethod2(s);
  EXPECT_EQ(s.checks.kyy, 7);
}

}  // namespace
}  // namespace vn
