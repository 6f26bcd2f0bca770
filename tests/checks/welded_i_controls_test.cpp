// The controls of the welded I girders: the double symmetric I goes through the I family's
// controls, the I with unequal flanges through the twins that keep the sign of My.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "checks/buckling_fixture.h"
#include "checks/control_framework.h"
#include "checks/control_routines.h"
#include "checks/section_control_fixture.h"
#include "core/format.h"
#include "core/pipeline.h"
#include "sections/section_fixture.h"

namespace vn::test {
namespace {

// I 600x200/400x9x20/20 in S235 with gammaM0 = gammaM1 = 1, eta = 1 (hand values in
// tests/sections/welded_i_test.cpp): positive My (upper flange compressed) is class 3 with
// My,Rd = Wel,yt fy = 678.261 kNm; negative My is class 2 with My,Rd = Wpl,y fy = 879.172 kNm.
// NtRd = 17040*235/1000 = 4004.4 kN. The web is stocky (62.2 < 72): VzRd = 683.814 kN.
State Girder() {
  State s = SectionState();
  s.project.ProfileType = 22;
  s.project.p22 = {600, 200, 400, 9, 20, 20};
  s.analysis.IRlimit = 1;
  ComputeSection(s);
  return s;
}

void ExpectText(const ControlText& t, const char* formula, const char* numbers, const char* ratio,
                const char* limit) {
  EXPECT_EQ(t.Formula, formula);
  EXPECT_EQ(t.Numbers, numbers);
  EXPECT_EQ(t.Ratio, ratio);
  EXPECT_EQ(t.Limit, limit);
}

// Equal sagging and hogging moments of 300 kNm: 300/678.261 = 0.442308 with the upper flange in
// compression, 300/879.172 = 0.341230 with the lower one. The worse names its point, in either
// order of the points.
TEST(SectionControlSingleSym, EqualMomentsOfBothSignsGiveTwoResistances) {
  for (const bool sagFirst : {true, false}) {
    State s = Girder();
    const float first = sagFirst ? 300.0f : -300.0f;
    SetPoints(s, 0, {{0.25f, first, 0, 0, 0}, {0.75f, -first, 0, 0, 0}});
    SectionControlSingleSym(s);
    const Checks& k = s.checks;
    EXPECT_TRUE(Near(k.IRsec[1], 0.442308, kHandCalc));
    ExpectText(k.secText[1], "IR = My,Ed/My,Rd = ", "300.0/678.3 = ", "0.44",
               sagFirst ? " < 1.0 (0.25L; Ch 6.2.5)" : " < 1.0 (0.75L; Ch 6.2.5)");
    EXPECT_TRUE(Near(s.analysis.IRsection, 0.442308, kHandCalc));
  }
}

TEST(SectionControlSingleSym, HoggingAloneTakesTheLowerFlangesResistance) {
  State s = Girder();
  SetPoints(s, 0, {{0.5f, -300, 0, 0, 0}});
  SectionControlSingleSym(s);
  EXPECT_TRUE(Near(s.checks.IRsec[1], 0.341230, kHandCalc));
  EXPECT_EQ(s.checks.secText[1].Numbers, "300.0/879.2 = ");
}

// N = 1200 kN with -300 kNm: class 2 for the pair, so MN,y,Rd of 6.2.9.1 with
// n = 1200/4004.4 = 0.299670 and the web share a = (17040 - (20*200 + 400 + 20))/17040 = 0.7406,
// held at 0.5: MN,y,Rd = 879.172*(1 - 0.299670)/0.75 = 820.947 kNm, ratio 0.365432. The product
// form of the lower flange would give a = 0.2958 and 722.569 kNm.
TEST(SectionControlSingleSym, AxialForceWithHoggingUsesTheFamilysWebShare) {
  State s = Girder();
  SetPoints(s, 1200, {{0.5f, -300, 0, 0, 0}});
  SectionControlSingleSym(s);
  const Checks& k = s.checks;
  EXPECT_TRUE(Near(k.MNyRd, 820.947, kHandCalc));
  EXPECT_TRUE(Near(k.IRsec[2], 0.365432, kHandCalc));
  ExpectText(k.secText[2], "IR = My,Ed/MN,y,Rd = ", "300.0/820.9 = ", "0.37", " < 1.0 (0.50L; Ch 6.2.9)");
}

// Shear above half VzRd reduces the plastic resistance of the hogging side with hw^2 tw/4:
// VzEd = 512.86 = 0.75 VzRd: rhoZ = (1.5 - 1)^2 = 0.25, R = 560^2*9*0.25/4*235/1e6 = 41.454 kNm,
// MV,y,Rd = 879.172 - 41.454 = 837.718 kNm; -300/837.718 = 0.358115.
TEST(SectionControlSingleSym, HighShearReducesTheResistanceOfTheSign) {
  State s = Girder();
  const float Vz = static_cast<float>(0.75 * s.section.VzRd);
  SetPoints(s, 0, {{0.0f, -300, 0, 0, Vz}});
  SectionControlSingleSym(s);
  EXPECT_TRUE(Near(s.checks.rhoZ, 0.25, kHandCalc));
  EXPECT_TRUE(Near(s.checks.IRsec[1], 0.358115, {1e-5, "shear set through a 32-bit float"}));
  EXPECT_EQ(s.checks.secText[1].Formula, "IR = My,Ed/MV,y,Rd = ");
}

// The dispatcher: the single symmetric I runs its own twin, the double symmetric I the I family's.
TEST(ControlFamilies, WeldedIRows) {
  const auto row = [](int type) -> const ControlFamilyRow* {
    for (const ControlFamilyRow& r : ControlFamilies())
      if (type >= r.firstType && type <= r.lastType) return &r;
    return nullptr;
  };
  ASSERT_NE(row(21), nullptr);
  EXPECT_EQ(row(21)->sectionControl, &SectionControlI);
  EXPECT_EQ(row(21)->bucklingControl, &BucklingControlI);
  ASSERT_NE(row(22), nullptr);
  EXPECT_EQ(row(22)->sectionControl, &SectionControlSingleSym);
  EXPECT_EQ(row(22)->bucklingControl, &BucklingControlSingleSym);
  EXPECT_EQ(row(22)->when, BucklingWhen::Always);
}

// ---- Buckling control through the forms, on the started program (S355) ----

// I 600x200/400x9x20/25 in S355: the wide lower flange c2/tf2 = 191.5/25 = 7.66 is within
// 10 epsilon = 8.14, so a hogging moment is resisted plastically, while the web under a sagging
// moment is class 3 and the section elastic.
State GirderMember(const char* q) {
  State s = StartedState();
  Do(s, "mnup22");
  Do(s, "p22.isth", "600");
  Do(s, "p22.istb1", "200");
  Do(s, "p22.istb2", "400");
  Do(s, "p22.isttw", "9");
  Do(s, "p22.isttf1", "20");
  Do(s, "p22.isttf2", "25");
  Do(s, "il", "6");
  Do(s, "CboLoadComb", "5");
  Do(s, "Loading.inn(1)", "0");
  Do(s, "Loading.iq(1)", q);
  return s;
}

// The lateral torsional line divides by the resistance of the flange that the moment compresses:
// a sagging load the upper flange's, a hogging one the lower flange's, and the two differ here.
TEST(BucklingControlSingleSym, LateralTorsionalLineTakesTheCompressedFlange) {
  for (const char* q : {"20", "-20"}) {
    State s = GirderMember(q);
    const Section& c = s.section;
    ASSERT_EQ(c.classMyPos, 3);
    ASSERT_EQ(c.classMyNeg, 2);
    const bool sagging = s.analysis.MyGov > 0;
    EXPECT_EQ(sagging, std::string(q) == "20");
    const double expected = sagging ? c.MyRdBuckPos : c.MyRdBuckNeg;
    EXPECT_EQ(s.checks.MyRdLT, expected) << q;
    const std::string& numbers = s.checks.buckTextLT.Numbers;
    EXPECT_NE(numbers.find("*" + FormatNumber(expected, "0.0") + ")"), std::string::npos) << numbers;
    EXPECT_EQ(s.checks.buckTextLT.Limit, " < 1.0 (Ch 6.3.2)");
  }
}

// With a restraint the part's label is closed by the family's extra bracket.
TEST(BucklingControlSingleSym, RestrainedPartCarriesTheExtraBracket) {
  State s = GirderMember("20");
  Do(s, "vipping.cbo", "1");
  EXPECT_EQ(s.checks.buckTextLT.Limit, " < 1.0 (1L/2 -  L);  (Ch 6.3.2))");
}

}  // namespace
}  // namespace vn::test
