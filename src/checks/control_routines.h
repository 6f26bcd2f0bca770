// The control routines of the families, one group per file.
#pragma once

namespace vn {

struct State;

// I sections, channels and British sections.
void SectionControlI(State& s);
void BucklingControlI(State& s);

// Welded I with unequal flanges (type 22): the I controls with a moment about y that keeps its sign.
void SectionControlSingleSym(State& s);
void BucklingControlSingleSym(State& s);

}  // namespace vn
