// Flexural buckling of 6.3.1: the buckling curve of each axis, the Euler loads, slenderness and
// reduction factors, and the torsional and torsional-flexural critical loads of 6.3.1.4.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "checks/buckling.h"
#include "core/state.h"
#include "design/design_basis.h"

namespace vn {

namespace {

// Curve index as the lists count them: 1 a0, 2 a, 3 b, 4 c, 5 d.
enum Curve { kA0 = 1, kA = 2, kB = 3, kC = 4, kD = 5 };

const char* CurveText(int curve) {
  static const char* const texts[6] = {"", "a0", "a", "b", "c", "d"};
  return curve >= 1 && curve <= 5 ? texts[curve] : "";
}

double CurveAlpha(int curve) {
  switch (curve) {
    case kA0: return 0.13;
    case kA: return 0.21;
    case kB: return 0.34;
    case kC: return 0.49;
    case kD: return 0.76;
  }
  return 0;
}

// The curves of a family for Auto, about y and about z; false when the family has no row.
bool AutoCurves(const State& s, int& y, int& z) {
  const Project& p = s.project;
  const Section& c = s.section;
  const int type = p.ProfileType;
  const bool high = p.fyk > 440;  // S460 and above
  const double h = c.h, b = c.b, tf = c.tf;
  if ((type >= 1 && type <= 4) || type == 15 || type == 101 || type == 102) {
    if (h > 1.2 * b) {
      if (high) {
        y = tf <= 40 ? kA0 : kA;
        z = tf <= 40 ? kA0 : kA;
      } else {
        y = tf <= 40 ? kA : kB;
        z = tf <= 40 ? kB : kC;
      }
    } else {
      if (high) {
        y = tf <= 100 ? kA : kC;
        z = tf <= 100 ? kA : kC;
      } else {
        y = tf <= 100 ? kB : kD;
        z = tf <= 100 ? kC : kD;
      }
    }
    return true;
  }
  switch (type) {
    case 5:
    case 16:
    case 26:
    case 28: y = z = kC; return true;
    case 6:
    case 7:  // hot finished hollow sections
      y = z = high ? kA0 : kA;
      return true;
    case 8:
    case 9:  // cold formed hollow sections
      y = z = kC;
      return true;
    case 10:
    case 11: y = z = kB; return true;
    case 21:
    case 22:
    case 41:
      y = c.tmax <= 40 ? kB : kC;
      z = c.tmax <= 40 ? kC : kD;
      return true;
    case 23: {
      const bool slender = Div(b, tf) >= 30 || Div(h, c.tw) >= 30 || p.p23.oweld == 1;
      y = z = slender ? kB : kC;
      return true;
    }
    case 31: y = z = p.p31.hotCold == 0 ? kC : (high ? kA0 : kA); return true;
  }
  return false;
}

// Euler load (kN), slenderness and chi about one axis.
struct AxisBuckling {
  double Ncr = 0, lamda = 0, chi = 0;
};

AxisBuckling AxisFactors(const State& s, double factor, Single I) {
  const Project& p = s.project;
  const Section& c = s.section;
  AxisBuckling a;
  const double length = factor * 1000 * static_cast<double>(p.L);  // mm
  a.Ncr = Div(PiSingle * PiSingle * p.E, length * length) * I / 1000;
  const double NRk = static_cast<double>(p.fyk) * (c.classN < 4 ? c.A : c.Aeff);
  a.lamda = Sqrt(Div(NRk, a.Ncr * 1000));
  return a;
}

}  // namespace

double FlexuralChi(double lamda, double alpha) {
  double chi = 1;
  if (lamda > 0.2) {
    const double phi = 0.5 * (1 + alpha * (lamda - 0.2) + lamda * lamda);
    chi = Div(1, phi + Sqrt(phi * phi - lamda * lamda));
  }
  return chi > 1 ? 1 : chi;
}

void SelectBucklingCurve(State& s) {
  const Project& p = s.project;
  Checks& k = s.checks;
  int autoY = 0, autoZ = 0;
  const bool hasRow = AutoCurves(s, autoY, autoZ);
  auto choose = [&](int chosen, int autoCurve, double& alpha, std::string& text) {
    const int curve = chosen >= 1 && chosen <= 5 ? chosen : (hasRow ? autoCurve : 0);
    if (curve == 0) return;  // no row for the family: the last run's curve stands
    alpha = CurveAlpha(curve);
    text = CurveText(curve);
  };
  choose(p.bucklingCurveY, autoY, k.alphaY, k.curveTextY);
  choose(p.bucklingCurveZ, autoZ, k.alphaZ, k.curveTextZ);
}

namespace {

// The torsional-flexural critical force of an unequal angle (kN): the lowest root of
//   i0^2 (N - Nu)(N - Nv)(N - NT) - N^2 u0^2 (N - Nv) - N^2 v0^2 (N - Nu) = 0,
// u0 and v0 the shear centre's co-ordinates from the centroid on the principal axes, Nu and Nv the
// flexural critical forces about u and v, NT the torsional one. The cubic is negative at 0 and not
// negative at the least of Nu, Nv, NT, with its only root below that least one there: bisection
// finds it. (dy, dz) is the shear centre's offset from the centroid along the legs; u runs at alfa
// from y.
double AngleNcrTF(const State& s, double dy, double dz, double i02) {
  const Section& c = s.section;
  const Checks& k = s.checks;
  const double a = static_cast<double>(c.alfa) * std::numbers::pi / 180;
  const double u0 = dy * std::cos(a) + dz * std::sin(a);
  const double v0 = dz * std::cos(a) - dy * std::sin(a);
  const double Nu = k.Ncru, Nv = k.Ncrv, NT = k.NcrT;
  auto f = [&](double N) {
    return i02 * (N - Nu) * (N - Nv) * (N - NT) - N * N * u0 * u0 * (N - Nv) - N * N * v0 * v0 * (N - Nu);
  };
  double lo = 0, hi = std::min({Nu, Nv, NT});
  if (!(hi > 0) || !std::isfinite(hi)) return hi;
  for (int i = 0; i < 200 && hi - lo > 1e-9 * hi; ++i) {
    const double mid = 0.5 * (lo + hi);
    (f(mid) < 0 ? lo : hi) = mid;
  }
  return hi;
}

}  // namespace

bool StrutLetOff(const State& s, double NEd) {
  const Checks& k = s.checks;
  bool stocky = k.lamday <= 0.2 && k.lamdaz <= 0.2;
  bool light = std::fabs(Div(NEd, k.Ncry)) <= 0.04 && std::fabs(Div(NEd, k.Ncrz)) <= 0.04;
  if (k.lamdaT > 0) {  // the strict rules' torsional mode
    stocky = stocky && k.lamdaT <= 0.2;
    light = light &&
            std::fabs(Div(NEd, std::min(static_cast<double>(k.NcrT), static_cast<double>(k.NcrTF)))) <= 0.04;
  }
  return stocky || light;
}

void BucklingFactors(State& s) {
  const Project& p = s.project;
  const Section& c = s.section;
  Checks& k = s.checks;
  const int type = p.ProfileType;

  // An angle connected by one leg takes the effective slenderness of the angle rules.
  const bool oneLeg = (type == 10 || type == 11) && p.angleOption == 2;

  const AxisBuckling y = AxisFactors(s, p.bucklingFactorY, c.Iy);
  k.Ncry = y.Ncr;
  k.lamday = y.lamda;
  if (oneLeg) k.lamday = 0.5 + 0.7 * k.lamday;
  k.chiy = FlexuralChi(k.lamday, k.alphaY);
  k.NbyRd = k.chiy * c.NRdBuck;

  const AxisBuckling z = AxisFactors(s, p.bucklingFactorZ, c.Iz);
  k.Ncrz = z.Ncr;
  k.lamdaz = z.lamda;
  if (oneLeg) k.lamdaz = 0.5 + 0.7 * k.lamdaz;
  k.chiz = FlexuralChi(k.lamdaz, k.alphaZ);
  k.NbzRd = k.chiz * c.NRdBuck;

  k.lamdaMax = std::max(k.lamday, k.lamdaz);

  // An angle also buckles about its principal axes: v with the z length, u with the y length, both
  // on the gross area and curve of z. A leg connection takes 0.35 + 0.7 lamda on both.
  if (type == 10 || type == 11) {
    const double NRk = static_cast<double>(p.fyk) * c.A;
    auto principal = [&](double factor, Single I, double& Ncr, double& lamda, double& chi, double& Nb) {
      const double length = factor * 1000 * static_cast<double>(p.L);
      Ncr = Div(PiSingle * PiSingle * p.E, length * length) * I / 1000;
      lamda = Sqrt(Div(NRk, Ncr * 1000));
      if (oneLeg) lamda = 0.35 + 0.7 * lamda;
      chi = FlexuralChi(lamda, k.alphaZ);
      Nb = chi * c.NRdBuck;
    };
    principal(p.bucklingFactorZ, c.Iv, k.Ncrv, k.lamdav, k.chiv, k.NbvRd);
    principal(p.bucklingFactorY, c.Iu, k.Ncru, k.lamdau, k.chiu, k.NbuRd);
  }

  // Torsional and torsional-flexural critical loads. The length of the torsional mode is the LT
  // length of this run; with the LT control off the member is held against twist at its ends and
  // buckles over its length about z.
  const double A = c.A;
  const double is2 = Div(c.Iz, A) + Div(c.Iy, A);
  const double LTlength = p.ltbOn == 1 ? k.LTlength : static_cast<double>(p.bucklingFactorZ) * p.L;
  const double LT = LTlength * 1000;
  const double E = p.E, G = E / 2.6;
  double i02 = is2;
  double Ncr = 0, dy = 0, dz = 0;
  bool flexuralMode = true;
  const bool strict = StrictRules(s);
  if (type == 5 || type == 16 || type == 103) {
    // Channel: the shear centre lies off the web, on the far side from the centroid. The program's
    // own method adds ey, the centroid's distance from the back of the web, to em, which is already
    // the distance from the centroid to the shear centre; the strict rules take y0 = em.
    const double y0 = strict ? static_cast<double>(c.em) : static_cast<double>(c.ey) + c.em;
    i02 = is2 + y0 * y0;
    Ncr = k.Ncry;
  } else if (type == 10 || type == 11) {
    // The shear centre of an angle lies where the legs' mid-lines meet.
    dy = static_cast<double>(c.eyc) - c.tw / 2.0;
    dz = static_cast<double>(c.ez) - c.tw / 2.0;
    i02 = is2 + dy * dy + dz * dz;
    // An equal angle is symmetric about u, on which its shear centre lies: twist couples with flexure
    // about u. The program's own method takes flexure about y; the strict rules take u.
    Ncr = strict && type == 10 ? k.Ncru : k.Ncry;
  } else if (type == 22) {
    // Symmetric about z, the shear centre off the centroid on z: torsion couples with flexure about
    // the axis of symmetry, z. The program's own method couples it with flexure about y, which gives
    // a higher Ncr,TF; the strict rules take Ncr,z.
    i02 = is2 + k.zs * k.zs;
    Ncr = strict ? k.Ncrz : k.Ncry;
  } else if (type == 26) {
    const double d = static_cast<double>(c.ez) - c.tf / 2.0;
    i02 = is2 + d * d;
    Ncr = k.Ncrz;
  } else {
    flexuralMode = false;  // a double symmetric section has no torsional-flexural mode
  }
  k.NcrT = (Div(PiSingle * PiSingle * E * c.Iw, LT * LT) + G * c.Ix) * Div(1, i02) / 1000;
  if (!flexuralMode) {
    k.NcrTF = 1.0E+25;
  } else {
    const double sum = Ncr + k.NcrT;
    k.NcrTF = Div(i02, 2 * is2) * (sum - Sqrt(sum * sum - Div(4 * Ncr * k.NcrT * is2, i02)));
  }
  // The shear centre of an unequal angle lies off both principal axes: twist couples with flexure
  // about both, and the strict rules take the lowest root of the full cubic (it lies below Ncr,v, so
  // that this mode, not flexure about v, is the member's lowest).
  if (strict && type == 11) k.NcrTF = AngleNcrTF(s, dy, dz, i02);

  // 6.3.1.4: a section with a torsional-flexural mode (channel, angle, T, single symmetric I) also
  // buckles in torsion or torsional-flexure, lamda,T = sqrt(A fy/Ncr) with Ncr the smaller of Ncr,T
  // and Ncr,TF (Aeff for class 4), on the buckling curve about z. The program's own method has no
  // such line. Under the strict rules the z line takes that mode where its resistance is the lower
  // one, and chi,z of the interaction with it (the lower of the two reduction factors).
  k.lamdaT = k.chiT = k.NbTRd = 0;
  k.torsionalGoverns = False;
  if (strict && flexuralMode) {
    const double NcrMode = std::min(static_cast<double>(k.NcrT), static_cast<double>(k.NcrTF));
    const double NRk = static_cast<double>(p.fyk) * (c.classN < 4 ? c.A : c.Aeff);
    k.lamdaT = Sqrt(Div(NRk, NcrMode * 1000));
    k.chiT = FlexuralChi(k.lamdaT, k.alphaZ);
    k.NbTRd = k.chiT * c.NRdBuck;
    if (k.NbTRd < k.NbzRd) {
      k.chiz = k.chiT;
      k.NbzRd = k.NbTRd;
      k.torsionalGoverns = True;
    }
  }
}

}  // namespace vn
