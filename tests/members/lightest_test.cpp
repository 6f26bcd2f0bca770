// The lightest section that passes: a hand-checked beam, the project left as it was, the same list
// with one and with two threads, and each listed row giving what choosing it by hand gives.
#include <gtest/gtest.h>

#include "core/events.h"
#include "core/state.h"
#include "members/lightest.h"
#include "support/test_support.h"

namespace vn {
namespace {

void FireAll(State& s, const std::vector<std::pair<std::string, std::string>>& events) {
  for (const auto& [control, text] : events) {
    const EventResult r = Fire(s, control, text);
    ASSERT_TRUE(r.known) << control;
    ASSERT_FALSE(r.refused) << control << ": " << r.message;
  }
}

// IPE in S235, 6 m, simply supported, laterally restrained, no axial force, q = 16 kN/m under
// "Basic loads" (factor 1): MEd = 16 * 6^2 / 8 = 72.0 kNm at midspan, where the shear is nil, so
// bending governs with the plastic resistance of the class 1 section (gamma M0 = 1.0):
//   IPE 240: Wpl,y = 367 cm3 -> Mpl,Rd = 367e3 * 235 / 1.0 = 86.2 kNm, IR = 72.0 / 86.2 = 0.835
//   IPE 220: Wpl,y = 285 cm3 -> Mpl,Rd = 285e3 * 235 / 1.0 = 67.0 kNm, IR = 72.0 / 67.0 = 1.075
// (Wpl,y from the ArcelorMittal tables). So IPE 240 is the lightest that passes and IPE 220, the
// next lighter row, fails by the section control My,Ed / My,Rd.
State RestrainedIpeBeam() {
  State s = test::StartedState();
  FireAll(s, {{"mnup04", ""},
              {"p04.cbo", "10"},
              {"cbofyk", "0"},
              {"il", "6"},
              {"CboLoadComb", "5"},
              {"Loading.inn(1)", "0"},
              {"Loading.iq(1)", "16"},
              {"ch_vipp", "0"}});
  return s;
}

const CatalogueFamily& Family(const char* name) {
  const CatalogueFamily* f = FamilyByName(name);
  EXPECT_NE(f, nullptr) << name;
  return *f;
}

TEST(Lightest, SimpleBeamByHandIpe240PassesAndIpe220FailsInBending) {
  State s = RestrainedIpeBeam();
  const int runsBefore = s.recalcCount;
  const Integer rowBefore = s.project.SelectedRow[catIpe];

  const LightestResult r = FindLightest(s, {&Family("IPE")}, 2);
  EXPECT_EQ(r.rowsRun, 18);
  EXPECT_EQ(r.failedRuns, 0);
  ASSERT_EQ(r.passing.size(), 10u);  // IPE 240 to IPE 600
  const LightestRow& best = r.passing.front();
  EXPECT_EQ(best.section, "IPE240");
  EXPECT_EQ(best.row, 8);
  EXPECT_NEAR(best.outcome.ratio, 72.0 / (367e3 * 235 / 1e6), 0.835 * test::kPublished3.relative)
      << test::kPublished3.reason;
  EXPECT_EQ(best.outcome.block, "section");
  EXPECT_EQ(best.outcome.formula, "IR = My,Ed/My,Rd");
  EXPECT_EQ(best.outcome.clause, "Ch 6.2.5");
  EXPECT_NEAR(best.outcome.g, 7850 * 3912e-6, 0.01);  // rho A: 30.7 kg/m
  for (size_t i = 1; i < r.passing.size(); ++i) EXPECT_LE(r.passing[i - 1].outcome.g, r.passing[i].outcome.g);

  // The project as it was: nothing ran on it, nothing chose a row.
  EXPECT_EQ(s.recalcCount, runsBefore);
  EXPECT_EQ(s.project.SelectedRow[catIpe], rowBefore);

  // The next lighter row, chosen by hand, fails by the section control.
  FireAll(s, ChoiceEvents(Family("IPE"), 7));
  const MemberOutcome lighter = OutcomeOf(s);
  EXPECT_TRUE(lighter.ran);
  EXPECT_FALSE(lighter.passes);
  EXPECT_NEAR(lighter.ratio, 72.0 / (285e3 * 235 / 1e6), 1.075 * test::kPublished3.relative)
      << test::kPublished3.reason;
  EXPECT_EQ(lighter.block, "section");
  EXPECT_EQ(lighter.formula, "IR = My,Ed/My,Rd");
}

// A column with bending, so that buckling, interaction and the section classes all take part,
// over every row of every catalogue family.
State BeamColumn() {
  State s = test::StartedState();
  FireAll(s, {{"il", "4"}, {"Loading.inn(1)", "300"}, {"Loading.iq(1)", "8"}});
  return s;
}

TEST(Lightest, OneAndTwoThreadsGiveTheSameList) {
  const State s = BeamColumn();
  std::vector<const CatalogueFamily*> all;
  std::string error;
  ASSERT_TRUE(ParseFamilies("all", &all, &error));
  const LightestResult one = FindLightest(s, all, 1);
  const LightestResult two = FindLightest(s, all, 2);
  EXPECT_GT(one.rowsRun, 800);
  EXPECT_EQ(one.rowsRun, two.rowsRun);
  EXPECT_EQ(one.failedRuns, two.failedRuns);
  ASSERT_EQ(one.passing.size(), two.passing.size());
  ASSERT_FALSE(one.passing.empty());
  for (size_t i = 0; i < one.passing.size(); ++i) {
    EXPECT_EQ(one.passing[i].section, two.passing[i].section) << i;
    EXPECT_EQ(one.passing[i].outcome.ratio, two.passing[i].outcome.ratio) << one.passing[i].section;
    EXPECT_EQ(one.passing[i].outcome.formula, two.passing[i].outcome.formula) << one.passing[i].section;
  }
}

TEST(Lightest, EachListedRowIsWhatChoosingItByHandGives) {
  const State s = BeamColumn();
  std::vector<const CatalogueFamily*> families;
  std::string error;
  ASSERT_TRUE(ParseFamilies("IPE, HEB, RHS, L-equal, UB, PFC, 15", &families, &error)) << error;
  const LightestResult r = FindLightest(s, families, 2);
  int checked = 0;
  for (const CatalogueFamily* f : families) {
    for (const LightestRow& row : r.passing) {
      if (row.family != f) continue;
      State byHand = s;
      FireAll(byHand, ChoiceEvents(*f, row.row));
      const MemberOutcome o = OutcomeOf(byHand);
      EXPECT_TRUE(o.passes) << row.section;
      EXPECT_EQ(o.ratio, row.outcome.ratio) << row.section;
      EXPECT_EQ(o.formula, row.outcome.formula) << row.section;
      ++checked;
      break;  // the lightest of each family
    }
  }
  EXPECT_GE(checked, 5);
}

TEST(Lightest, FamiliesByNameOrNumber) {
  std::vector<const CatalogueFamily*> f;
  std::string error;
  ASSERT_TRUE(ParseFamilies(" ipe ,4, 101 ,l-EQUAL", &f, &error)) << error;
  ASSERT_EQ(f.size(), 5u);  // IPE once; 101 is UB, UC and UBP
  EXPECT_STREQ(f[0]->name, "IPE");
  EXPECT_STREQ(f[1]->name, "UB");
  EXPECT_STREQ(f[3]->name, "UBP");
  EXPECT_STREQ(f[4]->name, "L-equal");
  EXPECT_FALSE(ParseFamilies("IPE,XYZ", &f, &error));
  EXPECT_NE(error.find("\"XYZ\""), std::string::npos) << error;
  EXPECT_FALSE(ParseFamilies(" , ", &f, &error));
}

}  // namespace
}  // namespace vn
