// Rolled I and H sections: properties from the catalogue, the classification about y and z, the
// effective section and the resistances that the I-like families share.
#include "sections/rolled_i.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <string>

#include "core/format.h"
#include "core/state.h"
#include "design/design_basis.h"
#include "sections/section_dialogs.h"

namespace vn {

namespace {

// 2 pi as the program writes it, a single.
constexpr double kTwoPiSingle = static_cast<double>(6.2831855f);
// 14 x 2 pi, the INP flange slope of 14 percent entered as 14 degrees.
constexpr double kInpSlope = static_cast<double>(87.9645996f);

bool On(Boolean flag) { return flag != 0; }

// The outstand under a stress gradient: class 3 up to 21 epsilon sqrt(k-sigma).
double KSigmaOutstand(double psi) { return 0.57 - 0.21 * psi + 0.07 * psi * psi; }

}  // namespace

double PureClass(Single slender, double epsilon, double k1, double k2, double k3) {
  if (slender < ToSingle(k1 * epsilon)) return 1;
  if (slender < ToSingle(k2 * epsilon)) return 2;
  if (slender < ToSingle(k3 * epsilon)) return 3;
  return 4;
}

void SetOutlinePoint(Section& c, int i, double x, double y) {
  c.Outline[static_cast<size_t>(i)].x = ToSingle(x);
  c.Outline[static_cast<size_t>(i)].y = ToSingle(y);
}

void EffectiveAboutY(State& s, EffWork& w, double strips) {
  Section& c = s.section;
  const Project& p = s.project;
  const double eps = p.epsilon;

  // 1. The flange outstand under compression.
  w.lamdaP = ToSingle(Div(Div(c.c, c.tf), 28.4 * eps * Sqrt(0.43)));
  if (w.lamdaP <= 0.748)
    w.rhoFlange = 1;
  else
    w.rhoFlange = Div(w.lamdaP - 0.188, static_cast<double>(w.lamdaP) * w.lamdaP);
  if (On(p.noFlangeBuckling)) w.rhoFlange = 1;

  // 2. The web under compression, an internal part with k-sigma 4.
  w.lamdaP = ToSingle(Div(Div(c.d, c.tw), 28.4 * eps * Sqrt(4)));
  if (w.lamdaP <= 0.673)
    w.rhoWeb = 1;
  else
    w.rhoWeb = ToSingle(Div(w.lamdaP - 0.22, static_cast<double>(w.lamdaP) * w.lamdaP));
  if (On(p.noWebBuckling)) w.rhoWeb = 1;

  // 3. Effective area under uniform compression: every outstand and the web reduced.
  c.Aeff = ToSingle(c.A - 2 * strips * c.c * (1 - w.rhoFlange) * c.tf);
  c.Aeff = ToSingle(c.Aeff - (1 - w.rhoWeb) * static_cast<double>(c.d) * c.tw);

  // 4. Bending about y: the compressed flange loses its strip first, which moves the centroid
  // away from the compressed edge and sets the stress ratio of the web.
  const double lostFlange = strips * (1 - w.rhoFlange) * c.c;
  w.AeffW = c.A - lostFlange * c.tf;
  w.centroid = Div(static_cast<double>(c.h) * c.A / 2 - lostFlange * c.tf * c.tf / 2, w.AeffW);
  w.bc = w.centroid - c.tf - c.r;
  w.psi = Div(-(c.d - w.bc), w.bc);

  // 5. and 6. The web under the stress gradient.
  w.ksigma = KSigma(w.psi);
  w.lamdaP = ToSingle(Div(Div(c.d, c.tw), 28.4 * eps * Sqrt(w.ksigma)));
  if (w.lamdaP <= 0.5 + Sqrt(0.085 - 0.055 * w.psi))
    w.rhoWeb = 1;
  else
    w.rhoWeb = ToSingle(Div(w.lamdaP - 0.055 * (3 + w.psi), static_cast<double>(w.lamdaP) * w.lamdaP));
  if (w.rhoWeb > 1) w.rhoWeb = 1;
  if (On(p.noWebBuckling)) w.rhoWeb = 1;

  // 7. The web's lost strip lies between the part of 0.6 rho bc beside the neutral axis and the
  // rest at the flange.
  const double lostDepth = (1 - w.rhoWeb) * w.bc;
  const double t = (1 - w.rhoWeb) * c.tw * w.bc;
  const double pStrip = w.centroid - 0.6 * w.rhoWeb * w.bc - lostDepth / 2;
  w.AeffW = w.AeffW - t;
  w.centroidEff =
      ToSingle(Div(static_cast<double>(c.h) * c.A / 2 - t * pStrip - lostFlange * c.tf * c.tf / 2, w.AeffW));

  // 8. Second moment about the compressed edge, then about the effective centroid.
  const double tf = c.tf;
  const double I = static_cast<double>(c.h) * c.h * c.A / 4 + c.Iy -
                   c.tw * lostDepth * lostDepth * lostDepth / 12 - t * pStrip * pStrip -
                   lostFlange * tf * tf * tf / 12 - lostFlange * tf * (tf / 2) * (tf / 2);
  const double ce = w.centroidEff;
  c.Weffy = Div(I - w.AeffW * ce * ce, ce);
}

// ---------------------------------------------------------------------------------------------
// Catalogue access

CatalogueId CatalogueOfType(const State& s, int profileType) {
  switch (profileType) {
    case 1: return catHea;
    case 2: return catHeb;
    case 3: return catHem;
    case 4: return catIpe;
    case 5: return catUpe;
    case 6: return catShs;
    case 7: return catRhs;
    case 8: return catCfshs;
    case 9: return catCfrhs;
    case 10: return catL1;
    case 11: return catL2;
    case 52: return catL3;
    case 54: return catHp;
    case 15: return catInp;
    case 16: return catUnp;
    case 101:
      switch (s.project.subFamily101) {
        case 1: return catUb;
        case 2: return catUc;
        case 3: return catUbp;
      }
      return catCount;
    case 102: return catJ;
    case 103: return s.project.subFamily103 == 1 ? catPfc : catCh;
  }
  return catCount;
}

int SelectedRowOf(const State& s, CatalogueId id) {
  if (id < 0 || id >= catCount) Fault("subscript out of range");
  return s.project.SelectedRow[static_cast<size_t>(id)];
}

Single Scaled(const State& s, CatalogueId id, int col, double factor) {
  if (id < 0 || id >= catCount) Fault("subscript out of range");
  const Catalogue& t = s.catalogues.table[static_cast<size_t>(id)];
  return ToSingle(static_cast<double>(t.at(SelectedRowOf(s, id), col)) * factor);
}

void SetSectionName(State& s, int profileType, const std::string& name) {
  const SectionDialogInfo* d = SectionDialogOfType(profileType);
  if (d) s.view.text[std::string(d->form) + ".oname"] = name;
}

// ---------------------------------------------------------------------------------------------
// Outlines for the figure

void IOutline(State& s, double r) {
  Section& c = s.section;
  const double h = c.h, b = c.b, tf = c.tf, tw = c.tw;
  const double xl = (b - tw) / 2;  // left face of the web
  const double xr = xl + tw;       // right face of the web
  SetOutlinePoint(c, 1, 0, 0);
  SetOutlinePoint(c, 2, 0, tf);
  SetOutlinePoint(c, 3, xl - r, tf);
  SetOutlinePoint(c, 4, xl - 0.3 * r, tf + 0.3 * r);
  SetOutlinePoint(c, 5, xl, tf + r);
  SetOutlinePoint(c, 6, xl, h - tf - r);
  SetOutlinePoint(c, 7, xl - 0.3 * r, h - tf - 0.3 * r);
  SetOutlinePoint(c, 8, xl - r, h - tf);
  SetOutlinePoint(c, 9, 0, h - tf);
  SetOutlinePoint(c, 10, 0, h);
  SetOutlinePoint(c, 11, b, h);
  SetOutlinePoint(c, 12, b, h - tf);
  SetOutlinePoint(c, 13, xr + r, h - tf);
  SetOutlinePoint(c, 14, xr + 0.3 * r, h - tf - 0.3 * r);
  SetOutlinePoint(c, 15, xr, h - tf - r);
  SetOutlinePoint(c, 16, xr, tf + r);
  SetOutlinePoint(c, 17, xr + 0.3 * r, tf + 0.3 * r);
  SetOutlinePoint(c, 18, xr + r, tf);
  SetOutlinePoint(c, 19, b, tf);
  SetOutlinePoint(c, 20, b, 0);
  SetOutlinePoint(c, 21, 0, 0);
  c.OutlineCount = 21;
  c.OutlineInnerLast = 1;
  c.FigHeight = c.h;
  c.FigWidth = c.b;
  c.FigCentroidZ = ToSingle(h / 2);
  c.FigCentroidY = ToSingle(b / 2);
}

void ChannelOutline(State& s, double r) {
  Section& c = s.section;
  const double h = c.h, b = c.b, tf = c.tf, tw = c.tw;
  SetOutlinePoint(c, 1, 0, 0);
  SetOutlinePoint(c, 2, 0, h);
  SetOutlinePoint(c, 3, b, h);
  SetOutlinePoint(c, 4, b, h - tf);
  SetOutlinePoint(c, 5, tw + r, h - tf);
  SetOutlinePoint(c, 6, tw + 0.3 * r, h - tf - 0.3 * r);
  SetOutlinePoint(c, 7, tw, h - tf - r);
  SetOutlinePoint(c, 8, tw, tf + r);
  SetOutlinePoint(c, 9, tw + 0.3 * r, tf + 0.3 * r);
  SetOutlinePoint(c, 10, tw + r, tf);
  SetOutlinePoint(c, 11, b, tf);
  SetOutlinePoint(c, 12, b, 0);
  SetOutlinePoint(c, 13, 0, 0);
  // The axes of the figure: through the centroid, and the shear centre behind the web.
  SetOutlinePoint(c, 14, c.ey, h / 2);
  SetOutlinePoint(c, 15, static_cast<double>(c.ey) - c.em, h / 2);
  c.OutlineCount = 13;
  c.OutlineInnerLast = 1;
  c.FigHeight = c.h;
  c.FigWidth = c.b;
  c.FigCentroidZ = ToSingle(h / 2);
  c.FigCentroidY = c.ey;
}

// ---------------------------------------------------------------------------------------------
// Properties

void RolledIProperties(State& s) {
  Section& c = s.section;
  const Project& p = s.project;
  const CatalogueId id = CatalogueOfType(s, p.ProfileType);
  if (id != catHea && id != catHeb && id != catHem && id != catIpe) Fault("subscript out of range");
  // The IPE table has its height in column 1, one place before the HE tables.
  const int k = id == catIpe ? 0 : 1;
  const Single designation = Scaled(s, id, 1, 1);
  c.h = Scaled(s, id, 1 + k, 1);
  c.b = Scaled(s, id, 2 + k, 1);
  c.tf = Scaled(s, id, 3 + k, 1);
  c.tw = Scaled(s, id, 4 + k, 1);
  c.r = Scaled(s, id, 5 + k, 1);
  c.A = Scaled(s, id, 6 + k, 1);
  c.Iy = Scaled(s, id, 7 + k, 1e6);
  c.Iz = Scaled(s, id, 8 + k, 1e6);
  c.Ix = Scaled(s, id, 9 + k, 1e6);
  c.Iw = Scaled(s, id, 10 + k, 1e9);
  c.IzDefl = c.Iz;

  SetSectionName(s, p.ProfileType,
                 CatalogueInfo(id).prefix + FormatNumber(designation, "00", s.decimalComma));

  const double h = c.h, b = c.b, tf = c.tf, tw = c.tw, r = c.r;
  c.g = ToSingle(static_cast<double>(p.rho) * c.A * 1e-6);
  c.S =
      ToSingle((2 * (b - tw - 2 * r) + 4 * tf + 2 * b + 2 * (h - 2 * tf - 2 * r) + kTwoPiSingle * r) / 1000);
  c.Af = ToSingle(2 * b * tf);
  c.Aw = ToSingle((h - 2 * tf) * tw);
  c.Wely = ToSingle(Div(c.Iy, h / 2));
  c.Welz = ToSingle(Div(c.Iz, b / 2));
  c.hw = ToSingle(h - 2 * tf);
  c.d = ToSingle(h - 2 * (r + tf));
  c.c = ToSingle((b - tw - 2 * r) / 2);

  // Plastic moduli with the four fillets, whose centroid lies 0.2234 r from the corner.
  const double hw = c.hw;
  const double fillets = 4 * r * r * (1 - PiSingle / 4);
  c.Wply = ToSingle(tf * b * (h - tf) + hw * hw * tw / 4 + fillets * (hw / 2 - 0.2234 * r));
  c.Wplz = ToSingle((tw / 2) * (tw / 2) * (2 * hw) / 2 + (b / 2) * (b / 2) * 4 * tf / 2 +
                    fillets * (tw / 2 + 0.2234 * r));

  c.tmax = c.tf < c.tw ? c.tw : c.tf;
  IOutline(s, r);
}

void InpProperties(State& s) {
  Section& c = s.section;
  const Project& p = s.project;
  const CatalogueId id = catInp;
  c.h = Scaled(s, id, 1, 1);
  c.b = Scaled(s, id, 2, 1);
  c.tf = Scaled(s, id, 3, 1);
  c.tw = Scaled(s, id, 4, 1);
  c.A = Scaled(s, id, 5, 1000);
  c.Iy = Scaled(s, id, 6, 1e6);
  c.Wply = Scaled(s, id, 7, 1000);
  c.Iz = Scaled(s, id, 8, 1e6);
  c.Wplz = Scaled(s, id, 9, 1000);
  c.Ix = Scaled(s, id, 10, 1000);
  c.Iw = Scaled(s, id, 11, 1e9);
  c.IzDefl = c.Iz;
  // No radius column: the web thickness stands in for the root radius.
  c.r = c.tw;

  SetSectionName(s, p.ProfileType, CatalogueInfo(id).prefix + FormatNumber(c.h, "00", s.decimalComma));

  const double h = c.h, b = c.b, tf = c.tf, tw = c.tw, r = c.r;
  c.g = ToSingle(static_cast<double>(p.rho) * c.A * 1e-6);
  // The sloped inner flange faces enter as an angle of 14 degrees.
  c.S = ToSingle((2 * (b - tw - 2 * r) + 4 * tf + 2 * b +
                  2 * (h - 2 * tf - 2 * r - (b / 2) * std::sin(kInpSlope / 360)) + kTwoPiSingle * r) *
                 0.001);
  c.Af = ToSingle(2 * b * tf);
  c.Aw = ToSingle((h - 2 * tf) * tw);
  c.Wely = ToSingle(Div(c.Iy, h / 2));
  c.Welz = ToSingle(Div(c.Iz, b / 2));
  c.hw = ToSingle(h - 2 * tf);
  c.d = ToSingle(h - 2 * (r + tf));
  // The whole half flange is the outstand.
  c.c = ToSingle(b / 2);

  c.tmax = c.tf < c.tw ? c.tw : c.tf;
  IOutline(s, r);
}

// ---------------------------------------------------------------------------------------------
// Classification

Single WebClassUnder(const State& s, double N, double M, const std::function<Single()>& slenderness,
                     double area, double sigma1, double sigma2, Single previous) {
  const double eps = s.project.epsilon;
  const double fyk = s.project.fyk;
  if (N > 0 && M == 0) return ToSingle(PureClass(slenderness(), eps, 33, 38, 42));
  if (N == 0 && M > 0) return ToSingle(PureClass(slenderness(), eps, 72, 83, 124));
  if (N >= 0 && M != 0) {
    // Compression and bending: the web part in compression alfa of EN 1993-1-1 Table 5.2.
    double alfa = Div(N * 1000, area * fyk);
    if (alfa > 1) alfa = 1;
    alfa = 0.5 * (1 + alfa);
    const double psi = Div(sigma1, sigma2);
    const double dtw = slenderness();
    if (dtw <= Div(396 * eps, 13 * alfa - 1)) return 1;
    if (dtw <= Div(456 * eps, 13 * alfa - 1)) return 2;
    if (dtw <= Div(42 * eps, 0.67 + 0.33 * psi)) return 3;
    return 4;
  }
  if (N < 0 && M != 0) {
    // Tension and bending.
    double a = Div(-N * 1000, area * fyk);
    if (a > 1) a = 1;
    const double alfa = 1 - 0.5 * (1 + a);
    const double psi = sigma2 != 0 ? Div(sigma1, sigma2) : 0;
    const double dtw = slenderness();
    if (alfa >= 1) return 1;
    if (dtw <= Div(36 * eps, alfa)) return 1;
    if (dtw <= Div(41.5 * eps, alfa)) return 2;
    if (psi == 0) return 1;  // no compression at the edge: the web is taken as class 1
    if (dtw <= Div(42 * eps, 0.67 + 0.33 * psi)) return 3;
    return 4;
  }
  return previous;  // pure tension is the caller's; N = 0 and M = 0 keep the last class
}

double ClassAboutY(State& s, double N, double M) {
  Section& c = s.section;
  const Project& p = s.project;
  const double eps = p.epsilon;

  // Edge stresses, tension positive: sigma1 at the fibre that bending stretches, sigma2 at the
  // fibre it compresses.
  const double sigmaM = (c.h / 2.0 - c.tf) * Div(M * 1e6, c.Iy);
  const double sigmaN = Div(N * 1000, c.A);
  const double sigma1 = std::fabs(sigmaM) - sigmaN;
  const double sigma2 = -std::fabs(sigmaM) - sigmaN;

  if (N < 0 && M == 0) {
    // Pure tension: nothing buckles.
    c.classWeb = 1;
    c.classFlange = 1;
    return 1;
  }

  // The web's share alfa of Table 5.2 divides N by c tw fy, c the web's depth between the fillets (d
  // here). The program's own method takes hw, the depth between the flanges, which gives a smaller
  // alfa and so a web of a lower class than the standard's; the strict rules take d.
  const double webDepth = StrictRules(s) ? static_cast<double>(c.d) : static_cast<double>(c.hw);
  c.classWeb = WebClassUnder(
      s, N, M, [&] { return ToSingle(Div(c.d, c.tw)); }, webDepth * c.tw, sigma1, sigma2, c.classWeb);
  // N = 0 and M = 0 leaves the web class of the last classification.

  if (sigma2 >= 0)
    c.classFlange = 1;  // no compression at all
  else
    c.classFlange = PureClass(ToSingle(Div(c.c, c.tf)), eps, 9, 10, 14);

  return std::max<double>(c.classWeb, c.classFlange);
}

double ClassAboutZ(State& s, double N, double M) {
  const Section& c = s.section;
  return ClassAboutZOf(s, N, M, c.b / 2.0, c.c, c.tf);
}

double ClassAboutZOf(State& s, double N, double M, double edge, double outstand, double tOutstand) {
  Section& c = s.section;
  const Project& p = s.project;
  const double eps = p.epsilon;
  const double fyk = p.fyk;

  const double sigmaM = Div(M * 1e6, c.Iz) * edge;
  const double sigmaN = Div(N * 1000, c.A);
  const double sigma1 = std::fabs(sigmaM) - sigmaN;
  const double sigma2 = -std::fabs(sigmaM) - sigmaN;

  auto flangeSlenderness = [&] { return ToSingle(Div(outstand, tOutstand)); };
  auto webSlenderness = [&] { return ToSingle(Div(c.d, c.tw)); };
  auto psiOf = [&] { return sigma2 != 0 ? Div(sigma1, sigma2) : 0.0; };
  // Class 3 or 4 of the outstand under the stress gradient.
  auto gradient = [&](double ctf) { return ctf <= 21 * eps * Sqrt(KSigmaOutstand(psiOf())) ? 3.0 : 4.0; };

  if (N < 0 && M == 0) {
    c.classWeb = 1;
    c.classFlange = 1;
  } else if (N > 0 && M == 0) {
    c.classFlange = PureClass(flangeSlenderness(), eps, 9, 10, 14);
    c.classWeb = ToSingle(PureClass(webSlenderness(), eps, 33, 38, 42));
  } else if (N == 0 && M != 0) {
    const Single ctf = flangeSlenderness();
    if (ctf < ToSingle(9 * eps))
      c.classFlange = 1;
    else if (ctf < ToSingle(10 * eps))
      c.classFlange = 2;
    else if (ctf <= 21 * eps * Sqrt(0.57))
      c.classFlange = 3;
    else
      c.classFlange = 4;
    c.classWeb = 1;  // the web lies on the neutral axis
  } else if (N < 0 && M != 0) {
    c.classWeb = 1;
    // The tension the web cannot carry goes into the flanges.
    const double T = -N * 1000 - static_cast<double>(c.hw) * fyk * c.tw;
    if (T > 1) {
      const double alfa = Div(c.b / 2.0 - Div(Div(Div(T, c.tf), fyk), 4), outstand);
      const Single ctf = flangeSlenderness();
      if (alfa > 1) {
        if (ctf < ToSingle(9 * eps))
          c.classFlange = 1;
        else if (ctf < ToSingle(10 * eps))
          c.classFlange = 2;
        else
          c.classFlange = gradient(ctf);
      } else {
        if (ctf < 9 * eps * alfa)
          c.classFlange = 1;
        else if (ctf < 10 * eps * alfa)
          c.classFlange = 2;
        else
          c.classFlange = gradient(ctf);
      }
    }
    // T <= 1: the flange keeps the class of the last classification.
  } else if (N > 0 && M != 0) {
    const Single ctf = flangeSlenderness();
    if (ctf < ToSingle(9 * eps))
      c.classFlange = 1;
    else if (ctf < ToSingle(10 * eps))
      c.classFlange = 2;
    else
      c.classFlange = gradient(ctf);
    c.classWeb = ToSingle(PureClass(webSlenderness(), eps, 33, 38, 42));
  }

  return std::max<double>(c.classWeb, c.classFlange);
}

// ---------------------------------------------------------------------------------------------
// Effective section

double KSigma(double psi) {
  if (psi > 0) return Div(8.2, 1.05 + psi);
  if (psi < -1) return 5.98 * (1 - psi) * (1 - psi);
  return 7.81 - 6.29 * psi + 9.78 * psi * psi;
}

void RolledIEffective(State& s) {
  EffWork w;
  EffectiveAboutY(s, w, 2);

  // 9. and 10. Bending about z: the four outstands on the compressed side of the web lose their
  // tips; the lost strips lie at the far edge b.
  Section& c = s.section;
  const Project& p = s.project;
  w.lamdaP = ToSingle(Div(Div(c.c, c.tf), 28.4 * p.epsilon * Sqrt(0.57)));
  if (w.lamdaP <= 0.748)
    w.rhoFlange = 1;
  else
    w.rhoFlange = Div(w.lamdaP - 0.188, static_cast<double>(w.lamdaP) * w.lamdaP);
  if (On(p.noFlangeBuckling)) w.rhoFlange = 1;

  const double b = c.b, tf = c.tf;
  const double lost = (1 - w.rhoFlange) * c.c;
  const double arm = b - lost / 2;
  w.AeffW = c.A - 2 * tf * lost;
  w.centroidEff = ToSingle(Div(b * c.A / 2 - 2 * tf * lost * arm, w.AeffW));
  const double I = b * b * c.A / 4 + c.Iz - 2 * tf * lost * lost * lost / 12 - 2 * tf * lost * arm * arm;
  const double ce = w.centroidEff;
  c.Weffz = ToSingle(Div(I - w.AeffW * ce * ce, ce));
}

// ---------------------------------------------------------------------------------------------
// Classes and resistances

void ClassesAndMoments(State& s, ClassRoutine classY, ClassRoutine classZ) {
  Section& c = s.section;
  const Project& p = s.project;
  const double fyk = p.fyk;
  const double g0 = p.gammaM0;
  const double g1 = p.gammaM1;
  const double b = c.b, tf = c.tf;

  // 1. The flanges alone.
  c.MfyRd = Div(Div((static_cast<double>(c.h) - tf) * tf * b * fyk, g0), 1e6);
  c.MfzRd = ToSingle(Div(Div((b * b / 4 + b * b / 4) * tf * fyk, g0), 1e6));

  // 2. Moments of the three moduli.
  c.MplyRd = Div(Div(static_cast<double>(c.Wply) * fyk, g0), 1e6);
  c.MelyRd = Div(Div(static_cast<double>(c.Wely) * fyk, g0), 1e6);
  c.MeffyRd = Div(Div(c.Weffy * fyk, g0), 1e6);
  c.MplzRd = ToSingle(Div(Div(static_cast<double>(c.Wplz) * fyk, g0), 1e6));
  c.MelzRd = ToSingle(Div(Div(static_cast<double>(c.Welz) * fyk, g0), 1e6));
  c.MeffzRd = ToSingle(Div(Div(static_cast<double>(c.Weffz) * fyk, g0), 1e6));

  // 3. Classes of the pure cases; only the signs of the forces matter.
  c.classN = classY(s, 10, 0);
  c.classMy = classY(s, 0, 10);
  c.classMz = classZ(s, 0, 10);

  // 4. Axial resistances.
  c.NtRd = Div(Div(static_cast<double>(c.A) * fyk, g0), 1000);
  const double areaN = c.classN == 4 ? c.Aeff : c.A;
  c.NcRd = Div(Div(areaN * fyk, g0), 1000);

  // 5. The modulus the class selects.
  if (c.classMy <= 2 && !On(p.elasticClass12)) {
    c.Wy = c.Wply;
    c.MyRdClass = c.MplyRd;
  } else if (c.classMy == 4) {
    c.Wy = ToSingle(c.Weffy);
    c.MyRdClass = c.MeffyRd;
  } else {
    c.Wy = c.Wely;
    c.MyRdClass = c.MelyRd;
  }
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

  // 6. Resistances of the member checks, with gammaM1.
  c.MyRdBuck = Div(c.MyRdClass * g0, g1);
  c.MzRdBuck = Div(static_cast<double>(c.MzRdClass) * g0, g1);
  c.NRdBuck = Div(c.NcRd * g0, g1);
}

void RolledICapacities(State& s) {
  ClassesAndMoments(s, ClassAboutY, ClassAboutZ);
  Section& c = s.section;
  const Project& p = s.project;
  const double fyk = p.fyk;
  const double g0 = p.gammaM0;
  const double g1 = p.gammaM1;
  const double eps = p.epsilon;
  const double b = c.b, tf = c.tf, tw = c.tw, hw = c.hw;

  // 7. Shear along z.
  const double neta = p.neta;
  const double sqrt3 = Sqrt(3);
  const Single webSlenderness = ToSingle(Div(hw, tw));
  const Single stockyLimit = ToSingle(Div(72 * eps, neta));
  if (webSlenderness < stockyLimit) {
    const int type = p.ProfileType;
    if (type == 5 || type == 16 || type == 103) {
      c.Avz = c.A - 2 * b * tf + (static_cast<double>(c.r) + tw) * tf;
    } else if (type == 21) {
      c.Avz = neta * hw * tw;
    } else {
      c.Avz = c.A - 2 * b * tf + (2 * static_cast<double>(c.r) + tw) * tf;
      if (c.Avz < neta * hw * tw) c.Avz = neta * hw * tw;
    }
    c.VzRd = Div(Div(c.Avz * Div(fyk, sqrt3), g0), 1000);
  } else {
    // A slender web: the shear buckling factor of a web without stiffeners.
    const double lamdaW = Div(hw, 86.4 * eps * tw);
    const double chiW = lamdaW < Div(0.83, neta) ? neta : Div(0.83, lamdaW);
    c.Avz = tw * hw;
    c.VzRd = Div(Div(Div(c.Avz * chiW * fyk, sqrt3), g1), 1000);
  }

  // 8. Plastic shear along z.
  c.VplRd = ToSingle(Div(Div(c.Avz * Div(fyk, sqrt3), g0), 1000));

  // 9. Shear along y: the two flanges.
  c.Avy = 2 * b * tf;
  c.VyRd = Div(Div(c.Avy * Div(fyk, sqrt3), g0), 1000);
}

}  // namespace vn
