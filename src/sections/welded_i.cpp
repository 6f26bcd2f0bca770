// Welded I girders with typed dimensions. Both families build their properties from a table of
// three rectangles (upper flange, web, lower flange). The double symmetric I (21) then goes the way
// of the rolled I; the I with unequal flanges (22) is classified and reduced once with the upper
// flange in compression and once with the lower one, and hands a pair of values to the controls.
#include "sections/welded_i.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>
#include <string>

#include "core/format.h"
#include "core/state.h"
#include "sections/rolled_i.h"

namespace vn {

namespace {

bool On(Boolean flag) { return flag != 0; }

// The more slender of the two flanges, c/tf as a single.
Single FlangeSlenderness(const Section& c) {
  const Single s1 = ToSingle(Div(c.c1, c.tf1));
  const Single s2 = ToSingle(Div(c.c2, c.tf2));
  return std::max(s1, s2);
}

void Point(Section& c, int i, double x, double y) {
  c.Outline[static_cast<size_t>(i)].x = ToSingle(x);
  c.Outline[static_cast<size_t>(i)].y = ToSingle(y);
}

std::string Dim(const State& s, Single v) { return SingleText(v, s.decimalComma); }

}  // namespace

// ---------------------------------------------------------------------------------------------
// The rectangle sums and the plate rules shared with the HSQ, box and plate families

PlateSums PlateTable(Section& c, std::span<const Plate> plates) {
  PlateSums sum;
  double Ix = 0;
  for (const Plate& p : plates) {
    const double longSide = std::max(p.w, p.ht), shortSide = std::min(p.w, p.ht);
    Ix += longSide * shortSide * shortSide * shortSide / 3;
  }
  c.Ix = ToSingle(Ix);
  for (const Plate& p : plates) {
    const double area = p.w * p.ht;
    const double yc = p.y0 + p.w / 2, zc = p.z0 + p.ht / 2;
    sum.A += area;
    sum.Ay += area * yc;
    sum.Az += area * zc;
    sum.Ay2 += area * yc * yc;
    sum.Az2 += area * zc * zc;
    sum.IownH += p.w * p.ht * p.ht * p.ht / 12;
    sum.IownV += p.ht * p.w * p.w * p.w / 12;
  }
  c.eyc = ToSingle(Div(sum.Ay, sum.A));
  c.ez = ToSingle(Div(sum.Az, sum.A));
  c.Iy = ToSingle(sum.IownH + sum.Az2 - sum.A * static_cast<double>(c.ez) * c.ez);
  c.Iz = ToSingle(sum.IownV + sum.Ay2 - sum.A * static_cast<double>(c.eyc) * c.eyc);
  c.IzDefl = c.Iz;
  return sum;
}

namespace {

double AreaBelow(std::span<const Plate> plates, double z) {
  double below = 0;
  for (const Plate& pl : plates) {
    if (pl.z0 <= z && z <= pl.z0 + pl.ht)
      below += (z - pl.z0) * pl.w;
    else if (pl.z0 + pl.ht < z)
      below += pl.w * pl.ht;
  }
  return below;
}

}  // namespace

Single SteppedPlasticAxis(std::span<const Plate> plates, double A, double h) {
  // The axis climbs from 2 mm in steps of 0.1 mm, each added to the 32-bit value, and stops at the
  // first step with half the area below it. Within one binary order [2^(e-1), 2^e) every step adds
  // the same amount (0.1 rounded to that order's spacing), so the first such step there is found by
  // bisection, the area below growing with the axis; the step that crosses into the next order is
  // taken on its own. The result is the stepped one, also for a girder metres deep, where stepping
  // one at a time takes millions of steps.
  const double half = A / 2.0;
  const double rounds = h / 0.1 + 100;  // the axis reaches h well within this
  Single zpl = 2;
  double n = 0;  // steps taken; step n + 1 is taken only while n <= rounds
  for (;;) {
    if (n > rounds) Fault("overflow");
    // Beyond some 2 km a step of 0.1 mm is lost in the 32-bit axis: a girder of that depth ends
    // in the calculation error instead of stepping in place.
    const Single next = ToSingle(zpl + 0.1);
    if (next == zpl) Fault("overflow");
    const double z0 = zpl, delta = static_cast<double>(next) - z0;
    int e = 0;
    std::frexp(z0, &e);
    const double top = std::ldexp(1.0, e);
    // Steps 1..k from z0 that stay below the top of the order, all of the same delta.
    double k = std::ceil((top - z0) / delta) - 1;
    while (k >= 1 && z0 + k * delta >= top) --k;
    if (k < 1) {
      zpl = next;
      if (AreaBelow(plates, zpl) >= half) break;
      ++n;
      continue;
    }
    if (AreaBelow(plates, z0 + k * delta) >= half) {
      double lo = 1, hi = k;
      while (lo < hi) {
        const double mid = std::floor((lo + hi) / 2);
        if (AreaBelow(plates, z0 + mid * delta) >= half)
          hi = mid;
        else
          lo = mid + 1;
      }
      if (n + lo - 1 > rounds) Fault("overflow");
      zpl = ToSingle(z0 + lo * delta);
      break;
    }
    if (n + k - 1 > rounds) Fault("overflow");
    zpl = ToSingle(z0 + k * delta);
    n += k;
  }
  return zpl;
}

double PlasticModulusAbout(std::span<const Plate> plates, double zpl) {
  double Wply = 0;
  for (const Plate& pl : plates) {
    const double area = pl.w * pl.ht, mid = (pl.z0 + pl.z0 + pl.ht) / 2;
    if (pl.z0 <= zpl && zpl <= pl.z0 + pl.ht) {
      const double lower = zpl - pl.z0, upper = pl.z0 + pl.ht - zpl;
      Wply += lower * lower * pl.w / 2 + upper * upper * pl.w / 2;
    } else if (pl.z0 > zpl) {
      Wply += (mid - zpl) * area;
    } else {
      Wply += (zpl - mid) * area;
    }
  }
  return Wply;
}

Single NominalWeld(Single tw) {
  const Single r = ToSingle(0.4 * tw);
  return r < 4 ? Single{4} : r;
}

void SelectForSign(const State& s, double cls, Single Wel, double Weff, double MeffRd, Single& Wy,
                   Single& MyRd) {
  const Section& c = s.section;
  if (cls <= 2 && s.project.elasticClass12 == 0) {
    Wy = c.Wply;
    MyRd = ToSingle(c.MplyRd);
  } else if (cls == 4) {
    Wy = ToSingle(Weff);
    MyRd = ToSingle(MeffRd);
  } else {
    Wy = Wel;
    MyRd = ToSingle(c.MelyRd);
  }
}

double PlateClass(Single slender, double eps, double k1, double k2, double k3, bool strict) {
  auto within = [&](double k) {
    const Single limit = ToSingle(k * eps);
    return strict ? slender < limit : slender <= limit;
  };
  if (within(k1)) return 1;
  if (within(k2)) return 2;
  if (within(k3)) return 3;
  return 4;
}

double WebClassInBending(Single dtw, double alfa, double psi, double eps) {
  if (alfa > 0.5) {
    if (dtw <= Div(396 * eps, 13 * alfa - 1)) return 1;
    if (dtw <= Div(456 * eps, 13 * alfa - 1)) return 2;
  } else {
    if (alfa < 0) return 1;
    if (dtw <= Div(36 * eps, alfa)) return 1;
    if (dtw <= Div(41.5 * eps, alfa)) return 2;
  }
  if (psi > -1) return dtw <= Div(42 * eps, 0.67 + 0.33 * psi) ? 3 : 4;
  return dtw <= 62 * eps * (1 - psi) * Sqrt(-psi) ? 3 : 4;
}

double OutstandRho(double c, double t, double eps, double ksigma, Boolean noFlangeBuckling) {
  const Single lamdaP = ToSingle(Div(Div(c, t), 28.4 * eps * Sqrt(ksigma)));
  double rho = 1;
  if (lamdaP > 0.748) rho = Div(lamdaP - 0.188, static_cast<double>(lamdaP) * lamdaP);
  if (On(noFlangeBuckling)) rho = 1;
  return rho;
}

double InternalRho(double c, double t, double eps, Boolean noFlangeBuckling) {
  const Single lamdaP = ToSingle(Div(Div(c, t), 28.4 * eps * Sqrt(4)));
  double rho = 1;
  if (lamdaP > 0.673) rho = Div(lamdaP - 0.22, static_cast<double>(lamdaP) * lamdaP);
  if (On(noFlangeBuckling)) rho = 1;
  return rho;
}

double EffectivePass(const State& s, const EffectivePassShape& f, Single& centroidEff) {
  const Section& c = s.section;
  const Project& p = s.project;
  const double eps = p.epsilon;
  const double edge = f.edge, cf = f.cf, tf = f.tf, rho = f.rho;
  const double tw = f.webs * c.tw;  // the webs side by side
  EffWork w;
  w.rhoFlange = rho;
  const double lost = (1 - rho) * cf;  // each strip lost at the plate's edges
  w.AeffW = c.A - f.strips * lost * tf;
  w.centroid = Div(edge * c.A - f.strips * lost * tf * tf / 2, w.AeffW);
  w.bc = w.centroid - tf - c.r;
  if (w.bc < 0) w.bc = 1;
  if (f.webReduced) {
    w.psi = Div(-(c.d - w.bc), w.bc);
    w.ksigma = KSigma(w.psi);
    w.lamdaP = ToSingle(Div(Div(c.d, c.tw), 28.4 * eps * Sqrt(w.ksigma)));
    if (w.lamdaP <= 0.5 + Sqrt(0.085 - 0.055 * w.psi))
      w.rhoWeb = 1;
    else
      w.rhoWeb = ToSingle(Div(w.lamdaP - 0.055 * (3 + w.psi), static_cast<double>(w.lamdaP) * w.lamdaP));
    if (w.rhoWeb > 1) w.rhoWeb = 1;
    if (On(p.noWebBuckling)) w.rhoWeb = 1;
  } else {
    w.rhoWeb = 1;  // the web lies in tension down to the neutral axis
  }

  const double lostDepth = (1 - w.rhoWeb) * w.bc;
  const double t = (1 - w.rhoWeb) * tw * w.bc;
  const double pStrip = w.centroid - 0.6 * w.rhoWeb * w.bc - lostDepth / 2;
  w.AeffW = w.AeffW - t;
  w.centroidEff = ToSingle(Div(edge * c.A - t * pStrip - f.strips * lost * tf * tf / 2, w.AeffW));
  centroidEff = w.centroidEff;
  const double ce = w.centroidEff;
  return edge * edge * c.A + c.Iy - tw * lostDepth * lostDepth * lostDepth / 12 - t * pStrip * pStrip -
         f.strips * lost * tf * tf * tf / 12 - f.strips * lost * tf * (tf / 2) * (tf / 2) - w.AeffW * ce * ce;
}

// ---------------------------------------------------------------------------------------------
// Double symmetric welded I (21)

void WeldedIDoubleProperties(State& s) {
  Section& c = s.section;
  const Project& p = s.project;
  const WeldedIInput& in = p.p21;
  c.h = in.isth;
  c.b = in.istb1;
  c.tw = in.isttw;
  c.tf = in.isttf;
  const double h = c.h, b = c.b, tw = c.tw, tf = c.tf;
  const std::array<Plate, 3> plates = {
      {{b, tf, 0, h - tf}, {tw, h - 2 * tf, (b - tw) / 2, tf}, {b, tf, 0, 0}}};
  const PlateSums sum = PlateTable(c, plates);

  c.r = NominalWeld(c.tw);
  const double r = c.r;
  c.d = ToSingle(h - 2 * (r + tf));
  c.c = ToSingle((b - tw - 2 * r) / 2);
  c.hw = ToSingle(h - 2 * tf);
  c.A = ToSingle(sum.A);
  c.g = ToSingle(static_cast<double>(p.rho) * c.A * 1e-6);
  c.S = ToSingle((4 * tf + 2 * b + 2 * (b - tw) + 2 * (h - 2 * tf)) / 1000);
  c.Wely = ToSingle(Div(c.Iy, h - c.ez));
  c.Welz = ToSingle(Div(c.Iz, b - c.eyc));
  c.Iw = ToSingle(b * b * b * tf / 24 * (h - tf) * (h - tf));
  const double hw = c.hw;
  c.Wply = ToSingle((h - tf) * tf * b + hw * hw * tw / 4);
  c.Wplz = ToSingle((b / 2) * (b / 2) * 4 * tf / 2 + (tw / 2) * (tw / 2) * 2 * hw / 2);
  c.tmax = c.tw > c.tf ? c.tw : c.tf;

  SetSectionName(s, 21, "I " + Dim(s, c.h) + "x" + Dim(s, c.b) + "x" + Dim(s, c.tw) + "x" + Dim(s, c.tf));
  // The weld is drawn as the fillet of a rolled section.
  IOutline(s, r);
}

// ---------------------------------------------------------------------------------------------
// Single symmetric welded I (22)

void SingleSymProperties(State& s) {
  Section& c = s.section;
  const Project& p = s.project;
  const WeldedISingleSymInput& in = p.p22;
  c.b1 = in.istb1;
  c.b2 = in.istb2;
  c.tf1 = in.isttf1;
  c.tf2 = in.isttf2;
  const double h = in.isth, b1 = c.b1, b2 = c.b2, tf1 = c.tf1, tf2 = c.tf2, tw = in.isttw;
  const std::array<Plate, 3> plates = {
      {{b1, tf1, (b2 - b1) / 2, h - tf1}, {tw, h - tf1 - tf2, (b2 - tw) / 2, tf2}, {b2, tf2, 0, 0}}};
  const PlateSums sum = PlateTable(c, plates);

  // 1. The elastic moduli of the upper and the lower fibre; the smaller governs, the upper at a tie.
  c.h = in.isth;
  const double ezb = c.ez;
  c.Wyt = ToSingle(Div(c.Iy, h - ezb));
  c.Wyb = ToSingle(Div(c.Iy, ezb));
  c.Wely = c.Wyt <= c.Wyb ? c.Wyt : c.Wyb;

  // 2. Mean flange, nominal weld.
  c.tw = in.isttw;
  c.b = ToSingle((b1 + b2) / 2);
  c.tf = ToSingle((tf1 + tf2) / 2);
  c.r = NominalWeld(c.tw);
  const double r = c.r;

  // 3.
  c.hw = ToSingle(h - tf1 - tf2);
  c.d = ToSingle(c.hw - 2 * r);
  c.c1 = (b1 - tw - 2 * r) / 2;
  c.c2 = (b2 - tw - 2 * r) / 2;
  c.A = ToSingle(sum.A);
  c.g = ToSingle(static_cast<double>(p.rho) * c.A * 1e-6);
  c.S = ToSingle((2 * (b2 + b1 + h) - 2 * tw) / 1000);

  // 4. Warping of two unequal flanges.
  const double Iz1 = b1 * b1 * b1 * tf1 / 12, Iz2 = b2 * b2 * b2 * tf2 / 12;
  const double hs = h - tf1 / 2 - tf2 / 2;  // distance between the flanges' mid-planes
  c.Iw = ToSingle(Div(Iz1 * Iz2, Iz1 + Iz2) * hs * hs);

  // 5. and 6.
  c.Welz = ToSingle(Div(c.Iz, std::max(b1, b2) / 2));
  const double hw = c.hw;
  c.Wplz = ToSingle(tw * tw * hw / 4 + b1 * b1 * tf1 / 4 + b2 * b2 * tf2 / 4);

  // 7. The plastic neutral axis, stepped up by 0.1 mm from 2 mm until half the area lies below.
  // The step decides the last digits of Wply and of alfa in the class; there is no interpolation.
  c.zpl = SteppedPlasticAxis(plates, c.A, h);

  // 8. Plastic modulus about the stepped axis.
  c.Wply = ToSingle(PlasticModulusAbout(plates, c.zpl));

  // 9.
  c.tmax = std::max({c.tf1, c.tf2, c.tw});

  // 10. and 11. Shear centre and the asymmetry of the flanges for the critical moment.
  c.betaf = ToSingle(Div(Iz1, Iz1 + Iz2));
  c.betaf2 = ToSingle(Div(Iz2, Iz1 + Iz2));
  c.zs = c.betaf * hs + tf2 / 2 - ezb;
  c.psif = Div(Iz1 - Iz2, Iz1 + Iz2);
  c.psif2 = ToSingle(-c.psif);
  c.zj = c.betaf > 0.5 ? (2 * static_cast<double>(c.betaf) - 1) * 0.4 * 0.5 * hs : 0;
  c.zj2 = ToSingle(c.betaf2 > 0.5 ? (2 * static_cast<double>(c.betaf2) - 1) * 0.4 * 0.5 * hs : 0);

  // 12. Name and figure: three rectangles, each by its lower left and upper right corner, placed
  // in the box of the wider flange.
  SetSectionName(s, 22,
                 "I " + Dim(s, c.h) + "x" + Dim(s, c.b1) + "/" + Dim(s, c.b2) + "x" + Dim(s, c.tw) + "x" +
                     Dim(s, c.tf1) + "/" + Dim(s, c.tf2));
  const double bmax = std::max(b1, b2), shift = (bmax - b2) / 2;
  for (int i = 0; i < 3; ++i) {
    const Plate& pl = plates[static_cast<size_t>(i)];
    Point(c, 2 * i + 1, pl.y0 + shift, pl.z0);
    Point(c, 2 * i + 2, pl.y0 + shift + pl.w, pl.z0 + pl.ht);
  }
  c.OutlineRects = 3;
  c.OutlineCount = 6;
  c.OutlineInnerLast = 1;
  c.FigHeight = c.h;
  c.FigWidth = ToSingle(bmax);
  c.FigCentroidY = ToSingle(c.eyc + shift);
  c.FigCentroidZ = ToSingle(h - ezb);
}

double ClassSingleSymY(State& s, double N, double M) {
  Section& c = s.section;
  const double eps = s.project.epsilon;
  const Single dtw = ToSingle(Div(c.d, c.tw));
  const double h = c.h, hw = c.hw, ezb = c.ez, zpl = c.zpl, tf1 = c.tf1, tf2 = c.tf2, r = c.r;

  if (N < 0 && M == 0) {
    c.classWeb = 1;
    c.classFlange = 1;
    return 1;
  }
  if (N > 0 && M == 0) {
    c.classWeb = ToSingle(PlateClass(dtw, eps, 33, 38, 42, true));
    c.classFlange = PlateClass(FlangeSlenderness(c), eps, 9, 10, 14, true);
  } else if (M > 0) {
    // The upper flange in compression.
    const double alfa = Div(h - zpl - tf1, hw);
    const double psi = Div(-(ezb - tf2 - r), h - ezb - tf1 - r);
    c.classWeb = ToSingle(WebClassInBending(dtw, alfa, psi, eps));
    c.classFlange = PlateClass(ToSingle(Div(c.c1, c.tf1)), eps, 9, 10, 14, true);
  } else if (M < 0) {
    // The lower flange in compression; its tests include the limit, unlike the upper flange's.
    const double alfa = Div(zpl - tf2, hw);
    const double psi = Div(-(h - ezb - tf1 - r), ezb - tf2 - r);
    c.classWeb = ToSingle(WebClassInBending(dtw, alfa, psi, eps));
    c.classFlange = PlateClass(ToSingle(Div(c.c2, c.tf2)), eps, 9, 10, 14, false);
  }
  // N = 0 and M = 0 leaves the classes of the last classification.
  return std::max<double>(c.classWeb, c.classFlange);
}

double ClassSingleSymZ(State& s, double N, double M) {
  const Section& c = s.section;
  // The more slender flange is the one tested; its outstand stands in for c where the tension
  // share of the flange is found. The stress is taken at the edge of the upper flange.
  const bool upper = ToSingle(Div(c.c1, c.tf1)) >= ToSingle(Div(c.c2, c.tf2));
  return ClassAboutZOf(s, N, M, c.b1 / 2.0, upper ? c.c1 : c.c2, upper ? c.tf1 : c.tf2);
}

void SingleSymEffective(State& s) {
  Section& c = s.section;
  const Project& p = s.project;
  const double eps = p.epsilon;
  const double h = c.h, ezb = c.ez, tf1 = c.tf1, tf2 = c.tf2;

  // 1. Under compression: each flange's outstand and the web.
  const double rho1 = OutstandRho(c.c1, tf1, eps, 0.43, p.noFlangeBuckling);
  const double rho2 = OutstandRho(c.c2, tf2, eps, 0.43, p.noFlangeBuckling);
  const Single lamdaW = ToSingle(Div(Div(c.d, c.tw), 28.4 * eps * Sqrt(4)));
  Single rhoW = 1;
  if (lamdaW > 0.673) rhoW = ToSingle(Div(lamdaW - 0.22, static_cast<double>(lamdaW) * lamdaW));
  if (On(p.noWebBuckling)) rhoW = 1;

  // 2.
  c.Aeff = ToSingle(c.A - 2 * (c.c1 * (1 - rho1) * tf1 + c.c2 * (1 - rho2) * tf2));
  c.Aeff = ToSingle(c.Aeff - (1 - rhoW) * static_cast<double>(c.d) * c.tw);

  // 3. to 5. The upper flange in compression: the centroid from the upper edge.
  Single ce = 0;
  double I = EffectivePass(s, {h - ezb, c.c1, tf1, rho1}, ce);
  c.WeffyTop = ToSingle(Div(I, ce));
  c.WeffyBot = ToSingle(Div(I, h - ce));

  // 6. The lower flange in compression: the centroid from the lower edge.
  I = EffectivePass(s, {ezb, c.c2, tf2, rho2}, ce);
  c.WeffyBot2 = ToSingle(Div(I, ce));
  c.WeffyTop2 = ToSingle(Div(I, h - ce));

  // 7. About z: the flanges' tips are lost, the web is left out.
  const double rz1 = OutstandRho(c.c1, tf1, eps, 0.57, p.noFlangeBuckling);
  const double rz2 = OutstandRho(c.c2, tf2, eps, 0.57, p.noFlangeBuckling);
  const double be1 = c.b1 - (1 - rz1) * c.c1, be2 = c.b2 - (1 - rz2) * c.c2;
  c.Weffz = ToSingle(Div(tf1 * be1 * be1 * be1 / 12 + be2 * be2 * be2 * tf2 / 12, std::max(be1, be2) / 2));
}

void SingleSymClasses(State& s) {
  Section& c = s.section;
  const Project& p = s.project;
  const double fyk = p.fyk, g0 = p.gammaM0, g1 = p.gammaM1, eps = p.epsilon;
  const double hw = c.hw, tw = c.tw;
  auto moment = [&](double W) { return Div(Div(W * fyk, g0), 1e6); };

  // 1. The flanges' share is the elastic moment less the web's elastic part.
  c.MelyRd = moment(c.Wely);
  c.MplyRd = moment(c.Wply);
  c.MfyRd = c.MelyRd - Div(fyk, g0) * (hw * hw * tw / 6) / 1e6;

  // 2.
  c.Weffy1 = std::min<double>(c.WeffyTop, c.WeffyBot);
  c.MeffyRd1 = moment(c.Weffy1);
  c.Weffy2 = std::min<double>(c.WeffyTop2, c.WeffyBot2);
  c.MeffyRd2 = moment(c.Weffy2);
  c.MplzRd = ToSingle(moment(c.Wplz));
  c.MelzRd = ToSingle(moment(c.Welz));
  c.MeffzRd = ToSingle(moment(c.Weffz));

  // 3. Only the signs of the forces matter.
  c.classN = ClassSingleSymY(s, 10, 0);
  c.classMyPos = ClassSingleSymY(s, 0, 10);
  c.classMyNeg = ClassSingleSymY(s, 0, -10);
  c.classMz = ClassSingleSymZ(s, 0, 10);

  // 4.
  c.NtRd = Div(Div(static_cast<double>(c.A) * fyk, g0), 1000);
  const double areaN = c.classN == 4 ? c.Aeff : c.A;
  c.NcRd = Div(Div(areaN * fyk, g0), 1000);
  c.NRdBuck = Div(c.NcRd * g0, g1);

  // 5. The resistance of each sign; the elastic one rests on the smaller modulus in both.
  SelectForSign(s, c.classMyPos, c.Wyt, c.Weffy1, c.MeffyRd1, c.WyPos, c.MyRdPos);
  SelectForSign(s, c.classMyNeg, c.Wyb, c.Weffy2, c.MeffyRd2, c.WyNeg, c.MyRdNeg);

  // 6.
  c.MyRdBuckNeg = Div(static_cast<double>(c.MyRdNeg) * g0, g1);
  c.MyRdBuckPos = Div(static_cast<double>(c.MyRdPos) * g0, g1);
  c.MyRdBuck = std::min(c.MyRdBuckPos, c.MyRdBuckNeg);

  // 7. About z as for the rolled I.
  if (c.classMz <= 2 && !On(p.elasticClass12)) {
    c.Wz = c.Wplz;
    c.MzRdClass = c.MplzRd;
  } else if (c.classMz == 4) {
    c.Wz = c.Weffz;
    c.MzRdClass = c.MeffzRd;
  } else {
    c.Wz = c.Welz;
    c.MzRdClass = c.MelzRd;
  }
  c.MzRdBuck = Div(static_cast<double>(c.MzRdClass) * g0, g1);

  // 8. Shear: a stocky web to 72 epsilon / eta takes eta hw tw, a slender one the buckling factor.
  const double neta = p.neta;
  const double sqrt3 = Sqrt(3);
  const Single webSlenderness = ToSingle(Div(hw, tw));
  const Single stockyLimit = ToSingle(Div(72 * eps, neta));
  if (webSlenderness < stockyLimit) {
    c.Avz = neta * hw * tw;
    c.VzRd = Div(Div(c.Avz * Div(fyk, sqrt3), g0), 1000);
  } else {
    const double lamdaW = Div(hw, 86.4 * eps * tw);
    const double chiW = lamdaW < Div(0.83, neta) ? neta : Div(0.83, lamdaW);
    c.Avz = tw * hw;
    c.VzRd = Div(Div(Div(c.Avz * chiW * fyk, sqrt3), g1), 1000);
  }
  c.VplRd = ToSingle(Div(Div(c.Avz * Div(fyk, sqrt3), g0), 1000));
  c.Avy = static_cast<double>(c.tf2) * c.b2 + static_cast<double>(c.tf1) * c.b1;
  c.VyRd = Div(Div(c.Avy * Div(fyk, sqrt3), g0), 1000);

  // The values the stability controls read for this family.
  Checks& k = s.checks;
  k.zs = c.zs;
  k.zjTop = c.zj;
  k.zjBot = c.zj2;
  k.psifTop = c.psif;
  k.psifBot = c.psif2;
  k.ezb = c.ez;
  k.MyRdBuckPos = c.MyRdBuckPos;
  k.MyRdBuckNeg = c.MyRdBuckNeg;
}

}  // namespace vn
