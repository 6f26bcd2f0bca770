// Recalculate: the work of one accepted input, on the default project and on a fully loaded
// beam in every combination mode (section, analysis, controls, summary).
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

}  // namespace
