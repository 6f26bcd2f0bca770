// Load combination factors of the code in force and their formula texts; derived, never stored.
#pragma once

#include <string>

#include "core/types.h"

namespace vn {

struct CombinationFactors {
  Single gammaG_610 = 0, gammaQ1_610 = 0, gammaQ2_610 = 0;
  Single gammaG_610a = 0, gammaQ1_610a = 0, gammaQ2_610a = 0;
  Single gammaG_610b = 0;
  Single xi = 0;
  Number KFIG = 0;
  Single KFI = 0;

  // Formula texts
  std::string text610, text610a, text610b, textSLS;  // of the code
  std::string textULSUser, textSLSUser;              // of the user's load factors (mode 4)
  std::string textBasic;                             // "Basic loads: G + Q1 + Q2"
};

}  // namespace vn
