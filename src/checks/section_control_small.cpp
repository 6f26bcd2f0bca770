// Controls of the four small families: the circular tube (the closed section's control with the
// exponents and the reduced moments of a round section), the general section (no reduction for
// shear, the typed classes), the flat bar (bending about y only, a rectangle's interaction) and
// the T section (an axial member: the axial line and the two strut lines).
#include <algorithm>
#include <cmath>
#include <string>

#include "checks/buckling.h"
#include "checks/control_framework.h"
#include "checks/control_routines.h"
#include "checks/control_text.h"
#include "checks/section_control_i.h"
#include "checks/shear_resistance.h"
#include "core/format.h"
#include "core/state.h"

namespace vn {

using text::Colour;
using text::F1;
using text::F2;
using text::Limit;
using text::Write;

namespace {

// rho of 6.2.8 for a shear V against the resistance VRd: 0 up to half, at most 1.
Single ShearRho(double V, double VRd) {
  if (!(V > 0.5 * VRd)) return 0;
  const double q = Div(2 * V, VRd) - 1;
  const Single rho = ToSingle(q * q);
  return rho > 1 ? Single{1} : rho;
}

// The shear resistances stand from the section stage; the shear line's bracket closes plainly.
void ShearOfSectionStage(State& s, double, double) { s.checks.VbSuffix = kShearSuffixStocky; }

// ---- Tube ----

// 6.41 for circular sections.
void ExponentsTube(State& s) {
  s.checks.alfa = 2;
  s.checks.betaN = 2;
}

// Every class test of the tube is made on the class in compression.
double ClassOfTube(State& s, double, double) { return s.section.classN; }

void MyRdTube(State& s) {
  Checks& k = s.checks;
  k.rhoZ = ShearRho(k.VzEd, s.section.VzRd);
  k.MyRd = ToSingle(s.section.MyRdClass * (1 - k.rhoZ));
}

void MzRdTube(State& s) {
  Checks& k = s.checks;
  k.rhoY = ShearRho(k.VyEd, s.section.VyRd);
  k.MzRd = ToSingle(static_cast<double>(s.section.MzRdClass) * (1 - k.rhoY));
}

// MN,Rd = MRd (1 - n^1.7), n against NtRd.
double TubeAxialFactor(const State& s) {
  const double n = std::fabs(Div(s.analysis.NEd, s.section.NtRd));
  return 1 - Pow(n, 1.7);
}

void MNyRdTube(State& s) { s.checks.MNyRd = ToSingle(s.checks.MyRd * TubeAxialFactor(s)); }
void MNzRdTube(State& s) { s.checks.MNzRd = ToSingle(s.checks.MzRd * TubeAxialFactor(s)); }

SectionControlRules TubeRules() {
  SectionControlRules r{ExponentsTube, true,      ClassOfTube, ClassOfTube,        MyRdTube,
                        MzRdTube,      MNyRdTube, MNzRdTube,   ShearOfSectionStage};
  r.exponentFormat = "0.0";
  return r;
}

// ---- General section ----

double ClassMyOfSection(State& s, double, double) { return s.section.classMy; }
double ClassMzOfSection(State& s, double, double) { return s.section.classMz; }

void MyRdGeneral(State& s) { s.checks.MyRd = ToSingle(s.section.MyRdClass); }
void MzRdGeneral(State& s) { s.checks.MzRd = s.section.MzRdClass; }

SectionControlRules GeneralRules() {
  SectionControlRules r{ExponentsI,  false,        ClassMyOfSection, ClassMzOfSection,   MyRdGeneral,
                        MzRdGeneral, ComputeMNyRd, ComputeMNzRd,     ShearOfSectionStage};
  r.shearReduces = false;
  return r;
}

// ---- Flat bar ----

void NoExponents(State&) {}

// The web is the whole bar: MplyRd less the plastic modulus of the web share rho.
void MyRdFlat(State& s) {
  Checks& k = s.checks;
  const Section& c = s.section;
  const Project& p = s.project;
  k.rhoZ = ShearRho(k.VzEd, c.VzRd);
  const double hw = c.hw;
  const double R = k.rhoZ * static_cast<double>(c.tw) * hw * hw / 4 / 1000000 * p.fyk;
  k.MyRd = ToSingle(c.MplyRd - Div(R, p.gammaM0));
}

// A rectangle's parabola: MN,Rd = MRd (1 - q^2), q against NtRd in tension and NcRd in
// compression.
void MNyRdFlat(State& s) {
  const Section& c = s.section;
  const double NEd = s.analysis.NEd;
  const double q = std::fabs(Div(NEd, NEd <= 0 ? c.NtRd : c.NcRd));
  s.checks.MNyRd = ToSingle(s.checks.MyRd * (1 - q * q));
}

void MzRdNone(State&) {}

SectionControlRules FlatRules() {
  SectionControlRules r{NoExponents, false,     ClassMyOfSection, ClassMzOfSection,   MyRdFlat,
                        MzRdNone,    MNyRdFlat, MzRdNone,         ShearOfSectionStage};
  r.aboutZ = false;
  return r;
}

}  // namespace

void SectionControlTube(State& s) {
  static const SectionControlRules rules = TubeRules();
  RunSectionControl(s, rules);
}

void SectionControlGeneral(State& s) {
  static const SectionControlRules rules = GeneralRules();
  RunSectionControl(s, rules);
}

void SectionControlFlat(State& s) {
  static const SectionControlRules rules = FlatRules();
  RunSectionControl(s, rules);
}

// The strut of the I family, with its LT line and curve c.
void BucklingControlFlat(State& s) { RunBucklingControl(s, kBucklingStyleI); }

void SectionControlT(State& s) {
  Checks& k = s.checks;
  Analysis& an = s.analysis;
  const Section& c = s.section;
  for (size_t g = 1; g <= 6; ++g) {
    k.secText[g] = ControlText{};
    k.IRsec[g] = 0;
  }
  const double NEd = an.NEd;
  const Single lim = an.IRlimit;
  if (NEd != 0) {
    const double NRd = NEd < 0 ? c.NtRd : c.NcRd;
    const double ir = std::fabs(Div(NEd, NRd));
    if (Compete(ir, k.IRsec[1], k.colSec[1], lim)) {
      ControlText& t = k.secText[1];
      t.Formula = "IR = NEd/NRd = ";
      t.Numbers = F1(s, NEd) + "/" + F1(s, NRd) + " = ";
      t.Ratio = F2(s, ir);
      t.Limit = " < " + F1(s, lim) + (NEd < 0 ? " (Ch 6.2.3)" : " (Ch 6.2.4)");
    }
  }
  an.IRsection = k.IRsec[1];
}

void BucklingControlT(State& s) {
  const Project& p = s.project;
  Analysis& an = s.analysis;
  Checks& k = s.checks;
  k.buckTextY = ControlText{};
  k.buckTextZ = ControlText{};
  k.buckTextLT = ControlText{};
  k.xLT = 1;
  double IRy = 0, IRz = 0;

  SelectBucklingCurve(s);
  BucklingFactors(s);

  // An axis held over its length has a factor below 0.002, compared as the Single it is.
  constexpr Single kHeld = 0.002f;
  const double NEd = an.NEd;
  const std::string limit = " < " + F1(s, an.IRlimit) + " (Ch 6.3.1)";
  auto line = [&](ControlText& t, const char* formula, double Nb, double& IR, Integer& colour) {
    IR = std::fabs(Div(NEd, Nb));
    t.Formula = formula;
    t.Numbers = F1(s, NEd) + "/" + F1(s, Nb) + " = ";
    t.Ratio = F2(s, IR);
    t.Limit = limit;
    colour = RatioColour(IR, an.IRlimit);
  };
  if (NEd > 0 && p.bucklingFactorY < kHeld && p.bucklingFactorZ < kHeld) {
    k.buckTextY.Formula = "No Buckling";
  } else if (NEd > 0) {
    if (p.bucklingFactorY > kHeld) line(k.buckTextY, "IR = NEd/Nb,y,Rd = ", k.NbyRd, IRy, k.colBuckY);
    if (p.bucklingFactorZ > kHeld)
      line(k.buckTextZ, k.torsionalGoverns != 0 ? "IR = NEd/Nb,T,Rd = " : "IR = NEd/Nb,z,Rd = ", k.NbzRd, IRz,
           k.colBuckZ);
    // 6.3.1.2 (4) for a strut without moments, both axes together.
    if (an.MyAbs == 0 && an.MzGov == 0) {
      if (StrutLetOff(s, NEd)) {
        k.buckTextY = ControlText{};
        k.buckTextZ = ControlText{};
        k.buckTextY.Formula = kNoBucklingText;
        IRy = 0;
        IRz = 0;
      }
    }
  }
  k.IRbuckY = IRy;
  k.IRbuckZ = IRz;
  k.IRbuckLT = 0;
  an.IRbuckling = std::max(IRy, IRz);
}

void ClearLoads(State& s) {
  Loads& l = s.loads;
  Project& p = s.project;
  p.SelfweightOn = 0;
  for (size_t i = 1; i < l.uniform.size(); ++i) {
    l.uniform[i] = UniformLoad{};
    l.uniform[i].Dir = 1;
  }
  for (size_t i = 1; i < l.trapezoid.size(); ++i) {
    l.trapezoid[i] = TrapezoidLoad{};
    l.trapezoid[i].Dir = 1;
  }
  for (size_t i = 1; i < l.point.size(); ++i) {
    l.point[i] = PointLoad{};
    l.point[i].Dir = 1;
  }
  // The end forces keep only the axial force, which a T carries.
  p.My12 = {0, 0, 0};
  p.Mz12 = {0, 0, 0};
  p.Vy12 = {0, 0, 0};
  p.Vz12 = {0, 0, 0};
  p.ltbLoadLevel = 1;
}

}  // namespace vn
