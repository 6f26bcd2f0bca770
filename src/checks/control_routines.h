// The control routines of the families, one group per file.
#pragma once

namespace vn {

struct State;

// I sections, channels and British sections.
void SectionControlI(State& s);
void BucklingControlI(State& s);

// Angles: the corner sums in y, z and in u, v; buckling about y, z and the weak principal axis v.
void SectionControlAngle(State& s);
void BucklingControlAngle(State& s);

}  // namespace vn
