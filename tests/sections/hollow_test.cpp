// Square and rectangular hollow sections from the delivered tables: the values derived from the
// table row, the turned rectangle, the corner radius of the cold formed walls, the effective area
// of a slender wall and the shear areas. Expected values by hand from the EN 10210-2 and EN 10219-2
// rows as the tables publish them, S355 (epsilon = sqrt(235/355) = 0.8136165), gammaM0 = gammaM1 = 1.
#include <gtest/gtest.h>

#include "core/events.h"
#include "core/recalculate.h"
#include "core/state.h"
#include "sections/hollow.h"
#include "support/test_support.h"

namespace vn::test {
namespace {

inline constexpr Tolerance kHandHollow{2e-6, "hand calculation; stored as 32-bit floats"};
inline constexpr Tolerance kHand5{1e-5, "hand calculation to 6 digits"};

State Hollow(const char* menu, const char* list, int row) {
  State s = StartedState();
  Fire(s, menu);
  Fire(s, list, std::to_string(row));
  return s;
}

// SHS 100x100x5.0 hot finished (row 32): A 1870, I 279 cm4, Wpl 66.4 cm3, It 439 cm4.
//   r = 1.5 t = 7.5, r1 = 2.5; d = c = 100 - 15 = 85; hw = ri = 90; Wel = 2.79e6/50 = 55800
//   S = (2 (100 - 25) + 2 (100 - 25) + 6.2831855 * 12.5) / 1000 = 0.3785398 m2/m
//   a square box has no warping: Iw = 0 exactly. c/t = 17 < 33 epsilon = 26.85: class 1.
TEST(HollowProperties, SquareHotFinishedFromItsRow) {
  State s = Hollow("mnup06", "p06.cbo", 32);
  const Section& c = s.section;
  EXPECT_EQ(c.h, 100);
  EXPECT_EQ(c.b, 100);
  EXPECT_EQ(c.tw, 5);
  EXPECT_EQ(c.tf, 5);
  EXPECT_TRUE(Near(c.A, 1870, kSingle));
  EXPECT_EQ(c.Iy, c.Iz);
  EXPECT_EQ(c.Wply, c.Wplz);
  EXPECT_EQ(c.r, 7.5f);
  EXPECT_DOUBLE_EQ(c.r1, 2.5);
  EXPECT_EQ(c.d, 85);
  EXPECT_EQ(c.c, 85);
  EXPECT_EQ(c.hw, 90);
  EXPECT_EQ(c.ri, 90);
  EXPECT_TRUE(Near(c.Wely, 55800, kHandHollow));
  EXPECT_TRUE(Near(c.S, 0.3785398, kHandHollow));
  EXPECT_EQ(c.Iw, 0.0f);
  EXPECT_EQ(c.tmax, 5);
  EXPECT_EQ(c.classN, 1);
  EXPECT_EQ(c.classMy, 1);
  EXPECT_EQ(c.classMz, 1);
  EXPECT_EQ(s.section.ltbRelevant, 0);
  EXPECT_EQ(s.view.text["p06.oname"], "RHS 100x100x5");
  // The outline: 13 outer points from (0, r), 13 inner from (t, t + r1), closed.
  EXPECT_EQ(c.OutlineCount, 13);
  EXPECT_EQ(c.OutlineInnerLast, 63);
  EXPECT_EQ(c.Outline[1].y, 7.5f);
  EXPECT_EQ(c.Outline[13].y, c.Outline[1].y);
  EXPECT_EQ(c.Outline[51].x, 5);
  EXPECT_EQ(c.Outline[51].y, 7.5f);
}

// RHS 200x100x8.0 hot finished (row 65): Iy 2230 cm4, Iz 739 cm4, Wpl,y 282, Wpl,z 172 cm3.
//   Warping: a = h - t = 192, e = b - t = 92:
//   Iw = (192^2/24)(92^2 192 8 + 92^3 8) ((92^2 8 - 192 92 8)/(92^2 8 + 192 92 8))^2
//      = 1536 * 19230208 * (-73600/209024)^2 = 3.662170e9 mm6, the same turned (a = 92, e = 192).
TEST(HollowProperties, RectangleAsCataloguedAndTurned) {
  State s = Hollow("mnup07", "p07.cbo", 65);
  const Section& c = s.section;
  EXPECT_EQ(c.h, 200);
  EXPECT_EQ(c.b, 100);
  EXPECT_TRUE(Near(c.Iy, 22.3e6, kSingle));
  EXPECT_TRUE(Near(c.Iz, 7.39e6, kSingle));
  EXPECT_TRUE(Near(c.Iw, 3.662170e9, kHand5));
  EXPECT_EQ(c.d, 176);
  EXPECT_EQ(c.c, 76);

  Fire(s, "p07.optturn0");
  EXPECT_EQ(s.project.rhsTurned, 0);
  EXPECT_EQ(c.h, 100);
  EXPECT_EQ(c.b, 200);
  EXPECT_TRUE(Near(c.Iy, 7.39e6, kSingle));
  EXPECT_TRUE(Near(c.Iz, 22.3e6, kSingle));
  EXPECT_TRUE(Near(c.Wply, 172e3, kSingle));
  EXPECT_TRUE(Near(c.Wplz, 282e3, kSingle));
  EXPECT_TRUE(Near(c.Iw, 3.662170e9, kHand5));
  EXPECT_EQ(c.FigWidth, 200);

  Fire(s, "p07.optturn1");
  EXPECT_EQ(c.h, 200);
}

// The cold formed radius by the wall: 2 t up to 6 mm, 2.5 t up to 10 mm, else 3 t.
TEST(HollowProperties, ColdFormedRadiusByTheWall) {
  EXPECT_DOUBLE_EQ(ColdFormedRadius(6), 12);
  EXPECT_DOUBLE_EQ(ColdFormedRadius(6.3), 15.75);
  EXPECT_DOUBLE_EQ(ColdFormedRadius(10), 25);
  EXPECT_DOUBLE_EQ(ColdFormedRadius(12.5), 37.5);

  // CFSHS 100x100x6.0 (row 38): r = 12, r1 = 6; the flats are still h - 3 t = 82.
  State s = Hollow("mnup08", "p08.cbo", 38);
  EXPECT_EQ(s.section.r, 12);
  EXPECT_DOUBLE_EQ(s.section.r1, 6);
  EXPECT_EQ(s.section.c, 82);
  EXPECT_EQ(s.view.text["p08.oname"], "CFRHS 100x100x6 (Cold formed)");
}

// SHS 200x200x5.0 (row 66), S355: c/t = d/t = 185/5 = 37 > 42 epsilon = 34.17: class 4 in
// compression, and about both axes by its compressed wall.
//   lamdaP = 37 / (28.4 * 0.8136165 * 2) = 0.8006333; rho = (0.8006333 - 0.22)/0.8006333^2 = 0.9058049
//   Aeff = 3870 - 2 * 185 * (1 - rho) * 5 * 2 = 3521.478 mm2; Nc,Rd = 3521.478 * 355 / 1000 = 1250.125 kN
TEST(HollowEffective, SlenderWallsReduceTheArea) {
  State s = Hollow("mnup06", "p06.cbo", 66);
  const Section& c = s.section;
  EXPECT_EQ(c.classN, 4);
  EXPECT_EQ(c.classMy, 4);
  EXPECT_EQ(c.classMz, 4);
  EXPECT_TRUE(Near(c.Aeff, 3521.478, kHand5));
  EXPECT_TRUE(Near(c.NcRd, 1250.125, kHand5));
  EXPECT_LT(c.Weffy, c.Wely);
  EXPECT_LT(c.Weffz, c.Welz);
  // A square box: the two bending passes are the same.
  EXPECT_TRUE(Near(c.Weffz, c.Weffy, kSingle));
  EXPECT_EQ(c.MyRdClass, c.MeffyRd);

  s.project.noFlangeBuckling = True;
  s.project.noWebBuckling = True;
  Recalculate(s);
  EXPECT_EQ(c.Aeff, c.A);
  EXPECT_EQ(c.classN, 4);  // the class still says so
}

// SHS 200x200x8.0 (row 68): Avz = 200/400 * 6080 = 3040 mm2, hw/t = 184/8 = 23 < 72 epsilon/1.2:
//   Vz,Rd = 3040 * 355/sqrt 3 / 1000 = 623.0764 kN, and the same along y.
// RHS 400x200x6.3 (row 127) turned: ri = 400 - 12.6 = 387.4, ri/t = 61.49 > 48.81: slender along y:
//   lamdaW = (1/86.4)/0.8136165 * 61.49206 = 0.8747533, chiW = 0.83/lamdaW = 0.9488390
//   Avy = 2 ri t = 4881.24; Vy,Rd = 4881.24 * 0.9488390 * 355/sqrt 3 / 1000 = 949.2714 kN
TEST(HollowCapacities, ShearAreasOfTheWalls) {
  State s = Hollow("mnup06", "p06.cbo", 68);
  EXPECT_TRUE(Near(s.section.Avz, 3040, kHandHollow));
  EXPECT_TRUE(Near(s.section.VzRd, 623.0764, kHand5));
  EXPECT_TRUE(Near(s.section.VyRd, 623.0764, kHand5));
  EXPECT_TRUE(Near(s.section.VplyRd, 623.0764, kHand5));

  State r = Hollow("mnup07", "p07.cbo", 127);
  Fire(r, "p07.optturn0");
  EXPECT_TRUE(Near(r.section.Avy, 4881.24, kHand5));
  EXPECT_TRUE(Near(r.section.VyRd, 949.2714, kHand5));
}

// The turned rectangle is classified by its other walls. RHS 400x200x6.3: the long walls have
// (400 - 18.9)/6.3 = 60.49, the short ones (200 - 18.9)/6.3 = 28.75.
//   as catalogued, about y: webs 60.49 between 72 and 83 epsilon (58.58, 67.53): 2; flange 28.75
//   between 33 and 38 epsilon (26.85, 30.92): 2. About z the long walls are the compressed flange:
//   60.49 > 42 epsilon = 34.17: 4.
//   turned, about y the long wall is the compressed flange: 4. About z the long walls bend as webs,
//   60.49 between 72 and 83 epsilon: 2, and the short compressed wall, 28.75: 2.
TEST(HollowClasses, TurnedRectangleSwapsTheWalls) {
  State s = Hollow("mnup07", "p07.cbo", 127);
  EXPECT_EQ(s.section.classMy, 2);
  EXPECT_EQ(s.section.classMz, 4);  // the long walls compressed as flanges about z
  Fire(s, "p07.optturn0");
  EXPECT_EQ(s.section.classMy, 4);
  EXPECT_EQ(s.section.classMz, 2);
}

}  // namespace
}  // namespace vn::test
