// Files written whole or not at all, files read within bounds, and JSON that stays valid whatever a
// field holds. A full disk is a file size limit (RLIMIT_FSIZE) set in a child process; the tests
// run as root, whom permissions don't stop, so a missing folder stands for a folder that can't be
// written.
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "core/events.h"
#include "core/json.h"
#include "core/project_file.h"
#include "core/recalculate.h"
#include "core/safe_file.h"
#include "core/state.h"
#include "design/design_basis.h"
#include "support/test_support.h"

namespace vn {
namespace {

namespace fs = std::filesystem;

const std::string kOld = "the previous file, which must survive\n";

std::set<std::string> Names(const test::TempFolder& folder) {
  std::set<std::string> names;
  for (const auto& e : fs::directory_iterator(folder.Dir())) names.insert(e.path().filename().string());
  return names;
}

// Runs `body` in a child process whose files can't grow beyond `limit` bytes. The child's exit
// status is `body`'s result; a child ended by a signal (SIGXFSZ) gives -signal.
int InChildWithFileLimit(rlim_t limit, const std::function<int()>& body) {
  const pid_t pid = fork();
  if (pid == 0) {
    rlimit r{limit, limit};
    if (setrlimit(RLIMIT_FSIZE, &r) != 0) _exit(90);
    _exit(body());
  }
  int status = 0;
  waitpid(pid, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

// ---- Writing ----

// Each writer of the core, failing on a full disk: it says so, and the previous file stays byte for
// byte with nothing beside it.
struct FailingWrite {
  const char* name;
  const char* file;
  std::function<int(State&, const std::string& path)> write;  // 0 when the failure was reported as it should
};

TEST(FileWrites, AFullDiskLeavesThePreviousFileByteForByteAndNoTemporary) {
  const std::vector<FailingWrite> cases = {
      {"WriteProject", "a.vnt",
       [](State& s, const std::string& path) {
         std::string reason;
         if (WriteProject(s, path, &reason) != FileResult::NotFound) return 1;
         return reason == "File too large" ? 0 : 2;
       }},
      {"Save of an opened project", "b.vnt",
       [](State& s, const std::string& path) {
         s.project.fileName = path;
         EventResult r = Fire(s, "mnusave", "");
         if (!r.refused || r.message != "can't save file - " + path) return 1;
         return r.fileError == "cannot write '" + path + "': File too large" ? 0 : 2;
       }},
      {"Save As", "c.vnt",
       [](State& s, const std::string& path) {
         EventResult r = Fire(s, "mnusaveas", path);
         return r.refused && r.message == "can't save file - " + path ? 0 : 1;
       }},
      {"New, saving the project first", "d.vnt",
       [](State& s, const std::string& path) {
         s.project.fileName = path;
         s.project.L = 7;
         EventResult r = Fire(s, "mnunew", "Yes");
         // The project is not dropped when it could not be saved.
         return r.refused && s.project.L == 7 ? 0 : 1;
       }},
      {"Save as default", kSetupFile,
       [](State& s, const std::string& path) {
         EventResult r = Fire(s, "setup.Command2", "");
         return r.refused && r.message == "can't save file - " + path ? 0 : 1;
       }},
  };
  for (const FailingWrite& c : cases) {
    SCOPED_TRACE(c.name);
    test::TempFolder folder;
    folder.Write(c.file, kOld);
    State s = test::StartedState();
    s.appPath = folder.Path();  // the setup file lies in the program's folder
    const std::string path = folder.Path(c.file);
    // A limit above the old file's size and below the new one's.
    EXPECT_EQ(InChildWithFileLimit(kOld.size() + 8, [&] { return c.write(s, path); }), 0);
    EXPECT_EQ(folder.Read(c.file), kOld);
    EXPECT_EQ(Names(folder), std::set<std::string>{c.file});
  }
}

TEST(FileWrites, AFailedSaveAsDefaultKeepsTheSettingsOfTheNextStart) {
  // The setup file of a fresh installation, then "Save as default" on a full disk: the next start
  // reads the same E as before, not an empty file's zero.
  test::TempFolder folder;
  fs::copy_file(fs::path(VARNELT_BIN_DIR) / kSetupFile, folder.Dir() / kSetupFile);
  State s = test::StartedState();
  s.appPath = folder.Path();
  s.project.E = 199000;
  EXPECT_EQ(InChildWithFileLimit(8, [&] { return WriteSetupFile(s) ? 1 : 0; }), 0);
  State next;
  next.appPath = folder.Path();
  ReadSetupFile(next);
  EXPECT_EQ(next.project.E, 210000.0f);
}

TEST(FileWrites, AFolderRemovedOrAFolderAtTheTargetIsReportedWithTheReason) {
  test::TempFolder folder;
  State s = test::StartedState();
  std::string reason;
  const std::string gone = folder.Path("gone");
  fs::create_directory(gone);
  fs::remove(gone);
  EXPECT_EQ(WriteProject(s, gone + "/a.vnt", &reason), FileResult::NotFound);
  EXPECT_EQ(reason, "No such file or directory");
  fs::create_directory(folder.Path("taken.vnt"));
  EXPECT_EQ(WriteProject(s, folder.Path("taken.vnt"), &reason), FileResult::NotFound);
  EXPECT_EQ(reason, "Is a directory");
  EXPECT_TRUE(fs::is_directory(folder.Path("taken.vnt")));
  EXPECT_EQ(Names(folder), std::set<std::string>{"taken.vnt"});
}

TEST(FileWrites, SymbolicLinksBesideTheTargetAreNeverFollowed) {
  // Links placed where a fixed temporary name would be, and at the target itself, all pointing at a
  // file elsewhere: that file stays as it was, the links stay links, and the target is the project.
  test::TempFolder folder, elsewhere;
  elsewhere.Write("victim", kOld);
  const fs::path victim = elsewhere.Dir() / "victim";
  for (const char* link : {"a.vnt.tmp~", ".a.vnt.tmp~", "a.vnt~", ".a.vnt.XXXXXX"})
    fs::create_symlink(victim, folder.Dir() / link);
  fs::create_symlink(victim, folder.Dir() / "linked.vnt");
  State s = test::StartedState();
  ASSERT_EQ(WriteProject(s, folder.Path("a.vnt")), FileResult::Ok);
  // A link at the target is replaced by the file: the file it pointed to is not written through it.
  ASSERT_EQ(WriteProject(s, folder.Path("linked.vnt")), FileResult::Ok);
  EXPECT_EQ(elsewhere.Read("victim"), kOld);
  for (const char* link : {"a.vnt.tmp~", ".a.vnt.tmp~", "a.vnt~", ".a.vnt.XXXXXX"})
    EXPECT_TRUE(fs::is_symlink(folder.Dir() / link)) << link;
  EXPECT_FALSE(fs::is_symlink(folder.Dir() / "linked.vnt"));
  EXPECT_EQ(folder.Read("a.vnt"), ProjectFileText(s));
  EXPECT_EQ(folder.Read("linked.vnt"), ProjectFileText(s));
  EXPECT_EQ(Names(folder).size(), 6u);  // no temporary file left
}

TEST(FileWrites, AReplacedFileKeepsItsPermissions) {
  test::TempFolder folder;
  folder.Write("a.vnt", kOld);
  fs::permissions(folder.Path("a.vnt"),
                  fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
  std::string reason;
  ASSERT_TRUE(ReplaceFile(folder.Path("a.vnt"), "new", &reason)) << reason;
  struct stat st {};
  ASSERT_EQ(stat(folder.Path("a.vnt").c_str(), &st), 0);
  EXPECT_EQ(st.st_mode & 0777, 0640u);
  EXPECT_EQ(folder.Read("a.vnt"), "new");
}

// ---- Reading ----

TEST(FileReads, WhatIsNoProjectFileIsRefusedBeforeTheRecordChanges) {
  test::TempFolder folder;
  folder.Write("big.vnt", std::string(kProjectFileLimit + 1, '1'));
  mkfifo(folder.Path("fifo.vnt").c_str(), 0600);
  struct Case {
    std::string path;
    const char* message;  // the file action's message; the path follows "can't find file - "
    const char* reason;
  };
  const std::vector<Case> cases = {
      {folder.Path("big.vnt"), "Input file not compatible with this version ", "larger than 4194304 bytes"},
      {folder.Path(), "can't find file - ", "Is a directory"},
      {"/dev/zero", "can't find file - ", "not a regular file"},
      {folder.Path("fifo.vnt"), "can't find file - ", "not a regular file"},  // and no wait for a writer
      {folder.Path("none.vnt"), "can't find file - ", "No such file or directory"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.path);
    State s = test::StartedState();
    const std::string before = ProjectFileText(s);
    EventResult r = Fire(s, "mnuopen", c.path);
    EXPECT_TRUE(r.refused);
    const std::string expected =
        c.message == std::string("can't find file - ") ? c.message + c.path : c.message;
    EXPECT_EQ(r.message, expected);
    EXPECT_EQ(r.fileError, "cannot read '" + c.path + "': " + c.reason);
    EXPECT_EQ(s.project.fileName, "New File");
    EXPECT_EQ(ProjectFileText(s), before);
  }
}

TEST(FileReads, TheBoundReadsAPrefixOrRefuses) {
  test::TempFolder folder;
  folder.Write("f", "0123456789");
  std::string bytes, reason;
  EXPECT_EQ(ReadFileBounded(folder.Path("f"), 10, &bytes, &reason), ReadStatus::Ok);
  EXPECT_EQ(bytes, "0123456789");
  EXPECT_EQ(ReadFileBounded(folder.Path("f"), 9, &bytes, &reason), ReadStatus::TooLarge);
  EXPECT_EQ(bytes, "");
  EXPECT_EQ(ReadFileBounded(folder.Path("f"), 4, &bytes, &reason, Oversize::ReadPrefix), ReadStatus::Ok);
  EXPECT_EQ(bytes, "0123");
  // A device read as a prefix is still no file.
  EXPECT_EQ(ReadFileBounded("/dev/zero", 4, &bytes, &reason, Oversize::ReadPrefix), ReadStatus::NotAFile);
}

TEST(FileReads, OversizedOrDeviceSettingsFilesLeaveTheDefaults) {
  test::TempFolder folder;
  folder.Write(kSetupFile, "120\n\"EU\"\n" + std::string(kSettingsFileLimit, '\n'));
  fs::create_symlink("/dev/zero", folder.Dir() / kSteelGradeFile);
  State s;
  s.appPath = folder.Path();
  ReadSetupFile(s);
  ReadSteelGrades(s);
  EXPECT_EQ(s.project.codeId, "");
  EXPECT_EQ(s.steel.gradeLast, -1);
}

// ---- JSON ----

TEST(JsonText, BytesThatAreNotUtf8AreReplacedAndTheRestPassesOn) {
  struct Case {
    const char* name;
    std::string field, json;
  };
  const std::vector<Case> cases = {
      {"Latin-1 e acute", "\xe9t\xe9", "\\ufffdt\\ufffd"},
      {"UTF-8 e acute", "\xc3\xa9t\xc3\xa9", "\xc3\xa9t\xc3\xa9"},
      {"four bytes", "\xf0\x9f\x99\x82", "\xf0\x9f\x99\x82"},
      {"cut short at the end", "a\xc3", "a\\ufffd"},
      {"a lone continuation byte", "\x80z", "\\ufffdz"},
      {"overlong slash", "\xc0\xaf", "\\ufffd\\ufffd"},
      {"a surrogate", "\xed\xa0\x80", "\\ufffd\\ufffd\\ufffd"},
      {"beyond U+10FFFF", "\xf4\x90\x80\x80", "\\ufffd\\ufffd\\ufffd\\ufffd"},
      {"control characters", std::string("\x01\x1f\"\\", 4), "\\u0001\\u001f\\\"\\\\"},
      {"a zero byte", std::string("a\0b", 3), "a\\u0000b"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    State s;
    NewProject(s);
    s.project.projectName = c.field;
    const std::string json = StateToJson(s);
    EXPECT_NE(json.find("\"projectName\":\"" + c.json + "\""), std::string::npos);
  }
}

}  // namespace
}  // namespace vn
