// Welded I girders with typed dimensions: the double symmetric I (21) and the I with unequal
// flanges (22). Expected values are hand calculations from the plate dimensions, S235
// (epsilon = 1), gammaM0 = gammaM1 = 1, eta = 1.
#include <gtest/gtest.h>

#include <string>

#include "core/events.h"
#include "core/pipeline.h"
#include "sections/section_fixture.h"
#include "sections/welded_i.h"

namespace vn::test {
namespace {

// A chain of single-precision steps (slenderness, reduction factor, stepped plastic axis) lies
// between the plates and these values.
constexpr Tolerance kChain{1e-5, "hand calculation through several single-precision steps"};

State WeldedI(float h, float b, float tw, float tf) {
  State s = SectionState();
  s.project.ProfileType = 21;
  s.project.p21 = {h, b, tw, tf};
  ComputeSection(s);
  return s;
}

State SingleSym(float h, float b1, float b2, float tw, float tf1, float tf2) {
  State s = SectionState();
  s.project.ProfileType = 22;
  s.project.p22 = {h, b1, b2, tw, tf1, tf2};
  ComputeSection(s);
  return s;
}

// ---- Double symmetric (21) ----

// I 500x250x8x16: hw = 468, weld r = max(0.4*8, 4) = 4.
//   A = 2*250*16 + 468*8 = 11744 mm2
//   Iy = 2*250*16^3/12 + 8*468^3/12 + 2*4000*242^2 = 537 018 154.7 mm4
//   Iz = 2*16*250^3/12 + 468*8^3/12 = 41 686 634.7 mm4
//   Wel,y = Iy/250 = 2 148 072.6; Wel,z = Iz/125 = 333 493.1
//   Wpl,y = 484*16*250 + 468^2*8/4 = 2 374 048; Wpl,z = 125^2*4*16/2 + 4^2*2*468/2 = 507 488
//   It = 2*250*16^3/3 + 468*8^3/3 = 762 538.7 mm4; Iw = 250^3*16/24*484^2 = 2.440167e12 mm6
//   d = 500 - 2*(4 + 16) = 460, c = (250 - 8 - 8)/2 = 117
//   S = (64 + 500 + 484 + 936)/1000 = 1.984; g = 7850*11744e-6 = 92.1904
TEST(WeldedIDouble, PropertiesFromThePlates) {
  const State s = WeldedI(500, 250, 8, 16);
  const Section& c = s.section;
  EXPECT_TRUE(Near(c.A, 11744, kHand));
  EXPECT_TRUE(Near(c.Iy, 537018154.7, kHand));
  EXPECT_TRUE(Near(c.Iz, 41686634.7, kHand));
  EXPECT_TRUE(Near(c.Wely, 2148072.6, kHand));
  EXPECT_TRUE(Near(c.Welz, 333493.1, kHand));
  EXPECT_TRUE(Near(c.Wply, 2374048, kHand));
  EXPECT_TRUE(Near(c.Wplz, 507488, kHand));
  EXPECT_TRUE(Near(c.Ix, 762538.7, kHand));
  EXPECT_TRUE(Near(c.Iw, 2.4401667e12, kHand));
  EXPECT_TRUE(Near(c.S, 1.984, kHand));
  EXPECT_TRUE(Near(c.g, 92.1904, kHand));
  EXPECT_EQ(c.r, 4.0f);
  EXPECT_EQ(c.hw, 468.0f);
  EXPECT_EQ(c.d, 460.0f);
  EXPECT_EQ(c.c, 117.0f);
  EXPECT_EQ(c.tmax, 16.0f);
  EXPECT_EQ(c.ez, 250.0f);
  EXPECT_EQ(c.eyc, 125.0f);
  EXPECT_EQ(c.IzDefl, c.Iz);
  EXPECT_EQ(s.view.text.at("p21.oname"), "I 500x250x8x16");
  EXPECT_EQ(c.OutlineCount, 21);
  EXPECT_EQ(c.FigCentroidZ, 250.0f);
}

// The same girder: c/tf = 7.3 is class 1; d/tw = 57.5 is class 4 in compression (>= 42) and class
// 1 in bending (< 72). The web in compression: lamdaP = 57.5/(28.4*2) = 1.012324,
// rho = (1.012324 - 0.22)/1.012324^2 = 0.773150, Aeff = 11744 - 0.226850*460*8 = 10909.19.
// NcRd = 10909.19*235/1000 = 2563.660 kN; My,Rd = Wpl,y fy = 557.901 kNm.
// Shear: hw/tw = 58.5 < 72: Avz = eta hw tw = 3744, VzRd = 3744*235/sqrt 3/1000 = 507.976 kN.
TEST(WeldedIDouble, SlenderWebInCompressionOnly) {
  const State s = WeldedI(500, 250, 8, 16);
  const Section& c = s.section;
  EXPECT_EQ(c.classN, 4);
  EXPECT_EQ(c.classMy, 1);
  EXPECT_EQ(c.classMz, 1);
  EXPECT_TRUE(Near(c.Aeff, 10909.19, kChain));
  EXPECT_TRUE(Near(c.NcRd, 2563.660, kChain));
  EXPECT_TRUE(Near(c.MyRdClass, 557.901, kHand));
  EXPECT_TRUE(Near(c.Avz, 3744, kHand));
  EXPECT_TRUE(Near(c.VzRd, 507.976, kHand));
}

// I 1000x300x6x20: d = 952, d/tw = 158.7 > 124: class 4 in bending; c/tf = 143/20 = 7.15: class 1.
//   A = 12000 + 960*6 = 17760; Iy = 3 323 968 000; Wel,y = 6 647 936
//   Compression: lamdaP = 158.67/56.8 = 2.793427, rho = 0.329790, Aeff = 17760 - 0.670210*952*6
//   = 13931.76
//   Bending (flanges full): centroid 500 from the compressed edge, bc = 500 - 20 - 4 = 476,
//   psi = -1, k-sigma = 7.81 + 6.29 + 9.78 = 23.88, lamdaP = 158.67/(28.4*4.886717) = 1.143274
//   above 0.5 + sqrt(0.14) = 0.874166: rho = (1.143274 - 0.11)/1.143274^2 = 0.790524.
//   Lost strip t = 0.209476*6*476 = 598.27 at p = 500 - 0.6*0.790524*476 - 0.209476*476/2 = 224.38;
//   centroid 509.6085, I about it from the edge terms, Weff,y = 6 429 321, MeffyRd = 1510.891 kNm.
TEST(WeldedIDouble, SlenderWebInBendingTakesTheEffectiveModulus) {
  const State s = WeldedI(1000, 300, 6, 20);
  const Section& c = s.section;
  EXPECT_TRUE(Near(c.Wely, 6647936, kHand));
  EXPECT_EQ(c.classMy, 4);
  EXPECT_EQ(c.classN, 4);
  EXPECT_TRUE(Near(c.Aeff, 13931.76, kChain));
  EXPECT_TRUE(Near(c.Weffy, 6429321, kChain));
  EXPECT_TRUE(Near(c.MyRdClass, 1510.891, kChain));
  EXPECT_EQ(c.Wy, static_cast<Single>(c.Weffy));
}

// A thick web makes a bigger weld than the minimum: tw = 20 gives r = 8, so d = 600 - 2*(8 + 20).
TEST(WeldedIDouble, ThickWebWeldAboveTheMinimum) {
  const State s = WeldedI(600, 300, 20, 20);
  EXPECT_EQ(s.section.r, 8.0f);
  EXPECT_EQ(s.section.d, 544.0f);
  EXPECT_EQ(s.section.tmax, 20.0f);  // equal plates: tw
}

// ---- Single symmetric (22) ----

// I 600x200/400x9x20/20: hw = 560, r = 4, d = 552.
//   A = 4000 + 5040 + 8000 = 17040; ezb = (8000*10 + 5040*300 + 4000*590)/17040 = 231.9249
//   Iy = 1 062 344 864; Iz = 20*200^3/12 + 560*9^3/12 + 20*400^3/12 = 120 034 020
//   It = (200*20^3 + 560*9^3 + 400*20^3)/3 = 1 736 080
//   Wel,yt = Iy/368.0751 = 2 886 218; Wel,yb = Iy/231.9249 = 4 580 556; Wel,y the smaller
//   Plastic axis: 8000 + (z - 20)*9 reaches 8520 first at z = 77.8 (77.7 gives 8518.7)
//   Wpl,y = 67.8*8000 + 57.8^2*4.5 + 502.2^2*4.5 + 512.2*4000 = 3 741 155.6
//   Iz1 = 1.333333e7, Iz2 = 1.066667e8: betaf = 1/9, psif = -7/9, hs = 580,
//   zs = 580/9 + 10 - 231.9249 = -157.4804 (below the centroid, towards the wide flange)
//   zj = 0 (betaf < 0.5), zj2 = (2*8/9 - 1)*0.2*580 = 90.2222
//   Iw = Iz1 Iz2/(Iz1 + Iz2) * 580^2 = 3.986963e12
//   Wpl,z = 81*560/4 + 200^2*20/4 + 400^2*20/4 = 1 011 340; Wel,z = Iz/200 = 600 170.1
//   S = (2*(400 + 200 + 600) - 18)/1000 = 2.382
TEST(SingleSymProperties, PropertiesFromThePlates) {
  const State s = SingleSym(600, 200, 400, 9, 20, 20);
  const Section& c = s.section;
  EXPECT_TRUE(Near(c.A, 17040, kHand));
  EXPECT_TRUE(Near(c.ez, 231.9249, kHand));
  EXPECT_TRUE(Near(c.Iy, 1062344864, kHand));
  EXPECT_TRUE(Near(c.Iz, 120034020, kHand));
  EXPECT_TRUE(Near(c.Ix, 1736080, kHand));
  EXPECT_TRUE(Near(c.Wyt, 2886218, kHand));
  EXPECT_TRUE(Near(c.Wyb, 4580556, kHand));
  EXPECT_EQ(c.Wely, c.Wyt);
  EXPECT_TRUE(Near(c.zpl, 77.8, kChain));
  EXPECT_TRUE(Near(c.Wply, 3741155.6, kChain));
  EXPECT_TRUE(Near(c.betaf, 1.0 / 9, kHand));
  EXPECT_TRUE(Near(c.psif, -7.0 / 9, kHand));
  EXPECT_TRUE(Near(c.psif2, 7.0 / 9, kHand));
  EXPECT_TRUE(Near(c.zs, -157.4804, kHand));
  EXPECT_EQ(c.zj, 0);
  EXPECT_TRUE(Near(c.zj2, 90.2222, kHand));
  EXPECT_TRUE(Near(c.Iw, 3.986963e12, kHand));
  EXPECT_TRUE(Near(c.Wplz, 1011340, kHand));
  EXPECT_TRUE(Near(c.Welz, 600170.1, kHand));
  EXPECT_TRUE(Near(c.S, 2.382, kHand));
  EXPECT_EQ(c.b, 300.0f);
  EXPECT_EQ(c.tf, 20.0f);
  EXPECT_EQ(c.hw, 560.0f);
  EXPECT_EQ(c.d, 552.0f);
  EXPECT_EQ(c.c1, 91.5);
  EXPECT_EQ(c.c2, 191.5);
  EXPECT_EQ(s.view.text.at("p22.oname"), "I 600x200/400x9x20/20");
  EXPECT_EQ(c.OutlineRects, 3);
  // The narrow upper flange is centred over the wide lower one.
  EXPECT_EQ(c.Outline[1].x, 100.0f);
  EXPECT_EQ(c.Outline[2].y, 600.0f);
  EXPECT_EQ(c.FigWidth, 400.0f);
}

// The same girder bends differently by the sign of My:
//   M > 0 (upper flange compressed): alfa = (600 - 77.8 - 20)/560 = 0.896786, 396/(13 alfa - 1) =
//   37.15 and 456/(13 alfa - 1) = 42.78 are below d/tw = 61.33; psi = -(231.92 - 24)/(368.08 - 24)
//   = -0.604301, 42/(0.67 + 0.33 psi) = 89.25: web class 3; c1/tf1 = 4.575: class 1. Class 3.
//   M < 0 (lower flange compressed): alfa = 57.8/560 = 0.103214, 36/alfa = 348.8: web class 1;
//   c2/tf2 = 9.575 <= 10: class 2. Class 2.
//   So My,Rd+ = Wel,y fy = 2 886 218*235/1e6 = 678.261 kNm and My,Rd- = Wpl,y fy = 879.172 kNm.
// Compression: the wide flange c2/tf2 = 9.575 is class 2, the web 61.33 >= 42 class 4.
TEST(SingleSymClasses, EachSignItsOwnClassAndResistance) {
  const State s = SingleSym(600, 200, 400, 9, 20, 20);
  const Section& c = s.section;
  EXPECT_EQ(c.classMyPos, 3);
  EXPECT_EQ(c.classMyNeg, 2);
  EXPECT_EQ(c.classN, 4);
  EXPECT_TRUE(Near(c.MelyRd, 678.261, kHand));
  EXPECT_TRUE(Near(c.MplyRd, 879.172, kChain));
  EXPECT_TRUE(Near(c.MyRdPos, 678.261, kHand));
  EXPECT_TRUE(Near(c.MyRdNeg, 879.172, kChain));
  EXPECT_EQ(c.WyPos, c.Wyt);
  EXPECT_EQ(c.WyNeg, c.Wply);
  EXPECT_TRUE(Near(c.MyRdBuckPos, 678.261, kHand));
  EXPECT_TRUE(Near(c.MyRdBuck, 678.261, kHand));  // the smaller of the two
  // MfyRd = MelyRd - 235*560^2*9/6/1e6 = 678.261 - 110.544 = 567.717
  EXPECT_TRUE(Near(c.MfyRd, 567.717, kHand));
  // Shear: hw/tw = 62.2 < 72: Avz = eta hw tw = 5040, VzRd = 683.814 kN; Avy = 8000 + 4000.
  EXPECT_TRUE(Near(c.VzRd, 683.814, kHand));
  EXPECT_EQ(c.Avy, 12000);
  // The controls read the flange values from the section stage.
  EXPECT_EQ(s.checks.MyRdBuckNeg, c.MyRdBuckNeg);
  EXPECT_EQ(s.checks.zjBot, c.zj2);
  EXPECT_EQ(s.checks.zs, c.zs);
}

// Equal flanges with c/tf exactly 9: b = 2*90 + 10 + 2*4 = 198, tf = 10. The upper flange's test is
// strict and gives class 2 under positive My; the lower flange's includes the limit and gives 1.
// The web d/tw = 37.2 is class 1 either way (alfa about 0.5: 36/0.5 = 72).
TEST(SingleSymClasses, TieOnTheFlangeLimitDependsOnTheSign) {
  const State s = SingleSym(400, 198, 198, 10, 10, 10);
  EXPECT_EQ(s.section.c1, 90.0);
  EXPECT_EQ(s.section.classMyPos, 2);
  EXPECT_EQ(s.section.classMyNeg, 1);
}

// Tension alone is class 1; a moment of either sign classifies the compressed flange only.
TEST(SingleSymClasses, ClassFunctionBySignOfTheForces) {
  State s = SingleSym(600, 200, 400, 9, 20, 20);
  EXPECT_EQ(ClassSingleSymY(s, -10, 0), 1);
  EXPECT_EQ(ClassSingleSymY(s, 0, 10), 3);
  EXPECT_EQ(s.section.classFlange, 1);  // c1/tf1 = 4.575
  EXPECT_EQ(ClassSingleSymY(s, 0, -10), 2);
  EXPECT_EQ(s.section.classFlange, 2);  // c2/tf2 = 9.575
  // About z the more slender flange counts: 9.575 < 10 class 2, the web lies on the axis.
  EXPECT_EQ(ClassSingleSymZ(s, 0, 10), 2);
}

// A narrow, thin upper flange in compression loses its tips: c1 = (200 - 8 - 8)/2 = 92, tf1 = 6,
// c1/tf1 = 15.33: lamdaP = 15.33/(28.4*sqrt 0.43) = 0.823349 > 0.748, rho1 = (0.823349 -
// 0.188)/0.823349^2 = 0.937226; the lower flange c2/tf2 = 9.6 keeps rho2 = 1. Under compression
// the web hw = 574, d = 566, d/tw = 70.75 gives lamdaP = 1.245599, rho = 0.661030, so
// Aeff = 13792 - 2*92*0.062774*6 - 0.338970*566*8 = 13792 - 69.30 - 1534.86 = 12187.84.
// The upper flange class 4 (15.33 >= 14) makes the positive side effective and smaller than the
// negative side's. Bending with the upper flange compressed: ezb = 159.958, Iy = 634 741 053;
// the flange loses 2*(1 - 0.937226)*92*6 = 69.30 mm2, the centroid from the upper edge moves to
// (440.042*13792 - 5.7753*36)/13722.70 = 442.249, bc = 442.249 - 6 - 4 = 432.249,
// psi = -(566 - 432.249)/432.249 = -0.309431, k-sigma = 10.6927, lamdaP = 70.75/(28.4*3.26998) =
// 0.761840 within 0.5 + sqrt(0.085 + 0.055*0.309431) = 0.819404: the web stays whole.
// I = 440.042^2*13792 + Iy - 5.7753*6^3/6 - 5.7753*6*3^2*2 - 13722.70*442.249^2 = 621 436 867,
// Weff,y top = I/442.249 = 1 405 174 (Wel,yt = 1 442 456), MeffyRd1 = 330.216 kNm.
TEST(SingleSymEffective, ThinUpperFlange) {
  const State s = SingleSym(600, 200, 400, 8, 6, 20);
  const Section& c = s.section;
  // A = 1200 + 574*8 + 8000
  EXPECT_TRUE(Near(c.A, 13792, kHand));
  EXPECT_TRUE(Near(c.Aeff, 12187.84, kChain));
  EXPECT_EQ(c.classMyPos, 4);
  EXPECT_EQ(c.WyPos, static_cast<Single>(c.Weffy1));
  EXPECT_LT(c.Weffy1, c.Wyt);
  EXPECT_LT(c.MyRdPos, c.MyRdNeg);
  EXPECT_EQ(c.Weffy1, std::min<double>(c.WeffyTop, c.WeffyBot));
  EXPECT_TRUE(Near(c.WeffyTop, 1405174, kChain));
  EXPECT_TRUE(Near(c.MyRdPos, 330.216, kChain));
}

// A web of zero height is no section: the calculation ends in the fault.
TEST(SingleSymProperties, FlangesFillingTheHeightFail) {
  State s = SectionState();
  s.project.ProfileType = 22;
  s.project.p22 = {40, 200, 400, 9, 20, 20};
  EXPECT_THROW(ComputeSection(s), CalcFault);
}

// A girder 1000 km deep: the plastic axis cannot step 0.1 mm at a time in 32 bits beyond some 2 km,
// so the run ends in the fault at once instead of stepping in place.
TEST(SingleSymProperties, AnAbsurdDepthEndsInTheFault) {
  State s = SectionState();
  s.project.ProfileType = 22;
  s.project.p22 = {1e9f, 200, 400, 9, 20, 20};
  EXPECT_THROW(ComputeSection(s), CalcFault);
}

// ---- The dialogs, on the started program (S355, epsilon = 0.8136) ----

std::string ValueOf(const State& s, const std::string& label, int occurrence = 1) {
  for (const auto& line : s.view.sectionValues)
    if (line.label == label && --occurrence == 0) return line.value;
  return "(none)";
}

// I 500x250x8x16 in S355: d/tw = 57.5 is class 4 in compression (>= 42 epsilon = 34.2) and class 1
// in bending (< 72 epsilon = 58.58); c/tf = 7.3125 < 9 epsilon = 7.3226: class 1.
// My,Rd = 2 374 048*355/1e6 = 842.8 kNm.
TEST(WeldedIDialogs, DoubleSymmetricShowsTheRolledBlock) {
  State s = StartedState();
  for (const auto& [field, text] :
       {std::pair{"p21.isth", "500"}, {"p21.istb1", "250"}, {"p21.isttw", "8"}, {"p21.isttf", "16"}})
    ASSERT_FALSE(Fire(s, field, text).refused);
  EXPECT_EQ(s.project.ProfileType, 21);
  EXPECT_EQ(ValueOf(s, "A ="), "11744");
  EXPECT_EQ(ValueOf(s, "Cross Section Class: "), "4/1/1");
  EXPECT_EQ(ValueOf(s, "My,Rd ="), "842.8");
  EXPECT_EQ(ValueOf(s, "Wpl,y ="), "2.374E+6");
}

// The single symmetric I shows a class and a resistance for each flange in compression.
TEST(WeldedIDialogs, SingleSymmetricShowsBothFlanges) {
  State s = StartedState();
  for (const auto& [field, text] : {std::pair{"p22.isth", "600"},
                                    {"p22.istb1", "200"},
                                    {"p22.istb2", "400"},
                                    {"p22.isttw", "9"},
                                    {"p22.isttf1", "20"},
                                    {"p22.isttf2", "20"}})
    ASSERT_FALSE(Fire(s, field, text).refused);
  EXPECT_EQ(s.project.ProfileType, 22);
  EXPECT_EQ(ValueOf(s, "Wel,yt ="), "2.886E+6");
  EXPECT_EQ(ValueOf(s, "Wel,yb ="), "4.581E+6");
  EXPECT_EQ(ValueOf(s, "Top flange in compression"), "");
  EXPECT_EQ(ValueOf(s, "Bottom flange in compression"), "");
  // Elastic on both sides in S355 (c2/tf2 = 9.575 > 10 epsilon): 2 886 218*355/1e6 = 1024.6.
  EXPECT_EQ(ValueOf(s, "My,Rd =", 1), "1024.6");
  EXPECT_EQ(ValueOf(s, "My,Rd =", 2), "1024.6");
}

}  // namespace
}  // namespace vn::test
