// Rolled I and H sections (HEA, HEB, HEM, IPE, INP) and the routines the other I-like families share:
// the classification about y and z, the effective section and the resistances.
#pragma once

#include <functional>
#include <string>

#include "core/types.h"
#include "sections/catalogue.h"

namespace vn {

struct State;
struct Section;

// Work record of the effective-width calculation. Nothing outside the effective routines reads it.
struct EffWork {
  double rhoFlange = 0;  // (d)
  Single rhoWeb = 0;
  Single lamdaP = 0;
  double psi = 0;       // (d)
  double ksigma = 0;    // (d)
  double AeffW = 0;     // (d) area during the calculation
  double centroid = 0;  // (d) from the compressed edge
  double bc = 0;        // (d) compressed web depth
  Single centroidEff = 0;
};

// Dimensions and properties of HEA, HEB, HEM, IPE (types 1 to 4) from the selected catalogue row.
void RolledIProperties(State& s);
// The same for INP (type 15): moduli from the table, no radius column.
void InpProperties(State& s);

// Effective area and moduli to EN 1993-1-5; runs for every section, used where a class 4 asks.
void RolledIEffective(State& s);

// Steps shared with the channels: the effective area under compression and the effective modulus
// about y, the compressed flange reduced first, then the web once under the stress ratio that the
// flange reduction leaves. `outstands` is the number of flange outstands on the compressed side:
// 2 for an I, 1 for a channel; the area under compression loses twice as many.
void EffectiveAboutY(State& s, EffWork& w, double outstands);
// Classes of the pure cases and the resistances.
void RolledICapacities(State& s);

using ClassRoutine = double (*)(State&, double N, double M);
// The first half of the resistances, shared by the I-like and the closed families: the flanges'
// moments, the moments of the three moduli, the classes of the pure cases by the family's two
// classification routines, the axial resistances, the modulus of each class and the resistances
// of the member checks.
void ClassesAndMoments(State& s, ClassRoutine classY, ClassRoutine classZ);

// Class 1 to 4 about y under N (kN, compression positive) and M (kNm); sets classWeb and classFlange.
double ClassAboutY(State& s, double N, double M);
// The web's class in the cases of EN 1993-1-1 Table 5.2 for an internal part: pure compression
// (33, 38, 42 epsilon, strict), pure bending (72, 83, 124 epsilon, strict), compression and bending
// with alfa from N over `area` fyk, tension and bending; sigma1 and sigma2 the edge stresses,
// tension positive. N = 0 and M = 0 give back `previous`. The slenderness is asked only where a
// case needs it.
Single WebClassUnder(const State& s, double N, double M, const std::function<Single()>& slenderness,
                     double area, double sigma1, double sigma2, Single previous);

// The same about z.
double ClassAboutZ(State& s, double N, double M);
// ClassAboutZ of a section whose flanges differ: the bending stress at `edge` from the web, and the
// tested outstand `outstand` of thickness `tOutstand`, which also sets the flange's share of a
// tension beyond the web.
double ClassAboutZOf(State& s, double N, double M, double edge, double outstand, double tOutstand);

// Class 1 to 3 by three limits k1, k2, k3 times epsilon, else 4. The slenderness and each product
// with epsilon are singles, and the test is strict: a slenderness on the limit takes the next class.
double PureClass(Single slender, double epsilon, double k1, double k2, double k3);

// Buckling factor k-sigma of an internal web part under the stress ratio psi (EN 1993-1-5 Table 4.1).
double KSigma(double psi);

// ---- Shared by the I-like and channel families ----

// The catalogue table of a rolled family (1..4, 5, 15, 16) or of the chosen British table.
// Returns catCount when the family has no table or the sub-family is unknown.
CatalogueId CatalogueOfType(const State& s, int profileType);

// A catalogue value times its factor: the stored Single widened, multiplied in double and stored back.
Single Scaled(const State& s, CatalogueId id, int col, double factor);

// The selected row of a table (the bound of the table is the only guard).
int SelectedRowOf(const State& s, CatalogueId id);

// One point of the figure's outline, stored as singles.
void SetOutlinePoint(Section& c, int i, double x, double y);

// The 21-point outline of a double symmetric I with the fillets cut to two chords, clockwise from
// the lower left corner of the lower flange.
void IOutline(State& s, double rFillet);
// The 13-point outline of a channel, web at the left, with the centroid and the shear centre as the
// two points after the outline that place the axes of the figure.
void ChannelOutline(State& s, double rFillet);

// Name of the section shown in its dialog's label.
void SetSectionName(State& s, int profileType, const std::string& name);

}  // namespace vn
