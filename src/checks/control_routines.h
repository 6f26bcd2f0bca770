// The control routines of the families, one group per file.
#pragma once

namespace vn {

struct State;

// I sections, channels and British sections.
void SectionControlI(State& s);
void BucklingControlI(State& s);

}  // namespace vn
