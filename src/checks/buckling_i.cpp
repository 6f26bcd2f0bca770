// The buckling control of the I family (rolled and welded I, channels, British sections, and the
// general section): the lines about y and about z of 6.3.1 and 6.3.3, and the lateral torsional
// line of 6.3.2. Its twin for the welded I with unequal flanges takes the moment resistance of the
// flange that the governing moment compresses; the closed sections have no LT line.
//
// Which case gets what:
//   NEd < 0, any moments        the LT line only
//   NEd = 0, no or one moment   the LT line only
//   NEd = 0, My and Mz          y and z by the biaxial form without axial force, and LT
//   NEd > 0, no moments         y and z, or "No Buckling" by 6.3.1.2 (4)
//   NEd > 0, moments            y and z with the moment terms of 6.61 and 6.62, and LT
#include <algorithm>
#include <cmath>
#include <string>

#include "checks/buckling.h"
#include "checks/control_routines.h"
#include "checks/control_text.h"
#include "core/format.h"
#include "core/state.h"
#include "design/design_basis.h"
#include "sections/rolled_i.h"

namespace vn {

using text::Colour;
using text::F1;
using text::F2;
using text::Limit;
using text::Write;

namespace {

// A buckling factor below this marks an axis held over its length (case 5 gives 0.001). Compared
// as the Single the factor is, so that 0.002 itself is neither held nor free.
constexpr Single kHeld = 0.002f;

// The moment resistance of the terms of 6.61 and 6.62.
double MomentResistance(const State& s, const BucklingStyle& style) {
  const Section& c = s.section;
  if (!style.singleSym) return c.MyRdBuck;
  return s.analysis.MyGov > 0 ? c.MyRdBuckPos : c.MyRdBuckNeg;
}

// The terms of My and Mz added to the flexural lines (6.61 about y, 6.62 about z).
void MomentTerms(State& s, const BucklingStyle& style, bool yLine, bool zLine, double& IRy, double& IRz) {
  const std::string j = style.join;
  const Analysis& an = s.analysis;
  const Section& c = s.section;
  Checks& k = s.checks;
  const double MyRd = MomentResistance(s, style);
  ControlText& ty = k.buckTextY;
  ControlText& tz = k.buckTextZ;
  if (an.MyGov != 0) {
    const double m = std::fabs(an.MyGov);
    const std::string tail = "*" + F1(s, m) + "/(" + F2(s, k.xLT) + "*" + F1(s, MyRd) + ")";
    if (yLine) {
      IRy += Div(k.kyy * m, k.xLT * MyRd);
      ty.Formula += j + "kyy*My,Ed/(xLT*My,Rd) ";
      ty.Numbers += "+" + F2(s, k.kyy) + tail;
    }
    if (zLine) {
      IRz += Div(k.kzy * m, k.xLT * MyRd);
      tz.Formula += j + "kzy*My,Ed/(xLT*My,Rd) ";
      tz.Numbers += "+" + F2(s, k.kzy) + tail;
    }
  }
  if (an.MzGov != 0) {
    const double mz = an.MzGov;
    const std::string tail = "*" + F1(s, mz) + "/" + F1(s, c.MzRdBuck);
    if (yLine) {
      IRy += Div(k.kyz * mz, c.MzRdBuck);
      ty.Formula += j + "kyz*Mz,Ed/Mz,Rd ";
      ty.Numbers += "+" + F2(s, k.kyz) + tail;
    }
    if (zLine) {
      IRz += Div(k.kzz * mz, c.MzRdBuck);
      tz.Formula += j + "kzz*Mz,Ed/Mz,Rd ";
      tz.Numbers += "+" + F2(s, k.kzz) + tail;
    }
  }
  if (yLine) {
    ty.Ratio = F2(s, IRy);
    ty.Limit = Limit(s, "Ch 6.3.3)");
    k.colBuckY = Colour(s, IRy);
  }
  if (zLine) {
    tz.Ratio = F2(s, IRz);
    tz.Limit = Limit(s, "Ch 6.3.3)");
    k.colBuckZ = Colour(s, IRz);
  }
}

// Biaxial bending without axial force. The z line keeps the sign of MyGov: a sagging and a hogging
// maximum give different ratios, as the program has always reported them; the single symmetric I
// and the closed sections take the magnitude there.
void BiaxialWithoutAxialForce(State& s, const BucklingStyle& style, double& IRy, double& IRz) {
  const Analysis& an = s.analysis;
  const Section& c = s.section;
  Checks& k = s.checks;
  const double My = style.absMyBiaxial ? std::fabs(an.MyGov) : an.MyGov;
  const double Mz = an.MzGov;
  const double MyRd = MomentResistance(s, style);
  const std::string xm = "/(" + F2(s, k.xLT) + "*" + F1(s, MyRd) + ")";
  const std::string zm = "*" + F1(s, Mz) + "/" + F1(s, c.MzRdBuck);

  IRy = Div(k.kyy * std::fabs(My), k.xLT * MyRd) + Div(k.kyz * Mz, c.MzRdBuck);
  ControlText& ty = k.buckTextY;
  ty.Formula = "IR = kyy*My,Ed/(xLT*My,Rd) ";
  ty.Formula += " + kyz*Mz,Ed/Mz,Rd) ";
  ty.Numbers = F2(s, k.kyy) + "*" + F1(s, std::fabs(My)) + xm + " + " + F2(s, k.kyz) + zm;
  ty.Ratio = F2(s, IRy);
  ty.Limit = Limit(s, "Ch 6.3.1)");
  k.colBuckY = Colour(s, IRy);

  IRz = Div(k.kzy * My, k.xLT * MyRd) + Div(k.kzz * Mz, c.MzRdBuck);
  ControlText& tz = k.buckTextZ;
  tz.Formula = "IR = kzy*My,Ed/(xLT*My,Rd) ";
  tz.Formula += " + kzz*Mz,Ed/Mz,Rd ";
  tz.Numbers = F2(s, k.kzy) + "*" + F1(s, My) + xm + " + " + F2(s, k.kzz) + zm + ")";
  tz.Ratio = F2(s, IRz);
  tz.Limit = Limit(s, "Ch 6.3.1)");
  k.colBuckZ = Colour(s, IRz);
}

}  // namespace

void LateralTorsionalLine(State& s, const BucklingStyle& style, double& IRlt) {
  Project& p = s.project;
  Checks& k = s.checks;
  LateralTorsionalControl(s);
  if (k.MyLT == 0) return;
  IRlt = std::fabs(Div(k.MyLT, k.xLT * k.MyRdLT));
  ControlText& t = k.buckTextLT;
  t.Formula = "IR = My,Ed/(xLT*My,Rd) = ";
  t.Numbers = F1(s, k.MyLT) + "/(" + F2(s, k.xLT) + "*" + F1(s, k.MyRdLT) + ")" + " = ";
  t.Ratio = F2(s, IRlt);
  if (p.ltbRestraints == 0)
    t.Limit = Limit(s, "Ch 6.3.2)");
  else
    t.Limit = Limit(s, k.ltbPartLabel.at(static_cast<size_t>(p.ltbPart)) +
                           (style.singleSym ? ");  (Ch 6.3.2))" : ";  (Ch 6.3.2))"));
  k.colLT = Colour(s, IRlt);
}

void StrutLines(State& s, bool yLine, bool zLine, const char* ratioPrefix, double& IRy, double& IRz) {
  Checks& k = s.checks;
  const double NEd = s.analysis.NEd;
  auto line = [&](ControlText& t, const char* formula, double NbRd, Integer& colour) {
    const double ir = std::fabs(Div(NEd, NbRd));
    t.Formula = formula;
    t.Numbers = F1(s, NEd) + "/" + F1(s, NbRd);
    t.Ratio = ratioPrefix + F2(s, ir);
    t.Limit = Limit(s, "Ch 6.3.1)");
    colour = Colour(s, ir);
    return ir;
  };
  if (yLine) IRy = line(k.buckTextY, "IR = NEd/Nb,y,Rd ", k.NbyRd, k.colBuckY);
  // The z line names the torsional mode where the strict rules found it governing.
  const char* zFormula = k.torsionalGoverns != 0 ? "IR = NEd/Nb,T,Rd " : "IR = NEd/Nb,z,Rd ";
  if (zLine) IRz = line(k.buckTextZ, zFormula, k.NbzRd, k.colBuckZ);
}

void BucklingControlI(State& s) {
  // Under the strict rules a section that is class 3 (or 4) under its own N and My, though of a
  // lower class in pure bending, has the elastic (or effective) My,Rd in the terms of 6.61 and 6.62,
  // in lamda,LT and in the choice of the interaction factors (6.2.1 (7), 6.2.9.2, 6.3.3 (1)). The
  // program's own method keeps the class of pure bending. The section record is put back after.
  Section& c = s.section;
  const Analysis& an = s.analysis;
  const int type = s.project.ProfileType;
  const bool classified =
      (type >= 1 && type <= 5) || type == 15 || type == 16 || type == 21 || (type >= 101 && type <= 103);
  if (!StrictRules(s) || !classified || !(an.NEd > 0) || an.MyGov == 0) {
    RunBucklingControl(s, kBucklingStyleI);
    return;
  }
  const Section kept = c;
  const double pair = ClassAboutY(s, an.NEd, an.MyGov);
  c.classWeb = kept.classWeb;  // the classification leaves its parts; the shown ones stay
  c.classFlange = kept.classFlange;
  if (pair > c.classMy && pair >= 3) {
    c.classMy = pair;
    if (pair >= 4) {
      c.Wy = ToSingle(c.Weffy);
      c.MyRdClass = c.MeffyRd;
    } else {
      c.Wy = c.Wely;
      c.MyRdClass = c.MelyRd;
    }
    c.MyRdBuck = Div(c.MyRdClass * s.project.gammaM0, s.project.gammaM1);
  }
  try {
    RunBucklingControl(s, kBucklingStyleI);
  } catch (...) {
    c = kept;
    throw;
  }
  c = kept;
}

void BucklingControlSingleSym(State& s) { RunBucklingControl(s, kBucklingStyleSingleSym); }

void RunBucklingControl(State& s, const BucklingStyle& style) {
  Project& p = s.project;
  Analysis& an = s.analysis;
  Checks& k = s.checks;

  k.buckTextY = ControlText{};
  k.buckTextZ = ControlText{};
  k.buckTextLT = ControlText{};
  double IRy = 0, IRz = 0, IRlt = 0;

  if (style.lateralTorsional && p.ltbOn == 1)
    LateralTorsionalLine(s, style, IRlt);
  else
    k.xLT = 1;

  SelectBucklingCurve(s);
  BucklingFactors(s);

  const double NEd = an.NEd;
  const bool yLine = p.bucklingFactorY > kHeld, zLine = p.bucklingFactorZ > kHeld;
  if (NEd > 0 && p.bucklingFactorY < kHeld && p.bucklingFactorZ < kHeld) {
    k.buckTextY.Formula = "No Buckling";
  } else if (NEd > 0) {
    StrutLines(s, yLine, zLine, "", IRy, IRz);
    const bool moments = an.MyAbs != 0 || an.MzGov != 0;
    if (!moments) {
      // 6.3.1.2 (4): a stocky or lightly loaded strut needs no buckling check, both axes together.
      if (StrutLetOff(s, NEd)) {
        k.buckTextY = ControlText{};
        k.buckTextZ = ControlText{};
        k.buckTextY.Formula = kNoBucklingText;
        IRy = 0;
        IRz = 0;
      }
    } else {
      InteractionFactors(s, style.lateralTorsional);
      if (p.calcError != 0) return;
      MomentTerms(s, style, yLine, zLine, IRy, IRz);
    }
  }

  if (NEd == 0 && an.MyGov != 0 && an.MzGov != 0) {
    InteractionFactors(s, style.lateralTorsional);
    if (p.calcError != 0) return;
    BiaxialWithoutAxialForce(s, style, IRy, IRz);
  }

  k.IRbuckY = IRy;
  k.IRbuckZ = IRz;
  k.IRbuckLT = IRlt;
  an.IRbuckling = std::max(IRy, IRz);
  if (IRlt > an.IRbuckling) an.IRbuckling = IRlt;
}

}  // namespace vn
