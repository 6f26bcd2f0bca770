// Many members at once: hand-checked members of a CSV, a broken line among good ones, the same
// results with one and with two threads, and a list of project files with a missing one.
#include <gtest/gtest.h>

#include "core/project_file.h"
#include "core/state.h"
#include "members/batch.h"
#include "support/test_support.h"

namespace vn {
namespace {

// IPE 240 in S235 (Wpl,y = 367 cm3, Mpl,Rd = 86.2 kNm), 6 m, simply supported and restrained.
//   line 3: a permanent load of 10 kN/m under the setup's EN 1990 Eq 6.10 (gamma G = 1.35):
//           MEd = 1.35 * 10 * 6^2 / 8 = 60.75 kNm, IR = 60.75 / 86.2 = 0.704, OK
//   line 5: end forces My = 50 kNm at end 1, 0 at end 2 (design values): IR = 50 / 86.2 = 0.580
//   line 6: 25 kN/m variable (gamma Q = 1.5): MEd = 168.75 kNm, IR = 1.96, NOT OK
const char* kMembers =
    "member,family,section,grade,L,support,ltb,qz_G,qz_Q,My1\n"
    "# a comment line\n"
    "B1,IPE,IPE 240,S235,6,0,0,10,,\n"
    "B2,IPE,IPE 245,S235,6,0,0,10,,\n"
    "B3,ipe,240,s235,6,,0,,,50\n"
    "B4,IPE,IPE240,S235,6,0,0,,25,\n"
    "B5,IPE,IPE240,S235,abc,0,0,,25,\n"
    "B6,IPE,IPE240,S235,6,0,0,10,,50\n"
    "B7,IPE,IPE240,S235,6,0,0,10,,,,\n";

TEST(Batch, HandCheckedMembersAndBrokenLinesReportedByLine) {
  const State started = test::StartedState();
  const BatchResult r = RunBatchText(started, kMembers, "members.csv", "", 2);
  ASSERT_TRUE(r.fileError.empty()) << r.fileError;
  ASSERT_EQ(r.entries.size(), 7u);
  const double mplRd = 367e3 * 235 / 1e6;

  const BatchEntry& b1 = r.entries[0];
  EXPECT_EQ(b1.line, 3);
  EXPECT_EQ(b1.member, "B1");
  EXPECT_EQ(b1.section, "IPE240");
  EXPECT_EQ(b1.grade, "S235");
  EXPECT_TRUE(b1.error.empty()) << b1.error;
  EXPECT_TRUE(b1.outcome.passes);
  EXPECT_NEAR(b1.outcome.ratio, 1.35 * 10 * 36 / 8 / mplRd, 0.704 * test::kPublished3.relative);
  EXPECT_EQ(b1.outcome.formula, "IR = My,Ed/My,Rd");

  EXPECT_EQ(r.entries[1].line, 4);
  EXPECT_NE(r.entries[1].error.find("no section \"IPE 245\""), std::string::npos) << r.entries[1].error;

  const BatchEntry& b3 = r.entries[2];
  EXPECT_TRUE(b3.error.empty()) << b3.error;
  EXPECT_NEAR(b3.outcome.ratio, 50 / mplRd, 0.580 * test::kPublished3.relative);

  const BatchEntry& b4 = r.entries[3];
  EXPECT_FALSE(b4.outcome.passes);
  EXPECT_NEAR(b4.outcome.ratio, 1.5 * 25 * 36 / 8 / mplRd, 1.96 * test::kPublished3.relative);

  EXPECT_EQ(r.entries[4].line, 7);
  EXPECT_NE(r.entries[4].error.find("L \"abc\" is no number"), std::string::npos) << r.entries[4].error;
  EXPECT_NE(r.entries[5].error.find("both loads and end forces"), std::string::npos) << r.entries[5].error;
  EXPECT_NE(r.entries[6].error.find("cells"), std::string::npos) << r.entries[6].error;

  EXPECT_EQ(r.ok, 2);
  EXPECT_EQ(r.notOk, 1);
  EXPECT_EQ(r.bad, 4);
  const std::string text = BatchText(r, false);
  EXPECT_NE(text.find("7 members: 2 OK, 1 NOT OK, 4 not read"), std::string::npos) << text;
}

TEST(Batch, AHeaderWithoutARequiredColumnOrWithAnUnknownOneStopsTheFile) {
  const State started = test::StartedState();
  BatchResult r = RunBatchText(started, "family,section\nIPE,IPE240\n", "m.csv", "", 1);
  EXPECT_EQ(r.fileError, "m.csv:1: the column \"L\" is missing");
  r = RunBatchText(started, "family,section,L,colour\nIPE,IPE240,5,red\n", "m.csv", "", 1);
  EXPECT_NE(r.fileError.find("m.csv:1: unknown column \"colour\""), std::string::npos) << r.fileError;
  EXPECT_TRUE(r.entries.empty());
}

// Members of every kind: columns, beams, end forces, supports, factors, grades and families.
std::string ManyMembers() {
  const char* sections[] = {"IPE;IPE 300",          "HEB;HEB 200",          "RHS;RHS 200x100x8",
                            "SHS;RHS 100x100x5",    "L-equal;L 100x100x10", "UB;UB 305x165x40",
                            "PFC;PFC 200x90x30",    "UPE;UPE 200",          "INP;INP 200",
                            "CFRHS;CFRHS 150x100x6"};
  std::string csv = "member;family;section;grade;L;support;ky;kz;N_G;qz_Q;NEd;My1;Mz2\n";
  int n = 0;
  for (const char* section : sections) {
    for (int k = 0; k < 12; ++k, ++n) {
      const bool forces = k % 3 == 2;
      csv += "M" + std::to_string(n) + ";" + section + ";" + (k % 2 ? "S355" : "S235") + ";" +
             std::to_string(3 + k % 4) + ",5;" + (forces ? "0" : std::to_string(k % 6)) + ";" +
             (k % 4 == 1 ? "0,7" : "") + ";;" +
             (forces ? ";;" + std::to_string(50 + 10 * k) + ";20;3\n"
                     : std::to_string(20 * k) + ";" + std::to_string(k) + ";;;\n");
    }
  }
  return csv;
}

TEST(Batch, OneAndTwoThreadsGiveTheSameResults) {
  const State started = test::StartedState();
  const std::string csv = ManyMembers();
  const BatchResult one = RunBatchText(started, csv, "m.csv", "", 1);
  const BatchResult two = RunBatchText(started, csv, "m.csv", "", 2);
  ASSERT_TRUE(one.fileError.empty()) << one.fileError;
  ASSERT_EQ(one.entries.size(), 120u);
  EXPECT_EQ(one.bad, 0) << BatchText(one, false);
  EXPECT_GT(one.ok, 0);
  EXPECT_GT(one.notOk, 0);
  ASSERT_EQ(one.entries.size(), two.entries.size());
  for (size_t i = 0; i < one.entries.size(); ++i) {
    const BatchEntry &a = one.entries[i], &b = two.entries[i];
    EXPECT_EQ(a.member, b.member);
    EXPECT_EQ(a.outcome.ran, b.outcome.ran) << a.member;
    EXPECT_EQ(a.outcome.ratio, b.outcome.ratio) << a.member;
    EXPECT_EQ(a.outcome.formula, b.outcome.formula) << a.member;
  }
  EXPECT_EQ(BatchText(one, true), BatchText(two, true));
}

TEST(Batch, AListOfProjectFilesWithAMissingOne) {
  test::TempFolder dir;
  State s = test::StartedState();
  ASSERT_EQ(WriteProject(s, dir.Path("beam.vnt")), FileResult::Ok);
  dir.Write("list.txt", "# the projects\nbeam.vnt\n\nmissing.vnt\n");
  const BatchResult r = RunBatch(test::StartedState(), dir.Path("list.txt"), 2);
  ASSERT_TRUE(r.fileError.empty()) << r.fileError;
  ASSERT_EQ(r.entries.size(), 2u);
  EXPECT_EQ(r.entries[0].line, 2);
  EXPECT_TRUE(r.entries[0].error.empty()) << r.entries[0].error;
  EXPECT_EQ(r.entries[0].section, "HEA300");
  EXPECT_TRUE(r.entries[0].outcome.ran);
  EXPECT_EQ(r.entries[1].line, 4);
  EXPECT_NE(r.entries[1].error.find("can't find file - "), std::string::npos) << r.entries[1].error;
  EXPECT_EQ(r.bad, 1);

  const BatchResult missing = RunBatch(test::StartedState(), dir.Path("nothing.csv"), 1);
  EXPECT_NE(missing.fileError.find("cannot read"), std::string::npos) << missing.fileError;
}

}  // namespace
}  // namespace vn
