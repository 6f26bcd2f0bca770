// The welded box with equal flanges: the plates of the default box by hand, its classes as a
// hollow section, the two webs as its shear area, and the welds' choice of buckling curve.
#include <gtest/gtest.h>

#include "core/events.h"
#include "core/state.h"
#include "support/test_support.h"

namespace vn::test {
namespace {

inline constexpr Tolerance kHandBox{2e-6, "hand calculation; stored as 32-bit floats"};

// The default box: h 600, b 600, tw 10, tf 20, webs set in a = 50 from the flanges' edges; S355.
//   A = 2*600*20 + 2*10*560 = 35200 mm2; centroid in the middle
//   Iy = 2 (600*20^3/12 + 12000*290^2) + 2*10*560^3/12 = 2.311893e9 mm4
//   Iz = 2*20*600^3/12 + 2 (560*10^3/12 + 5600*245^2) = 1.392373e9 mm4
//   cell between the web centres: e = 600 - 100 - 10 = 490, f = 580:
//   Ix = 2 e^2 f^2 / (e/tf + f/tw) + 4 tf^3 a / 3 = 1.958585e9 mm4
//   Iw = (f^2/24)(e^2 f tw + e^3 tf) ((e^2 tw - f e tf)/(e^2 tw + f e tf))^2 = 8.656518e12 mm6
//   Wpl,y = 560^2*10/2 + 580*20*600 = 8.528e6; Wpl,z = 600^2*20/2 + 490*560*10 = 6.344e6 mm3
//   S = (4*20 + 2*600 + 4*50 + 2*560)/1000 = 2.6 m2/m
// Classes, epsilon 0.8136165: flange between the webs c = 600 - 2 (50 + 10) = 480, c/t = 24 < 33 eps;
// webs d = 600 - 2 (4 + 20) = 552, d/t = 55.2: > 42 eps = 34.17 in compression (4), < 72 eps in
// bending (1); about z the webs are the sides in compression: 4.
// Shear: hw/tw = 56 >= 72 eps/1.2: lamdaW = (1/86.4)/eps * 56 = 0.7966261, chiW = 0.83/lamdaW =
// 1.041894; Av = 2*560*10 = 11200; Vz,Rd = 11200*1.041894*355/sqrt 3/1000 = 2391.714 kN.
TEST(BoxProperties, DefaultBoxByHand) {
  State s = StartedState();
  Fire(s, "mnup23");
  const Section& c = s.section;
  EXPECT_EQ(c.A, 35200);
  EXPECT_TRUE(Near(c.Iy, 2.311893e9, kHandBox));
  EXPECT_TRUE(Near(c.Iz, 1.392373e9, kHandBox));
  EXPECT_TRUE(Near(c.Ix, 1.958585e9, kHandBox));
  EXPECT_TRUE(Near(c.Iw, 8.656518e12, kHandBox));
  EXPECT_EQ(c.Wply, 8.528e6f);
  EXPECT_EQ(c.Wplz, 6.344e6f);
  EXPECT_TRUE(Near(c.S, 2.6, kHandBox));
  EXPECT_EQ(c.c, 480);
  EXPECT_EQ(c.d, 552);
  EXPECT_EQ(c.classN, 4);
  EXPECT_EQ(c.classMy, 1);
  EXPECT_EQ(c.classMz, 4);
  EXPECT_TRUE(Near(c.VzRd, 2391.714, {1e-6, "hand calculation to 7 digits"}));
  EXPECT_EQ(c.ltbRelevant, 0);
  EXPECT_EQ(s.view.text["p23.oname"], "Box 600x600x10x20");
  EXPECT_EQ(c.OutlineRects, 4);
}

// a = 0 closes the box at the flanges' edges: Ix is the cell's term alone,
//   e = 600 - 10 = 590, f = 580: 2*590^2*580^2/(590/20 + 580/10) = 2.676591e9 mm4.
// The welds decide the buckling curve of a stocky box: c for thick welds, b for the others.
TEST(BoxProperties, ClosedAtTheEdgesAndTheWeldsCurve) {
  State s = StartedState();
  Fire(s, "mnup23");
  Fire(s, "p23.ista", "0");
  EXPECT_TRUE(Near(s.section.Ix, 2.676591e9, kHandBox));
  Fire(s, "p23.isttw", "30");
  Fire(s, "p23.isttf", "30");
  EXPECT_EQ(s.checks.curveTextY, "c");
  Fire(s, "p23.oweld1");
  EXPECT_EQ(s.project.p23.oweld, 1);
  EXPECT_EQ(s.checks.curveTextY, "b");
}

}  // namespace
}  // namespace vn::test
