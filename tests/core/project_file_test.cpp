// The project file and the file menu: round trips, the format's fixed rules, failures, recent files.
#include <gtest/gtest.h>

#include <filesystem>

#include "core/events.h"
#include "core/file_actions.h"
#include "core/json.h"
#include "core/project_file.h"
#include "core/recalculate.h"
#include "core/state.h"
#include "support/test_support.h"

namespace vn {
namespace {

namespace fs = std::filesystem;

class ProjectFile : public ::testing::Test {
 protected:
  void SetUp() override { NewProject(s_); }
  std::string Path(const char* name) const { return folder_.Path(name); }
  // A project as NewProject leaves it, to read a file into.
  static State Fresh() {
    State t;
    NewProject(t);
    return t;
  }
  // The stored part of the state: project and loads, as JSON.
  static std::string Stored(const State& s) {
    std::string json = StateToJson(s);
    return json.substr(0, json.find("\"Section\":"));
  }

  test::TempFolder folder_;
  State s_;
};

// Odd values in every kind of slot, so that a slot read into the wrong field shows.
void FillOddValues(State& s) {
  Project& p = s.project;
  p.projectName = "Hall, \"north\" frame";
  p.projectIdent = "B-7";
  // The user-defined code keeps the stored factors; every other code re-derives them on reading.
  p.codeIndex = 8;
  p.codeId = "UD";
  p.gammaM0 = 1.05;
  p.gammaM1 = 1.1f;
  p.neta = 1.2f;
  p.interactionMethod = 2;
  p.steelGrade = 3;
  p.fyk = 275;
  p.E = 205000;
  p.uflimit = 0.03f;
  p.elasticClass12 = True;
  p.conserControl = True;
  p.noWebBuckling = True;
  p.LoadCombMode = 3;
  p.deflectionLimit = 250;
  p.safetyClass = 2;
  p.psiQ1Index = 6;
  p.psiQ2Index = 4;
  p.LfULS_G = 1.2f;
  p.LfULS_Q1 = 1.6f;
  p.LfULS_Q2 = 1.4f;
  p.LfSLS_G = 1.0f;
  p.LfSLS_Q1 = 0.9f;
  p.LfSLS_Q2 = 0.7f;
  p.checkSLS = True;
  p.rhsTurned = 2;
  p.rigidEndPost = 1;
  p.webStiffeners = 1;
  p.bucklingCurveY = 2;
  p.bucklingCurveZ = 4;
  p.bucklingCaseY = 6;
  p.bucklingCaseZ = 3;
  p.hsqKind = 1;
  p.angleOption = 2;
  p.chModal = 1;
  p.SupportType = 4;
  p.SpringPct = 35;
  p.ltbLoadLevel = 3;
  p.ltbOn = 1;
  p.ltbCase = 4;
  p.ltbRestraints = 2;
  p.ltbPart = 1;
  p.ltbUserC = True;
  p.ltbUserC1 = False;
  p.ltbCurve = 2;
  p.ltbC1 = 1.132;
  p.ltbC2 = 0.459;
  p.ltbC3 = 0.525;
  p.L = 7.35f;
  p.a = 1234.5f;
  p.ltbFactor = 0.5f;
  p.bucklingFactorY = 0.85f;
  p.bucklingFactorZ = 0.7f;
  p.SelfweightOn = 1;
  p.ChPointMode = 1;
  p.ChPointCount = 3;
  p.ChPointX = {0, 0.1f, 2.2f, 6.3f};
  p.ltbZa = 150;
  Loads& l = s.loads;
  l.axial[2] = {-35.5f, 1.0f, True};
  l.uniform[3] = {4.25f, 2, 0, True};
  l.trapezoid[2] = {1.5f, 3.5f, 0.5f, 4.1f, 1.0f, 0.0f, True};
  l.point[7] = {1, -12.5f, 3.3f, 2, 1, True};
}

TEST_F(ProjectFile, BeamModeRoundTripReproducesEveryStoredField) {
  FillOddValues(s_);
  s_.project.ProfileType = 4;
  s_.project.SelectedRow[catIpe] = 13;
  std::string before = Stored(s_);
  ASSERT_EQ(WriteProject(s_, Path("a.vnt")), FileResult::Ok);
  State t = Fresh();
  t.project.fileName = s_.project.fileName;
  ASSERT_EQ(ReadProject(t, Path("a.vnt")), FileResult::Ok);
  // psi follows from the index on reading: (6 + 1) * 0.1 and (4 + 1) * 0.1.
  EXPECT_FLOAT_EQ(t.project.psiQ1, 0.7f);
  EXPECT_FLOAT_EQ(t.project.psiQ2, 0.5f);
  t.project.psiQ1 = s_.project.psiQ1;
  t.project.psiQ2 = s_.project.psiQ2;
  EXPECT_EQ(Stored(t), before);
}

TEST_F(ProjectFile, EndForceModeRoundTripAndNoLoadTablesInTheFile) {
  FillOddValues(s_);
  Project& p = s_.project;
  p.AnalysisMode = 0;
  p.NEndForce = -250.5f;
  p.My12 = {0, 80.25f, -40.125f};
  p.Mz12 = {0, 3.5f, 0};
  p.Vy12 = {0, 1.25f, -1.25f};
  p.Vz12 = {0, 45, 12};
  ASSERT_EQ(WriteProject(s_, Path("e.vnt")), FileResult::Ok);
  State t = Fresh();
  t.loads.uniform[4].q = 99;  // what is in memory stays: the file has no load tables
  ASSERT_EQ(ReadProject(t, Path("e.vnt")), FileResult::Ok);
  EXPECT_EQ(t.project.NEndForce, -250.5f);
  EXPECT_EQ(t.project.My12[2], -40.125f);
  EXPECT_EQ(t.project.Vz12[1], 45.0f);
  EXPECT_EQ(t.project.Vy12[2], -1.25f);
  EXPECT_EQ(t.loads.uniform[4].q, 99.0f);
  EXPECT_EQ(t.project.ltbZa, 150.0);
}

TEST_F(ProjectFile, EveryFamilyBlockRoundTripsButCOfFamily24) {
  FillOddValues(s_);
  Project& p = s_.project;
  p.p21 = {812, 301, 13, 21.5f};
  p.p22 = {601, 201, 401, 12.5f, 20.5f, 19};
  p.p23 = {602, 598, 10.5f, 20, 45, 1};
  p.p24 = {301, 302, 541, 6.5f, 25, 15, 7, 60, 2};
  p.p25 = {303, 304, 431, 6, 24, 14, 16, 2};
  p.p26 = {201, 202, 10.5, 11};
  p.p27 = {603, 604, 605, 10, 21, 22, 26};
  p.p28 = {151, 12.5f};
  p.p31 = {301, 11, 2};
  p.p41 = {"My section", 2, 3, 1, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};
  p.p51 = {205, 605, 10.5, 9};
  p.p52 = {610, 11};
  p.p53 = {305, 606, 101, 11.5, 10.5, 17};
  p.p54 = {620, 12};
  p.p55 = {251, 601, 201, 8.5f, 12.5, 51};
  p.p56 = {581, 301, 302, 12.5, 20.5, 21};
  p.SelectedRow[catL3] = 3;
  p.SelectedRow[catHp] = 7;
  p.SelectedRow[catUc] = 12;
  p.SelectedRow[catCh] = 4;
  p.subFamily101 = 2;
  p.subFamily103 = 2;
  for (int type : {21, 22, 23, 24, 25, 26, 27, 28, 31, 41, 51, 52, 53, 54, 55, 56, 101, 103}) {
    p.ProfileType = static_cast<Integer>(type);
    ASSERT_EQ(WriteProject(s_, Path("f.vnt")), FileResult::Ok);
    State t = Fresh();
    t.project.psiQ1 = p.psiQ1;
    ASSERT_EQ(ReadProject(t, Path("f.vnt")), FileResult::Ok) << type;
    t.project.psiQ1 = p.psiQ1;
    t.project.psiQ2 = p.psiQ2;
    if (type == 24) {
      // The slot after tf2 is written from family 25's c and read into family 24's c.
      EXPECT_EQ(t.project.p24.c, 16.0f);
      t.project.p24.c = p.p24.c;
    }
    // Only the current family's block is stored; the others keep the new project's values.
    State expected = s_;
    auto block = [&](State& x) {
      std::string j = Stored(x);
      return j.substr(j.find("\"p21\""), j.find("\"steelGrade\"") - j.find("\"p21\""));
    };
    std::string got = block(t);
    std::string want = block(expected);
    std::string key = "\"p" + std::to_string(type) + "\":";
    if (type < 100) {
      auto gotPos = got.find(key), wantPos = want.find(key);
      ASSERT_NE(gotPos, std::string::npos);
      EXPECT_EQ(got.substr(gotPos, got.find('}', gotPos) - gotPos),
                want.substr(wantPos, want.find('}', wantPos) - wantPos))
          << type;
    }
  }
  // The catalogue rows of the British families and the plate bars.
  p.ProfileType = 101;
  ASSERT_EQ(WriteProject(s_, Path("g.vnt")), FileResult::Ok);
  State t = Fresh();
  ASSERT_EQ(ReadProject(t, Path("g.vnt")), FileResult::Ok);
  EXPECT_EQ(t.project.subFamily101, 2);
  EXPECT_EQ(t.project.SelectedRow[catUc], 12);
  EXPECT_EQ(t.project.SelectedRow[catUb], 10);  // not stored: the new project's row
}

TEST_F(ProjectFile, TheTextHasTheVersionAndRawLinesAtItsHead) {
  FillOddValues(s_);
  std::string text = ProjectFileText(s_);
  EXPECT_EQ(text.substr(0, text.find("\"UD\"")), "120\r\nHall, \"north\" frame\r\nB-7\r\n");
  EXPECT_NE(text.find("\r\n#TRUE#\r\n"), std::string::npos);
}

// The strict rules follow the last value of the format; a project in the default rules is written
// as before, and a file without the mark, or with a damaged one, reads as the default rules.
TEST_F(ProjectFile, TheStrictRulesFollowTheLastValueAndAnythingElseReadsAsTheDefault) {
  const std::string plain = ProjectFileText(s_);
  s_.project.strictRules = True;
  const std::string strict = ProjectFileText(s_);
  EXPECT_EQ(strict, plain + "\"EN 1993 strict\"\r\n");
  const struct {
    const char* text;
    Boolean expected;
  } files[] = {{"\"EN 1993 strict\"\r\n", True},
               {"", False},
               {"\"EN 1993 strct\"\r\n", False},
               {"#TRUE#\r\n", False},
               {"\r\n\r\n", False}};
  for (const auto& f : files) {
    folder_.Write("r.vnt", plain + f.text);
    State t = Fresh();
    t.project.strictRules = f.expected == True ? False : True;  // the file decides, not the record
    ASSERT_EQ(ReadProject(t, Path("r.vnt")), FileResult::Ok) << f.text;
    EXPECT_EQ(t.project.strictRules, f.expected) << f.text;
  }
}

// The method of Mcr likewise: the eigenvalue analysis is a mark after the rules' mark (if any); a
// file without it, an older one among them, takes Mcr from the C factors.
TEST_F(ProjectFile, TheEigenvalueMethodOfMcrIsAMarkAfterTheRules) {
  const std::string plain = ProjectFileText(s_);
  s_.project.ltbMcrMethod = 1;
  EXPECT_EQ(ProjectFileText(s_), plain + "\"Mcr by eigenvalue analysis\"\r\n");
  s_.project.strictRules = True;
  EXPECT_EQ(ProjectFileText(s_), plain + "\"EN 1993 strict\"\r\n\"Mcr by eigenvalue analysis\"\r\n");
  const struct {
    const char* text;
    Boolean strict;
    Integer method;
  } files[] = {{"", False, 0},
               {"\"Mcr by eigenvalue analysis\"\r\n", False, 1},
               {"\"EN 1993 strict\"\r\n\"Mcr by eigenvalue analysis\"\r\n", True, 1},
               {"\"EN 1993 strict\"\r\n", True, 0},
               {"\"Mcr by eigenvalue\"\r\n", False, 0},
               {"1\r\n\"Mcr by eigenvalue analysis\"\r\n", False, 0}};
  for (const auto& f : files) {
    folder_.Write("m.vnt", plain + f.text);
    State t = Fresh();
    t.project.ltbMcrMethod = f.method == 1 ? 0 : 1;  // the file decides, not the record
    ASSERT_EQ(ReadProject(t, Path("m.vnt")), FileResult::Ok) << f.text;
    EXPECT_EQ(t.project.strictRules, f.strict) << f.text;
    EXPECT_EQ(t.project.ltbMcrMethod, f.method) << f.text;
  }
}

TEST_F(ProjectFile, Version118AddsOneToTheCombinationMode) {
  s_.project.LoadCombMode = 0;
  std::string text = ProjectFileText(s_);
  text.replace(0, 3, "118");
  folder_.Write("old.vnt", text);
  State t = Fresh();
  ASSERT_EQ(ReadProject(t, Path("old.vnt")), FileResult::Ok);
  EXPECT_EQ(t.project.LoadCombMode, 1);
  text.replace(0, 3, "119");
  folder_.Write("old.vnt", text);
  ASSERT_EQ(ReadProject(t, Path("old.vnt")), FileResult::Ok);
  EXPECT_EQ(t.project.LoadCombMode, 0);
}

TEST_F(ProjectFile, Version119HasNoClassOptionInFamily24AndShiftsNothing) {
  Project& p = s_.project;
  p.ProfileType = 24;
  p.p24.classOption = 2;
  p.SelfweightOn = 1;
  p.ChPointCount = 2;
  std::string text = ProjectFileText(s_);
  // Take the class option line out (it follows iload = 50) and mark the file as version 119.
  size_t at = text.find("\r\n50\r\n2\r\n");
  ASSERT_NE(at, std::string::npos);
  text.erase(at + 6, 3);
  text.replace(0, 3, "119");
  folder_.Write("v119.vnt", text);
  State t = Fresh();
  ASSERT_EQ(ReadProject(t, Path("v119.vnt")), FileResult::Ok);
  EXPECT_EQ(t.project.p24.classOption, 1);
  EXPECT_EQ(t.project.SelfweightOn, 1);
  EXPECT_EQ(t.project.ChPointCount, 2);
}

TEST_F(ProjectFile, AFileTooShortKeepsWhatWasReadAndTellsTheVersion) {
  std::string text = ProjectFileText(s_);
  text = text.substr(0, text.find("\r\n", 40) + 2);  // a few values only
  folder_.Write("short.vnt", text);
  s_.project.projectName = "Before";
  EventResult r = OpenAction(s_, Path("short.vnt"));
  EXPECT_TRUE(r.refused);
  EXPECT_EQ(r.message, "Input file not compatible with this version ");
  EXPECT_EQ(s_.project.projectName, "Project");  // read before the end
  EXPECT_EQ(s_.project.fileName, Path("short.vnt"));
}

TEST_F(ProjectFile, AMissingFileIsNamedAndChangesNothing) {
  s_.project.L = 9;
  EventResult r = OpenAction(s_, Path("none.vnt"));
  EXPECT_EQ(r.message, "can't find file - " + Path("none.vnt"));
  EXPECT_EQ(s_.project.L, 9.0f);
  EXPECT_EQ(s_.project.fileName, "New File");
}

TEST_F(ProjectFile, AFailedSaveLeavesThePreviousFileWhole) {
  ASSERT_EQ(WriteProject(s_, Path("keep.vnt")), FileResult::Ok);
  std::string before = folder_.Read("keep.vnt");
  EXPECT_EQ(WriteProject(s_, (folder_.Dir() / "nodir" / "x.vnt").string()), FileResult::NotFound);
  s_.project.fileName = (folder_.Dir() / "nodir" / "x.vnt").string();
  EventResult r = SaveAction(s_, "");
  EXPECT_EQ(r.message, "can't save file - " + (folder_.Dir() / "nodir" / "x.vnt").string());
  EXPECT_EQ(folder_.Read("keep.vnt"), before);
  EXPECT_FALSE(fs::exists(Path("keep.vnt.tmp~")));
}

TEST_F(ProjectFile, SaveOfANewProjectKeepsNewFileAndAsksAgain) {
  EventResult r = SaveAction(s_, Path("n.vnt"));
  EXPECT_FALSE(r.refused);
  EXPECT_TRUE(fs::exists(Path("n.vnt")));
  EXPECT_EQ(s_.project.fileName, "New File");
  EXPECT_EQ(s_.settings->Get(kRecentApp, kRecentSection, "RecentFile1"), Path("n.vnt"));
}

// ---- Recent files ----

TEST_F(ProjectFile, RecentListPushesDropsTheFifthAndAllowsDoubles) {
  for (const char* name : {"1.vnt", "2.vnt", "3.vnt", "4.vnt", "5.vnt"}) SaveAsAction(s_, Path(name));
  EXPECT_EQ(s_.settings->Get(kRecentApp, kRecentSection, "RecentFile1"), Path("5.vnt"));
  EXPECT_EQ(s_.settings->Get(kRecentApp, kRecentSection, "RecentFile4"), Path("2.vnt"));
  EXPECT_EQ(s_.view.text["mnurecentfile(1)"], "1. " + Path("5.vnt"));
  // Save As to the same name leaves the list; to a new name twice leaves both.
  SaveAsAction(s_, Path("5.vnt"));
  EXPECT_EQ(s_.settings->Get(kRecentApp, kRecentSection, "RecentFile2"), Path("4.vnt"));
  PushRecent(s_, Path("4.vnt"));
  EXPECT_EQ(s_.settings->Get(kRecentApp, kRecentSection, "RecentFile1"), Path("4.vnt"));
  EXPECT_EQ(s_.settings->Get(kRecentApp, kRecentSection, "RecentFile3"), Path("4.vnt"));
}

TEST_F(ProjectFile, OpeningTheSecondEntryMakesItFirstAndTheOthersKeepTheirPlaces) {
  for (const char* name : {"1.vnt", "2.vnt", "3.vnt", "4.vnt"}) SaveAsAction(s_, Path(name));
  // List: 4, 3, 2, 1. Open 3 from the file dialog.
  EventResult r = OpenAction(s_, Path("3.vnt"));
  EXPECT_FALSE(r.refused) << r.message;
  EXPECT_EQ(s_.settings->Get(kRecentApp, kRecentSection, "RecentFile1"), Path("3.vnt"));
  EXPECT_EQ(s_.settings->Get(kRecentApp, kRecentSection, "RecentFile2"), Path("4.vnt"));
  EXPECT_EQ(s_.settings->Get(kRecentApp, kRecentSection, "RecentFile3"), Path("2.vnt"));
  EXPECT_EQ(s_.settings->Get(kRecentApp, kRecentSection, "RecentFile4"), Path("1.vnt"));
  // Opening the open file again reads it and leaves the list alone.
  s_.project.L = 11;
  OpenAction(s_, Path("3.vnt"));
  EXPECT_EQ(s_.project.L, 5.0f);
  EXPECT_EQ(s_.view.caption, "Varnelt EC3: " + Path("3.vnt"));
  EXPECT_EQ(s_.settings->Get(kRecentApp, kRecentSection, "RecentFile2"), Path("4.vnt"));
}

TEST_F(ProjectFile, AnEmptyFirstEntryLeavesTheRecentMenuHidden) {
  s_.settings->Set(kRecentApp, kRecentSection, "RecentFile2", "x.vnt");
  BuildRecentMenu(s_);
  EXPECT_FALSE(s_.view.visible["mnurecentfile(0)"]);
}

TEST_F(ProjectFile, NewAsksOnASavedProjectOnly) {
  s_.project.L = 8;
  EventResult r = Fire(s_, "mnunew");
  EXPECT_TRUE(r.question.empty());
  EXPECT_EQ(s_.project.L, 5.0f);  // a never-saved project is dropped without a word

  SaveAsAction(s_, Path("saved.vnt"));
  s_.project.L = 8;
  r = Fire(s_, "mnunew");
  EXPECT_EQ(r.question, "Do you want to save the actual project?");
  EXPECT_EQ(s_.project.L, 8.0f);
  Fire(s_, "mnunew", "Cancel");
  EXPECT_EQ(s_.project.L, 8.0f);
  Fire(s_, "mnunew", "Yes");
  EXPECT_EQ(s_.project.L, 5.0f);
  State t = Fresh();
  ASSERT_EQ(ReadProject(t, Path("saved.vnt")), FileResult::Ok);
  EXPECT_EQ(t.project.L, 8.0f);  // Yes wrote the changes first
}

}  // namespace
}  // namespace vn
