// The lateral torsional eigenvalue problem of a thin-walled beam, by finite elements.
//
// Second variation of the total potential, with lambda the factor on the moment and the loads:
//   1/2 Int [EIz v''^2 + GIt phi'^2 + EIw phi''^2] dx
//   + lambda/2 Int [2 My v'' phi + beta_y My phi'^2 - q zg phi^2] dx - lambda/2 Sum P zg phi(a)^2
// A load above the shear centre (zg > 0) in the sense of a sagging moment lowers the critical
// factor, the Wagner term raises it where the larger flange is in compression. The coupling term
// changes sign with v; the others do not, so a diagram and its negative buckle alike only on a
// double symmetric section loaded at its shear centre.
//
// Four degrees of freedom a node (v, v', phi, phi'); Hermite cubics in each element. The moment
// diagram and the distributed loads are linear between their own points, and every integral is
// taken piecewise between those points by a 4-point Gauss rule, which is exact for them.
//
// With K the elastic stiffness (positive definite once the supports hold the member) and
// A = -Kg, the factors are the eigenvalues of K d = lambda A d. Scaled to a unit diagonal of K and
// reduced by the Cholesky factor L of K, mu = 1/lambda are the eigenvalues of the symmetric
// L^-1 A L^-T; the critical factor is 1/mu of the largest positive mu.
#include "analysis/ltb_eigen.h"

#include <Eigen/Cholesky>
#include <Eigen/Core>
#include <Eigen/Eigenvalues>
#include <algorithm>
#include <array>
#include <cmath>

