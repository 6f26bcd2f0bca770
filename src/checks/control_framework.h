// The rule every control group shares: how a candidate ratio wins its group, and the colour of the
// group's ratio. The control dispatcher and its table of families.
#pragma once

#include <string>
#include <vector>

#include "core/types.h"

namespace vn {

struct State;
struct ControlText;

// Colour index of a kept ratio: red only when strictly above the limit, so 1.00 against 1.0 is
// green.
inline Integer RatioColour(double kept, Single IRlimit) {
  return kept > static_cast<double>(IRlimit) ? Integer{4} : Integer{2};
}

// One candidate of a group. It replaces the kept ratio only when strictly greater, so a tie leaves
// the earlier one standing; the caller rewrites the group's texts only when this returns true.
// The colour follows the kept ratio after every candidate, winner or not.
inline bool Compete(double candidate, double& kept, Integer& colour, Single IRlimit) {
  const bool wins = candidate > kept;
  if (wins) kept = candidate;
  colour = RatioColour(kept, IRlimit);
  return wins;
}

// When the buckling control of a family runs.
enum class BucklingWhen { Always, Compression, Never };
// What the dispatcher does before the section control: nothing, NEd := 0 for the families that
// carry no axial force, or the load tables emptied (the T section).
enum class BeforeControl { Nothing, AxialZero, ClearLoads };

struct ControlFamilyRow {
  int firstType, lastType;
  BeforeControl before;
  void (*sectionControl)(State&);
  void (*bucklingControl)(State&);  // may be null: no buckling control
  BucklingWhen when;
};

// The rows of the dispatcher, in the order it tests them.
const std::vector<ControlFamilyRow>& ControlFamilies();

// Empties a control text, its four strings.
void ClearText(ControlText& t);

}  // namespace vn
