// The section control of the I family: the ratios, the texts to the character, the winning rule
// of a group, and the deliberate departures from the plain standard.
#include <gtest/gtest.h>

#include <vector>

#include "checks/control_framework.h"
#include "checks/control_routines.h"
#include "checks/section_control_fixture.h"
#include "checks/section_control_i.h"
#include "core/events.h"
#include "core/pipeline.h"
#include "core/recalculate.h"

namespace vn::test {
namespace {

void ExpectText(const ControlText& t, const char* formula, const char* numbers, const char* ratio,
                const char* limit) {
  EXPECT_EQ(t.Formula, formula);
  EXPECT_EQ(t.Numbers, numbers);
  EXPECT_EQ(t.Ratio, ratio);
  EXPECT_EQ(t.Limit, limit);
}

// ---- A complete member against EN 1993-1-1 by hand ----

// The default project: HEA 300 in S355, L = 5 m simply supported, N = 100 kN and q = 10 kN/m, both
// G, Eq 6.10 with gammaG = 1.35: NEd = 135 kN, MyEd = 1.35*10*5^2/8 = 42.1875 kNm at midspan,
// VzEd = 1.35*10*5/2 = 33.75 kN at both supports.
// HEA 300: h 290, b 300, tw 8.5, tf 14, r 27, A = 11250 mm2, Iy = 18260 cm4; tf <= 40: fy = 355,
// epsilon = sqrt(235/355) = 0.8136.
// Class: flange c = (300 - 8.5 - 2*27)/2 = 118.75, c/tf = 8.48 > 10 epsilon = 8.14 and < 14 epsilon
// = 11.39: class 3 in compression and in bending; the web d/tw = 208/8.5 = 24.5 is class 1.
//   NcRd = 11250*355/1.0/1000 = 3993.75 kN (class 3: gross area)
//   My,Rd = Wel,y fy = (18260e4/145)*355/1e6 = 1259310.3*355/1e6 = 447.0552 kNm (class 3: elastic)
//   Av = A - 2 b tf + (tw + 2 r) tf = 11250 - 8400 + 62.5*14 = 3725 mm2 >= eta hw tw = 2672.4
//   Vpl,z,Rd = 3725*355/sqrt 3/1000 = 763.4736 kN; hw/tw = 30.8 < 72 epsilon/1.2 = 48.8: no shear
//   buckling, Vb,z,Rd = Vpl,z,Rd.
// Ratios:
//   N alone 135/3993.75 = 0.033803; My alone 42.1875/447.0552 = 0.094368 (group 1: 0.09 at 0.50L)
//   class 3 under N + M: the linear sum 0.033803 + 0.094368 = 0.128170 (group 2: 0.13 at 0.50L)
//   shear 33.75/763.4736 = 0.044206, the same at x = 0 and x = L: the first point is named.
TEST(SectionControlDefaultMember, AgreesWithTheHandCalculation) {
  State s = StartedState();
  const Section& c = s.section;
  ASSERT_EQ(s.project.ProfileType, 1);
  EXPECT_TRUE(Near(s.analysis.NEd, 135.0, kHandCalc));
  EXPECT_EQ(c.classMy, 3);
  EXPECT_EQ(c.classN, 3);
  EXPECT_TRUE(Near(c.NcRd, 3993.75, kHandCalc));
  EXPECT_TRUE(Near(c.MelyRd, 447.0552, kHandCalc));
  EXPECT_TRUE(Near(c.VplRd, 763.4736, kHandCalc));
  EXPECT_TRUE(Near(c.VbzRd, 763.4736, kHandCalc));

  const Checks& k = s.checks;
  EXPECT_TRUE(Near(k.IRsec[1], 0.094368, {1e-5, "ratio of a 5-digit hand calculation"}));
  EXPECT_TRUE(Near(k.IRsec[2], 0.128170, {1e-5, "ratio of a 5-digit hand calculation"}));
  EXPECT_TRUE(Near(k.IRsec[3], 0.044206, {1e-5, "ratio of a 5-digit hand calculation"}));
  EXPECT_TRUE(Near(s.analysis.IRsection, 0.128170, {1e-5, "ratio of a 5-digit hand calculation"}));
  ExpectText(k.secText[1], "IR = My,Ed/My,Rd = ", "42.2/447.1 = ", "0.09", " < 1.0 (0.50L; Ch 6.2.5)");
  ExpectText(k.secText[2], "IR = NEd/NRd+My,Ed/My,Rd = ", "135.0/3993.8+42.2/447.1 = ", "0.13",
             " < 1.0 (0.50L; Ch 6.2.1/6.2.9)");
  ExpectText(k.secText[3], "IR = Vz,Ed/Vz,Rd = ", "33.8/763.5 = ", "0.04", " < 1.0 (0.00L; Ch 6.2.6)");
  for (size_t g = 1; g <= 3; ++g) EXPECT_EQ(k.colSec[g], kGreen);
  for (size_t g = 4; g <= 6; ++g) EXPECT_TRUE(k.secText[g].Formula.empty());
}

// The same member with fixed ends (cbutt2) and q = 150 kN/m: qd = 1.35*150 = 202.5 kN/m, at the
// supports MyEd = qd L^2/12 = 421.875 kNm together with VzEd = qd L/2 = 506.25 kN > 0.5*763.4736.
//   rhoZ = (2*506.25/763.4736 - 1)^2 = 0.1063905
//   class 3: R = hw^2 tw rhoZ/6 fy = 262^2*8.5*0.1063905/6/1e6*355 = 3.67284 kNm
//   MV,y,Rd = 447.05518 - 3.67284 = 443.38235; 421.875/443.38235 = 0.951493
//   linear sum with N: 0.033803 + 0.951493 = 0.985295; shear 506.25/763.4736 = 0.663084
// Both supports give the same values: x = 0 is named.
TEST(SectionControlDefaultMember, FixedEndsUnderHeavyLoadReduceForShear) {
  State s = StartedState();
  Fire(s, "cbutt2");
  Fire(s, "Loading.iq(1)", "150");
  const Checks& k = s.checks;
  ExpectText(k.secText[1], "IR = My,Ed/MV,y,Rd = ", "421.9/443.4 = ", "0.95", " < 1.0 (0.00L; Ch 6.2.8)");
  ExpectText(k.secText[2], "IR = NEd/NRd+My,Ed/MV,y,Rd = ", "135.0/3993.8+421.9/443.4 = ", "0.99",
             " < 1.0 (0.00L; Ch 6.2.1/6.2.9)");
  ExpectText(k.secText[3], "IR = Vz,Ed/Vz,Rd = ", "506.3/763.5 = ", "0.66", " < 1.0 (0.00L; Ch 6.2.6)");
  EXPECT_TRUE(Near(k.IRsec[1], 0.951493, {1e-5, "ratio of a 6-digit hand calculation"}));
  EXPECT_TRUE(Near(k.IRsec[2], 0.985295, {1e-5, "ratio of a 6-digit hand calculation"}));
}

// ---- The lines of the section control, one check point or two on the synthetic I ----

// One expectation: the forces at the check points, the group looked at and its line. A field left
// nullptr is not looked at; an empty formula means the group stays empty with a ratio of 0.
struct LineCase {
  const char* name;
  void (*setup)(State&);  // nullptr: the section as it is
  double NEd;
  std::vector<PointForces> points;
  size_t group;
  const char *formula, *numbers, *ratio, *limit;
  double ir = -1;   // the ratio of the hand calculation; < 0: not checked
  int colour = -1;  // kGreen or kRed; < 0: not checked
  Tolerance tol = kHandCalc;
  void (*more)(const State&) = nullptr;
};

constexpr Tolerance kFiveDigits{1e-5, "ratio of a 6-digit hand calculation"};
constexpr Tolerance kExact{0, "exact in binary"};

void NcRd1200(State& s) { s.section.NcRd = 1200; }  // a class 4 member: the effective area
void Conservative(State& s) { s.project.conserControl = True; }
// c = 120: c/tf = 12, a class 3 outstand in bending and under N + M.
void ClassThree(State& s) {
  s.section.c = 120;
  s.section.classMy = s.section.classMz = s.section.classN = 3;
  s.section.MyRdClass = 170;
  s.section.MzRdClass = 40;
}
// c = 150: c/tf = 15 > 14, class 4.
void ClassFour(State& s) {
  s.section.c = 150;
  s.section.classMy = s.section.classN = 4;
  s.section.MyRdClass = 160;
  s.section.NcRd = 1200;
}
// Bending class 3 (MyRdClass = MelyRd = 170) while the section under N + M classifies as 1.
void BendingClassThree(State& s) {
  s.section.classMy = 3;
  s.section.MyRdClass = 170;
}

const LineCase kLines[] = {
    // ---- The winning rule
    // 100/200 = 0.5 at x = 0.2 and again at x = 0.8: the first stays.
    {"tie names the first point",
     nullptr,
     0,
     {{0.2f, 100, 0, 0, 0}, {0.8f, 100, 0, 0, 0}},
     1,
     "IR = My,Ed/My,Rd = ",
     "100.0/200.0 = ",
     "0.50",
     " < 1.0 (0.20L; Ch 6.2.5)"},
    // 200/200 = 1 exactly: green, since red needs strictly more than 1.0.
    {"ratio exactly one",
     nullptr,
     0,
     {{0.5f, 200, 0, 0, 0}},
     1,
     nullptr,
     nullptr,
     "1.00",
     nullptr,
     1.0,
     kGreen,
     kExact},
    // 200.25/200 = 1.00125: still "1.00", but red.
    {"ratio just above one",
     nullptr,
     0,
     {{0.5f, 200.25f, 0, 0, 0}},
     1,
     nullptr,
     nullptr,
     "1.00",
     nullptr,
     -1,
     kRed},
    // 240/200 = 1.2 at the first point, 0.5 at the second: the text and the red stay with the first.
    {"colour follows the kept ratio",
     nullptr,
     0,
     {{0.1f, 240, 0, 0, 0}, {0.9f, 100, 0, 0, 0}},
     1,
     nullptr,
     nullptr,
     nullptr,
     " < 1.0 (0.10L; Ch 6.2.5)",
     -1,
     kRed},

    // ---- Axial force
    // 300/1200 = 0.25: compression takes NcRd.
    {"compression",
     NcRd1200,
     300,
     {{0, 0, 0, 0, 0}},
     1,
     "IR = NEd/NRd = ",
     "300.0/1200.0 = ",
     "0.25",
     " < 1.0 (Ch 6.2.4)"},
    // |-400/1600| = 0.25: tension takes NtRd; the text keeps the sign of the force.
    {"tension",
     NcRd1200,
     -400,
     {{0, 0, 0, 0, 0}},
     1,
     "IR = NEd/NRd = ",
     "-400.0/1600.0 = ",
     "0.25",
     " < 1.0 (Ch 6.2.3)"},

    // ---- Shear at and above half the resistance
    // VzEd = 200 = 0.5*400: rhoZ = 0, so MyRd = 200 in both steps; only the texts differ.
    // NEd = 400: n = 0.25 against NtRd; 400 > 329 kN, so MN,y,Rd = 200*0.75/(1 - 0.5*0.4117647)
    // = 188.8889 and 100/188.8889 = 0.5294.
    {"shear exactly half, step b",
     nullptr,
     400,
     {{0.5f, 100, 0, 0, 200}},
     1,
     "IR = My,Ed/MV,y,Rd = ",
     "100.0/200.0 = ",
     "0.50",
     " < 1.0 (0.50L; Ch 6.2.8)",
     -1,
     -1,
     kHandCalc,
     [](const State& s) { EXPECT_EQ(s.checks.rhoZ, 0.0f); }},
    {"shear exactly half, step e",
     nullptr,
     400,
     {{0.5f, 100, 0, 0, 200}},
     2,
     "IR = My,Ed/MN,y,Rd = ",
     "100.0/188.9 = ",
     "0.53",
     " < 1.0 (0.50L; Ch 6.2.9)",
     0.5294118},
    {"shear exactly half, shear line",
     nullptr,
     400,
     {{0.5f, 100, 0, 0, 200}},
     3,
     "IR = Vz,Ed/Vz,Rd = ",
     "200.0/400.0 = ",
     "0.50",
     " < 1.0 (0.50L; Ch 6.2.6)"},
    // VzEd = 240: rhoZ = (2*240/400 - 1)^2 = 0.04; R = 280^2*(10*0.04)/4/1e6*235 = 1.8424 kNm;
    // MyRd = 198.1576; MN,y,Rd = 198.1576*0.75/0.7941176 = 187.1488.
    {"shear above half, step b",
     nullptr,
     400,
     {{0.5f, 100, 0, 0, 240}},
     1,
     "IR = My,Ed/MV,y,Rd = ",
     "100.0/198.2 = ",
     "0.50",
     " < 1.0 (0.50L; Ch 6.2.8)",
     100 / 198.1576,
     -1,
     kHandCalc,
     [](const State& s) { EXPECT_TRUE(Near(s.checks.rhoZ, 0.04, kHandCalc)); }},
    {"shear above half, step e",
     nullptr,
     400,
     {{0.5f, 100, 0, 0, 240}},
     2,
     "IR = My,Ed/MVN,y,Rd = ",
     "100.0/187.1 = ",
     "0.53",
     " < 1.0 (0.50L; Ch 6.2.9)",
     100 / 187.1488444},
    // VzEd = 500 > 400: (2*500/400 - 1)^2 = 2.25, held at 1; the web is gone:
    // MyRd = 200 - 280^2*10/4/1e6*235 = 200 - 46.06 = 153.94; 100/153.94 = 0.6496, green.
    {"shear above the resistance, bending",
     nullptr,
     0,
     {{0.5f, 100, 0, 0, 500}},
     1,
     nullptr,
     nullptr,
     nullptr,
     nullptr,
     -1,
     kGreen,
     kHandCalc,
     [](const State& s) {
       EXPECT_EQ(s.checks.rhoZ, 1.0f);
       EXPECT_TRUE(Near(s.checks.MyRd, 153.94, kHandCalc));
     }},
    // The shear line is red by itself: 500/400 = 1.25.
    {"shear above the resistance, shear line",
     nullptr,
     0,
     {{0.5f, 100, 0, 0, 500}},
     3,
     "IR = Vz,Ed/Vz,Rd = ",
     "500.0/400.0 = ",
     "1.25",
     " < 1.0 (0.50L; Ch 6.2.6)",
     -1,
     kRed},
    // VbyRd = (1/1.5)*2*200*10*235/sqrt 3/1000 = 361.8062; 100/361.8062 = 0.2764.
    {"shear along y",
     nullptr,
     0,
     {{1, 0, 0, 100, 0}},
     3,
     "IR = Vy,Ed/Vy,Rd = ",
     "100.0/361.8 = ",
     "0.28",
     " < 1.0 (1.00L; Ch 6.2.6)"},

    // ---- Interaction
    {"one moment without axial force", nullptr, 0, {{0.5f, 100, 0, 0, 0}}, 2, "", nullptr, nullptr, nullptr},
    // [100/200]^2 + (30/60)^1 = 0.25 + 0.5 = 0.75; beta = 1 with no axial force.
    // Group 1: My 0.5 first, Mz 0.5 ties and loses.
    {"biaxial plastic, group 1",
     nullptr,
     0,
     {{0.5f, 100, 30, 0, 0}},
     1,
     "IR = My,Ed/My,Rd = ",
     "100.0/200.0 = ",
     "0.50",
     " < 1.0 (0.50L; Ch 6.2.5)"},
    {"biaxial plastic, group 2",
     nullptr,
     0,
     {{0.5f, 100, 30, 0, 0}},
     2,
     "IR = [My,Ed/My,Rd]^alfa + [Mz,Ed/Mz,Rd]^beta = ",
     "[100.0/200.0]^2.00+(30.0/60.0)^1.00 = ",
     "0.75",
     " < 1.0 (0.50L; Ch 6.2.5/6.2.9)"},
    // VzEd = 300: rhoZ = 0.25, MyRd = 200 - 11.515 = 188.485; VyEd = 375: rhoY = 0.25,
    // MzRd = 60 - 200^2*(2*0.25*10)/4/1e6*235 = 60 - 11.75 = 48.25.
    // (100/188.485)^2 + 30/48.25 = 0.281484 + 0.621762 = 0.903246
    {"biaxial with high shear",
     nullptr,
     0,
     {{0.5f, 100, 30, 375, 300}},
     2,
     "IR = [My,Ed/MV,y,Rd]^alfa + [Mz,Ed/MV,z,Rd]^beta = ",
     "[100.0/188.5]^2.00+(30.0/48.3)^1.00 = ",
     "0.90",
     " < 1.0 (0.50L; Ch 6.2.5/6.2.9)",
     0.903246,
     -1,
     kFiveDigits},
    // 100/200 + 30/60 = 1.00: green, since red needs strictly more than 1.0.
    {"conservative, no axial force",
     Conservative,
     0,
     {{0.5f, 100, 30, 0, 0}},
     2,
     "IR = My,Ed/My,Rd + Mz,Ed/Mz,Rd = ",
     "100.0/200.0 + 30.0/60.0 = ",
     "1.00",
     " < 1.0 (0.50L; Ch 6.2.1)",
     -1,
     kGreen},
    // With N: e and f take the linear form too, g gives 400/1600 + 100/200 + 30/60 = 1.25, red,
    // and the class returns to that of pure bending.
    {"conservative with axial force",
     Conservative,
     400,
     {{0.5f, 100, 30, 0, 0}},
     2,
     "IR = NEd/NRd+My,Ed/My,Rd+Mz,Ed/Mz,Rd = ",
     "400.0/1600.0+100.0/200.0+30.0/60.0 = ",
     "1.25",
     " < 1.0 (0.50L; Ch 6.2.1/6.2.9)",
     -1,
     kRed,
     kHandCalc,
     [](const State& s) { EXPECT_EQ(s.checks.classCur, 1); }},
    // NEd = 400: n = 0.25, beta = 1.25. Class under N + My and under N + Mz: 1.
    // MN,y,Rd = 188.8889 (400 > 329); MN,z,Rd: n = 0.25 <= a = 0.4118, so 60.
    // e: 100/188.8889 = 0.529412; f: 30/60 = 0.5, loses;
    // g: (100/188.8889)^2 + (30/60)^1.25 = 0.280277 + 0.420448 = 0.700725, wins.
    {"axial force with both moments",
     nullptr,
     400,
     {{0.5f, 100, 30, 0, 0}},
     2,
     "IR = (My,Ed/MN,y,Rd)^alfa  + (Mz,Ed/MN,z,Rd)^beta = ",
     "(100.0/188.9)^2.00+(30.0/60.0)^1.25 = ",
     "0.70",
     " < 1.0 (0.50L; Ch 6.2.9)",
     0.7007250,
     -1,
     kHandCalc,
     [](const State& s) {
       EXPECT_EQ(s.checks.classNMy, 1);
       EXPECT_EQ(s.checks.classNMz, 1);
     }},
    // NEd = -400: class 1 under tension and bending; MN,y,Rd = 188.8889 as in compression.
    {"tension with moment",
     nullptr,
     -400,
     {{0.5f, 100, 0, 0, 0}},
     2,
     "IR = My,Ed/MN,y,Rd = ",
     "100.0/188.9 = ",
     "0.53",
     " < 1.0 (0.50L; Ch 6.2.9)"},
    // |-400/1600| + 100/200 = 0.75
    {"tension with moment, conservative",
     Conservative,
     -400,
     {{0.5f, 100, 0, 0, 0}},
     2,
     "IR = NEd/NRd+My,Ed/My,Rd = ",
     "-400.0/1600.0+100.0/200.0 = ",
     "0.75",
     " < 1.0 (0.50L; Ch 6.2.1/6.2.9)"},
    // NEd = 2000: n = 1.25, MN,y,Rd = 200*(1 - 1.25)/0.7941176 = -62.96 and the ratio is negative:
    // group 2 stays empty; group 1 shows the overload 2000/1600 = 1.25.
    {"beyond NtRd, group 2", nullptr, 2000, {{0.5f, 100, 0, 0, 0}}, 2, "", nullptr, nullptr, nullptr},
    {"beyond NtRd, group 1",
     nullptr,
     2000,
     {{0.5f, 100, 0, 0, 0}},
     1,
     "IR = NEd/NRd = ",
     "2000.0/1600.0 = ",
     "1.25",
     " < 1.0 (Ch 6.2.4)",
     -1,
     kRed},

    // ---- Class 3 and class 4
    // b: 100/170 = 0.588235; the elastic modulus is the active one.
    {"class 3, bending",
     ClassThree,
     400,
     {{0.5f, 100, 0, 0, 0}},
     1,
     "IR = My,Ed/My,Rd = ",
     "100.0/170.0 = ",
     "0.59",
     " < 1.0 (0.50L; Ch 6.2.5)",
     -1,
     -1,
     kHandCalc,
     [](const State& s) { EXPECT_EQ(s.section.Wy, 900.0f); }},
    // e: 400/1600 + 100/170 = 0.838235.
    {"class 3, linear sum",
     ClassThree,
     400,
     {{0.5f, 100, 0, 0, 0}},
     2,
     "IR = NEd/NRd+My,Ed/My,Rd = ",
     "400.0/1600.0+100.0/170.0 = ",
     "0.84",
     " < 1.0 (0.50L; Ch 6.2.1/6.2.9)"},
    // b: 100/160 = 0.625, with the effective modulus.
    {"class 4, bending",
     ClassFour,
     400,
     {{0.5f, 100, 0, 0, 0}},
     1,
     "IR = My,Ed/My,Rd = ",
     "100.0/160.0 = ",
     "0.63",
     " < 1.0 (0.50L; Ch 6.2.5)",
     -1,
     -1,
     kHandCalc,
     [](const State& s) { EXPECT_EQ(s.section.Wy, 800.0f); }},
    // e: the class under N + M is 4, so the linear sum with NcRd and MeffyRd:
    // 400/1200 + 100/160 = 0.958333.
    {"class 4, linear sum",
     ClassFour,
     400,
     {{0.5f, 100, 0, 0, 0}},
     2,
     "IR = NEd/NRd+My,Ed/My,Rd = ",
     "400.0/1200.0+100.0/160.0 = ",
     "0.96",
     " < 1.0 (0.50L; Ch 6.2.1/6.2.9)"},
    // The plastic 200 is capped at 170; MN,y,Rd = 170*0.75/0.7941176 = 160.5556.
    {"plastic N+M value capped by the bending class",
     BendingClassThree,
     400,
     {{0.5f, 100, 0, 0, 0}},
     2,
     "IR = My,Ed/MN,y,Rd = ",
     "100.0/160.6 = ",
     "0.62",
     " < 1.0 (0.50L; Ch 6.2.9)"},
};

TEST(SectionControlLines, AgreeWithTheHandCalculation) {
  for (const LineCase& c : kLines) {
    SCOPED_TRACE(c.name);
    State s = SyntheticI();
    if (c.setup) c.setup(s);
    SetPoints(s, c.NEd, c.points);
    SectionControlI(s);
    const ControlText& t = s.checks.secText[c.group];
    if (c.formula) {
      EXPECT_EQ(t.Formula, c.formula);
    }
    if (c.formula && !*c.formula) {
      EXPECT_EQ(s.checks.IRsec[c.group], 0.0);
    }
    if (c.numbers) {
      EXPECT_EQ(t.Numbers, c.numbers);
    }
    if (c.ratio) {
      EXPECT_EQ(t.Ratio, c.ratio);
    }
    if (c.limit) {
      EXPECT_EQ(t.Limit, c.limit);
    }
    if (c.ir >= 0) {
      EXPECT_TRUE(Near(s.checks.IRsec[c.group], c.ir, c.tol));
    }
    if (c.colour >= 0) {
      EXPECT_EQ(s.checks.colSec[c.group], c.colour);
    }
    if (c.more) c.more(s);
  }
}

TEST(SectionControlWinningRule, NoForcesGiveNoLinesAndLeaveTheColours) {
  State s = SyntheticI();
  s.checks.colSec = {0, kRed, kRed, kRed, 0, 0, 0};
  s.checks.secText[2].Formula = "left from the run before";
  s.checks.IRsec[2] = 0.7;
  SetPoints(s, 0, {{0, 0, 0, 0, 0}, {1, 0, 0, 0, 0}});
  SectionControlI(s);
  for (size_t g = 1; g <= 6; ++g) {
    EXPECT_EQ(s.checks.IRsec[g], 0.0);
    EXPECT_TRUE(s.checks.secText[g].Formula.empty());
    EXPECT_TRUE(s.checks.secText[g].Limit.empty());
  }
  EXPECT_EQ(s.checks.colSec[1], kRed);
  EXPECT_EQ(s.checks.colSec[3], kRed);
  EXPECT_EQ(s.analysis.IRsection, 0.0);
}

TEST(SectionControlWinningRule, GoverningRatioIsTheLargestOfTheGroups) {
  State s = SyntheticI();
  // Group 1: 100/200 = 0.5 beats the shear 150/400 = 0.375.
  SetPoints(s, 0, {{0.5f, 100, 0, 0, 150}});
  SectionControlI(s);
  EXPECT_EQ(s.analysis.IRsection, 0.5);
  // Shear 240/400 = 0.6 beats 100/198.1576.
  SetPoints(s, 0, {{0.5f, 100, 0, 0, 240}});
  SectionControlI(s);
  EXPECT_DOUBLE_EQ(s.analysis.IRsection, 0.6);
}

TEST(SectionControlAxial, BetaIsFiveTimesNAgainstNtRdWithAFloorOfOne) {
  State s = SyntheticI();
  s.section.NcRd = 1200;
  SetPoints(s, 400, {{0, 0, 0, 0, 0}});
  SectionControlI(s);
  EXPECT_DOUBLE_EQ(s.checks.betaN, 1.25);  // 5*400/1600, not 5*400/1200
  EXPECT_EQ(s.checks.NRd, 1200.0);
  SetPoints(s, 100, {{0, 0, 0, 0, 0}});
  SectionControlI(s);
  EXPECT_EQ(s.checks.betaN, 1.0);  // 5*100/1600 = 0.3125, floored
}

// ---- The moment resistances one by one ----

TEST(ComputeMyRd, ReductionForShearByClass) {
  State s = SyntheticI();
  Checks& k = s.checks;
  k.VzEd = 300;  // rhoZ = (1.5 - 1)^2 = 0.25
  // plastic: R = 280^2*(10*0.25)/4/1e6*235 = 11.515 -> 188.485
  k.classCur = 1;
  ComputeMyRd(s);
  EXPECT_EQ(k.rhoZ, 0.25f);
  EXPECT_TRUE(Near(k.MyRd, 188.485, kHandCalc));
  EXPECT_EQ(s.section.Wy, 1000.0f);
  // class 3 (cap lifted to see the value): R/6 = 7.676667 -> 170 - 7.676667 = 162.3233
  s.section.MyRdClass = 1000;
  k.classCur = 3;
  ComputeMyRd(s);
  EXPECT_TRUE(Near(k.MyRd, 162.323333, kHandCalc));
  // class 4: 160 - 7.676667 = 152.3233
  k.classCur = 4;
  ComputeMyRd(s);
  EXPECT_TRUE(Near(k.MyRd, 152.323333, kHandCalc));
  EXPECT_EQ(s.section.Wy, 800.0f);
  // class 1 with elastic design of class 1-2: the elastic form
  s.project.elasticClass12 = True;
  k.classCur = 1;
  ComputeMyRd(s);
  EXPECT_TRUE(Near(k.MyRd, 162.323333, kHandCalc));
  EXPECT_EQ(s.section.Wy, 900.0f);
}

TEST(ComputeMzRd, PlasticFormTakesTwoFlangesAndTheElasticOne) {
  State s = SyntheticI();
  Checks& k = s.checks;
  s.section.MzRdClass = 1000;
  k.VyEd = 375;  // rhoY = (2*375/500 - 1)^2 = 0.25
  k.classCur = 2;
  ComputeMzRd(s);
  // 60 - 200^2*(2*0.25*10)/4/1e6*235 = 60 - 11.75
  EXPECT_TRUE(Near(k.MzRd, 48.25, kHandCalc));
  EXPECT_EQ(s.section.Wz, 300.0f);
  k.classCur = 3;
  ComputeMzRd(s);
  // 40 - 200^2*(10*0.25)/6/1e6*235 = 40 - 3.916667
  EXPECT_TRUE(Near(k.MzRd, 36.083333, kHandCalc));
  k.classCur = 4;
  ComputeMzRd(s);
  EXPECT_TRUE(Near(k.MzRd, 31.083333, kHandCalc));
  EXPECT_EQ(s.section.Wz, 150.0f);
  // Capped by the value of the bending class.
  s.section.MzRdClass = 30;
  ComputeMzRd(s);
  EXPECT_EQ(k.MzRd, 30.0f);
}

TEST(ComputeMNyRd, BothLimitsOfTheNoReductionRuleMustHold) {
  State s = SyntheticI();
  Checks& k = s.checks;
  k.MyRd = 200;
  s.section.NtRd = 1000;  // 0.25 NtRd = 250 kN, below the web limit of 329 kN
  s.analysis.NEd = 300;   // within the web limit, beyond 0.25 NtRd: reduced
  ComputeMNyRd(s);
  // 200*(1 - 0.3)/(1 - 0.5*0.4117647) = 176.2963
  EXPECT_TRUE(Near(k.MNyRd, 176.296296, kHandCalc));
  s.analysis.NEd = -240;  // within both: no reduction, whatever the sign
  ComputeMNyRd(s);
  EXPECT_EQ(k.MNyRd, 200.0f);
  // The web share a is held at 0.5: A = 10000 gives 0.6.
  s.section.A = 10000;
  s.analysis.NEd = 300;
  ComputeMNyRd(s);
  EXPECT_TRUE(Near(k.MNyRd, 186.666667, kHandCalc));  // 200*0.7/0.75
}

TEST(ComputeMNzRd, ReducedOnlyBeyondTheWebShareAndTheWebCapacity) {
  State s = SyntheticI();
  Checks& k = s.checks;
  k.MzRd = 60;
  s.analysis.NEd = 1000;  // n = 0.625 > a; 1000 > 658 kN
  ComputeMNzRd(s);
  // 60*(1 - ((0.625 - 0.4117647)/0.5882353)^2) = 60*(1 - 0.3625^2) = 52.115625
  EXPECT_TRUE(Near(k.MNzRd, 52.115625, kHandCalc));
  s.analysis.NEd = 600;  // n = 0.375 <= a
  ComputeMNzRd(s);
  EXPECT_EQ(k.MNzRd, 60.0f);
  s.section.NtRd = 1000;
  s.analysis.NEd = 650;  // n = 0.65 > a, but 650 <= hw tw fyk = 658 kN
  ComputeMNzRd(s);
  EXPECT_EQ(k.MNzRd, 60.0f);
}

// ---- The dispatcher ----

TEST(RunControls, ClearsTheGoverningRatiosAndLeavesNoVerdictForAFamilyWithoutControls) {
  State s = StartedState();
  ASSERT_GT(s.analysis.IRsection, 0.0);
  ASSERT_FALSE(s.checks.secText[1].Formula.empty());
  s.checks.C1 = 1.5;
  s.project.ProfileType = 99;  // no family of that number
  RunControls(s);
  EXPECT_EQ(s.analysis.IRsection, 0.0);
  EXPECT_EQ(s.analysis.IRbuckling, 0.0);
  EXPECT_EQ(s.checks.C1, 0.0);
  for (size_t g = 1; g <= 6; ++g) EXPECT_TRUE(s.checks.secText[g].Formula.empty());
  EXPECT_TRUE(s.checks.buckTextY.Formula.empty());
}

TEST(RunControls, TheIFamilyRowsRunTheSectionControl) {
  for (int type : {1, 2, 3, 4, 5, 15, 16, 101, 102, 103}) {
    bool found = false;
    for (const ControlFamilyRow& row : ControlFamilies())
      if (type >= row.firstType && type <= row.lastType) {
        found = true;
        EXPECT_EQ(row.sectionControl, &SectionControlI) << type;
        EXPECT_EQ(row.bucklingControl, &BucklingControlI) << type;
        EXPECT_EQ(row.when, BucklingWhen::Always) << type;
        EXPECT_EQ(row.before, BeforeControl::Nothing) << type;
      }
    EXPECT_TRUE(found) << type;
  }
}

}  // namespace
}  // namespace vn::test
