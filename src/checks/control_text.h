// The pieces every control line is written with: the number formats of the texts, the colour of a
// ratio against the limit, the limit text of a buckling line, and the four strings of one line.
#pragma once

#include <functional>
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

// The text of a group's line, made only for the candidate that keeps the group. A loop over the
// check points hands each winner's line to Keep as a closure over its numbers, captured by value
// as they stand at its point; Flush makes the strings of the last one, once, after the loop (and
// before a fault leaves it, so that a failed run leaves the texts of the winners so far).
class PendingLine {
 public:
  explicit PendingLine(ControlText& t) : t_(t) {}
  template <class Make>
  void Keep(Make make) {
    make_ = std::move(make);
  }
  void Flush() {
    if (!make_) return;
    make_(t_);
    make_ = nullptr;
  }

 private:
  ControlText& t_;
  std::function<void(ControlText&)> make_;
};

}  // namespace vn::text
