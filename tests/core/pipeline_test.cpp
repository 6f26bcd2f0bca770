// The project record, the recalculation pipeline, and the main form's events.
#include <gtest/gtest.h>

#include "core/events.h"
#include "core/json.h"
#include "core/recalculate.h"
#include "core/state.h"
#include "support/test_support.h"

namespace vn {
namespace {

State NewState(bool decimalComma = false) {
  State s;
  s.decimalComma = decimalComma;
  NewProject(s);
  return s;
}

TEST(NewProject, SetsTheDefaultsOfANewProject) {
  State s = NewState();
  const Project& p = s.project;
  EXPECT_EQ(p.fileName, "New File");
  EXPECT_EQ(p.projectName, "Project");
  EXPECT_EQ(p.projectIdent, "Test");
  EXPECT_EQ(p.ProfileType, 1);
  EXPECT_EQ(p.profileName, "HEA");
  EXPECT_EQ(p.steelGrade, 5);
  EXPECT_EQ(p.L, 5.0f);
  EXPECT_EQ(p.a, 2500.0f);
  EXPECT_EQ(p.SpringPct, 50);
  EXPECT_EQ(p.bucklingCaseY, 2);
  EXPECT_EQ(p.ltbOn, 1);
  EXPECT_EQ(p.ltbCurve, 3);
  EXPECT_EQ(p.AnalysisMode, 1);
  EXPECT_EQ(p.ChPointX[3], 3.0f);
  EXPECT_EQ(p.My12[1], 100.0f);
  EXPECT_EQ(p.Vz12[1], 50.0f);
  EXPECT_EQ(p.SelectedRow[catHea], 10);
  EXPECT_EQ(p.SelectedRow[catInp], 11);
  EXPECT_EQ(p.SelectedRow[catL2], 40);
  EXPECT_EQ(p.p24.c, 5.0f);
  EXPECT_EQ(p.p53.isttw, 11.5);
  EXPECT_EQ(p.p41.istiw, 7569000000000.0f);
  // Load tables: only slot 1 of each ticked, N = 100 and q = 10 in Z.
  EXPECT_EQ(s.loads.axial[1].N, 100.0f);
  EXPECT_EQ(s.loads.axial[1].Checked, True);
  EXPECT_EQ(s.loads.axial[2].Checked, False);
  EXPECT_EQ(s.loads.uniform[1].q, 10.0f);
  EXPECT_EQ(s.loads.uniform[1].Dir, 1);
  EXPECT_EQ(s.loads.uniform[2].Checked, False);
  EXPECT_EQ(s.loads.point[8].Dir, 1);
}

TEST(NewProject, RecalculatesOnceAndKeepsTheSettingsOfThePreviousProject) {
  State s;
  s.project.L = 7.0f;  // a field of the previous project
  s.project.gammaM0 = 1.1;
  s.project.E = 200000;
  s.project.deflectionLimit = 250;
  s.project.codeId = "DK";
  NewProject(s);
  EXPECT_EQ(s.recalcCount, 1);  // once, between its first and last stage
  EXPECT_EQ(s.project.L, 5.0f);
  EXPECT_EQ(s.project.gammaM0, 1.1);
  EXPECT_EQ(s.project.E, 200000.0f);
  EXPECT_EQ(s.project.deflectionLimit, 250);
  EXPECT_EQ(s.project.codeId, "DK");
}

TEST(Recalculate, AFaultAtAnyDepthEndsInTheOneMessageAndTheNextGoodRunClearsIt) {
  State s = test::StartedState();
  Recalculate(s);
  ASSERT_FALSE(s.view.txtErrorVisible);  // the delivered files give a default project that runs
  // A catalogue row of zeros: the section stage divides by zero.
  Catalogue saved = s.catalogues.table[catHea];
  for (int col = 1; col <= 11; ++col) s.catalogues.table[catHea].ref(s.project.SelectedRow[catHea], col) = 0;
  Recalculate(s);
  EXPECT_TRUE(s.view.txtErrorVisible);
  EXPECT_EQ(s.view.txtError,
            " Calculation Error. Axial load too big. Increase profile or reduce axial force ");
  // The next input that gives a valid state removes the message.
  s.catalogues.table[catHea] = saved;
  EXPECT_FALSE(Fire(s, "il", "6").refused);
  EXPECT_FALSE(s.view.txtErrorVisible);
  EXPECT_EQ(s.project.calcError, 0);
}

TEST(CheckedArithmetic, EveryFailedStepIsACalcFault) {
  EXPECT_THROW(Div(1.0, 0.0), CalcFault);
  EXPECT_THROW(Sqrt(-1e-9), CalcFault);
  EXPECT_THROW(Pow(0.0, -1.0), CalcFault);
  EXPECT_THROW(Pow(-8.0, 1.0 / 3.0), CalcFault);
  EXPECT_THROW(ToSingle(1e39), CalcFault);
  EXPECT_THROW(ToInteger(32767.5), CalcFault);  // rounds to 32768
  EXPECT_EQ(ToInteger(32767.4), 32767);
  EXPECT_EQ(ToInteger(2.5), 2);  // halves to even
  EXPECT_EQ(ToInteger(3.5), 4);
  EXPECT_EQ(Pow(-2.0, 2.0), 4.0);
}

// ---- The field protocol on the main form ----

TEST(FieldProtocol, ValidValueIsStoredReformattedAndRecalculates) {
  State s = test::StartedState();
  int runs = s.recalcCount;
  EventResult r = Fire(s, "il", "6");
  EXPECT_FALSE(r.refused);
  EXPECT_EQ(s.project.L, 6.0f);
  EXPECT_EQ(r.text, "6.000");
  EXPECT_EQ(r.focus, "ibly");
  EXPECT_EQ(s.recalcCount, runs + 1);
}

TEST(FieldProtocol, EitherDecimalSignIsReadInEitherLocale) {
  State point = NewState(false);
  Fire(point, "ibly", "1,5");
  EXPECT_EQ(point.project.bucklingFactorY, 1.5f);
  EXPECT_EQ(point.project.bucklingCaseY, 6);  // a typed factor
  State comma = NewState(true);
  EventResult r = Fire(comma, "ibly", "1.5");
  EXPECT_EQ(comma.project.bucklingFactorY, 1.5f);
  EXPECT_EQ(r.text, "1,50");
}

TEST(FieldProtocol, LettersAreZeroInThePointLocaleAndAMismatchInTheCommaLocale) {
  State point = NewState(false);
  int runs = point.recalcCount;
  EventResult r = Fire(point, "ibly", "abc");
  EXPECT_TRUE(r.refused);
  EXPECT_EQ(r.message, " Buckling length factor Y-axis >= 0.2 ");
  EXPECT_EQ(r.text, "0.00");
  EXPECT_EQ(r.focus, "ibly");
  EXPECT_EQ(point.project.bucklingFactorY, 0.0f);  // stored before the test
  EXPECT_EQ(point.recalcCount, runs);

  State comma = NewState(true);
  r = Fire(comma, "ibly", "abc");
  EXPECT_TRUE(r.refused);
  EXPECT_EQ(r.message, "Input string mismatch ");
  EXPECT_EQ(comma.project.bucklingFactorY, 1.0f);  // the old value stays
}

TEST(FieldProtocol, BoundsAreInclusiveWhateverTheMessageSays) {
  State s = NewState();
  Fire(s, "cbutt3");  // the spring field is shown for spring supports only
  EXPECT_FALSE(Fire(s, "ispring", "0").refused);
  EXPECT_FALSE(Fire(s, "ispring", "100").refused);
  EventResult r = Fire(s, "ispring", "101");
  EXPECT_TRUE(r.refused);
  EXPECT_EQ(r.message, " 1 < Spring-restraint  > 99 ");
  EXPECT_FALSE(Fire(s, "il", "0.05").refused);
  EXPECT_TRUE(Fire(s, "il", "0.049").refused);
  EXPECT_EQ(Fire(s, "il", "0.049").message, " L >= 0.050 ");
}

TEST(FieldProtocol, IntegerFieldsRoundHalvesToEven) {
  State s = NewState();
  EXPECT_FALSE(Fire(s, "idef_limit", "99.5").refused);
  EXPECT_EQ(s.project.deflectionLimit, 100);
  EXPECT_FALSE(Fire(s, "idef_limit", "100.5").refused);
  EXPECT_EQ(s.project.deflectionLimit, 100);
  EventResult r = Fire(s, "idef_limit", "1500.6");
  EXPECT_TRUE(r.refused);
  EXPECT_EQ(r.message, "100 <= Deflection <=1500 ");
  EXPECT_EQ(s.project.deflectionLimit, 1501);
}

// A control the person can't use on the form (disabled, or hidden with its frame) refuses its
// event with a message naming it and leaves the project as it was: the strength of a catalogued
// grade, the partial factors of a code that fixes them, the load factors outside "ULS/SLS".
TEST(FieldProtocol, DisabledOrHiddenControlsRefuseAndLeaveTheProjectAsItWas) {
  State s = test::StartedState();  // S355, EC3, Eq 6.10
  const std::string before = StateToJson(s);
  struct Row {
    const char* control;
    const char* text;
    const char* message;
  } rows[] = {{"ifyk", "420", "ifyk is disabled"},
              {"setup.ifyk", "420", "setup.ifyk is disabled"},
              {"setup.igammam0", "1.1", "setup.igammam0 is disabled"},
              {"setup.iLfULS_G", "2", "setup.iLfULS_G is hidden (frame setup.frULS)"},
              {"ispring", "20", "ispring is hidden"}};
  for (const Row& row : rows) {
    EventResult r = Fire(s, row.control, row.text);
    EXPECT_TRUE(r.refused) << row.control;
    EXPECT_EQ(r.message, row.message);
  }
  EXPECT_EQ(s.project.fyk, 355.0f);
  EXPECT_EQ(s.view.text["ifyk"], "355");
  EXPECT_EQ(s.project.gammaM0, 1.0f);
  // The JSON differs only in the last message.
  std::string after = StateToJson(s);
  auto cut = [](std::string j) { return j.substr(0, j.find("\"message\":")); };
  EXPECT_EQ(cut(after), cut(before));
}

// On the user row the typed strength is the one in use and shows as typed, formatted; leaving the
// row for a catalogued grade shows that grade's strength at once.
TEST(FieldProtocol, TheStrengthFieldShowsTheStrengthInUse) {
  State s = test::StartedState();
  Fire(s, "cbofyk", std::to_string(s.steel.gradeLast));
  EventResult r = Fire(s, "ifyk", "420.4");
  EXPECT_FALSE(r.refused);
  EXPECT_EQ(s.project.fyk, 420.4f);
  EXPECT_EQ(s.view.text["ifyk"], "420");
  Fire(s, "cbofyk", "2");  // S275: 275 up to 40 mm, the HEA 300's 14 mm flange
  EXPECT_EQ(s.project.fyk, 275.0f);
  EXPECT_EQ(s.view.text["ifyk"], "275");
}

// The section values of an open dialog are those of the run that ended: the shear resistance of
// the single symmetric I comes from its controls, and must not be 0.0 or the run before's.
// Default 22: web hw = 600 - 2*20 = 560 x 12, eta 1.2, S355: 1.2*560*12*355/sqrt 3/1000 = 1652.8 kN.
TEST(SectionValues, ShowTheShearResistanceOfTheRunThatEnded) {
  State s = test::StartedState();
  Fire(s, "mnup22");
  auto shown = [&s](const std::string& label) {
    for (const View::Line& l : s.view.sectionValues)
      if (l.label == label) return l.value;
    return std::string("(none)");
  };
  EXPECT_EQ(shown("Vc,z,Rd ="), "1652.8");
}

// The curve letters beside the lists follow the family at once: an HEA 300 (h/b <= 1.2, tf <= 100)
// buckles on b about y and c about z; a hot finished SHS on a about both.
TEST(SectionValues, TheCurveLettersFollowTheFamilyAtOnce) {
  State s = test::StartedState();
  EXPECT_EQ(s.view.text["obcy"], "b");
  EXPECT_EQ(s.view.text["obcz"], "c");
  Fire(s, "mnup06");
  EXPECT_EQ(s.view.text["obcy"], "a");
  EXPECT_EQ(s.view.text["obcz"], "a");
}

TEST(FieldProtocol, AnIntegerOverflowIsSilentAndKeepsTheOldValue) {
  State s = NewState();
  Fire(s, "cbutt3");
  int runs = s.recalcCount;
  EventResult r = Fire(s, "ispring", "40000");
  EXPECT_FALSE(r.refused);
  EXPECT_TRUE(r.message.empty());
  EXPECT_EQ(s.project.SpringPct, 50);
  EXPECT_EQ(s.recalcCount, runs);
}

TEST(FieldProtocol, TextFieldsStoreWithoutTestOrRecalculation) {
  State s = NewState();
  int runs = s.recalcCount;
  EventResult r = Fire(s, "iproj", "Hall, \"north\" frame");
  EXPECT_EQ(s.project.projectName, "Hall, \"north\" frame");
  EXPECT_EQ(r.focus, "iident");
  EXPECT_EQ(s.recalcCount, runs);
}

// ---- Options and check boxes of the main form ----

// Each support type sets both axes' case and factor: simple, spring and pinned-spring ends 1.0,
// pinned-fixed 0.7, fixed-fixed 0.5, the cantilever 2.0; a typed factor and case 5 stay.
TEST(SupportButtons, SetTheBucklingCaseOfTheEndsAndKeepTypedOrIrrelevantOnes) {
  struct Row {
    const char* button;
    Integer bucklingCase;
    Single factor;
    const char* text;
    int picture;
  };
  const Row rows[] = {{"cbutt4", 1, 2.0f, "2.00", 1}, {"cbutt0", 2, 1.0f, "1.00", 2},
                      {"cbutt1", 3, 0.7f, "0.70", 3}, {"cbutt2", 4, 0.5f, "0.50", 4},
                      {"cbutt3", 2, 1.0f, "1.00", 2}, {"cbutt4", 1, 2.0f, "2.00", 1},
                      {"cbutt5", 2, 1.0f, "1.00", 2}};
  State s = NewState();
  for (const Row& row : rows) {
    SCOPED_TRACE(row.button);
    Fire(s, row.button);
    EXPECT_EQ(s.project.bucklingCaseY, row.bucklingCase);
    EXPECT_EQ(s.project.bucklingFactorY, row.factor);
    EXPECT_EQ(s.project.bucklingCaseZ, row.bucklingCase);
    EXPECT_EQ(s.project.bucklingFactorZ, row.factor);
    EXPECT_EQ(s.view.text["iblz"], row.text);
    EXPECT_EQ(s.view.value["cbuttbucklingz"], row.picture);
  }
  Fire(s, "ibly", "0.85");
  Fire(s, "bucklingz.bucklingz5");
  Fire(s, "cbutt4");
  EXPECT_EQ(s.project.bucklingCaseY, 6);
  EXPECT_EQ(s.project.bucklingFactorY, 0.85f);
  EXPECT_EQ(s.view.text["ibly"], "0.85");
  EXPECT_EQ(s.project.bucklingCaseZ, 5);
  EXPECT_EQ(s.project.bucklingFactorZ, 0.001f);
}

TEST(SupportButtons, SpringTypesShowTheSpringFieldAndTakeTheFocus) {
  State s = NewState();
  EventResult r = Fire(s, "cbutt3");
  EXPECT_EQ(r.focus, "ispring");
  EXPECT_TRUE(s.view.visible["ispring"]);
  EXPECT_EQ(s.view.text["ispring"], "50");
  Fire(s, "cbutt4");
  EXPECT_FALSE(s.view.visible["ispring"]);
}

TEST(LtbCheck, ClearingSetsTheFactorAndRestraintsAndCheckingRestoresOnlyTheFactor) {
  State s = NewState();
  s.project.ltbCase = 3;
  s.project.ltbRestraints = 2;
  Fire(s, "ch_vipp", "0");
  EXPECT_EQ(s.project.ltbOn, 0);
  EXPECT_EQ(s.project.ltbFactor, 0.001f);
  EXPECT_EQ(s.project.ltbRestraints, 0);
  Fire(s, "ch_vipp", "1");
  EXPECT_EQ(s.project.ltbOn, 1);
  EXPECT_EQ(s.project.ltbFactor, 0.7f);
  EXPECT_EQ(s.project.ltbRestraints, 0);
}

TEST(ModalCheck, IsRefusedForSpringSupportsAndDoesNotRecalculate) {
  State s = NewState();
  Fire(s, "cbutt5");
  int runs = s.recalcCount;
  EventResult r = Fire(s, "ch_modal", "1");
  EXPECT_TRUE(r.refused);
  EXPECT_EQ(r.message, " Modal analysis not possible for spring supports ");
  EXPECT_EQ(s.project.chModal, 0);
  Fire(s, "cbutt0");
  runs = s.recalcCount;
  r = Fire(s, "ch_modal", "1");
  EXPECT_FALSE(r.refused);
  EXPECT_EQ(s.project.chModal, 1);
  EXPECT_TRUE(s.view.visible["cmd_modresult"]);
  EXPECT_EQ(s.recalcCount, runs);
}

TEST(RefreshMainForm, FiresTheSupportEventWhenAnotherButtonBecomesTheSetOne) {
  State s = NewState();
  RefreshMainForm(s);
  // A project read from a file: fixed ends, buckling cases below 5 as the file had them.
  s.project.SupportType = 2;
  s.project.bucklingCaseY = 3;
  s.project.bucklingFactorY = 0.7f;
  s.project.bucklingCaseZ = 6;
  s.project.bucklingFactorZ = 0.85f;
  RefreshMainForm(s);
  EXPECT_EQ(s.project.bucklingCaseY, 4);
  EXPECT_EQ(s.project.bucklingFactorY, 0.5f);
  EXPECT_EQ(s.view.text["ibly"], "0.50");
  EXPECT_EQ(s.project.bucklingCaseZ, 6);
  EXPECT_EQ(s.view.text["iblz"], "0.85");
  // A pinned end with a spring at the other, the last type: its buckling case, and its field shown.
  s.project.SupportType = 5;
  RefreshMainForm(s);
  EXPECT_EQ(s.project.bucklingCaseY, 2);
  EXPECT_TRUE(s.view.visible["ispring"]);
  s.project.SupportType = 2;
  s.project.bucklingCaseY = 4;
  s.project.bucklingFactorY = 0.5f;
  RefreshMainForm(s);
  // The same support again: nothing fires, the case read stays.
  s.project.bucklingCaseY = 3;
  s.project.bucklingFactorY = 0.7f;
  RefreshMainForm(s);
  EXPECT_EQ(s.project.bucklingCaseY, 3);
  EXPECT_EQ(s.view.value["cbuttbucklingy"], 3);
}

TEST(RefreshMainForm, ShowsTheFieldsInTheirFormatsAndRecalculates) {
  State s = NewState();
  int runs = s.recalcCount;
  s.project.L = 12.3456f;
  s.project.deflectionLimit = 300;
  s.project.AnalysisMode = 0;
  RefreshMainForm(s);
  EXPECT_EQ(s.view.text["il"], "12.346");
  EXPECT_EQ(s.view.text["idef_limit"], "300");
  EXPECT_FALSE(s.view.visible["frLc"]);
  EXPECT_EQ(s.view.items["cbobcy"].size(), 6u);
  EXPECT_EQ(s.view.items["CboLoadComb"][3], "EN 1990 Eq 6.10a/b");
  EXPECT_GT(s.recalcCount, runs);
}

// ---- The control table ----

TEST(ControlTable, FindsControlsByBareNameDialogNameAndSlot) {
  int index = -1;
  EXPECT_NE(Controls().Find("il", &index), nullptr);
  EXPECT_EQ(index, -1);
  EXPECT_EQ(Controls().Find("nosuchcontrol", &index), nullptr);
  EXPECT_EQ(Controls().Find("il(1)", &index), nullptr);  // not an array
  EXPECT_EQ(Controls().Find("cbutt9", &index), nullptr);
  EXPECT_NE(Controls().Find("mnurecentfile(0)", &index), nullptr);  // an array counted from 0
  EXPECT_EQ(index, 0);
}

TEST(ControlTable, AnUnknownControlChangesNothing) {
  State s = NewState();
  int runs = s.recalcCount;
  EventResult r = Fire(s, "ixyz", "3");
  EXPECT_FALSE(r.known);
  EXPECT_EQ(s.recalcCount, runs);
}

TEST(StateJson, NamesEveryRecordAndSetsFieldsByPath) {
  State s = NewState();
  EXPECT_TRUE(SetFieldByPath(s, "Project.L", "7.5"));
  EXPECT_EQ(s.project.L, 7.5f);
  EXPECT_TRUE(SetFieldByPath(s, "Loads.UniformLoad[2].q", "4"));
  EXPECT_EQ(s.loads.uniform[2].q, 4.0f);
  EXPECT_TRUE(SetFieldByPath(s, "Project.p21.isth", "800"));
  EXPECT_EQ(s.project.p21.isth, 800.0f);
  EXPECT_TRUE(SetFieldByPath(s, "Project.ChPointX[2]", "2.5"));
  EXPECT_EQ(s.project.ChPointX[2], 2.5f);
  EXPECT_FALSE(SetFieldByPath(s, "Project.nosuch", "1"));
  std::string json = StateToJson(s);
  EXPECT_NE(json.find("\"Project\":{\"fileName\":\"New File\""), std::string::npos);
  EXPECT_NE(json.find("\"L\":7.5"), std::string::npos);
  EXPECT_NE(json.find("\"Section\":{"), std::string::npos);
  EXPECT_NE(json.find("\"txtError\":\"\""), std::string::npos);
}

TEST(RefreshMainForm, HoldsTheStiffenerDistanceWithinAShorterMember) {
  State s = NewState();
  s.project.a = 2500;
  s.project.L = 2.0f;
  RefreshMainForm(s);
  EXPECT_EQ(s.project.a, 2000.0f);
  s.project.a = 1500;
  RefreshMainForm(s);
  EXPECT_EQ(s.project.a, 1500.0f);
}

TEST(FieldProtocol, EnterOnTheSpringButtonHasTheNarrowerRange) {
  State s = test::StartedState();
  Fire(s, "cbutt5");
  // Leaving ispring takes 0 and 100; Enter on cbutt5 refuses both with its own text.
  EXPECT_FALSE(Fire(s, "ispring", "100").refused);
  EventResult r = Fire(s, "cbutt5", "100");
  EXPECT_TRUE(r.refused);
  EXPECT_EQ(r.message, " 1 < springstiffness 99 ");
  EXPECT_EQ(r.focus, "ispring");
  EXPECT_TRUE(Fire(s, "cbutt5", "0").refused);
  r = Fire(s, "cbutt5", "99");
  EXPECT_FALSE(r.refused);
  EXPECT_EQ(s.project.SpringPct, 99);
  EXPECT_EQ(s.project.SupportType, 5);
}

TEST(FieldProtocol, EnterOnTheLengthSkipsTheColumnDataWhenItIsHidden) {
  State s = test::StartedState();
  // The default project is in compression: "Column data" shows, Enter goes to ibly.
  EXPECT_EQ(Fire(s, "il", "6").focus, "ibly");
  // No axial force: the frame hides at the end of the run, Enter goes back to iproj.
  Fire(s, "Loading.inn(1)", "0");
  EXPECT_EQ(Fire(s, "il", "6").focus, "iproj");
}

}  // namespace
}  // namespace vn
