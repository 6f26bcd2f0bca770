// Generated bad input: damaged project files and random texts typed into every control. Nothing may
// crash or hang, and the record must always be one the next recalculation can run on.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

#include "core/events.h"
#include "core/project_file.h"
#include "core/recalculate.h"
#include "core/state.h"
#include "support/test_support.h"

namespace vn {
namespace {

std::vector<std::string> ControlNamesWithSlot() {
  std::vector<std::string> names;
  for (std::string n : Controls().Names()) {
    // "form.name(a..b)" -> "form.name(a)"
    if (auto open = n.find('('); open != std::string::npos) {
      auto dots = n.find("..", open);
      n = n.substr(0, dots) + ")";
    }
    names.push_back(n);
  }
  return names;
}

const std::vector<std::string> kNastyTexts = {
    "",       " ",     "abc",   "0",      "-0",    "1e40",     "-1e40",
    "3.4e38", "1e-45", "99999", "-32769", "32768", "0,0001",   "1.5.5",
    "1,2,3",  "--1",   "+",     "e5",     "1e",    ".",        ",",
    "NaN",    "inf",   "\t7",   "5 5",    "0x10",  "\xc3\xa9", "12345678901234567890",
    "-1",     "0.5",   "100",   "4",      "1"};

TEST(Robustness, RandomTextsIntoEveryControlNeverCrashAndTheNextRunWorks) {
  std::mt19937 rng(20261123);
  std::vector<std::string> names = ControlNamesWithSlot();
  ASSERT_GT(names.size(), 50u);
  for (int round = 0; round < 3; ++round) {
    State s = test::StartedState();
    std::vector<std::string> order = names;
    std::shuffle(order.begin(), order.end(), rng);
    for (const std::string& control : order) {
      // Menu entries that read or write files get no text here: they take a path.
      if (control.rfind("mnuopen", 0) == 0 || control.rfind("mnusave", 0) == 0 ||
          control.find("cmdDetailedResult") != std::string::npos ||
          control.find("Command2") != std::string::npos)
        continue;
      const std::string& text = kNastyTexts[rng() % kNastyTexts.size()];
      EXPECT_NO_THROW(Fire(s, control, text)) << control << " = " << text;
    }
    EXPECT_NO_THROW(Recalculate(s));
  }
}

TEST(Robustness, DamagedProjectFilesNeverCrashTheReaderOrTheNextRun) {
  State original = test::StartedState();
  original.project.projectName = "Base, \"project\"";
  const std::string text = ProjectFileText(original);
  test::TempFolder folder;
  const std::string path = folder.Path("damaged.vnt");
  std::mt19937 rng(42);
  for (int trial = 0; trial < 300; ++trial) {
    std::string damaged = text;
    switch (trial % 4) {
      case 0:  // cut short anywhere
        damaged.resize(rng() % damaged.size());
        break;
      case 1:  // a few random bytes
        for (int k = 0; k < 5; ++k) damaged[rng() % damaged.size()] = static_cast<char>(rng() % 256);
        break;
      case 2: {  // a value replaced by a nasty one
        size_t at = rng() % damaged.size();
        size_t end = damaged.find("\r\n", at);
        if (end == std::string::npos) end = damaged.size();
        damaged.replace(at, end - at, kNastyTexts[rng() % kNastyTexts.size()]);
        break;
      }
      default:  // random garbage of random length
        damaged.assign(rng() % 400, ' ');
        for (char& ch : damaged) ch = static_cast<char>(rng() % 256);
        break;
    }
    { std::ofstream(path, std::ios::binary) << damaged; }
    State s = original;
    EXPECT_NO_THROW(ReadProject(s, path)) << "trial " << trial;
    EXPECT_NO_THROW(RefreshMainForm(s)) << "trial " << trial;
    EXPECT_NO_THROW(Recalculate(s)) << "trial " << trial;
  }
}

}  // namespace
}  // namespace vn
