// HSQ girders (24 symmetric, 25 with an unequal lower plate) and the box with unequal flanges (27):
// welded beams of a top plate, two webs and a bottom plate, loaded in the plane of the webs only.
// No class under compression exists; bending about y is classified and resisted once for each sign
// of the moment, with the plate between the webs as an internal element.
#pragma once

namespace vn {

struct State;

// Type 24: the plates as three rectangles (the two webs as one), the plastic axis by 0.1 mm steps.
void HsqProperties(State& s);
// Type 25: the same with the projections of the lower plate fixed by its c.
void HsqUnsymProperties(State& s);
// Effective moduli about y, the top plate compressed, then the bottom plate.
void HsqEffective(State& s);
void HsqEffectiveUnsym(State& s);
// Resistances, the class of each sign and its moment resistance before the load on the lower plate.
void HsqClasses(State& s);
// The load of the slabs on one projection of the lower plate (24, 25): the factor on the moment
// resistances of both signs from the factored uniform loads qTotal of the combination in hand.
// The section control calls it once its combination is formed, so that a run shows the factor of
// its own loads; it starts each time from the resistances HsqClasses chose.
void HsqFlangeLoad(State& s);

// Class of the HSQ about y under the signed moment M (kNm): 1 to 4, or 23 for a class 3 web that
// the dialog's option lets count as class 2. Sets classWeb and classFlange.
double ClassHsqY(State& s, double M);
// EN 1993-1-1 6.2.2.4: the plastic modulus with the upgraded web, top plate compressed. Stores into
// WplyBot, which the positive moment reads.
void UpgradeWplTop(State& s);
// The same with the bottom plate compressed; stores into WplyTop.
void UpgradeWplBot(State& s);

// Type 27.
void UnequalBoxProperties(State& s);
void BoxEffective(State& s);
void BoxClasses(State& s);
// ClassHsqY without the upgraded class.
double ClassBoxY(State& s, double M);

// The shear resistance along z of `webs` webs of hw x tw: stocky (hw/tw < 72 epsilon / eta) with
// the plastic area webs x (eta if `stockyEta`) x hw x tw, slender with the buckling factor chi_w of
// the unstiffened web and gammaM1. Sets Avz, VzRd, VplRd, and VbzRd as the dialog shows it.
void WebShearCapacity(State& s, double webs, bool stockyEta);
// The web height of the shear rules: hw, but for an HSQ under the strict rules the clear depth
// between the plates, h - tf1 - tf2 (EN 1993-1-1 6.2.6 (3), EN 1993-1-5 5.1).
double ShearWebHeight(const State& s);

// Shared with the plate families:
// MelyRd, MplyRd and the effective pairs Weffy1, MeffyRd1 (the first pass), Weffy2, MeffyRd2.
void MomentsOfModuli(State& s);
// WyPos, MyRdPos by classMyPos and WyNeg, MyRdNeg by classMyNeg: plastic for class 1 and 2 unless
// the elastic design of class 1 and 2 is chosen, effective for class 4, otherwise elastic; with
// `upgrade` the class 23 takes the upgraded plastic modulus.
void SelectBySign(State& s, bool upgrade);
// MyRdBuckPos, MyRdBuckNeg, MyRdBuck, and the copies the lateral torsional control reads.
void BucklingValues(State& s);

}  // namespace vn
