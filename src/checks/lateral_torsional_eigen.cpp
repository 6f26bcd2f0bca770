// Mcr by eigenvalue analysis of the member, the choice beside the C factor tables in the dialog
// `vipping`. The member's own design moment diagram on the 51-point grid, its transverse loads at the
// dialog's load height, its supports, the k factor and the restraints go to the thin-walled beam
// solver (analysis/ltb_eigen); Mcr is the largest |My| of the diagram times the critical factor.
// From Mcr on the control runs as with the tables: lamdaLT, chi, f with kc of the C factors in force.
//
// Where the solver has no model (a family without one, a k that no end restraint can give) or finds
// no positive critical factor, the tables' Mcr stands and More Results says why.
#include <algorithm>
#include <cmath>
#include <limits>

#include "analysis/ltb_eigen.h"
#include "checks/buckling.h"
#include "core/state.h"

namespace vn {

double WagnerBetaY(double h, double b1, double tf1, double b2, double tf2, double tw) {
  // Three rectangles: the bottom flange, the web, the top flange, each by width and its edges
  // measured from the bottom.
  struct Rect {
    double b, z0, z1;
  };
  const Rect rects[3] = {{b2, 0, tf2}, {tw, tf2, h - tf1}, {b1, h - tf1, h}};
  double A = 0, Sz = 0;
  for (const Rect& r : rects) {
    A += r.b * (r.z1 - r.z0);
    Sz += r.b * (r.z1 * r.z1 - r.z0 * r.z0) / 2;
  }
  if (!(A > 0)) return 0;
  const double zc = Sz / A;  // the centroid above the bottom
  // Iy and Int z (y^2 + z^2) dA about the centroid, z upwards, exact for the rectangles.
  double Iy = 0, S = 0;
  for (const Rect& r : rects) {
    const double a = r.z0 - zc, c = r.z1 - zc;
    Iy += r.b * (c * c * c - a * a * a) / 3;
    S += r.b * r.b * r.b / 12 * (c * c - a * a) / 2 + r.b * (c * c * c * c - a * a * a * a) / 4;
  }
  // The shear centre on the line between the flanges' mid-planes, nearer the stiffer flange.
  const double Iz1 = b1 * b1 * b1 * tf1 / 12, Iz2 = b2 * b2 * b2 * tf2 / 12;
  if (!(Iy > 0) || !(Iz1 + Iz2 > 0)) return 0;
  const double hs = h - tf1 / 2 - tf2 / 2;
  const double z0 = tf2 / 2 + hs * Iz1 / (Iz1 + Iz2) - zc;
  return 2 * z0 - S / Iy;
}

namespace {

// The positions of the dialog's restraints: n equal parts.
std::vector<double> RestraintPositions(int restraints, double Lmm) {
  std::vector<double> xs;
  for (int i = 1; i <= restraints; ++i) xs.push_back(Lmm * i / (restraints + 1));
  return xs;
}

// The critical factor of the member, or a note why there is none.
bool CriticalFactor(const State& s, double& factor, std::string& note) {
  const Project& p = s.project;
  const Section& c = s.section;
  const Analysis& an = s.analysis;
  const int type = p.ProfileType;
  if (!DoubleSymmetricLtbFamily(type) && type != 22) {
    note = "no thin-walled beam model for this section";
    return false;
  }
  const bool cantilever = p.SupportType == 4;
  const double k = p.ltbFactor;
  // Between two supports a length factor above 1 is no end restraint at all; only the tables can
  // take it, and they give the lower Mcr.
  if (!cantilever && k > 1.0001) {
    note = "k > 1 is read for a cantilever only";
    return false;
  }

  const double E = p.E, G = E / 2.6;
  LtbMember m;
  m.L = 1000.0 * p.L;
  m.EIz = E * c.Iz;
  m.GIt = G * c.Ix;
  m.EIw = E * c.Iw;
  if (type == 22) m.betaY = WagnerBetaY(c.h, c.b1, c.tf1, c.b2, c.tf2, c.tw);
  for (int i = 0; i <= 50; ++i) {
    m.xs.push_back(m.L * i / 50);
    m.My.push_back(1.0e6 * an.MyGrid[static_cast<size_t>(i)]);
  }
  // Loads act only in beam mode; end forces carry none along the member.
  if (p.AnalysisMode == 1) {
    m.zg = LtbLoadHeight(s);
    if (an.loadsZ.q != 0) m.lineLoads.push_back({0, m.L, an.loadsZ.q, an.loadsZ.q});
    for (const FactoredForce& f : an.loadsZ.forces) m.pointLoads.push_back({1000.0 * f.x, 1000.0 * f.P});
  }
  m.restraints = RestraintPositions(p.ltbRestraints, m.L);

  const LtbEnd fork{true, true, false, false};
  const LtbEnd clamped{true, true, true, true};
  std::vector<LtbMember> variants;
  if (cantilever) {
    // Fully fixed at x = 0, free at the tip whatever k says: any restraint at the tip could only
    // raise Mcr.
    m.start = clamped;
    m.end = LtbEnd{false, false, false, false};
    variants.push_back(m);
  } else if (k <= 0.5001) {  // lateral bending and warping held at both ends
    m.start = m.end = clamped;
    variants.push_back(m);
  } else if (k < 0.9999) {  // held at one end: the fixed or spring end, else the end that gives less
    m.start = m.end = fork;
    const bool farEnd = p.SupportType == 1 || p.SupportType == 5;
    if (farEnd) {
      m.end = clamped;
      variants.push_back(m);
    } else {
      m.start = clamped;
      variants.push_back(m);
      m.start = fork;
      m.end = clamped;
      variants.push_back(m);
    }
  } else {
    m.start = m.end = fork;
    variants.push_back(m);
  }

  factor = std::numeric_limits<double>::infinity();
  for (const LtbMember& v : variants) {
    const LtbEigenResult r = LtbCriticalFactor(v);
    if (!r.found) {
      note = "no positive critical factor";
      return false;
    }
    factor = std::min(factor, r.factor);
  }
  return true;
}

}  // namespace

void EigenCriticalMoment(State& s) {
  Project& p = s.project;
  const Analysis& an = s.analysis;
  Checks& k = s.checks;
  double factor = 0;
  std::string note;
  if (!CriticalFactor(s, factor, note)) {
    k.McrNote = note;
    return;
  }
  // The largest |My| of the diagram the factor is on, and where it lies (the last of equals, as a
  // later part wins a tie of the tables).
  size_t at = 0;
  for (size_t i = 0; i < an.MyGrid.size(); ++i)
    if (std::fabs(an.MyGrid[i]) >= std::fabs(an.MyGrid[at])) at = i;
  const double Mmax = std::fabs(an.MyGrid[at]);
  k.McrByEigen = True;
  k.McrFactor = factor;
  k.McrWork = factor * Mmax * 1.0e6;
  k.Mcr = k.McrWork;
  // The control of the member at its governing moment, with kc of the C factors in force.
  k.MyLT = an.MyGov;
  RunLtbChi(s, k.MyLT);
  k.MyRdLT = LtbResistanceOf(s, k.MyLT);
  // Between restraints the line names the part where the largest moment lies.
  if (p.ltbRestraints > 0 && p.ltbRestraints <= 6) {
    const int n = p.ltbRestraints + 1;
    const int part = std::min(n - 1, static_cast<int>(at) * n / 50);
    p.ltbPart = static_cast<Integer>(part);
    k.ltbPartLabel.at(static_cast<size_t>(part)) = PartLabel(part, n, s.decimalComma);
  }
}

}  // namespace vn
