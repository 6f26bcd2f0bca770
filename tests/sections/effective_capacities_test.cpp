// Effective section (EN 1993-1-5) and resistances of the rolled I routines: a slender section checked
// by hand, the switches of the setup, the modulus that the class selects and the shear areas.
#include <gtest/gtest.h>

#include "core/pipeline.h"
#include "sections/rolled_i.h"
#include "sections/section_fixture.h"

namespace vn::test {
namespace {

// A slender plate girder written as an HEA row: h 600, b 400, tf 10, tw 5, r 0, A 10900 mm2,
// Iy 777.5e6, Iz 106.5e6 (rounded from the plates' 777.6e6 and 106.7e6). S235, epsilon = 1.
State SlenderGirder() {
  State s = SectionState();
  WriteRow(s, catHea, 20, {600, 600, 400, 10, 5, 0, 10900, 777.5f, 106.5f, 0.25f, 9000});
  Choose(s, 1, catHea, 20);
  return s;
}

// Hea 200, S235: no reduction anywhere.
State Hea200() {
  State s = SectionState();
  WriteRow(s, catHea, 5, {200, 190, 200, 10, 6.5f, 18, 5383, 36.92f, 13.36f, 0.2098f, 108.0f});
  Choose(s, 1, catHea, 5);
  return s;
}

TEST(RolledIEffective, SlenderSectionLosesFlangeAndWebStrips) {
  State s = SlenderGirder();
  ComputeSection(s);
  const Section& c = s.section;
  // c = (400 - 5)/2 = 197.5, c/tf = 19.75; d = hw = 580, d/tw = 116.
  // Compression:
  //  flange lamdaP = 19.75/(28.4*sqrt(0.43)) = 19.75/18.6231 = 1.060509,
  //         rho = (1.060509 - 0.188)/1.060509^2 = 0.775784;
  //  web    lamdaP = 116/(28.4*2) = 2.042253, rho = (2.042253 - 0.22)/2.042253^2 = 0.436908;
  //  Aeff = 10900 - 4*197.5*(1 - 0.775784)*10 - (1 - 0.436908)*580*5
  //       = 10900 - 1771.30 - 1632.97 = 7495.729
  EXPECT_TRUE(Near(c.Aeff, 7495.729, kHand));
  // Bending about y, the compressed flange first:
  //  AeffW = 10900 - 2*0.224216*197.5*10 = 10014.348
  //  centroid from the compressed edge = (600*10900/2 - 2*0.224216*197.5*10^2/2)/10014.348 = 326.0893
  //  bc = 326.0893 - 10 - 0 = 316.0893, psi = -(580 - 316.0893)/316.0893 = -0.834925
  //  ksigma = 7.81 + 6.29*0.834925 + 9.78*0.834925^2 = 19.87930
  //  lamdaP = 116/(28.4*sqrt(19.8793)) = 0.916092 > 0.5 + sqrt(0.085 + 0.055*0.834925) = 0.86183
  //  rho = (0.916092 - 0.055*(3 - 0.834925))/0.916092^2 = 0.949702
  //  strip t = (1 - 0.949702)*5*316.0893 = 79.4939 mm2 at
  //  p = 326.0893 - 0.6*0.949702*316.0893 - (1 - 0.949702)*316.0893/2 = 138.0256
  //  AeffW = 10014.348 - 79.494 = 9934.855
  //  centroidEff = (3270000 - 79.4939*138.0256 - 4428.30)/9934.855 = 327.5941
  //  I (edge) = 600^2*10900/4 + 777.5e6 - 5*(15.898)^3/12 - 79.4939*138.0256^2
  //             - 4428.30*10^2/12 - 4428.30*25 = 1756.954e6
  //  Weffy = (1756.954e6 - 9934.855*327.5941^2)/327.5941 = 2.108606e6
  EXPECT_TRUE(Near(c.Weffy, 2108605.87, kHand));
  // Bending about z: lamdaP = 19.75/(28.4*sqrt(0.57)) = 0.921110, rho = 0.864065, lost strip
  //  (1 - 0.864065)*197.5 = 26.847 at each of the four tips:
  //  AeffW = 10900 - 2*10*26.847 = 10363.056
  //  centroidEff = (400*10900/2 - 2*10*26.847*(400 - 13.423))/10363.056 = 190.3329
  //  I = 400^2*10900/4 + 106.5e6 - 2*10*26.847^3/12 - 2*10*26.847*386.577^2
  //  Weffz = (I - 10363.056*190.3329^2)/190.3329 = 456084.4
  EXPECT_TRUE(Near(c.Weffz, 456084.4, kHand));
  // Gross values differ: A 10900, Wely = 777.5e6/300 = 2.5917e6, Welz = 106.5e6/200 = 532500.
  EXPECT_LT(c.Aeff, c.A);
  EXPECT_LT(c.Weffy, c.Wely);
  EXPECT_LT(c.Weffz, c.Welz);

  // Class 4 everywhere: web 116 >= 42 and 124, flange 19.75 >= 14 and 15.85.
  EXPECT_EQ(c.classN, 4);
  EXPECT_EQ(c.classMy, 4);
  EXPECT_EQ(c.classMz, 4);
  // NcRd = 7495.729*235/1000 = 1761.496; My,Rd = 2108605.87*235/1e6 = 495.522;
  // Mz,Rd = 456084.4*235/1e6 = 107.1798.
  EXPECT_TRUE(Near(c.NcRd, 1761.496, kHand));
  EXPECT_TRUE(Near(c.MyRdClass, 495.5224, kHand));
  EXPECT_TRUE(Near(c.MzRdClass, 107.1798, kHand));
  EXPECT_FLOAT_EQ(c.Wy, 2108605.87f);
  // NtRd stays gross: 10900*235/1000 = 2561.5
  EXPECT_DOUBLE_EQ(c.NtRd, 2561.5);
}

TEST(RolledIEffective, NoFlangeBucklingKeepsTheFlangesButNotTheClass) {
  State s = SlenderGirder();
  s.project.noFlangeBuckling = True;
  ComputeSection(s);
  const Section& c = s.section;
  // Only the web is reduced: 10900 - (1 - 0.436908)*580*5 = 9267.032
  EXPECT_TRUE(Near(c.Aeff, 9267.032, kHand));
  // Symmetric again: centroid 300, bc = 290, psi = -1 exactly, ksigma = 23.88 (middle formula),
  // lamdaP = 116/(28.4*sqrt(23.88)) = 0.835839 <= 0.5 + sqrt(0.14) = 0.874166: no web loss, and
  // Weffy = Iy/(h/2) = 777.5e6/300 = 2591666.7
  EXPECT_TRUE(Near(c.Weffy, 2591666.67, kHand));
  EXPECT_EQ(c.Weffz, c.Welz);  // no loss about z: the whole flange counts
  EXPECT_EQ(c.classN, 4);      // the class still follows c/tf = 19.75
  EXPECT_EQ(c.classMy, 4);
}

TEST(RolledIEffective, NoWebBucklingKeepsTheWeb) {
  State s = SlenderGirder();
  s.project.noWebBuckling = True;
  ComputeSection(s);
  // 10900 - 4*197.5*(1 - 0.775784)*10 = 9128.697
  EXPECT_TRUE(Near(s.section.Aeff, 9128.697, kHand));
  // The flange shift alone: centroidEff = 326.0893, Weffy = 2127032.4
  EXPECT_TRUE(Near(s.section.Weffy, 2127032.41, kHand));
}

TEST(RolledIEffective, StockySectionKeepsItsGrossValues) {
  State s = Hea200();
  ComputeSection(s);
  const Section& c = s.section;
  EXPECT_EQ(c.Aeff, c.A);
  // psi = -1, no loss: Weffy = (h^2 A/4 + Iy - A (h/2)^2)/(h/2) = Iy/95
  EXPECT_TRUE(Near(c.Weffy, c.Wely, kSingle));
  EXPECT_TRUE(Near(c.Weffz, c.Welz, kSingle));
}

TEST(RolledICapacities, Hea200Resistances) {
  State s = Hea200();
  ComputeSection(s);
  const Section& c = s.section;
  EXPECT_EQ(c.classN, 1);
  EXPECT_EQ(c.classMy, 1);
  EXPECT_EQ(c.classMz, 1);
  // NtRd = NcRd = 5383*235/1000 = 1265.005
  EXPECT_TRUE(Near(c.NtRd, 1265.005, kSingle));
  EXPECT_TRUE(Near(c.NcRd, 1265.005, kSingle));
  // Mpl,y = 429484.6*235/1e6 = 100.9289; Mpl,z = 203817.9*235/1e6 = 47.8972
  EXPECT_TRUE(Near(c.MyRdClass, 100.9289, kHand));
  EXPECT_TRUE(Near(c.MzRdClass, 47.8972, kHand));
  EXPECT_EQ(c.Wy, c.Wply);
  EXPECT_EQ(c.Wz, c.Wplz);
  // Flanges alone: (190 - 10)*10*200*235/1e6 = 84.6; (200^2/4 + 200^2/4)*10*235/1e6 = 47.0
  EXPECT_TRUE(Near(c.MfyRd, 84.6, kHand));
  EXPECT_TRUE(Near(c.MfzRd, 47.0, kHand));
  // Avz = 5383 - 2*200*10 + (36 + 6.5)*10 = 1808 (published 18.08 cm2), above 170*6.5 = 1105.
  EXPECT_DOUBLE_EQ(c.Avz, 1808);
  // VzRd = 1808*(235/sqrt 3)/1000 = 245.3046
  EXPECT_TRUE(Near(c.VzRd, 245.3046, kHand));
  EXPECT_TRUE(Near(c.VplRd, 245.3046, kHand));
  // Avy = 2*200*10 = 4000, VyRd = 4000*(235/sqrt 3)/1000 = 542.7093
  EXPECT_DOUBLE_EQ(c.Avy, 4000);
  EXPECT_TRUE(Near(c.VyRd, 542.7093, kHand));
}

TEST(RolledICapacities, ElasticClass12GivesTheElasticMomentToClassOne) {
  State s = Hea200();
  s.project.elasticClass12 = True;
  ComputeSection(s);
  const Section& c = s.section;
  EXPECT_EQ(c.classMy, 1);  // the shown class stays 1
  // Mel,y = (36.92e6/95)*235/1e6 = 91.3284; Mel,z = 133600*235/1e6 = 31.396
  EXPECT_TRUE(Near(c.MyRdClass, 91.3284, kHand));
  EXPECT_EQ(c.MyRdClass, c.MelyRd);
  EXPECT_EQ(c.Wy, c.Wely);
  EXPECT_TRUE(Near(c.MzRdClass, 31.396, kHand));
}

TEST(RolledICapacities, BucklingResistancesUseGammaM1) {
  State s = Hea200();
  s.project.gammaM0 = 1.05;
  s.project.gammaM1 = 1.1f;
  ComputeSection(s);
  const Section& c = s.section;
  // NcRd = 5383*235/1.05/1000 = 1204.767; NRdBuck = NcRd*1.05/1.1 = 1150.005
  EXPECT_TRUE(Near(c.NcRd, 1204.767, kHand));
  EXPECT_TRUE(Near(c.NRdBuck, 1150.005, kHand));
  EXPECT_TRUE(Near(c.MyRdBuck, 100.9289 / 1.1, kHand));
}

TEST(RolledICapacities, LowerBoundOfTheShearAreaWithEta) {
  // h 400, b 200, tf 10, tw 10, r 0, A 7800: A - 2 b tf + tw tf = 3900, below
  // neta hw tw = 1.2*380*10 = 4560, which governs. hw/tw = 38 < 72/1.2 = 60: stocky.
  State s = SectionState();
  s.project.neta = 1.2f;
  WriteRow(s, catHeb, 0, {400, 400, 200, 10, 10, 0, 7800, 200, 13, 1, 100});
  Choose(s, 2, catHeb, 0);
  ComputeSection(s);
  EXPECT_TRUE(Near(s.section.Avz, 4560, kSingle));
  // VzRd = 4560*(235/sqrt 3)/1000 = 618.6885
  EXPECT_TRUE(Near(s.section.VzRd, 618.6885, kHand));
}

TEST(RolledICapacities, SlenderWebUsesTheShearBucklingFactor) {
  State s = SlenderGirder();
  s.project.gammaM1 = 1.1f;
  ComputeSection(s);
  const Section& c = s.section;
  // hw/tw = 580/5 = 116 >= 72: lamdaW = 580/(86.4*5) = 1.342593, chiW = 0.83/1.342593 = 0.618207,
  // Avz = 5*580 = 2900, VzRd = 2900*0.618207*235/sqrt 3/1.1/1000 = 221.1294
  EXPECT_DOUBLE_EQ(c.Avz, 2900);
  EXPECT_TRUE(Near(c.VzRd, 221.1294, kHand));
  // VplRd = 2900*(235/sqrt 3)/1000 = 393.4642, with gammaM0
  EXPECT_TRUE(Near(c.VplRd, 393.4642, kHand));
}

TEST(RolledICapacities, RowOfZerosFaultsInsteadOfGivingNaN) {
  State s = SectionState();
  Choose(s, 1, catHea, 3);
  EXPECT_THROW(ComputeSection(s), CalcFault);
  for (int type : {2, 3, 4, 5, 15, 16, 102}) {
    s.project.ProfileType = static_cast<Integer>(type);
    EXPECT_THROW(ComputeSection(s), CalcFault) << "ProfileType " << type;
  }
  s.project.ProfileType = 101;
  EXPECT_THROW(ComputeSection(s), CalcFault);
  s.project.ProfileType = 103;
  s.project.subFamily103 = 2;
  EXPECT_THROW(ComputeSection(s), CalcFault);
}

}  // namespace
}  // namespace vn::test
