// Lateral torsional buckling of 6.3.2: the moment factors C1, C2, C3, the elastic critical moment,
// the reduction factor by the general case (6.3.2.2) or the rolled and welded case (6.3.2.3), the
// parts of a member between lateral restraints, and the critical moment for uniform moment that
// Method 1 of the interaction factors reads.
//
// The factors come from one of four places: a table by support type and load shape for a loaded
// member without restraints, a table by the end moment ratio for each part otherwise, the closed
// formula of the ECCS rules on request, or the user.
#include <cmath>
#include <limits>

#include "checks/buckling.h"
#include "core/format.h"
#include "core/state.h"
#include "design/design_basis.h"

namespace vn {

namespace {

CFactors Row(double C1, double C2, double C3) { return {C1, C2, C3}; }

CFactors Mix(double a, const CFactors& x, double b, const CFactors& y) {
  return {a * x.C1 + b * y.C1, a * x.C2 + b * y.C2, a * x.C3 + b * y.C3};
}

bool DoubleSymmetricLtb(int type) { return DoubleSymmetricLtbFamily(type); }

bool PlateFamily(int type) { return type >= 51 && type <= 56; }

// The stiffeners with a flange (52, 53, 54, 56) trip under the strict rules by their own properties;
// the flat bar (51) keeps its own formula.
bool StrictTripping(const State& s) {
  const int type = s.project.ProfileType;
  return StrictRules(s) && (type == 52 || type == 53 || type == 54 || type == 56);
}

// The elastic critical stress of the stiffener's torsional buckling about its junction with the
// plate (EN 1993-1-5 9.2.1 (8)), N/mm2, over the length LT (mm):
//   sigma_cr = (G It + pi^2 E Iw / LT^2) / Ip
// of the stiffener alone (web hw x tw, flange b2 x tf2), the pole on the plate's face at the web:
//   It = hw tw^3/3 (1 - 0.63 tw/hw) + b2 tf2^3/3 (1 - 0.63 tf2/b2)
//   Iw = hf^2 tf2 b2^3/12, hf = hw + tf2/2 (the flange's sway about the junction)
//   Ip = tw hw^3/3 + hw tw^3/12 + b2 tf2 (hf^2 + e^2) + b2 tf2^3/12 + tf2 b2^3/12, e the flange's
//        centre from the web's (b2/2 - tw/2 for the one-sided flange of an angle or a bulb, else 0).
// Each choice lies on the safe side: the plate's restraint against the stiffener's rotation is left
// out, and so are the warping of the plates about their own mid-planes and the rolled angle's
// fillet; the one-sided flange counts in Iw by its own lateral inertia only, without its
// eccentricity (which the web's bending partly takes up), but in Ip with it. The whole stiffener
// is taken at the stress of its tip, whereas the stress falls to the axis and turns to tension in
// the plate, and no C1 raises it for a moment that varies along LT.
double TrippingStress(const State& s, double LT) {
  const Section& c = s.section;
  const Project& p = s.project;
  const double E = p.E, G = E / 2.6;
  const double hw = c.hw, tw = c.tw, b2 = c.b2, tf2 = c.tf2;
  const double e = s.project.ProfileType == 56 ? 0 : b2 / 2 - tw / 2;
  const double hf = hw + tf2 / 2;
  const double It =
      hw * tw * tw * tw / 3 * (1 - 0.63 * Div(tw, hw)) + b2 * tf2 * tf2 * tf2 / 3 * (1 - 0.63 * Div(tf2, b2));
  const double Iw = hf * hf * tf2 * b2 * b2 * b2 / 12;
  const double Ip = tw * hw * hw * hw / 3 + hw * tw * tw * tw / 12 + b2 * tf2 * (hf * hf + e * e) +
                    b2 * tf2 * tf2 * tf2 / 12 + tf2 * b2 * b2 * b2 / 12;
  return Div(G * It + Div(PiSingle * PiSingle * E * Iw, LT * LT), Ip);
}

// The reduction of the stiffener's tripping under the strict rules (EN 1993-1-1 6.3.2.2 with the
// critical moment of the stiffener's torsional buckling). The plate compressed (M > 0) is held in
// its plane by the panel and the stiffener's free edge is in tension: nothing trips, xLT = 1. The
// free edge compressed: Mcr = sigma_cr Wyb, the moment that brings the stiffener's edge to
// sigma_cr; lamdaLT = sqrt(Wy fy / Mcr) with the modulus Wy of the resistance the line divides by
// (plastic, elastic or effective by the class); curve d (alpha 0.76), as for a section that is not
// an I. Where sigma_cr >= 6 fy the stiffener does not buckle torsionally (EN 1993-1-5 9.2.1 (8)):
// xLT = 1. The standard's let-off leaves a step there (just below it the curve gives 0.85 or less),
// which is the standard's own and on the safe side of it.
void TrippingChi(State& s, double M) {
  const Project& p = s.project;
  const Section& c = s.section;
  Checks& k = s.checks;
  if (!(M < 0)) {
    k.lamdaLT = 0;
    k.xLT = 1;
    return;
  }
  const double fyk = p.fyk;
  k.lamdaLT = Sqrt(Div(fyk * c.WyNeg, k.McrWork));
  const double sigmaCr = Div(k.McrWork, c.Wyb);
  if (sigmaCr >= 6 * fyk) {
    k.xLT = 1;
    return;
  }
  const double lt = k.lamdaLT;
  const double phi = 0.5 * (1 + 0.76 * (lt - 0.2) + lt * lt);
  k.xLT = Div(1, phi + Sqrt(phi * phi - lt * lt));
  if (k.xLT > 1) k.xLT = 1;
}

// (LT^2 G It / E + Iw ... ) / Iz: the torsion and warping term under the root of Mcr, LT in mm.
double TorsionTerm(const State& s, double LT) {
  const Project& p = s.project;
  const Section& c = s.section;
  const double E = p.E, G = E / 2.6;
  return Div(Div(Div(LT * LT * G * c.Ix, E), PiSingle * PiSingle), c.Iz) + Div(c.Iw, c.Iz);
}

// The elastic critical moment of the family over LT (mm), Nmm. w is C2 zg - C3 zj. False when the
// family has no formula, and the value is then not to be used.
bool McrFormula(const State& s, double LT, double C1, double w, double& Mcr) {
  const Project& p = s.project;
  const Section& c = s.section;
  const Checks& k = s.checks;
  const int type = p.ProfileType;
  const double E = p.E, G = E / 2.6;
  if (DoubleSymmetricLtb(type) || type == 22) {
    const double X = TorsionTerm(s, LT);
    Mcr = C1 * Div(PiSingle * PiSingle * E * c.Iz, LT * LT) * (Sqrt(X + w * w) - w);
    return true;
  }
  if (type == 51) {  // plate with a flat bar
    const double r = Div(c.hw, LT);
    Mcr = (1 + 2 * r * r) * G * std::pow(Div(c.tw, c.h), 2) * c.Wyt;
    return true;
  }
  if (StrictTripping(s)) {
    Mcr = TrippingStress(s, LT) * c.Wyb;
    return true;
  }
  if (PlateFamily(type)) {
    const double tf2tw = Div(c.tf2, c.tw);
    const double web = Div(c.tw, static_cast<double>(c.h) - c.tf);
    Mcr = (Div((tf2tw * tf2tw * k.bpl + k.hpl) * G * web * web, 3 * k.bpl + k.hpl) +
           Div(Div(PiSingle * PiSingle * E * c.Iz, k.hpl / 3 + k.bpl), LT * LT)) *
          c.Wyt;
    return true;
  }
  return false;
}

double LtbResistance(const State& s, double M) { return LtbResistanceOf(s, M); }
void RunChi(State& s, double M) { RunLtbChi(s, M); }

}  // namespace

bool DoubleSymmetricLtbFamily(int type) {
  return (type >= 1 && type <= 5) || type == 15 || type == 16 || type == 21 || type == 28 ||
         (type >= 101 && type <= 103) || type == 41;
}

// The resistance the LT ratio divides by: the family's, or for the single symmetric and plate
// families that of the flange in compression under the moment's sign.
double LtbResistanceOf(const State& s, double M) {
  const int type = s.project.ProfileType;
  if (type == 22 || PlateFamily(type)) return M > 0 ? s.checks.MyRdBuckPos : s.checks.MyRdBuckNeg;
  return s.section.MyRdBuck;
}

// Channels, flat bars and plates have only the general curve: the rolled curve is not offered for
// them, so they take the general one whether or not the dialog has been opened since the family
// was chosen. Otherwise a channel would inherit the reduction factor of the previous section.
void RunLtbChi(State& s, double M) {
  const int type = s.project.ProfileType;
  const bool generalOnly = type == 5 || type == 16 || type == 28 || type == 103 || (type >= 51 && type <= 56);
  if (s.project.ltbCurve == 2 || generalOnly)
    ChiGeneral(s, M);
  else
    ChiRolled(s, M);
}

double LtbLoadHeight(const State& s) {
  const Project& p = s.project;
  const Section& c = s.section;
  const Checks& k = s.checks;
  const int type = p.ProfileType;
  if (type == 41) return 0;  // the general section knows no flanges: the load acts at its centre
  if (type == 22) {
    double Za = 0;
    switch (p.ltbLoadLevel) {
      case 1: Za = static_cast<double>(c.h) - k.ezb; break;
      case 3: Za = -k.ezb; break;
      case 4: Za = p.ltbZa; break;
    }
    return Za - k.zs;
  }
  switch (p.ltbLoadLevel) {
    case 1: return c.h / 2.0;
    case 3: return -c.h / 2.0;
    case 4: return p.ltbZa;
  }
  return 0;
}

// ---- The tables ----

CFactors LoadCaseCFactors(int supportType, bool curved, double k, int springPct, double M0, double Mmid,
                          double ML) {
  // A cantilever takes half its length factor for the table, and its row by the moments.
  if (supportType == 4) k = k / 2;
  const double kk = (1 - k) / 0.5;
  const double s = springPct / 100.0;
  const CFactors Aq = Row(1.12 - 0.15 * kk, 0.45 - 0.09 * kk, 0.525 - 0.047 * kk);
  const CFactors AP = Row(1.35 - 0.3 * kk, 0.59 - 0.11 * kk, 0.411 - 0.073 * kk);
  // The spring cases were tabled apart: their pinned P-load row differs from AP.
  const CFactors APs = Row(1.35 - 0.28 * kk, 0.59 - 0.158 * kk, 0.411 - 0.073 * kk);
  const CFactors Bq = Row(2.578 - 1.866 * kk, 1.562 - 0.91 * kk, 0.753 + 0.317 * kk);
  const CFactors BP = Row(1.565 - 0.627 * kk, 1.267 - 0.552 * kk, 2.645 + 2.16 * kk);
  switch (supportType) {
    case 0: return curved ? Aq : AP;
    case 1: return curved ? Mix(0.5, Aq, 0.5, Bq) : Mix(0.5, AP, 0.5, BP);
    case 2: return curved ? Bq : BP;
    case 3: return curved ? Mix(s, Bq, 1 - s, Aq) : Mix(s, BP, 1 - s, APs);
    case 4: return std::fabs(Mmid) > 1.2 * std::fabs(M0 + ML) / 2 ? Aq : AP;
    case 5:
      return curved ? Mix(s, Mix(0.5, Aq, 0.5, Bq), 1 - s, Aq) : Mix(s, Mix(0.5, AP, 0.5, BP), 1 - s, APs);
  }
  return {};
}

CFactors MomentRatioTable(double psi, double psif, double k) {
  const double kk2 = (k - 0.5) / 0.5;
  double C1a, C1b, C3a = 1, C3b = 1;
  if (psi >= 0.75) {
    const double t = (psi - 0.75) / 0.25;
    C1a = 1.19 - 0.14 * t;
    C1b = 1.14 - 0.14 * t;
    C3a = 1.017 + 0.002 * t;
  } else if (psi >= 0.5) {
    const double t = (psi - 0.5) / 0.25;
    C1a = 1.37 - 0.18 * t;
    C1b = 1.31 - 0.17 * t;
    C3a = 1 + 0.017 * t;
  } else if (psi >= 0.25) {
    const double t = (psi - 0.25) / 0.25;
    C1a = 1.6 - 0.23 * t;
    C1b = 1.52 - 0.21 * t;
  } else if (psi >= 0) {
    const double t = psi / 0.25;
    C1a = 1.86 - 0.26 * t;
    C1b = 1.77 - 0.25 * t;
  } else if (psi >= -0.25) {
    const double t = (psi + 0.25) / 0.25;
    C1a = 2.15 - 0.29 * t;
    C1b = 2.06 - 0.29 * t;
    if (psif > 0) {
      const double u = (psi + 0.5) / 0.25;  // from -0.5, as the table was set up
      C3a = 0.65 + 0.35 * u;
      C3b = 0.85 + 0.15 * u;
    }
  } else if (psi >= -0.5) {
    const double t = (psi + 0.5) / 0.25;
    C1a = 2.42 - 0.27 * t;
    C1b = 2.35 - 0.29 * t;
    if (psif <= 0) {
      C3a = 0.95 + 0.05 * t;
    } else {
      C3a = (0.77 - psif) + t * (0.65 - (0.77 - psif));
      C3b = (1.3 - 1.2 * psif) + t * (0.85 - (1.3 - 1.2 * psif));
    }
  } else if (psi >= -0.75) {
    const double t = (psi + 0.75) / 0.25;
    C1a = 2.45 - 0.03 * t;
    C1b = 2.6 - 0.25 * t;
    if (psif <= 0) {
      C3a = 0.85 + 0.1 * t;
    } else {
      C3a = (0.35 - psif) + t * 0.42;
      C3b = (0.55 - psif) + t * ((1.3 - 1.2 * psif) - (0.55 - psif));
    }
  } else {
    C1a = 2.45;
    C1b = 2.6;
    const double v = (psi + 0.75) / 0.25;
    if (psif <= 0) {
      C3a = (0.125 - 0.7 * psif) + v * (0.85 - (0.125 - 0.7 * psif));
      C3b = -psif + v * (1 + psif);
    } else {
      C3a = -psif + v * ((0.35 - psif) - (-0.125 - 0.7 * psif));
      C3b = -psif + v * ((0.55 - psif) + psif);
    }
  }
  CFactors f;
  f.C1 = C1a + kk2 * (C1b - C1a);
  f.C3 = C3a + kk2 * (C3b - C3a);
  return f;
}

double AlternativeC1Of(double k, const double M[5], double Mmax) {
  // Both end factors of the formula are the one length factor k.
  const double a1 = 1 - k;
  const double a2 = Div(5 * k * k * k, k * k);
  const double a3 = 5 * (Div(1, k) + Div(1, k));
  const double a4 = Div(5 * k * k * k, k * k);
  const double a5 = 1 - k;
  const double A = Div(Mmax * Mmax + a1 * M[0] * M[0] + a2 * M[1] * M[1] + a3 * M[2] * M[2] +
                           a4 * M[3] * M[3] + a5 * M[4] * M[4],
                       (1 + a1 + a2 + a3 + a4 + a5) * Mmax * Mmax);
  const double B = std::fabs(Div(M[0] + 2 * M[1] + 3 * M[2] + 2 * M[3] + M[4], 9 * Mmax));
  const double q = Sqrt(Sqrt(k * k));
  const double h = (1 - q) * B / 2;
  return Div(Sqrt(q * A + h * h) + h, A);
}

std::string PartLabel(int i, int n, bool dc) {
  const std::string N = FormatNumber(n, "#0", dc);
  if (i == 0) return "0 - L/" + N;
  const std::string I = FormatNumber(i, "#0", dc);
  if (i == n - 1) return I + "L/" + N + " - " + " L";
  return I + "L/" + N + " - " + FormatNumber(i + 1, "#0", dc) + "L/" + N;
}

// ---- The routines ----

void CFactorsFromLoad(State& s) {
  const Project& p = s.project;
  const Analysis& an = s.analysis;
  Checks& k = s.checks;
  const CFactors f = LoadCaseCFactors(p.SupportType, an.ShapeY.Curved != 0, p.ltbFactor, p.SpringPct,
                                      an.MyGrid[0], an.MyGrid[25], an.MyGrid[50]);
  k.C1 = f.C1;
  k.C2 = f.C2;
  k.C3 = f.C3;
  if (p.ltbUserC != 0) {
    k.C1 = p.ltbC1;
    k.C2 = p.ltbC2;
    k.C3 = p.ltbC3;
  }
  // The closed formula goes above a C1 typed by the user.
  if (p.ltbUserC1 != 0 && an.MyAbs != 0) {
    const double M[5] = {an.MyGrid[0], an.MyGrid[12], an.MyGrid[25], an.MyGrid[38], an.MyGrid[50]};
    k.C1 = AlternativeC1Of(p.ltbFactor, M, an.MyGov);
  }
  k.kc = Div(1, Sqrt(k.C1));
}

void CriticalMoment(State& s) {
  Project& p = s.project;
  Checks& k = s.checks;
  const int type = p.ProfileType;
  const double zg = LtbLoadHeight(s);
  if (type == 41) {
    // The general section knows no flanges: the load acts at the shear centre.
    p.ltbZa = 0;
    p.ltbLoadLevel = 2;
  }
  k.LTlength = static_cast<double>(p.ltbFactor) * p.L;
  const double LT = 1000 * k.LTlength;
  double w = k.C2 * zg;
  if (type == 22) w -= k.C3 * (k.MyLT > 0 ? k.zjTop : k.zjBot);
  double Mcr = 0;
  if (McrFormula(s, LT, k.C1, w, Mcr)) k.McrWork = Mcr;
}

void ChiRolled(State& s, double M) {
  const Project& p = s.project;
  const Section& c = s.section;
  Checks& k = s.checks;
  const int type = p.ProfileType;
  double alpha, W;
  if ((type >= 1 && type <= 4) || type == 101 || type == 102) {
    alpha = Div(c.h, c.b) <= 2 ? 0.34 : 0.49;
    W = c.Wy;
  } else if (type == 21 || type == 41) {
    alpha = Div(c.h, c.b) <= 2 ? 0.49 : 0.76;
    W = c.Wy;
  } else if (type == 22) {
    if (M > 0) {
      alpha = Div(c.h, c.b1) <= 2 ? 0.49 : 0.76;
      W = c.Wyb;
    } else {
      alpha = Div(c.h, c.b2) <= 2 ? 0.49 : 0.76;
      W = c.Wyt;
    }
  } else {
    return;  // no row: the factors keep what they held (INP and the channels among them)
  }
  k.lamdaLT = Sqrt(Div(static_cast<double>(p.fyk) * W, k.McrWork));
  const double lamda0 = type == 22 ? p.lamdaLT0w : p.lamdaLT0;
  const double beta = type == 22 ? p.betaw : p.beta;
  const double lt = k.lamdaLT;
  const double phi = 0.5 * (1 + alpha * (lt - lamda0) + beta * lt * lt);
  double chi = Div(1, phi + Sqrt(phi * phi - beta * lt * lt));
  if (chi > 1) chi = 1;
  const double d = lt - 0.8;
  k.fLT = 1 - 0.5 * (1 - k.kc) * (1 - 2 * d * d);
  if (k.fLT > 1) k.fLT = 1;
  k.XLt = chi;
  k.xLT = Div(chi, k.fLT);
  const double bound = Div(1, lt * lt);
  if (k.xLT > bound) k.xLT = bound;
  if (k.xLT > 1) k.xLT = 1;
}

void ChiGeneral(State& s, double M) {
  const Project& p = s.project;
  const Section& c = s.section;
  Checks& k = s.checks;
  const int type = p.ProfileType;
  double alpha, W;
  if ((type >= 1 && type <= 4) || type == 15 || type == 101 || type == 102) {
    alpha = Div(c.h, c.b) <= 2 ? 0.21 : 0.34;
    W = c.Wy;
  } else if (type == 21) {
    alpha = Div(c.h, c.b) <= 2 ? 0.49 : 0.76;
    W = c.Wy;
  } else if (type == 5 || type == 16 || type == 28 || type == 41 || type == 103) {
    alpha = 0.76;
    W = c.Wy;
  } else if (type == 22) {
    if (M > 0) {
      alpha = Div(c.h, c.b1) <= 2 ? 0.49 : 0.76;
      W = c.Wyb;
    } else {
      alpha = Div(c.h, c.b2) <= 2 ? 0.49 : 0.76;
      W = c.Wyt;
    }
  } else if (type == 51) {
    alpha = 0.76;
    W = c.Wyt;
  } else if (StrictTripping(s)) {
    TrippingChi(s, M);
    return;
  } else if (PlateFamily(type)) {
    alpha = Div(c.hw, c.b2) <= 2 ? 0.49 : 0.76;
    W = c.Wyt;
  } else {
    return;
  }
  k.lamdaLT = Sqrt(Div(static_cast<double>(p.fyk) * W, k.McrWork));
  const double lt = k.lamdaLT;
  const double phi = 0.5 * (1 + alpha * (lt - 0.2) + lt * lt);
  k.xLT = Div(1, phi + Sqrt(phi * phi - lt * lt));
  if (k.xLT > 1) k.xLT = 1;
}

namespace {

void LateralTorsionalFromTables(State& s) {
  Project& p = s.project;
  const Analysis& an = s.analysis;
  Checks& k = s.checks;

  if (p.AnalysisMode == 1 && p.ltbRestraints == 0) {
    // A loaded member with no restraint between its ends: the factors by the load shape.
    k.MyLT = an.MyGov;
    CFactorsFromLoad(s);
    CriticalMoment(s);
    RunChi(s, k.MyLT);
    k.MyRdLT = LtbResistance(s, k.MyLT);
    k.Mcr = k.McrWork;
    return;
  }

  // The member in equal parts between the restraints, each with the factors of its end moments.
  if (p.ltbRestraints < 0 || p.ltbRestraints > 6) Fault("subscript out of range");
  const int n = p.ltbRestraints + 1;
  k.MyRdLT = 1.0E+16;
  k.LTlength = static_cast<double>(p.ltbFactor) * p.L / n;
  const double LT = 1000 * k.LTlength;
  const int type = p.ProfileType;
  double best = 0;
  double keptKc = k.kc, keptXLT = k.xLT, keptXLt = k.XLt, keptFLT = k.fLT;
  for (int i = 0; i < n; ++i) {
    const int i1 = ToInteger(i * 50.0 / n);
    const int i2 = ToInteger((i + 1) * 50.0 / n);
    const double Ma = an.MyGrid.at(static_cast<size_t>(i1));
    const double Mb = an.MyGrid.at(static_cast<size_t>(i2));
    // The larger end moment; on equal magnitude the far end's.
    const bool bIsBig = std::fabs(Mb) >= std::fabs(Ma);
    const double Mbig = bIsBig ? Mb : Ma;
    const double Msmall = bIsBig ? Ma : Mb;
    const double psi = Mbig == 0 ? 0 : Msmall / Mbig;
    const double psif = (Ma + Mb) / 2 > 0 ? k.psifTop : k.psifBot;
    const CFactors f = MomentRatioTable(psi, psif, p.ltbFactor);

    double w = 0;
    if (type == 22) w = -f.C3 * (Mbig > 0 ? k.zjTop : k.zjBot);
    double McrPart = k.McrWork;
    McrFormula(s, LT, f.C1, w, McrPart);
    k.McrWork = McrPart;
    k.kc = Div(1, Sqrt(f.C1));
    RunChi(s, Mbig);

    const double MRd = LtbResistance(s, Mbig);
    const double ratio = std::fabs(Div(Mbig, k.xLT * MRd));
    if (ratio >= best) {  // a later part wins a tie
      best = ratio;
      k.MyLT = Mbig;
      k.MyRdLT = MRd;
      k.C1 = f.C1;
      k.C3 = f.C3;
      p.ltbPart = static_cast<Integer>(i);
      k.Mcr = McrPart;
      keptKc = k.kc;
      keptFLT = k.fLT;
      keptXLT = k.xLT;
      keptXLt = k.XLt;
    }
  }
  k.kc = keptKc;
  k.xLT = keptXLT;
  k.XLt = keptXLt;
  k.fLT = keptFLT;
  k.ltbPartLabel.at(static_cast<size_t>(p.ltbPart)) = PartLabel(p.ltbPart, n, s.decimalComma);
}

}  // namespace

void LateralTorsionalControl(State& s) {
  Checks& k = s.checks;
  k.McrByEigen = False;
  k.McrFactor = std::numeric_limits<double>::quiet_NaN();
  k.McrNote.clear();
  // The tables run in either case: they give C1 and kc, and stand in where the eigenvalue analysis
  // finds no Mcr.
  LateralTorsionalFromTables(s);
  if (s.project.ltbMcrMethod == 1) EigenCriticalMoment(s);
}

void CriticalMoment0(State& s) {
  const Project& p = s.project;
  const Section& c = s.section;
  Checks& k = s.checks;
  const int type = p.ProfileType;
  k.LTlength = static_cast<double>(p.ltbFactor) * p.L / (p.ltbRestraints + 1);
  const double LT = 1000 * k.LTlength;
  const double kk2 = (p.ltbFactor - 0.5) / 0.5;
  // Uniform moment: C1 from 1.05 at k = 0.5 to 1 at k = 1, and C3 likewise from 1.019.
  const double C10 = 1.05 + kk2 * (1 - 1.05);
  const double C30 = ToSingle(1.019 + kk2 * (1 - 1.019));
  double w;
  if ((type >= 1 && type <= 5) || type == 21 || type == 41) {
    w = 0;
  } else if (type == 22) {
    w = -C30 * (s.analysis.PointsY.M3 > 0 ? k.zjTop : k.zjBot);
  } else {
    return;  // Mcr0 and lamda0 stay as they were
  }
  const double X = TorsionTerm(s, LT);
  k.Mcr0 = C10 * Div(PiSingle * PiSingle * static_cast<double>(p.E) * c.Iz, LT * LT) * (Sqrt(X + w * w) - w);
  k.lamda0 = Sqrt(Div(static_cast<double>(p.gammaM1) * c.MyRdBuck * 1000000, k.Mcr0));
}

}  // namespace vn
