// A member ready for the analysis without the section and design stages: length, support, E, the
// second moments set by hand, all load slots empty and in Z, "Basic loads" so that a ticked slot
// acts with factor 1.
#pragma once

#include <string>

#include "analysis/analysis.h"
#include "analysis/member_analysis.h"
#include "core/format.h"
#include "core/pipeline.h"
#include "core/state.h"
#include "support/test_support.h"

namespace vn::test {

// E I of the solver's examples: E = 210000 N/mm2, I = 8E7 mm4, so that 1 kN m3 of E I d is
// 1E12 / (210000 * 8E7) = 0.05952381 mm.
inline constexpr double kMmPerKNm3 = 1e12 / (210000.0 * 8e7);

inline State BeamState(Single L, int supportType, int springPct = 50) {
  State s;
  Project& p = s.project;
  p.L = L;
  p.E = 210000;
  p.SupportType = static_cast<Integer>(supportType);
  p.SpringPct = static_cast<Integer>(springPct);
  p.AnalysisMode = 1;
  p.LoadCombMode = 5;  // Basic loads: a ticked slot counts once, whatever its case
  p.deflectionLimit = 300;
  p.ChPointMode = 0;
  p.ChPointCount = 1;
  p.ProfileType = 1;
  s.section.Iy = 8e7f;
  s.section.Iz = 8e7f;
  for (auto& u : s.loads.uniform) u.Dir = 1;
  for (auto& t : s.loads.trapezoid) t.Dir = 1;
  for (auto& pt : s.loads.point) pt.Dir = 1;
  return s;
}

inline void AddUniform(State& s, int slot, Single q, int dir = 1, int loadCase = 0) {
  UniformLoad& u = s.loads.uniform[slot];
  u.q = q;
  u.Dir = static_cast<Integer>(dir);
  u.Case = static_cast<Integer>(loadCase);
  u.Checked = True;
}

inline void AddPoint(State& s, int slot, int kind, Single value, Single x, int dir = 1, int loadCase = 0) {
  PointLoad& p = s.loads.point[slot];
  p.Kind = static_cast<Integer>(kind);
  p.Value = value;
  p.x = x;
  p.Dir = static_cast<Integer>(dir);
  p.Case = static_cast<Integer>(loadCase);
  p.Checked = True;
}

// A number as the program prints it, to compare with the printed digits of an example.
inline std::string Printed(double v, const char* pattern) { return FormatNumber(v, pattern); }

}  // namespace vn::test
