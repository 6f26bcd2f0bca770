// The section dispatcher: for each family its property routine, then the yield strength, then the
// family's routines for effective values, classes and resistances.
#pragma once

#include <initializer_list>
#include <vector>

#include "core/types.h"

namespace vn {

struct State;

using SectionRoutine = void (*)(State&);

struct SectionFamilyRow {
  int firstType, lastType;           // ProfileType range of the row
  SectionRoutine properties;         // dimensions and properties
  std::vector<SectionRoutine> then;  // after SelectYieldStrength, in order
  int ltbRelevant;                   // -1, 0, or kLtbUnchanged
  bool axialZero = false;            // the working axial force is set to 0 first
  int channelKind = 0;               // 2 for the channels
  bool keepsLastFlange = false;      // b and tf stay as the last section left them
};

inline constexpr int kLtbUnchanged = 1;

// The rows in the order the dispatcher tests them.
const std::vector<SectionFamilyRow>& SectionFamilies();

// Sets fyk from the grade table by the thickest element (40 mm limit), then fyd and epsilon.
// A grade at or beyond the user row keeps the typed fyk.
void SelectYieldStrength(State& s, int grade);

}  // namespace vn
