// Welded I girders with typed dimensions: the double symmetric I (type 21), which is then
// classified and resisted by the rolled routines, and the I with unequal flanges (type 22), which
// is classified and reduced once for each sign of the moment about y.
#pragma once

#include <span>

#include "core/types.h"

namespace vn {

struct State;
struct Section;

// Type 21: properties from the three plates; the nominal weld r = 0.4 tw, at least 4 mm.
void WeldedIDoubleProperties(State& s);

// Type 22: properties from the three plates, the plastic neutral axis by 0.1 mm steps, the shear
// centre and the asymmetry terms of the critical moment.
void SingleSymProperties(State& s);
// Effective area and the effective moduli about y for each compressed flange, and about z.
void SingleSymEffective(State& s);
// Classes for each sign of My and the resistances.
void SingleSymClasses(State& s);

// Class 1 to 4 about y under N (kN, compression positive) and the signed M (kNm): a positive M
// compresses the upper flange. Sets classWeb and classFlange.
double ClassSingleSymY(State& s, double N, double M);
// Class 1 to 4 about z; the more slender flange is the one tested.
double ClassSingleSymZ(State& s, double N, double M);

// ---- The plate rules shared with the HSQ, box and plate families ----

// One plate of a welded section: width, height and the lower left corner, measured from the left
// end of the lower plate and from the lower edge.
struct Plate {
  double w, ht, y0, z0;
};

// Sums of the rectangle table.
struct PlateSums {
  double A = 0, Ay = 0, Az = 0, Ay2 = 0, Az2 = 0, IownH = 0, IownV = 0;
};

// Ix (long side x short side^3 / 3 of each plate), the centroid eyc and ez (from the left and from
// the lower edge) and the second moments Iy, Iz, IzDefl of the plates.
PlateSums PlateTable(Section& c, std::span<const Plate> plates);
// The plastic neutral axis from the lower edge, stepped up by 0.1 mm from 2 mm until half the
// area A lies below it; no interpolation. h bounds the search.
Single SteppedPlasticAxis(std::span<const Plate> plates, double A, double h);
// The plastic modulus of the plates about the axis zpl from the lower edge.
double PlasticModulusAbout(std::span<const Plate> plates, double zpl);
// The nominal weld of a girder, 0.4 tw but at least 4 mm, which stands where the root radius of a
// rolled section stands.
Single NominalWeld(Single tw);

// The modulus and the resistance the class `cls` selects for one sign of My: plastic for classes
// 1 and 2 (unless the design is elastic), the effective pair's for class 4, else the elastic
// modulus `Wel` with MelyRd.
void SelectForSign(const State& s, double cls, Single Wel, double Weff, double MeffRd, Single& Wy,
                   Single& MyRd);
// Class 1 to 3 by three limits times epsilon, else 4: the slenderness and each product are singles.
// `strict` compares with "<", otherwise with "<=".
double PlateClass(Single slender, double eps, double k1, double k2, double k3, bool strict);
// The web of a girder under bending by the compressed part alfa (from the plastic neutral axis)
// and the stress ratio psi (from the elastic one): 396, 456 / 36, 41.5 / 42 or 62.
double WebClassInBending(Single dtw, double alfa, double psi, double eps);
// rho of an outstand, EN 1993-1-5 4.4, under the buckling factor k-sigma (limit 0.748).
double OutstandRho(double c, double t, double eps, double ksigma, Boolean noFlangeBuckling);
// rho of an internal plate under uniform compression (k-sigma 4, limit 0.673).
double InternalRho(double c, double t, double eps, Boolean noFlangeBuckling);

// One pass of the effective section about y with one plate in compression: `edge` the distance
// from the compressed edge to the centroid; cf the width of each strip of the compressed plate
// that may be lost, tf its thickness and rho its reduction; `strips` such strips (two outstands of
// an I flange, the one internal plate of a box); `webs` webs side by side, reduced by the stress
// ratio the flange reduction leaves, unless `webReduced` is off.
struct EffectivePassShape {
  double edge, cf, tf, rho;
  double strips = 2;
  double webs = 1;
  bool webReduced = true;
};
// Returns I about the effective centroid and sets centroidEff, from the compressed edge.
double EffectivePass(const State& s, const EffectivePassShape& f, Single& centroidEff);

}  // namespace vn
