// HSQ girders and the box with unequal flanges. The properties come from the rectangle table of the
// welded I (the two webs as one rectangle of 2 tw, since only the heights count about y), the
// plastic axis from the same 0.1 mm stepping. The plate between the webs is internal (k-sigma 4);
// the two webs are reduced together. The HSQ carries floor slabs on the projections of its lower
// plate: the load on one projection bends the plate across and lowers the moment resistance.
#include "sections/hsq.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "core/format.h"
#include "core/state.h"
#include "design/design_basis.h"
#include "sections/rolled_i.h"
#include "sections/welded_i.h"

namespace vn {

namespace {

std::string Dim(const State& s, double v) { return SingleText(ToSingle(v), s.decimalComma); }

// The drawn rectangles of a section of a top plate, two webs and a bottom plate: the left web at
// yWeb, the top plate from yTop with width bTop; the webs rise from the bottom plate to the top.
void TwoWebFigure(State& s, double h, double b1, double b2, double tw, double tf1, double tf2, double yWeb,
                  double yTop, double webGap) {
  Section& c = s.section;
  const std::array<Plate, 4> drawn = {{{b2, tf2, 0, 0},
                                       {tw, h - tf2, yWeb, tf2},
                                       {tw, h - tf2, yWeb + tw + webGap, tf2},
                                       {b1, tf1, yTop, h - tf1}}};
  double width = b2;
  for (int i = 0; i < 4; ++i) {
    const Plate& pl = drawn[static_cast<size_t>(i)];
    SetOutlinePoint(c, 2 * i + 1, pl.y0, pl.z0);
    SetOutlinePoint(c, 2 * i + 2, pl.y0 + pl.w, pl.z0 + pl.ht);
    width = std::max(width, pl.y0 + pl.w);
  }
  c.OutlineRects = 4;
  c.OutlineCount = 8;
  c.OutlineInnerLast = 1;
  c.FigHeight = ToSingle(h);
  c.FigWidth = ToSingle(width);
  c.FigCentroidY = ToSingle(width / 2);
  c.FigCentroidZ = ToSingle(h - c.ez);
}

// Steps shared by the three families once the plates are known: the rectangle sums, the moduli of
// both fibres, the stepped plastic axis. `ez` is the centroid from the lower edge.
void PlatedSums(State& s, double h, double b1, double b2, double tw, double tf1, double tf2) {
  Section& c = s.section;
  const std::array<Plate, 3> plates = {
      {{b1, tf1, 0, h - tf1}, {2 * tw, h - tf1 - tf2, 0, tf2}, {b2, tf2, 0, 0}}};
  const PlateSums sum = PlateTable(c, plates);
  c.A = ToSingle(sum.A);
  c.g = ToSingle(static_cast<double>(s.project.rho) * c.A * 1e-6);
  const double ezb = c.ez;
  c.Wyt = ToSingle(Div(c.Iy, h - ezb));
  c.Wyb = ToSingle(Div(c.Iy, ezb));
  c.Wely = c.Wyt <= c.Wyb ? c.Wyt : c.Wyb;
  c.zpl = SteppedPlasticAxis(plates, c.A, h);
  c.Wply = ToSingle(PlasticModulusAbout(plates, c.zpl));
  c.WplyTop = c.Wply;
  c.WplyBot = c.Wply;
  c.tmax = std::max({c.tf1, c.tf2, c.tw});
}

// The record's plates, and the mean flange of a section with two (Section: b and tf).
void SetPlates(Section& c, double h, double b1, double b2, double tw, double tf1, double tf2) {
  c.h = ToSingle(h);
  c.b1 = ToSingle(b1);
  c.b2 = ToSingle(b2);
  c.tw = ToSingle(tw);
  c.tf1 = ToSingle(tf1);
  c.tf2 = ToSingle(tf2);
  c.b = ToSingle((b1 + b2) / 2);
  c.tf = ToSingle((tf1 + tf2) / 2);
  c.r = NominalWeld(c.tw);
}

// The outstands of the top (or bottom) plate beyond the webs, to the welds: the widths on the two
// sides, 0 where the plate ends at the web. HSQ: the top plate lies between the webs, the bottom
// plate projects by c2 each side (24) or by c and the wider hweb (25). Box 27: the top flange by c
// each side, the bottom one by c and half the difference of the widths.
struct Outstands {
  double a = 0, b = 0;
};

Outstands PlateOutstands(const State& s, bool top) {
  const Section& c = s.section;
  const Project& p = s.project;
  const double r = c.r;
  auto clip = [](double v) { return v > 0 ? v : 0.0; };
  switch (p.ProfileType) {
    case 24: return top ? Outstands{} : Outstands{clip(c.c2), clip(c.c2)};
    case 25: return top ? Outstands{} : Outstands{clip(p.p25.istc - r), clip(c.c2)};
    case 27: {
      const double over = p.p27.istc;
      if (top) return {clip(over - r), clip(over - r)};
      const double bottom = (static_cast<double>(p.p27.istb2) - p.p27.istb1) / 2 + over - r;
      return {clip(bottom), clip(bottom)};
    }
    default: return {};
  }
}

// The width lost to buckling of the compressed plate of thickness t: one strip of the internal
// plate c1 and, under the strict rules, the tip of each outstand (EN 1993-1-5 4.4, Table 4.2,
// uniform compression: k-sigma 0.43, limit 0.748). The program's own method leaves the outstands
// whole.
double LostWidth(const State& s, double t, bool top) {
  const Section& c = s.section;
  const Project& p = s.project;
  const double eps = p.epsilon;
  double lost = (1 - InternalRho(c.c1, t, eps, p.noFlangeBuckling)) * c.c1;
  if (StrictRules(s)) {
    const Outstands o = PlateOutstands(s, top);
    for (const double w : {o.a, o.b})
      if (w > 0) lost += (1 - OutstandRho(w, t, eps, 0.43, p.noFlangeBuckling)) * w;
  }
  return lost;
}

// Both passes: the top plate compressed (WeffyTop, WeffyBot), then the bottom plate (WeffyBot2,
// WeffyTop2). The lost widths of the compressed plate count as one strip; the two webs count
// together.
void TwoWebEffective(State& s) {
  Section& c = s.section;
  const double h = c.h, ezb = c.ez;
  Single ce = 0;
  double I = EffectivePass(s, {h - ezb, LostWidth(s, c.tf1, true), c.tf1, 0, 1, 2}, ce);
  c.WeffyTop = ToSingle(Div(I, ce));
  c.WeffyBot = ToSingle(Div(I, h - ce));
  I = EffectivePass(s, {ezb, LostWidth(s, c.tf2, false), c.tf2, 0, 1, 2}, ce);
  c.WeffyBot2 = ToSingle(Div(I, ce));
  c.WeffyTop2 = ToSingle(Div(I, h - ce));
}

// The plate between the webs under compression, an internal element: "<" for classes 1 and 2,
// "<=" for class 3.
double InternalPlateClass(Single ct, double eps) {
  if (ct < ToSingle(33 * eps)) return 1;
  if (ct < ToSingle(38 * eps)) return 2;
  if (ct <= ToSingle(42 * eps)) return 3;
  return 4;
}

// The class of either sign; `upgrade` allows the result 23.
double ClassTwoWebs(State& s, double M, bool upgrade) {
  Section& c = s.section;
  const double eps = s.project.epsilon;
  const double h = c.h, ezb = c.ez, zpl = c.zpl, tf1 = c.tf1, tf2 = c.tf2, hw = c.hw;
  const Single dtw = ToSingle(Div(c.d, c.tw));
  double alfa, psi, tPlate;
  if (M > 0) {
    const double sigma1 = Div((h - ezb - tf1) * M * 1e6, c.Iy);
    const double sigma2 = -Div(M * 1e6, c.Iy) * (ezb - tf2);
    psi = Div(sigma2, sigma1);
    alfa = Div(h - zpl - tf1, hw);
    tPlate = tf1;
  } else {
    const double sigma1 = Div((ezb - tf2) * M * 1e6, c.Iy);
    const double sigma2 = -Div(M * 1e6, c.Iy) * (h - ezb - tf1);
    psi = Div(sigma2, sigma1);
    alfa = Div(zpl - tf2, hw);
    tPlate = tf2;
  }
  c.classWeb = ToSingle(WebClassInBending(dtw, alfa, psi, eps));
  c.classFlange = InternalPlateClass(ToSingle(Div(c.c1, tPlate)), eps);
  if (StrictRules(s)) {
    // The compressed plate's outstands beyond the webs, EN 1993-1-1 Table 5.2 (outstand flanges,
    // uniform compression: 9, 10, 14 epsilon); the program's own method classifies the plate
    // between the webs alone.
    const Outstands o = PlateOutstands(s, M > 0);
    for (const double w : {o.a, o.b})
      c.classFlange = std::max(c.classFlange, PlateClass(ToSingle(Div(w, tPlate)), eps, 9, 10, 14, false));
  }
  if (upgrade && c.classWeb == 3 && c.classFlange <= 2) return 23;
  return std::max<double>(c.classWeb, c.classFlange);
}

// The upgraded plastic modulus: compressed plate bt x tt, the other bo x to.
double UpgradedWpl(const State& s, double bt, double tt, double bo, double to) {
  const Section& c = s.section;
  const double tw = c.tw;
  const double sWeb = 20 * static_cast<double>(s.project.epsilon) * tw;
  const double Ac = tt * bt + 4 * sWeb * tw;
  double x = Div((Ac - bo * to) / 2, tw);
  if (x > c.d) x = c.d;
  if (x < 0) x = 0;
  const double e = c.hw - x - 2 * sWeb;
  return c.Wply - 2 * tw * e * (e / 2 + sWeb);
}

}  // namespace

// The moment resistances of both signs by their classes; the upgraded class takes the modulus of
// the upgrade routine, whose field names cross.
void SelectBySign(State& s, bool upgrade) {
  Section& c = s.section;
  const Project& p = s.project;
  const double fyk = p.fyk, g0 = p.gammaM0;
  auto moment = [&](double W) { return Div(Div(W * fyk, g0), 1e6); };
  SelectForSign(s, c.classMyPos, c.Wely, c.Weffy1, c.MeffyRd1, c.WyPos, c.MyRdPos);
  if (upgrade && c.classMyPos == 23) {
    UpgradeWplTop(s);
    c.WyPos = c.WplyBot;
    c.MyRdPos = ToSingle(moment(c.WplyBot));
  }
  SelectForSign(s, c.classMyNeg, c.Wely, c.Weffy2, c.MeffyRd2, c.WyNeg, c.MyRdNeg);
  if (upgrade && c.classMyNeg == 23) {
    UpgradeWplBot(s);
    c.WyNeg = c.WplyTop;
    c.MyRdNeg = ToSingle(moment(c.WplyTop));
  }
}

// The values of the effective pairs and the moments of the moduli.
void MomentsOfModuli(State& s) {
  Section& c = s.section;
  const Project& p = s.project;
  // A plate or stiffener so slender that nothing of it is left (or an effective centroid beyond
  // the section's edge) leaves no modulus to divide by: the run ends in the calculation message,
  // never with a negative or zero resistance on the screen.
  for (const Single W : {c.WeffyTop, c.WeffyBot, c.WeffyTop2, c.WeffyBot2})
    if (!(W > 0) || !std::isfinite(W)) Fault("effective modulus not positive");
  auto moment = [&](double W) { return Div(Div(W * p.fyk, p.gammaM0), 1e6); };
  c.MelyRd = moment(c.Wely);
  c.MplyRd = moment(c.Wply);
  c.Weffy1 = std::min<double>(c.WeffyTop, c.WeffyBot);
  c.MeffyRd1 = moment(c.Weffy1);
  c.Weffy2 = std::min<double>(c.WeffyTop2, c.WeffyBot2);
  c.MeffyRd2 = moment(c.Weffy2);
}

void BucklingValues(State& s) {
  Section& c = s.section;
  const Project& p = s.project;
  c.MyRdBuckPos = Div(static_cast<double>(c.MyRdPos) * p.gammaM0, p.gammaM1);
  c.MyRdBuckNeg = Div(static_cast<double>(c.MyRdNeg) * p.gammaM0, p.gammaM1);
  c.MyRdBuck = std::min(c.MyRdBuckPos, c.MyRdBuckNeg);
  s.checks.MyRdBuckPos = c.MyRdBuckPos;
  s.checks.MyRdBuckNeg = c.MyRdBuckNeg;
  s.checks.ezb = c.ez;
}

double ShearWebHeight(const State& s) {
  const Section& c = s.section;
  const int type = s.project.ProfileType;
  // The program's own method takes the HSQ's web as h - tf2 - tw, deeper than the web between the
  // plates wherever the top plate is thicker than the web.
  if (StrictRules(s) && (type == 24 || type == 25)) return ToSingle(static_cast<double>(c.h) - c.tf1 - c.tf2);
  return c.hw;
}

void WebShearCapacity(State& s, double webs, bool stockyEta) {
  Section& c = s.section;
  const Project& p = s.project;
  const double fyk = p.fyk, g0 = p.gammaM0, g1 = p.gammaM1, eps = p.epsilon, neta = p.neta;
  const double hw = ShearWebHeight(s), tw = c.tw;
  const double sqrt3 = Sqrt(3);
  const Single webSlenderness = ToSingle(Div(hw, tw));
  const Single stockyLimit = ToSingle(Div(72 * eps, neta));
  if (webSlenderness < stockyLimit) {
    c.Avz = webs * (stockyEta ? neta : 1.0) * hw * tw;
    c.VzRd = Div(Div(c.Avz * Div(fyk, sqrt3), g0), 1000);
  } else {
    const double lamdaW = Div(hw, 86.4 * eps * tw);
    const double chiW = lamdaW < Div(0.83, neta) ? neta : Div(0.83, lamdaW);
    c.Avz = webs * hw * tw;
    c.VzRd = Div(Div(Div(c.Avz * chiW * fyk, sqrt3), g1), 1000);
  }
  c.VplRd = ToSingle(Div(Div(c.Avz * Div(fyk, sqrt3), g0), 1000));
  c.VbzRd = ToSingle(c.VzRd);  // until a control works out the value at its points
}

// ---------------------------------------------------------------------------------------------
// HSQ (24, 25)

void HsqProperties(State& s) {
  Section& c = s.section;
  const HsqSymInput& in = s.project.p24;
  const double h = in.isth, b1 = in.istb1, b2 = in.istb2, tw = in.isttw, tf1 = in.isttf1, tf2 = in.isttf2;
  SetPlates(c, h, b1, b2, tw, tf1, tf2);
  const double r = c.r;
  // The top plate between the webs is an internal element; the projections of the bottom plate
  // are the outstands.
  c.c1 = b1;
  c.c2 = (b2 - b1 - 2 * tw) / 2 - r;
  c.c = 0;
  c.hw = ToSingle(h - tf2 - tw);
  c.d = ToSingle(c.hw - r);
  c.ri = ToSingle(c.c1);
  c.S = ToSingle(2 * (b2 + h) / 1000);
  PlatedSums(s, h, b1, b2, tw, tf1, tf2);
  SetSectionName(s, 24,
                 "HSQ " + Dim(s, h) + "x" + Dim(s, b1) + "/" + Dim(s, b2) + "x" + Dim(s, tw) + "x" +
                     Dim(s, tf1) + "/" + Dim(s, tf2));
  const double overhang = (b2 - b1 - 2 * tw) / 2;
  TwoWebFigure(s, h, b1, b2, tw, tf1, tf2, overhang, overhang + tw, b1);
}

void HsqUnsymProperties(State& s) {
  Section& c = s.section;
  const HsqUnsymInput& in = s.project.p25;
  const double h = in.isth, b1 = in.istb1, b2 = in.istb2, tw = in.isttw, tf1 = in.isttf1, tf2 = in.isttf2;
  const double cNarrow = in.istc;
  SetPlates(c, h, b1, b2, tw, tf1, tf2);
  const double r = c.r;
  // The wider projection lies on the far side of the webs from c.
  c.hweb = ToSingle(b2 - b1 - cNarrow - 2 * tw);
  c.c1 = b1;
  c.c2 = static_cast<double>(c.hweb) - r;
  c.c = 0;
  c.hw = ToSingle(h - tf2 - tw);
  c.d = ToSingle(c.hw - r);
  c.ri = ToSingle(c.c1);
  c.S = ToSingle(2 * (b2 + h) / 1000);
  PlatedSums(s, h, b1, b2, tw, tf1, tf2);
  SetSectionName(s, 25,
                 "HSQ " + Dim(s, h) + "x" + Dim(s, b1) + "/" + Dim(s, b2) + "x" + Dim(s, tw) + "x" +
                     Dim(s, tf1) + "/" + Dim(s, tf2));
  TwoWebFigure(s, h, b1, b2, tw, tf1, tf2, cNarrow, cNarrow + tw, b1);
}

void HsqEffective(State& s) { TwoWebEffective(s); }

void HsqEffectiveUnsym(State& s) { TwoWebEffective(s); }

double ClassHsqY(State& s, double M) {
  const int type = s.project.ProfileType;
  const Integer option = type == 25 ? s.project.p25.classOption : s.project.p24.classOption;
  return ClassTwoWebs(s, M, option == 0);
}

void UpgradeWplTop(State& s) {
  Section& c = s.section;
  s.project.noWebBuckling = 0;  // an upgrade switches the setting off
  c.WplyBot = ToSingle(UpgradedWpl(s, c.b1, c.tf1, c.b2, c.tf2));
}

void UpgradeWplBot(State& s) {
  Section& c = s.section;
  s.project.noWebBuckling = 0;
  c.WplyTop = ToSingle(UpgradedWpl(s, c.b2, c.tf2, c.b1, c.tf1));
}

void HsqClasses(State& s) {
  Section& c = s.section;
  Project& p = s.project;
  const double fyk = p.fyk, g0 = p.gammaM0;
  const double hw = c.hw, tw = c.tw;

  // 1. and 2. Two webs leave the flanges' share.
  MomentsOfModuli(s);
  c.MfyRd = c.MelyRd - 2 * Div(fyk, g0) * (hw * hw * tw / 6) / 1e6;

  // 3. The load on the lower plate waits for the loads: the section control applies it with the
  // qTotal of its own combination (HsqFlangeLoad), never with that of the run before.
  c.FlangeLoadFactor = 1;
  c.FlangeLoadRatio = 0;

  // 4. and 5.
  c.classMyPos = ClassHsqY(s, 10);
  c.classMyNeg = ClassHsqY(s, -10);
  SelectBySign(s, true);
  c.MyRdPosUnloaded = c.MyRdPos;
  c.MyRdNegUnloaded = c.MyRdNeg;
  BucklingValues(s);

  // 7. Two webs in shear.
  WebShearCapacity(s, 2, true);
}

void HsqFlangeLoad(State& s) {
  Section& c = s.section;
  Project& p = s.project;
  const int type = p.ProfileType;
  if (type != 24 && type != 25) return;
  // 6. (first) The resistances the classes chose, before any load on the plate.
  c.MyRdPos = c.MyRdPosUnloaded;
  c.MyRdNeg = c.MyRdNegUnloaded;
  c.FlangeLoadFactor = 1;
  c.FlangeLoadRatio = 0;
  if (p.hsqKind == 0) {
    // 3. The load that the slabs put on one projection of the bottom plate: its moment, at the fixed
    // lever of 60 mm, against the plate's plastic capacity across. The factored uniform loads of the
    // combination in hand stand in qTotal.
    const double fyk = p.fyk, g0 = p.gammaM0;
    const double q = s.analysis.qTotal;
    const double f = type == 25 ? std::fabs(60 * q) : std::fabs(60 * q * p.p24.iload / 100);
    const double cap = (1.75 * fyk / g0) * c.tf2 * c.tf2 / 6;
    c.FlangeLoadRatio = Div(f, cap);
    if (f > 0.2 * cap) {
      if (1 - Div(f, cap) < 0 && StrictRules(s)) {
        // The strict rules keep the load: the plate fails across (the section control prints its
        // ratio above 1), and the moment resistance takes the factor of a plate at its capacity.
        c.FlangeLoadFactor = ToSingle(1.1 * 0.5);
      } else if (1 - Div(f, cap) < 0) {
        s.view.runMessage = " Flange overloaded! Program removes flangeloading ";
        p.hsqKind = 1;
        c.FlangeLoadRatio = 0;
      } else {
        c.FlangeLoadFactor = ToSingle((Sqrt(1 - Div(f, cap)) + 1.1) * 0.5);
      }
    }
    if (c.FlangeLoadFactor > 1) c.FlangeLoadFactor = 1;
  }
  // 6.
  if (p.hsqKind == 0) {
    c.MyRdPos = ToSingle(static_cast<double>(c.MyRdPos) * c.FlangeLoadFactor);
    c.MyRdNeg = ToSingle(static_cast<double>(c.MyRdNeg) * c.FlangeLoadFactor);
  }
  BucklingValues(s);
}

// ---------------------------------------------------------------------------------------------
// Box with unequal flanges (27)

void UnequalBoxProperties(State& s) {
  Section& c = s.section;
  const BoxUnequalInput& in = s.project.p27;
  const double h = in.isth, b1 = in.istb1, b2 = in.istb2, tw = in.isttw, tf1 = in.isttf1, tf2 = in.isttf2;
  const double over = in.istc;  // overhang of the narrower flange beyond the webs
  SetPlates(c, h, b1, b2, tw, tf1, tf2);
  const double r = c.r;
  c.hweb = ToSingle(std::fabs((b2 - b1) / 2));
  c.c1 = b1 - 2 * (tw + over);
  c.c2 = over - r;
  c.hw = ToSingle(h - tf1 - tf2);
  c.d = ToSingle(c.hw - 2 * r);
  c.ri = ToSingle(c.c1);
  c.S = ToSingle(2 * (over + b1 + b2 + h) / 1000);
  PlatedSums(s, h, b1, b2, tw, tf1, tf2);
  SetSectionName(s, 27,
                 "Box " + Dim(s, h) + "x" + Dim(s, b1) + "/" + Dim(s, b2) + "x" + Dim(s, tw) + "x" +
                     Dim(s, tf1) + "/" + Dim(s, tf2));
  // Drawn with both flanges centred, the webs inside the upper flange's overhangs.
  const double width = std::max(b1, b2);
  const double y1 = (width - b1) / 2;
  TwoWebFigure(s, h, b1, width, tw, tf1, tf2, y1 + over, y1, c.c1);
  if (b2 < width) {  // the lower flange narrower than the upper one
    SetOutlinePoint(c, 1, (width - b2) / 2, 0);
    SetOutlinePoint(c, 2, (width + b2) / 2, tf2);
  }
}

void BoxEffective(State& s) { TwoWebEffective(s); }

double ClassBoxY(State& s, double M) { return ClassTwoWebs(s, M, false); }

void BoxClasses(State& s) {
  Section& c = s.section;
  const Project& p = s.project;
  // 1. The flanges' share of the mean flange.
  c.MfyRd = Div(Div((static_cast<double>(c.h) - c.tf) * c.tf * c.b * p.fyk, p.gammaM0), 1e6);
  MomentsOfModuli(s);
  c.FlangeLoadFactor = 1;
  // 3. and 4.
  c.classMyPos = ClassBoxY(s, 10);
  c.classMyNeg = ClassBoxY(s, -10);
  SelectBySign(s, false);
  BucklingValues(s);
  WebShearCapacity(s, 2, true);
}

}  // namespace vn
