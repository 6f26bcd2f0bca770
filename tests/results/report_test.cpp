// The printed reports: the head, the blocks in their order with the report's own labels, the
// notes of the design options, and the stability report's loads, buckling parameters and controls.
#include <gtest/gtest.h>

#include <string>
#include <vector>

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
  const std::vector<Line> lines{{"h =", "190", " mm", ""},
                                {"b =", "200", " mm", ""},
                                {"A =", "5383", " mm2", ""},
                                {"Iy =", "3.692E+7", " mm4", ""},
                                {"g =", "42.3", " kg/m", ""},
                                {"S =", "1.136", " m2/m", ""},
                                {"Top flange in compression", "", "", ""},
                                {"Cross Section Class: ", "1/1/1", "(N/My/Mz)", ""},
                                {"Nc,Rd =", "1265.0", " kN", ""}};
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

// Each label of the two reports stands where its condition holds and nowhere else. The expected
// numbers are hand values: C1 1.12 and C2 0.45 for a q-load on a simple beam at k = 1; C1 1.00 for a
// uniform moment at k = 1; C1 1.77 and C3 1.00 for a part from zero to the peak (psi = 0) at k = 1;
// the modal mass of HEA 300 (A = 11250 mm2) under q = 10 kN/m, 102 * 10 + 88.3 = 1108 kg/m, and
// its first frequency 1.57 * sqrt(1.826E8 * 210000 * 1E-6 / (5^4 * 1108.3)) = 11.68 Hz.
struct LabelCase {
  const char* name;
  void (*setup)(State&);
  ReportKind kind;
  std::vector<const char*> present, absent;
};

// The default project (HEA 300, simple beam, L = 5 m, N = 100, q = 10 kN/m) with the lateral
// torsional control on at k = 1, for each case to change.
void Beam(State& s) {
  Project& p = s.project;
  p.ltbOn = 1;
  p.ltbFactor = 1;
  p.ltbRestraints = 0;
  p.ltbCurve = 3;
  p.ltbLoadLevel = 1;
  p.ltbUserC = False;
  p.ltbUserC1 = False;
}

void Run(State& s, void (*change)(Project&)) {
  Beam(s);
  change(s.project);
  Recalculate(s);
}

void Family(State& s, const char* first, const char* then) {
  Fire(s, first);
  Fire(s, then);
}

