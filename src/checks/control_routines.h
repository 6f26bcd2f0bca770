// The control routines of the families, one group per file.
#pragma once

namespace vn {

struct State;

// I sections, channels and British sections.
void SectionControlI(State& s);
void BucklingControlI(State& s);

// Hollow sections and the welded box.
void SectionControlHollow(State& s);
void BucklingControlHollow(State& s);
// The shear resistances of a closed section at a point: the two webs along z, the two flanges
// along y, each by the shear buckling of its walls.
void HollowShearResistances(State& s, double NEd, double MyEd);
// Welded I with unequal flanges (type 22): the I controls with a moment about y that keeps its sign.
void SectionControlSingleSym(State& s);
void BucklingControlSingleSym(State& s);
// Angles: the corner sums in y, z and in u, v; buckling about y, z and the weak principal axis v.
void SectionControlAngle(State& s);
void BucklingControlAngle(State& s);
// HSQ (24, 25) and the box with unequal flanges (27): My with its sign and Vz; no buckling control.
void SectionControlHSQ(State& s);
// Plates with a stiffener (51 to 56): the same control with the plate's one flange in shear, and
// the lateral torsional line alone as the buckling control.
void SectionControlPlate(State& s);
void BucklingControlPlate(State& s);

// The circular tube (its buckling control is that of the hollow sections), the general section
// (the I family's buckling control), the flat bar and the T section.
void SectionControlTube(State& s);
void SectionControlGeneral(State& s);
void SectionControlFlat(State& s);
void BucklingControlFlat(State& s);
void SectionControlT(State& s);
void BucklingControlT(State& s);
// The load tables emptied before the T's control: a T is analysed as an axial member only, so
// the next run has no transverse load, no selfweight and no end moments.
void ClearLoads(State& s);

}  // namespace vn
