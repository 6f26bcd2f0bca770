// The member stability controls of EN 1993-1-1 ch 6.3: flexural buckling (6.3.1), lateral
// torsional buckling (6.3.2) and the interaction factors of 6.3.3 by Annex A (Method 1) and
// Annex B (Method 2). The routines read and write the shared records of the State; the small pure
// functions below them carry the tables, so that each table can be checked on its own.
#pragma once

#include <string>

#include "core/types.h"

namespace vn {

struct State;

// ---- Flexural buckling (flexural_buckling.cpp) ----

// The buckling curve of each axis and its imperfection factor: the user's choice, or by family,
// dimensions and steel when the choice is Auto. Families without a row keep the last curve.
void SelectBucklingCurve(State& s);
// Euler loads, slenderness, reduction factors and buckling resistances about y and z, then the
// torsional and torsional-flexural critical loads.
void BucklingFactors(State& s);
// chi of 6.3.1.2 for a slenderness and an imperfection factor; 1 up to the plateau 0.2.
double FlexuralChi(double lamda, double alpha);

// ---- The buckling control (buckling_i.cpp) ----

// What a family changes in the buckling control of the I family: whether it has the lateral
// torsional line, how the moment terms join the formula ("+" or " + "), whether the z line of
// biaxial bending without axial force takes the magnitude of MyGov, and whether the moment
// resistance is that of the flange the governing moment compresses (the single symmetric I, whose
// LT line with a part closes with an extra bracket).
struct BucklingStyle {
  bool lateralTorsional;
  const char* join;
  bool absMyBiaxial;
  bool singleSym = false;
};
inline constexpr BucklingStyle kBucklingStyleI{true, "+", false};
inline constexpr BucklingStyle kBucklingStyleSingleSym{true, "+", true, true};
// The lines about y and z, and LT where the style has it.
void RunBucklingControl(State& s, const BucklingStyle& style);
// The flexural lines of a strut (6.3.1), NEd/Nb,y,Rd and NEd/Nb,z,Rd, for the axes that are free;
// `ratioPrefix` stands before the ratio's text. Sets the ratios and the colours.
void StrutLines(State& s, bool yLine, bool zLine, const char* ratioPrefix, double& IRy, double& IRz);
// The line of a strut that 6.3.1.2 (4) lets off.
inline constexpr const char* kNoBucklingText =
    "No Buckling, ref ch 6.3.1.2 (4);  lamdaby/lamdabz<=0.2 or Ned/Ncry<=0.04; Ned/Ncry<=0.04";
// Whether 6.3.1.2 (4) lets a strut without moments off its buckling check, both axes together:
// every slenderness at most 0.2, or NEd at most 4 % of every critical force. Under the strict rules
// the torsional or torsional-flexural mode of the section counts as a third axis.
bool StrutLetOff(const State& s, double NEd);
// The lateral torsional line alone: LateralTorsionalControl, then, where a moment governs, the line
// and its colour; IRlt gets the ratio.
void LateralTorsionalLine(State& s, const BucklingStyle& style, double& IRlt);

// ---- Lateral torsional buckling (lateral_torsional.cpp) ----

struct CFactors {
  double C1 = 0, C2 = 0, C3 = 0;
};

// C1, C2, C3 of a loaded member without restraints, by support type and moment shape (q-load when
// `curved`). `k` is the LT length factor, `springPct` the spring restraint in percent; M0, Mmid
// and ML the moments at x = 0, L/2 and L, read by the cantilever only.
CFactors LoadCaseCFactors(int supportType, bool curved, double k, int springPct, double M0, double Mmid,
                          double ML);
// C1 and C3 of a part of the member by its end moment ratio psi and, for the C3 of a negative psi,
// the flange ratio psif of the single symmetric section. k is the LT length factor.
CFactors MomentRatioTable(double psi, double psif, double k);
// C1 by the closed formula of the ECCS rules for member stability, from the moments at the ends,
// the quarter points and midspan (M[0..4]) and the largest moment Mmax.
double AlternativeC1Of(double k, const double M[5], double Mmax);
// Text of part i of n equal parts of the member: "0 - L/2", "1L/3 - 2L/3", "1L/2 -  L".
std::string PartLabel(int i, int n, bool decimalComma);

// The double symmetric families whose Mcr takes the formula with C1, C2 (and the eigenvalue analysis).
bool DoubleSymmetricLtbFamily(int type);
// The height of the transverse loads above the shear centre by the dialog's load level, mm: the
// flange's outer face, the shear centre, the typed Za from the centroid; 0 on the general section.
double LtbLoadHeight(const State& s);
// The moment resistance of the LT ratio for a moment M of its sign, kNm.
double LtbResistanceOf(const State& s, double M);
// chi LT by the curve in force (the general case where the family has no other).
void RunLtbChi(State& s, double M);
// The Wagner coefficient beta_y (mm) of an I with unequal flanges, flange 1 (b1, tf1) on top:
// 2 z0 - Int z (y^2 + z^2) dA / Iy, z upwards from the centroid, z0 the shear centre. Positive when
// the top flange is the stiffer, where a moment compressing the top is helped by it.
double WagnerBetaY(double h, double b1, double tf1, double b2, double tf2, double tw);
// Mcr of the member by its lateral torsional eigenvalue analysis (lateral_torsional_eigen.cpp),
// after the tables have run: on success Mcr, lamdaLT, chi and the resistance anew at MyGov, with kc
// of the tables; otherwise the tables' values stand and McrNote says why.
void EigenCriticalMoment(State& s);

void CFactorsFromLoad(State& s);
void CriticalMoment(State& s);
void ChiRolled(State& s, double M);
void ChiGeneral(State& s, double M);
// Mcr by the C factors, or by the eigenvalue analysis where the dialog chose it.
void LateralTorsionalControl(State& s);
void CriticalMoment0(State& s);

// ---- Interaction factors (interaction.cpp) ----

void EquivalentMomentA(State& s);
void EquivalentMomentAEnd(State& s);
void FactorsMethod1(State& s);
void EquivalentMomentB(State& s);
void EquivalentMomentBEnd(State& s);
void FactorsMethod2(State& s);
// The factors of the method chosen in the settings, with their equivalent moment factors; Method 1
// may set calcError, after which the caller stops. Method 1 takes the critical moment of uniform
// moment first where the section can buckle laterally (`lateralTorsional`).
void InteractionFactors(State& s, bool lateralTorsional = true);
// Angles, Method 1: Cmu and Cmv of Table A.2 about the principal axes (u with the y diagram, v with
// the z diagram), then kvv and kvu of the line about v. FactorsUV sets calcError beyond Ncru or
// Ncrv, after which the caller stops.
void EquivalentMomentUV(State& s);
void FactorsUV(State& s);
// Whether anything acts in the plane of z (My, Vz) and of y (Mz, Vy), for the shape fallback of
// Method 2.
void LoadPlanes(State& s);

// ---- The vipping dialog (ltb_dialog.cpp) ----

// Fills the dialog's fields and labels from the record and the last results.
void RefreshLtbDialog(State& s);

}  // namespace vn
