// The results of the member analysis: the diagrams on the fixed grid of 51 points, the forces at
// the check points, the extremes and the shape of the moment diagram, the deflection lines of the
// summary, the natural frequencies. Rewritten by every run of MemberAnalysis.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/types.h"

namespace vn {

struct State;

// The four text lines of one control line of the summary.
struct ControlText {
  std::string Formula, Numbers, Ratio, Limit;
};

// Classification of a moment diagram for the equivalent moment factors of the stability checks.
struct MomentShape {
  Boolean Curved = False;        // not bilinear between the ends and the inner peak
  Boolean MidDominates = False;  // both end moments smaller in magnitude than at midspan
  Boolean Linear = False;        // the midspan value lies in the central band of the end values
  Single Psi = 0;                // end moments, smaller over larger, within -1..1
  Single AlphaS = 0;             // inner moment / larger end moment, when MidDominates is False
  Single AlphaH = 0;             // larger end moment / inner moment, when MidDominates is True
};

// Moments at the five classic points: the ends, the quarter points, midspan.
struct FivePoints {
  Single M1 = 0, M2 = 0, M3 = 0, M4 = 0, M5 = 0;
};

// One column of a unit solution: one load slot, unfactored.
struct UnitColumn {
  std::array<Single, 51> M{}, V{}, d{};  // Grid51: kNm, kN, deflection (numerator, then mm)
  std::array<Single, 41> Mc{}, Vc{};     // check grid: kNm, kN
  // Every entry is +0: set by the routing (the direction a slot does not act in, a slot that
  // carries nothing), which the combination then passes over. False means not known.
  bool allZero = false;
};

// The solutions of one load kind: as solved, routed to Z (My, Vz, dz), routed to Y (Mz, Vy, dy).
template <size_t N>
struct UnitSet {
  std::array<UnitColumn, N> solved{}, z{}, y{};
};

// Working tables of the solver, one column per slot.
struct UnitSolutions {
  UnitSet<5> uniform;    // slots 0..4, slot 0 the selfweight
  UnitSet<5> trapezoid;  // slots 1..3
  UnitSet<9> force;      // slots 1..8
  UnitSet<9> moment;     // slots 1..8
  // Point slot values split by kind: a slot holds its value in one of the two, 0 in the other.
  std::array<Single, 9> forceValue{}, momentValue{};
};

// The transverse loads in z of the combination in force, factored: what the lateral torsional
// eigenvalue analysis loads at the dialog's load height. A trapezoid is held as the 20 point forces
// of its strips, as the solver carries it, so that it agrees with the moment diagram.
struct FactoredForce {
  double P = 0;  // kN, positive as a load that sags a simple beam
  double x = 0;  // m
};
struct FactoredLoadsZ {
  double q = 0;  // kN/m over the whole member (uniform slots 0..4)
  std::vector<FactoredForce> forces;
};

struct Analysis {
  // Check grid: x/L of the points 0..NPoints.
  Integer NPoints = 0;
  std::array<Single, 41> ChPointXrel{};

  // Design diagrams on Grid51, x_k = k/50 L.
  std::array<Single, 51> MyGrid{}, VzGrid{}, MzGrid{}, VyGrid{};
  // Serviceability deflections on Grid51, mm.
  std::array<Single, 51> dzGrid{}, dyGrid{};

  // Design forces at the check points.
  std::array<Single, 41> MyPt{}, VzPt{}, VyPt{}, MzPt{};
  Number NEd = 0;     // kN, compression positive, constant along the member
  Number qTotal = 0;  // factored uniform loads, selfweight included, kN/m

  // Extremes and their x/L.
  Single MyMax = 0, MyMin = 0, MzMax = 0, MzMin = 0;
  Single VzMax = 0, VzMin = 0, VyMax = 0, VyMin = 0;
  Single MyMaxPos = 0, MyMinPos = 0, MzMaxPos = 0, MzMinPos = 0;
  Single VzMaxPos = 0, VzMinPos = 0, VyMaxPos = 0, VyMinPos = 0;
  Single dzMax = 0, dzMin = 0, dyMax = 0, dyMin = 0;
  Single dzAbs = 0, dyAbs = 0;
  Single MyAbs = 0, MzAbs = 0;

  FivePoints PointsY, PointsZ;
  MomentShape ShapeY, ShapeZ;
  Single InflectionY1 = 0, InflectionY2 = 0, InflectionZ1 = 0, InflectionZ2 = 0;

  // Transverse loads in z of the combination in force, while Mcr is by eigenvalue analysis; none
  // in End forces mode.
  FactoredLoadsZ loadsZ;

  // Governing moments for the controls: My with its sign, Mz as a magnitude.
  Single MyGov = 0, MzGov = 0;
  // Eq 6.10a/b: 1 when 6.10a governs, 2 when 6.10b.
  Integer GoverningEquation = 0;
  // Under the strict rules: the permanent load is favourable in the governing combination and takes
  // gamma G,inf = 1.0 (EN 1990 Table A1.2(B)).
  Boolean permanentFavourable = False;

  // Deflection control of the summary.
  ControlText deflTextZ, deflTextY;
  Integer colDeflZ = 2, colDeflY = 2;
  Single IRdeflZ = 0, IRdeflY = 0;

  // Governing ratios written by the controls; the choice between Eq 6.10a and 6.10b reads them.
  Number IRsection = 0, IRbuckling = 0;
  Single IRlimit = 1.0f;

  // Modal analysis.
  Single ModalMass = 0;               // kg/m
  std::array<Single, 4> ModalFreq{};  // Hz, modes 1..3

  // Whether any load, moment or shear lies in the plane of y or of z: set by the chart stage, read
  // by the controls of the next run.
  Boolean hasLoadY = False, hasLoadZ = False;

  // Working tables of the solver.
  UnitSolutions unit;
  // The control run of the Eq 6.10a/b choice; empty means RunControls. Tests put a stand-in here.
  void (*controlRunner)(State&) = nullptr;
};

}  // namespace vn
