// Cross-section control of the welded I with unequal flanges (type 22): the control of the I family
// with a moment about y that keeps its sign, because the two flanges answer differently. At each
// check point the class and the resistance of the sign at hand are used; ratios and texts show
// the magnitude of the moment.
//
// Settled traits of this twin, all wanted:
//  - the moment resistance is not capped by a class resistance of pure bending;
//  - MN,y,Rd takes the web share a = (A - (tf1 b1 + b2 + tf2)) / A: the lower flange enters as a
//    sum, not as a product;
//  - in the linear branch of N+My and of N+My+Mz the y resistance stays the one of the class
//    found for the actual N and M pair;
//  - the shear resistance of the point reads the signed moment.
#include <cmath>
#include <string>

#include "checks/control_framework.h"
#include "checks/control_routines.h"
#include "checks/control_text.h"
#include "checks/section_control_i.h"
#include "checks/shear_resistance.h"
#include "core/format.h"
#include "core/state.h"
#include "sections/welded_i.h"

namespace vn {

namespace {

bool On(Boolean flag) { return flag != 0; }

}  // namespace

void RhoZOfPoint(State& s) {
  Checks& k = s.checks;
  const Section& c = s.section;
  const double VzEd = k.VzEd;
  if (VzEd > 0.5 * c.VzRd) {
    const double q = Div(2 * VzEd, c.VzRd) - 1;
    k.rhoZ = ToSingle(q * q);
    if (k.rhoZ > 1) k.rhoZ = 1;
  } else {
    k.rhoZ = 0;
  }
}

double MyRdSigned(State& s, double cls, double MyEd) {
  Checks& k = s.checks;
  Section& c = s.section;
  const Project& p = s.project;
  RhoZOfPoint(s);
  const double hw = c.hw, tw = c.tw, fyk = p.fyk;
  const double web = hw * hw * (tw * static_cast<double>(k.rhoZ));
  double base, R;
  if (MyEd > 0 && cls == 4) {
    base = c.MeffyRd1;
    R = web / 6 / 1000000 * fyk;
  } else if (MyEd < 0 && cls == 4) {
    base = c.MeffyRd2;
    R = web / 6 / 1000000 * fyk;
  } else if (cls <= 2 && !On(p.elasticClass12)) {
    base = c.MplyRd;
    R = web / 4 / 1000000 * fyk;
  } else {
    base = c.MelyRd;
    R = web / 6 / 1000000 * fyk;
  }
  return ToSingle(base - Div(R, p.gammaM0));
}

void MNyRdSingleSym(State& s) {
  Checks& k = s.checks;
  const Section& c = s.section;
  const Project& p = s.project;
  const double n = std::fabs(Div(s.analysis.NEd, c.NtRd));
  double a = Div(static_cast<double>(c.A) - (static_cast<double>(c.tf1) * c.b1 + c.b2 + c.tf2), c.A);
  if (a > 0.5) a = 0.5;
  k.MNyRd = ToSingle(Div(k.MyRd * (1 - n), 1 - 0.5 * a));
  if (k.MNyRd > k.MyRd) k.MNyRd = k.MyRd;
  const double N = std::fabs(s.analysis.NEd);
  const double webLimit = Div(Div(0.5 * c.hw * c.tw * p.fyk, p.gammaM0), 1000);
  if (N <= webLimit && N <= 0.25 * c.NtRd) k.MNyRd = k.MyRd;
}

namespace {

// The resistance of the class at hand for the sign of the moment of the point.
void MyRdOfSign(State& s) { s.checks.MyRd = ToSingle(MyRdSigned(s, s.checks.classCur, s.checks.MyEd)); }

void ShearOfPoint(State& s, double NEd, double MyEd) { ComputeShearResistances(s, NEd, MyEd); }

SectionControlRules RulesSingleSym() {
  SectionControlRules r{ExponentsI,  false,          ClassSingleSymY, ClassSingleSymZ, MyRdOfSign,
                        ComputeMzRd, MNyRdSingleSym, ComputeMNzRd,    ShearOfPoint};
  r.signedMy = true;
  return r;
}

}  // namespace

void SectionControlSingleSym(State& s) {
  static const SectionControlRules rules = RulesSingleSym();
  RunSectionControl(s, rules);
}

}  // namespace vn
