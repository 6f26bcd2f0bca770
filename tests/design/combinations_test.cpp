// Load combinations: the factors of each code and class, the formula texts to the character, the
// list of formulas in force and the class frames of the Setup dialog.
#include <gtest/gtest.h>

#include "core/events.h"
#include "core/state.h"
#include "design/design_basis.h"

namespace vn {
namespace {

// psi1 0.7 (index 6) and psi2 0.5 (index 4) make the two psi values tell apart in the texts.
State StateWith(int code, int safetyClass, int mode = 0) {
  State s;
  Project& p = s.project;
  p.codeIndex = static_cast<Integer>(code);
  p.safetyClass = static_cast<Integer>(safetyClass);
  p.LoadCombMode = static_cast<Integer>(mode);
  p.psiQ1Index = 6;
  p.psiQ2Index = 4;
  p.psiQ1 = PsiOfIndex(6);
  p.psiQ2 = PsiOfIndex(4);
  SetCombinationFactors(s, code);
  return s;
}

struct Gammas {
  int code;
  float g610, q610, g610a, q610a, g610b, xi;
};

TEST(CombinationFactors, GammaAndXiOfEachCode) {
  const Gammas rows[] = {
      {0, 1.35f, 1.5f, 1.35f, 1.5f, 1.35f, 0.85f},  {1, 1.35f, 1.5f, 1.35f, 1.5f, 1.35f, 0.89f},
      {2, 1.35f, 1.5f, 1.35f, 1.5f, 1.35f, 0.89f},  {3, 1.1f, 1.5f, 1.2f, 0.0f, 1.0f, 1.0f},
      {4, 1.35f, 1.5f, 1.35f, 1.5f, 1.35f, 0.925f}, {5, 1.1f, 1.5f, 1.35f, 0.0f, 1.15f, 1.0f},
      {6, 1.35f, 1.5f, 1.35f, 1.5f, 1.35f, 0.85f},  {7, 1.35f, 1.5f, 1.35f, 1.5f, 1.35f, 0.89f},
      {8, 1.35f, 1.5f, 1.1f, 1.5f, 1.35f, 0.85f},  // 1.1 in 6.10a for "UD", as the program has it
  };
  for (const Gammas& g : rows) {
    const CombinationFactors c = StateWith(g.code, 2).comb;
    EXPECT_EQ(c.gammaG_610, g.g610) << g.code;
    EXPECT_EQ(c.gammaQ1_610, g.q610) << g.code;
    EXPECT_EQ(c.gammaQ2_610, g.q610) << g.code;
    EXPECT_EQ(c.gammaG_610a, g.g610a) << g.code;
    EXPECT_EQ(c.gammaQ1_610a, g.q610a) << g.code;
    EXPECT_EQ(c.gammaQ2_610a, g.q610a) << g.code;
    EXPECT_EQ(c.gammaG_610b, g.g610b) << g.code;
    EXPECT_EQ(c.xi, g.xi) << g.code;
  }
}

TEST(CombinationFactors, KfiByCodeAndClass) {
  // {code, class, KFI}; the plain codes ignore the class.
  const struct {
    int code, cls;
    float kfi;
  } rows[] = {{0, 1, 1.0f}, {4, 1, 1.0f}, {6, 1, 1.0f},  {8, 1, 1.0f},  {1, 1, 0.9f}, {1, 2, 1.0f},
              {7, 1, 0.9f}, {7, 2, 1.0f}, {2, 1, 0.83f}, {2, 2, 0.91f}, {2, 3, 1.0f}, {2, 0, 1.0f},
              {3, 2, 1.0f}, {3, 3, 1.1f}, {5, 1, 0.9f},  {5, 2, 1.0f},  {5, 3, 1.1f}, {5, 0, 1.1f}};
  for (const auto& r : rows) EXPECT_EQ(StateWith(r.code, r.cls).comb.KFI, r.kfi) << r.code << "/" << r.cls;
}

TEST(CombinationFactors, KfigFollowsKfiInSwedenDenmarkFinlandOnly) {
  EXPECT_DOUBLE_EQ(StateWith(2, 1).comb.KFIG, double(0.83f));  // the Single 0.83 widened
  EXPECT_DOUBLE_EQ(StateWith(3, 3).comb.KFIG, double(1.1f));
  EXPECT_DOUBLE_EQ(StateWith(5, 1).comb.KFIG, double(0.9f));
  EXPECT_DOUBLE_EQ(StateWith(1, 1).comb.KFIG, 1.0);  // Norway: KFI 0.9 on the variable loads only
  EXPECT_DOUBLE_EQ(StateWith(7, 1).comb.KFIG, 1.0);
}

TEST(CombinationFactors, DenmarkClass1DependsOnTheModeWhenTheFactorsRun) {
  State s = StateWith(3, 1, 0);
  EXPECT_EQ(s.comb.KFI, 1.0f);  // Eq 6.10 in class 1
  // The main form's list stores the mode only: KFI stays until the factors run again.
  Fire(s, "CboLoadComb", "1");
  EXPECT_EQ(s.project.LoadCombMode, 1);
  EXPECT_EQ(s.comb.KFI, 1.0f);
  // The Setup dialog's list runs them.
  Fire(s, "setup.CboLoadComb", "1");
  EXPECT_EQ(s.comb.KFI, 0.9f);
  EXPECT_DOUBLE_EQ(s.comb.KFIG, double(0.9f));
}

TEST(CombinationFactors, IndexOutsideTheTableLeavesEverythingAsItWas) {
  State s = StateWith(2, 1);
  const CombinationFactors before = s.comb;
  for (int code : {-1, 9, 50}) {
    SetCombinationFactors(s, code);
    EXPECT_EQ(s.comb.KFI, before.KFI);
    EXPECT_EQ(s.comb.xi, before.xi);
    EXPECT_EQ(s.comb.text610, before.text610);
  }
}

TEST(Psi, ValueOfEachListIndex) {
  EXPECT_EQ(PsiOfIndex(0), 0.1f);
  EXPECT_EQ(PsiOfIndex(2), 0.3f);  // 3 * 0.1 = 0.30000000000000004, stored as the Single 0.3
  EXPECT_EQ(PsiOfIndex(6), 0.7f);
  EXPECT_EQ(PsiOfIndex(9), 1.0f);  // the last item "1.0"
}

TEST(Psi, IndexNineGivesOneInValueAndText) {
  State s = StateWith(0, 2);
  s.project.psiQ2Index = 9;
  s.project.psiQ2 = PsiOfIndex(9);
  SetCombinationFactors(s, 0);
  EXPECT_EQ(s.comb.textSLS, "SLS: Eq 6.14a: LC = G + Q1 + 1.0*Q2");
}

TEST(FormulaTexts, PlainCodesShowPsi1AtQ2InEq610) {
  const CombinationFactors c = StateWith(0, 2).comb;
  EXPECT_EQ(c.text610, "ULS: Eq 6.10: LC = 1.35*G + 1.5*Q1 + 1.5*0.7*Q2");
  EXPECT_EQ(c.text610a, "ULS: Eq 6.10a: LC = 1.35*G + 1.5*0.7*Q1 + 1.5*0.5*Q2");
  EXPECT_EQ(c.text610b, "ULS: Eq 6.10b: LC = 0.85*1.35*G + 1.5*Q1 + 1.5*0.5*Q2");
  EXPECT_EQ(c.textSLS, "SLS: Eq 6.14a: LC = G + Q1 + 0.5*Q2");
}

TEST(FormulaTexts, UnitedKingdomXiShowsThreeDecimals) {
  // xi 0.925 under "0.0##"
  EXPECT_EQ(StateWith(4, 2).comb.text610b, "ULS: Eq 6.10b: LC = 0.925*1.35*G + 1.5*Q1 + 1.5*0.5*Q2");
}

TEST(FormulaTexts, NorwayAndNorsokWithKfi) {
  const CombinationFactors c1 = StateWith(1, 1).comb;  // KFI 0.9
  EXPECT_EQ(c1.text610, "ULS: Eq 6.10: LC = 1.35*G + 0.9*1.5*Q1 + 0.9*1.5*0.7*Q2");
  // no blank after the "+" of 6.10a
  EXPECT_EQ(c1.text610a, "ULS: Eq 6.10a: LC = 1.35*G +0.9*1.5*0.7*Q1 + 0.9*1.5*0.5*Q2");
  EXPECT_EQ(c1.text610b, "ULS: Eq 6.10b: LC = 0.89*1.35*G + 0.9*1.5*Q1 + 0.9*1.5*0.5*Q2");
  const CombinationFactors c7 = StateWith(7, 2).comb;  // KFI 1.0 under "0.0#"
  EXPECT_EQ(c7.text610, "ULS: Eq 6.10: LC = 1.35*G + 1.0*1.5*Q1 + 1.0*1.5*0.7*Q2");
  EXPECT_EQ(c7.text610a, "ULS: Eq 6.10a: LC = 1.35*G +1.0*1.5*0.7*Q1 + 1.0*1.5*0.5*Q2");
}

TEST(FormulaTexts, SwedenPutsKfiBeforeTheBracket) {
  const CombinationFactors c = StateWith(2, 1).comb;  // KFI 0.83 under "0.0#"
  EXPECT_EQ(c.text610, "ULS: Eq 6.10: LC = 0.83*(1.35*G + 1.5*Q1 + 1.5*0.7*Q2)");
  EXPECT_EQ(c.text610a, "ULS: Eq 6.10a: LC = 0.83*(1.35*G + 1.5*0.7*Q1 + 1.5*0.5*Q2)");
  EXPECT_EQ(c.text610b, "ULS: Eq 6.10b: LC = 0.83*(0.89*1.35*G + 1.5*Q1 + 1.5*0.5*Q2)");
  EXPECT_EQ(StateWith(2, 2).comb.text610, "ULS: Eq 6.10: LC = 0.91*(1.35*G + 1.5*Q1 + 1.5*0.7*Q2)");
}

TEST(FormulaTexts, DenmarkHasNeitherBlankNorStarBeforeTheBracket) {
  const CombinationFactors c = StateWith(3, 3).comb;  // KFI 1.1
  EXPECT_EQ(c.text610, "ULS: Eq 6.10: LC = 1.1(1.1*G + 1.5*Q1 + 1.5*0.7*Q2)");
  EXPECT_EQ(c.text610a, "ULS: Eq 6.10a: LC = 1.1*1.2*G");
  EXPECT_EQ(c.text610b, "ULS: Eq 6.10b: LC = 1.1*(1.0*1.0*G + 1.5*Q1 + 1.5*0.5*Q2)");
}

TEST(FormulaTexts, FinlandHasTwoBlanksAfterLcAndOneBeforeTheBracket) {
  const CombinationFactors c = StateWith(5, 1).comb;  // KFI 0.9
  EXPECT_EQ(c.text610, "ULS: Eq 6.10: LC =  0.9 (1.1*G + 1.5*Q1 + 1.5*0.7*Q2)");
  EXPECT_EQ(c.text610a, "ULS: Eq 6.10a: LC = 0.9*1.35*G");
  // no blank between "+" and "1.5" before Q2, and no xi
  EXPECT_EQ(c.text610b, "ULS: Eq 6.10b: LC = 0.9*(1.15*G + 1.5*Q1 +1.5*0.5*Q2)");
}

TEST(FormulaTexts, NumbersFollowTheDecimalSignOfTheLocale) {
  State s;
  s.decimalComma = true;
  s.project.psiQ1 = PsiOfIndex(6);
  s.project.psiQ2 = PsiOfIndex(4);
  s.project.safetyClass = 1;
  SetCombinationFactors(s, 2);
  // Every number of the formula takes the comma, the fixed factors as well as psi and k: one line
  // with both signs ("0,83*(1.35*G ... 1.5*0,7*Q2)") reads as two kinds of number. The equation's
  // number before "LC =" is a clause and keeps its point.
  EXPECT_EQ(s.comb.text610, "ULS: Eq 6.10: LC = 0,83*(1,35*G + 1,5*Q1 + 1,5*0,7*Q2)");
  EXPECT_EQ(s.comb.text610a, "ULS: Eq 6.10a: LC = 0,83*(1,35*G + 1,5*0,7*Q1 + 1,5*0,5*Q2)");
}

TEST(LoadFactorTexts, UlsSlsAndBasicLoads) {
  State s;
  Project& p = s.project;
  p.LfULS_G = 1.35f;  // 1.35000002 -> "1.35"
  p.LfULS_Q1 = 1.5f;
  p.LfULS_Q2 = 1.05f;  // 1.04999995 -> its 15 digits round to "1.05"
  p.LfSLS_G = 1;
  p.LfSLS_Q1 = 1;
  p.LfSLS_Q2 = 0.7f;
  BuildLoadFactorTexts(s);
  EXPECT_EQ(s.comb.textULSUser, "ULS: 1.35*G + 1.50*Q1 + 1.05*Q2");
  EXPECT_EQ(s.comb.textSLSUser, "SLS: 1.00*G + 1.00*Q1 + 0.70*Q2");
  EXPECT_EQ(s.comb.textBasic, "Basic loads: G + Q1 + Q2");
}

TEST(CombinationList, LinesOfEachMode) {
  State s = StateWith(0, 2);
  s.project.LfULS_G = 1.2f;
  s.project.LfULS_Q1 = 1.6f;
  s.project.LfULS_Q2 = 0;
  s.project.LfSLS_G = 1;
  s.project.LfSLS_Q1 = 1;
  s.project.LfSLS_Q2 = 1;
  BuildLoadFactorTexts(s);
  const std::string e610 = "ULS: Eq 6.10: LC = 1.35*G + 1.5*Q1 + 1.5*0.7*Q2";
  const std::string e610a = "ULS: Eq 6.10a: LC = 1.35*G + 1.5*0.7*Q1 + 1.5*0.5*Q2";
  const std::string e610b = "ULS: Eq 6.10b: LC = 0.85*1.35*G + 1.5*Q1 + 1.5*0.5*Q2";
  const std::string sls = "SLS: Eq 6.14a: LC = G + Q1 + 0.5*Q2";
  const std::vector<std::vector<std::string>> expected = {
      {e610, sls},
      {e610a, sls},
      {e610b, sls},
      {e610a, e610b, sls},
      {"ULS: 1.20*G + 1.60*Q1 + 0.00*Q2", "SLS: 1.00*G + 1.00*Q1 + 1.00*Q2"},
      {"Basic loads: G + Q1 + Q2"},
  };
  for (int mode = 0; mode <= 5; ++mode) {
    s.project.LoadCombMode = static_cast<Integer>(mode);
    RebuildCombinationList(s);
    EXPECT_EQ(s.view.items["setup.lstCombination"], expected[mode]) << mode;
  }
  s.project.LoadCombMode = 6;  // no such mode: an empty list
  RebuildCombinationList(s);
  EXPECT_TRUE(s.view.items["setup.lstCombination"].empty());
}

TEST(CombinationList, RefillsTheCodeFieldsAndTheMethod) {
  State s;
  Project& p = s.project;
  p.fyk = 355;
  SetCodeFactors(s, 7);  // NORSOK: 1.15, 1.15, eta 1.2
  p.interactionMethod = 2;
  RebuildCombinationList(s);
  EXPECT_EQ(s.view.text["setup.igammam0"], "1.15");
  EXPECT_EQ(s.view.text["setup.igammam1"], "1.15");
  EXPECT_EQ(s.view.text["setup.ineta"], "1.20");
  EXPECT_EQ(s.view.text["setup.ilamdaLT0"], "0.40");
  EXPECT_EQ(s.view.text["setup.ibeta"], "0.75");
  EXPECT_EQ(s.view.text["setup.ilamdaLT0w"], "0.40");
  EXPECT_EQ(s.view.text["setup.ibetaw"], "0.75");
  EXPECT_EQ(s.view.value["setup.rbtnMethod1"], 0);
  EXPECT_EQ(s.view.value["setup.rbtnMethod2"], 1);
}

TEST(ClassFrames, OneFrameForTheCodesWithClassesBelowModeFour) {
  const struct {
    int code;
    bool norway, three;
    const char* caption;
  } rows[] = {{0, false, false, nullptr},       {1, true, false, "Reliability Class"},
              {2, false, true, "Safety Class"}, {3, false, true, "Consequences Class"},
              {4, false, false, nullptr},       {5, false, true, "Reliability Class"},
              {6, false, false, nullptr},       {7, false, false, nullptr},
              {8, false, false, nullptr}};
  for (const auto& r : rows) {
    for (int mode = 0; mode <= 5; ++mode) {
      State s = StateWith(r.code, 2, mode);
      SetClassFrames(s);
      const bool shown = mode < 4;
      EXPECT_EQ(s.view.visible["setup.frSafetyNorway"], r.norway && shown) << r.code << "/" << mode;
      EXPECT_EQ(s.view.visible["setup.frSafetyClass"], r.three && shown) << r.code << "/" << mode;
      if (shown && r.norway) {
        EXPECT_EQ(s.view.text["setup.frSafetyNorway"], r.caption);
      }
      if (shown && r.three) {
        EXPECT_EQ(s.view.text["setup.frSafetyClass"], r.caption);
      }
    }
  }
}

TEST(ClassFrames, ClassOtherThanOneOrTwoSelectsOptionThree) {
  State s = StateWith(2, 0);  // a missing setup file leaves class 0
  SetClassFrames(s);
  EXPECT_EQ(s.view.value["setup.rbtnSafetyClass1"], 0);
  EXPECT_EQ(s.view.value["setup.rbtnSafetyClass2"], 0);
  EXPECT_EQ(s.view.value["setup.rbtnSafetyClass3"], 1);
  State no = StateWith(1, 1);
  SetClassFrames(no);
  EXPECT_EQ(no.view.value["setup.rbtnSafetyNorwayClass1"], 1);
  EXPECT_EQ(no.view.value["setup.rbtnSafetyNorwayClass24"], 0);
}

}  // namespace
}  // namespace vn
