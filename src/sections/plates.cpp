// Plate with stiffener. The plate lies on top, the stiffener below it with its web centred under
// the plate; an angle or a bulb turns its flange to one side, a T girder has it both ways. The
// rectangle table of the welded I gives the area and Iy; the plastic axis is found in closed form
// from the plate's side, in the plate or in the web as for a T. The plate is an outstand flange on
// each side of the web (c1 = (b1 - tw) / 2); the weld is left out of the stiffener (r = 0).
#include "sections/plates.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>
#include <string>

#include "core/format.h"
#include "core/state.h"
#include "design/design_basis.h"
#include "sections/hsq.h"
#include "sections/rolled_i.h"
#include "sections/welded_i.h"

namespace vn {

namespace {

std::string Dim(const State& s, double v) { return SingleText(ToSingle(v), s.decimalComma); }

// The stiffener below the plate: its height hs (the plate not included), web tw, and its flange
// b2 x tf2 (0 for a flat bar); `oneSided` for the angle and the bulb, whose flange runs to one side
// of the web.
struct Stiffener {
  double hs, tw, b2 = 0, tf2 = 0;
  bool oneSided = false;
};

// The rectangles, z from the lower edge: plate, web, and the flange if there is one.
int Rectangles(double b1, double tf1, const Stiffener& st, std::array<Plate, 3>& r) {
  const double yWeb = (b1 - st.tw) / 2;
  r[0] = {b1, tf1, 0, st.hs};
  if (st.b2 <= 0) {
    r[1] = {st.tw, st.hs, yWeb, 0};
    return 2;
  }
  r[1] = {st.tw, st.hs - st.tf2, yWeb, st.tf2};
  r[2] = {st.b2, st.tf2, st.oneSided ? yWeb : (b1 - st.b2) / 2, 0};
  return 3;
}

// The record's dimensions, the rectangle sums and the moduli of both fibres; the centroid is then
// held from the top. Returns the rectangles used.
std::span<const Plate> PlateSection(State& s, double b1, double tf1, const Stiffener& st,
                                    std::array<Plate, 3>& rects) {
  Section& c = s.section;
  const int n = Rectangles(b1, tf1, st, rects);
  const std::span<const Plate> plates(rects.data(), static_cast<size_t>(n));
  const PlateSums sum = PlateTable(c, plates);
  c.b1 = ToSingle(b1);
  c.tf1 = ToSingle(tf1);
  c.tw = ToSingle(st.tw);
  c.b2 = ToSingle(st.b2);
  c.tf2 = ToSingle(st.tf2);
  c.b = c.b1;  // the plate is the flange
  c.tf = c.tf1;
  c.h = ToSingle(st.hs + tf1);
  c.A = ToSingle(sum.A);
  c.r = 0;  // a weld of 0.3 tw, at least 3.5, is no part of these sections
  c.hw = ToSingle(static_cast<double>(c.h) - c.tf1 - c.tf2);
  c.d = c.hw;
  c.c1 = (b1 - st.tw) / 2;
  c.c2 = st.b2 <= 0 ? 0 : (st.oneSided ? st.b2 - st.tw : (st.b2 - st.tw) / 2);
  return plates;
}

// The centroid from the top and the moduli of the plate's face and of the stiffener's edge.
void FibreModuli(Section& c) {
  c.ez = ToSingle(static_cast<double>(c.h) - c.ez);
  c.Wyt = ToSingle(Div(c.Iy, c.ez));
  c.Wyb = ToSingle(Div(c.Iy, static_cast<double>(c.h) - c.ez));
  c.Wely = c.Wyt <= c.Wyb ? c.Wyt : c.Wyb;
}

// The plastic axis from the top and the plastic modulus, as for a T with the stiffener's flange
// added: the axis in the plate, in the web, or, for a heavy flange, in the flange.
void PlasticAxis(State& s, std::span<const Plate> plates, double extraArea = 0, double extraLever = 0) {
  Section& c = s.section;
  const double A = c.A, b1 = c.b1, tf1 = c.tf1, hw = c.hw, tw = c.tw, b2 = c.b2, tf2 = c.tf2;
  const double half = A / 2;
  double zpl, Wply;
  if (half < tf1 * b1) {
    zpl = half / b1;
    Wply = (zpl * zpl + (tf1 - zpl) * (tf1 - zpl)) * b1 / 2 + (hw / 2 + tf1 - zpl) * hw * tw;
    if (b2 > 0) Wply += (tf1 + hw + tf2 / 2 - zpl) * b2 * tf2;
  } else if (half - tf1 * b1 <= hw * tw || b2 <= 0) {
    zpl = Div(half - tf1 * b1, tw) + tf1;
    Wply = (zpl - tf1) * (zpl - tf1) * tw / 2 + (zpl - tf1 / 2) * tf1 * b1 +
           (hw + tf1 - zpl) * (hw + tf1 - zpl) * tw / 2;
    if (b2 > 0) Wply += (tf1 + hw + tf2 / 2 - zpl) * b2 * tf2;
  } else {
    zpl = Div(half - tf1 * b1 - hw * tw, b2) + tf1 + hw;
    Wply = PlasticModulusAbout(plates, static_cast<double>(c.h) - zpl);
  }
  c.zpl = ToSingle(zpl);
  if (extraArea > 0) Wply += extraArea * (extraLever - zpl);
  c.Wply = ToSingle(Wply);
  c.tmax = std::max({c.tf1, c.tf2, c.tw});
}

// The figure: the rectangles by their corners, the axes through the centroid.
void PlateFigure(State& s, std::span<const Plate> plates) {
  Section& c = s.section;
  int i = 0;
  double width = 0;
  for (const Plate& pl : plates) {
    SetOutlinePoint(c, 2 * i + 1, pl.y0, pl.z0);
    SetOutlinePoint(c, 2 * i + 2, pl.y0 + pl.w, pl.z0 + pl.ht);
    width = std::max(width, pl.y0 + pl.w);
    ++i;
  }
  c.OutlineRects = static_cast<Integer>(i);
  c.OutlineCount = static_cast<Integer>(2 * i);
  c.OutlineInnerLast = 1;
  c.FigHeight = c.h;
  c.FigWidth = ToSingle(width);
  c.FigCentroidY = ToSingle(c.eyc);
  c.FigCentroidZ = c.ez;
}

// What the lateral torsional control of the stiffener reads: its web height and flange width.
void TrippingValues(State& s) {
  s.checks.hpl = s.section.hw;
  s.checks.bpl = s.section.b2;
}

std::string PlateName(const State& s, double b1, double tf1) {
  return "Plate " + Dim(s, b1) + "x" + Dim(s, tf1);
}

// The plate compressed: its two outstands reduced, the web in tension down to the axis.
// `webReduced`: the compressed part of the stiffener's web reduced as an internal element
// (EN 1993-1-5 4.4, Table 4.1), as the strict rules take it for a stiffener with a flange.
void PlateCompressedPass(State& s, double rho1, bool webReduced = false) {
  Section& c = s.section;
  Single ce = 0;
  const double I = EffectivePass(s, {c.ez, c.c1, c.tf1, rho1, 2, 1, webReduced}, ce);
  c.WeffyTop = ToSingle(Div(I, ce));
  c.WeffyBot = ToSingle(Div(I, static_cast<double>(c.h) - ce));
}

// Class 1 to 3 of the plate's outstands, "<" for 1 and 2 and "<=" for 3.
double PlateOutstandClass(Single ct, double eps) {
  if (ct < ToSingle(9 * eps)) return 1;
  if (ct < ToSingle(10 * eps)) return 2;
  if (ct <= ToSingle(14 * eps)) return 3;
  return 4;
}

// The classes, moment resistances and shear of both sign of the plate families.
void PlatedClasses(State& s, double (*classY)(State&, double), bool stockyEta) {
  Section& c = s.section;
  const Project& p = s.project;
  MomentsOfModuli(s);
  const double hw = c.hw, tw = c.tw;
  c.MfyRd = c.MelyRd - Div(p.fyk, p.gammaM0) * (hw * hw * tw / 6) / 1e6;
  c.FlangeLoadFactor = 1;
  c.classMyPos = classY(s, 10);
  c.classMyNeg = classY(s, -10);
  SelectBySign(s, false);
  BucklingValues(s);
  WebShearCapacity(s, 1, stockyEta);
  TrippingValues(s);
}

}  // namespace

// ---------------------------------------------------------------------------------------------
// Properties

void PlateFlatProperties(State& s) {
  Section& c = s.section;
  const PlateFlatInput& in = s.project.p51;
  const Stiffener st{in.isth, in.isttw};
  std::array<Plate, 3> rects{};
  const auto plates = PlateSection(s, in.istb1, in.isttf1, st, rects);
  FibreModuli(c);
  c.g = ToSingle(static_cast<double>(s.project.rho) * c.A * 1e-6);
  c.S = ToSingle(2 * (static_cast<double>(c.hw) + c.b1) / 1000);
  PlasticAxis(s, plates);
  SetSectionName(s, 51, PlateName(s, c.b1, c.tf1) + " + Fb " + Dim(s, st.hs) + "x" + Dim(s, st.tw));
  PlateFigure(s, plates);
}

namespace {

// The plate with a welded stiffener of three plates: an L (53) or a T (56).
void WeldedStiffenerProperties(State& s, int type, const PlateWeldedInput& in, bool angle) {
  Section& c = s.section;
  const Stiffener st{in.isth, in.isttw, in.istb2, in.isttf2, angle};
  std::array<Plate, 3> rects{};
  const auto plates = PlateSection(s, in.istb1, in.isttf1, st, rects);
  FibreModuli(c);
  c.g = ToSingle(static_cast<double>(s.project.rho) * c.A * 1e-6);
  c.S = ToSingle((2 * (st.b2 + c.b1 + c.h) - 2 * st.tw) / 1000);
  PlasticAxis(s, plates);
  SetSectionName(s, type,
                 PlateName(s, c.b1, c.tf1) + (angle ? " + L " : " + T ") + Dim(s, st.hs) + "x" +
                     Dim(s, st.b2) + "x" + Dim(s, st.tw) + "x" + Dim(s, st.tf2));
  PlateFigure(s, plates);
}

}  // namespace

void PlateWeldedAngleProperties(State& s) { WeldedStiffenerProperties(s, 53, s.project.p53, true); }

void PlateTeeProperties(State& s) { WeldedStiffenerProperties(s, 56, s.project.p56, false); }

void PlateAngleProperties(State& s) {
  Section& c = s.section;
  const PlateBarInput& in = s.project.p52;
  const CatalogueId id = catL3;
  // l3.dat: h, b, t, second thickness, r, toe radius.
  const Single hs = Scaled(s, id, 1, 1), b2 = Scaled(s, id, 2, 1), tw = Scaled(s, id, 3, 1);
  const Single tf2 = Scaled(s, id, 4, 1), r2 = Scaled(s, id, 6, 1);
  const Stiffener st{hs, tw, b2, tf2, true};
  std::array<Plate, 3> rects{};
  const auto plates = PlateSection(s, in.istb1, in.istt1, st, rects);
  c.r2 = r2;

  // The fillet of the rolled angle: its area r2^2 (1 - pi/4) with its centroid 0.2234 r2 from the
  // corner of web and flange.
  const double rf = r2;
  const double Af = rf * rf * (1 - PiSingle / 4);
  const double zf = static_cast<double>(tf2) + 0.2234 * rf;  // from the lower edge
  const double A0 = c.A, ez0 = c.ez;
  const double A = A0 + Af;
  const double ez = Div(A0 * ez0 + Af * zf, A);
  c.Iy = ToSingle(c.Iy + A0 * (ez0 - ez) * (ez0 - ez) + Af * (zf - ez) * (zf - ez));
  c.A = ToSingle(A);
  c.ez = ToSingle(ez);
  FibreModuli(c);
  c.g = ToSingle(static_cast<double>(s.project.rho) * c.A * 1e-6);
  c.S = ToSingle((2 * (st.b2 + c.b1 + c.h) - 2 * st.tw) / 1000);
  // The fillet's lever in the plastic modulus is taken as h + tf1 - zpl - tf2 + 0.2234 r2.
  PlasticAxis(s, plates, Af, hs + static_cast<double>(c.tf1) - tf2 + 0.2234 * rf);
  SetSectionName(s, 52,
                 PlateName(s, c.b1, c.tf1) + " + L " + Dim(s, hs) + "x" + Dim(s, b2) + "x" + Dim(s, tw) +
                     "x" + Dim(s, tf2));
  PlateFigure(s, plates);
}

void PlateBulbProperties(State& s) {
  Section& c = s.section;
  const PlateBarInput& in = s.project.p54;
  const CatalogueId id = catHp;
  // hp.dat: bar height, web thickness, bulb width c, bulb radius r, A x 100.
  const Single hs = Scaled(s, id, 1, 1), tw = Scaled(s, id, 2, 1), cb = Scaled(s, id, 3, 1);
  const Single rb = Scaled(s, id, 4, 1), Abar = Scaled(s, id, 5, 100);
  // The bulb as the flange of an equivalent T.
  const double b2 = static_cast<double>(cb) + tw - 0.45 * rb;
  const double tf2 = Div(Abar - static_cast<double>(tw) * hs, b2 - tw);
  const Stiffener st{hs, tw, b2, tf2, true};
  std::array<Plate, 3> rects{};
  const auto plates = PlateSection(s, in.istb1, in.istt1, st, rects);
  c.r = 0;
  c.Aw = ToSingle((hs - tf2) * tw);
  c.g = ToSingle(static_cast<double>(s.project.rho) * c.A * 1e-6);
  // The girth of the bulb with its 30 degree shoulder.
  const double r = rb, cc = cb;
  const double P = tw + hs + cc - r + PiSingle * r + Div(cc - r, std::cos(PiSingle / 6)) + hs - r -
                   (cc - r) * std::tan(PiSingle / 6);
  c.S = ToSingle((2 * static_cast<double>(c.b1) + P - tw) / 1000);
  FibreModuli(c);
  PlasticAxis(s, plates);
  SetSectionName(s, 54, PlateName(s, c.b1, c.tf1) + " + BF " + Dim(s, hs) + "x" + Dim(s, tw));
  PlateFigure(s, plates);
}

// ---------------------------------------------------------------------------------------------
// Effective values, classes, resistances

void PlateEffective(State& s) {
  Section& c = s.section;
  const Project& p = s.project;
  const double eps = p.epsilon, h = c.h, ezb = c.ez, tw = c.tw;

  // 1. and 2. The plate's outstands.
  const double rho = OutstandRho(c.c1, c.tf1, eps, 0.43, p.noFlangeBuckling);
  PlateCompressedPass(s, rho);

  // 3. The flat bar's free edge compressed: the bar is an outstand under the stress gradient.
  double bc = h - ezb;
  if (bc < 0) bc = 1;
  const double psi = Div(-(c.hw - bc), bc);
  const double ksigma = 0.57 - 0.21 * psi + 0.07 * psi * psi;
  const Single lamdaP = ToSingle(Div(Div(c.d, tw), 28.4 * eps * Sqrt(ksigma)));
  double rhoW = 1;
  if (lamdaP > 0.748) rhoW = Div(lamdaP - 0.188, static_cast<double>(lamdaP) * lamdaP);
  if (p.noWebBuckling != 0) rhoW = 1;
  const double edge = h - ezb;
  const double lostDepth = (1 - rhoW) * bc;
  const double AeffW = c.A - (1 - rhoW) * tw * bc;
  const Single ce = ToSingle(Div(edge * c.A - tw * lostDepth * lostDepth / 2, AeffW));
  const double t = lostDepth * tw, pStrip = lostDepth / 2;
  const double I = edge * edge * c.A + c.Iy - tw * lostDepth * lostDepth * lostDepth / 12 -
                   t * pStrip * pStrip - AeffW * static_cast<double>(ce) * ce;
  c.WeffyBot2 = ToSingle(Div(I, ce));
  c.WeffyTop2 = ToSingle(Div(I, h - ce));
}

void StiffenedEffective(State& s) {
  Section& c = s.section;
  const Project& p = s.project;
  const double eps = p.epsilon, h = c.h, ezb = c.ez;
  const int type = p.ProfileType;

  const double rho = OutstandRho(c.c1, c.tf1, eps, 0.43, p.noFlangeBuckling);
  // The plate compressed: the program's own method takes the web as in tension down to the axis;
  // a deep stiffener has much of its web in compression above the axis, which the strict rules
  // reduce when it buckles.
  PlateCompressedPass(s, rho, StrictRules(s));

  // The stiffener's flange compressed: each outstand reduced, the web internal.
  const double rho2 = OutstandRho(c.c2, c.tf2, eps, 0.43, p.noFlangeBuckling);
  const double strips = type == 56 ? 2 : 1;
  Single ce = 0;
  const double I = EffectivePass(s, {h - ezb, c.c2, c.tf2, rho2, strips, 1, true}, ce);
  c.WeffyBot2 = ToSingle(Div(I, ce));
  c.WeffyTop2 = ToSingle(Div(I, h - ce));
}

double ClassPlateY(State& s, double M) {
  Section& c = s.section;
  const double eps = s.project.epsilon;
  const double h = c.h, ezb = c.ez, tf1 = c.tf1;
  const Single dtw = ToSingle(Div(c.d, c.tw));
  const double sigma1 = Div(M * 1e6, c.Iy) * (ezb - tf1);
  const double sigma2 = -Div(M * 1e6, c.Iy) * (h - ezb);
  const double psi = Div(sigma2, sigma1);
  const double alfa = Div(c.zpl - tf1, c.hw);
  if (M > 0) {
    c.classWeb = ToSingle(WebClassInBending(dtw, alfa, psi, eps));
    c.classFlange = PlateOutstandClass(ToSingle(Div(c.c1, tf1)), eps);
  } else if (StrictRules(s)) {
    // The flat bar's free edge compressed, by EN 1993-1-1 Table 5.2 (outstand, tip in compression):
    // alfa the compressed part of the bar from its tip in the plastic state (the whole bar while the
    // plastic axis lies in the plate), psi the stress at the root over that at the tip, and k-sigma
    // of EN 1993-1-5 Table 4.2 for the free edge most compressed. The program's own method takes
    // 10, 11 and 23 epsilon, the tensioned part for alfa and the inverse stress ratio, which puts a
    // slender bar in class 3.
    const double hw = c.hw;
    double alfaTip = Div(h - c.zpl, hw);
    if (alfaTip > 1) alfaTip = 1;
    const double edge = h - ezb;  // from the tip to the elastic axis
    const double psiTip = Div(-(hw - edge), edge);
    const double ksigma = 0.57 - 0.21 * psiTip + 0.07 * psiTip * psiTip;
    if (alfaTip <= 0)
      c.classWeb = 1;  // no part of the bar is compressed in the plastic state
    else if (dtw <= Div(9 * eps, alfaTip))
      c.classWeb = 1;
    else if (dtw <= Div(10 * eps, alfaTip))
      c.classWeb = 2;
    else if (dtw <= 21 * eps * Sqrt(ksigma))
      c.classWeb = 3;
    else
      c.classWeb = 4;
    c.classFlange = 1;
  } else {
    // The flat bar's free edge compressed: the web is an outstand.
    if (dtw <= Div(10 * eps, alfa))
      c.classWeb = 1;
    else if (dtw <= Div(11 * eps, alfa))
      c.classWeb = 2;
    else if (dtw <= 23 * eps * Sqrt(0.57 - 0.21 * psi + 0.07 * psi * psi))
      c.classWeb = 3;
    else
      c.classWeb = 4;
    c.classFlange = 1;
  }
  return std::max<double>(c.classWeb, c.classFlange);
}

double ClassStiffenedY(State& s, double M) {
  Section& c = s.section;
  const double eps = s.project.epsilon;
  const double h = c.h, ezb = c.ez, tf1 = c.tf1, tf2 = c.tf2, hw = c.hw, zpl = c.zpl;
  const Single dtw = ToSingle(Div(c.d, c.tw));
  if (M > 0) {
    // The plate compressed, as for the flat bar.
    const double sigma1 = Div(M * 1e6, c.Iy) * (ezb - tf1);
    const double sigma2 = -Div(M * 1e6, c.Iy) * (h - ezb);
    c.classWeb = ToSingle(WebClassInBending(dtw, Div(zpl - tf1, hw), Div(sigma2, sigma1), eps));
    c.classFlange = PlateOutstandClass(ToSingle(Div(c.c1, tf1)), eps);
  } else {
    // The stiffener's flange compressed; the web is held at both its edges.
    const double sigma1 = -Div(M * 1e6, c.Iy) * (h - ezb - tf2);
    const double sigma2 = Div(M * 1e6, c.Iy) * (ezb - tf1);
    c.classWeb = ToSingle(WebClassInBending(dtw, Div(h - zpl - tf2, hw), Div(sigma2, sigma1), eps));
    c.classFlange = PlateOutstandClass(ToSingle(Div(c.c2, tf2)), eps);
  }
  return std::max<double>(c.classWeb, c.classFlange);
}

void PlateClasses(State& s) { PlatedClasses(s, ClassPlateY, false); }

void StiffenedClasses(State& s) { PlatedClasses(s, ClassStiffenedY, true); }

}  // namespace vn
