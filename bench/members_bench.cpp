// Many members: the lightest passing section over every row of every catalogue family, a batch of
// CSV members, and the parts of one member's cost (a copy of the State, one run), on one worker
// and on two. Report medians: --benchmark_repetitions=5 --benchmark_report_aggregates_only=true.
#include <benchmark/benchmark.h>

#include <string>

#include "bench_support.h"
#include "members/batch.h"
#include "members/lightest.h"
#include "members/member_run.h"

namespace {

vn::State Started() {
  vn::State s;
  vn::StartUp(s, vn::bench::ProgramFolder(), false);
  return s;
}

// The default beam-column (HEA 300, 5 m, N = 100 kN, q = 10 kN/m) over all 900 rows.
void BM_LightestAllFamilies(benchmark::State& state) {
  const vn::State s = Started();
  std::vector<const vn::CatalogueFamily*> all;
  std::string error;
  vn::ParseFamilies("all", &all, &error);
  int rows = 0;
  for (auto _ : state) {
    const vn::LightestResult r = vn::FindLightest(s, all, static_cast<int>(state.range(0)));
    rows = r.rowsRun;
    benchmark::DoNotOptimize(r.passing.data());
  }
  state.counters["rows"] = rows;
  state.SetLabel(std::to_string(state.range(0)) + " workers");
}
BENCHMARK(BM_LightestAllFamilies)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime();

// 1000 members of a CSV (beams and columns of several families), per batch.
std::string Members(int count) {
  const char* sections[] = {"IPE,IPE 300", "HEB,HEB 200", "RHS,RHS 200x100x8", "UB,UB 305x165x40",
                            "L-equal,L 100x100x10"};
  std::string csv = "member,family,section,grade,L,support,ltb,N_G,qz_G,qz_Q\n";
  for (int i = 0; i < count; ++i)
    csv += "M" + std::to_string(i) + "," + sections[i % 5] + ",S355," + std::to_string(3 + i % 5) + "," +
           std::to_string(i % 3) + "," + std::to_string(i % 2) + "," + std::to_string(10 * (i % 7)) + "," +
           std::to_string(i % 4) + "," + std::to_string(i % 6) + "\n";
  return csv;
}

void BM_Batch1000Members(benchmark::State& state) {
  const vn::State s = Started();
  const std::string csv = Members(1000);
  for (auto _ : state) {
    const vn::BatchResult r = vn::RunBatchText(s, csv, "bench.csv", "", static_cast<int>(state.range(0)));
    benchmark::DoNotOptimize(r.entries.data());
  }
  state.SetItemsProcessed(state.iterations() * 1000);
  state.SetLabel(std::to_string(state.range(0)) + " workers");
}
BENCHMARK(BM_Batch1000Members)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime();

// The parts of one member: the copy of a started State (pictures left out as the runs do), and
// one run through RunMember.
void BM_StateCopy(benchmark::State& state) {
  vn::State s = Started();
  s.view.pictures.clear();
  s.view.items.clear();
  for (auto _ : state) {
    vn::State copy = s;
    benchmark::DoNotOptimize(copy.project.L);
  }
}
BENCHMARK(BM_StateCopy);

void BM_RunMember(benchmark::State& state) {
  vn::State s = Started();
  for (auto _ : state) {
    vn::RunMember(s);
    benchmark::DoNotOptimize(s.analysis.IRsection);
  }
}
BENCHMARK(BM_RunMember);

}  // namespace
