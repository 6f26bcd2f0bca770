// The welded box with equal flanges (type 23), typed plates; it is reduced, classified and resisted
// by the routines of the hollow sections.
#pragma once

namespace vn {

struct State;

void BoxProperties(State& s);

}  // namespace vn
