// Shear resistance of the web with the flange contribution (EN 1993-1-5, 5.2 to 5.4) and of the
// flanges, as the section controls divide by it at each check point.
#pragma once

#include <string>

namespace vn {

struct State;

inline constexpr const char* kShearSuffixStocky = ")";
inline constexpr const char* kShearSuffixSlender = " Support stiffener recommended)";

// Whether a web of hw x tw is stocky in shear, hw/tw < 72 epsilon / eta, compared in single
// precision: on the limit the web counts as slender.
bool ShearStocky(const State& s, double hw, double tw);
// chi_w of a slender web panel (EN 1993-1-5 Table 5.1) by its stiffeners and end post.
double ShearBucklingChi(const State& s, double hw, double tw);

// Sets VbzRd and VbyRd of the section and reduces MfyRd in place for the axial force, so that with
// an axial force it shrinks a little at every call of a run. NEd is the axial force of the member in
// kN, compression positive; MyEd the magnitude of the moment at the check point in kNm.
// Returns the end of the shear control's Limit text, and leaves it in Checks::VbSuffix: ")" for a
// stocky web, else " Support stiffener recommended)", also when web buckling is left out and
// VbzRd is the plastic resistance VplRd. Called at every check point by the section controls, and
// once by the section stage of the families that show Vb,z,Rd in their dialog.
std::string ComputeShearResistances(State& s, double NEd, double MyEd);

// The web panel of a girder in shear and the flanges that anchor its tension field.
struct ShearPanel {
  double hw = 0;    // the web height (the section's hw, or the clear depth where the rules say so)
  double webs = 1;  // webs of hw x tw side by side in the web contribution and its bound
  // The flange b x tf of the flange contribution and of the axial force's share.
  double b = 0, tf = 0;
  // A second flange: where bAlt > 0 the smaller of the two flanges' contributions counts.
  double bAlt = 0, tfAlt = 0;
  // False where no flange contribution exists (a web with one flange anchors no tension field).
  bool flangeContribution = true;
};

// The same for a panel of the girders loaded in their web plane (HSQ, box, plates).
std::string ShearResistancesOf(State& s, double NEd, double MyEd, const ShearPanel& panel);

}  // namespace vn
