// One lateral torsional eigenvalue run, as the control makes it on every accepted input while Mcr by
// eigenvalue analysis is chosen: the IPE 300 of 6 m with every load slot in use (uniform loads,
// trapezoids and point loads on the top flange), and the same member with the dialog's most
// restraints (7 parts, the most elements). Then the whole recalculation with the tables and with the
// eigenvalue analysis, for the share of the one in the other.
#include <benchmark/benchmark.h>

#include "analysis/ltb_eigen.h"
#include "bench_support.h"
#include "core/recalculate.h"

namespace {

// The solver's input as the control builds it from the member's diagram and loads.
vn::LtbMember MemberOf(const vn::State& s, int restraints) {
  const vn::Analysis& an = s.analysis;
  vn::LtbMember m;
  const double E = s.project.E;
  m.L = 1000.0 * s.project.L;
  m.EIz = E * s.section.Iz;
  m.GIt = E / 2.6 * s.section.Ix;
  m.EIw = E * s.section.Iw;
  for (int i = 0; i <= 50; ++i) {
    m.xs.push_back(m.L * i / 50);
    m.My.push_back(1e6 * an.MyGrid[static_cast<size_t>(i)]);
  }
  m.zg = s.section.h / 2.0;
  m.lineLoads.push_back({0, m.L, an.loadsZ.q, an.loadsZ.q});
  for (const vn::FactoredForce& f : an.loadsZ.forces) m.pointLoads.push_back({1000 * f.x, 1000 * f.P});
  for (int i = 1; i <= restraints; ++i) m.restraints.push_back(m.L * i / (restraints + 1));
  return m;
}

void BM_LtbEigenRun(benchmark::State& state) {
  vn::State s = vn::bench::FullyLoadedMember(5, 0);
  s.project.ltbMcrMethod = 1;  // the factored loads are gathered for the eigenvalue analysis only
  vn::Recalculate(s);
  const vn::LtbMember m = MemberOf(s, static_cast<int>(state.range(0)));
  for (auto _ : state) {
    const vn::LtbEigenResult r = vn::LtbCriticalFactor(m);
    benchmark::DoNotOptimize(r.factor);
  }
}
BENCHMARK(BM_LtbEigenRun)->Arg(0)->Arg(6)->ArgName("restraints")->Unit(benchmark::kMicrosecond);

void BM_RecalculateByMcrMethod(benchmark::State& state) {
  vn::State s = vn::bench::FullyLoadedMember(5, 0);
  s.project.ltbMcrMethod = static_cast<vn::Integer>(state.range(0));
  for (auto _ : state) {
    vn::Recalculate(s);
    benchmark::DoNotOptimize(s.checks.Mcr);
  }
}
BENCHMARK(BM_RecalculateByMcrMethod)->Arg(0)->Arg(1)->ArgName("eigen")->Unit(benchmark::kMicrosecond);

}  // namespace
