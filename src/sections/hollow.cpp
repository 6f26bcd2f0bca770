// Square and rectangular hollow sections. The tables give the outer size, the wall, the area and
// the second moments; the corner radius follows from the wall (1.5 t hot finished, 2 to 3 t cold
// formed), and the flats of the walls are taken as h - 3 t and b - 3 t for both kinds.
#include "sections/hollow.h"

#include <algorithm>
#include <cmath>

#include "checks/shear_resistance.h"
#include "core/format.h"
#include "core/state.h"
#include "sections/catalogue.h"
#include "sections/rolled_i.h"

namespace vn {

namespace {

constexpr double kTwoPiSingle = static_cast<double>(6.2831855f);

bool On(Boolean flag) { return flag != 0; }

enum class Finish { Hot, Cold };

// The columns of one table: where h, b, t, A, Iy, Iz, Wply, Wplz and Ix stand (0: none, the square
// tube takes the y value).
struct HollowColumns {
  int h, b, t, A, Iy, Iz, Wply, Wplz, Ix;
};

constexpr HollowColumns kShsCols{1, 0, 2, 3, 4, 0, 5, 0, 6};
constexpr HollowColumns kCfshsCols{1, 2, 3, 4, 5, 0, 6, 0, 7};
constexpr HollowColumns kRectCols{1, 2, 3, 4, 5, 6, 7, 8, 9};

// The outer and the inner contour, 13 points each, the corners cut by a chord through the points
// at the radius and one at 0.3 of it from both faces.
void Contour(Section& c, int first, double x0, double y0, double w, double h, double r) {
  const double x1 = x0 + w, y1 = y0 + h;
  int i = first;
  auto at = [&](double x, double y) { SetOutlinePoint(c, i++, x, y); };
  at(x0, y0 + r);
  at(x0, y1 - r);
  at(x0 + 0.3 * r, y1 - 0.3 * r);
  at(x0 + r, y1);
  at(x1 - r, y1);
  at(x1 - 0.3 * r, y1 - 0.3 * r);
  at(x1, y1 - r);
  at(x1, y0 + r);
  at(x1 - 0.3 * r, y0 + 0.3 * r);
  at(x1 - r, y0);
  at(x0 + r, y0);
  at(x0 + 0.3 * r, y0 + 0.3 * r);
  at(x0, y0 + r);
}

void HollowProperties(State& s, CatalogueId id, const HollowColumns& col, Finish finish, bool rectangular) {
  Section& c = s.section;
  const Project& p = s.project;
  // A rectangular tube turned by 90 degrees reads h and b, and the y and z values, the other way.
  const bool turned = rectangular && p.rhsTurned != 1;
  const Single h = Scaled(s, id, col.h, 1);
  const Single b = col.b ? Scaled(s, id, col.b, 1) : h;
  const Single Iy = Scaled(s, id, col.Iy, 10000);
  const Single Iz = col.Iz ? Scaled(s, id, col.Iz, 10000) : Iy;
  const Single Wply = Scaled(s, id, col.Wply, 1000);
  const Single Wplz = col.Wplz ? Scaled(s, id, col.Wplz, 1000) : Wply;
  c.h = turned ? b : h;
  c.b = turned ? h : b;
  c.Iy = turned ? Iz : Iy;
  c.Iz = turned ? Iy : Iz;
  c.Wply = turned ? Wplz : Wply;
  c.Wplz = turned ? Wply : Wplz;
  c.tw = Scaled(s, id, col.t, 1);
  c.tf = c.tw;
  c.A = Scaled(s, id, col.A, 100);
  c.Ix = Scaled(s, id, col.Ix, 10000);
  c.IzDefl = c.Iz;

  const double t = c.tw;
  c.r = ToSingle(finish == Finish::Hot ? 1.5 * t : ColdFormedRadius(t));
  c.r1 = static_cast<double>(c.r) - t;

  std::string name = CatalogueListText(s.catalogues, id, SelectedRowOf(s, id));
  if (finish == Finish::Cold) name += " (Cold formed)";
  SetSectionName(s, p.ProfileType, name);

  const double hh = c.h, bb = c.b;
  c.g = ToSingle(static_cast<double>(p.rho) * c.A * 1e-6);
  // The corners enter as quarter circles of 2.5 t, whatever the radius.
  c.S = ToSingle((2 * (bb - 5 * t) + 2 * (hh - 5 * t) + kTwoPiSingle * 2.5 * t) / 1000);
  c.Wely = ToSingle(Div(c.Iy, hh / 2));
  c.Welz = ToSingle(Div(c.Iz, bb / 2));
  c.d = ToSingle(hh - 3 * t);
  c.c = ToSingle(bb - 3 * t);
  c.hw = ToSingle(hh - 2 * t);
  c.ri = ToSingle(bb - 2 * t);

  // Warping of a closed box; nil for a square one.
  const double tw = c.tw, tf = c.tf;
  const double a = hh - t, e = bb - tf;
  double Iw = (a * a / 24) * (e * e * a * tw + e * e * e * tf);
  const double q = Div(e * e * tw - a * e * tf, e * e * tw + a * e * tf);
  Iw = Iw * (q * q);
  c.Iw = ToSingle(Iw);
  c.tmax = c.tw;

  Contour(c, 1, 0, 0, bb, hh, c.r);
  Contour(c, 51, t, t, bb - 2 * t, hh - 2 * t, c.r1);
  c.OutlineCount = 13;
  c.OutlineInnerLast = 63;
  c.FigHeight = c.h;
  c.FigWidth = c.b;
  c.FigCentroidZ = ToSingle(hh / 2);
  c.FigCentroidY = ToSingle(bb / 2);
}

// An internal element under uniform compression, k-sigma 4.
double RhoInternal(Single lamdaP) {
  if (lamdaP <= 0.673) return 1;
  return Div(lamdaP - 0.22, static_cast<double>(lamdaP) * lamdaP);
}

// One bending pass: the compressed wall of width `cw` and thickness `ct` keeps rhoCompressed of
// its flat, then the two side walls (flat `flat`, thickness `st`) lose the strip that the stress
// gradient leaves them. Returns the effective modulus of the compressed edge.
double BendingPass(State& s, EffWork& w, double depth, double I0, double cw, double ct, double rhoCompressed,
                   double flat, double st) {
  const Section& c = s.section;
  const Project& p = s.project;
  const double A = c.A;
  const double lost = (1 - rhoCompressed) * cw;
  w.AeffW = A - lost * ct;
  w.centroid = Div(depth * A / 2 - lost * ct * ct / 2, w.AeffW);
  w.bc = w.centroid - 1.5 * ct;
  w.psi = Div(-(flat - w.bc), w.bc);
  w.ksigma = KSigma(w.psi);
  w.lamdaP = ToSingle(Div(Div(flat, st), 28.4 * p.epsilon * Sqrt(w.ksigma)));
  if (w.lamdaP <= 0.5 + Sqrt(0.085 - 0.055 * w.psi))
    w.rhoWeb = 1;
  else
    w.rhoWeb = ToSingle(Div(w.lamdaP - 0.055 * (3 + w.psi), static_cast<double>(w.lamdaP) * w.lamdaP));
  if (w.rhoWeb > 1) w.rhoWeb = 1;
  if (On(p.noWebBuckling)) w.rhoWeb = 1;

  const double lostDepth = (1 - w.rhoWeb) * w.bc;
  const double t2 = 2 * st * lostDepth;
  const double pStrip = w.centroid - 0.6 * w.rhoWeb * w.bc - lostDepth / 2;
  w.AeffW -= t2;
  w.centroidEff = ToSingle(Div(depth * A / 2 - t2 * pStrip - lost * ct * ct / 2, w.AeffW));
  const double I = depth * depth * A / 4 + I0 - 2 * st * lostDepth * lostDepth * lostDepth / 12 -
                   t2 * pStrip * pStrip - lost * ct * ct * ct / 12 - lost * ct * (ct / 2) * (ct / 2);
  const double ce = w.centroidEff;
  return Div(I - w.AeffW * ce * ce, ce);
}

// The classification of both axes: `web` is the slenderness of the walls the bending stretches
// and compresses, `flange` that of the compressed wall; `edge` the distance of the stress sigmaM
// from the axis and `alfaArea` the area of the axial share alfa.
double HollowClass(State& s, double N, double M, double I, double edge, Single web, double alfaArea,
                   Single flange) {
  Section& c = s.section;
  const Project& p = s.project;
  const double eps = p.epsilon;
  const double sigmaM = Div(M * 1e6, I) * edge;
  const double sigmaN = Div(N * 1000, c.A);
  const double sigma1 = std::fabs(sigmaM) - sigmaN;
  const double sigma2 = -std::fabs(sigmaM) - sigmaN;

  if (N < 0 && M == 0) {
    c.classWeb = 1;
    c.classFlange = 1;
    return 1;
  }
  c.classWeb = WebClassUnder(
      s, N, M, [web] { return web; }, alfaArea, sigma1, sigma2, c.classWeb);
  // The compressed wall is an internal element: the same limits in compression and in bending,
  // with no test of the edge stress.
  c.classFlange = PureClass(flange, eps, 33, 38, 42);
  return std::max<double>(c.classWeb, c.classFlange);
}

}  // namespace

double ColdFormedRadius(double t) {
  if (t <= 6) return 2 * t;
  if (t <= 10) return 2.5 * t;
  return 3 * t;
}

void ShsProperties(State& s) { HollowProperties(s, catShs, kShsCols, Finish::Hot, false); }
void RhsProperties(State& s) { HollowProperties(s, catRhs, kRectCols, Finish::Hot, true); }
void CfshsProperties(State& s) { HollowProperties(s, catCfshs, kCfshsCols, Finish::Cold, false); }
void CfrhsProperties(State& s) { HollowProperties(s, catCfrhs, kRectCols, Finish::Cold, true); }

double ClassHollowY(State& s, double N, double M) {
  const Section& c = s.section;
  return HollowClass(s, N, M, c.Iy, c.d / 2.0, ToSingle(Div(c.d, c.tw)), static_cast<double>(c.hw) * c.tw,
                     ToSingle(Div(c.c, c.tf)));
}

double ClassHollowZ(State& s, double N, double M) {
  const Section& c = s.section;
  return HollowClass(s, N, M, c.Iz, c.c / 2.0, ToSingle(Div(c.c, c.tf)), 2.0 * c.tf * c.ri,
                     ToSingle(Div(c.d, c.tw)));
}

void HollowEffective(State& s) {
  Section& c = s.section;
  const Project& p = s.project;
  const double eps = p.epsilon;
  EffWork w;

  // 1. and 2. The flanges and the webs under uniform compression.
  w.lamdaP = ToSingle(Div(Div(c.c, c.tf), 28.4 * eps * Sqrt(4)));
  w.rhoFlange = RhoInternal(w.lamdaP);
  if (On(p.noFlangeBuckling)) w.rhoFlange = 1;
  w.lamdaP = ToSingle(Div(Div(c.d, c.tw), 28.4 * eps * Sqrt(4)));
  w.rhoWeb = ToSingle(RhoInternal(w.lamdaP));
  // About z a web is the compressed wall: it follows the flanges' switch there.
  Single rhoWebAsFlange = w.rhoWeb;
  if (On(p.noFlangeBuckling)) rhoWebAsFlange = 1;
  if (On(p.noWebBuckling)) w.rhoWeb = 1;

  // 3. Both flanges and both webs.
  c.Aeff = ToSingle(c.A - 2 * static_cast<double>(c.c) * (1 - w.rhoFlange) * c.tf);
  c.Aeff = ToSingle(c.Aeff - (1 - w.rhoWeb) * 2 * static_cast<double>(c.d) * c.tw);

  // 4. to 6. About y: one flange in compression, the webs under the gradient.
  c.Weffy = BendingPass(s, w, c.h, c.Iy, c.c, c.tf, w.rhoFlange, c.d, c.tw);
  // 7. About z: one web in compression, the flanges under the gradient.
  c.Weffz = ToSingle(BendingPass(s, w, c.b, c.Iz, c.d, c.tw, rhoWebAsFlange, c.c, c.tf));
}

void HollowCapacities(State& s) {
  ClassesAndMoments(s, ClassHollowY, ClassHollowZ);
  Section& c = s.section;
  const Project& p = s.project;
  const double fyk = p.fyk, g0 = p.gammaM0, g1 = p.gammaM1, eps = p.epsilon, neta = p.neta;
  const double h = c.h, b = c.b, A = c.A, hw = c.hw, tw = c.tw, ri = c.ri, tf = c.tf;
  const double sqrt3 = Sqrt(3);

  // A wall slender in shear takes chi_w of a web without stiffeners and its own two walls.
  auto chiW = [&](double depth, double t) {
    const double lamdaW = Div(1 / 86.4, eps) * Div(depth, t);
    return lamdaW < Div(0.83, neta) ? neta : Div(0.83, lamdaW);
  };

  // 4. Shear along z: the webs' share of the area, or the box's two webs.
  if (ShearStocky(s, hw, tw)) {
    c.Avz = p.ProfileType == 23 ? neta * 2 * hw * tw : Div(h, h + b) * A;
    c.VzRd = Div(Div(c.Avz * Div(fyk, sqrt3), g0), 1000);
  } else {
    c.Avz = 2 * hw * tw;
    c.VzRd = Div(Div(Div(c.Avz * chiW(hw, tw) * fyk, sqrt3), g1), 1000);
  }

  // 5. Shear along y: the flanges' share.
  if (ShearStocky(s, ri, tf)) {
    c.Avy = Div(b, h + b) * A;
    c.VyRd = Div(Div(c.Avy * Div(fyk, sqrt3), g0), 1000);
  } else {
    c.Avy = 2 * ri * tf;
    c.VyRd = Div(Div(Div(c.Avy * chiW(ri, tf) * fyk, sqrt3), g1), 1000);
  }

  // 6. The plastic values of both.
  c.VplRd = ToSingle(Div(Div(c.Avz * Div(fyk, sqrt3), g0), 1000));
  c.VplyRd = ToSingle(Div(Div(c.Avy * Div(fyk, sqrt3), g0), 1000));
}

}  // namespace vn
