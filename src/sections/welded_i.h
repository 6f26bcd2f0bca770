// Welded I girders with typed dimensions: the double symmetric I (type 21), which is then
// classified and resisted by the rolled routines, and the I with unequal flanges (type 22), which
// is classified and reduced once for each sign of the moment about y.
#pragma once

#include <span>

#include "core/types.h"

namespace vn {

struct State;
struct Section;

// One plate of a girder: width, height and the lower left corner, measured from the left end of
// the lower flange and from the lower edge.
struct Plate {
  double w, ht, y0, z0;
};

// Sums of the rectangle table.
struct PlateSums {
  double A = 0, Ay = 0, Az = 0, Ay2 = 0, Az2 = 0, IownH = 0, IownV = 0;
};

// Ix as the sum of long side x short side^3 / 3, the centroid (eyc, ez) and the second moments
// Iy, Iz (and IzDefl) of a section made of plates.
PlateSums PlateTable(Section& c, std::span<const Plate> plates);

// The nominal weld of a girder, which stands where the root radius of a rolled section stands:
// 0.4 tw, at least 4 mm.
Single NominalWeld(Single tw);

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

}  // namespace vn
