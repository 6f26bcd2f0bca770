// Rolled channels UPE and UNP: catalogue columns, derived values, effective section and the channel's
// shear area. Published values: ArcelorMittal sales programme, UPE and UPN tables (EN 10365).
#include <gtest/gtest.h>

#include "core/pipeline.h"
#include "sections/channels.h"
#include "sections/rolled_i.h"
#include "sections/section_fixture.h"

namespace vn::test {
namespace {

// upe.dat: h, b, tw, tf, r, ey, em, A, Iy x 1e4, Iz x 1e4, Wply x 1000, Wplz x 1000, It x 1000,
// Iw x 1e9. UPE 200: ey and em are written as the table would give them, 25.6 and 27.5 mm.
void WriteUpe200(State& s, int row) {
  WriteRow(s, catUpe, row, {200, 80, 6, 11, 13, 25.6f, 27.5f, 2900, 1910, 187, 220, 63.3f, 88.9f, 11.0f});
}

// unp.dat: h, b, tw, tf, r1, r2, ey, shear centre from the back of the web, A, Iy x 1e4, Iz x 1e4,
// It x 1e6, Iw x 1e9, Wply x 1000, Wplz x 1000. UPN 200 with ys = 20.1 mm, ym = 39.4 mm.
void WriteUnp200(State& s, int row) {
  WriteRow(s, catUnp, row,
           {200, 75, 8.5f, 11.5f, 11.5f, 6, 20.1f, 59.5f, 3220, 1910, 148, 0.119f, 9.07f, 228, 51.8f});
}

TEST(UpeProperties, Upe200MatchesThePublishedTable) {
  State s = SectionState();
  WriteUpe200(s, 8);
  Choose(s, 5, catUpe, 8);
  ComputeSection(s);
  const Section& c = s.section;
  EXPECT_EQ(c.h, 200.0f);
  EXPECT_EQ(c.b, 80.0f);
  EXPECT_EQ(c.tw, 6.0f);
  EXPECT_EQ(c.tf, 11.0f);
  EXPECT_EQ(c.r, 13.0f);
  EXPECT_EQ(c.ey, 25.6f);
  EXPECT_EQ(c.em, 27.5f);
  EXPECT_TRUE(Near(c.A, 2900, kSingle));          // 29.0 cm2
  EXPECT_TRUE(Near(c.Iy, 19.1e6, kSingle));       // 1910 cm4
  EXPECT_TRUE(Near(c.Iz, 1.87e6, kSingle));       // 187 cm4
  EXPECT_TRUE(Near(c.Wply, 220e3, kSingle));      // 220 cm3
  EXPECT_TRUE(Near(c.Wplz, 63.3e3, kSingle));     // 63.3 cm3
  EXPECT_TRUE(Near(c.Ix, 88900, kSingle));        // It = 8.89 cm4, stored x 1000
  EXPECT_TRUE(Near(c.Iw, 11.0e9, kSingle));       // 11.0 x 10^3 cm6
  EXPECT_TRUE(Near(c.Wely, 191e3, kPublished3));  // 191 cm3
  EXPECT_TRUE(Near(c.g, 22.8, kPublished3));      // 22.8 kg/m
  // Welz at the flange tips: 1.87e6 / (80 - 25.6) = 34375.0
  EXPECT_TRUE(Near(c.Welz, 34375.0, kHand));
  // S = (160 + 200 + 22 + 2*(80-6-13) + (200-22-26) + pi*13)/1000 = 0.6968407
  EXPECT_TRUE(Near(c.S, 0.6968407, kHand));
  EXPECT_EQ(c.c, 61.0f);    // 80 - 6 - 13
  EXPECT_EQ(c.hw, 178.0f);  // 200 - 22
  EXPECT_EQ(c.d, 152.0f);   // 178 - 26
  EXPECT_EQ(c.tmax, 11.0f);
  EXPECT_EQ(c.IzDefl, c.Iz);
  EXPECT_EQ(s.view.text["p05.oname"], "UPE200");
  EXPECT_EQ(c.OutlineCount, 13);
  EXPECT_EQ(c.FigCentroidY, 25.6f);
}

TEST(UnpProperties, Unp200MatchesThePublishedTable) {
  State s = SectionState();
  WriteUnp200(s, 8);
  Choose(s, 16, catUnp, 8);
  ComputeSection(s);
  const Section& c = s.section;
  EXPECT_EQ(c.r1, 11.5);
  EXPECT_EQ(c.r2, 6.0f);
  EXPECT_EQ(c.r, 0.0f);  // the tapered channel has r1 and r2 only
  EXPECT_EQ(c.ey, 20.1f);
  EXPECT_FLOAT_EQ(c.em, 39.4f);                    // 59.5 - 20.1
  EXPECT_TRUE(Near(c.A, 3220, kSingle));           // 32.2 cm2
  EXPECT_TRUE(Near(c.Iy, 19.1e6, kSingle));        // 1910 cm4
  EXPECT_TRUE(Near(c.Iz, 1.48e6, kSingle));        // 148 cm4
  EXPECT_TRUE(Near(c.Ix, 119e3, kSingle));         // It = 11.9 cm4
  EXPECT_TRUE(Near(c.Iw, 9.07e9, kSingle));        // 9.07 x 10^3 cm6
  EXPECT_TRUE(Near(c.Wply, 228e3, kSingle));       // 228 cm3
  EXPECT_TRUE(Near(c.Wplz, 51.8e3, kSingle));      // 51.8 cm3
  EXPECT_TRUE(Near(c.Wely, 191e3, kPublished3));   // 191 cm3
  EXPECT_TRUE(Near(c.Welz, 27.0e3, kPublished3));  // 27.0 cm3
  EXPECT_TRUE(Near(c.g, 25.3, kPublished3));       // 25.3 kg/m
  EXPECT_TRUE(Near(c.S, 0.661, kPublished3));      // AL = 0.661 m2/m
  // S with the 8 degree slope and the toe radii:
  // (150 + 200 + 23 + 2*(75-8.5-11.5) + (200-23-23) - 75 sin(8 deg) + pi*11.5 - 2*(6 - 6 pi/4))/1000
  //   = 0.6601151
  EXPECT_TRUE(Near(c.S, 0.6601151, kHand));
  EXPECT_EQ(c.c, 55.0f);  // 75 - 8.5 - 11.5
  EXPECT_EQ(c.hw, 177.0f);
  EXPECT_EQ(c.d, 154.0f);  // 177 - 23
  EXPECT_EQ(s.view.text["p16.oname"], "UNP200");
}

TEST(ChannelEffective, NoPassAboutZAndOneOutstandPerSide) {
  // A slender channel written as a UPE row: h 600, b 200, tw 5, tf 10, r 0, so that the
  // outstand c = 200 - 5 = 195 and c/tf = 19.5 buckles.
  State s = SectionState();
  WriteRow(s, catUpe, 0, {600, 200, 5, 10, 0, 40, 60, 6900, 36000, 2500, 3000, 300, 10, 100});
  Choose(s, 5, catUpe, 0);
  ComputeSection(s);
  const Section& c = s.section;
  // Flange: lamdaP = 19.5/(28.4*sqrt(0.43)) = 1.047085, rho = (1.047085 - 0.188)/1.047085^2 = 0.783560.
  // Web: d/tw = 580/5 = 116, lamdaP = 2.042253, rho = 0.436908 (as for the I).
  // Aeff = 6900 - 2*195*(1 - 0.783560)*10 - (1 - 0.436908)*580*5 = 6900 - 844.117 - 1632.968
  //      = 4422.915
  EXPECT_TRUE(Near(c.Aeff, 4422.915, kHand));
  // Welz = 2.5e7/(200 - 40) = 156250; a channel keeps it as its effective modulus.
  EXPECT_EQ(c.Weffz, c.Welz);
  EXPECT_TRUE(Near(c.Welz, 156250, kSingle));
  EXPECT_EQ(c.classMz, 4);
  EXPECT_EQ(c.MeffzRd, c.MelzRd);
  EXPECT_LT(c.Weffy, c.Wely);
}

TEST(ChannelCapacities, ShearAreaHasOneRadiusAndNoLowerBound) {
  State s = SectionState();
  WriteUpe200(s, 8);
  Choose(s, 5, catUpe, 8);
  ComputeSection(s);
  // Avz = A - 2 b tf + (r + tw) tf = 2900 - 1760 + 19*11 = 1349
  EXPECT_DOUBLE_EQ(s.section.Avz, 1349);

  // r = 0 and a deep web: A - 2 b tf + tw tf = 5800 - 2000 + 100 = 3900, below
  // neta hw tw = 1.2*380*10 = 4560, and kept.
  s.project.neta = 1.2f;
  WriteRow(s, catUpe, 1, {400, 100, 10, 10, 0, 30, 40, 5800, 12000, 500, 800, 100, 10, 10});
  Choose(s, 5, catUpe, 1);
  ComputeSection(s);
  EXPECT_DOUBLE_EQ(s.section.Avz, 3900);
}

}  // namespace
}  // namespace vn::test
