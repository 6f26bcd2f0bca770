// Rolled angles: equal legs (type 10, l1.dat) and unequal legs (type 11, l2.dat). An angle is
// designed elastically about its principal axes u and v at three corner points: the two leg ends
// (points 1 and 3) and the heel (point 2). Its class is 3 or 4 and it has no plastic moduli.
//
// The section lies with the heel at the upper left: the leg b runs to the right along the top, the
// leg h runs down. ez is the centroid from the back of the leg b (the top), eyc from the back of
// the leg h (the left); u is the major principal axis at alfa below y, v the minor one.
#pragma once

namespace vn {

struct State;

void EqualAngleProperties(State& s);
void UnequalAngleProperties(State& s);

// Class under compression (3, or 4 with the effective area of the slender legs), the resistances
// at the corner points and the shear resistances.
void AngleClassEqual(State& s);
void AngleClassUnequal(State& s);

}  // namespace vn
