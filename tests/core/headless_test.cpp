// A run without a front end gives the results of a full run to the bit. Every golden case, and a
// fully loaded beam under every support and combination, runs twice side by side: once with the
// screen and once headless. After every event the whole state as JSON must be the same but for
// the section dialog's values (which the headless run leaves out, as it does the pictures, which
// the JSON does not hold), and so must the summary, its verdict, the table of More Results and
// both reports.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

#include "core/events.h"
#include "core/file_actions.h"
#include "core/json.h"
#include "core/recalculate.h"
#include "core/startup.h"
#include "core/state.h"
#include "results/detail_table.h"
#include "results/report.h"
#include "results/summary.h"

namespace vn {
namespace {

namespace fs = std::filesystem;

State Started(bool headless, bool decimalComma) {
  State s;
  s.headless = headless;
  StartUp(s, VARNELT_BIN_DIR, decimalComma);
  return s;
}

// The state as JSON without the section dialog's values.
std::string JsonOfResults(State& s) {
  std::vector<View::Line> shown = std::move(s.view.sectionValues);
  s.view.sectionValues.clear();
  std::string json = StateToJson(s);
  s.view.sectionValues = std::move(shown);
  return json;
}

std::string Texts(const State& s) {
  std::string t = s.view.verdict + "\n" + std::to_string(s.view.verdictColour) + "\n" + SummaryText(s);
  for (const DetailRow& row : MakeDetailTable(s).rows)
    for (const std::string& cell : row) t += cell + "|";
  for (ReportKind kind : {ReportKind::SectionCapacity, ReportKind::Stability})
    t += ReportText(BuildReport(s, kind, "01.01.2000", "12:00:00"));
  return t;
}

// Empty when the texts are the same; else where they first differ, with a little of each around it.
std::string Difference(const std::string& a, const std::string& b) {
  if (a == b) return "";
  size_t i = 0;
  while (i < a.size() && i < b.size() && a[i] == b[i]) ++i;
  const size_t from = i < 80 ? 0 : i - 80;
  return "at " + std::to_string(i) + ":\n full:     ..." + a.substr(from, 160) + "\n headless: ..." +
         b.substr(from, 160);
}

// Both states after the same step: the same results, and nothing drawn or shown headless.
void ExpectSameResults(State& full, State& headless, const std::string& step) {
  SCOPED_TRACE(step);
  ASSERT_EQ(full.recalcCount, headless.recalcCount);
  EXPECT_EQ(Difference(JsonOfResults(full), JsonOfResults(headless)), "");
  EXPECT_EQ(Difference(Texts(full), Texts(headless)), "");
  EXPECT_TRUE(headless.view.pictures.empty());
  EXPECT_TRUE(headless.view.sectionValues.empty());
}

struct GoldenCase {
  std::string name;
  bool decimalComma = false;
  std::string project;              // a project file to open first, if any
  std::vector<std::string> events;  // CONTROL or CONTROL=TEXT
};

// The events of a case as its args file gives them to the command line; outputs are left out.
GoldenCase ReadCase(const fs::path& dir) {
  GoldenCase c;
  c.name = dir.filename().string();
  std::ifstream in(dir / "args");
  std::vector<std::string> args;
  for (std::string line; std::getline(in, line);) {
    if (line.empty() || line[0] == '#') continue;
    for (auto at = line.find("@CASE@"); at != std::string::npos; at = line.find("@CASE@"))
      line.replace(at, 6, dir.string());
    args.push_back(line);
  }
  for (size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    if (a.rfind("--do=", 0) == 0)
      c.events.push_back(a.substr(5));
    else if (a == "--do" && i + 1 < args.size())
      c.events.push_back(args[++i]);
    else if (a == "--decimal-comma")
      c.decimalComma = true;
    else if (a == "--report" || a == "--save" || a == "--csv" || a == "--xlsx" || a == "--svg")
      ++i;  // an output and its argument
    else if (!a.empty() && a[0] != '-')
      c.project = a;
  }
  return c;
}

std::vector<GoldenCase> GoldenCases() {
  std::vector<GoldenCase> cases;
  for (const auto& entry : fs::directory_iterator(fs::path(VARNELT_DATA_DIR) / ".." / "tests" / "golden"))
    if (entry.is_directory() && fs::exists(entry.path() / "args")) cases.push_back(ReadCase(entry.path()));
  return cases;
}

TEST(Headless, EveryGoldenCaseGivesTheResultsOfTheFullRun) {
  const std::vector<GoldenCase> cases = GoldenCases();
  ASSERT_GE(cases.size(), 30u);  // the cases are there
  int events = 0;
  for (const GoldenCase& c : cases) {
    SCOPED_TRACE(c.name);
    State full = Started(false, c.decimalComma);
    State headless = Started(true, c.decimalComma);
    ExpectSameResults(full, headless, "start");
    EXPECT_FALSE(full.view.pictures.empty());  // the full run draws, so the comparison means something
    if (!c.project.empty()) {
      OpenAction(full, c.project);
      OpenAction(headless, c.project);
      ExpectSameResults(full, headless, "open " + c.project);
    }
    for (const std::string& e : c.events) {
      const auto eq = e.find('=');
      const std::string control = e.substr(0, eq), text = eq == std::string::npos ? "" : e.substr(eq + 1);
      const EventResult a = Fire(full, control, text), b = Fire(headless, control, text);
      EXPECT_EQ(a.refused, b.refused);
      EXPECT_EQ(a.message, b.message);
      ExpectSameResults(full, headless, e);
      ++events;
    }
  }
  EXPECT_GT(events, 150);
}

// Every load slot in use: the trapezoids' strips, point forces and moments on and beside the
// check points, a load at each end, a strip beyond the member, the selfweight.
void LoadEverySlot(State& s) {
  Loads& l = s.loads;
  s.project.SpringPct = 40;
  s.project.SelfweightOn = 1;
  for (int i = 1; i <= 3; ++i) l.axial[i] = {40.0f * i, static_cast<Single>(i - 1), True};
  for (int i = 1; i <= 4; ++i)
    l.uniform[i] = {2.0f * i, static_cast<Integer>(i % 3), static_cast<Integer>(i % 2), True};
  for (int i = 1; i <= 3; ++i)
    l.trapezoid[i] = {1.0f * i,
                      -2.0f * i,
                      0.5f * i,
                      1.5f * i + 1.5f,
                      static_cast<Single>(i % 3),
                      static_cast<Single>(i % 2),
                      True};
  l.trapezoid[3].x2 = 6.5f;
  for (int i = 1; i <= 8; ++i)
    l.point[i] = {static_cast<Integer>(i % 2),       3.0f * i - 10, 0.65f * i, static_cast<Integer>(i % 3),
                  static_cast<Integer>((i / 2) % 2), True};
  l.point[7].x = 0;
  l.point[8].x = 6;
}

TEST(Headless, AFullyLoadedBeamGivesTheResultsOfTheFullRunUnderEverySupportAndCombination) {
  for (int support = 0; support <= 5; ++support) {
    for (int comb = 0; comb <= 5; ++comb) {
      for (const char* rules : {"0", "1"}) {
        SCOPED_TRACE("support " + std::to_string(support) + ", combination " + std::to_string(comb) +
                     ", strict " + rules);
        State full = Started(false, false), headless = Started(true, false);
        for (State* s : {&full, &headless}) {
          Fire(*s, "mnup04");
          Fire(*s, "p04.cbo", "10");  // IPE 300
          Fire(*s, "il", "6");
          Fire(*s, "cbutt" + std::to_string(support));
          Fire(*s, "CboLoadComb", std::to_string(comb));
          Fire(*s, "setup.strict", rules);
          LoadEverySlot(*s);
          Recalculate(*s);
        }
        ExpectSameResults(full, headless, "loaded");
        // Once more: the factors a run carries over to the next, and the charts' flags.
        Recalculate(full);
        Recalculate(headless);
        ExpectSameResults(full, headless, "again");
      }
    }
  }
}

}  // namespace
}  // namespace vn
