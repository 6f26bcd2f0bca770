// The controls of the tube, the flat bar, the T section and the general section, on whole members
// under basic loads (factor 1) and at single check points, with the numbers by hand. S355,
// gammaM0 = gammaM1 = 1, L = 5 m, simply supported.
#include <gtest/gtest.h>

#include "checks/control_routines.h"
#include "checks/section_control_fixture.h"
#include "core/events.h"
#include "core/state.h"
#include "support/test_support.h"

namespace vn::test {
namespace {

inline constexpr Tolerance kRatio{1e-5, "ratio of a 6-digit hand calculation"};

void ExpectText(const ControlText& t, const char* formula, const char* numbers, const char* ratio,
                const char* limit) {
  EXPECT_EQ(t.Formula, formula);
  EXPECT_EQ(t.Numbers, numbers);
  EXPECT_EQ(t.Ratio, ratio);
  EXPECT_EQ(t.Limit, limit);
}

// A member of the family under basic loads: N in slot 1 (compression positive), q in slot 1.
State Member(const char* menu, std::initializer_list<std::pair<const char*, const char*>> dims, const char* N,
             const char* q) {
  State s = StartedState();
  Fire(s, menu);
  for (const auto& [field, value] : dims) Fire(s, field, value);
  Fire(s, "CboLoadComb", "5");
  Fire(s, "Loading.iq(1)", q);
  Fire(s, "Loading.inn(1)", N);
  return s;
}

// CHS 168.3 x 8.0 (class 1): Nt,Rd = 1430.216 kN, Mpl = 73.03748 kNm, Vc,Rd = 525.6797 kN.
// N = 500 kN and q = 16 kN/m: My = 50 kNm at midspan, Vz = 40 kN at the ends.
//   n = 500/1430.216 = 0.3495975; MN,y,Rd = 73.03748 (1 - n^1.7) = 60.80226 kNm
//   My alone 50/73.03748 = 0.6845800; N and My 50/60.80226 = 0.8223378; shear 40/525.6797 = 0.0760920
TEST(TubeSectionControl, MemberWithAxialForceAndMoment) {
  State s = Member("mnup31", {{"p31.istd", "168.3"}, {"p31.isttw", "8"}}, "500", "16");
  const Checks& k = s.checks;
  EXPECT_TRUE(Near(k.IRsec[1], 0.6845800, kRatio));
  EXPECT_TRUE(Near(k.IRsec[2], 0.8223378, kRatio));
  EXPECT_TRUE(Near(k.IRsec[3], 0.0760920, kRatio));
  ExpectText(k.secText[1], "IR = My,Ed/My,Rd = ", "50.0/73.0 = ", "0.68", " < 1.0 (0.50L; Ch 6.2.5)");
  ExpectText(k.secText[2], "IR = My,Ed/MN,y,Rd = ", "50.0/60.8 = ", "0.82", " < 1.0 (0.50L; Ch 6.2.9)");
  ExpectText(k.secText[3], "IR = Vz,Ed/Vz,Rd = ", "40.0/525.7 = ", "0.08", " < 1.0 (0.00L; Ch 6.2.6)");
  // 6.41 for circular sections, whatever the axial force.
  EXPECT_EQ(k.alfa, 2);
  EXPECT_EQ(k.betaN, 2);
  // The strut of the hollow sections: no LT line, the moment terms with spaces.
  EXPECT_EQ(k.buckTextY.Formula, "IR = NEd/Nb,y,Rd  + kyy*My,Ed/(xLT*My,Rd) ");
  EXPECT_TRUE(k.buckTextLT.Formula.empty());
  EXPECT_GT(s.analysis.IRbuckling, 0);

  // In tension there is no buckling control.
  Fire(s, "Loading.inn(1)", "-100");
  EXPECT_TRUE(s.checks.buckTextY.Formula.empty());
  EXPECT_TRUE(s.checks.buckTextZ.Formula.empty());
  EXPECT_EQ(s.analysis.IRbuckling, 0);
}

// At single points of the same tube with N = 500 kN:
//   My 40, Mz 30: (40/60.80226)^2 + (30/60.80226)^2 = 0.6762395, the exponents printed as "0.0".
//   My 50 with Vz 300 > 262.84: rho = (600/525.6797 - 1)^2 = 0.01998813, MV = 71.57760,
//   MVN = MV (1 - n^1.7) = 71.57760 * 0.8324832 = 59.58694;
//   50/71.57760 = 0.6985426, 50/59.58694 = 0.8391101.
TEST(TubeSectionControl, BiaxialExponentsAndShearReduction) {
  State s = Member("mnup31", {{"p31.istd", "168.3"}, {"p31.isttw", "8"}}, "500", "16");
  SetPoints(s, 500, {{0.5f, 40, 30, 0, 0}});
  SectionControlTube(s);
  const Checks& k = s.checks;
  ExpectText(k.secText[2], "IR = (My,Ed/MN,y,Rd)^alfa  + (Mz,Ed/MN,z,Rd)^beta = ",
             "(40.0/60.8)^2.0+(30.0/60.8)^2.0 = ", "0.68", " < 1.0 (0.50L; Ch 6.2.9)");
  EXPECT_TRUE(Near(k.IRsec[2], 0.6762395, kRatio));

  SetPoints(s, 500, {{0.0f, 50, 0, 0, 300}});
  SectionControlTube(s);
  EXPECT_TRUE(Near(k.rhoZ, 0.01998813, kRatio));
  EXPECT_TRUE(Near(k.IRsec[1], 0.6985426, kRatio));
  EXPECT_EQ(k.secText[1].Formula, "IR = My,Ed/MV,y,Rd = ");
  EXPECT_TRUE(Near(k.IRsec[2], 0.8391101, kRatio));
  EXPECT_EQ(k.secText[2].Formula, "IR = My,Ed/MVN,y,Rd = ");
}

// n = 1: MN,y,Rd = 0, and the ratio fails by division.
TEST(TubeSectionControl, FullAxialForceFailsByDivision) {
  State s = Member("mnup31", {{"p31.istd", "168.3"}, {"p31.isttw", "8"}}, "500", "16");
  SetPoints(s, s.section.NtRd, {{0.5f, 10, 0, 0, 0}});
  EXPECT_THROW(SectionControlTube(s), CalcFault);
}

// Flat bar 150 x 12 in tension, N = -200 kN, q = 1 kN/m: Nt,Rd = 1800*355/1000 = 639 kN,
// Mpl = 67500*355/1e6 = 23.9625 kNm, Vz,Rd = (1/1.5) 1800 * 355/sqrt 3/1000 = 245.9512 kN.
//   q = 200/639 = 0.3129890; MN,y,Rd = 23.9625 (1 - q^2) = 21.61508; 3.125/21.61508 = 0.1445750
//   axial 0.3129890 governs group 1; shear 2.5/245.9512 = 0.01016462. No strut in tension.
TEST(FlatBarSectionControl, TensionTakesTheParabolaAgainstNtRd) {
  State s = Member("mnup28", {}, "-200", "1");
  const Checks& k = s.checks;
  ExpectText(k.secText[1], "IR = NEd/NRd = ", "-200.0/639.0 = ", "0.31", " < 1.0 (Ch 6.2.3)");
  EXPECT_TRUE(Near(k.IRsec[1], 0.3129890, kRatio));
  ExpectText(k.secText[2], "IR = My,Ed/MN,y,Rd = ", "3.1/21.6 = ", "0.14", " < 1.0 (0.50L; Ch 6.2.9)");
  EXPECT_TRUE(Near(k.IRsec[2], 0.1445750, kRatio));
  EXPECT_TRUE(Near(k.IRsec[3], 0.01016462, kRatio));
  EXPECT_TRUE(k.buckTextY.Formula.empty());
  EXPECT_TRUE(k.buckTextLT.Formula.empty());
  EXPECT_EQ(s.analysis.IRbuckling, 0);
}

// At a point with Vz = 200 > 122.98 kN: rho = (400/245.9512 - 1)^2 = 0.3923003;
//   MV,y,Rd = 23.9625 - 0.3923003*12*150^2/4/1e6*355 = 14.56200; 10/14.562 = 0.6867186.
// Mz and Vy do not enter a flat bar; the shear 200/245.9512 = 0.8131694.
TEST(FlatBarSectionControl, ShearReducesTheBarAndNothingActsAboutZ) {
  State s = Member("mnup28", {}, "-200", "1");
  SetPoints(s, 0, {{0.5f, 10, 5, 3, 200}});
  SectionControlFlat(s);
  const Checks& k = s.checks;
  EXPECT_TRUE(Near(k.IRsec[1], 0.6867186, kRatio));
  EXPECT_EQ(k.secText[1].Formula, "IR = My,Ed/MV,y,Rd = ");
  EXPECT_EQ(k.IRsec[2], 0);
  EXPECT_TRUE(k.secText[2].Formula.empty());
  EXPECT_TRUE(Near(k.IRsec[3], 0.8131694, kRatio));
  EXPECT_EQ(k.secText[3].Formula, "IR = Vz,Ed/Vz,Rd = ");
}

// T 200 x 200 x 10 x 10 (class 4, Aeff 3288.039, Nc,Rd 1167.254 kN) under N = 300 kN; curve c.
//   y: Ncr = pi^2 210000 15476090 / 5000^2 / 1000 = 1283.040 kN, lamda = 0.9538114,
//      chi = 0.5671711, Nb = 662.0327 kN: 300/662.0327 = 0.4531498
//   z: Ncr = pi^2 210000 6682500 / 5000^2 / 1000 = 554.0105 kN, lamda = 1.451522,
//      chi = 0.3307687, Nb = 386.0911 kN: 300/386.0911 = 0.7770186
//   axial 300/1167.254 = 0.2570135
TEST(TeeControls, StrutWithItsBucklingLines) {
  State s = Member("mnu26", {}, "300", "10");
  const Checks& k = s.checks;
  ExpectText(k.secText[1], "IR = NEd/NRd = ", "300.0/1167.3 = ", "0.26", " < 1.0 (Ch 6.2.4)");
  EXPECT_TRUE(Near(k.IRsec[1], 0.2570135, kRatio));
  EXPECT_TRUE(k.secText[2].Formula.empty());
  EXPECT_TRUE(k.secText[3].Formula.empty());
  EXPECT_TRUE(Near(s.analysis.IRsection, 0.2570135, kRatio));
  EXPECT_EQ(k.curveTextY, "c");
  EXPECT_EQ(k.curveTextZ, "c");
  ExpectText(k.buckTextY, "IR = NEd/Nb,y,Rd = ", "300.0/662.0 = ", "0.45", " < 1.0 (Ch 6.3.1)");
  ExpectText(k.buckTextZ, "IR = NEd/Nb,z,Rd = ", "300.0/386.1 = ", "0.78", " < 1.0 (Ch 6.3.1)");
  EXPECT_TRUE(Near(k.IRbuckY, 0.4531498, kRatio));
  EXPECT_TRUE(Near(k.IRbuckZ, 0.7770186, kRatio));
  EXPECT_TRUE(Near(s.analysis.IRbuckling, 0.7770186, kRatio));
  EXPECT_TRUE(k.buckTextLT.Formula.empty());
}

// The T is an axial member: its control empties the load table, the selfweight and the end
// moments, and puts the load level back to 1; the axial forces stay.
TEST(TeeControls, LoadTableIsEmptiedAtEveryRun) {
  State s = Member("mnu26", {}, "300", "10");
  s.project.SelfweightOn = 1;
  s.project.ltbLoadLevel = 3;
  s.loads.point[2].Value = 7;
  s.project.My12 = {0, 20, 30};
  Fire(s, "Loading.iq(1)", "10");
  EXPECT_EQ(s.loads.uniform[1].q, 0);
  EXPECT_EQ(s.loads.point[2].Value, 0);
  EXPECT_EQ(s.project.SelfweightOn, 0);
  EXPECT_EQ(s.project.ltbLoadLevel, 1);
  EXPECT_EQ(s.project.My12[1], 0);
  EXPECT_EQ(s.project.My12[2], 0);
  EXPECT_EQ(s.loads.axial[1].N, 300);
}

// General section, class 2 about y: the elastic modulus, My,Rd = 3951000*355/1e6 = 1402.605 kNm.
// The default member (NEd 135 kN, My 42.1875 kNm, Vz 33.75 kN): 42.1875/1402.605 = 0.03007796.
// There is no reduction for shear: with Vz = 1500 > 0.5*1652.792 the text stays plain and the
// resistance full: 100/1402.605 = 0.07129591; the shear 1500/1652.792 = 0.9075551.
// Biaxial without N, My 100, Mz 50 (class 1 about z, Mpl,z = 326.671 kNm), beta = 1:
// (100/1402.605)^2 + 50/326.671 = 0.1581423.
TEST(GeneralSectionControl, ClassTwoTakesTheElasticModulusAndNoShearReduction) {
  State s = StartedState();
  Fire(s, "mnup41");
  Fire(s, "p41.cboclassMy", "1");
  const Checks& k = s.checks;
  ExpectText(k.secText[1], "IR = My,Ed/My,Rd = ", "42.2/1402.6 = ", "0.03", " < 1.0 (0.50L; Ch 6.2.5)");
  EXPECT_TRUE(Near(k.IRsec[1], 0.03007796, kRatio));
  // The class 2 takes the plastic interaction, with the elastic resistance.
  EXPECT_EQ(k.secText[2].Formula, "IR = My,Ed/MN,y,Rd = ");
  EXPECT_TRUE(Near(k.IRsec[2], 0.03007796, kRatio));

  SetPoints(s, 0, {{0.5f, 100, 0, 0, 1500}});
  SectionControlGeneral(s);
  ExpectText(k.secText[1], "IR = My,Ed/My,Rd = ", "100.0/1402.6 = ", "0.07", " < 1.0 (0.50L; Ch 6.2.5)");
  EXPECT_TRUE(Near(k.IRsec[1], 0.07129591, kRatio));
  EXPECT_TRUE(Near(k.IRsec[3], 0.9075551, kRatio));

  SetPoints(s, 0, {{0.5f, 100, 50, 0, 0}});
  SectionControlGeneral(s);
  ExpectText(k.secText[2], "IR = [My,Ed/My,Rd]^alfa + [Mz,Ed/Mz,Rd]^beta = ",
             "[100.0/1402.6]^2.00+(50.0/326.7)^1.00 = ", "0.16", " < 1.0 (0.50L; Ch 6.2.5/6.2.9)");
  EXPECT_TRUE(Near(k.IRsec[2], 0.1581423, kRatio));
}

}  // namespace
}  // namespace vn::test
