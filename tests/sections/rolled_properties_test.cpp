// Properties of the rolled I and H sections, read from a catalogue row and derived, against the
// published tables. Source of the published values: ArcelorMittal "Sales programme - Sections and
// Merchant Bars" (the values of EN 10365), HE, IPE and IPN tables.
#include <gtest/gtest.h>

#include "core/pipeline.h"
#include "sections/rolled_i.h"
#include "sections/section_fixture.h"

namespace vn::test {
namespace {

// HEA 200 as hea.dat stores it: designation, h, b, tf, tw, r, A (mm2), Iy, Iz, It (x 1e6), Iw (x 1e9).
void WriteHea200(State& s, int row) {
  WriteRow(s, catHea, row, {200, 190, 200, 10, 6.5f, 18, 5383, 36.92f, 13.36f, 0.2098f, 108.0f});
}

TEST(RolledIProperties, Hea200MatchesThePublishedTable) {
  State s = SectionState();
  WriteHea200(s, 5);
  Choose(s, 1, catHea, 5);
  ComputeSection(s);
  const Section& c = s.section;

  // Read from the row: the stored single times its factor.
  EXPECT_EQ(c.h, 190.0f);
  EXPECT_EQ(c.b, 200.0f);
  EXPECT_EQ(c.tf, 10.0f);
  EXPECT_EQ(c.tw, 6.5f);
  EXPECT_EQ(c.r, 18.0f);
  EXPECT_TRUE(Near(c.A, 5383, kSingle));      // 53.83 cm2
  EXPECT_TRUE(Near(c.Iy, 36.92e6, kSingle));  // 3692 cm4
  EXPECT_TRUE(Near(c.Iz, 13.36e6, kSingle));  // 1336 cm4
  EXPECT_TRUE(Near(c.Ix, 209800, kSingle));   // It = 20.98 cm4
  EXPECT_TRUE(Near(c.Iw, 108.0e9, kSingle));  // Iw = 108.0 x 10^3 cm6
  EXPECT_EQ(c.IzDefl, c.Iz);

  // Derived, against the published values.
  EXPECT_TRUE(Near(c.Wely, 388.6e3, kPublished4));  // Wel,y = 388.6 cm3
  EXPECT_TRUE(Near(c.Welz, 133.6e3, kPublished4));  // Wel,z = 133.6 cm3
  EXPECT_TRUE(Near(c.Wply, 429.5e3, kPublished4));  // Wpl,y = 429.5 cm3
  EXPECT_TRUE(Near(c.Wplz, 203.8e3, kPublished4));  // Wpl,z = 203.8 cm3
  EXPECT_TRUE(Near(c.g, 42.3, kPublished3));        // G = 42.3 kg/m
  EXPECT_TRUE(Near(c.S, 1.136, kPublished4));       // AL = 1.136 m2/m

  // Hand calculation of the fillet terms:
  // Wply = 10*200*180 + 170^2*6.5/4 + 4*18^2*(1 - pi/4)*(85 - 0.2234*18) = 429484.6
  // Wplz = 3.25^2*170 + 100^2*4*10/2 + 4*18^2*(1 - pi/4)*(3.25 + 0.2234*18) = 203817.9
  EXPECT_TRUE(Near(c.Wply, 429484.6, kHand));
  EXPECT_TRUE(Near(c.Wplz, 203817.9, kHand));
  // S = (2*(200-6.5-36) + 40 + 400 + 2*(190-20-36) + 6.2831855*18)/1000 = 1.1360973
  EXPECT_TRUE(Near(c.S, 1.1360973, kHand));

  EXPECT_EQ(c.hw, 170.0f);   // 190 - 2*10
  EXPECT_EQ(c.d, 134.0f);    // 190 - 2*(18 + 10)
  EXPECT_EQ(c.c, 78.75f);    // (200 - 6.5 - 36)/2
  EXPECT_EQ(c.Af, 4000.0f);  // 2*200*10
  EXPECT_EQ(c.Aw, 1105.0f);  // 170*6.5
  EXPECT_EQ(c.tmax, 10.0f);
  EXPECT_EQ(s.view.text["p01.oname"], "HEA200");
}

TEST(RolledIProperties, Heb300MatchesThePublishedTable) {
  State s = SectionState();
  WriteRow(s, catHeb, 13, {300, 300, 300, 19, 11, 27, 14908, 251.7f, 85.63f, 1.850f, 1688.0f});
  Choose(s, 2, catHeb, 13);
  ComputeSection(s);
  const Section& c = s.section;
  EXPECT_TRUE(Near(c.A, 14910, kPublished4));       // 149.1 cm2
  EXPECT_TRUE(Near(c.Iy, 251.7e6, kSingle));        // 25170 cm4
  EXPECT_TRUE(Near(c.Wely, 1678e3, kPublished4));   // 1678 cm3
  EXPECT_TRUE(Near(c.Wply, 1869e3, kPublished4));   // 1869 cm3
  EXPECT_TRUE(Near(c.Welz, 570.9e3, kPublished4));  // 570.9 cm3
  EXPECT_TRUE(Near(c.Wplz, 870.1e3, kPublished4));  // 870.1 cm3
  EXPECT_TRUE(Near(c.Ix, 1.850e6, kSingle));        // It = 185.0 cm4
  EXPECT_TRUE(Near(c.Iw, 1688e9, kSingle));         // 1688 x 10^3 cm6
  EXPECT_TRUE(Near(c.S, 1.732, kPublished4));       // AL = 1.732 m2/m
  EXPECT_TRUE(Near(c.g, 117, kPublished3));         // 117 kg/m
  EXPECT_EQ(s.view.text["p02.oname"], "HEB300");
}

TEST(RolledIProperties, IpeTableHasItsHeightInColumnOne) {
  // ipe.dat: h, b, tf, tw, r, A, Iy, Iz, It (x 1e6), Iw (x 1e9): IPE 300.
  State s = SectionState();
  WriteRow(s, catIpe, 10, {300, 150, 10.7f, 7.1f, 15, 5381, 83.56f, 6.038f, 0.2012f, 125.9f});
  Choose(s, 4, catIpe, 10);
  ComputeSection(s);
  const Section& c = s.section;
  EXPECT_EQ(c.h, 300.0f);
  EXPECT_EQ(c.b, 150.0f);
  EXPECT_EQ(c.tf, 10.7f);
  EXPECT_EQ(c.tw, 7.1f);
  EXPECT_EQ(c.r, 15.0f);
  EXPECT_TRUE(Near(c.A, 5381, kSingle));            // 53.81 cm2
  EXPECT_TRUE(Near(c.Iy, 83.56e6, kSingle));        // 8356 cm4
  EXPECT_TRUE(Near(c.Iz, 6.038e6, kSingle));        // 603.8 cm4
  EXPECT_TRUE(Near(c.Ix, 201200, kSingle));         // 20.12 cm4
  EXPECT_TRUE(Near(c.Iw, 125.9e9, kSingle));        // 125.9 x 10^3 cm6
  EXPECT_TRUE(Near(c.Wely, 557.1e3, kPublished4));  // 557.1 cm3
  EXPECT_TRUE(Near(c.Welz, 80.50e3, kPublished4));  // 80.50 cm3
  EXPECT_TRUE(Near(c.Wply, 628.4e3, kPublished4));  // 628.4 cm3
  EXPECT_TRUE(Near(c.Wplz, 125.2e3, kPublished4));  // 125.2 cm3
  EXPECT_TRUE(Near(c.S, 1.160, kPublished4));       // 1.160 m2/m
  EXPECT_EQ(s.view.text["p04.oname"], "IPE300");
}

TEST(InpProperties, Inp200TakesItsModuliFromTheTable) {
  // inp.dat: h, b, tf, tw, A x 1000, Iy x 1e6, Wply x 1000, Iz x 1e6, Wplz x 1000, It x 1000,
  // Iw x 1e9: IPN 200.
  State s = SectionState();
  WriteRow(s, catInp, 11, {200, 90, 11.3f, 7.5f, 3.34f, 21.4f, 250, 1.17f, 43.5f, 135, 10.5f});
  Choose(s, 15, catInp, 11);
  ComputeSection(s);
  const Section& c = s.section;
  EXPECT_TRUE(Near(c.A, 3340, kSingle));           // 33.4 cm2
  EXPECT_TRUE(Near(c.Iy, 21.4e6, kSingle));        // 2140 cm4
  EXPECT_TRUE(Near(c.Iz, 1.17e6, kSingle));        // 117 cm4
  EXPECT_TRUE(Near(c.Wply, 250e3, kSingle));       // 250 cm3, not derived
  EXPECT_TRUE(Near(c.Wplz, 43.5e3, kSingle));      // 43.5 cm3
  EXPECT_TRUE(Near(c.Ix, 135e3, kSingle));         // It = 13.5 cm4
  EXPECT_TRUE(Near(c.Iw, 10.5e9, kSingle));        // 10.5 x 10^3 cm6
  EXPECT_TRUE(Near(c.Wely, 214e3, kPublished3));   // 214 cm3
  EXPECT_TRUE(Near(c.Welz, 26.0e3, kPublished3));  // 26.0 cm3
  EXPECT_TRUE(Near(c.g, 26.2, kPublished3));       // 26.2 kg/m
  EXPECT_TRUE(Near(c.S, 0.709, kPublished3));      // 0.709 m2/m
  // No radius column: r = tw, and the whole half flange is the outstand.
  EXPECT_EQ(c.r, 7.5f);
  EXPECT_EQ(c.c, 45.0f);   // 90/2
  EXPECT_EQ(c.d, 162.4f);  // 200 - 2*(7.5 + 11.3)
  // S with the 14 degree slope: (2*(90-7.5-15) + 45.2 + 180
  //   + 2*(200-22.6-15 - 45*sin(14 deg)) + 6.2831855*7.5)*0.001 = 0.7103509
  EXPECT_TRUE(Near(c.S, 0.7103509, kHand));
  EXPECT_EQ(s.view.text["p15.oname"], "INP200");
}

TEST(RolledIProperties, OutlineHasTwentyOnePointsWithChordedFillets) {
  State s = SectionState();
  WriteHea200(s, 5);
  Choose(s, 1, catHea, 5);
  ComputeSection(s);
  const Section& c = s.section;
  EXPECT_EQ(c.OutlineCount, 21);
  EXPECT_EQ(c.OutlineInnerLast, 1);
  EXPECT_EQ(c.FigHeight, 190.0f);
  EXPECT_EQ(c.FigWidth, 200.0f);
  EXPECT_EQ(c.FigCentroidZ, 95.0f);
  EXPECT_EQ(c.FigCentroidY, 100.0f);
  // First and last points at the lower left corner; the left face of the web at (200-6.5)/2.
  EXPECT_EQ(c.Outline[1].x, 0.0f);
  EXPECT_EQ(c.Outline[1].y, 0.0f);
  EXPECT_EQ(c.Outline[21].x, 0.0f);
  EXPECT_EQ(c.Outline[21].y, 0.0f);
  EXPECT_EQ(c.Outline[3].x, 96.75f - 18);  // fillet starts r from the web on the flange
  EXPECT_EQ(c.Outline[3].y, 10.0f);
  EXPECT_FLOAT_EQ(c.Outline[4].x, 96.75f - 5.4f);  // chord point 0.3 r from web and flange
  EXPECT_FLOAT_EQ(c.Outline[4].y, 15.4f);
  EXPECT_EQ(c.Outline[5].x, 96.75f);
  EXPECT_EQ(c.Outline[5].y, 28.0f);
  EXPECT_EQ(c.Outline[11].x, 200.0f);  // upper right corner
  EXPECT_EQ(c.Outline[11].y, 190.0f);
}

TEST(RolledIProperties, ThickestElementChoosesTheYieldStrength) {
  State s = SectionState();
  // A heavy HEM-like row: tf = 40 takes the thin column, 40.1 the thick one.
  WriteRow(s, catHem, 0, {1, 400, 300, 40, 21, 27, 30000, 900, 200, 10, 8000});
  WriteRow(s, catHem, 1, {2, 400, 300, 40.1f, 21, 27, 30000, 900, 200, 10, 8000});
  Choose(s, 3, catHem, 0);
  ComputeSection(s);
  EXPECT_EQ(s.section.tmax, 40.0f);
  EXPECT_EQ(s.project.fyk, 235.0f);
  Choose(s, 3, catHem, 1);
  ComputeSection(s);
  EXPECT_EQ(s.section.tmax, 40.1f);
  EXPECT_EQ(s.project.fyk, 215.0f);
  // A web thicker than the flange decides.
  WriteRow(s, catHem, 2, {3, 400, 300, 20, 21, 27, 30000, 900, 200, 10, 8000});
  Choose(s, 3, catHem, 2);
  ComputeSection(s);
  EXPECT_EQ(s.section.tmax, 21.0f);
}

TEST(RolledIDispatcher, FlagsOfTheRolledAndChannelFamilies) {
  State s = SectionState();
  WriteHea200(s, 5);
  Choose(s, 1, catHea, 5);
  s.section.ltbRelevant = 0;
  ComputeSection(s);
  EXPECT_EQ(s.section.ltbRelevant, -1);
  EXPECT_EQ(s.section.channelKind, 0);

  WriteRow(s, catUnp, 8,
           {200, 75, 8.5f, 11.5f, 11.5f, 6, 20.1f, 59.5f, 3220, 1910, 148, 0.119f, 9.07f, 228, 51.8f});
  Choose(s, 16, catUnp, 8);
  ComputeSection(s);
  EXPECT_EQ(s.section.ltbRelevant, -1);
  EXPECT_EQ(s.section.channelKind, 2);
}

}  // namespace
}  // namespace vn::test