namespace vn {

namespace {

using Eigen::MatrixXd;
using Vec4 = std::array<double, 4>;

constexpr int kDofs = 4;           // v, v', phi, phi' at each node
constexpr int kMaxElements = 128;  // a bound on the work of one run, whatever is asked
constexpr int kMinPerPart = 4;     // elements between two restraints at the least

// Gauss-Legendre, 4 points on [0, 1].
constexpr double kGaussX[4] = {0.0694318442029737, 0.3300094782075719, 0.6699905217924281,
                               0.9305681557970263};
constexpr double kGaussW[4] = {0.1739274225687269, 0.3260725774312731, 0.3260725774312731,
                               0.1739274225687269};

// Hermite cubics of an element of length l at xi in [0, 1], with their first and second
// derivatives in x.
struct Shape {
  Vec4 N, d1, d2;
};

Shape HermiteAt(double xi, double l) {
  const double x2 = xi * xi, x3 = x2 * xi;
  Shape s;
  s.N = {1 - 3 * x2 + 2 * x3, l * (xi - 2 * x2 + x3), 3 * x2 - 2 * x3, l * (x3 - x2)};
  s.d1 = {(6 * x2 - 6 * xi) / l, 1 - 4 * xi + 3 * x2, (6 * xi - 6 * x2) / l, 3 * x2 - 2 * xi};
  s.d2 = {(12 * xi - 6) / (l * l), (6 * xi - 4) / l, (6 - 12 * xi) / (l * l), (6 * xi - 2) / l};
  return s;
}

bool Finite(double v) { return std::isfinite(v); }

// The moment at x, linear between the points of the diagram.
double MomentAt(const LtbMember& m, double x) {
  const auto& xs = m.xs;
  auto it = std::upper_bound(xs.begin(), xs.end(), x);
  if (it == xs.begin()) return m.My.front();
  if (it == xs.end()) return m.My.back();
  const size_t j = static_cast<size_t>(it - xs.begin());
  const double xa = xs[j - 1], xb = xs[j];
  if (xb <= xa) return m.My[j];
  const double t = (x - xa) / (xb - xa);
  return m.My[j - 1] + t * (m.My[j] - m.My[j - 1]);
}

double LineLoadAt(const LtbMember& m, double x) {
  double q = 0;
  for (const LtbLineLoad& w : m.lineLoads) {
    if (!(w.x2 > w.x1) || x < w.x1 || x > w.x2) continue;
    q += w.q1 + (w.q2 - w.q1) * (x - w.x1) / (w.x2 - w.x1);
  }
  return q;
}

bool ValidMember(const LtbMember& m) {
  if (!(Finite(m.L) && m.L > 0 && Finite(m.EIz) && m.EIz > 0 && Finite(m.GIt) && m.GIt >= 0 &&
        Finite(m.EIw) && m.EIw >= 0 && m.GIt + m.EIw > 0 && Finite(m.betaY) && Finite(m.zg)))
    return false;
  if (m.xs.size() < 2 || m.xs.size() != m.My.size()) return false;
  for (size_t i = 0; i < m.xs.size(); ++i) {
    if (!Finite(m.xs[i]) || !Finite(m.My[i])) return false;
    if (i > 0 && m.xs[i] < m.xs[i - 1]) return false;
  }
  for (const LtbLineLoad& w : m.lineLoads)
    if (!Finite(w.x1) || !Finite(w.x2) || !Finite(w.q1) || !Finite(w.q2)) return false;
  for (const LtbPointLoad& p : m.pointLoads)
    if (!Finite(p.x) || !Finite(p.P)) return false;
  for (double r : m.restraints)
    if (!Finite(r)) return false;
  return true;
}

// Node positions: the ends and the inner restraints, each part cut into equal elements.
std::vector<double> Nodes(const LtbMember& m, std::vector<double>& restraintsAt) {
  std::vector<double> cuts{0.0};
  std::vector<double> inner;
  for (double r : m.restraints)
    if (r > 1e-6 * m.L && r < m.L * (1 - 1e-6)) inner.push_back(r);
  std::sort(inner.begin(), inner.end());
  for (double r : inner)
    if (r - cuts.back() > 1e-6 * m.L) cuts.push_back(r);
  cuts.push_back(m.L);
  const int parts = static_cast<int>(cuts.size()) - 1;
  const int wanted = std::clamp(m.elements, 1, kMaxElements);
  const int perPart = std::max(kMinPerPart, (wanted + parts - 1) / parts);
  std::vector<double> nodes{0.0};
  restraintsAt.assign(cuts.begin() + 1, cuts.end() - 1);
  for (int p = 0; p < parts; ++p) {
    const double a = cuts[static_cast<size_t>(p)], b = cuts[static_cast<size_t>(p) + 1];
    for (int e = 1; e <= perPart; ++e) nodes.push_back(e == perPart ? b : a + (b - a) * e / perPart);
  }
  return nodes;
}

// Index of the element [nodes[e], nodes[e+1]] that holds x.
int ElementOf(const std::vector<double>& nodes, double x) {
  auto it = std::upper_bound(nodes.begin(), nodes.end(), x);
  int e = static_cast<int>(it - nodes.begin()) - 1;
  return std::clamp(e, 0, static_cast<int>(nodes.size()) - 2);
}

}  // namespace

LtbEigenResult LtbCriticalFactor(const LtbMember& m) {
  LtbEigenResult result;
  if (!ValidMember(m)) return result;

  std::vector<double> restraintsAt;
  const std::vector<double> nodes = Nodes(m, restraintsAt);
  const int elements = static_cast<int>(nodes.size()) - 1;
  const int n = kDofs * (elements + 1);
  MatrixXd K = MatrixXd::Zero(n, n);
  MatrixXd A = MatrixXd::Zero(n, n);

  // Every point where the integrands change their formula: the element ends, the points of the
  // diagram, the ends of the distributed loads.
  std::vector<double> cuts = nodes;
  for (double x : m.xs)
    if (x > 0 && x < m.L) cuts.push_back(x);
  for (const LtbLineLoad& w : m.lineLoads)
    for (double x : {w.x1, w.x2})
      if (x > 0 && x < m.L) cuts.push_back(x);
  std::sort(cuts.begin(), cuts.end());

  for (size_t c = 0; c + 1 < cuts.size(); ++c) {
    const double s0 = cuts[c], s1 = cuts[c + 1], h = s1 - s0;
    if (!(h > 1e-9 * m.L)) continue;
    const int e = ElementOf(nodes, 0.5 * (s0 + s1));
    const double xa = nodes[static_cast<size_t>(e)], l = nodes[static_cast<size_t>(e) + 1] - xa;
    const int v[4] = {kDofs * e, kDofs * e + 1, kDofs * e + 4, kDofs * e + 5};
    const int f[4] = {kDofs * e + 2, kDofs * e + 3, kDofs * e + 6, kDofs * e + 7};
    for (int g = 0; g < 4; ++g) {
      const double x = s0 + kGaussX[g] * h, dx = kGaussW[g] * h;
      const Shape sh = HermiteAt((x - xa) / l, l);
      const double M = MomentAt(m, x), q = LineLoadAt(m, x);
      for (int i = 0; i < 4; ++i) {
        for (int j = 0; j < 4; ++j) {
          K(v[i], v[j]) += m.EIz * sh.d2[i] * sh.d2[j] * dx;
          K(f[i], f[j]) += (m.GIt * sh.d1[i] * sh.d1[j] + m.EIw * sh.d2[i] * sh.d2[j]) * dx;
          const double coupling = -M * sh.d2[i] * sh.N[j] * dx;
          A(v[i], f[j]) += coupling;
          A(f[j], v[i]) += coupling;
          A(f[i], f[j]) += (-m.betaY * M * sh.d1[i] * sh.d1[j] + q * m.zg * sh.N[i] * sh.N[j]) * dx;
        }
      }
    }
  }
  for (const LtbPointLoad& p : m.pointLoads) {
    if (p.x < 0 || p.x > m.L || p.P == 0) continue;
    const int e = ElementOf(nodes, p.x);
    const double xa = nodes[static_cast<size_t>(e)], l = nodes[static_cast<size_t>(e) + 1] - xa;
    const Shape sh = HermiteAt(std::clamp((p.x - xa) / l, 0.0, 1.0), l);
    const int f[4] = {kDofs * e + 2, kDofs * e + 3, kDofs * e + 6, kDofs * e + 7};
    for (int i = 0; i < 4; ++i)
      for (int j = 0; j < 4; ++j) A(f[i], f[j]) += p.P * m.zg * sh.N[i] * sh.N[j];
  }

  // The supports: degrees of freedom held at zero.
  std::vector<char> held(static_cast<size_t>(n), 0);
  auto hold = [&](int node, const LtbEnd& c) {
    held[static_cast<size_t>(kDofs * node)] = c.lateral;
    held[static_cast<size_t>(kDofs * node + 1)] = c.bending;
    held[static_cast<size_t>(kDofs * node + 2)] = c.twist;
    held[static_cast<size_t>(kDofs * node + 3)] = c.warping;
  };
  hold(0, m.start);
  hold(elements, m.end);
  // A warping restraint acts over the warping length sqrt(EIw/GIt) beside it. Shorter than the
  // element there (a flat bar, a section that barely warps), the cubics can not follow it and would
  // make the member stiffer than it is; it is then left out, which can only lower the factor.
  auto warpingHeld = [&](int e) {
    const double le = nodes[static_cast<size_t>(e) + 1] - nodes[static_cast<size_t>(e)];
    return m.EIw >= m.GIt * le * le;
  };
  if (m.start.warping && !warpingHeld(0)) held[3] = 0;
  if (m.end.warping && !warpingHeld(elements - 1)) held[static_cast<size_t>(kDofs * elements + 3)] = 0;
  for (double r : restraintsAt) {
    const int node = static_cast<int>(std::lower_bound(nodes.begin(), nodes.end(), r) - nodes.begin());
    held[static_cast<size_t>(kDofs * node)] = 1;
    held[static_cast<size_t>(kDofs * node + 2)] = 1;
  }
  std::vector<int> free;
  for (int i = 0; i < n; ++i)
    if (!held[static_cast<size_t>(i)]) free.push_back(i);
  const int nf = static_cast<int>(free.size());
  if (nf == 0) return result;

  // Reduced to the free degrees of freedom and scaled to a unit diagonal of K, which evens out the
  // orders of magnitude between displacements, slopes and the warping terms.
  Eigen::VectorXd scale(nf);
  for (int i = 0; i < nf; ++i) {
    const double d = K(free[static_cast<size_t>(i)], free[static_cast<size_t>(i)]);
    if (!(d > 0) || !Finite(d)) return result;
    scale(i) = 1 / std::sqrt(d);
  }
  MatrixXd Kr(nf, nf), Ar(nf, nf);
  for (int j = 0; j < nf; ++j) {
    for (int i = 0; i < nf; ++i) {
      const int gi = free[static_cast<size_t>(i)], gj = free[static_cast<size_t>(j)];
      Kr(i, j) = K(gi, gj) * scale(i) * scale(j);
      Ar(i, j) = A(gi, gj) * scale(i) * scale(j);
    }
  }
  if (!Ar.allFinite() || Ar.cwiseAbs().maxCoeff() == 0) return result;

  const Eigen::LLT<MatrixXd> llt(Kr);
  if (llt.info() != Eigen::Success) return result;  // a mechanism: the supports do not hold it
  llt.matrixL().solveInPlace(Ar);                   // L^-1 A
  MatrixXd C = Ar.transpose();                      // A L^-T
  llt.matrixL().solveInPlace(C);                    // L^-1 A L^-T
  const Eigen::SelfAdjointEigenSolver<MatrixXd> es(C, Eigen::EigenvaluesOnly);
  if (es.info() != Eigen::Success) return result;
  const Eigen::VectorXd& mu = es.eigenvalues();  // ascending
  const double largest = mu(nf - 1), magnitude = std::max(std::fabs(mu(0)), std::fabs(largest));
  // No positive factor: nothing acts, or only in the sense that stiffens the member.
  if (!(largest > 1e-9 * magnitude) || !(largest > 0)) return result;
  result.found = true;
  result.factor = 1 / largest;
  return result;
}

}  // namespace vn
