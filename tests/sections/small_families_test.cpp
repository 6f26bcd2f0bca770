// Flat bar, T section, circular tube and general section from their typed values. Expected values by
// hand from the dimensions, and for the tube also the published EN 10210-2 row CHS 168.3 x 8.0
// (A 40.3 cm2, I 1297 cm4, Wel 154 cm3, Wpl 206 cm3, It 2595 cm4).
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "core/events.h"
#include "core/pipeline.h"
#include "core/state.h"
#include "sections/section_fixture.h"
#include "support/test_support.h"

namespace vn::test {
namespace {

inline constexpr Tolerance kHand6{1e-6, "hand calculation; stored as 32-bit floats"};
inline constexpr Tolerance kHand5{1e-5, "hand calculation to 6 digits"};

State Typed(int type, Integer grade = kS355) {
  State s = SectionState();
  s.project.ProfileType = static_cast<Integer>(type);
  s.project.steelGrade = grade;
  return s;
}

// CHS 168.3 x 8.0 in S355: di = 152.3
//   A = pi/4 (168.3^2 - 152.3^2) = 4028.778; I = pi/64 (168.3^4 - 152.3^4) = 12972712
//   Wel = I / 84.15 = 154161.76; Wpl = (168.3^3 - 152.3^3)/6 = 205739.39
//   It = ((160.3/2)^2 + 8^2/4) 160.3 pi 8 = 25945424 (twice I, as for any thin ring)
//   d/t = 21.04 <= 50 * 235/355 = 33.1: class 1; Nt,Rd = Nc,Rd = 1430.216 kN; Mpl = 73.03748 kNm
//   Av = 2 A / pi = 2564.8; Vc,Rd = 2564.8 * 355/sqrt 3 / 1000 = 525.6797 kN along both axes
TEST(TubeSection, PropertiesAndResistancesByHand) {
  State s = Typed(31);
  s.project.p31 = {168.3f, 8, 1};
  ComputeSection(s);
  const Section& c = s.section;
  EXPECT_TRUE(Near(c.A, 4028.778, kHand6));
  EXPECT_TRUE(Near(c.Iy, 12972712, kHand6));
  EXPECT_EQ(c.Iz, c.Iy);
  EXPECT_TRUE(Near(c.Wely, 154161.76, kHand6));
  EXPECT_TRUE(Near(c.Wply, 205739.39, kHand6));
  EXPECT_EQ(c.Wplz, c.Wply);
  EXPECT_TRUE(Near(c.Ix, 25945424, kHand6));
  EXPECT_EQ(c.Iw, 0);
  // The published row, to its three digits.
  EXPECT_TRUE(Near(c.A, 4030, kPublished3));
  EXPECT_TRUE(Near(c.Iy, 12.97e6, kPublished3));
  EXPECT_TRUE(Near(c.Wely, 154e3, kPublished3));
  EXPECT_TRUE(Near(c.Wply, 206e3, kPublished3));
  EXPECT_TRUE(Near(c.Ix, 25.95e6, kPublished3));

  EXPECT_EQ(c.classN, 1);
  EXPECT_EQ(c.classMy, 1);
  EXPECT_EQ(c.classMz, 1);
  EXPECT_TRUE(Near(c.NtRd, 1430.216, kHand6));
  EXPECT_EQ(c.NcRd, c.NtRd);
  EXPECT_TRUE(Near(c.MyRdClass, 73.03748, kHand6));
  EXPECT_TRUE(Near(c.MzRdClass, 73.03748, kHand6));
  EXPECT_TRUE(Near(c.Avz, 2564.8, kHand6));
  EXPECT_TRUE(Near(c.VzRd, 525.6797, kHand6));
  EXPECT_TRUE(Near(c.VbyRd, 525.6797, kHand6));
  EXPECT_EQ(c.ltbRelevant, 0);
  EXPECT_EQ(c.FigHeight, c.d);

  // Elastic design of class 1 and 2: Mel = 154161.76 * 355 / 1e6 = 54.72742 kNm.
  s.project.elasticClass12 = True;
  ComputeSection(s);
  EXPECT_TRUE(Near(s.section.MyRdClass, 54.72742, kHand6));
  EXPECT_TRUE(Near(s.section.MzRdClass, 54.72742, kHand6));
}

// S235, epsilon^2 = 1: the limits 50, 70 and 90 of d/t each keep the lower class.
TEST(TubeSection, ClassByDiameterOverWall) {
  struct Case {
    float d;
    double cls;
  };
  for (Case k :
       {Case{150, 1}, Case{150.3f, 2}, Case{210, 2}, Case{210.3f, 3}, Case{270, 3}, Case{270.3f, 4}}) {
    State s = Typed(31, kS235);
    s.project.p31 = {k.d, 3, 1};
    ComputeSection(s);
    EXPECT_EQ(s.section.classN, k.cls) << "d = " << k.d;
    EXPECT_EQ(s.section.classMy, k.cls) << "d = " << k.d;
    // Class 3 and 4 take the elastic modulus.
    const double W = k.cls <= 2 ? s.section.Wply : s.section.Wely;
    EXPECT_TRUE(Near(s.section.MyRdClass, W * 235 / 1e6, kHand6)) << "d = " << k.d;
  }
}

// The manufacture option sets the curve: hot finished a (S355), cold formed c.
TEST(TubeSection, HotFinishedOrColdFormedCurve) {
  State s = StartedState();
  Fire(s, "mnup31");
  Fire(s, "p31.optcold");
  EXPECT_EQ(s.project.p31.hotCold, 0);
  EXPECT_EQ(s.view.value["p31.tube"], 0);
  EXPECT_EQ(s.checks.curveTextY, "c");
  EXPECT_EQ(s.checks.curveTextZ, "c");
  Fire(s, "p31.opthot");
  EXPECT_EQ(s.project.p31.hotCold, 1);
  EXPECT_EQ(s.view.value["p31.tube"], 1);
  EXPECT_EQ(s.checks.curveTextY, "a");
}

// Flat bar 150 x 12 in S235:
//   A 1800; Iy = 150^3 12/12 = 3375000; Iz = 12^3 150/12 = 21600; It = 12^3 150/3 = 86400
//   Wel,y = 45000, Wel,z = 3600, Wpl,y = 67500, Wpl,z = 5400
//   Nt,Rd = 423 kN; Mpl,y = 15.8625 kNm; Vz,Rd = (1/1.5) 1800 * 235/sqrt 3 / 1000 = 162.8128 kN
// The surface is that of the welded I with the b and tf the last section left: after a flange
// of 300 x 20, (4*20 + 600 + 2*288 + 2*110) / 1000 = 1.476 m2/m.
TEST(FlatBarSection, PropertiesResistancesAndTheSurfaceOfTheLastFlange) {
  State s = Typed(28, kS235);
  s.project.p28 = {150, 12};
  s.section.b = 300;
  s.section.tf = 20;
  ComputeSection(s);
  const Section& c = s.section;
  EXPECT_EQ(c.A, 1800);
  EXPECT_EQ(c.Iy, 3375000);
  EXPECT_EQ(c.Iz, 21600);
  EXPECT_EQ(c.Ix, 86400);
  EXPECT_EQ(c.Wely, 45000);
  EXPECT_EQ(c.Welz, 3600);
  EXPECT_EQ(c.Wply, 67500);
  EXPECT_EQ(c.Wplz, 5400);
  EXPECT_EQ(c.Iw, 0);
  EXPECT_TRUE(Near(c.S, 1.476, kHand6));
  EXPECT_EQ(c.classN, 1);
  EXPECT_EQ(c.classMy, 1);
  EXPECT_EQ(c.classMz, 1);
  EXPECT_TRUE(Near(c.NtRd, 423, kHand6));
  EXPECT_EQ(c.NcRd, c.NtRd);
  EXPECT_TRUE(Near(c.MyRdClass, 15.8625, kHand6));
  EXPECT_TRUE(Near(c.VzRd, 162.8128, kHand6));
  EXPECT_EQ(c.OutlineCount, 5);
  EXPECT_EQ(c.Outline[3].x, 12);
  EXPECT_EQ(c.Outline[3].y, 150);
  // Chosen first, with nothing before it: b = tf = 0, (2*(-12) + 300) / 1000.
  State first = Typed(28, kS235);
  first.project.p28 = {150, 12};
  ComputeSection(first);
  EXPECT_TRUE(Near(first.section.S, 0.276, kHand6));
}

// T sections by hand, the flange on top:
//   100 x 100 x 10 x 10, S235: A 1900, centroid 28.68421 below the flange's face;
//   Iy = 615833.3 + 10847500 - 1900*71.31579^2 = 1800043.9; It = (100 + 90) 1000 / 3 = 63333.33;
//   Iz = 840833.3; Iw = (1e6 * 1e3 + 4 * 1e3 * 1e6) / 144 = 34722222; the plastic axis in the
//   flange at 9.5: Wpl = (9.5^2 + 0.5^2) 50 + (45 + 10 - 9.5) 900 = 45475; hw/tw = 9, c/tf = 4.5: class 1.
//   300 x 100 x 10 x 10: the plastic axis in the web at (1950 - 1000)/10 + 10 = 105:
//   Wpl = 95^2*5 + 100*1000 + 195^2*5 = 335250.
TEST(TeeSection, StockyTeeByHand) {
  State s = Typed(26, kS235);
  s.project.p26 = {100, 100, 10, 10};
  ComputeSection(s);
  const Section& c = s.section;
  EXPECT_EQ(c.A, 1900);
  EXPECT_TRUE(Near(c.ez, 28.68421, kHand6));
  EXPECT_TRUE(Near(c.Iy, 1800043.9, kHand6));
  EXPECT_TRUE(Near(c.Iz, 840833.3, kHand6));  // 10*100^3/12 + 90*10^3/12
  EXPECT_TRUE(Near(c.Ix, 63333.33, kHand6));
  EXPECT_TRUE(Near(c.Iw, 34722222, kHand6));
  EXPECT_EQ(c.Wply, 45475);
  EXPECT_TRUE(Near(c.Wyt, 1800043.9 / 28.68421, kHand6));
  EXPECT_TRUE(Near(c.Wyb, 1800043.9 / 71.31579, kHand6));
  EXPECT_EQ(c.hw, 90);
  EXPECT_EQ(c.c, 45);
  EXPECT_EQ(c.classN, 1);
  EXPECT_EQ(c.Aeff, c.A);
  EXPECT_TRUE(Near(c.NtRd, 446.5, kHand6));
  EXPECT_TRUE(Near(c.NcRd, 446.5, kHand6));
  EXPECT_EQ(c.OutlineRects, 2);
  EXPECT_EQ(c.ltbRelevant, 0);

  s.project.p26 = {300, 100, 10, 10};
  ComputeSection(s);
  EXPECT_EQ(s.section.Wply, 335250);
}

// 200 x 200 x 10 x 10 in S355, epsilon 0.8136165: web hw/tw = 19 > 15 epsilon: class 4;
//   lamdaP = 19 / (28.4 * 0.8136165 * sqrt 0.43) = 1.253953, rho = 0.6779154,
//   Aeff = 3900 - 190 * 0.3220846 * 10 = 3288.039; flange c/tf = 9.5 above 11 epsilon = 8.95,
//   not above 15 epsilon = 12.2: class 3, not reduced.
//   Nc,Rd = 3288.039 * 355 / 1000 = 1167.254 kN; Nt,Rd = fyd A = 1384.5 kN.
TEST(TeeSection, SlenderWebIsReduced) {
  State s = Typed(26);
  s.project.p26 = {200, 200, 10, 10};
  ComputeSection(s);
  const Section& c = s.section;
  EXPECT_EQ(c.classWeb, 4);
  EXPECT_EQ(c.classFlange, 3);
  EXPECT_EQ(c.classN, 4);
  EXPECT_TRUE(Near(c.Aeff, 3288.039, kHand6));
  EXPECT_TRUE(Near(c.NcRd, 1167.254, kHand6));
  EXPECT_TRUE(Near(c.NtRd, 1384.5, kHand6));
  EXPECT_EQ(c.NRdBuck, c.NcRd);
  // Without web buckling the web keeps its area.
  s.project.noWebBuckling = True;
  ComputeSection(s);
  EXPECT_EQ(s.section.Aeff, 3900);
}

// The general section's defaults in S355: Wel,y 3951000, Wpl,y 4421000, Wel,z 600500,
// Wpl,z 920200 mm3, A 18720, Az 6720, Ay 12000 mm2, eta 1.2.
//   Plastic only for class 1: My,Rd = 4421000*355/1e6 = 1569.455; class 2 and 4 elastic:
//   3951000*355/1e6 = 1402.605 kNm. Nt,Rd = Nc,Rd = 6645.6 kN;
//   Vz,Rd = 6720*1.2*355/sqrt 3/1000 = 1652.792 kN; Vy,Rd = 12000*355/sqrt 3/1000 = 2459.512 kN.
TEST(GeneralSection, TypedClassesChooseTheModulus) {
  State s = StartedState();
  Fire(s, "mnup41");
  const Section& c = s.section;
  EXPECT_EQ(s.project.figureNotToScale, 1);
  EXPECT_EQ(s.view.text["p41.oname"], "General");
  EXPECT_EQ(c.tmax, 40);
  EXPECT_TRUE(Near(c.NtRd, 6645.6, kHand6));
  EXPECT_EQ(c.NcRd, c.NtRd);
  EXPECT_TRUE(Near(c.VzRd, 1652.792, kHand6));
  EXPECT_TRUE(Near(c.VyRd, 2459.512, kHand6));
  EXPECT_EQ(c.h, 1000);
  EXPECT_EQ(c.b, 300);
  EXPECT_EQ(s.section.ltbRelevant, -1);
  struct Case {
    int item;
    double MyRd;
  };
  for (Case k : {Case{0, 1569.455}, Case{1, 1402.605}, Case{2, 1402.605}, Case{3, 1402.605}}) {
    Fire(s, "p41.cboclassMy", std::to_string(k.item));
    EXPECT_EQ(s.section.classMy, k.item + 1);
    EXPECT_TRUE(Near(s.section.MyRdClass, k.MyRd, kHand6)) << "item " << k.item;
  }
  // The list knows four classes only.
  EXPECT_TRUE(Fire(s, "p41.cboclassMy", "4").refused);
  // The name is the label of the dialog.
  Fire(s, "p41.istname", "Column C3");
  EXPECT_EQ(s.view.text["p41.oname"], "Column C3");
}

// The dialogs show the rows that apply to the family: the tube its diameter and wall and both
// axes, the T no moment or shear resistance, the general section no dimensions.
TEST(SmallFamilyDialogs, RowsThatApply) {
  auto labels = [](State& s) {
    std::vector<std::string> out;
    for (const auto& v : s.view.sectionValues) out.push_back(v.label);
    return out;
  };
  auto has = [](const std::vector<std::string>& l, const char* label) {
    return std::find(l.begin(), l.end(), label) != l.end();
  };
  State s = StartedState();
  Fire(s, "mnup31");
  std::vector<std::string> l = labels(s);
  ASSERT_GE(l.size(), 2u);
  EXPECT_EQ(l[0], "d =");
  EXPECT_EQ(l[1], "t =");
  EXPECT_TRUE(has(l, "Mz,Rd ="));
  EXPECT_FALSE(has(l, "Iw ="));
  Fire(s, "mnu26");
  l = labels(s);
  EXPECT_EQ(l[0], "h =");
  EXPECT_TRUE(has(l, "Aeff ="));
  EXPECT_TRUE(has(l, "Nc,Rd ="));
  EXPECT_FALSE(has(l, "My,Rd ="));
  Fire(s, "mnup28");
  l = labels(s);
  EXPECT_EQ(l[1], "t =");
  EXPECT_TRUE(has(l, "Vc,z,Rd ="));
  EXPECT_FALSE(has(l, "Vc,y,Rd ="));
  Fire(s, "mnup41");
  l = labels(s);
  EXPECT_EQ(l[0], "g =");
  EXPECT_FALSE(has(l, "h ="));
}

}  // namespace
}  // namespace vn::test
