// Members for the buckling tests, built through the events of the forms as a person builds them,
// on a state started as the program starts (S355, E = 210000, code EC3, gammaM0 = gammaM1 = 1).
// "Basic loads" makes every ticked load act once, so the design forces are those typed.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "core/events.h"
#include "core/state.h"
#include "support/test_support.h"

namespace vn::test {

// Section values arrive as 32-bit floats and feed a chain of formulas; the hand calculation
// carries the table's decimal values.
inline constexpr Tolerance kChain{1e-6, "32-bit section values against the decimal hand values"};
// Deflections of the beam solver are summed in 32-bit floats.
inline constexpr Tolerance kSolver{2e-5, "deflections and moments summed in 32-bit floats"};

// Fires one event that must be known and accepted.
inline void Do(State& s, const std::string& control, const std::string& text = {}) {
  const EventResult r = Fire(s, control, text);
  ASSERT_TRUE(r.known) << control;
  ASSERT_FALSE(r.refused) << control << " = " << text << ": " << r.message;
}

// A simply supported member of length L (m) with one section, loads in "Basic loads" mode: the
// axial force N (kN, compression positive) in slot 1, a uniform load q (kN/m, in z) in slot 1.
inline State Member(const std::string& menu, const std::string& dialog, int row, const char* L, const char* N,
                    const char* q) {
  State s = StartedState();
  Do(s, menu);
  Do(s, dialog + ".cbo", std::to_string(row));
  Do(s, "il", L);
  Do(s, "CboLoadComb", "5");
  Do(s, "Loading.inn(1)", N);
  Do(s, "Loading.iq(1)", q);
  return s;
}

// IPE 300 (row 10 of the IPE table) and HEB 200 (row 5 of the HEB table).
inline State Ipe300(const char* L, const char* N, const char* q) {
  return Member("mnup04", "p04", 10, L, N, q);
}
inline State Heb200(const char* L, const char* N, const char* q) {
  return Member("mnup02", "p02", 5, L, N, q);
}

}  // namespace vn::test
