// The controls of the girders loaded in their web plane: HSQ and the box with unequal flanges
// (section control only) and the plates with a stiffener (section control and the LT line).
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "checks/buckling.h"
#include "checks/control_framework.h"
#include "checks/control_routines.h"
#include "checks/section_control_fixture.h"
#include "core/events.h"
#include "core/pipeline.h"
#include "results/summary.h"
#include "sections/section_fixture.h"

namespace vn::test {
namespace {

// Plate 240x12 with a flat bar 200x10, S235, gammas 1 (hand values in
// tests/sections/plated_test.cpp): the plate compressed (positive My) is class 2 with
// My,Rd = 50.8712 kNm, the bar's edge compressed (negative My) class 3 with My,Rd = 28.8599 kNm;
// VzRd = 271.355 kN, a stocky web.
State Plate() {
  State s = SectionState();
  s.project.ProfileType = 51;
  s.project.p51 = {200, 240, 10, 12};
  s.analysis.IRlimit = 1;
  ComputeSection(s);
  return s;
}

// HSQ 700x300/600x7x20/15 with the upgrade: positive My,Rd = 1193.306 (class 3 web upgraded),
// negative My,Rd = 1527.987 (class 1).
State HsqGirder() {
  State s = SectionState();
  s.project.ProfileType = 24;
  s.project.p24 = {700, 300, 600, 7, 20, 15, 0, 50, 0};
  s.project.hsqKind = 1;
  s.analysis.IRlimit = 1;
  ComputeSection(s);
  return s;
}

// Equal moments of both signs, 20 kNm: 20/50.8712 = 0.393150 sagging and 20/28.8599 = 0.693002
// hogging. The hogging point names the line in either order of the points.
TEST(SectionControlPlate, TheWorseSignNamesItsPoint) {
  for (const bool sagFirst : {true, false}) {
    State s = Plate();
    const float first = sagFirst ? 20.0f : -20.0f;
    SetPoints(s, 0, {{0.25f, first, 0, 0, 0}, {0.75f, -first, 0, 0, 0}});
    SectionControlPlate(s);
    const Checks& k = s.checks;
    EXPECT_TRUE(Near(k.IRsec[1], 0.693002, kHandCalc));
    EXPECT_EQ(k.secText[1].Formula, "IR = My,Ed/My,Rd = ");
    EXPECT_EQ(k.secText[1].Numbers, "20.0/28.9 = ");
    EXPECT_EQ(k.secText[1].Ratio, "0.69");
    EXPECT_EQ(k.secText[1].Limit, sagFirst ? " < 1.0 (0.75L; Ch 6.2.5)" : " < 1.0 (0.25L; Ch 6.2.5)");
    EXPECT_TRUE(k.secText[2].Formula.empty());
    EXPECT_TRUE(Near(s.analysis.IRsection, 0.693002, kHandCalc));
  }
}

// Shear 200 kN on the stocky bar: 200/271.355 = 0.737043, closed by ")". Above half of VzRd
// (135.7 kN) the moment resistance loses the share of two web thicknesses: rho = (400/271.355 -
// 1)^2 = 0.224757, R = 200^2*(2*0.224757*10)/4*235/1e6 = 10.5636, so My,Rd = 50.8712 - 10.5636 =
// 40.3076 and 20/40.3076 = 0.496184 with the MV text.
TEST(SectionControlPlate, ShearAndTheReducedResistance) {
  State s = Plate();
  SetPoints(s, 0, {{0.0f, 0, 0, 0, 100}, {0.5f, 20, 0, 0, 200}});
  SectionControlPlate(s);
  const Checks& k = s.checks;
  EXPECT_TRUE(Near(k.IRsec[3], 200 / 271.354627, kHandCalc));
  EXPECT_EQ(k.secText[3].Formula, "IR = Vz,Ed/Vz,Rd = ");
  EXPECT_EQ(k.secText[3].Limit, " < 1.0 (0.50L; Ch 6.2.6)");
  EXPECT_TRUE(Near(k.MyRd, 40.307638, kHandCalc));
  EXPECT_TRUE(Near(k.IRsec[1], 0.496184, kHandCalc));
  EXPECT_EQ(k.secText[1].Formula, "IR = My,Ed/MV,y,Rd = ");
  EXPECT_EQ(k.secText[1].Limit, " < 1.0 (0.50L; Ch 6.2.8)");
}

// The HSQ divides by the upgraded resistance under a sagging moment: 600/1193.306 = 0.502805,
// and by the plastic one under hogging: 600/1527.987 = 0.392673.
TEST(SectionControlHSQ, EachSignItsOwnResistance) {
  State s = HsqGirder();
  SetPoints(s, 0, {{0.3f, -600, 0, 0, 0}, {0.6f, 600, 0, 0, 0}});
  SectionControlHSQ(s);
  EXPECT_TRUE(Near(s.checks.IRsec[1], 0.502805, kHandCalc));
  EXPECT_EQ(s.checks.secText[1].Numbers, "600.0/1193.3 = ");
  EXPECT_EQ(s.checks.secText[1].Limit, " < 1.0 (0.60L; Ch 6.2.5)");
  SetPoints(s, 0, {{0.3f, -600, 0, 0, 0}});
  SectionControlHSQ(s);
  EXPECT_TRUE(Near(s.checks.IRsec[1], 0.392673, kHandCalc));
}

// HSQ: the axial force is zeroed before the control and there is never a buckling line; the box
// keeps its axial force in the shared value. The plate with ltbOn 0 has no buckling line either.
TEST(PlatedControls, DispatcherRowsAndBucklingLines) {
  State h = HsqGirder();
  h.project.ltbOn = 1;
  SetPoints(h, 300, {{0.5f, 600, 0, 0, 0}});
  RunControls(h);
  EXPECT_EQ(h.analysis.NEd, 0);
  EXPECT_TRUE(h.checks.buckTextLT.Formula.empty());
  EXPECT_EQ(h.analysis.IRbuckling, 0);

  State b = SectionState();
  b.project.ProfileType = 27;
  b.project.p27 = {400, 300, 300, 10, 20, 20, 20};
  b.analysis.IRlimit = 1;
  ComputeSection(b);
  SetPoints(b, 300, {{0.5f, 344.04f, 0, 0, 0}});
  RunControls(b);
  EXPECT_EQ(b.analysis.NEd, 300);
  EXPECT_TRUE(Near(b.checks.IRsec[1], 0.5, kHandCalc));  // 344.04/688.08, the force ignored

  State p = Plate();
  p.project.ltbOn = 0;
  SetPoints(p, 50, {{0.5f, -20, 0, 0, 10}});
  RunControls(p);
  EXPECT_EQ(p.analysis.NEd, 0);
  EXPECT_TRUE(p.checks.buckTextLT.Formula.empty());
  EXPECT_TRUE(p.checks.buckTextY.Formula.empty());
  EXPECT_EQ(p.analysis.IRbuckling, 0);
  EXPECT_EQ(p.checks.xLT, 1);
}

// Through the forms: a hogging load on a plate prints the LT line in the run that the load itself
// starts (the free stiffener compressed), a sagging one drops the buckling block in its own run too:
// the last input never leaves a member without the line its moment calls for.
TEST(PlatedControls, PlateBucklingBlockFollowsTheSignOfTheMoment) {
  State s = StartedState();
  Fire(s, "mnuplateFb");
  Fire(s, "CboLoadComb", "5");
  Fire(s, "il", "4");
  Fire(s, "Loading.iq(1)", "-5");
  EXPECT_EQ(s.project.ltbOn, 1);
  EXPECT_NE(SummaryText(s).find("BUCKLING CONTROL: (incl Lateral Torsional Buckling)"), std::string::npos);
  EXPECT_FALSE(s.checks.buckTextLT.Formula.empty());
  const std::string hogging = SummaryText(s);
  Fire(s, "il", "4");
  EXPECT_EQ(SummaryText(s), hogging);

  Fire(s, "Loading.iq(1)", "5");
  EXPECT_EQ(s.project.ltbOn, 0);
  EXPECT_EQ(SummaryText(s).find("BUCKLING CONTROL:"), std::string::npos);

  Fire(s, "mnup24");
  EXPECT_EQ(SummaryText(s).find("BUCKLING CONTROL:"), std::string::npos);
  EXPECT_NE(SummaryText(s).find("SECTION CONTROL:"), std::string::npos);
}

// The load on the HSQ's lower plate belongs to the run that shows it: the same final state reached
// by two orders of the events gives the same factor, resistances and ratios. HSQ 25 of the dialog
// (300x300/430x6x25/15, c 15, S355: fy 355 for tmax 25, gammaM0 1.0), basic loads, q 120 kN/m:
//   qTotal = 120; f = 60*120 = 7200; p = 1.75*355/1.0*15^2/6 = 23 296.875; f/p = 0.309054
//   f > 0.2 p: factor = (sqrt(1 - 0.309054) + 1.1)/2 = (0.831231 + 1.1)/2 = 0.965616
// Before, the order in which the load came last showed the factor of the run before (1.00).
TEST(SectionControlHSQ, FlangeLoadOfTheRunItself) {
  const std::vector<std::vector<std::pair<const char*, const char*>>> orders = {
      {{"CboLoadComb", "5"}, {"Loading.iq(1)", "120"}},
      {{"Loading.iq(1)", "120"}, {"Loading.ok", ""}, {"CboLoadComb", "5"}},
      // Through the end forces, whose mode has no uniform load, and back.
      {{"Loading.iq(1)", "120"},
       {"CboLoadComb", "5"},
       {"mnuendforces", ""},
       {"mnuload1", ""},
       {"Loading.ok", ""}},
  };
  std::vector<std::string> summaries;
  for (const auto& order : orders) {
    State s = StartedState();
    Fire(s, "mnup25");
    for (const auto& [control, text] : order) Fire(s, control, text);
    ASSERT_EQ(s.project.AnalysisMode, 1);
    const Section& c = s.section;
    EXPECT_TRUE(Near(s.analysis.qTotal, 120, kHandCalc));
    EXPECT_TRUE(Near(c.FlangeLoadFactor, 0.965616, kHandCalc));
    EXPECT_TRUE(Near(c.MyRdPos, c.MyRdPosUnloaded * 0.965616, kHandCalc));
    EXPECT_TRUE(Near(c.MyRdNeg, c.MyRdNegUnloaded * 0.965616, kHandCalc));
    summaries.push_back(SummaryText(s));
  }
  EXPECT_EQ(summaries[0], summaries[1]);
  EXPECT_EQ(summaries[0], summaries[2]);

  // In the end forces mode no uniform load acts, whatever the load table held in load mode.
  for (const bool loadedFirst : {false, true}) {
    State s = StartedState();
    Fire(s, "mnup25");
    if (loadedFirst) Fire(s, "Loading.iq(1)", "120");
    Fire(s, "mnuendforces");
    EXPECT_EQ(s.analysis.qTotal, 0) << loadedFirst;
    EXPECT_EQ(s.section.FlangeLoadFactor, 1) << loadedFirst;
    EXPECT_EQ(s.section.MyRdPos, s.section.MyRdPosUnloaded) << loadedFirst;
  }
}

// A lower plate overloaded by the slabs. HSQ 300x200/401x10x20/10, 70 % of q on one projection,
// fyk 288, gammaM0 1 (hand values of tests/sections/plated_test.cpp): p = 1.75*288*10^2/6 = 8400
// Nmm/mm = 8.40 kNm/m; q = 250 kN/m: f = 60*250*0.70 = 10 500 Nmm/mm = 10.50 kNm/m, f/p = 1.25.
// As specified the load is dropped with the box and the girder keeps Wpl fy = 433.699 kNm.
// Strict: the plate fails across, 10.50/8.40 = 1.25 red in group 2, the load stays on, and the
// resistance takes (sqrt(0) + 1.1)/2 = 0.55: 433.699*0.55 = 238.534 kNm, 100/238.534 = 0.419227.
// At q = 40.01 (f/p = 0.20005, factor 0.997200) strict shows the plate's line green.
TEST(SectionControlHSQ, OverloadedFlangeFailsUnderTheStrictRules) {
  struct Case {
    bool strict;
    double q;
    Integer hsqKindAfter;
    const char* message;
    double MyRd, ir2;
    const char* numbers2;
    Integer colour2;
  };
  const Case cases[] = {
      {false, 250, 1, " Flange overloaded! Program removes flangeloading ", 433.698854, 0, "", 0},
      {true, 250, 0, "", 238.534370, 1.25, "10.50/8.40 = ", 4},
      {true, 40.01, 0, "", 432.484333, 0.200050, "1.68/8.40 = ", 2},
  };
  for (const Case& k : cases) {
    State s = SectionState();
    s.project.ProfileType = 24;
    s.project.p24 = {300, 200, 401, 10, 20, 10, 0, 70, 1};
    s.project.steelGrade = 3;
    s.project.fyk = 288;
    s.project.hsqKind = 0;
    s.project.strictRules = k.strict ? True : False;
    s.analysis.IRlimit = 1;
    ComputeSection(s);
    s.analysis.qTotal = k.q;
    SetPoints(s, 0, {{0.5f, 100, 0, 0, 0}});
    SectionControlHSQ(s);
    const Checks& c = s.checks;
    EXPECT_EQ(s.project.hsqKind, k.hsqKindAfter) << k.q;
    EXPECT_EQ(s.view.runMessage, k.message) << k.q;
    EXPECT_TRUE(Near(s.section.MyRdPos, k.MyRd, kHandCalc)) << k.q;
    EXPECT_TRUE(Near(c.IRsec[1], 100 / k.MyRd, kHandCalc)) << k.q;
    if (!k.strict) {
      EXPECT_TRUE(c.secText[2].Formula.empty());
      EXPECT_TRUE(Near(s.analysis.IRsection, 100 / k.MyRd, kHandCalc));
      continue;
    }
    EXPECT_EQ(c.secText[2].Formula, "IR = mEd/mRd (flange load) = ") << k.q;
    EXPECT_EQ(c.secText[2].Numbers, k.numbers2) << k.q;
    EXPECT_EQ(c.secText[2].Limit, " < 1.0 (Ch 6.2.5)") << k.q;
    EXPECT_TRUE(Near(c.IRsec[2], k.ir2, kHandCalc)) << k.q;
    EXPECT_EQ(c.colSec[2], k.colour2) << k.q;
    EXPECT_TRUE(Near(s.analysis.IRsection, std::max(k.ir2, 100 / k.MyRd), kHandCalc)) << k.q;
  }
}

// Through the single-precision section values (Iy, the moduli) to the hand values.
constexpr Tolerance kSteps{1e-5, "hand calculation through the single-precision section values"};

// A plate with a stiffener of the dialogs under its load, basic loads; the last event runs again with
// the LT line that the moment's sign turned on.
State LoadedPlate(bool strict, const char* menu, const char* form,
                  std::vector<std::pair<const char*, const char*>> dims, const char* L, const char* q) {
  State s = StartedState();
  Fire(s, "setup.strict", strict ? "1" : "0");
  Fire(s, menu);
  for (const auto& [field, text] : dims) Fire(s, std::string(form) + "." + field, text);
  Fire(s, "il", L);
  Fire(s, "CboLoadComb", "5");
  Fire(s, "Loading.iq(1)", q);
  Fire(s, "il", L);
  return s;
}

const std::vector<std::pair<const char*, const char*>> kTee900 = {
    {"isth", "900"}, {"istb1", "250"}, {"istb2", "400"}, {"isttw", "8"}, {"isttf1", "15"}, {"isttf2", "25"}};

// The tripping of a stiffener, the free edge compressed. Plate 250x15 + T 900x400x8x25 (56), S355,
// q = -100 kN/m on a simple span, so My,Ed = -450 kNm over 6 m. The stiffener alone about its
// junction with the plate (tw 8, hw 875, b2 400, tf2 25, hf = 875 + 12.5 = 887.5):
//   It = 875*8^3/3 (1 - 0.63*8/875) + 400*25^3/3 (1 - 0.63*25/400) = 148 473.2 + 2 001 302.1
//      = 2 149 775.3 mm4
//   Iw = 887.5^2 * 25*400^3/12 = 1.050208E14 mm6
//   Ip = 8*875^3/3 + 875*8^3/12 + 400*25*887.5^2 + 400*25^3/12 + 25*400^3/12 = 9 796 912 333 mm4
//   sigma,cr = (80 769.23*2 149 775.3 + pi^2*210 000*1.050208E14/6000^2)/Ip
//            = (1.736357E11 + 6.046332E12)/9 796 912 333 = 634.891 MPa < 6 fy = 2130
//   Mcr = sigma,cr Wyb, Wyb = 2 828 487 356/(915 - 588.9458) = 8 674 899: 5507.612 kNm
// Hogging class 2 (the flange 196/25 = 7.84 between 9 and 10 epsilon): Wpl,y = 6 479 296.9 (the
// plastic axis 843.125 below the plate's face), My,Rd- = 2300.150 kNm.
//   lamdaLT = sqrt(355*6 479 296.9/5507.612E6) = 0.646244; curve d: Phi = 0.5 (1 + 0.76*0.446244 +
//   0.646244^2) = 0.878388, xLT = 1/(0.878388 + sqrt(0.878388^2 - 0.646244^2)) = 0.678743
//   IR = 450/(0.678743*2300.150) = 0.288238
// Over 3 m (My,Ed = -112.5): sigma,cr = (1.736357E11 + 2.418533E13)/Ip = 2486.392 >= 6 fy, so the
// stiffener does not buckle torsionally: xLT = 1 (the curve would give 0.90 at lamdaLT 0.326559),
// IR = 112.5/2300.150 = 0.048910.
// As specified the whole section's Iz gives xLT = 1 over 6 m as well.
TEST(PlateTripping, StiffenersOwnTorsionalBucklingUnderTheStrictRules) {
  struct Case {
    bool strict;
    const char* L;
    double Mcr, lamdaLT, xLT, IR;
    const char* numbers;
  };
  const Case cases[] = {
      {true, "6", 5507.612283e6, 0.6462439, 0.6787427, 0.2882379, "-450.0/(0.68*2300.2) = "},
      {true, "3", 21569.20011e6, 0.3265586, 1, 0.0489098, "-112.5/(1.00*2300.2) = "},
      {false, "6", 0, 0, 1, 0.1956394, "-450.0/(1.00*2300.2) = "},
  };
  for (const Case& t : cases) {
    const State s = LoadedPlate(t.strict, "mnuplateTg", "p56", kTee900, t.L, "-100");
    const Checks& k = s.checks;
    ASSERT_EQ(s.project.ltbOn, 1) << t.L;
    EXPECT_TRUE(Near(s.section.MyRdNeg, 2300.150, kSteps)) << t.L;
    EXPECT_TRUE(Near(k.xLT, t.xLT, kSteps)) << t.strict << t.L;
    EXPECT_TRUE(Near(s.analysis.IRbuckling, t.IR, kSteps)) << t.strict << t.L;
    EXPECT_EQ(k.buckTextLT.Numbers, t.numbers) << t.strict << t.L;
    if (!t.strict) continue;
    EXPECT_TRUE(Near(k.Mcr, t.Mcr, kSteps)) << t.L;
    EXPECT_TRUE(Near(k.lamdaLT, t.lamdaLT, kSteps)) << t.L;
  }
}

// The one-sided flange of an angle: plate 500x10 + L 250x90x10x15 (53), S355, 2 m, q = -100 kN/m.
// hw = 235, hf = 242.5; the flange's centre e = 45 - 5 = 40 from the web's:
//   It = 235*10^3/3 (1 - 0.63*10/235) + 90*15^3/3 (1 - 0.63*15/90) = 76 233.3 + 90 618.8 = 166 852.1
//   Iw = 242.5^2 * 15*90^3/12 = 5.358720E10 (the flange's own lateral inertia, without e)
//   Ip = 10*235^3/3 + 235*10^3/12 + 90*15*(242.5^2 + 40^2) + 90*15^3/12 + 15*90^3/12 = 125 764 167
//   sigma,cr = (13.476514E9 + pi^2*210 000*5.358720E10/2000^2)/Ip = (13.476514E9 + 27.766434E9)/Ip
//            = 327.9388 MPa (333.67 with e = 0)
//   A = 8700, centroid 76.4943 from the plate's face, Iy = 84 373 075, Wyb = Iy/183.5057 = 459 784.4
//   Mcr = 150.7811 kNm; class 1 (80/15 = 5.33 < 9 epsilon), Wpl,y = 627 655 (axis 8.7 in the plate):
//   lamdaLT = sqrt(355*627 655/150.7811E6) = 1.215629, xLT = 0.369972 on curve d.
TEST(PlateTripping, TheAnglesFlangeCountsItsEccentricityInIpOnly) {
  const State s = LoadedPlate(true, "mnuplateLweld", "p53",
                              {{"isth", "250"},
                               {"istb1", "500"},
                               {"istb2", "90"},
                               {"isttw", "10"},
                               {"isttf1", "10"},
                               {"isttf2", "15"}},
                              "2", "-100");
  const Checks& k = s.checks;
  ASSERT_EQ(s.project.ltbOn, 1);
  EXPECT_TRUE(Near(k.Mcr, 150.7811281e6, kSteps));
  EXPECT_TRUE(Near(k.lamdaLT, 1.2156294, kSteps));
  EXPECT_TRUE(Near(k.xLT, 0.3699724, kSteps));
}

// The plate compressed is held in its plane by the panel: a sagging part never trips.
TEST(PlateTripping, ThePlateCompressedDoesNotTrip) {
  State s = LoadedPlate(true, "mnuplateTg", "p56", kTee900, "6", "-100");
  s.checks.xLT = 0.5;
  ChiGeneral(s, 450);
  EXPECT_EQ(s.checks.xLT, 1);
  ChiGeneral(s, -450);
  EXPECT_TRUE(Near(s.checks.xLT, 0.6787427, kSteps));
}

// Shear of the plated families: the web between the plates of an HSQ and the flange contribution of
// EN 1993-1-5 5.4 (1) with each flange at most 15 epsilon tf each side of a web under the strict
// rules. S355 (epsilon 0.813616, eta 1.2), gammas 1; one point at M = 0 with Vz = 100 kN, so that
// Vbf = b tf^2 fy/c, c = a (0.25 + 1.6 b tf^2/(tw hw^2)), a = 1000 L without stiffeners.
//  1. HSQ 25 of the dialog, 300x300/430x6x25/15, c 15: stocky either way (hw/tw < 72 eps/eta = 48.82).
//     As specified hw = 300 - 15 - 6 = 279: Vz,Rd = 2*1.2*279*6*355/sqrt(3)/1000 = 823.4447; strict
//     the clear depth 300 - 25 - 15 = 260: 767.3678.
//  2. HSQ 25 450x360/560x8x12/14, c 20, 6 m: slender, chi_w hw = 0.83*86.4 eps tw whatever hw, so
//     Vbw = 1530.6972 both ways (hw 428: lamda_w 0.761062, chi_w 1.090581). As specified the top plate
//     360x12 (tf b 4320 < 7840): c = 6000 (0.25 + 1.6*360*144/(8*428^2)) = 1839.593, Vbf = 10.0040,
//     1540.7012. Strict, hw 424, 15 eps tf: 146.451 (12), 170.859 (14); the top plate between the
//     webs 2*146.451 = 292.902, the bottom plate 2*8 + 20 + 164 + 2*170.859 = 541.719:
//     Vbf = 292.902*144*355/1781.536/1000 = 8.4046 (the bottom plate's 17.0654 is larger), 1539.1018.
//  3. Plate 600x10 + T 400x150x6x12 (56), 4 m, web stiffeners at a = 1000: hw 388, k = 5.34 +
//     4*0.388^2 = 5.942176, lamda_w = 388/(37.4 eps 6 sqrt(k)) = 0.871799, chi_w 0.952054,
//     Vbw = 454.2683. As specified the whole plate: c = 356.281, Vbf = 59.7842, 514.0525. Strict:
//     the plate 6 + 2*122.042 = 250.085: Vbf 30.1667; the T's flange 150 (72 < 146.451) x 12:
//     c = 288.261, Vbf = 26.6009, the smaller: 480.8692.
//  4. Plate 600x10 + flat bar 450x8 (51), 4 m: lamda_w = 450/(86.4 eps 8) = 0.800182, chi_w 1.037263,
//     Vbw = 765.3486. As specified with the plate: c = 1237.037, Vbf = 17.2186, 782.5672. Strict: a web
//     with one flange anchors no tension field, 765.3486.
TEST(PlatedShear, WebBetweenThePlatesAndTheFlangesWithin15EpsilonTf) {
  struct Case {
    int type;
    double L;
    bool stiffeners;
    double specified, strict;
  };
  const Case cases[] = {
      {25, 2, false, 823.44467, 767.36779},
      {251, 6, false, 1540.7012, 1539.1018},
      {56, 4, true, 514.05253, 480.86917},
      {51, 4, false, 782.56716, 765.34859},
  };
  for (const Case& t : cases) {
    for (const bool strict : {false, true}) {
      State s = SectionState();
      Project& p = s.project;
      p.steelGrade = kS355;
      p.fyk = 355;
      p.neta = 1.2f;
      p.strictRules = strict ? True : False;
      p.L = ToSingle(t.L);
      p.webStiffeners = t.stiffeners ? 1 : 0;
      p.a = 1000;
      p.hsqKind = 1;
      if (t.type == 25) {
        p.ProfileType = 25;
        p.p25 = {300, 300, 430, 6, 25, 15, 15, 1};
      } else if (t.type == 251) {
        p.ProfileType = 25;
        p.p25 = {450, 360, 560, 8, 12, 14, 20, 1};
      } else if (t.type == 56) {
        p.ProfileType = 56;
        p.p56 = {400, 600, 150, 6, 10, 12};
      } else {
        p.ProfileType = 51;
        p.p51 = {450, 600, 8, 10};
      }
      s.analysis.IRlimit = 1;
      ComputeSection(s);
      SetPoints(s, 0, {{0.0f, 0, 0, 0, 100}});
      if (p.ProfileType == 25)
        SectionControlHSQ(s);
      else
        SectionControlPlate(s);
      const double expected = strict ? t.strict : t.specified;
      EXPECT_TRUE(Near(s.section.VbzRd, expected, kSteps)) << t.type << strict;
      EXPECT_TRUE(Near(s.checks.IRsec[3], 100 / expected, kSteps)) << t.type << strict;
    }
  }
}

}  // namespace
}  // namespace vn::test
