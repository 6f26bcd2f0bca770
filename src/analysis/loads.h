// The load tables of the beam mode. Slots are counted as the program counts them: slot 0 of the
// uniform loads is the selfweight, the user's rows start at 1.
#pragma once

#include <array>

#include "core/types.h"

namespace vn {

struct AxialLoad {
  Single N = 0;
  Single Case = 0;  // 0 G, exactly 1.0 Q1, any other non-zero value Q2
  Boolean Checked = False;
};

struct UniformLoad {
  Single q = 0;
  Integer Case = 0;
  Integer Dir = 0;  // 0 Y, 1 Z
  Boolean Checked = False;
};

struct TrapezoidLoad {
  Single q1 = 0, q2 = 0;
  Single x1 = 0, x2 = 0;  // metres
  Single Case = 0;
  Single Dir = 0;
  Boolean Checked = False;
};

struct PointLoad {
  Integer Kind = 0;  // 0 force P, 1 moment M
  Single Value = 0;
  Single x = 0;  // metres
  Integer Case = 0;
  Integer Dir = 0;  // force: 0 Y, 1 Z; moment: 1 My, 0 Mz
  Boolean Checked = False;
};

struct Loads {
  std::array<AxialLoad, 4> axial{};          // slots 1..3
  std::array<UniformLoad, 5> uniform{};      // slot 0 selfweight, 1..4
  std::array<TrapezoidLoad, 4> trapezoid{};  // slots 1..3
  std::array<PointLoad, 9> point{};          // slots 1..8
  Integer PointLoadXRelative = 0;
  Integer TrapezoidXRelative = 0;
};

}  // namespace vn