const LabelCase kLabelCases[] = {
    {"beam mode",
     [](State& s) { Run(s, [](Project&) {}); },
     ReportKind::Stability,
     {"Loading information: (kN/kNm/m)", "Loading/Moment: (kN/kNm/m)", "Buckling parameters:",
      "Lateral buckling parameters:", "Mb,Rd = ", " kNm  (lateral torsional buckling)",
      "   C1/C2 = 1.12/0.45\n", "Lateral torsional buckling curves: Rolled or welded I-sections (ch 6.3.2.3)",
      "Interaction factors kij: Method", "End post: Non-rigid"},
     {"Endforces:", "C1/C2/C3", "C1/C3", "   C1 = ", "(from CoG)", "Advanced calculation of C1",
      "General Case", ":Lateral torsional control", "Mass m", "Web stiffener"}},
    {"general curve",
     [](State& s) { Run(s, [](Project& p) { p.ltbCurve = 2; }); },
     ReportKind::Stability,
     {"Lateral torsional buckling curves: General Case (conservative, ch 6.3.2.2)"},
     {"Rolled or welded"}},
    {"end forces, equal moments",
     [](State& s) {
       Fire(s, "mnuendforces");
       Run(s, [](Project& p) {
         p.AnalysisMode = 0;
         p.My12 = {0, 100, 100};
       });
     },
     ReportKind::Stability,
     {"Endforces: (kN/kNm/m)", "   C1 = 1.00\n"},
     {"Loading information:", "Loading/Moment:", "C1/C2", "(from CoG)"}},
    {"typed load height",
     [](State& s) { Run(s, [](Project& p) { p.ltbLoadLevel = 4, p.ltbZa = 150; }); },
     ReportKind::Stability,
     {"150 mm  (from CoG)"},
     {}},
    {"typed load height with a restraint",
     [](State& s) { Run(s, [](Project& p) { p.ltbLoadLevel = 4, p.ltbZa = 150, p.ltbRestraints = 1; }); },
     ReportKind::Stability,
     {"   C1 = 1.77\n"},
     {"(from CoG)"}},
    {"user C factors",
     [](State& s) { Run(s, [](Project& p) { p.ltbUserC = True, p.ltbC1 = 1.5, p.ltbC2 = 0.3; }); },
     ReportKind::Stability,
     {"   C1/C2 = 1.50/0.30\n"},
     {"Advanced calculation of C1"}},
    {"closed formula for C1",
     [](State& s) { Run(s, [](Project& p) { p.ltbUserC1 = True; }); },
     ReportKind::Stability,
     {"Advanced calculation of C1", "   C1/C2 = "},
     {}},
    {"closed formula for C1 between restraints",
     [](State& s) { Run(s, [](Project& p) { p.ltbUserC1 = True, p.ltbRestraints = 1; }); },
     ReportKind::Stability,
     {"   C1 = 1.77\n"},
     {"Advanced calculation of C1"}},
    {"restraint, the later of two equal parts governs",
     [](State& s) { Run(s, [](Project& p) { p.ltbRestraints = 1; }); },
     ReportKind::Stability,
     {"Number of lateral restraint of compression flange: 1", " kNm  (1L/2 -  L :Lateral torsional control)",
      "   C1 = 1.77\n"},
     {"(lateral torsional buckling)", "C1/C2"}},
    {"single symmetric I, user C factors",
     [](State& s) {
       Fire(s, "mnup22");
       Run(s, [](Project& p) { p.ltbUserC = True, p.ltbC1 = 1.5, p.ltbC2 = 0.3, p.ltbC3 = 0.4; });
     },
     ReportKind::Stability,
     {"Profile: I 600x200/400x12x20/20 (Single sym)", "   C1/C2/C3 = 1.50/0.30/0.40\n"},
     {"   C1/C2 = ", "C1/C3"}},
    {"single symmetric I between restraints",
     [](State& s) {
       Fire(s, "mnup22");
       Run(s, [](Project& p) { p.ltbRestraints = 1; });
     },
     ReportKind::Stability,
     {"   C1/C3 = 1.77/1.00\n"},
     {"C1/C2"}},
    {"lateral control off",
     [](State& s) { Run(s, [](Project& p) { p.ltbOn = 0; }); },
     ReportKind::Stability,
     {},
     {"Lateral buckling parameters:", "Mb,Rd", "C1", "Lateral torsional buckling curves"}},
    {"modal analysis",
     [](State& s) { Run(s, [](Project& p) { p.chModal = 1; }); },
     ReportKind::Stability,
     {"f1 = 11.68 Hz", "Mass m = 1108 kg/m (Selfweigth + q-loads)"},
     {}},
    // The box ticked after a modal run of a longer member, without a run since (ticking does not
    // recalculate): no frequencies of the other member, no "Mass m = 0".
    {"modal box ticked since the last run",
     [](State& s) {
       Run(s, [](Project& p) { p.chModal = 1, p.L = 8; });
       Fire(s, "ch_modal", "0");
       Fire(s, "il", "5");
       Fire(s, "ch_modal", "1");
     },
     ReportKind::Stability,
     {},
     {"Modal analysis:", "Mass m", "f1 = "}},
    {"web stiffeners",
     [](State& s) { Run(s, [](Project& p) { p.webStiffeners = 1, p.a = 1000; }); },
     ReportKind::Stability,
     {"Web stiffener: c/c 1000 mm"},
     {}},
    {"safety class 3 of the Swedish code",
     [](State& s) { Run(s, [](Project& p) { p.LoadCombMode = 0, p.codeIndex = 2, p.safetyClass = 3; }); },
     ReportKind::Stability,
     {"Safety Class: 3"},
     {"Reliability Class", "Consequences Class"}},
    {"T after IPE, section",
     [](State& s) { Family(s, "mnup04", "mnu26"); },
     ReportKind::SectionCapacity,
     {"Profile:  T 200x200x10x10\n"},
     {"IPE"}},
    {"T after IPE, stability",
     [](State& s) { Family(s, "mnup04", "mnu26"); },
     ReportKind::Stability,
     {"Profile: T 200x200x10x10\n"},
     {"IPE", "Interaction factors", "Lateral buckling", "End post"}},
    {"flat bar after HEB, section",
     [](State& s) { Family(s, "mnup02", "mnup28"); },
     ReportKind::SectionCapacity,
     {"Profile:   Fb 150x12\n"},
     {"HEB"}},
    {"flat bar after HEB, stability",
     [](State& s) { Family(s, "mnup02", "mnup28"); },
     ReportKind::Stability,
     {"Profile: Fb 150x12\n"},
     {"HEB"}},
    {"tube after IPE, section",
     [](State& s) { Family(s, "mnup04", "mnup31"); },
     ReportKind::SectionCapacity,
     {"Profile:   Tube 300x10 (Hot finished)\n"},
     {"IPE", "Cold"}},
    {"cold formed tube, stability",
     [](State& s) {
       Family(s, "mnup04", "mnup31");
       Fire(s, "p31.optcold");
     },
     ReportKind::Stability,
     {"Profile: Tube 300x10 (Cold formed)\n"},
     {"IPE", "Hot", "Lateral buckling", "End post"}},
    {"HSQ, section",
     [](State& s) { Fire(s, "mnup24"); },
     ReportKind::SectionCapacity,
     {"Profile:  HSQ ",
      "Topflange in compression:", "Bottom flange in compression:", "Shear capacity:", "Vc,z,Rd"},
     {"Top flange in compression", "Non symm"}},
    {"HSQ, stability",
     [](State& s) { Fire(s, "mnup24"); },
     ReportKind::Stability,
     {"Profile: HSQ "},
     {"  (Non symm fl)", "Buckling parameters:", "Lateral buckling parameters:", "Interaction factors"}},
    {"HSQ with unequal flanges, stability",
     [](State& s) { Fire(s, "mnup25"); },
     ReportKind::Stability,
     {"Profile: HSQ ", "  (Non symm fl)\n"},
     {}},
    {"box, section",
     [](State& s) { Fire(s, "mnup23"); },
     ReportKind::SectionCapacity,
     {"Profile:   Box 600x600x10x20\n", "Capacity:"},
     {"Topflange", "Shear capacity:"}},
    {"box with unequal flanges, section",
     [](State& s) { Fire(s, "mnup27"); },
     ReportKind::SectionCapacity,
     {"Profile:   Box ", "Topflange in compression:", "Bottom flange in compression:", "Shear capacity:"},
     {}},
    {"box with unequal flanges, stability",
     [](State& s) { Fire(s, "mnup27"); },
     ReportKind::Stability,
     {"Profile: Box ", "  (Non symm fl)\n"},
     {"Buckling parameters:"}},
};

TEST(ReportLabels, StandWhereTheirConditionHolds) {
  for (const LabelCase& c : kLabelCases) {
    SCOPED_TRACE(c.name);
    State s = StartedState();
    c.setup(s);
    ASSERT_FALSE(s.project.calcError) << s.view.text["txtError"];
    const std::string text = ReportText(BuildReport(s, c.kind, "", ""));
    for (const char* want : c.present) EXPECT_NE(At(text, want), std::string::npos) << want << "\n" << text;
    for (const char* not_wanted : c.absent)
      EXPECT_EQ(At(text, not_wanted), std::string::npos) << not_wanted << "\n" << text;
  }
}

}  // namespace
}  // namespace vn::test
