// Recalculate: the work of one accepted input, on the default project and on a fully loaded
// beam in every combination mode (section, analysis, controls, summary, figures and charts), and
// the same without a front end.
#include <benchmark/benchmark.h>

#include "bench_support.h"

namespace {

void BM_RecalculateDefaultProject(benchmark::State& state) {
  vn::State s;
  vn::StartUp(s, vn::bench::ProgramFolder(), false);
  for (auto _ : state) {
    vn::Recalculate(s);
    benchmark::DoNotOptimize(s.section.A);
  }
}
BENCHMARK(BM_RecalculateDefaultProject);

void BM_RecalculateLoadedBeam(benchmark::State& state) {
  vn::State s = vn::bench::FullyLoadedMember(static_cast<int>(state.range(0)), 0);
  for (auto _ : state) {
    vn::Recalculate(s);
    benchmark::DoNotOptimize(s.analysis.IRsection);
  }
}
BENCHMARK(BM_RecalculateLoadedBeam)->DenseRange(0, 5)->ArgName("LoadCombMode");

// The same without a front end (State::headless): no figure, chart or dialog value, the same
// results. The run of a batch or of a search through the catalogues.
void BM_RecalculateHeadlessDefaultProject(benchmark::State& state) {
  vn::State s;
  s.headless = true;
  vn::StartUp(s, vn::bench::ProgramFolder(), false);
  for (auto _ : state) {
    vn::Recalculate(s);
    benchmark::DoNotOptimize(s.analysis.IRsection);
  }
}
BENCHMARK(BM_RecalculateHeadlessDefaultProject);

void BM_RecalculateHeadlessLoadedBeam(benchmark::State& state) {
  vn::State s = vn::bench::FullyLoadedMember(static_cast<int>(state.range(0)), 0);
  s.headless = true;
  for (auto _ : state) {
    vn::Recalculate(s);
    benchmark::DoNotOptimize(s.analysis.IRsection);
  }
}
BENCHMARK(BM_RecalculateHeadlessLoadedBeam)->DenseRange(0, 5)->ArgName("LoadCombMode");

// The default member as each family, chosen from its menu entry: the families differ in their
// section routines (the plate table, the 0.1 mm stepping of a plastic axis) and in their controls.
void BM_RecalculateFamily(benchmark::State& state) {
  static const char* const kMenus[] = {"mnup01", "mnup06", "mnup10", "mnup21", "mnup22",
                                       "mnup23", "mnu26",  "mnup28", "mnup31", "mnup41"};
  vn::State s;
  vn::StartUp(s, vn::bench::ProgramFolder(), false);
  vn::Fire(s, kMenus[state.range(0)]);
  state.SetLabel(kMenus[state.range(0)]);
  for (auto _ : state) {
    vn::Recalculate(s);
    benchmark::DoNotOptimize(s.analysis.IRsection);
  }
}
BENCHMARK(BM_RecalculateFamily)->DenseRange(0, 9);

}  // namespace
