// British families: UB, UC, UBP (type 101, one dialog), J (102), PFC and CH (103, one dialog).
// Their tables hold the moduli, the weight and the surface, so that only the geometric work values
// are derived here; the section is then treated as rolled.
#pragma once

namespace vn {

struct State;

void BritishIProperties(State& s);
void BritishJProperties(State& s);
void BritishChannelProperties(State& s);

// Type 103 after its properties: PFC (sub-family 1) as a parallel flange channel with the shear
// resistances of the section stage; CH as a tapered channel.
void BritishChannelRoutines(State& s);

// The shear resistances at the section stage (types 101, 102 and the PFC), before the resistances
// of RolledICapacities exist.
void SectionShearResistances(State& s);

}  // namespace vn
