// Recalculate on the default project: the work of one accepted input.
#include <benchmark/benchmark.h>

#include <string>
#include <unistd.h>
#include <climits>

#include "core/recalculate.h"
#include "core/startup.h"
#include "core/state.h"

namespace {

std::string ProgramFolder() {
  char buf[PATH_MAX];
  ssize_t n = readlink("/proc/self/exe", buf, sizeof buf - 1);
  std::string path = n > 0 ? std::string(buf, static_cast<size_t>(n)) : std::string(".");
  return path.substr(0, path.rfind('/'));
}

void BM_RecalculateDefaultProject(benchmark::State& state) {
  vn::State s;
  vn::StartUp(s, ProgramFolder(), false);
  for (auto _ : state) {
    vn::Recalculate(s);
    benchmark::DoNotOptimize(s.section.A);
  }
}
BENCHMARK(BM_RecalculateDefaultProject);

}  // namespace
