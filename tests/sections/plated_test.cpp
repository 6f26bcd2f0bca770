// The girders loaded in their web plane: HSQ (24, 25), the box with unequal flanges (27) and the
// plate with a flat bar (51). Expected values are hand calculations from the plate dimensions, S235
// (epsilon = 1) unless told, gammaM0 = gammaM1 = 1, eta = 1.
#include <gtest/gtest.h>

#include "core/events.h"
#include "core/pipeline.h"
#include "sections/hsq.h"
#include "sections/plates.h"
#include "sections/section_fixture.h"

namespace vn::test {
namespace {

// A chain of single-precision steps (the stepped plastic axis, a reduction factor) lies between
// the plates and these values.
constexpr Tolerance kChain{1e-5, "hand calculation through several single-precision steps"};

State Hsq(float h, float b1, float b2, float tw, float tf1, float tf2, Integer classOption = 1) {
  State s = SectionState();
  s.project.ProfileType = 24;
  s.project.p24 = {h, b1, b2, tw, tf1, tf2, 0, 50, classOption};
  s.project.hsqKind = 1;  // no flange load unless a test asks for it
  ComputeSection(s);
  return s;
}

// ---- HSQ symmetric (24) ----

// HSQ 300x200/401x10x20/10: the two webs as one 20 x 270 rectangle.
//   A = 200*20 + 20*270 + 401*10 = 13410 mm2
//   ezb = (4000*290 + 5400*145 + 4010*5)/13410 = 146.3870 mm
//   Iy = 200*20^3/12 + 20*270^3/12 + 401*10^3/12 + 4000*143.613^2 + 5400*1.387^2 + 4010*141.387^2
//      = 195 641 951 mm4
//   Wel,yt = Iy/(300 - ezb) = 1 273 603; Wel,yb = Iy/ezb = 1 336 471
//   Half the area, 6705, lies below 10 + (6705 - 4010)/20 = 144.75: the 0.1 mm steps stop at 144.8.
//   Wpl,y = 139.8*4010 + (134.8^2 + 135.2^2)*20/2 + 145.2*4000 = 1 505 898.8 mm3
//   hw = h - tf2 - tw = 280 (the family's rule), r = 4, d = 276; S = 2(401 + 300)/1000 = 1.402
TEST(HsqProperties, RectangleSumsAndSteppedPlasticAxis) {
  const State s = Hsq(300, 200, 401, 10, 20, 10);
  const Section& c = s.section;
  EXPECT_TRUE(Near(c.A, 13410, kHand));
  EXPECT_TRUE(Near(c.ez, 146.38702, kHand));
  EXPECT_TRUE(Near(c.Iy, 195641951.3, kHand));
  EXPECT_TRUE(Near(c.Wyt, 1273603.03, kHand));
  EXPECT_TRUE(Near(c.Wyb, 1336470.58, kHand));
  EXPECT_EQ(c.Wely, c.Wyt);
  EXPECT_TRUE(Near(c.zpl, 144.8, kChain));
  EXPECT_TRUE(Near(c.Wply, 1505898.8, kHand));
  EXPECT_EQ(c.WplyTop, c.Wply);
  EXPECT_EQ(c.WplyBot, c.Wply);
  EXPECT_TRUE(Near(c.hw, 280, kHand));
  EXPECT_TRUE(Near(c.d, 276, kHand));
  EXPECT_TRUE(Near(c.c1, 200, kHand));
  EXPECT_TRUE(Near(c.c2, (401 - 200 - 20) / 2.0 - 4, kHand));
  EXPECT_TRUE(Near(c.S, 1.402, kHand));
  EXPECT_EQ(c.tmax, 20);
  // A stocky web (hw/tw = 28) in both signs: d/tw = 27.6 against 36/alfa = 74.6 (alfa = 0.483);
  // the plates 200/20 and 200/10 are class 1: the plastic resistance 1 505 898.8 * 235 = 353.886.
  EXPECT_EQ(c.classMyPos, 1);
  EXPECT_EQ(c.classMyNeg, 1);
  EXPECT_TRUE(Near(c.MyRdPos, 353.886218, kHand));
  EXPECT_TRUE(Near(c.MyRdNeg, 353.886218, kHand));
  // Two webs in shear: 2*280*10*235/sqrt(3)/1000.
  EXPECT_TRUE(Near(c.VzRd, 759.7930, kHand));
}

// HSQ 700x300/600x7x20/15: hw = 678, d = 674, d/tw = 96.29.
//   A = 24310, ezb = 306.159, Iy = 2.046151e9, Wel,yt = 5 195 374, zpl: 240.357 -> 240.4,
//   Wpl,y = 6 502 073.2.
// Top plate compressed: alfa = (700 - 240.4 - 20)/678 = 0.6484, class 2 ends at 456/(13 alfa - 1)
// = 61.38, class 3 at 42/(0.67 + 0.33 psi) = 101.70 with psi = -0.7788: web 3, plate 300/20 = 15
// class 1. Upgraded (6.2.2.4): s = 140, Ac = 6000 + 3920, x = (9920 - 9000)/2/7 = 65.714,
// e = 678 - 65.714 - 280 = 332.286, Wpl = 6 502 073.2 - 14*332.286*(166.143 + 140)
// = 5 077 896.7: My,Rd = 1193.306 kNm. Without the upgrade: class 3, Wel,y*235 = 1220.913 kNm.
// Bottom plate compressed: alfa = 0.3324, 36/alfa = 108.3: class 1, 6 502 073.2*235 = 1527.987.
TEST(HsqClasses, ClassThreeWebUpgradedOnlyWhenTheOptionSaysYes) {
  State up = Hsq(700, 300, 600, 7, 20, 15, 0);
  up.project.noWebBuckling = -1;
  ComputeSection(up);
  EXPECT_EQ(up.section.classMyPos, 23);
  EXPECT_EQ(up.section.classWeb, 1);  // the last classification was the negative sign
  EXPECT_EQ(up.section.classMyNeg, 1);
  EXPECT_TRUE(Near(up.section.WplyBot, 5077896.7, kHand));
  EXPECT_TRUE(Near(up.section.MyRdPos, 1193.3057, kHand));
  EXPECT_TRUE(Near(up.section.MyRdNeg, 1527.9872, kHand));
  EXPECT_EQ(up.project.noWebBuckling, 0);  // an upgrade switches the setting off

  const State no = Hsq(700, 300, 600, 7, 20, 15, 1);
  EXPECT_EQ(no.section.classMyPos, 3);
  EXPECT_TRUE(Near(no.section.MyRdPos, 1220.9129, kHand));
  EXPECT_TRUE(Near(no.section.MyRdNeg, 1527.9872, kHand));
}

TEST(HsqClasses, ClassHsqYTakesTheSignOfTheMoment) {
  State s = Hsq(700, 300, 600, 7, 20, 15, 0);
  EXPECT_EQ(ClassHsqY(s, 10), 23);
  EXPECT_EQ(s.section.classWeb, 3);
  EXPECT_EQ(s.section.classFlange, 1);
  EXPECT_EQ(ClassHsqY(s, -10), 1);
  // The same web without the upgrade: the box's classification.
  EXPECT_EQ(ClassBoxY(s, 10), 3);
}

// The load of the slabs on one projection: with fyk = 288 (the typed grade) and tf2 = 10 the plate's
// capacity across is p = 1.75*288*10^2/6 = 8400; the load term of 70 % of q = 40 kN/m at the lever
// of 60 mm is f = 60*40*70/100 = 1680 = 0.2 p exactly: no reduction. At q = 40.01, f = 1680.42,
// f/p = 0.20005: (sqrt(0.79995) + 1.1)/2 = 0.997200 on Wpl,y fy = 1 505 898.8*288 = 433.6989 kNm.
// f above p: the box, and the flange load is switched off for good.
TEST(HsqClasses, FlangeLoadFactorFromTheLoadOnOneProjection) {
  struct Case {
    double q;
    double factor;
    double MyRd;
    Integer hsqKindAfter;
    const char* message;
  };
  const Case cases[] = {
      {40.0, 1.0, 433.698854, 0, ""},
      {40.01, 0.99719962, 432.484333, 0, ""},
      {-40.01, 0.99719962, 432.484333, 0, ""},  // the magnitude of the load counts
      // f = p exactly still reduces, to (0 + 1.1)/2.
      {200.0, 0.55, 238.534370, 0, ""},
      {250.0, 1.0, 433.698854, 1, " Flange overloaded! Program removes flangeloading "},
  };
  for (const Case& k : cases) {
    State s = SectionState();
    s.project.ProfileType = 24;
    s.project.p24 = {300, 200, 401, 10, 20, 10, 0, 70, 1};
    s.project.steelGrade = 3;  // beyond the table: the typed fyk stands
    s.project.fyk = 288;
    s.project.hsqKind = 0;
    s.analysis.qTotal = k.q;
    ComputeSection(s);
    HsqFlangeLoad(s);
    const Section& c = s.section;
    EXPECT_TRUE(Near(c.FlangeLoadFactor, k.factor, kHand)) << k.q;
    EXPECT_TRUE(Near(c.MyRdPos, k.MyRd, kHand)) << k.q;
    EXPECT_TRUE(Near(c.MyRdNeg, k.MyRd, kHand)) << k.q;
    EXPECT_EQ(s.project.hsqKind, k.hsqKindAfter) << k.q;
    EXPECT_EQ(s.view.runMessage, k.message) << k.q;
  }
}

// Type 25 takes the whole load term, 60 q, with no share: q = 28 gives f = 1680 = 0.2 p.
TEST(HsqClasses, UnsymmetricHsqTakesTheWholeLoad) {
  State s = SectionState();
  s.project.ProfileType = 25;
  s.project.p25 = {300, 200, 401, 10, 20, 10, 50, 1};
  s.project.steelGrade = 3;
  s.project.fyk = 288;
  s.analysis.qTotal = 28;
  ComputeSection(s);
  HsqFlangeLoad(s);
  EXPECT_EQ(s.section.FlangeLoadFactor, 1);
  s.analysis.qTotal = 28.01;
  HsqFlangeLoad(s);
  EXPECT_LT(s.section.FlangeLoadFactor, 0.998);
  // The properties about y are those of the symmetric twin; the wider projection is 401-200-50-20.
  EXPECT_TRUE(Near(s.section.Iy, 195641951.3, kHand));
  EXPECT_TRUE(Near(s.section.hweb, 131, kHand));
}

// ---- Box with unequal flanges (27), here with equal ones ----

// Box 400x300/300x10x20/20, overhang 20: A = 2*6000 + 20*360 = 19200, ezb = 200,
// Iy = 2*(300*20^3/12 + 6000*190^2) + 20*360^3/12 = 511 360 000, Wel,yt = Wel,yb = 2 556 800,
// Wpl,y = 2*6000*190 + 2*20*180^2/2 = 2 928 000 (the stepped axis at 200 or 200.1 changes it by
// less than a unit). c1 = 300 - 2*(10 + 20) = 240, 240/20 = 12: class 1 both ways.
TEST(UnequalBox, EqualFlangesGiveEqualModuliAndResistances) {
  State s = SectionState();
  s.project.ProfileType = 27;
  s.project.p27 = {400, 300, 300, 10, 20, 20, 20};
  ComputeSection(s);
  const Section& c = s.section;
  EXPECT_TRUE(Near(c.A, 19200, kHand));
  EXPECT_TRUE(Near(c.ez, 200, kHand));
  EXPECT_TRUE(Near(c.Iy, 511360000, kHand));
  EXPECT_TRUE(Near(c.Wyt, 2556800, kHand));
  EXPECT_TRUE(Near(c.Wyb, 2556800, kHand));
  EXPECT_TRUE(Near(c.Wply, 2928000, kHand));
  EXPECT_TRUE(Near(c.c1, 240, kHand));
  EXPECT_TRUE(Near(c.hw, 360, kHand));
  EXPECT_EQ(c.classMyPos, 1);
  EXPECT_EQ(c.classMyNeg, 1);
  EXPECT_EQ(c.MyRdPos, c.MyRdNeg);
  EXPECT_TRUE(Near(c.MyRdPos, 688.08, kHand));
  EXPECT_TRUE(Near(c.WeffyTop, c.WeffyBot2, kHand));
  EXPECT_TRUE(Near(c.WeffyBot, c.WeffyTop2, kHand));
  EXPECT_EQ(c.ltbRelevant, 0);
}

// ---- Plate with a flat bar (51) ----

// Plate 240x12 on a flat bar 200x10: A = 2880 + 2000 = 4880; from the lower edge the centroid is
// (2880*206 + 2000*100)/4880 = 162.557, so ez = 212 - 162.557 = 49.443 from the plate's face.
//   Iy = 240*12^3/12 + 10*200^3/12 + 2880*43.443^2 + 2000*62.557^2 = 19 963 391 mm4
//   Wel,yt = Iy/49.443 = 403 769; Wel,yb = Iy/162.557 = 122 808
//   A/2 = 2440 < 2880: the plastic axis lies in the plate at 2440/240 = 10.1667 from its face,
//   Wpl,y = (10.1667^2 + 1.8333^2)*240/2 + (100 + 12 - 10.1667)*2000 = 216 473.3
// Plate compressed: c1/tf1 = 115/12 = 9.58, class 2; the web lies in tension: My,Rd = Wpl fy =
// 50.8712. Flat bar's edge compressed: psi = -162.557/37.443 = -4.3415, 23 sqrt(0.57 + 0.9117
// + 1.3194) = 38.49 > 20: class 3, My,Rd = Wel,yb fy = 28.8599. Shear: 200*10*235/sqrt(3) = 271.355.
TEST(PlateFlat, PropertiesClassesAndResistancesByHand) {
  State s = SectionState();
  s.project.ProfileType = 51;
  s.project.p51 = {200, 240, 10, 12};
  ComputeSection(s);
  const Section& c = s.section;
  EXPECT_TRUE(Near(c.A, 4880, kHand));
  EXPECT_TRUE(Near(c.h, 212, kHand));
  EXPECT_TRUE(Near(c.ez, 49.442623, kHand));
  EXPECT_TRUE(Near(c.Iy, 19963390.6, kHand));
  EXPECT_TRUE(Near(c.Wyt, 403768.84, kHand));
  EXPECT_TRUE(Near(c.Wyb, 122808.27, kHand));
  EXPECT_EQ(c.Wely, c.Wyb);
  EXPECT_TRUE(Near(c.zpl, 10.166667, kHand));
  EXPECT_TRUE(Near(c.Wply, 216473.33, kHand));
  EXPECT_EQ(c.r, 0);
  EXPECT_TRUE(Near(c.c1, 115, kHand));
  EXPECT_TRUE(Near(c.S, 0.88, kHand));
  EXPECT_EQ(c.classMyPos, 2);
  EXPECT_EQ(c.classMyNeg, 3);
  EXPECT_TRUE(Near(c.MyRdPos, 50.871233, kHand));
  EXPECT_TRUE(Near(c.MyRdNeg, 28.859944, kHand));
  EXPECT_TRUE(Near(c.VzRd, 271.354627, kHand));
  EXPECT_TRUE(Near(s.checks.MyRdBuckPos, 50.871233, kHand));
  EXPECT_TRUE(Near(s.checks.MyRdBuckNeg, 28.859944, kHand));
  EXPECT_EQ(c.ltbRelevant, -1);
  EXPECT_EQ(c.OutlineRects, 2);
}

// Plate compressed: c1/tf1 = 9.58 gives lamdaP = 9.58/(28.4 sqrt(0.43)) = 0.515, unreduced, and
// the web in tension: the elastic moduli. The bar's edge compressed: bc = 162.557,
// psi = -(200 - 162.557)/162.557 = -0.23035, k = 0.57 - 0.21 psi + 0.07 psi^2 = 0.62208,
// lamdaP = 20/(28.4*0.78872) = 0.89287, rho = (0.89287 - 0.188)/0.89287^2 = 0.88417: a strip of
// 10 x 18.830 at the edge is lost. The rest: 4691.70 mm2 with its centroid 168.7036 above the
// edge, I = 19 963 391 + 4880*6.1463^2 - (10*18.830^3/12 + 188.30*159.289^2) = 15 364 507,
// Weff,yb = I/168.7036 = 91 073.95, Weff,yt = I/43.2964 = 354 868.3.
TEST(PlateFlat, EffectiveModuliOfEachSide) {
  State s = SectionState();
  s.project.ProfileType = 51;
  s.project.p51 = {200, 240, 10, 12};
  ComputeSection(s);
  const Section& c = s.section;
  EXPECT_TRUE(Near(c.WeffyTop, 403768.84, kHand));
  EXPECT_TRUE(Near(c.WeffyBot, 122808.27, kHand));
  EXPECT_TRUE(Near(c.WeffyTop2, 354868.35, kChain));
  EXPECT_TRUE(Near(c.WeffyBot2, 91073.953, kChain));
}

// Plate 300x20 with a T 580 x 300 x 12 x 20 (the defaults of the dialog): a double symmetric I
// 600 deep. A = 6000 + 560*12 + 6000 = 18720; Iy = 2 (300*20^3/12 + 6000*290^2) + 12*560^3/12
// = 1.185216e9; Wpl,y = 2*6000*290 + 2*12*280*140 = 4 420 800; c1/tf1 = 144/20 = 7.2 < 9 epsilon
// = 7.32 and d/tw = 46.7 < 72 epsilon: class 1 both ways; My,Rd = 4420800*355/1e6 = 1569.384 kNm;
// Vz,Rd = 1.2*560*12*355/sqrt 3/1000 = 1652.792 kN.
TEST(PlateTee, DefaultGirderByHand) {
  State s = StartedState();
  Fire(s, "mnuplateTg");
  const Section& c = s.section;
  EXPECT_TRUE(Near(c.A, 18720, kHand));
  EXPECT_TRUE(Near(c.Iy, 1.185216e9, kHand));
  EXPECT_TRUE(Near(c.Wply, 4420800, kHand));
  EXPECT_EQ(c.classMyPos, 1);
  EXPECT_EQ(c.classMyNeg, 1);
  EXPECT_TRUE(Near(c.MyRdPos, 1569.384, kHand));
  EXPECT_TRUE(Near(c.VzRd, 1652.792, kHand));
}

// Plate 600x10 with the bulb flat HP 100x7 (h 100, tw 7, c 15, r 5, A 868.1) as an equivalent T:
//   b2 = c + tw - 0.45 r = 19.75; tf2 = (868.1 - 700)/(19.75 - 7) = 13.184314
//   A = 868.1 + 6000 = 6868.1; from the lower edge ezb = 96.985795, so ez = 110 - ezb = 13.014205
//   Iy = 3 940 045 mm4; Wel,yt = Iy/13.014205 = 302 750, Wel,yb = Iy/96.985795 = 40 625
//   A/2 = 3434.05 < 6000 of the plate: zpl = 3434.05/600 = 5.723417 in the plate, Wpl,y = 69 728.4
TEST(PlateBulb, EquivalentTeeByHand) {
  State s = StartedState();
  Fire(s, "mnuplateBf");
  ASSERT_EQ(s.project.SelectedRow[catHp], 5);  // HP 100x7
  const Section& c = s.section;
  EXPECT_TRUE(Near(c.b2, 19.75, kHand));
  EXPECT_TRUE(Near(c.tf2, 13.184314, kHand));
  EXPECT_TRUE(Near(c.A, 6868.1, kHand));
  EXPECT_TRUE(Near(c.ez, 13.014205, {1e-5, "hand calculation to 7 digits"}));
  EXPECT_TRUE(Near(c.Iy, 3940045, {1e-5, "hand calculation to 7 digits"}));
  EXPECT_TRUE(Near(c.Wyt, 302750, {1e-5, "hand calculation to 6 digits"}));
  EXPECT_TRUE(Near(c.Wyb, 40625, {1e-5, "hand calculation to 5 digits"}));
  EXPECT_TRUE(Near(c.zpl, 5.723417, kHand));
  EXPECT_TRUE(Near(c.Wply, 69728.4, {1e-5, "hand calculation to 6 digits"}));
}

// Plate 600x10 with a welded L 300 x 100 x 11.5 x 16 (the defaults of the dialog):
//   A = 1600 + 284*11.5 + 6000 = 10866; ezb = 217.08338 from the lower edge, ez = 92.916621
//   Iy = 1.4975848e8; Wel,yt = 1 611 751, Wel,yb = 689 866
//   zpl = 5433/600 = 9.055 in the plate; Wpl,y = 960 436.2; hogging (the stiffener compressed):
//   c1/tf1 of the plate does not count, class 1: My,Rd = 960436.2*355/1e6 = 340.9548 kNm.
TEST(PlateWeldedAngle, DefaultStiffenerByHand) {
  State s = StartedState();
  Fire(s, "mnuplateLweld");
  const Section& c = s.section;
  EXPECT_TRUE(Near(c.A, 10866, kHand));
  EXPECT_TRUE(Near(c.ez, 92.916621, kHand));
  EXPECT_TRUE(Near(c.Iy, 1.4975848e8, kHand));
  EXPECT_TRUE(Near(c.Wyt, 1611751, kHand));
  EXPECT_TRUE(Near(c.Wyb, 689866.2, kHand));
  EXPECT_TRUE(Near(c.zpl, 9.055, kHand));
  EXPECT_TRUE(Near(c.Wply, 960436.2, kHand));
  EXPECT_EQ(c.classMyNeg, 1);
  EXPECT_TRUE(Near(c.MyRdNeg, 340.9548, kHand));
}

// Every plate family gives a section from its defaults of the dialogs.
TEST(PlateFamilies, MenuEntriesGiveCompleteSections) {
  for (const char* menu : {"mnup24", "mnup25", "mnup27", "mnuplateFb", "mnuplateLr", "mnuplateLweld",
                           "mnuplateBf", "mnuplateTg"}) {
    State s = StartedState();
    Fire(s, menu);
    EXPECT_EQ(s.project.calcError, 0) << menu;
    EXPECT_GT(s.section.Iy, 0) << menu;
    EXPECT_GT(s.section.MyRdPos, 0) << menu;
    EXPECT_GT(s.section.MyRdNeg, 0) << menu;
    EXPECT_GT(s.section.VzRd, 0) << menu;
    EXPECT_FALSE(s.view.sectionValues.empty()) << menu;
  }
}

}  // namespace
}  // namespace vn::test
