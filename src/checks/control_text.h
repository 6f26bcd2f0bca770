// The pieces every control line is written with: the number formats of the texts, the colour of a
// ratio against the limit, the limit text of a buckling line, and the four strings of one line.
#pragma once

#include <string>
#include <utility>

#include "core/format.h"
#include "core/state.h"

namespace vn::text {

// A force or moment in a line, "0.0"; a ratio or factor, "0.00".
inline std::string F1(const State& s, double v) { return FormatNumber(v, "0.0", s.decimalComma); }
inline std::string F2(const State& s, double v) { return FormatNumber(v, "0.00", s.decimalComma); }

// Red (4) only when strictly above the limit, else green (2).
inline Integer Colour(const State& s, double ratio) {
  return ratio > static_cast<double>(s.analysis.IRlimit) ? Integer{4} : Integer{2};
}

// " < 1.0 (" and the clause.
inline std::string Limit(const State& s, const std::string& tail) {
  return " < " + F1(s, s.analysis.IRlimit) + " (" + tail;
}

// One line: formula, numbers, the ratio as "0.00", and the limit.
inline void Write(const State& s, ControlText& t, std::string formula, std::string numbers, double ratio,
                  std::string limit) {
  t.Formula = std::move(formula);
  t.Numbers = std::move(numbers);
  t.Ratio = F2(s, ratio);
  t.Limit = std::move(limit);
}

}  // namespace vn::text
