// The printed reports: the head, the blocks in their order with the report's own labels, the
// notes of the design options, and the stability report's loads, buckling parameters and controls.
#include <gtest/gtest.h>

#include <string>

#include "core/events.h"
#include "core/recalculate.h"
#include "results/report.h"
#include "support/test_support.h"

namespace vn::test {
namespace {

// Where a text stands in the report's text, or npos.
size_t At(const std::string& text, const std::string& what) { return text.find(what); }

// Every text in the order given.
void ExpectInOrder(const std::string& text, std::initializer_list<const char*> parts) {
  size_t from = 0;
  for (const char* part : parts) {
    const size_t at = text.find(part, from);
    ASSERT_NE(at, std::string::npos) << "missing or out of order: \"" << part << "\"\n" << text;
    from = at + 1;
  }
}

TEST(SectionValues, FallIntoTheirThreeFrames) {
  using Line = View::Line;
  const std::vector<Line> lines{{"h =", "190", " mm"},
                                {"b =", "200", " mm"},
                                {"A =", "5383", " mm2"},
                                {"Iy =", "3.692E+7", " mm4"},
                                {"g =", "42.3", " kg/m"},
                                {"S =", "1.136", " m2/m"},
                                {"Top flange in compression", "", ""},
                                {"Cross Section Class: ", "1/1/1", "(N/My/Mz)"},
                                {"Nc,Rd =", "1265.0", " kN"}};
  const SectionBlocks b = SplitSectionValues(lines);
  ASSERT_EQ(b.dimensions.size(), 4u);  // h, b, g, S
  EXPECT_EQ(b.dimensions[2].label, "g =");
  EXPECT_EQ(b.properties.size(), 2u);  // A, Iy
  ASSERT_EQ(b.capacity.size(), 3u);    // the heading goes with the class it stands above
  EXPECT_EQ(b.capacity[0].label, "Top flange in compression");
}

// The default project (HEA 300 in S355, gammaM0 1.00): the head, the material with its formats
// ("###", "##.0", "0.000E+0", "#.00"), the profile and the three blocks of the dialog's values.
TEST(SectionReport, HeadMaterialProfileAndBlocksInOrder) {
  State s = StartedState();
  Fire(s, "mnup01");
  const std::string text = ReportText(BuildReport(s, ReportKind::SectionCapacity, "23.11.2026", "14:05:09"));
  ExpectInOrder(text, {"Section Property and Capacity",
                       "Project: ",
                       "Identification: ",
                       "Page:1/1",
                       "Date: 23.11.2026",
                       "Time: 14:05:09",
                       "File: ",
                       "Material: S355",
                       "fy 355 MPa",
                       "fd 355.0 MPa",
                       "E 2.100E+5 MPa",
                       "gm0 1.00",
                       "Profile:   HEA",
                       "Dimensions and weight:",
                       "h =",
                       "g =",
                       "Section property:",
                       "A =",
                       "Capacity:",
                       "Cross Section Class: ",
                       "My,Rd ="});
  EXPECT_EQ(At(text, "Elastic design"), std::string::npos);
}

// The design options that change a resistance leave their note; an angle tells its force transfer.
TEST(SectionReport, NotesOfTheDesignOptions) {
  // HEB 300 is class 1.
  State s = StartedState();
  Fire(s, "mnup02");
  ASSERT_EQ(s.section.classMy, 1);
  s.project.elasticClass12 = True;
  Recalculate(s);
  std::string text = ReportText(BuildReport(s, ReportKind::SectionCapacity, "", ""));
  EXPECT_NE(At(text, "Cross Section Class 1-2: Elastic design"), std::string::npos);

  // SHS 200x200x5 is class 4; with flange and web buckling left out.
  Fire(s, "mnup06");
  Fire(s, "p06.cbo", "66");
  s.project.noFlangeBuckling = True;
  s.project.noWebBuckling = True;
  Recalculate(s);
  text = ReportText(BuildReport(s, ReportKind::SectionCapacity, "", ""));
  EXPECT_NE(At(text, "Section class 4: Flange/Web buckling not taken into account"), std::string::npos);
  EXPECT_NE(At(text, "  RHS 200x200x5 (Hotf.)"), std::string::npos);

  Fire(s, "mnup10");
  Fire(s, "p10.opt_l10_2");
  text = ReportText(BuildReport(s, ReportKind::SectionCapacity, "", ""));
  EXPECT_NE(At(text, "Force transfer:  Two bolts (Ref EC3, BB.1.2)"), std::string::npos);
}

// The default project's stability report: gammas, the member, its loads in the beam mode, the
// buckling table, the method of the interaction factors, and the summary's lines with their ratios.
TEST(StabilityReport, MemberLoadsParametersAndControls) {
  State s = StartedState();
  const std::string text = ReportText(BuildReport(s, ReportKind::Stability, "", ""));
  ExpectInOrder(text, {"Section and Stability Control",
                       "gm0/gm1 = 1.00/1.00",
                       "Profile: HEA300",
                       "Geometry/Loading:",
                       "L = 5.000 m",
                       "Loading information: (kN/kNm/m)",
                       "G=Permanent; Q1/Q2=Variable, Q1 = Main",
                       "    N = 100.0 (G)",
                       "Loading in z-direction:",
                       "q 10.000  G",
                       "Selfweight of member",
                       "Psi(Q1/Q2) = ",
                       "Buckling parameters:",
                       "Buckling length factor",
                       "Buckling Curve",
                       "Slenderness lamda =",
                       "Interaction factors kij: Method",
                       "SECTION CONTROL:",
                       "IR = My,Ed/My,Rd = ",
                       "[OK]",
                       "BUCKLING CONTROL:"});
}

// End forces take the place of the load tables.
TEST(StabilityReport, EndForcesInPlaceOfTheLoads) {
  State s = StartedState();
  Fire(s, "mnuendforces");
  s.project.AnalysisMode = 0;
  Recalculate(s);
  const std::string text = ReportText(BuildReport(s, ReportKind::Stability, "", ""));
  EXPECT_NE(At(text, "Endforces: (kN/kNm/m)"), std::string::npos);
  EXPECT_EQ(At(text, "Loading information:"), std::string::npos);
}

}  // namespace
}  // namespace vn::test
