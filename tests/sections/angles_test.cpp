// Rolled angles: catalogue columns, corner points about the principal axes, moduli, class under
// compression with the effective area of slender legs, resistances and the figure.
// Published values: EN 10056-1 sizes, ArcelorMittal equal angle table (L 100x100x10) and the SCI
// Blue Book unequal angle table (L 100x75x10). Corner distances and moduli by hand from the
// formulas of the section, in decimals.
#include <gtest/gtest.h>

#include <string>

#include "core/pipeline.h"
#include "core/state.h"
#include "sections/angles.h"
#include "sections/section_fixture.h"

namespace vn::test {
namespace {

// l1.dat: leg, t, r, A, e, v, u2, u1 (heel from the v axis), I x 1e4, Iu x 1e4, Iv x 1e4.
void WriteL100x10(State& s, int row) {
  WriteRow(s, catL1, row, {100, 10, 12, 1920, 28.2f, 70.7f, 35.4f, 39.9f, 176.7f, 280.7f, 72.65f});
}

// l2.dat: h, b, t, r, A, ez, ey, v1, v3, u heel, u1, tan alfa, Iy, Iz, Iu, Iv (x 1e4 each).
void WriteL100x75x10(State& s, int row) {
  WriteRow(s, catL2, row,
           {100, 75, 10, 10, 1660, 31.9f, 19.5f, 69.1f, 54.5f, 32.4f, 15.4f, 0.544f, 162, 77.6f, 197, 42.2f});
}

State Equal100(int grade) {
  State s = SectionState();
  WriteL100x10(s, 27);
  Choose(s, 10, catL1, 27);
  s.project.steelGrade = static_cast<Integer>(grade);
  ComputeSection(s);
  return s;
}

TEST(EqualAngle, L100x100x10MatchesTheTableAndTheHandCalculation) {
  State s = Equal100(kS235);
  const Section& c = s.section;
  EXPECT_TRUE(Near(c.A, 1920, kSingle));  // 19.2 cm2
  EXPECT_EQ(c.ez, 28.2f);
  EXPECT_TRUE(Near(c.Iy, 1.767e6, kSingle));  // 176.7 cm4
  EXPECT_EQ(c.Iz, c.Iy);
  EXPECT_EQ(c.IzDefl, c.Iy);
  EXPECT_TRUE(Near(c.Iu, 2.807e6, kSingle));  // 280.7 cm4
  EXPECT_TRUE(Near(c.Iv, 7.265e5, kSingle));  // 72.65 cm4
  EXPECT_EQ(c.alfa, 45.0f);
  EXPECT_TRUE(Near(c.Wely, 24.6e3, kPublished3));  // Wel = 24.6 cm3
  EXPECT_TRUE(Near(c.Wely, 24610.028, kHand));     // 1.767e6 / (100 - 28.2)
  EXPECT_TRUE(Near(c.Wyb, 62659.574, kHand));      // 1.767e6 / 28.2
  EXPECT_EQ(c.Welz, c.Wely);
  EXPECT_TRUE(Near(c.g, 15.072, kHand));        // 7850 x 1920e-6
  EXPECT_TRUE(Near(c.S, 0.39484956, kHand));    // (400 - 24 + 6 pi) / 1000
  EXPECT_TRUE(Near(c.Ix, 63333.333, kHand));    // t^3 (b - t/2) 2/3
  EXPECT_TRUE(Near(c.Iw, 5.5555556e7, kHand));  // b^3 t^3 / 18
  EXPECT_EQ(c.c, 78.0f);                        // 100 - 10 - 12
}

TEST(EqualAngle, CornerPointsLieSymmetricAndTheHeelOnTheUAxis) {
  State s = Equal100(kS235);
  const Section& c = s.section;
  // v3 = 100 sin 45 - 5 cos 45; u3 = 100 cos 45 - 39.9 + 5 sin 45
  EXPECT_TRUE(Near(c.vPt[3], 67.175146, kHand));
  EXPECT_TRUE(Near(c.uPt[3], 34.346209, kHand));
  EXPECT_EQ(c.vPt[1], c.vPt[3]);
  EXPECT_EQ(c.uPt[1], c.uPt[3]);
  EXPECT_EQ(c.vPt[2], 0.0f);
  EXPECT_EQ(c.uPt[2], 39.9f);
  EXPECT_TRUE(Near(c.Wv[1], 21152.261, kHand));  // Iv / u1
  EXPECT_TRUE(Near(c.Wv[2], 18208.019, kHand));  // Iv / u2, the heel governs
  EXPECT_EQ(c.Wvmin, c.Wv[2]);
  EXPECT_TRUE(Near(c.Wu[1], 41786.287, kHand));  // Iu / v1
  EXPECT_EQ(c.Wu[2], 0.0f);                      // the heel has no distance from u
  EXPECT_EQ(c.Wumin, c.Wu[1]);
}

TEST(EqualAngle, ResistancesAndClassOfAStockyAngle) {
  State s = Equal100(kS235);  // h/t = 10 <= 15 and (b+h)/2t = 10 <= 11.5
  const Section& c = s.section;
  EXPECT_EQ(c.classN, 3);
  EXPECT_EQ(c.classMy, 3);
  EXPECT_EQ(c.classMz, 3);
  EXPECT_TRUE(Near(c.NcRd, 451.2, kHand));  // 1920 x 235 / 1000
  EXPECT_EQ(c.NRdBuck, c.NcRd);             // gammaM0 = gammaM1 = 1
  EXPECT_TRUE(Near(c.MuRdMin, 9.8197770, kHand));
  EXPECT_TRUE(Near(c.MvRdMin, 4.2788846, kHand));
  EXPECT_TRUE(Near(c.MelyAngle, 5.7833564, kHand));
  EXPECT_TRUE(Near(c.MybRd, 14.725, kHand));  // 62659.574 x 235e-6
  // Shear: (100 - 10) / 1.5 x 10 x 235 / sqrt 3 / 1000
  EXPECT_TRUE(Near(c.VzRd, 81.406388, kHand));
  EXPECT_EQ(c.VyRd, c.VzRd);
  EXPECT_TRUE(Near(c.VbzRd, 81.406388, kHand));
}

TEST(EqualAngle, S355MakesTheLegSlenderButNotReduced) {
  State s = Equal100(kS355);  // (b+h)/2t = 10 > 11.5 x 0.8136 = 9.36
  const Section& c = s.section;
  EXPECT_EQ(c.classN, 4);
  EXPECT_EQ(c.classMy, 3);  // bending stays class 3 even with a slender leg
  // lamdaP = 7.8 / (28.4 x 0.8136 x sqrt 0.43) = 0.515 <= 0.748: nothing lost
  EXPECT_EQ(c.Aeff, c.A);
  EXPECT_TRUE(Near(c.NcRd, 681.6, kHand));
}

struct LimitCase {
  float leg, t;
  double expectedClass;
};

// S235: for equal legs (b+h)/2t = h/t, so 11.5 decides; met limits stay class 3.
TEST(EqualAngle, LimitsMetExactlyStayClass3) {
  const LimitCase cases[] = {{115, 10, 3}, {116, 10, 4}, {100, 10, 3}};
  for (const LimitCase& k : cases) {
    State s = SectionState();
    WriteRow(s, catL1, 0, {k.leg, k.t, 1, 2000, 30, 0, 0, 40, 200, 300, 80});
    Choose(s, 10, catL1, 0);
    ComputeSection(s);
    EXPECT_EQ(s.section.classN, k.expectedClass) << k.leg;
  }
}

TEST(EqualAngle, SlenderLegsLoseTheirTips) {
  State s = SectionState();
  // L 150x150x10, r 16, A 2930 mm2, S355: c = 124, c/t = 12.4
  WriteRow(s, catL1, 3, {150, 10, 16, 2930, 40.3f, 106, 53, 57, 624, 990, 258});
  Choose(s, 10, catL1, 3);
  s.project.steelGrade = kS355;
  ComputeSection(s);
  const Section& c = s.section;
  EXPECT_EQ(c.classN, 4);
  // lamdaP = 12.4 / (28.4 x 0.8136165 x 0.6557439) = 0.8183694; rho = 0.9412313
  // Aeff = 2930 - 2 x 124 x (1 - rho) x 10
  EXPECT_TRUE(Near(c.Aeff, 2784.2536, kHand));
  EXPECT_TRUE(Near(c.NcRd, 988.41005, kHand));
  EXPECT_TRUE(Near(c.NtRd, 1040.15, kHand));  // 2930 x 355 / 1000

  s.project.noFlangeBuckling = True;
  ComputeSection(s);
  EXPECT_EQ(s.section.Aeff, s.section.A);
}

State Unequal100x75(int grade) {
  State s = SectionState();
  WriteL100x75x10(s, 23);
  Choose(s, 11, catL2, 23);
  s.project.steelGrade = static_cast<Integer>(grade);
  ComputeSection(s);
  return s;
}

TEST(UnequalAngle, L100x75x10MatchesTheTableAndTheHandCalculation) {
  State s = Unequal100x75(kS235);
  const Section& c = s.section;
  EXPECT_TRUE(Near(c.A, 1660, kSingle));           // 16.6 cm2
  EXPECT_TRUE(Near(c.Iy, 1.62e6, kSingle));        // 162 cm4
  EXPECT_TRUE(Near(c.Iz, 7.76e5, kSingle));        // 77.6 cm4
  EXPECT_TRUE(Near(c.Iu, 1.97e6, kSingle));        // 197 cm4
  EXPECT_TRUE(Near(c.Iv, 4.22e5, kSingle));        // 42.2 cm4
  EXPECT_EQ(c.IzDefl, c.Iy);                       // an angle deflects about z with Iy
  EXPECT_TRUE(Near(c.alfa, 28.546192, kHand));     // atan 0.544 in degrees
  EXPECT_TRUE(Near(c.Wely, 23.8e3, kPublished3));  // Wel,y = 23.8 cm3
  EXPECT_TRUE(Near(c.Welz, 14.0e3, kPublished3));  // Wel,z = 14.0 cm3
  EXPECT_TRUE(Near(c.Wely, 23788.546, kHand));     // 1.62e6 / (100 - 31.9)
  EXPECT_TRUE(Near(c.Welz, 13981.982, kHand));     // 7.76e5 / (75 - 19.5)
  EXPECT_TRUE(Near(c.Ix, 55000, kHand));           // t^3 (70 + 95) / 3
  EXPECT_TRUE(Near(c.Iw, 1.5798611e8, kHand));     // (h^3 + b^3) t^3 / 9
  EXPECT_EQ(c.c1, 55.0f);                          // 75 - 10 - 10
  EXPECT_EQ(c.c2, 80.0f);                          // 100 - 10 - 10
  EXPECT_EQ(c.classN, 3);
}

TEST(UnequalAngle, CornerPointsFromTheCentroidAndTheAngle) {
  State s = Unequal100x75(kS235);
  const Section& c = s.section;
  // cos a = 0.8784313, sin a = 0.4778666 for tan a = 0.544
  EXPECT_TRUE(Near(c.vPt[2], 18.703575, kHand));  // 31.9 cos a - 19.5 sin a
  EXPECT_TRUE(Near(c.vPt[3], 50.151447, kHand));  // 75 sin a + v2 - 5 cos a
  EXPECT_TRUE(Near(c.uPt[3], 35.871742, kHand));  // 75 cos a - 32.4 + 5 sin a
  EXPECT_TRUE(Near(c.vPt[1], 66.750305, kHand));  // 100 cos a - v2 - 5 sin a
  EXPECT_TRUE(Near(c.uPt[1], 19.778872, kHand));  // 100 sin a - 32.4 + 5 cos a
  EXPECT_EQ(c.uPt[2], 32.4f);
  // The heel takes the modulus of point 1 about u.
  EXPECT_TRUE(Near(c.Wu[1], 29512.974, kHand));
  EXPECT_EQ(c.Wu[2], c.Wu[1]);
  EXPECT_TRUE(Near(c.Wu[3], 39281.020, kHand));
  EXPECT_EQ(c.Wumin, c.Wu[1]);
  EXPECT_TRUE(Near(c.Wv[3], 11764.134, kHand));  // the end of the short leg governs about v
  EXPECT_EQ(c.Wvmin, c.Wv[3]);
  // Shear of each leg: (h - t) and (b - t), / 1.5 x t x fyd / sqrt 3
  EXPECT_TRUE(Near(c.VzRd, 81.406388, kHand));
  EXPECT_TRUE(Near(c.VyRd, 58.793502, kHand));
}

TEST(UnequalAngle, EachSlenderLegLosesItsOwnStrip) {
  State s = SectionState();
  // 150 x 100 x 8, r 10, S235: h/t = 18.75 > 15. c1 = 82 (lamdaP 0.550, kept),
  // c2 = 132: lamdaP = 16.5 / 18.623 = 0.8859952, rho2 = 0.8891800
  WriteRow(s, catL2, 0, {150, 100, 8, 10, 1900, 50, 25, 0, 0, 30, 0, 0.44f, 450, 160, 520, 90});
  Choose(s, 11, catL2, 0);
  ComputeSection(s);
  EXPECT_EQ(s.section.classN, 4);
  EXPECT_TRUE(Near(s.section.Aeff, 1782.9741, kHand));  // 1900 - 132 (1 - rho2) 8
  EXPECT_TRUE(Near(s.section.NcRd, 418.99893, kHand));  // Aeff x 235 / 1000
}

TEST(Angles, NameOutlineAndFigure) {
  State s = Equal100(kS235);
  EXPECT_EQ(s.view.text["p10.oname"], "L 100x100x10");
  const Section& c = s.section;
  EXPECT_EQ(c.OutlineCount, 9);
  EXPECT_EQ(c.Outline[1].x, c.Outline[9].x);
  EXPECT_EQ(c.Outline[1].y, c.Outline[9].y);
  EXPECT_FLOAT_EQ(c.FigCentroidZ, 71.8f);  // h - ez: the heel at the top
  EXPECT_EQ(c.FigCentroidY, 28.2f);
  // The two ends of the u axis straddle the centroid, falling to the right at 45 degrees.
  const OutlinePoint a = c.Outline[10], b = c.Outline[11];
  EXPECT_FLOAT_EQ((a.x + b.x) / 2, c.FigCentroidY);
  EXPECT_FLOAT_EQ((a.y + b.y) / 2, c.FigCentroidZ);
  EXPECT_NEAR(b.x - a.x, a.y - b.y, 1e-3);

  State u = Unequal100x75(kS235);
  EXPECT_EQ(u.view.text["p11.oname"], "L 100x75x10");
  EXPECT_EQ(u.section.ltbRelevant, 0);
}

// The dialog shows the principal values and the least resistances about u and v.
TEST(Angles, DialogShowsThePrincipalValues) {
  State s = Equal100(kS235);
  ShowSectionValues(s);
  auto line = [&](const std::string& label) -> std::string {
    for (const auto& l : s.view.sectionValues)
      if (l.label == label) return l.value + "|" + l.unit;
    return "missing";
  };
  EXPECT_EQ(line("t ="), "10.0| mm");
  EXPECT_EQ(line("alfa ="), "45.0| deg");
  EXPECT_EQ(line("Iv ="), "7.265E+5| mm4");
  EXPECT_EQ(line("Wel,v ="), "1.821E+4| mm3 (min)");
  EXPECT_EQ(line("Cross Section Class: "), "3/3/3|(N/My/Mz)");
  EXPECT_EQ(line("Nc,Rd ="), "451.2| kN");
  EXPECT_EQ(line("Vc,z,Rd ="), "81.4| kN");
  EXPECT_EQ(line("Mu,Rd ="), "9.8| kNm (min)");
  EXPECT_EQ(line("Mv,Rd ="), "4.3| kNm (min)");
  EXPECT_EQ(line("Wpl,y ="), "missing");  // an angle has no plastic moduli
}

TEST(Angles, AnEmptyRowEndsInTheCalculationFault) {
  State s = SectionState();
  Choose(s, 10, catL1, 5);
  EXPECT_THROW(ComputeSection(s), CalcFault);
}

}  // namespace
}  // namespace vn::test
