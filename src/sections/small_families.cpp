// Flat bar, T section, circular tube and general section.
#include "sections/small_families.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "core/format.h"
#include "core/state.h"
#include "sections/dispatch.h"
#include "sections/rolled_i.h"

namespace vn {

namespace {

bool On(Boolean flag) { return flag != 0; }

// A dimension in the section's name, as the dialog shows it ("10", "11.5").
std::string Dim(const State& s, double v) { return SingleText(ToSingle(v), s.decimalComma); }

// W fyk / gammaM0 in kNm and A fyk / gammaM0 in kN.
double MomentOf(const State& s, double W) { return Div(Div(W * s.project.fyk, s.project.gammaM0), 1e6); }
double ForceOf(const State& s, double A) { return Div(Div(A * s.project.fyk, s.project.gammaM0), 1000); }

// The resistances of the member checks, with gammaM1.
void BucklingResistances(State& s) {
  Section& c = s.section;
  const double g0 = s.project.gammaM0, g1 = s.project.gammaM1;
  c.NRdBuck = Div(c.NcRd * g0, g1);
  c.MyRdBuck = Div(c.MyRdClass * g0, g1);
  c.MzRdBuck = Div(static_cast<double>(c.MzRdClass) * g0, g1);
}

// Class 1 to 4 of a T part by its slenderness; a slenderness on a limit keeps the lower class.
double TeeClass(Single slender, double eps) {
  if (slender <= 10 * eps) return 1;
  if (slender <= 11 * eps) return 2;
  if (slender <= 15 * eps) return 3;
  return 4;
}

// Reduction of an outstand under uniform compression, k-sigma 0.43.
double RhoOutstand(Single slender, double eps) {
  const Single lamdaP = ToSingle(Div(slender, 28.4 * eps * Sqrt(0.43)));
  if (lamdaP > 0.748) return Div(lamdaP - 0.188, static_cast<double>(lamdaP) * lamdaP);
  return 1;
}

// One rectangle of a section built from plates: width w, height t, lower left corner (y0, z0).
struct Rect {
  double w, t, y0, z0;
};

// The sums of the rectangle table.
struct RectSums {
  double A = 0, Ay = 0, Az = 0, Ay2 = 0, Az2 = 0, Ih = 0, Iv = 0, Ix = 0;
};

RectSums SumRects(std::initializer_list<Rect> rects) {
  RectSums r;
  for (const Rect& q : rects) {
    const double a = q.w * q.t;
    const double y = q.y0 + q.w / 2, z = q.z0 + q.t / 2;
    r.A += a;
    r.Ay += a * y;
    r.Az += a * z;
    r.Ay2 += a * y * y;
    r.Az2 += a * z * z;
    r.Ih += q.w * q.t * q.t * q.t / 12;
    r.Iv += q.t * q.w * q.w * q.w / 12;
    const double lng = std::max(q.w, q.t), shrt = std::min(q.w, q.t);
    r.Ix += lng * shrt * shrt * shrt / 3;
  }
  return r;
}

}  // namespace

// ---------------------------------------------------------------------------------------------
// Flat bar

void FlatProperties(State& s) {
  Section& c = s.section;
  const Project& p = s.project;
  c.h = p.p28.isth;
  c.tw = p.p28.isttw;
  c.hw = c.h;
  const double h = c.h, t = c.tw;
  c.Ix = ToSingle(t * t * t * h / 3);
  c.A = ToSingle(t * h);
  c.Aeff = c.A;
  c.g = ToSingle(static_cast<double>(p.rho) * c.A * 1e-6);
  // The surface of the welded I: b and tf are what the last section left in the record.
  const double b = c.b, tf = c.tf;
  c.S = ToSingle((4 * tf + 2 * b + 2 * (b - t) + 2 * (h - 2 * tf)) / 1000);
  c.eyc = ToSingle(t / 2);
  c.ez = ToSingle(h / 2);
  c.Iy = ToSingle(h * h * h * t / 12);
  c.Iz = ToSingle(t * t * t * h / 12);
  c.IzDefl = c.Iz;
  c.Wely = ToSingle(Div(c.Iy, h - c.ez));
  c.Welz = ToSingle(Div(c.Iz, t - c.eyc));
  c.Weffy = c.Wely;
  c.Weffz = c.Welz;
  c.Iw = 0;
  c.Wply = ToSingle(h * h * t / 4);
  c.Wplz = ToSingle(t * t * h / 4);
  c.tmax = c.tw;
  c.Wy = c.Wply;
  // The family leaves profileName as the last family set it: the section's own name says what it is.
  SetSectionName(s, 28, "Fb " + Dim(s, h) + "x" + Dim(s, t));

  SetOutlinePoint(c, 1, 0, 0);
  SetOutlinePoint(c, 2, 0, h);
  SetOutlinePoint(c, 3, t, h);
  SetOutlinePoint(c, 4, t, 0);
  SetOutlinePoint(c, 5, 0, 0);
  c.OutlineCount = 5;
  c.OutlineInnerLast = 1;
  c.FigHeight = c.h;
  c.FigWidth = c.tw;
  c.FigCentroidZ = c.ez;
  c.FigCentroidY = c.eyc;
}

void FlatClasses(State& s) {
  Section& c = s.section;
  const Project& p = s.project;
  c.classN = c.classMy = c.classMz = 1;
  c.NtRd = ForceOf(s, c.A);
  c.NcRd = c.NtRd;
  c.MplyRd = MomentOf(s, c.Wply);
  c.MelyRd = MomentOf(s, c.Wely);
  c.MyRdClass = c.MplyRd;
  c.Avz = static_cast<double>(c.tw) * c.h;
  c.VzRd = Div(Div((1 / 1.5) * c.Avz * Div(p.fyk, Sqrt(3)), p.gammaM0), 1000);
  c.VbzRd = ToSingle(c.VzRd);
  // The strut and the lateral torsional control divide by these.
  BucklingResistances(s);
}

// ---------------------------------------------------------------------------------------------
// T section

void TeeProperties(State& s) {
  Section& c = s.section;
  const Project& p = s.project;
  c.h = ToSingle(p.p26.isth);
  c.b = ToSingle(p.p26.istb1);
  c.tw = ToSingle(p.p26.isttw);
  c.tf = p.p26.isttf1;
  const double h = c.h, b = c.b, tw = c.tw, tf = c.tf;
  SetSectionName(s, 26, "T " + Dim(s, h) + "x" + Dim(s, b) + "x" + Dim(s, tw) + "x" + Dim(s, tf));

  // 1. The flange on top, the web below it.
  const RectSums r = SumRects({{b, tf, 0, h - tf}, {tw, h - tf, (b - tw) / 2, 0}});
  c.Ix = ToSingle(r.Ix);

  // 2.
  c.b1 = c.b;
  c.tf1 = c.tf;
  c.hw = ToSingle(h - tf);
  c.c = ToSingle((b - tw) / 2);
  c.A = ToSingle(r.A);
  c.Aw = ToSingle(static_cast<double>(c.hw) * tw);
  c.Af = ToSingle(b * tf);  // the one flange
  c.g = ToSingle(static_cast<double>(p.rho) * c.A * 1e-6);
  c.S = ToSingle(2 * (b + h) / 1000);

  // 3. The centroid from the flange side; ez holds it, as the torsional-flexural load reads it.
  const double A = c.A;
  c.eyc = ToSingle(Div(r.Ay, A));
  const double zBottom = Div(r.Az, A);
  c.Iy = ToSingle(r.Ih + r.Az2 - A * zBottom * zBottom);
  c.Iz = ToSingle(r.Iv + r.Ay2 - A * static_cast<double>(c.eyc) * c.eyc);
  c.IzDefl = c.Iz;
  const double hw = c.hw;
  c.ez = ToSingle(tf + hw - Div(r.Az, A));
  c.Wyt = ToSingle(Div(c.Iy, c.ez));
  c.Wyb = ToSingle(Div(c.Iy, h - c.ez));
  c.Wely = std::min(c.Wyt, c.Wyb);
  c.Welz = ToSingle(Div(c.Iz, b / 2));

  // 4. The plastic axis, from the flange side: in the flange or in the web.
  if (A / 2 < tf * b) {
    const double zpl = Div(A / 2, b);
    c.Wply = ToSingle((zpl * zpl + (tf - zpl) * (tf - zpl)) * b / 2 + (hw / 2 + tf - zpl) * hw * tw);
  } else {
    const double zpl = Div(A / 2 - tf * b, tw) + tf;
    c.Wply = ToSingle((zpl - tf) * (zpl - tf) * tw / 2 + (zpl - tf / 2) * tf * b +
                      (hw + tf - zpl) * (hw + tf - zpl) * tw / 2);
  }

  // 5.
  c.Iw = ToSingle((b * b * b * tf * tf * tf + 4 * tw * tw * tw * h * h * h) / 144);
  c.tmax = std::max(c.tf, c.tw);

  SetOutlinePoint(c, 1, 0, h - tf);
  SetOutlinePoint(c, 2, b, h);
  SetOutlinePoint(c, 3, (b - tw) / 2, 0);
  SetOutlinePoint(c, 4, (b + tw) / 2, h - tf);
  c.OutlineRects = 2;
  c.OutlineInnerLast = 1;
  c.FigHeight = c.h;
  c.FigWidth = c.b;
  c.FigCentroidZ = ToSingle(h - c.ez);
  c.FigCentroidY = c.eyc;
}

void TeeClasses(State& s) {
  Section& c = s.section;
  const Project& p = s.project;
  const double eps = p.epsilon;

  // 1. The web, an outstand.
  const Single web = ToSingle(Div(c.hw, c.tw));
  c.classWeb = ToSingle(TeeClass(web, eps));
  double rho = 1;
  if (c.classWeb == 4) rho = RhoOutstand(web, eps);
  if (On(p.noWebBuckling)) rho = 1;
  c.Aeff = ToSingle(c.A - static_cast<double>(c.hw) * (1 - rho) * c.tw);

  // 2. The flange, two outstands.
  const Single flange = ToSingle(Div(c.c, c.tf));
  c.classFlange = TeeClass(flange, eps);
  rho = 1;
  if (c.classFlange == 4) rho = RhoOutstand(flange, eps);
  if (On(p.noFlangeBuckling)) rho = 1;
  c.Aeff = ToSingle(c.Aeff - 2 * static_cast<double>(c.c) * (1 - rho) * c.tf);

  // 3.
  c.NcRd = ForceOf(s, c.Aeff);
  c.NtRd = Div(static_cast<double>(p.fyd) * c.A, 1000);
  c.NRdBuck = Div(c.NcRd * p.gammaM0, p.gammaM1);

  // 4.
  c.classN = std::max<double>(c.classWeb, c.classFlange);
}

// ---------------------------------------------------------------------------------------------
// Tube

void TubeProperties(State& s) {
  Section& c = s.section;
  const Project& p = s.project;
  c.d = p.p31.istd;
  c.tw = p.p31.isttw;
  const double d = c.d, t = c.tw;
  const double di = d - 2 * t;
  SetSectionName(s, 31, "Tube " + Dim(s, d) + "x" + Dim(s, t) + (p.p31.hotCold == 1 ? "" : " (Cold formed)"));
  c.A = ToSingle((PiSingle / 4) * (d * d - di * di));
  c.g = ToSingle(static_cast<double>(p.rho) * c.A * 1e-6);
  c.S = ToSingle((2 * PiSingle * d / 2) / 1000);
  c.Iy = ToSingle((PiSingle / 64) * (d * d * d * d - di * di * di * di));
  c.Iz = c.Iy;
  c.IzDefl = c.Iy;
  c.Wely = ToSingle(Div(c.Iy, d / 2));
  c.Welz = c.Wely;
  c.Wply = ToSingle((1.0 / 6) * (d * d * d - di * di * di));
  c.Wplz = c.Wply;
  c.Iw = 0;
  c.tmax = c.tw;
  const double rm = (d - t) / 2;
  c.Ix = ToSingle((rm * rm + t * t / 4) * (d - t) * PiSingle * t);
  // A round section has no effective area of its own: the gross area serves the strut.
  c.Aeff = c.A;

  // The figure is a circle pair from the diameter and the wall.
  c.FigHeight = c.d;
  c.FigWidth = c.d;
  c.FigCentroidZ = ToSingle(d / 2);
  c.FigCentroidY = ToSingle(d / 2);
  c.OutlineInnerLast = 1;
}

void TubeClasses(State& s) {
  Section& c = s.section;
  const Project& p = s.project;
  const double eps2 = static_cast<double>(p.epsilon) * p.epsilon;
  const double dt = Div(c.d, c.tw);
  double cls = 4;
  if (dt <= 50 * eps2)
    cls = 1;
  else if (dt <= 70 * eps2)
    cls = 2;
  else if (dt <= 90 * eps2)
    cls = 3;
  c.classN = c.classMy = c.classMz = cls;

  c.MplyRd = MomentOf(s, c.Wply);
  c.MelyRd = MomentOf(s, c.Wely);
  c.MplzRd = ToSingle(MomentOf(s, c.Wplz));
  c.MelzRd = ToSingle(MomentOf(s, c.Welz));
  c.NtRd = ForceOf(s, c.A);
  c.NcRd = ForceOf(s, c.A);
  if (cls <= 2 && !On(p.elasticClass12)) {
    c.Wy = c.Wply;
    c.MyRdClass = c.MplyRd;
  } else {
    c.Wy = c.Wely;
    c.MyRdClass = c.MelyRd;
  }
  c.Wz = c.Wy;
  c.MzRdClass = ToSingle(c.MyRdClass);
  BucklingResistances(s);

  // The shear area of a round tube, the same along both axes.
  c.Avz = Div(2.0 * c.A, PiSingle);
  c.Avy = c.Avz;
  c.VzRd = Div(Div(c.Avz * Div(p.fyk, Sqrt(3)), p.gammaM0), 1000);
  c.VyRd = c.VzRd;
  c.VbzRd = ToSingle(c.VzRd);
  c.VbyRd = c.VyRd;
}

// ---------------------------------------------------------------------------------------------
// General section

void GeneralProperties(State& s) {
  Section& c = s.section;
  const Project& p = s.project;
  const GeneralInput& q = p.p41;
  SetSectionName(s, 41, q.name);
  c.A = q.istax;
  c.Aw = q.istaz;
  c.Af = q.istay;
  c.Ix = q.istix;
  c.Iy = q.istiy;
  c.Iz = q.istiz;
  c.IzDefl = c.Iz;
  c.Iw = q.istiw;
  c.Wely = q.istwely;
  c.Welz = q.istwelz;
  c.Wply = q.istwply;
  c.Wplz = q.istwplz;
  // Fixed sizes, so that the figure has a frame.
  c.h = 1000;
  c.b = 300;
  c.classN = q.classN;
  c.classMy = q.classMy;
  c.classMz = q.classMz;
  c.g = ToSingle(static_cast<double>(p.rho) * c.A * 1e-6);
  // No effective values are typed: the gross area serves a class 4 strut.
  c.Aeff = c.A;
}

void GeneralClasses(State& s) {
  Section& c = s.section;
  Project& p = s.project;
  Checks& k = s.checks;

  // 1. Always the thin column of the grade table.
  c.tmax = 40;
  SelectYieldStrength(s, p.steelGrade);
  const double fyk = p.fyk, g0 = p.gammaM0;

  // 2.
  c.NtRd = ForceOf(s, c.A);
  c.NcRd = c.NtRd;

  // 3. Plastic only for a class 1 section: a typed class 2 takes the elastic modulus, and a
  // class 4 too, for want of an effective one.
  c.MplyRd = MomentOf(s, c.Wply);
  c.MelyRd = MomentOf(s, c.Wely);
  c.MplzRd = ToSingle(MomentOf(s, c.Wplz));
  c.MelzRd = ToSingle(MomentOf(s, c.Welz));
  if (c.classMy <= 1 && !On(p.elasticClass12)) {
    c.Wy = c.Wply;
    c.MyRdClass = c.MplyRd;
  } else {
    c.Wy = c.Wely;
    c.MyRdClass = c.MelyRd;
  }
  if (c.classMz <= 1 && !On(p.elasticClass12)) {
    c.Wz = c.Wplz;
    c.MzRdClass = c.MplzRd;
  } else {
    c.Wz = c.Welz;
    c.MzRdClass = c.MelzRd;
  }

  // 4. to 6. The moments reduced for the working axial force, by the web share Aw / A.
  k.MyRd = ToSingle(c.MyRdClass);
  k.MzRd = c.MzRdClass;
  const double N = std::fabs(static_cast<double>(s.NEdAbs));
  const double n = std::fabs(Div(s.NEdAbs, c.NcRd));
  const double a = Div(c.Aw, c.A);
  k.MNyRd = ToSingle(Div(k.MyRd * (1 - n), 1 - 0.5 * a));
  if (k.MNyRd > k.MyRd) k.MNyRd = k.MyRd;
  if (N <= Div(Div(0.5 * c.Aw * fyk, g0), 1000) && N <= 0.25 * c.NtRd) k.MNyRd = k.MyRd;
  if (n <= a) {
    k.MNzRd = k.MzRd;
  } else {
    const double r = Div(n - a, 1 - a);
    k.MNzRd = ToSingle(k.MzRd * (1 - r * r));
  }
  if (N <= Div(Div(static_cast<double>(c.tw) * c.hw * fyk, g0), 1000)) k.MNzRd = k.MzRd;

  // 7.
  BucklingResistances(s);

  // 8. The typed shear areas.
  const double sqrt3 = Sqrt(3);
  c.Avz = static_cast<double>(p.p41.istaz) * p.neta;
  c.VzRd = Div(Div(Div(c.Avz * fyk, sqrt3), g0), 1000);
  c.VbzRd = ToSingle(c.VzRd);
  c.Avy = p.p41.istay;
  c.VyRd = Div(Div(Div(c.Avy * fyk, sqrt3), g0), 1000);
  c.VbyRd = c.VyRd;
}

}  // namespace vn
