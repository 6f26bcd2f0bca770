// The controls of the girders loaded in their web plane: HSQ (24, 25), the box with unequal flanges
// (27) and the plates with a stiffener (51 to 56). One moment My, which keeps its sign, and one
// shear Vz; no axial force and no Mz enter them. The moment resistance of each sign is the one the
// section stage chose for its class (with the upgrade of a class 3 web and the load on the HSQ's
// lower plate), reduced for high shear. The plates have the lateral torsional line alone as their
// buckling control; HSQ and the box have none.
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
#include "design/design_basis.h"
#include "sections/hsq.h"

namespace vn {

using text::Colour;
using text::F1;
using text::F2;
using text::Limit;
using text::Write;

namespace {

// The width of a plate that the flange contribution counts under the strict rules (EN 1993-1-5
// 5.4 (1)): at most 15 epsilon tf each side of each web. `outA`, `outB` the plate's projections
// beyond the outer faces of the `webs` webs, `gap` the plate between two webs (half to each);
// `overWebs` where the plate runs across the webs' ends, whose thickness then counts as well.
double AnchoredWidth(const State& s, double tf, double outA, double outB, double gap, double webs,
                     bool overWebs) {
  const double lim = 15 * static_cast<double>(s.project.epsilon) * tf;
  auto side = [lim](double w) { return std::min(std::max(w, 0.0), lim); };
  return (overWebs ? webs * s.section.tw : 0) + side(outA) + side(outB) + (webs - 1) * 2 * side(gap / 2);
}

// The shear resistances of a point of an HSQ or box, the two webs side by side; the axial force
// stays out. The program's own method takes the whole of the flange with the smaller tf b and the
// HSQ's hw. The strict rules take each plate at most 15 epsilon tf each side of a web, the smaller
// of the two plates' contributions, and the HSQ's web between the plates. Both keep one flange
// term for the two webs with one web's thickness in c, which gives less than a term for each web.
void TwoWebShear(State& s, double MyEd) {
  const Section& c = s.section;
  const Project& p = s.project;
  ShearPanel panel;
  panel.hw = c.hw;
  panel.webs = 2;
  if (!StrictRules(s)) {
    const bool firstFlange = static_cast<double>(c.tf2) * c.b2 > static_cast<double>(c.tf1) * c.b1;
    panel.b = firstFlange ? c.b1 : c.b2;
    panel.tf = firstFlange ? c.tf1 : c.tf2;
    ShearResistancesOf(s, 0, MyEd, panel);
    return;
  }
  const double b1 = c.b1, b2 = c.b2, tw = c.tw;
  double topA = 0, topB = 0, topGap = b1, botA = 0, botB = 0, botGap = b1;
  bool topOverWebs = false;  // the HSQ's top plate lies between the webs
  if (p.ProfileType == 27) {
    const double over = p.p27.istc;
    topA = topB = over;
    topGap = botGap = c.c1;
    topOverWebs = true;
    botA = botB = (b2 - b1) / 2 + over;
  } else if (p.ProfileType == 25) {
    botA = p.p25.istc;
    botB = b2 - b1 - botA - 2 * tw;
  } else {
    botA = botB = (b2 - b1 - 2 * tw) / 2;
  }
  panel.hw = ShearWebHeight(s);
  panel.b = AnchoredWidth(s, c.tf1, topA, topB, topGap, 2, topOverWebs);
  panel.tf = c.tf1;
  panel.bAlt = AnchoredWidth(s, c.tf2, botA, botB, botGap, 2, true);
  panel.tfAlt = c.tf2;
  ShearResistancesOf(s, 0, MyEd, panel);
}

// The plate is the one flange of the plate families. The strict rules take it, and the flange of
// a stiffener that has one, at most 15 epsilon tf each side of the web, the smaller of the two
// contributions; a flat bar (51) leaves the web with one flange, which anchors no tension field.
void PlateShear(State& s, double MyEd) {
  const Section& c = s.section;
  ShearPanel panel;
  panel.hw = c.hw;
  panel.b = c.b1;
  panel.tf = c.tf1;
  if (StrictRules(s)) {
    if (s.project.ProfileType == 51) {
      panel.flangeContribution = false;
    } else {
      panel.b = AnchoredWidth(s, c.tf1, c.c1, c.c1, 0, 1, true);
      const bool twoSided = s.project.ProfileType == 56;
      panel.bAlt = AnchoredWidth(s, c.tf2, c.c2, twoSided ? c.c2 : 0, 0, 1, true);
      panel.tfAlt = c.tf2;
    }
  }
  ShearResistancesOf(s, 0, MyEd, panel);
}

// The control at every check point: My with its sign in group 1, Vz in group 3.
void InPlaneSectionControl(State& s, void (*shear)(State&, double MyEd)) {
  Checks& k = s.checks;
  Analysis& an = s.analysis;
  const Section& c = s.section;
  const Single lim = an.IRlimit;
  auto F = [&s](double v) { return F1(s, v); };

  // 1.
  for (size_t g = 1; g <= 6; ++g) {
    k.secText[g] = ControlText{};
    k.IRsec[g] = 0;
  }
  double& IR1 = k.IRsec[1];
  double& IR3 = k.IRsec[3];

  // 2.
  if (an.NPoints < 0 || an.NPoints > 40) Fault("subscript out of range");
  for (int i = 0; i <= an.NPoints; ++i) {
    const size_t ix = static_cast<size_t>(i);
    const double x = an.ChPointXrel[ix];
    k.MyEd = an.MyPt[ix];
    k.VzEd = std::fabs(an.VzPt[ix]);
    const double MyEd = k.MyEd, VzEd = k.VzEd;
    const bool lowVz = VzEd < 0.5 * c.VzRd;

    // a. The class and resistance of the sign.
    if (MyEd != 0) {
      k.classCur = MyEd > 0 ? c.classMyPos : c.classMyNeg;
      k.MyRd = ToSingle(MyRdSignedPlated(s, k.classCur, MyEd));
      const double MyAbs = std::fabs(MyEd);
      const double ir = Div(MyAbs, k.MyRd);
      if (Compete(ir, IR1, k.colSec[1], lim))
        Write(s, k.secText[1],
              lowVz ? "IR = My,Ed/My,Rd = " : "IR = My,Ed/MV,y,Rd = ", F(MyAbs) + "/" + F(k.MyRd) + " = ", ir,
              PointLimit(s, x, lowVz ? "L; Ch 6.2.5)" : "L; Ch 6.2.8)"));
    }

    // b. Shear, the label says Vz,Rd and the value is Vb,z,Rd.
    if (VzEd != 0) {
      shear(s, MyEd);
      const double ir = Div(VzEd, c.VbzRd);
      if (Compete(ir, IR3, k.colSec[3], lim))
        Write(s, k.secText[3], "IR = Vz,Ed/Vz,Rd = ", F(VzEd) + "/" + F(c.VbzRd) + " = ", ir,
              PointLimit(s, x, "L; Ch 6.2.6") + k.VbSuffix);
    }
  }

  // 3. Group 2 stays empty.
  an.IRsection = IR1 > k.IRsec[2] ? IR1 : k.IRsec[2];
  if (IR3 > an.IRsection) an.IRsection = IR3;
}

}  // namespace

double MyRdSignedPlated(State& s, double cls, double MyEd) {
  Checks& k = s.checks;
  const Section& c = s.section;
  const Project& p = s.project;
  RhoZOfPoint(s);
  const double hw = ShearWebHeight(s), tw = c.tw, fyk = p.fyk;
  const double webs = hw * hw * (2 * static_cast<double>(k.rhoZ) * tw);
  const bool plastic = cls != 3 && cls != 4 && p.elasticClass12 == 0;
  const double R = webs / (plastic ? 4 : 6) / 1000000 * fyk;
  const double base = MyEd > 0 ? c.MyRdPos : c.MyRdNeg;
  return ToSingle(base - Div(R, p.gammaM0));
}

void SectionControlHSQ(State& s) {
  // The load on the lower plate with the loads of this combination.
  HsqFlangeLoad(s);
  InPlaneSectionControl(s, TwoWebShear);
  // Under the strict rules the plate's bending across under that load is a control of its own in
  // group 2, kNm per m of its length: a plate overloaded fails here, where the program's own method
  // drops the load (" Flange overloaded! ...") and shows the girder without it.
  const Section& c = s.section;
  const Project& p = s.project;
  if (!StrictRules(s) || (p.ProfileType != 24 && p.ProfileType != 25) || p.hsqKind != 0) return;
  if (!(c.FlangeLoadRatio > 0)) return;
  Checks& k = s.checks;
  const double q = s.analysis.qTotal;
  const double mEd = (p.ProfileType == 25 ? std::fabs(60 * q) : std::fabs(60 * q * p.p24.iload / 100)) / 1000;
  const double tf2 = c.tf2;
  const double mRd = Div(1.75 * static_cast<double>(p.fyk), p.gammaM0) * tf2 * tf2 / 6 / 1000;
  const double ir = c.FlangeLoadRatio;
  if (Compete(ir, k.IRsec[2], k.colSec[2], s.analysis.IRlimit))
    Write(s, k.secText[2], "IR = mEd/mRd (flange load) = ", F2(s, mEd) + "/" + F2(s, mRd) + " = ", ir,
          Limit(s, "Ch 6.2.5)"));
  if (k.IRsec[2] > s.analysis.IRsection) s.analysis.IRsection = k.IRsec[2];
}

void SectionControlPlate(State& s) { InPlaneSectionControl(s, PlateShear); }

void BucklingControlPlate(State& s) {
  Checks& k = s.checks;
  // 1.
  k.buckTextY = ControlText{};
  k.buckTextZ = ControlText{};
  k.buckTextLT = ControlText{};
  // 2. The LT line alone, where the free stiffener is compressed. The main form's state sets ltbOn
  // from the sign of the governing moment at the end of each run, for the next one; a load that
  // turns the moment over would have its tripping line only one event later, and the member would
  // show no buckling line after its last input. The sign of this run's own moment decides here, and
  // ltbOn with it, so that the summary's heading and the report agree with the line.
  double IRlt = 0;
  s.project.ltbOn = s.analysis.MyGov < 0 ? 1 : 0;
  if (s.project.ltbOn == 1)
    LateralTorsionalLine(s, kBucklingStyleI, IRlt);
  else
    k.xLT = 1;
  // 3.
  k.IRbuckY = 0;
  k.IRbuckZ = 0;
  k.IRbuckLT = IRlt;
  s.analysis.IRbuckling = IRlt;
}

}  // namespace vn
