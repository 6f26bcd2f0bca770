// Rolled angles: properties from the catalogue row, the three corner points about the principal
// axes, the class under compression and the elastic resistances of every fibre and corner.
#include "sections/angles.h"

#include <algorithm>
#include <cmath>

#include "core/format.h"
#include "core/state.h"
#include "sections/rolled_i.h"

namespace vn {

namespace {

// 45 x pi as the program writes it, a single: the angle of the equal-leg tips enters as 45 pi / 180.
constexpr double kFortyFivePi = static_cast<double>(141.3716736f);

void Point(Section& c, int i, double x, double y) {
  c.Outline[static_cast<size_t>(i)].x = ToSingle(x);
  c.Outline[static_cast<size_t>(i)].y = ToSingle(y);
}

// The 9-point outline, heel at the upper left, the root fillet cut to two chords; then the two ends
// of the u axis through the centroid for the figure.
void AngleOutline(State& s) {
  Section& c = s.section;
  const double h = c.h, b = c.b, t = c.tw, r = c.r;
  Point(c, 1, 0, 0);
  Point(c, 2, 0, h);
  Point(c, 3, b, h);
  Point(c, 4, b, h - t);
  Point(c, 5, t + r, h - t);
  Point(c, 6, t + 0.3 * r, h - t - 0.3 * r);
  Point(c, 7, t, h - t - r);
  Point(c, 8, t, 0);
  Point(c, 9, 0, 0);
  c.OutlineCount = 9;
  c.OutlineInnerLast = 1;
  c.FigHeight = c.h;
  c.FigWidth = c.b;
  c.FigCentroidZ = ToSingle(h - c.ez);
  c.FigCentroidY = c.eyc;
  // u runs down to the right at alfa below y.
  const double a = c.alfa * PiSingle / 180;
  const double half = 0.45 * std::max(h, b);
  const double du = half * std::cos(a), dv = half * std::sin(a);
  Point(c, 10, c.FigCentroidY - du, c.FigCentroidZ + dv);
  Point(c, 11, c.FigCentroidY + du, c.FigCentroidZ - dv);
}

// Weight, surface, fibre moduli and the moduli at the corner points (steps shared by both kinds).
void FibreModuli(State& s) {
  Section& c = s.section;
  const double h = c.h, b = c.b, r = c.r;
  c.g = ToSingle(static_cast<double>(s.project.rho) * c.A * 1e-6);
  c.S = ToSingle((2 * (b + h) - 2 * r + PiSingle * r / 2) / 1000);
  c.Wyt = ToSingle(Div(c.Iy, h - c.ez));
  c.Wyb = ToSingle(Div(c.Iy, c.ez));
  c.Wely = c.Wyt;
  c.Wzr = ToSingle(Div(c.Iz, b - c.eyc));
  c.Wzl = ToSingle(Div(c.Iz, c.eyc));
  c.Welz = c.Wzr;
  for (size_t i = 1; i <= 3; ++i) c.Wv[i] = ToSingle(Div(c.Iv, c.uPt[i]));
  c.Wvmin = std::min({c.Wv[1], c.Wv[2], c.Wv[3]});
  c.Wu[1] = ToSingle(Div(c.Iu, c.vPt[1]));
  c.Wu[3] = ToSingle(Div(c.Iu, c.vPt[3]));
}

void AngleName(State& s) {
  const Section& c = s.section;
  const bool comma = s.decimalComma;
  SetSectionName(
      s, s.project.ProfileType,
      "L " + SingleText(c.h, comma) + "x" + SingleText(c.b, comma) + "x" + SingleText(c.tw, comma));
}

// rho of an outstand leg under compression (EN 1993-1-5 4.4, k-sigma 0.43).
double LegRho(const State& s, double outstand) {
  const Project& p = s.project;
  const Single lamdaP = ToSingle(Div(Div(outstand, s.section.tw), 28.4 * p.epsilon * Sqrt(0.43)));
  double rho = 1;
  if (lamdaP > 0.748) rho = Div(lamdaP - 0.188, static_cast<double>(lamdaP) * lamdaP);
  if (p.noFlangeBuckling != 0) rho = 1;
  return rho;
}

// Class 3 by the limits of an angle in compression (Table 5.2, sheet 3), met limits included.
bool StockyAngle(const State& s) {
  const Section& c = s.section;
  const double eps = s.project.epsilon;
  return Div(c.h, c.tw) <= 15 * eps && Div(static_cast<double>(c.b) + c.h, 2.0 * c.tw) <= 11.5 * eps;
}

// Steps 3 to 5 of both kinds: tension, the member resistance, the bending classes and the elastic
// resistances of each fibre and corner.
void AngleResistances(State& s) {
  Section& c = s.section;
  const Project& p = s.project;
  const double fyk = p.fyk, g0 = p.gammaM0;
  auto M = [&](double W) { return Div(Div(W * fyk, g0), 1e6); };
  c.NtRd = Div(Div(static_cast<double>(c.A) * fyk, g0), 1000);
  c.NRdBuck = Div(c.NcRd * g0, p.gammaM1);
  c.classMy = 3;
  c.classMz = 3;
  for (size_t i = 1; i <= 3; ++i) {
    c.MuRd[i] = M(c.Wu[i]);
    c.MvRd[i] = M(c.Wv[i]);
  }
  c.MuRdMin = M(c.Wumin);
  c.MvRdMin = ToSingle(M(c.Wvmin));
  c.MytRd = M(c.Wyt);
  c.MybRd = M(c.Wyb);
  c.MzlRd = M(c.Wzl);
  c.MzrRd = ToSingle(M(c.Wzr));
  c.MelyAngle = M(c.Wely);
  c.MelzAngle = ToSingle(M(c.Welz));
}

}  // namespace

void EqualAngleProperties(State& s) {
  Section& c = s.section;
  const CatalogueId id = catL1;
  c.h = Scaled(s, id, 1, 1);
  c.b = c.h;
  c.tw = Scaled(s, id, 2, 1);
  c.r = Scaled(s, id, 3, 1);
  c.A = Scaled(s, id, 4, 1);
  c.ez = Scaled(s, id, 5, 1);
  c.eyc = c.ez;
  c.Iy = Scaled(s, id, 9, 10000);
  c.Iz = c.Iy;
  c.IzDefl = c.Iy;
  c.Iu = Scaled(s, id, 10, 10000);
  c.Iv = Scaled(s, id, 11, 10000);
  c.alfa = 45;  // by symmetry, not from the table

  const double b = c.b, tw = c.tw;
  const double a = c.alfa * PiSingle / 180;
  c.vPt[3] = ToSingle(b * std::sin(kFortyFivePi / 180) - (tw / 2) * std::cos(a));
  c.vPt[1] = c.vPt[3];
  c.vPt[2] = 0;  // the heel lies on the u axis
  c.uPt[2] = Scaled(s, id, 8, 1);
  c.uPt[3] = ToSingle(b * std::cos(a) - c.uPt[2] + (tw / 2) * std::sin(a));
  c.uPt[1] = c.uPt[3];

  c.c = ToSingle(b - tw - c.r);
  c.Ix = ToSingle(tw * tw * tw * (b - tw / 2) * (2.0 / 3));
  c.Iw = ToSingle(b * b * b * tw * tw * tw / 18);
  FibreModuli(s);
  c.Wumin = c.Wu[1];

  c.tmax = c.tw;
  AngleName(s);
  AngleOutline(s);
}

void UnequalAngleProperties(State& s) {
  Section& c = s.section;
  const CatalogueId id = catL2;
  c.h = Scaled(s, id, 1, 1);
  c.b = Scaled(s, id, 2, 1);
  c.tw = Scaled(s, id, 3, 1);
  c.r = Scaled(s, id, 4, 1);
  c.A = Scaled(s, id, 5, 1);
  c.ez = Scaled(s, id, 6, 1);
  c.eyc = Scaled(s, id, 7, 1);
  c.uPt[2] = Scaled(s, id, 10, 1);
  c.alfa = ToSingle(180 / PiSingle * std::atan(static_cast<double>(Scaled(s, id, 12, 1))));
  c.Iy = Scaled(s, id, 13, 10000);
  c.Iz = Scaled(s, id, 14, 10000);
  c.IzDefl = c.Iy;  // an angle deflects about z with Iy
  c.Iu = Scaled(s, id, 15, 10000);
  c.Iv = Scaled(s, id, 16, 10000);

  const double h = c.h, b = c.b, tw = c.tw;
  const double a = c.alfa * PiSingle / 180;
  const double ca = std::cos(a), sa = std::sin(a);
  c.vPt[2] = ToSingle(c.ez * ca - c.eyc * sa);
  c.vPt[3] = ToSingle(b * sa + c.vPt[2] - (tw / 2) * ca);
  c.uPt[3] = ToSingle(b * ca - c.uPt[2] + (tw / 2) * sa);
  c.vPt[1] = ToSingle(h * ca - c.vPt[2] - (tw / 2) * sa);
  c.uPt[1] = ToSingle(h * sa - c.uPt[2] + (tw / 2) * ca);

  c.c1 = ToSingle(b - tw - c.r);
  c.c2 = ToSingle(h - tw - c.r);
  c.Ix = ToSingle(tw * tw * tw * ((b - tw / 2) + (h - tw / 2)) * (1.0 / 3));
  c.Iw = ToSingle((h * h * h * tw * tw * tw + b * b * b * tw * tw * tw) / 9);
  FibreModuli(s);
  // The heel's modulus about u is taken with the distance of point 1, as the program has it.
  c.Wu[2] = ToSingle(Div(c.Iu, c.vPt[1]));
  c.Wumin = std::min({c.Wu[1], c.Wu[2], c.Wu[3]});

  c.tmax = c.tw;
  AngleName(s);
  AngleOutline(s);
}

void AngleClassEqual(State& s) {
  Section& c = s.section;
  const Project& p = s.project;
  const double fyk = p.fyk, g0 = p.gammaM0;
  if (StockyAngle(s)) {
    c.classN = 3;
    c.NcRd = Div(Div(fyk * c.A, g0), 1000);
  } else {
    c.classN = 4;
    const double rho = LegRho(s, c.c);
    c.Aeff = ToSingle(c.A - 2.0 * c.c * (1 - rho) * c.tw);
    c.NcRd = Div(Div(fyk * c.Aeff, g0), 1000);
  }
  AngleResistances(s);
  // Shear: the leg less its thickness, with the fixed factor 1/1.5.
  c.VzRd = Div(Div(Div((static_cast<double>(c.b) - c.tw) * (1 / 1.5) * c.tw * fyk, Sqrt(3)), g0), 1000);
  c.VyRd = c.VzRd;
  c.VbzRd = ToSingle(c.VzRd);
  c.VbyRd = c.VzRd;
}

void AngleClassUnequal(State& s) {
  Section& c = s.section;
  const Project& p = s.project;
  const double fyk = p.fyk, g0 = p.gammaM0;
  if (StockyAngle(s)) {
    c.classN = 3;
    c.NcRd = Div(Div(fyk * c.A, g0), 1000);
  } else {
    c.classN = 4;
    const double rho1 = LegRho(s, c.c1);
    c.Aeff = ToSingle(c.A - c.c1 * (1 - rho1) * c.tw);
    const double rho2 = LegRho(s, c.c2);
    c.Aeff = ToSingle(c.Aeff - c.c2 * (1 - rho2) * c.tw);
    c.NcRd = Div(Div(fyk * c.Aeff, g0), 1000);
  }
  AngleResistances(s);
  // Shear of each leg with fyd, the design strength, and no further gammaM0.
  const double fyd = p.fyd;
  c.VzRd = Div(Div((static_cast<double>(c.h) - c.tw) * (1 / 1.5) * c.tw * fyd, Sqrt(3)), 1000);
  c.VyRd = Div(Div((static_cast<double>(c.b) - c.tw) * (1 / 1.5) * c.tw * fyd, Sqrt(3)), 1000);
  c.VbzRd = ToSingle(c.VzRd);
  c.VbyRd = c.VzRd;
}

}  // namespace vn
