// MemberAnalysis with every load slot in use, in each combination mode: the analysis share of one
// accepted input. Mode 3 runs the controls twice and combines three times.
#include <benchmark/benchmark.h>

#include "analysis/analysis.h"
#include "core/pipeline.h"
#include "core/state.h"

namespace {

vn::State FullyLoadedMember(int combMode, int supportType) {
  vn::State s;
  vn::Project& p = s.project;
  p.L = 6;
  p.E = 210000;
  p.SupportType = static_cast<vn::Integer>(supportType);
  p.SpringPct = 40;
  p.AnalysisMode = 1;
  p.LoadCombMode = static_cast<vn::Integer>(combMode);
  p.deflectionLimit = 300;
  p.ProfileType = 4;  // IPE
  p.SelfweightOn = 1;
  p.psiQ1 = 0.7f;
  p.psiQ2 = 0.5f;
  p.LfULS_G = 1.2f;
  p.LfULS_Q1 = 1.6f;
  p.LfULS_Q2 = 1.4f;
  p.LfSLS_G = p.LfSLS_Q1 = p.LfSLS_Q2 = 1.0f;
  vn::CombinationFactors& c = s.comb;
  c.gammaG_610 = c.gammaG_610a = c.gammaG_610b = 1.35f;
  c.gammaQ1_610 = c.gammaQ2_610 = c.gammaQ1_610a = c.gammaQ2_610a = 1.5f;
  c.xi = 0.85f;
  c.KFIG = 1;
  c.KFI = 1;
  s.section.Iy = 8.356e7f;  // IPE 300
  s.section.Iz = 6.038e6f;
  s.section.g = 42.2f;
  s.section.A = 5381;

  vn::Loads& l = s.loads;
  for (int i = 1; i <= 3; ++i) l.axial[i] = {50.0f * i, static_cast<vn::Single>(i - 1), vn::True};
  for (int i = 1; i <= 4; ++i)
    l.uniform[i] = {2.0f * i, static_cast<vn::Integer>(i % 3), static_cast<vn::Integer>(i % 2),
                    vn::True};
  for (int i = 1; i <= 3; ++i)
    l.trapezoid[i] = {1.0f * i, 2.0f * i, 0.5f * i, 1.5f * i + 1.5f, static_cast<vn::Single>(i % 3),
                      static_cast<vn::Single>(i % 2), vn::True};
  for (int i = 1; i <= 8; ++i)
    l.point[i] = {static_cast<vn::Integer>(i % 2), 3.0f * i, 0.65f * i,
                  static_cast<vn::Integer>(i % 3), static_cast<vn::Integer>((i / 2) % 2), vn::True};
  return s;
}

void BM_MemberAnalysis(benchmark::State& state) {
  vn::State s = FullyLoadedMember(static_cast<int>(state.range(0)), 0);
  for (auto _ : state) {
    vn::MemberAnalysis(s);
    benchmark::DoNotOptimize(s.analysis.MyGov);
  }
}
BENCHMARK(BM_MemberAnalysis)->DenseRange(0, 5)->ArgName("LoadCombMode");

// A spring support solves every slot twice.
void BM_MemberAnalysisSpringSupport(benchmark::State& state) {
  vn::State s = FullyLoadedMember(static_cast<int>(state.range(0)), 3);
  for (auto _ : state) {
    vn::MemberAnalysis(s);
    benchmark::DoNotOptimize(s.analysis.MyGov);
  }
}
BENCHMARK(BM_MemberAnalysisSpringSupport)->Arg(0)->Arg(3)->ArgName("LoadCombMode");

}  // namespace
