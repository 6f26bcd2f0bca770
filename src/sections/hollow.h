// Square and rectangular hollow sections, hot finished (types 6, 7) and cold formed (8, 9). The two
// webs and the two flanges are internal elements; the effective-width and resistance routines also
// serve the welded box of type 23.
#pragma once

namespace vn {

struct State;

void ShsProperties(State& s);
void RhsProperties(State& s);
void CfshsProperties(State& s);
void CfrhsProperties(State& s);

// Effective area and moduli, all four walls as internal elements.
void HollowEffective(State& s);
// Classes of the pure cases and the resistances, the shear areas by the walls' share of the area.
void HollowCapacities(State& s);

// Class 1 to 4 about y (webs d/tw, flanges c/tf) and about z (the roles swapped) under N (kN,
// compression positive) and M (kNm); both set classWeb and classFlange.
double ClassHollowY(State& s, double N, double M);
double ClassHollowZ(State& s, double N, double M);

// The outer corner radius of a cold formed wall: 2 t up to 6 mm, 2.5 t up to 10 mm, else 3 t.
double ColdFormedRadius(double t);

}  // namespace vn
