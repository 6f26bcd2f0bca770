// The controls of the angles: the corner sums of the section control in y, z and in u, v, with the
// rule that picks the corner; the buckling lines about y, z and the weak principal axis v, the
// slenderness of a leg-connected angle and the rule of 6.3.1.2 (4) on three axes.
// Section control cases use round resistances, so each ratio is a line of hand arithmetic; the
// buckling cases run L 100x100x10 (EN 10056-1: A 19.2 cm2, I 176.7, Iu 280.7, Iv 72.65 cm4) in S355
// as a strut of 2 m, its loads typed into the forms.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "checks/buckling_fixture.h"
#include "checks/control_routines.h"
#include "checks/section_control_fixture.h"
#include "core/pipeline.h"
#include "core/state.h"

namespace vn::test {
namespace {

// An angle given by its resistances (kN, kNm), gammaM0 = 1.
State SyntheticAngle(int type, float alfa) {
  State s;
  s.project.ProfileType = static_cast<Integer>(type);
  Section& c = s.section;
  c.alfa = alfa;
  c.NcRd = 500;
  c.NtRd = 500;
  c.VzRd = 80;
  c.VyRd = 50;
  c.MytRd = 20;
  c.MybRd = 20;
  c.MzlRd = 10;
  c.MzrRd = 5;
  c.MuRd = {0, 100, 100, 100};
  c.MvRd = {0, 100, 100, 100};
  return s;
}

struct CornerCase {
  const char* name;
  double NEd, My, Mz;
  double Myt, Myb, Mzl, Mzr;
  double ratio;
  const char* point;
};

// P1 = |n + My/Myt - Mz/Mzl|, P2 = |n - My/Myb - Mz/Mzl|, P3 = |n - My/Myb + Mz/Mzr|, n = -NEd/NRd.
TEST(SectionControlAngle, CornersInYAndZTakeTheWorstPoint) {
  const CornerCase cases[] = {
      // n = -0.2: P1 = |-0.2 + 0.5 + 0.5| = 0.8, P2 = 0.05, P3 = 0.7
      {"leg end of h", 100, 4, -3, 8, 16, 6, 12, 0.8, "point: 1"},
      // P1 = P2 = P3 = 0.5: the heel on a tie with point 1, point 3 only when strictly above
      {"three equal corners", 0, 10, 0, 20, 20, 10, 5, 0.5, "point: 2"},
      // P1 = |0.5 - 0.2| = 0.3, P2 = |-0.5 - 0.2| = 0.7, P3 = |-0.5 + 0.4| = 0.1
      {"heel", 0, 10, 2, 20, 20, 10, 5, 0.7, "point: 2"},
      // P1 = P2 = |-0.2 - 0.1| = 0.3, P3 = |-0.2 + 1.0| = 0.8
      {"leg end of b", 100, 0, 6, 20, 20, 60, 6, 0.8, "point: 3"},
      // tension, n = +0.2: P1 = 0.2 + 0.5 = 0.7, P2 = P3 = |0.2 - 0.25| = 0.05
      {"tension", -100, 4, 0, 8, 16, 6, 12, 0.7, "point: 1"},
  };
  for (const CornerCase& k : cases) {
    State s = SyntheticAngle(10, 45);
    Section& c = s.section;
    c.MytRd = k.Myt;
    c.MybRd = k.Myb;
    c.MzlRd = k.Mzl;
    c.MzrRd = static_cast<Single>(k.Mzr);
    SetPoints(s, k.NEd, {{0.5f, static_cast<float>(k.My), static_cast<float>(k.Mz), 0, 0}});
    SectionControlAngle(s);
    const ControlText& t = s.checks.secText[1];
    EXPECT_TRUE(Near(s.checks.IRsec[1], k.ratio, kHandCalc)) << k.name;
    EXPECT_EQ(t.Formula, "IR = NEd/NRd+My,Ed/My,Rd+Mz,Ed/Mz,Rd = ") << k.name;
    EXPECT_EQ(t.Limit, std::string(" < 1.0 (0.50L, ") + k.point + ", Ch 6.2.1)") << k.name;
  }
}

TEST(SectionControlAngle, CornerTextCarriesTheSignedMomentsAndThePointsResistances) {
  State s = SyntheticAngle(10, 45);
  Section& c = s.section;
  c.MytRd = 8;
  c.MybRd = 16;
  c.MzlRd = 6;
  c.MzrRd = 12;
  SetPoints(s, 100, {{0, 0, 0, 0, 0}, {0.25f, 4, -3, 0, 0}});
  SectionControlAngle(s);
  const ControlText& t = s.checks.secText[1];
  EXPECT_EQ(t.Numbers, "100.0/500.0+4.0/8.0+-3.0/6.0 = ");
  EXPECT_EQ(t.Ratio, "0.80");
  EXPECT_EQ(t.Limit, " < 1.0 (0.25L, point: 1, Ch 6.2.1)");
  EXPECT_EQ(s.checks.colSec[1], kGreen);
}

TEST(SectionControlAngle, AxialLineIsPlacedAtTheFirstPoint) {
  State s = SyntheticAngle(10, 45);
  SetPoints(s, 250, {{0, 0, 0, 0, 0}, {1, 0, 0, 0, 0}});
  SectionControlAngle(s);
  EXPECT_EQ(s.checks.secText[1].Formula, "IR = NEd/NRd = ");
  EXPECT_EQ(s.checks.secText[1].Numbers, "250.0/500.0 = ");
  EXPECT_EQ(s.checks.secText[1].Limit, " < 1.0 (0.00L; Ch 6.2.4)");

  SetPoints(s, -250, {{0, 0, 0, 0, 0}});
  SectionControlAngle(s);
  EXPECT_EQ(s.checks.secText[1].Limit, " < 1.0 (0.00L; Ch 6.2.3)");
}

// The equal-leg angle at 45 degrees: My alone turns into Mu = My cos 45 and Mv = -My sin 45, the
// same size; My = Mz gives Mu = sqrt 2 My and no Mv. The heel of an equal angle has no u term.
TEST(SectionControlAngle, EqualLegsAt45DegreesTurnTheMomentsEvenly) {
  State s = SyntheticAngle(10, 45);
  Section& c = s.section;
  c.MuRd = {0, 20, 0, 20};  // the heel lies on u: no resistance there, and none is read
  c.MvRd = {0, 10, 5, 10};
  SetPoints(s, 0, {{0.5f, 10, 0, 0, 0}});
  SectionControlAngle(s);
  // Mu = 7.0710678, Mv = -7.0710678: Q1 = |-0.3535534 - 0.7071068| = 1.0606602,
  // Q2 = |7.0710678 / 5| = 1.4142136, Q3 = |0.3535534 - 0.7071068| = 0.3535534
  const ControlText& t = s.checks.secText[2];
  EXPECT_TRUE(Near(s.checks.IRsec[2], 1.4142136, kHandCalc));
  EXPECT_EQ(t.Formula, "IR = NEd/NRd+Mu,Ed/Mu,Rd+Mv,Ed/Mv,Rd = ");
  EXPECT_EQ(t.Numbers, "0.0/500.0+7.1/0.0+-7.1/5.0 = ");
  EXPECT_EQ(t.Limit, " < 1.0 (0.50L, point: 2, Ch 6.2.1)");
  EXPECT_EQ(s.checks.colSec[2], kRed);

  SetPoints(s, 0, {{0.5f, 10, 10, 0, 0}});
  SectionControlAngle(s);
  // Mu = 14.142136, Mv = 0: Q1 = Q3 = 14.142136 / 20
  EXPECT_TRUE(Near(s.checks.IRsec[2], 0.70710678, kHandCalc));
}

TEST(SectionControlAngle, UnequalLegsTakeTheUTermAtTheHeel) {
  struct Case {
    std::array<double, 4> MuRd, MvRd;
    double ratio;
    const char* point;
  };
  // alfa 30: My = 10 gives Mu = 8.6602540, Mv = -5
  const Case cases[] = {
      // Q1 = |-0.8660254 - 1| = 1.8660254, Q2 = |0.4330127 + 0.5| = 0.9330127,
      // Q3 = |0.2165064 - 0.25| = 0.0334936
      {{0, 10, 20, 40}, {0, 5, 10, 20}, 1.8660254, "point: 1"},
      // Q1 = |-0.0866025 - 0.05| = 0.1366025, Q2 = |1.7320508 + 0.05| = 1.7820508,
      // Q3 = |0.0866025 - 0.05| = 0.0366025
      {{0, 100, 5, 100}, {0, 100, 100, 100}, 1.7820508, "point: 2"},
  };
  for (const Case& k : cases) {
    State s = SyntheticAngle(11, 30);
    s.section.MuRd = k.MuRd;
    s.section.MvRd = k.MvRd;
    SetPoints(s, 0, {{0.5f, 10, 0, 0, 0}});
    SectionControlAngle(s);
    EXPECT_TRUE(Near(s.checks.IRsec[2], k.ratio, kHandCalc)) << k.point;
    EXPECT_EQ(s.checks.secText[2].Limit, std::string(" < 1.0 (0.50L, ") + k.point + ", Ch 6.2.1)");
  }
}

TEST(SectionControlAngle, ShearAgainstTheLegResistancesAndTheGoverningRatio) {
  State s = SyntheticAngle(10, 45);
  SetPoints(s, 0, {{0, 0, 0, 0, 40}, {0.5f, 0, 0, -30, 0}});
  SectionControlAngle(s);
  const ControlText& t = s.checks.secText[3];
  // 40 / 80 = 0.5 at x = 0, then 30 / 50 = 0.6 at 0.5 L
  EXPECT_EQ(t.Formula, "IR = Vy,Ed/Vy,Rd = ");
  EXPECT_EQ(t.Numbers, "30.0/50.0 = ");
  EXPECT_EQ(t.Ratio, "0.60");
  EXPECT_EQ(t.Limit, " < 1.0 (0.50L; Ch 6.2.6)");
  EXPECT_TRUE(Near(s.analysis.IRsection, 0.6, kHandCalc));
}

// ---- Buckling ----

State Strut(const char* N) {
  State s = Member("mnup10", "p10", 27, "2", N, "0");
  return s;
}

// Ncr = pi^2 E / L^2 x I: y 915.57858 kN, v 376.43907 kN, u 1454.4590 kN; fyk A = 681 600 N.
TEST(BucklingControlAngle, SlendernessOfALegConnectedAngle) {
  struct Case {
    const char* option;
    double lamday, lamdav, lamdau;
  };
  const Case cases[] = {
      {"p10.opt_l10_1", 0.86281360, 1.3456045, 0.68456399},
      // y: 0.5 + 0.7 lamda; u and v: 0.35 + 0.7 lamda
      {"p10.opt_l10_2", 1.1039695, 1.2919232, 0.82919479},
  };
  for (const Case& k : cases) {
    State s = Strut("30");
    Do(s, k.option);
    EXPECT_EQ(s.view.value["p10.angle"], std::string(k.option).back() - '0');
    const Checks& c = s.checks;
    EXPECT_TRUE(Near(c.Ncry, 915.57858, kChain)) << k.option;
    EXPECT_TRUE(Near(c.Ncrv, 376.43907, kChain)) << k.option;
    EXPECT_TRUE(Near(c.Ncru, 1454.4590, kChain)) << k.option;
    EXPECT_TRUE(Near(c.lamday, k.lamday, kChain)) << k.option;
    EXPECT_TRUE(Near(c.lamdaz, k.lamday, kChain)) << k.option;
    EXPECT_TRUE(Near(c.lamdav, k.lamdav, kChain)) << k.option;
    EXPECT_TRUE(Near(c.lamdau, k.lamdau, kChain)) << k.option;
  }
}

TEST(BucklingControlAngle, ThreeLinesUnderCompression) {
  State s = Strut("30");
  const Checks& k = s.checks;
  // lamdav = 1.3456045, curve b: chi = 0.4055360, Nb,v,Rd = 276.41327
  EXPECT_TRUE(Near(k.NbvRd, 276.41327, kChain));
  EXPECT_EQ(k.buckTextY.Formula, "IR = NEd/Nb,y,Rd ");
  EXPECT_EQ(k.buckTextY.Ratio.substr(0, 3), " = ");  // the flexural ratios stand behind " = "
  EXPECT_EQ(k.buckTextZ.Formula, "IR = NEd/Nb,z,Rd ");
  EXPECT_EQ(k.buckTextLT.Formula, "IR = NEd/Nb,v,Rd ");
  EXPECT_EQ(k.buckTextLT.Numbers, "30.0/276.4 = ");
  EXPECT_EQ(k.buckTextLT.Ratio, "0.11");
  EXPECT_EQ(k.buckTextLT.Limit, " < 1.0 (Ch 6.3.1)");
  EXPECT_EQ(k.colLT, kGreen);
  EXPECT_TRUE(Near(s.analysis.IRbuckling, 30 / 276.41327, kChain));
}

// 6.3.1.2 (4) on y and z, and on v besides: NEd/Ncry = 0.033 passes y and z, but v needs
// NEd/Ncrv <= 0.04 with lamdav 1.35.
TEST(BucklingControlAngle, NoBucklingOnlyWhenTheVAxisPassesToo) {
  State s = Strut("30");  // 30 / 376.4 = 0.080: the lines stay
  EXPECT_EQ(s.checks.buckTextLT.Formula, "IR = NEd/Nb,v,Rd ");
  Do(s, "Loading.inn(1)", "10");  // 10 / 376.4 = 0.027
  EXPECT_EQ(s.checks.buckTextY.Formula,
            "No Buckling, ref ch 6.3.1.2 (4);  lamdaby/lamdabz<=0.2 or Ned/Ncry<=0.04; "
            "Ned/Ncry<=0.04");
  EXPECT_TRUE(s.checks.buckTextZ.Formula.empty());
  EXPECT_TRUE(s.checks.buckTextLT.Formula.empty());
  EXPECT_EQ(s.analysis.IRbuckling, 0);
}

TEST(BucklingControlAngle, TensionLeavesNoBucklingLine) {
  State s = Strut("-30");
  EXPECT_TRUE(s.checks.buckTextY.Formula.empty());
  EXPECT_TRUE(s.checks.buckTextZ.Formula.empty());
  EXPECT_TRUE(s.checks.buckTextLT.Formula.empty());
  EXPECT_EQ(s.analysis.IRbuckling, 0);
  EXPECT_EQ(s.checks.secText[1].Limit, " < 1.0 (0.00L; Ch 6.2.3)");
}

// q = 2 kN/m over 2 m: My = 1 kNm, turned at 45 degrees into Mu = Mv = 0.7071 kNm. Method 2 with
// Cmv = Cmz = 0.95 (a q-load with no z diagram of its own):
//   kvv = 0.95 (1 + 0.6 x 30 / 276.41327) = 1.0118639, the lamdav form being larger; kvu = kvv
//   IR = 30 / 276.41327 + kvv x 0.7071 / 6.4638472 + kvu x 0.7071 / 14.834131 = 0.26745826
TEST(BucklingControlAngle, LineAboutVWithTheTurnedMoments) {
  State s = Member("mnup10", "p10", 27, "2", "30", "2");
  const Checks& k = s.checks;
  EXPECT_TRUE(Near(k.MuMax, 0.70710678, kSolver));
  EXPECT_TRUE(Near(k.MvMax, 0.70710678, kSolver));
  EXPECT_TRUE(Near(k.kvv, 1.0118639, kChain));
  EXPECT_EQ(k.kvu, k.kvv);
  EXPECT_EQ(k.buckTextLT.Formula, "IR = NEd/Nb,v,Rd  + kvv*Mv,Ed/Mv,Rd  + kvu*Mu,Ed/Mu,Rd  = ");
  EXPECT_EQ(k.buckTextLT.Numbers, "30.0/276.4 + 1.01*0.7/6.5 + 1.01*0.7/14.8 = ");
  EXPECT_EQ(k.buckTextLT.Limit, " < 1.0 (Ch 6.3.3)");
  EXPECT_TRUE(Near(k.IRbuckLT, 0.26745826, kSolver));
  EXPECT_EQ(k.buckTextY.Limit, " < 1.0 (Ch 6.3.3)");
  EXPECT_NE(k.buckTextY.Formula.find(" + kyy*My,Ed/(xLT*My,Rd) "), std::string::npos);
}

// Method 1 runs on a section without plastic moduli and gives the elastic factors.
TEST(BucklingControlAngle, MethodOneRunsWithoutPlasticModuli) {
  State s = Member("mnup10", "p10", 27, "2", "30", "2");
  Do(s, "setup.rbtnMethod1");
  EXPECT_EQ(s.project.calcError, 0);
  EXPECT_EQ(s.checks.buckTextLT.Formula, "IR = NEd/Nb,v,Rd  + kvv*Mv,Ed/Mv,Rd  + kvu*Mu,Ed/Mu,Rd  = ");
  EXPECT_EQ(s.checks.lamda0, 1);
  EXPECT_EQ(s.checks.CmLt, 1);
}

}  // namespace
}  // namespace vn::test
