// The Setup dialog: its fields with their limits and messages, its lists, options and check boxes,
// and what it shows when it opens.
#include <gtest/gtest.h>

#include <algorithm>

#include "core/events.h"
#include "core/state.h"
#include "design/design_basis.h"
#include "design_test_support.h"
#include "support/test_support.h"

namespace vn {
namespace {

using vn::test::TempFolder;

// The user-defined code, load factors of ULS/SLS in force (their frame shown), no grade table (the
// strength is typed).
State UserDefinedState() {
  State s;
  s.project.fyk = 355;
  Fire(s, "setup.Cbo1993", "8");
  Fire(s, "setup.CboLoadComb", "4");
  return s;
}

TEST(SetupFields, ValidValueIsStoredReformattedAndRecalculates) {
  State s = UserDefinedState();
  EventResult r = Fire(s, "setup.igammam0", "1,25");  // either decimal sign is taken
  EXPECT_FALSE(r.refused);
  EXPECT_TRUE(r.recalculated);
  EXPECT_DOUBLE_EQ(s.project.gammaM0, 1.25);
  EXPECT_EQ(s.view.text["setup.igammam0"], "1.25");
  EXPECT_EQ(r.focus, "setup.igammam1");
}

TEST(SetupFields, InvalidValueIsStoredButRefusedWithItsMessage) {
  State s = UserDefinedState();
  EventResult r = Fire(s, "setup.igammam0", "1.6");
  EXPECT_TRUE(r.refused);
  EXPECT_FALSE(r.recalculated);
  EXPECT_EQ(r.message, " 0.5 <= gammam0 <=1.5 ");
  EXPECT_EQ(r.focus, "setup.igammam0");
  EXPECT_DOUBLE_EQ(s.project.gammaM0, double(1.6f));  // in the record until corrected
  EXPECT_EQ(s.view.text["setup.igammam0"], "1.60");
}

struct FieldCase {
  const char* field;
  const char* good;  // the bound, typed as it stands: accepted
  const char* bad;   // just beyond the range
  const char* message;
  const char* enter;
};

TEST(SetupFields, LimitsMessagesAndEnterTargets) {
  const FieldCase cases[] = {
      {"igammam0", "0.5", "0.49", " 0.5 <= gammam0 <=1.5 ", "setup.igammam1"},
      {"igammam1", "1.5", "1.51", " 0.5 <= gammam1 <=1.5 ", "setup.ineta"},
      {"ineta", "1.2", "0.99", " 1 <= neta <=1.2 ", "setup.rbtnMethod1"},
      {"ineta", "1", "1.21", " 1 <= neta <=1.2 ", "setup.rbtnMethod1"},
      {"ilamdaLT0", "0.8", "0.81", " 0.1 <= lamdaLT0 <= 0.8 ", "setup.ibeta"},
      {"ibeta", "0.9", "1.01", " 0.1 <= beta <= 0.8 ", "setup.ilamdaLT0w"},  // wider than it says
      {"ibeta", "1", "1.01", " 0.1 <= beta <= 0.8 ", "setup.ilamdaLT0w"},
      {"ibeta", "0.1", "0.09", " 0.1 <= beta <= 0.8 ", "setup.ilamdaLT0w"},
      {"ilamdaLT0w", "0.1", "0.09", " 0.1 <= lamdaLT0 <= 0.8 ", "setup.ibetaw"},
      {"ibetaw", "1", "1.01", " 0.1 <= beta <= 1 ", "setup.cbofyk"},
      {"ifyk", "2000", "2001", " 50 <= fyk <= 2000 ", "setup.ie"},
      {"ifyk", "50", "49", " 50 <= fyk <= 2000 ", "setup.ie"},
      {"ie", "1000", "999", " 1000 <= E-modulus ", "setup.Cbo1993"},
      {"iuflimit", "0.4", "0.41", " 0 <= uflimit <= 0.4 ", "setup.CheckElastic"},
      {"iuflimit", "0", "-0.01", " 0 <= uflimit <= 0.4 ", "setup.CheckElastic"},
      {"idef_limit", "1500", "1501", "100 <= Deflection <=1500 ", "setup.cbofyk"},
      {"iLfULS_G", "0", "-0.01", " 0 < Loadfactor < 4.0 ", "setup.iLfULS_Q1"},
      {"iLfULS_Q1", "4", "4.01", " 0 < Loadfactor < 4.0 ", "setup.iLfULS_Q2"},
      {"iLfULS_Q2", "4", "4.01", " 0 < Loadfactor < 4.0 ", "setup.iLfSLS_G"},
      {"iLfSLS_G", "4", "4.01", " 0 < Loadfactor < 4.0 ", "setup.iLfSLS_Q1"},
      {"iLfSLS_Q1", "0", "-1", " 0 < Loadfactor < 4.0 ", "setup.iLfSLS_Q2"},
      {"iLfSLS_Q2", "4", "5", " 0 < Loadfactor < 4.0 ", "setup.idef_limit"},
  };
  for (const FieldCase& c : cases) {
    State s = UserDefinedState();
    const std::string name = std::string("setup.") + c.field;
    EventResult good = Fire(s, name, c.good);
    EXPECT_FALSE(good.refused) << name << " " << c.good;
    EXPECT_EQ(good.focus, c.enter) << name;
    EventResult bad = Fire(s, name, c.bad);
    EXPECT_TRUE(bad.refused) << name << " " << c.bad;
    EXPECT_EQ(bad.message, c.message) << name;
  }
}

TEST(SetupFields, FormatsOfTheFieldTexts) {
  State s = UserDefinedState();
  Fire(s, "setup.ie", "210000");
  EXPECT_EQ(s.view.text["setup.ie"], "2.10E+5");
  Fire(s, "setup.ifyk", "355.4");
  EXPECT_EQ(s.view.text["setup.ifyk"], "355");
  Fire(s, "setup.idef_limit", "100.5");  // halves go to the even neighbour
  EXPECT_EQ(s.project.deflectionLimit, 100);
  EXPECT_EQ(s.view.text["setup.idef_limit"], "100");
  Fire(s, "setup.iuflimit", ".125");
  EXPECT_EQ(s.view.text["setup.iuflimit"], "0.13");  // the Single 0.125 rounds half up
}

TEST(SetupFields, TypedStrengthReappliesTheCodeFactors) {
  State s;
  Fire(s, "setup.Cbo1993", "0");
  Fire(s, "setup.ifyk", "460");
  EXPECT_EQ(s.project.neta, 1.2f);
  Fire(s, "setup.ifyk", "461");
  EXPECT_EQ(s.project.neta, 1.0f);
}

TEST(SetupFields, LoadFactorsRebuildTheirText) {
  State s;
  Fire(s, "setup.CboLoadComb", "4");
  Fire(s, "setup.iLfULS_G", "1.2");
  Fire(s, "setup.iLfULS_Q1", "1.6");
  Fire(s, "setup.iLfULS_Q2", "0");
  Fire(s, "setup.iLfSLS_G", "1");
  Fire(s, "setup.iLfSLS_Q1", "1");
  Fire(s, "setup.iLfSLS_Q2", "4");
  EXPECT_EQ(s.comb.textULSUser, "ULS: 1.20*G + 1.60*Q1 + 0.00*Q2");
  const std::vector<std::string> lines = {"ULS: 1.20*G + 1.60*Q1 + 0.00*Q2",
                                          "SLS: 1.00*G + 1.00*Q1 + 4.00*Q2"};
  EXPECT_EQ(s.view.items["setup.lstCombination"], lines);
}

TEST(SetupFields, UlsQ2RecalculatesOnceMoreEvenAfterARefusal) {
  State s;
  Fire(s, "setup.CboLoadComb", "4");
  int before = s.recalcCount;
  Fire(s, "setup.iLfULS_Q2", "1.5");
  EXPECT_EQ(s.recalcCount - before, 2);  // the field's run and the extra one
  before = s.recalcCount;
  EventResult r = Fire(s, "setup.iLfULS_Q2", "5");
  EXPECT_TRUE(r.refused);
  EXPECT_EQ(s.recalcCount - before, 1);  // with the refused 5 in the record
  EXPECT_EQ(s.project.LfULS_Q2, 5.0f);
  EXPECT_EQ(s.comb.textULSUser, "ULS: 0.00*G + 0.00*Q1 + 1.50*Q2");  // the text keeps 1.5
  before = s.recalcCount;
  EXPECT_TRUE(Fire(s, "setup.iLfULS_G", "5").refused);
  EXPECT_EQ(s.recalcCount - before, 0);  // the other fields don't
}

TEST(CodeList, FieldsAreEnabledForUserDefinedOnly) {
  State s;
  s.project.fyk = 355;
  const char* fields[] = {"setup.igammam0", "setup.igammam1",   "setup.ineta", "setup.ilamdaLT0",
                          "setup.ibeta",    "setup.ilamdaLT0w", "setup.ibetaw"};
  for (int code = 0; code <= 8; ++code) {
    Fire(s, "setup.Cbo1993", std::to_string(code));
    for (const char* f : fields) EXPECT_EQ(s.view.enabled[f], code == 8) << f << " " << code;
  }
  EXPECT_TRUE(Fire(s, "setup.Cbo1993", "9").refused);
  EXPECT_EQ(s.project.codeIndex, 8);
}

TEST(CodeList, ChoiceRunsFactorsCombinationsAndClassFrames) {
  State s;
  s.project.fyk = 355;
  s.project.safetyClass = 1;
  s.project.psiQ1 = PsiOfIndex(6);
  s.project.psiQ2 = PsiOfIndex(4);
  EventResult r = Fire(s, "setup.Cbo1993", "2");
  EXPECT_TRUE(r.recalculated);
  EXPECT_EQ(s.comb.KFI, 0.83f);
  const std::vector<std::string> lines = {"ULS: Eq 6.10: LC = 0.83*(1.35*G + 1.5*Q1 + 1.5*0.7*Q2)",
                                          "SLS: Eq 6.14a: LC = G + Q1 + 0.5*Q2"};
  EXPECT_EQ(s.view.items["setup.lstCombination"], lines);
  EXPECT_TRUE(s.view.visible["setup.frSafetyClass"]);
  EXPECT_EQ(s.view.text["setup.frSafetyClass"], "Safety Class");
  EXPECT_EQ(s.view.value["setup.rbtnSafetyClass1"], 1);
}

TEST(LoadCombList, ShowsTheFramesOfTheModeAndSetsTheMainList) {
  State s;
  Fire(s, "setup.Cbo1993", "3");
  Fire(s, "setup.CboLoadComb", "4");
  EXPECT_EQ(s.project.LoadCombMode, 4);
  EXPECT_TRUE(s.view.visible["setup.frULS"]);
  EXPECT_FALSE(s.view.visible["setup.frPsi"]);
  EXPECT_FALSE(s.view.visible["setup.frSafetyClass"]);  // no class under "ULS/SLS"
  EXPECT_EQ(s.view.value["CboLoadComb"], 4);
  Fire(s, "setup.CboLoadComb", "5");
  EXPECT_FALSE(s.view.visible["setup.frULS"]);
  EXPECT_FALSE(s.view.visible["setup.frPsi"]);
  Fire(s, "setup.CboLoadComb", "3");
  EXPECT_FALSE(s.view.visible["setup.frULS"]);
  EXPECT_TRUE(s.view.visible["setup.frPsi"]);
  EXPECT_TRUE(s.view.visible["setup.frSafetyClass"]);
  EXPECT_EQ(s.view.items["setup.lstCombination"].size(), 3u);
  EXPECT_EQ(s.view.value["CboLoadComb"], 3);
  EXPECT_TRUE(Fire(s, "setup.CboLoadComb", "6").refused);
}

TEST(ClassOptions, EachOptionStoresItsClassAndRunsTheFactors) {
  State s;
  s.project.psiQ1 = PsiOfIndex(0);
  Fire(s, "setup.Cbo1993", "1");  // Norway
  Fire(s, "setup.rbtnSafetyNorwayClass1");
  EXPECT_EQ(s.project.safetyClass, 1);
  EXPECT_EQ(s.comb.KFI, 0.9f);
  EventResult r = Fire(s, "setup.rbtnSafetyNorwayClass24");
  EXPECT_TRUE(r.recalculated);
  EXPECT_EQ(s.project.safetyClass, 2);
  EXPECT_EQ(s.comb.KFI, 1.0f);
  Fire(s, "setup.Cbo1993", "5");  // Finland
  Fire(s, "setup.rbtnSafetyClass3");
  EXPECT_EQ(s.project.safetyClass, 3);
  EXPECT_EQ(s.comb.KFI, 1.1f);
  EXPECT_EQ(s.view.items["setup.lstCombination"][0],
            "ULS: Eq 6.10: LC =  1.1 (1.1*G + 1.5*Q1 + 1.5*0.1*Q2)");  // psi 0.1: index 0
  Fire(s, "setup.rbtnSafetyClass2");
  EXPECT_EQ(s.comb.KFI, 1.0f);
  EXPECT_EQ(s.view.value["setup.rbtnSafetyClass2"], 1);
  EXPECT_EQ(s.view.value["setup.rbtnSafetyClass3"], 0);
}

TEST(PsiLists, IndexGivesPsiAndTheTextsFollow) {
  State s;
  Fire(s, "setup.Cbo_Q1_Psi1", "9");
  Fire(s, "setup.Cbo_Q2_Psi2", "2");
  EXPECT_EQ(s.project.psiQ1Index, 9);
  EXPECT_EQ(s.project.psiQ1, 1.0f);
  EXPECT_EQ(s.project.psiQ2, 0.3f);
  const std::vector<std::string> lines = {"ULS: Eq 6.10: LC = 1.35*G + 1.5*Q1 + 1.5*1.0*Q2",
                                          "SLS: Eq 6.14a: LC = G + Q1 + 0.3*Q2"};
  EXPECT_EQ(s.view.items["setup.lstCombination"], lines);
  EXPECT_TRUE(Fire(s, "setup.Cbo_Q1_Psi1", "10").refused);
  EXPECT_EQ(s.project.psiQ1Index, 9);
}

TEST(OptionsAndChecks, MethodAndCheckBoxes) {
  State s;
  EventResult r = Fire(s, "setup.rbtnMethod2");
  EXPECT_TRUE(r.recalculated);
  EXPECT_EQ(s.project.interactionMethod, 2);
  Fire(s, "setup.rbtnMethod1");
  EXPECT_EQ(s.project.interactionMethod, 1);

  const std::pair<const char*, Boolean Project::*> boxes[] = {
      {"setup.CheckConserControl", &Project::conserControl},
      {"setup.CheckElastic", &Project::elasticClass12},
      {"setup.CheckFlangebuck", &Project::noFlangeBuckling},
      {"setup.CheckWebbuck", &Project::noWebBuckling}};
  for (const auto& [box, field] : boxes) {
    EXPECT_TRUE(Fire(s, box, "1").recalculated);
    EXPECT_EQ(s.project.*field, True) << box;  // -1
    Fire(s, box, "0");
    EXPECT_EQ(s.project.*field, False) << box;
  }
}

TEST(SetupDialog, ActivateFillsTheFieldsAndListsFromTheRecord) {
  TempFolder dir;
  dir.Write(kSteelGradeFile, vn::test::kGradeFile);
  State s;
  s.appPath = dir.Path();
  ReadSteelGrades(s);
  Project& p = s.project;
  p.codeIndex = 8;  // typed factors survive the opening
  p.gammaM0 = 1.05;
  p.gammaM1 = 1.1f;
  p.neta = 1.0f;
  p.lamdaLT0 = 0.2f;
  p.beta = 0.9;
  p.lamdaLT0w = 0.3f;
  p.betaw = 1;
  p.interactionMethod = 1;
  p.steelGrade = 2;
  p.fyk = 355;
  p.E = 210000;
  p.uflimit = 0.05f;
  p.conserControl = True;
  p.LoadCombMode = 4;
  p.deflectionLimit = 300;
  p.psiQ1Index = 6;
  p.psiQ2Index = 4;
  p.LfULS_G = 1.35f;
  p.LfSLS_Q2 = 1;
  Fire(s, "setup.Activate");
  View& v = s.view;
  EXPECT_NE(std::find(v.openDialogs.begin(), v.openDialogs.end(), "setup"), v.openDialogs.end());
  EXPECT_EQ(v.text["setup.igammam0"], "1.05");
  EXPECT_EQ(v.text["setup.igammam1"], "1.10");
  EXPECT_EQ(v.text["setup.ineta"], "1.00");
  EXPECT_EQ(v.text["setup.ilamdaLT0"], "0.20");
  EXPECT_EQ(v.text["setup.ibeta"], "0.90");
  EXPECT_EQ(v.text["setup.ilamdaLT0w"], "0.30");
  EXPECT_EQ(v.text["setup.ibetaw"], "1.00");
  EXPECT_EQ(v.value["setup.rbtnMethod1"], 1);
  EXPECT_EQ(v.text["setup.ifyk"], "355");
  EXPECT_EQ(v.text["setup.ie"], "2.10E+5");
  EXPECT_EQ(v.text["setup.iuflimit"], "0.05");
  EXPECT_EQ(v.value["setup.CheckConserControl"], 1);
  EXPECT_EQ(v.value["setup.CheckElastic"], 0);
  EXPECT_TRUE(v.visible["setup.frULS"]);
  EXPECT_EQ(v.text["setup.iLfULS_G"], "1.35");
  EXPECT_EQ(v.text["setup.iLfSLS_Q2"], "1.00");
  EXPECT_EQ(v.text["setup.idef_limit"], "300");
  EXPECT_EQ(v.items["setup.Cbo1993"].size(), 9u);
  EXPECT_EQ(v.items["setup.Cbo1993"][8], "EC3 - User defined");
  EXPECT_EQ(v.value["setup.Cbo1993"], 8);
  EXPECT_TRUE(v.enabled["setup.igammam0"]);
  EXPECT_EQ(v.items["setup.cbofyk"].size(), 8u);
  EXPECT_EQ(v.items["setup.cbofyk"][2], "S355");
  EXPECT_EQ(v.value["setup.cbofyk"], 2);
  const std::vector<std::string> modes = {"EN 1990 Eq 6.10",    "EN 1990 Eq 6.10a", "EN 1990 Eq 6.10b",
                                          "EN 1990 Eq 6.10a/b", "ULS/SLS",          "Basic loads"};
  EXPECT_EQ(v.items["setup.CboLoadComb"], modes);
  EXPECT_EQ(v.value["setup.CboLoadComb"], 4);
  const std::vector<std::string> psi = {"0.1", "0.2", "0.3", "0.4", "0.5", "0.6", "0.7", "0.8", "0.9", "1.0"};
  EXPECT_EQ(v.items["setup.Cbo_Q1_Psi1"], psi);
  EXPECT_EQ(v.items["setup.Cbo_Q2_Psi2"], psi);
  EXPECT_EQ(v.value["setup.Cbo_Q1_Psi1"], 6);
  // The lists set from empty have run their Click events: the user's factors are kept, the list
  // of formulas shows the mode.
  EXPECT_DOUBLE_EQ(p.gammaM0, 1.05);
  EXPECT_EQ(v.items["setup.lstCombination"].size(), 2u);

  Fire(s, "setup.CmdOK");
  EXPECT_EQ(std::find(v.openDialogs.begin(), v.openDialogs.end(), "setup"), v.openDialogs.end());
  EXPECT_DOUBLE_EQ(p.gammaM0, 1.05);  // closing keeps the settings
}

TEST(SetupDialog, TheMenuEntryOpensItFilled) {
  State s = test::StartedState();
  Fire(s, "mnusetup");
  EXPECT_TRUE(DialogOpen(s.view, "setup"));
  EXPECT_EQ(s.view.items["setup.Cbo1993"].size(), 9u);
  EXPECT_EQ(s.view.value["setup.CboLoadComb"], s.project.LoadCombMode);
}

TEST(SetupDialog, ActivateOnAnotherCodeShowsItsFactorsDisabled) {
  State s;
  s.project.codeIndex = 3;
  s.project.fyk = 355;
  s.project.gammaM0 = 1.3;  // not Danish: the code's choice runs and puts 1.1 back
  Fire(s, "setup.Activate");
  EXPECT_DOUBLE_EQ(s.project.gammaM0, 1.1);
  EXPECT_EQ(s.view.text["setup.igammam0"], "1.10");
  EXPECT_FALSE(s.view.enabled["setup.igammam0"]);
  EXPECT_TRUE(s.view.items["setup.cbofyk"].empty());  // no grade table read
}

}  // namespace
}  // namespace vn
