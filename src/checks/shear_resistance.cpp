// Shear resistance about z with the contributions of the web and of the flanges (EN 1993-1-5,
// 5.2 to 5.4), and about y of the flanges. A web stocky to 72 epsilon / eta keeps VzRd of the
// section stage; a slender one takes chi_w of Table 5.1 by its stiffeners and end post.
#include "checks/shear_resistance.h"

#include <algorithm>
#include <cmath>

#include "core/state.h"

namespace vn {

double ShearBucklingChi(const State& s, double hw, double tw) {
  const Project& p = s.project;
  const double eps = p.epsilon, neta = p.neta;
  // Slenderness of the web panel.
  double lamdaW;
  if (p.webStiffeners == 0) {
    lamdaW = Div(Div(Div(hw, 86.4), eps), tw);
  } else {
    const double a = p.a;
    const double ratio = Div(hw, a);
    const double k = Div(a, hw) >= 1 ? 5.34 + 4 * ratio * ratio : 4 + 5.34 * ratio * ratio;
    lamdaW = Div(Div(Div(Div(hw, 37.4), eps), tw), Sqrt(k));
  }
  // Reduction factor chi_w, EN 1993-1-5 Table 5.1.
  if (lamdaW < Div(0.83, neta)) return neta;
  if (p.rigidEndPost == 0) return Div(0.83, lamdaW);
  if (lamdaW < 1.08) return Div(0.83, lamdaW);
  return Div(1.37, 0.7 + lamdaW);
}

bool ShearStocky(const State& s, double hw, double tw) {
  return ToSingle(Div(hw, tw)) < ToSingle(Div(72 * s.project.epsilon, s.project.neta));
}

std::string ComputeShearResistances(State& s, double NEd, double MyEd) {
  const Section& c = s.section;
  ShearPanel panel;
  panel.hw = c.hw;
  panel.b = c.b;
  panel.tf = c.tf;
  return ShearResistancesOf(s, NEd, MyEd, panel);
}

namespace {

// The flange contribution of the flange b x tf to a web panel of hw x tw (EN 1993-1-5 5.4 (1)) at
// the moment MyEd, kN; MyEd below MfyRd. One steel grade: fyf / fyw drops out of c.
double FlangeContribution(const State& s, double MyEd, double b, double tf, double hw, double tw) {
  const Project& p = s.project;
  // Without intermediate stiffeners the panel is the whole member, whatever a holds (a new
  // project has 2500 mm there, which on a longer member would overstate Vb,f).
  const double a = p.webStiffeners == 0 ? 1000.0 * p.L : p.a;
  const double cFlange = a * (0.25 + Div(1.6 * b * tf * tf, hw * hw * tw));
  const double ratio = Div(MyEd, s.section.MfyRd);
  return Div(Div(Div(b * tf * tf * static_cast<double>(p.fyk), cFlange), p.gammaM1) * (1 - ratio * ratio),
             1000);
}

}  // namespace

std::string ShearResistancesOf(State& s, double NEd, double MyEd, const ShearPanel& panel) {
  Section& c = s.section;
  const Project& p = s.project;
  const double hw = panel.hw, tw = c.tw, webs = panel.webs, b = panel.b, tf = panel.tf;
  const double fyk = p.fyk, neta = p.neta;
  const double g0 = p.gammaM0, g1 = p.gammaM1;
  const double sqrt3 = Sqrt(3);
  std::string suffix;

  if (ShearStocky(s, hw, tw)) {
    c.VbzRd = ToSingle(c.VzRd);
    suffix = kShearSuffixStocky;
  } else {
    suffix = kShearSuffixSlender;

    const double chiW = ShearBucklingChi(s, hw, tw);
    // Contribution of the web.
    const double Vbw = Div(Div(Div(chiW * (webs * tw * hw) * fyk, sqrt3), g1), 1000);

    // Contribution of the flanges, with their moment resistance reduced for the axial force. NEd is
    // in kN and the flanges' force in N here: the factor 1000 between them stays as it is.
    double Vbf = 0;
    if (NEd != 0) c.MfyRd = c.MfyRd * (1 - Div(std::fabs(NEd), Div(2 * b * tf * fyk, g0)));
    if (panel.flangeContribution && MyEd < c.MfyRd) {
      Vbf = FlangeContribution(s, MyEd, b, tf, hw, tw);
      if (panel.bAlt > 0) Vbf = std::min(Vbf, FlangeContribution(s, MyEd, panel.bAlt, panel.tfAlt, hw, tw));
    }

    c.VbzRd = ToSingle(Vbw + Vbf);

    // Upper bound, the plastic resistance of the web with eta.
    const double Vmax = Div(Div(Div(neta * fyk * hw * (webs * tw), sqrt3), g1), 1000);
    if (c.VbzRd > Vmax) c.VbzRd = ToSingle(Vmax);
  }

  // Web buckling left out: the plastic resistance, on both paths; the suffix stays as it is.
  if (p.noWebBuckling != 0) c.VbzRd = c.VplRd;

  // Along y: two thirds of the flanges' plastic shear resistance. The 1/1.5 belongs here only;
  // VyRd of the 50 % test is without it.
  c.VbyRd = Div(Div((1 / 1.5) * (2 * b * tf) * Div(fyk, sqrt3), g0), 1000);
  s.checks.VbSuffix = suffix;
  return suffix;
}

}  // namespace vn
