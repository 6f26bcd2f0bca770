// The steel grade table, read from "VarneltECmat.dat" beside the program.
#pragma once

#include <array>
#include <string>

#include "core/types.h"

namespace vn {

struct SteelGradeRow {
  std::string name;
  Single fy40 = 0;      // thickness up to 40 mm
  Single fyOver40 = 0;  // thickness over 40 mm
};

struct SteelGrades {
  std::array<SteelGradeRow, 31> rows;  // rows 0..30
  Integer gradeLast = -1;              // lines read - 1; the user row
};

}  // namespace vn
