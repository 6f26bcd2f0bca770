// Controls of the closed sections (square and rectangular hollow sections, the welded box): the
// cross-section control of the I family with two webs and two flanges, the exponents of 6.41 for
// hollow sections, and the interaction of 6.2.9.1 (5) for hollow sections. The buckling control
// has no lateral torsional line: a closed section does not tip.
#include <cmath>

#include "checks/buckling.h"
#include "checks/control_routines.h"
#include "checks/section_control_i.h"
#include "checks/shear_resistance.h"
#include "core/state.h"
#include "sections/hollow.h"

namespace vn {

namespace {

// alfa = beta = 1.66 / (1 - 1.13 n^2), at most 6. Near n = 0.94 the divisor passes zero and the
// exponent turns negative; it is taken so.
void ExponentsHollow(State& s) {
  Checks& k = s.checks;
  const double n = Div(s.analysis.NEd, s.section.NtRd);
  k.alfa = Div(1.66, 1 - 1.13 * n * n);
  if (k.alfa > 6) k.alfa = 6;
  k.betaN = k.alfa;
}

void MyRdHollow(State& s) { MyRdOfWebs(s, 2); }
void MzRdHollow(State& s) { MzRdOfWalls(s, s.section.ri, 2, 2); }

// MN,Rd = MRd (1 - n) / (1 - 0.5 a), at most MRd, with the share a of the walls parallel to the
// axis; there is no range of small axial force without reduction.
void ReducedForAxial(const State& s, double wallsAlong, Single MRd, Single& MNRd) {
  const Section& c = s.section;
  const double n = std::fabs(Div(s.analysis.NEd, c.NtRd));
  double a = Div(c.A - 2 * wallsAlong * c.tw, c.A);
  if (a > 0.5) a = 0.5;
  MNRd = ToSingle(Div(MRd * (1 - n), 1 - 0.5 * a));
  if (MNRd > MRd) MNRd = MRd;
}

void MNyRdHollow(State& s) { ReducedForAxial(s, s.section.b, s.checks.MyRd, s.checks.MNyRd); }
void MNzRdHollow(State& s) { ReducedForAxial(s, s.section.h, s.checks.MzRd, s.checks.MNzRd); }

const SectionControlRules kRulesHollow{ExponentsHollow, true,        ClassHollowY,
                                       ClassHollowZ,    MyRdHollow,  MzRdHollow,
                                       MNyRdHollow,     MNzRdHollow, HollowShearResistances};

constexpr BucklingStyle kBucklingStyleHollow{false, " + ", true};

}  // namespace

void HollowShearResistances(State& s, double /*NEd*/, double /*MyEd*/) {
  Section& c = s.section;
  const Project& p = s.project;
  const double fyk = p.fyk, neta = p.neta, g0 = p.gammaM0, g1 = p.gammaM1;
  const double h = c.h, b = c.b, A = c.A, hw = c.hw, tw = c.tw, ri = c.ri, tf = c.tf;
  const double sqrt3 = Sqrt(3);
  const bool box = p.ProfileType == 23;

  // Along z, the two webs; there is no flange part in a closed section.
  if (ShearStocky(s, hw, tw)) {
    c.VbzRd = ToSingle(c.VzRd);
    s.checks.VbSuffix = kShearSuffixStocky;
  } else {
    s.checks.VbSuffix = kShearSuffixSlender;
    const double Av = box ? 2 * hw * tw : Div(h, b + h) * A;
    c.VbzRd = ToSingle(Div(Div(Div(ShearBucklingChi(s, hw, tw) * Av * fyk, sqrt3), g1), 1000));
    const double Vmax = Div(Div(Div(2 * neta * fyk * hw * tw, sqrt3), g1), 1000);
    if (c.VbzRd > Vmax) c.VbzRd = ToSingle(Vmax);
  }
  if (p.noWebBuckling != 0) c.VbzRd = c.VplRd;

  // Along y, the two flanges, with gammaM0 in the slender case and the upper bound of the webs'
  // thickness.
  if (ShearStocky(s, ri, tf)) {
    c.VbyRd = c.VyRd;
  } else {
    const double Av = box ? 2 * ri * tf : Div(b, b + h) * A;
    c.VbyRd = Div(Div(Av * ShearBucklingChi(s, ri, tf) * Div(fyk, sqrt3), g0), 1000);
    const double Vmax = Div(Div(Div(2 * neta * fyk * ri * tw, sqrt3), g1), 1000);
    if (c.VbyRd > Vmax) c.VbyRd = Vmax;
  }
  if (p.noWebBuckling != 0) c.VbyRd = c.VplyRd;
}

void SectionControlHollow(State& s) { RunSectionControl(s, kRulesHollow); }

void BucklingControlHollow(State& s) {
  s.checks.xLT = 1;
  RunBucklingControl(s, kBucklingStyleHollow);
}

}  // namespace vn
