// Plate with stiffener (51 to 56): a strip of plate of typed width with one stiffener below it, as
// in a stiffened panel. The plate is the flange of a T, the stiffener's web is the web. Beams
// only: no axial force, bending about y classified and resisted once for each sign of the moment.
// Heights in these families run from the plate's upper face: the centroid `ez` and the plastic
// axis `zpl` are measured from the top.
#pragma once

namespace vn {

struct State;

// 51 Plate + Flatbar.
void PlateFlatProperties(State& s);
// 52 Plate + L, the angle a row of l3.dat, its root fillet by two corrections.
void PlateAngleProperties(State& s);
// 53 Plate + L-weld, the angle of three typed plates.
void PlateWeldedAngleProperties(State& s);
// 54 Plate + Bulb flat, the bulb a row of hp.dat replaced by an equivalent T.
void PlateBulbProperties(State& s);
// 56 Plate + T-girder.
void PlateTeeProperties(State& s);

// 51: effective moduli with the plate compressed (the web unreduced), then the flat bar's free
// edge compressed (the web an outstand).
void PlateEffective(State& s);
void PlateClasses(State& s);
// 52 to 56: the plate compressed as in 51, then the stiffener's flange compressed, each of its
// outstands reduced and the web an internal element.
void StiffenedEffective(State& s);
void StiffenedClasses(State& s);

// Class 1 to 4 about y under the signed moment M (kNm); a positive M compresses the plate.
double ClassPlateY(State& s, double M);
double ClassStiffenedY(State& s, double M);

}  // namespace vn
