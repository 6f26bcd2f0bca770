// The setup file: its text, the round trip, damaged files, and the start-up sequence.
#include <gtest/gtest.h>

#include "core/events.h"
#include "core/state.h"
#include "design/design_basis.h"
#include "design_test_support.h"

namespace vn {
namespace {

using vn::test::TempFolder;

// Settings a Danish engineer might save, every field different from a fresh record.
void Settings(Project& p) {
  p.codeIndex = 3;
  p.codeId = "EU";  // stale: the writer takes the id from codeIndex
  p.gammaM0 = 1.1;
  p.gammaM1 = 1.2f;
  p.neta = 1.2f;
  p.interactionMethod = 2;
  p.lamdaLT0 = 0.4f;
  p.beta = 0.75;
  p.lamdaLT0w = 0.2f;
  p.betaw = 1;
  p.steelGrade = 5;
  p.fyk = 355;
  p.E = 210000;
  p.uflimit = 0.05f;
  p.elasticClass12 = True;
  p.conserControl = False;
  p.noFlangeBuckling = True;
  p.noWebBuckling = False;
  p.LoadCombMode = 3;
  p.deflectionLimit = 300;
  p.safetyClass = 2;
  p.psiQ1Index = 6;
  p.psiQ2Index = 4;
  p.LfULS_G = 1.35f;
  p.LfULS_Q1 = 1.5f;
  p.LfULS_Q2 = 1.05f;
  p.LfSLS_G = 1;
  p.LfSLS_Q1 = 1;
  p.LfSLS_Q2 = 0.7f;
}

// The same settings as the file holds them, typed by hand.
const char* const kSettingsFile =
    "120\n"
    "\"DK\"\n"
    "1.1\n"
    "1.2\n"
    "1.2\n"
    "2\n"
    "0.4\n"
    "0.75\n"
    "0.2\n"
    "1\n"
    "5\n"
    "355\n"
    "210000\n"
    "0.05\n"
    "#TRUE#\n"
    "#FALSE#\n"
    "#TRUE#\n"
    "#FALSE#\n"
    "3\n"
    "300\n"
    "2\n"
    "6\n"
    "4\n"
    "1.35\n"
    "1.5\n"
    "1.05\n"
    "1\n"
    "1\n"
    "0.7\n";

// "Save as default" writes the file; the code id comes from codeIndex, not from the stale codeId.
TEST(SetupFileWrite, TwentyNineLinesInThePortableForm) {
  TempFolder dir;
  State s;
  s.appPath = dir.Path();
  Settings(s.project);
  EventResult r = Fire(s, "setup.Command2");
  EXPECT_FALSE(r.refused);
  EXPECT_FALSE(r.recalculated);
  EXPECT_EQ(dir.Read(kSetupFile), kSettingsFile);
  EXPECT_EQ(s.project.codeId, "DK");
}

// The strict rules are kept as a thirtieth line, written only for them: a reader of the older
// version stops after line 29, and a setup in the default rules is the same file as before. A
// file without the line, or with anything else on it, reads as the default rules, with no message.
TEST(SetupFileRules, TheStrictRulesAreAThirtiethLineAndAnythingElseIsTheDefault) {
  TempFolder dir;
  State s;
  s.appPath = dir.Path();
  Settings(s.project);
  s.project.strictRules = True;
  WriteSetupFile(s);
  EXPECT_EQ(dir.Read(kSetupFile), std::string(kSettingsFile) + "\"EN 1993 strict\"\n");
  const struct {
    const char* tail;
    Boolean expected;
  } files[] = {{"\"EN 1993 strict\"\n", True},
               {"", False},
               {"\"en 1993 strict\"\n", False},
               {"#TRUE#\n", False},
               {"1\n", False},
               {"\"EN 1993 strict", True}};
  for (const auto& f : files) {
    dir.Write(kSetupFile, std::string(kSettingsFile) + f.tail);
    State in;
    in.appPath = dir.Path();
    in.project.strictRules = f.expected == True ? False : True;
    ReadSetupFile(in);
    EXPECT_EQ(in.project.strictRules, f.expected) << f.tail;
    EXPECT_EQ(in.project.LfSLS_Q2, 0.7f) << f.tail;  // the 29 values before it are read as ever
  }
  // A file cut short before its end has no rules either.
  dir.Write(kSetupFile, "120\n\"DK\"\n");
  State cut;
  cut.appPath = dir.Path();
  cut.project.strictRules = True;
  ReadSetupFile(cut);
  EXPECT_EQ(cut.project.strictRules, False);
}

TEST(SetupFileWrite, UnwritableFolderIsSilent) {
  TempFolder dir;
  State s;
  s.appPath = dir.Path() + "/no such folder";
  Settings(s.project);
  WriteSetupFile(s);
  EXPECT_FALSE(dir.Exists("no such folder"));
}

TEST(SetupFileRead, RoundTripGivesEveryFieldBack) {
  TempFolder dir;
  State out;
  out.appPath = dir.Path();
  Settings(out.project);
  out.project.LfSLS_G = 0.1f;  // a Single with no short decimal form
  out.project.gammaM0 = 1.0 / 3.0;
  WriteSetupFile(out);
  const std::string written = dir.Read(kSetupFile);

  State in;
  in.appPath = dir.Path();
  ReadSetupFile(in);
  EXPECT_EQ(in.project.codeId, "DK");
  // The reader derives nothing: codeIndex waits for the start-up sequence.
  EXPECT_EQ(in.project.codeIndex, 0);
  EXPECT_EQ(in.project.gammaM0, 1.0 / 3.0);
  EXPECT_EQ(in.project.LfSLS_G, 0.1f);
  // Every other field: the file holds the shortest text that reads back the same value, so the
  // record read gives the same file again only if each of the 29 slots came back into its field.
  in.project.codeIndex = 3;
  WriteSetupFile(in);
  EXPECT_EQ(dir.Read(kSetupFile), written);
}

TEST(SetupFileRead, ValuesSeparatedByCommasOrLineEnds) {
  TempFolder dir;
  dir.Write(kSetupFile,
            "120,\"SW\",1, 1.0\r\n1.2\r\n1,0.4,0.75,0.4,0.75,5,275,2.1E+05,0.1\r\n"
            "#FALSE#,#TRUE#,#FALSE#,#TRUE#\r\n0,200,1,9,0\r\n1.35,1.5,1.5,1,1,1\r\n");
  State s;
  s.appPath = dir.Path();
  ReadSetupFile(s);
  EXPECT_EQ(s.project.codeId, "SW");
  EXPECT_EQ(s.project.fyk, 275.0f);
  EXPECT_EQ(s.project.E, 210000.0f);
  EXPECT_EQ(s.project.conserControl, True);
  EXPECT_EQ(s.project.noWebBuckling, True);
  EXPECT_EQ(s.project.psiQ1Index, 9);
  EXPECT_EQ(s.project.LfSLS_Q2, 1.0f);
}

// A record with earlier values, to see which fields a damaged file leaves alone.
State StateWithEarlierValues(const TempFolder& dir) {
  State s;
  s.appPath = dir.Path();
  s.project.fyk = 111;
  s.project.E = 123;
  s.project.uflimit = 0.3f;
  s.project.elasticClass12 = True;
  s.project.LoadCombMode = 5;
  s.project.LfSLS_Q2 = 2;
  return s;
}

std::string FirstLines(int n) {
  std::string all = kSettingsFile, out;
  size_t pos = 0;
  for (int i = 0; i < n; ++i) {
    size_t end = all.find('\n', pos);
    out += all.substr(pos, end - pos + 1);
    pos = end + 1;
  }
  return out;
}

TEST(SetupFileRead, FileCutShortLeavesTheRemainingFields) {
  TempFolder dir;
  dir.Write(kSetupFile, FirstLines(12));  // up to fyk
  State s = StateWithEarlierValues(dir);
  ReadSetupFile(s);
  EXPECT_EQ(s.project.codeId, "DK");
  EXPECT_EQ(s.project.fyk, 355.0f);  // line 12 read
  EXPECT_EQ(s.project.E, 123.0f);    // line 13 on: as before
  EXPECT_EQ(s.project.uflimit, 0.3f);
  EXPECT_EQ(s.project.LoadCombMode, 5);
  EXPECT_EQ(s.project.LfSLS_Q2, 2.0f);
}

TEST(SetupFileRead, WrongValueEndsTheReadingThere) {
  TempFolder dir;
  std::string text = FirstLines(12) + "abc\n" + "0.05\n";
  dir.Write(kSetupFile, text);
  State s = StateWithEarlierValues(dir);
  ReadSetupFile(s);
  EXPECT_EQ(s.project.fyk, 355.0f);
  EXPECT_EQ(s.project.E, 123.0f);
  EXPECT_EQ(s.project.uflimit, 0.3f);  // not read although the line is good

  // A Boolean that is neither #TRUE# nor #FALSE# nor a number.
  dir.Write(kSetupFile, FirstLines(14) + "yes\n");
  State b = StateWithEarlierValues(dir);
  ReadSetupFile(b);
  EXPECT_EQ(b.project.uflimit, 0.05f);
  EXPECT_EQ(b.project.elasticClass12, True);  // as before

  // An Integer beyond 32767.
  dir.Write(kSetupFile, FirstLines(18) + "40000\n300\n");
  State i = StateWithEarlierValues(dir);
  ReadSetupFile(i);
  EXPECT_EQ(i.project.noWebBuckling, False);
  EXPECT_EQ(i.project.LoadCombMode, 5);
  EXPECT_EQ(i.project.deflectionLimit, 0);

  // A number where the code id stands is taken as its text.
  dir.Write(kSetupFile, "120\n42\n1.05\n");
  State n = StateWithEarlierValues(dir);
  ReadSetupFile(n);
  EXPECT_EQ(n.project.codeId, "42");
  EXPECT_DOUBLE_EQ(n.project.gammaM0, 1.05);
}

TEST(SetupFileRead, EmptyOrBinaryFileIsHarmless) {
  TempFolder dir;
  dir.Write(kSetupFile, "");
  State s = StateWithEarlierValues(dir);
  ReadSetupFile(s);
  EXPECT_EQ(s.project.fyk, 111.0f);
  dir.Write(kSetupFile, std::string("\x00\xff\"\n,,,\x7f", 8));
  ReadSetupFile(s);
  EXPECT_EQ(s.project.fyk, 111.0f);
}

// The start-up sequence of a new project in the given folder.
State Started(const TempFolder& dir) {
  State s;
  s.appPath = dir.Path();
  s.project.fileName = "New File";
  LoadSettings(s);
  return s;
}

TEST(LoadSettings, MissingFilesGiveZerosAndThePlainCode) {
  TempFolder dir;
  State s = Started(dir);
  const Project& p = s.project;
  EXPECT_EQ(s.steel.gradeLast, -1);
  EXPECT_EQ(p.codeId, "");
  EXPECT_EQ(p.codeIndex, 0);
  EXPECT_EQ(p.fyk, 0.0f);
  EXPECT_EQ(p.E, 0.0f);
  EXPECT_EQ(p.deflectionLimit, 0);
  // The plain code's factors still apply: gm0 1, eta 1.2 for fyk 0 <= 460.
  EXPECT_DOUBLE_EQ(p.gammaM0, 1.0);
  EXPECT_EQ(p.neta, 1.2f);
  EXPECT_EQ(p.psiQ1, 0.1f);  // index 0
  EXPECT_EQ(p.psiQ2, 0.1f);
  EXPECT_EQ(s.comb.KFI, 1.0f);
  EXPECT_EQ(s.comb.text610, "ULS: Eq 6.10: LC = 1.35*G + 1.5*Q1 + 1.5*0.1*Q2");
  EXPECT_EQ(s.comb.textULSUser, "ULS: 0.00*G + 0.00*Q1 + 0.00*Q2");
  EXPECT_EQ(s.comb.textSLSUser, "SLS: 0.00*G + 0.00*Q1 + 0.00*Q2");
  EXPECT_EQ(s.comb.textBasic, "Basic loads: G + Q1 + Q2");
  EXPECT_EQ(s.view.caption, "Varnelt EC3: New File");
}

TEST(LoadSettings, DerivesPsiCodeFactorsTextsAndCaption) {
  TempFolder dir;
  dir.Write(kSetupFile, kSettingsFile);
  dir.Write(kSteelGradeFile, vn::test::kGradeFile);
  State s = Started(dir);
  const Project& p = s.project;
  EXPECT_EQ(s.steel.gradeLast, 7);
  EXPECT_EQ(p.codeIndex, 3);
  EXPECT_EQ(p.psiQ1, 0.7f);
  EXPECT_EQ(p.psiQ2, 0.5f);
  EXPECT_EQ(s.comb.KFI, 1.0f);  // Denmark class 2
  EXPECT_EQ(s.comb.text610a, "ULS: Eq 6.10a: LC = 1.0*1.2*G");
  EXPECT_EQ(s.comb.textULSUser, "ULS: 1.35*G + 1.50*Q1 + 1.05*Q2");
  EXPECT_EQ(s.comb.textSLSUser, "SLS: 1.00*G + 1.00*Q1 + 0.70*Q2");
  EXPECT_EQ(s.view.caption, "Varnelt EC3 + NA/Denmark: New File");
}

TEST(LoadSettings, UnknownCodeIsThePlainCodeAndNorsokForcesItsMode) {
  TempFolder dir;
  std::string text = kSettingsFile;
  text.replace(text.find("\"DK\""), 4, "\"XX\"");
  dir.Write(kSetupFile, text);
  State s = Started(dir);
  EXPECT_EQ(s.project.codeIndex, 0);
  EXPECT_DOUBLE_EQ(s.project.gammaM0, 1.0);  // the stored 1.1 is overwritten by the plain code

  text.replace(text.find("\"XX\""), 4, "\"NK\"");
  dir.Write(kSetupFile, text);
  State n = Started(dir);
  EXPECT_EQ(n.project.codeIndex, 7);
  EXPECT_EQ(n.project.LoadCombMode, 4);  // the file said 3
}

TEST(LoadSettings, UserDefinedTakesTheStoredFactors) {
  TempFolder dir;
  std::string text = kSettingsFile;
  text.replace(text.find("\"DK\""), 4, "\"UD\"");
  text.replace(text.find("\n1.1\n"), 5, "\n1.25\n");
  dir.Write(kSetupFile, text);
  State s = Started(dir);
  EXPECT_EQ(s.project.codeIndex, 8);
  EXPECT_DOUBLE_EQ(s.project.gammaM0, 1.25);
  EXPECT_EQ(s.project.gammaM1, 1.2f);
  EXPECT_EQ(s.comb.gammaG_610a, 1.1f);
}

TEST(ProjectSettings, ReadProjectDerivesLikeStartUp) {
  State s;
  Project& p = s.project;
  p.codeId = "SW";
  p.fyk = 355;
  p.safetyClass = 1;
  p.psiQ1Index = 9;
  p.psiQ2Index = 2;
  DeriveProjectSettings(s);
  EXPECT_EQ(p.codeIndex, 2);
  EXPECT_EQ(p.psiQ1, 1.0f);
  EXPECT_EQ(p.psiQ2, 0.3f);
  EXPECT_EQ(s.comb.KFI, 0.83f);
  EXPECT_EQ(s.comb.text610, "ULS: Eq 6.10: LC = 0.83*(1.35*G + 1.5*Q1 + 1.5*1.0*Q2)");
}

}  // namespace
}  // namespace vn
