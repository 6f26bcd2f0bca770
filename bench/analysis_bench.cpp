// MemberAnalysis with every load slot in use, in each combination mode: the analysis share of one
// accepted input. Mode 3 runs the controls twice and combines three times.
#include <benchmark/benchmark.h>

#include "analysis/analysis.h"
#include "bench_support.h"
#include "core/pipeline.h"

namespace {

void BM_MemberAnalysis(benchmark::State& state) {
  vn::State s = vn::bench::FullyLoadedMember(static_cast<int>(state.range(0)), 0);
  for (auto _ : state) {
    vn::MemberAnalysis(s);
    benchmark::DoNotOptimize(s.analysis.MyGov);
  }
}
BENCHMARK(BM_MemberAnalysis)->DenseRange(0, 5)->ArgName("LoadCombMode");

// A spring support solves every slot twice.
void BM_MemberAnalysisSpringSupport(benchmark::State& state) {
  vn::State s = vn::bench::FullyLoadedMember(static_cast<int>(state.range(0)), 3);
  for (auto _ : state) {
    vn::MemberAnalysis(s);
    benchmark::DoNotOptimize(s.analysis.MyGov);
  }
}
BENCHMARK(BM_MemberAnalysisSpringSupport)->Arg(0)->Arg(3)->ArgName("LoadCombMode");

}  // namespace
