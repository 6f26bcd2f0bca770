// The buckling control of the angles (types 10 and 11), run only under compression: the flexural
// lines about y and z of 6.3.1 and 6.3.3 with the elastic moment resistances, and a third line about
// the weak principal axis v, which takes the place of the lateral torsional line.
//
// The member's moments and deflections are turned into the principal axes in single precision,
// with pi as 3.14159.
#include <algorithm>
#include <cmath>
#include <string>

#include "checks/buckling.h"
#include "checks/control_routines.h"
#include "checks/control_text.h"
#include "core/format.h"
#include "core/state.h"

namespace vn {

using text::Colour;
using text::F1;
using text::F2;
using text::Limit;
using text::Write;

namespace {

constexpr Single kHeld = 0.002f;  // a buckling factor below it marks an axis held over its length
constexpr float kPiAngle = 3.14159f;

// The flexural lines carry their ratio behind " = ".
std::string RatioText(const State& s, double ratio) { return " = " + F2(s, ratio); }

void RotateIntoPrincipalAxes(State& s) {
  const Analysis& an = s.analysis;
  Checks& k = s.checks;
  const float a = s.section.alfa * kPiAngle / 180.0f;
  const float ca = std::cos(a), sa = std::sin(a);
  const float My = std::fabs(an.MyGov), Mz = an.MzGov;
  k.MuMax = std::fabs(My * ca + Mz * sa);
  k.MvMax = std::fabs(-My * sa + Mz * ca);
  k.MuCm = std::fabs(an.MyAbs * ca + an.MzAbs * sa);
  k.MvCm = std::fabs(-an.MyAbs * sa + an.MzAbs * ca);
  k.deltaV = std::fabs(an.dzAbs * sa + an.dyAbs * ca);
  k.deltaU = std::fabs(an.dzAbs * ca - an.dyAbs * sa);
}

// The terms of My and Mz on the lines about y and z, with the elastic resistances.
void MomentTerms(State& s, bool yLine, bool zLine, double& IRy, double& IRz) {
  const Analysis& an = s.analysis;
  const Section& c = s.section;
  Checks& k = s.checks;
  ControlText& ty = k.buckTextY;
  ControlText& tz = k.buckTextZ;
  const double MyRdEl = c.MelyAngle, MzRdEl = c.MelzAngle;
  if (an.MyGov != 0) {
    const double m = std::fabs(an.MyGov);
    const std::string tail = "*" + F1(s, m) + "/(" + F2(s, k.xLT) + "*" + F1(s, MyRdEl) + ")";
    if (yLine) {
      IRy += Div(k.kyy * m, k.xLT * MyRdEl);
      ty.Formula += " + kyy*My,Ed/(xLT*My,Rd) ";
      ty.Numbers += "+" + F2(s, k.kyy) + tail;
    }
    if (zLine) {
      IRz += Div(k.kzy * m, k.xLT * MyRdEl);
      tz.Formula += " + kzy*My,Ed/(xLT*My,Rd) ";
      tz.Numbers += "+" + F2(s, k.kzy) + tail;
    }
  }
  if (an.MzGov != 0) {
    const double mz = an.MzGov;
    const std::string tail = "*" + F1(s, mz) + "/" + F1(s, MzRdEl);
    if (yLine) {
      IRy += Div(k.kyz * mz, MzRdEl);
      ty.Formula += " + kyz*Mz,Ed/Mz,Rd ";
      ty.Numbers += "+" + F2(s, k.kyz) + tail;
    }
    if (zLine) {
      IRz += Div(k.kzz * mz, MzRdEl);
      tz.Formula += " + kzz*Mz,Ed/Mz,Rd ";
      tz.Numbers += "+" + F2(s, k.kzz) + tail;
    }
  }
  if (yLine) {
    ty.Ratio = RatioText(s, IRy);
    ty.Limit = Limit(s, "Ch 6.3.3)");
    k.colBuckY = Colour(s, IRy);
  }
  if (zLine) {
    tz.Ratio = RatioText(s, IRz);
    tz.Limit = Limit(s, "Ch 6.3.3)");
    k.colBuckZ = Colour(s, IRz);
  }
}

// The line about v with the moments about v and u (6.3.3 in the principal axes). Returns false
// when Method 1 found the axial force beyond a critical load.
bool PrincipalMomentLine(State& s, double& IRv) {
  const Project& p = s.project;
  const Section& c = s.section;
  Checks& k = s.checks;
  const double NEd = s.analysis.NEd;
  k.xLT = 1;
  k.CmLt = 1;
  if (p.interactionMethod == 1) {
    EquivalentMomentUV(s);
    FactorsUV(s);
    if (p.calcError != 0) return false;
  } else {
    k.Cmu = k.Cmy;
    k.Cmv = k.Cmz;
    const double nv = Div(NEd, k.NbvRd);
    k.kvv = std::min(k.Cmv * (1 + 0.6 * k.lamdav * nv), k.Cmv * (1 + 0.6 * nv));
    k.kvu = k.kvv;
  }
  const double MvRd = c.MvRdMin, MuRd = c.MuRdMin;
  ControlText& t = k.buckTextLT;
  t.Formula = "IR = NEd/Nb,v,Rd ";
  t.Numbers = F1(s, NEd) + "/" + F1(s, k.NbvRd);
  if (k.MvMax != 0) {
    t.Formula += " + kvv*Mv,Ed/Mv,Rd ";
    t.Numbers += " + " + F2(s, k.kvv) + "*" + F1(s, k.MvMax) + "/" + F1(s, MvRd);
  }
  if (k.MuMax != 0) {
    t.Formula += " + kvu*Mu,Ed/Mu,Rd ";
    t.Numbers += " + " + F2(s, k.kvu) + "*" + F1(s, k.MuMax) + "/" + F1(s, MuRd);
  }
  t.Formula += " = ";
  t.Numbers += " = ";
  IRv = std::fabs(Div(NEd, k.NbvRd)) + Div(k.kvv * k.MvMax, MvRd) + Div(k.kvu * k.MuMax, MuRd);
  t.Ratio = F2(s, IRv);
  t.Limit = Limit(s, "Ch 6.3.3)");
  k.colLT = Colour(s, IRv);
  return true;
}

}  // namespace

void BucklingControlAngle(State& s) {
  Project& p = s.project;
  Analysis& an = s.analysis;
  Checks& k = s.checks;

  // 1. The third text carries the line about v.
  k.buckTextY = ControlText{};
  k.buckTextZ = ControlText{};
  k.buckTextLT = ControlText{};
  double IRy = 0, IRz = 0, IRv = 0;

  // 2.
  RotateIntoPrincipalAxes(s);

  // 3.
  SelectBucklingCurve(s);
  BucklingFactors(s);

  const double NEd = an.NEd;
  const bool yLine = p.bucklingFactorY > kHeld, zLine = p.bucklingFactorZ > kHeld;
  if (NEd > 0 && p.bucklingFactorY < kHeld && p.bucklingFactorZ < kHeld) {
    k.buckTextY.Formula = "No Buckling";
  } else if (NEd > 0) {
    // 4.
    StrutLines(s, yLine, zLine, " = ", IRy, IRz);
    {
      IRv = std::fabs(Div(NEd, k.NbvRd));
      ControlText& t = k.buckTextLT;
      t.Formula = "IR = NEd/Nb,v,Rd ";
      t.Numbers = F1(s, NEd) + "/" + F1(s, k.NbvRd) + " = ";
      t.Ratio = F2(s, IRv);
      t.Limit = Limit(s, "Ch 6.3.1)");
      k.colLT = Colour(s, IRv);
    }

    const bool moments = an.MyAbs != 0 || an.MzGov != 0;
    if (!moments) {
      // 5. 6.3.1.2 (4) on y and z together, and on v besides.
      const bool vFree = k.lamdav <= 0.2 || std::fabs(Div(NEd, k.Ncrv)) <= 0.04;
      if (StrutLetOff(s, NEd) && vFree) {
        k.buckTextY = ControlText{};
        k.buckTextZ = ControlText{};
        k.buckTextLT = ControlText{};
        k.buckTextY.Formula = kNoBucklingText;
        IRy = IRz = IRv = 0;
      }
    } else {
      // 6.
      k.xLT = 1;
      InteractionFactors(s);
      if (p.calcError != 0) return;
      MomentTerms(s, yLine, zLine, IRy, IRz);
      // 7.
      if (!PrincipalMomentLine(s, IRv)) return;
    }
  }

  // 8.
  k.IRbuckY = IRy;
  k.IRbuckZ = IRz;
  k.IRbuckLT = IRv;
  an.IRbuckling = std::max(IRy, IRz);
  if (IRv > an.IRbuckling) an.IRbuckling = IRv;
}

}  // namespace vn
