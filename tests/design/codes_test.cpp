// The design codes: the table of codes, the factors each code fixes, the caption.
#include <gtest/gtest.h>

#include "core/events.h"
#include "core/state.h"
#include "design/design_basis.h"
#include "design_test_support.h"

namespace vn {
namespace {

TEST(CodeTable, IdsNamesAndTitleSuffixesInListOrder) {
  const char* ids[] = {"EU", "NO", "SW", "DK", "UK", "FI", "GE", "NK", "UD"};
  const char* names[] = {"EC3",
                         "EC3 + NA/Norway",
                         "EC3 + NA/Sweden",
                         "EC3 + NA/Denmark",
                         "EC3 + NA/United Kingdom",
                         "EC3 + NA/Finland",
                         "EC3 + NA/German",
                         "EC3 + NORSOK",
                         "EC3 - User defined"};
  const char* suffixes[] = {"",
                            " + NA/Norway",
                            " + NA/Sweden",
                            " + NA/Denmark",
                            " + NA/United Kingdom",
                            " + NA/Finland",
                            " + NA/German",
                            " + NORSOK",
                            " - User defined"};
  for (int i = 0; i <= 8; ++i) {
    EXPECT_EQ(CodeIdFromIndex(i), ids[i]) << i;
    EXPECT_EQ(CodeDisplayName(i), names[i]) << i;
    EXPECT_EQ(CodeTitleSuffix(i), suffixes[i]) << i;
    EXPECT_EQ(CodeIndexFromId(ids[i]), i) << ids[i];
  }
  EXPECT_EQ(kCodeLast, 8);
}

TEST(CodeTable, UnknownIdIsReadAsThePlainCode) {
  EXPECT_EQ(CodeIndexFromId(""), 0);  // a missing setup file leaves the id empty
  EXPECT_EQ(CodeIndexFromId("XX"), 0);
  EXPECT_EQ(CodeIndexFromId("dk"), 0);  // ids are compared as they stand
  EXPECT_EQ(CodeIndexFromId("DK "), 0);
  EXPECT_EQ(CodeIndexFromId("NK"), 7);
}

struct ExpectedFactors {
  int code;
  double gammaM0;
  float gammaM1, neta, lamdaLT0;
  double beta;
  float lamdaLT0w;
  double betaw;
};

TEST(CodeFactors, EachCodeSetsItsRowOfTheTable) {
  // fyk 355 <= 460: neta 1.2 where it goes by fyk; the UK has 1.0 always.
  const ExpectedFactors rows[] = {
      {0, 1, 1.0f, 1.2f, 0.4f, 0.75, 0.4f, 0.75}, {1, 1.05, 1.05f, 1.2f, 0.4f, 0.75, 0.4f, 0.75},
      {2, 1, 1.0f, 1.2f, 0.4f, 0.75, 0.4f, 0.75}, {3, 1.1, 1.2f, 1.2f, 0.4f, 0.75, 0.4f, 0.75},
      {4, 1, 1.0f, 1.0f, 0.4f, 0.75, 0.2f, 1},    {5, 1, 1.0f, 1.2f, 0.4f, 0.75, 0.2f, 1},
      {6, 1, 1.0f, 1.2f, 0.4f, 0.75, 0.4f, 0.75}, {7, 1.15, 1.15f, 1.2f, 0.4f, 0.75, 0.4f, 0.75},
  };
  for (const ExpectedFactors& e : rows) {
    State s;
    s.project.fyk = 355;
    SetCodeFactors(s, e.code);
    const Project& p = s.project;
    EXPECT_DOUBLE_EQ(p.gammaM0, e.gammaM0) << e.code;
    EXPECT_EQ(p.gammaM1, e.gammaM1) << e.code;
    EXPECT_EQ(p.neta, e.neta) << e.code;
    EXPECT_EQ(p.lamdaLT0, e.lamdaLT0) << e.code;
    EXPECT_DOUBLE_EQ(p.beta, e.beta) << e.code;
    EXPECT_EQ(p.lamdaLT0w, e.lamdaLT0w) << e.code;
    EXPECT_DOUBLE_EQ(p.betaw, e.betaw) << e.code;
  }
}

TEST(CodeFactors, NetaIs12UpTo460AndThen10) {
  for (int code : {0, 1, 2, 3, 5, 6, 7}) {
    State s;
    s.project.fyk = 460;  // S460 still gets eta 1.2
    SetCodeFactors(s, code);
    EXPECT_EQ(s.project.neta, 1.2f) << code;
    s.project.fyk = 461;
    SetCodeFactors(s, code);
    EXPECT_EQ(s.project.neta, 1.0f) << code;
  }
  State uk;
  uk.project.fyk = 235;
  SetCodeFactors(uk, 4);
  EXPECT_EQ(uk.project.neta, 1.0f);  // the UK annex: 1.0 whatever the steel
}

TEST(CodeFactors, OnlyNorsokForcesTheUlsSlsMode) {
  for (int code = 0; code <= 8; ++code) {
    State s;
    s.project.LoadCombMode = 3;
    SetCodeFactors(s, code);
    EXPECT_EQ(s.project.LoadCombMode, code == 7 ? 4 : 3) << code;
  }
}

// Typed factors, all different from every code's.
void TypeFactors(Project& p) {
  p.gammaM0 = 1.25;
  p.gammaM1 = 1.3f;
  p.neta = 1.1f;
  p.lamdaLT0 = 0.3f;
  p.beta = 0.9;
  p.lamdaLT0w = 0.35f;
  p.betaw = 0.95;
  p.LoadCombMode = 2;
}

void ExpectTypedFactors(const Project& p) {
  EXPECT_DOUBLE_EQ(p.gammaM0, 1.25);
  EXPECT_EQ(p.gammaM1, 1.3f);
  EXPECT_EQ(p.neta, 1.1f);
  EXPECT_EQ(p.lamdaLT0, 0.3f);
  EXPECT_DOUBLE_EQ(p.beta, 0.9);
  EXPECT_EQ(p.lamdaLT0w, 0.35f);
  EXPECT_DOUBLE_EQ(p.betaw, 0.95);
  EXPECT_EQ(p.LoadCombMode, 2);
}

TEST(CodeFactors, UserDefinedKeepsTypedFactors) {
  State s;
  s.project.fyk = 500;
  TypeFactors(s.project);
  SetCodeFactors(s, 8);
  ExpectTypedFactors(s.project);
}

TEST(CodeFactors, IndexOutsideZeroToSevenChangesNothing) {
  for (int code : {-1, 9, 50, 32767}) {
    State s;
    s.project.fyk = 355;
    TypeFactors(s.project);
    SetCodeFactors(s, code);
    ExpectTypedFactors(s.project);
  }
}

TEST(CodeFactors, AnyOtherCodeOverwritesTypedFactors) {
  State s;
  s.project.fyk = 355;
  TypeFactors(s.project);
  SetCodeFactors(s, 0);
  EXPECT_DOUBLE_EQ(s.project.gammaM0, 1);
  EXPECT_EQ(s.project.neta, 1.2f);
  EXPECT_DOUBLE_EQ(s.project.betaw, 0.75);
}

TEST(CodeChoice, DenmarkToUserDefinedKeepsTheDanishFactors) {
  State s;
  s.project.fyk = 355;
  Fire(s, "setup.Cbo1993", "3");
  Fire(s, "setup.Cbo1993", "8");
  EXPECT_EQ(s.project.codeIndex, 8);
  EXPECT_DOUBLE_EQ(s.project.gammaM0, 1.1);  // Danish gm0, until retyped
  EXPECT_EQ(s.project.gammaM1, 1.2f);        // Danish gm1
  EXPECT_EQ(s.view.text["setup.igammam0"], "1.10");
  EXPECT_EQ(s.view.text["setup.igammam1"], "1.20");
}

TEST(CodeChoice, NorsokForcesUlsSlsAgainWhenTheSteelChanges) {
  vn::test::TempFolder dir;
  dir.Write(kSteelGradeFile, vn::test::kGradeFile);
  State s;
  s.appPath = dir.Path();
  ReadSteelGrades(s);
  Fire(s, "setup.Cbo1993", "7");
  EXPECT_EQ(s.project.LoadCombMode, 4);
  // The user picks Eq 6.10 under NORSOK; it holds until the factors of the code run again.
  Fire(s, "setup.CboLoadComb", "0");
  EXPECT_EQ(s.project.LoadCombMode, 0);
  Fire(s, "cbofyk", "2");  // S355
  EXPECT_EQ(s.project.fyk, 355.0f);
  EXPECT_EQ(s.project.LoadCombMode, 4);
  EXPECT_DOUBLE_EQ(s.project.gammaM0, 1.15);
  // The same after a typed strength (the last row of the grade table).
  Fire(s, "cbofyk", std::to_string(s.steel.gradeLast));
  Fire(s, "setup.CboLoadComb", "1");
  Fire(s, "ifyk", "420");
  EXPECT_EQ(s.project.LoadCombMode, 4);
}

TEST(Caption, ChoosingACodeRebuildsIt) {
  State s;
  s.project.fileName = "New File";
  BuildCaption(s);
  EXPECT_EQ(s.view.caption, "Varnelt EC3: New File");  // the plain code has no suffix
  Fire(s, "setup.Cbo1993", "8");
  EXPECT_EQ(s.view.caption, "Varnelt EC3 - User defined: New File");
  Fire(s, "setup.Cbo1993", "7");
  EXPECT_EQ(s.view.caption, "Varnelt EC3 + NORSOK: New File");
}

}  // namespace
}  // namespace vn
