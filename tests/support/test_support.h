// Shared helpers of the tests: a started state, and expected values with their tolerance and its reason.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "core/state.h"

namespace vn::test {

// A state started as the program starts, from the data files beside the built program.
State StartedState();

// Tolerances, each with its reason.
struct Tolerance {
  double relative;
  const char* reason;
};
inline constexpr Tolerance kSingle{2e-7 * 4, "stored as a 32-bit float"};
inline constexpr Tolerance kPublished3{5e-3, "published tables give 3 significant digits"};
inline constexpr Tolerance kPublished4{5e-4, "published tables give 4 significant digits"};

inline ::testing::AssertionResult Near(double actual, double expected, Tolerance t) {
  double allowed = std::fabs(expected) * t.relative;
  if (std::fabs(actual - expected) <= allowed) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << actual << " differs from " << expected << " by more than "
                                       << allowed << " (" << t.reason << ")";
}

}  // namespace vn::test
