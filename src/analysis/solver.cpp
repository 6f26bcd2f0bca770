// Closed-form unit-load solutions of the single-span beam, one slot at a time, on Grid51 and on the
// check grid. Formulas are evaluated in double and stored as Single.
//
// Conventions: x from the start of the member in m, a the position of the load, b = L - a.
// M positive when sagging, a positive load acts in the positive axis direction; the deflection is
// positive in the load direction and is carried as E I d (kN m3) until it is stored.
// Support types: 0 pinned-pinned, 1 pinned-fixed, 2 fixed-fixed, 3 spring-spring (a mix of 0 and
// 2), 4 cantilever fixed at x = 0, 5 pinned-spring (a mix of 0 and 1).
#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>

#include "analysis/analysis.h"
#include "analysis/member_analysis.h"
#include "core/state.h"

namespace vn {

namespace {

struct Station {
  double M = 0, V = 0, d = 0;  // kNm, kN, E I d in kN m3
};

// Uniform load q over the whole span.
Station UniformBasic(int t, double L, double q, double x) {
  Station st;
  const double s = Div(x, L);
  switch (t) {
    case 0:
      st.V = q * L / 2 - q * x;
      st.M = q * x * (L - x) / 2;
      st.d = q * L * L * L * x * (1 - 2 * s * s + s * s * s) / 24;
      break;
    case 1:
      st.V = 3 * q * L / 8 - q * x;  // -5 q L / 8 at the fixed end
      st.M = q * x * (3 * L - 4 * x) / 8;
      st.d = q * L * L * L * x * (1 - 3 * s * s + 2 * s * s * s) / 48;
      break;
    case 2:
      st.V = q * L / 2 - q * x;
      st.M = q / 2 * (x * (L - x) - L * L / 6);
      st.d = q * L * L * x * x * (1 - s) * (1 - s) / 24;
      break;
    case 4: {
      const double c = L - x;
      st.V = -q * c;  // the cantilever's shear keeps the sign of the load, against dM/dx
      st.M = -q * c * c / 2;
      st.d = q * L * L * L * L / 8 - q * L * L * L * c / 6 + q * c * c * c * c / 24;
      break;
    }
  }
  return st;
}

// Point force P at a. Left of the load M runs from the start (M(0) + R x), right of it from the
// end (M(L) - V (L - x)), so that both end values come out exactly. What does not depend on x (the
// reaction, the end moments, the slope constant of the elastic line) is worked out once for the
// load, with the same operations in the same order as at each point, so the values are the same.
struct ForceLoad {
  int t;
  double L, P, a;
  double R = 0, M0 = 0, ML = 0, bm = 0, C1 = 0;

  ForceLoad(int type, double length, double force, double at) : t(type), L(length), P(force), a(at) {
    if (t == 4) return;
    const double b = L - a;
    switch (t) {
      case 0: R = Div(P * b, L); break;
      case 1:
        ML = -(P * a / 2) * (1 - Div(a * a, L * L));
        R = Div(P * b + ML, L);
        break;
      case 2:
        R = Div(P * b * b * (3 * a + b), L * L * L);
        M0 = -Div(P * a * b * b, L * L);
        ML = -Div(P * a * a * b, L * L);
        break;
    }
    // Elastic line: E I d'' = -M, d(0) = d(L) = 0; the end moments make the slopes at fixed ends 0.
    bm = std::max(b, 0.0);
    C1 = Div(M0 * L * L / 2 + R * L * L * L / 6 - P * bm * bm * bm / 6, L);
  }

  Station At(double x) const {
    Station st;
    if (t == 4) {
      const bool left = x <= a;  // a point at the load sees it
      st.V = left ? -P : 0;
      st.M = left ? -P * (a - x) : 0;
      st.d = left ? P * x * x * (3 * a - x) / 6 : P * a * a * (3 * x - a) / 6;
      return st;
    }
    // Fixed-fixed: a point at the load takes the left branch; the others the right one.
    const bool left = t == 2 ? x <= a : x < a;
    if (left) {
      st.V = R;
      st.M = M0 + R * x;
    } else {
      st.V = R - P;
      st.M = ML - (R - P) * (L - x);
    }
    const double xm = std::max(x - a, 0.0);
    st.d = C1 * x - M0 * x * x / 2 - R * x * x * x / 6 + P * xm * xm * xm / 6;
    return st;
  }
};

// Point moment Mp at a, the constants worked out once as for a force.
struct MomentLoad {
  int t;
  double L, Mp, a;
  double M0 = 0, ML = 0, R = 0, bm = 0, C1 = 0;

  MomentLoad(int type, double length, double moment, double at) : t(type), L(length), Mp(moment), a(at) {
    if (t == 4) return;
    const double b = L - a;
    switch (t) {
      case 1: ML = -(Mp / 2) * (1 - 3 * Div(a * a, L * L)); break;
      case 2:
        M0 = Div(Mp * b * (2 * a - b), L * L);
        ML = -Div(Mp * a * (2 * b - a), L * L);
        break;
    }
    R = Div(ML - M0 - Mp, L);
    bm = std::max(b, 0.0);
    C1 = Div(M0 * L * L / 2 + R * L * L * L / 6 + Mp * bm * bm / 2, L);
  }

  Station At(double x, bool checkGrid) const {
    Station st;
    if (t == 4) {
      const bool left = x <= a;
      st.V = 0;
      st.M = left ? -Mp : 0;
      st.d = left ? Mp * x * x / 2 : Mp * a * (x - a / 2);
      return st;
    }
    // A moment standing at the very end of the member: the end point reads the moment inside the
    // member, and on the check grid it carries no shear.
    const bool atEnd = x == a && x == L;
    const bool left = x < a || atEnd;
    st.V = atEnd && checkGrid ? 0 : R;
    st.M = left ? M0 + R * x : ML - R * (L - x);
    const double xm = std::max(x - a, 0.0);
    st.d = C1 * x - M0 * x * x / 2 - R * x * x * x / 6 - Mp * xm * xm / 2;
    return st;
  }
};

// The one or two basic solutions of a support type; false for a code with none.
bool BasicTypes(int type, int& t0, int& t1) {
  t1 = -1;
  switch (type) {
    case 0:
    case 1:
    case 2:
    case 4: t0 = type; return true;
    case 3:
      t0 = 0;
      t1 = 2;
      return true;
    case 5:
      t0 = 0;
      t1 = 1;
      return true;
  }
  return false;
}

void CheckSlot(int slot, int first, int last) {
  if (slot < first || slot > last) Fault("subscript out of range");
}

// The stations of a load at the points xs[0..n), as At gives them one by one; a load may work them
// out together (the strips of a trapezoid).
template <class Load>
void StationsAt(const Load& load, const double* xs, size_t n, bool checkGrid, Station* out) {
  if constexpr (requires { load.AtAll(xs, n, checkGrid, out); })
    load.AtAll(xs, n, checkGrid, out);
  else
    for (size_t i = 0; i < n; ++i) out[i] = load.At(xs[i], checkGrid);
}

// Values of one point, stored as Single. Checked: as the program stores them, a value that is not
// a number or beyond a Single's range, or a zero divisor, faults. Unchecked: the same values, each
// such case marked in `bad` instead.
struct Values {
  Single M, V, d;
};

struct Checked {
  static Single Store(double a) { return ToSingle(a); }
  static double Divide(double a, double b) { return Div(a, b); }
};

struct Unchecked {
  int& bad;
  Single Store(double a) const {
    bad |= !(std::fabs(a) <= static_cast<double>(std::numeric_limits<float>::max()));
    return static_cast<Single>(a);
  }
  double Divide(double a, double b) const {
    bad |= b == 0.0;
    const double q = a / b;
    bad |= !std::isfinite(q);
    return q;
  }
};

// The values at a point from the station of the first basic type (A) and, for a spring type, of the
// second (B). Spring types mix their two solutions, held as Single, by r = SpringPct / 100;
// `exception` is the point moment on type 5, whose shear left of the load takes the mixed value
// once more as its second term.
template <class Check>
Values PointValues(const Check& c, const Station& A, const Station* B, double r, double dScale, double x,
                   double a, bool checkGrid, bool exception) {
  if (!B) return Values{c.Store(A.M), c.Store(A.V), checkGrid ? 0.0f : c.Store(c.Divide(A.d, dScale))};
  const Single M0 = c.Store(A.M), M1 = c.Store(B->M);
  const Single V0 = c.Store(A.V), V1 = c.Store(B->V);
  Values v;
  v.M = c.Store((1 - r) * M0 + r * M1);
  v.V = c.Store((1 - r) * V0 + r * V1);
  if (exception && x < a) v.V = c.Store((1 - r) * V0 + r * v.V);
  v.d = 0;
  if (!checkGrid) {
    const Single d0 = c.Store(c.Divide(A.d, dScale)), d1 = c.Store(c.Divide(B->d, dScale));
    v.d = c.Store((1 - r) * d0 + r * d1);
  }
  return v;
}

// Fills a column. load(basicType) gives the load's solution for one basic support type, with its
// constants worked out (a zero divisor there faults as at the first point); its At(x, checkGrid) is
// the station at x. momentShearException: the point moment on type 5 (see PointValues), for k >= 1
// on Grid51 and every check point.
// sameEverywhere: the caller knows that the solution is zero at every point (a trapezoid whose
// strips carry nothing, summed from +0), so every point gives the values of x = 0, which is worked
// out as ever; the column is then filled from it.
// The stations of all points are worked out first and the values stored unchecked; only when one
// of them would have faulted is the column made again point by point, checked, so that the fault
// comes at the same point as ever with the points before it filled.
template <class MakeLoad>
void FillColumn(const State& s, UnitColumn& col, MakeLoad load, bool momentShearException, double a,
                bool sameEverywhere = false) {
  const Project& p = s.project;
  const Analysis& an = s.analysis;
  col = UnitColumn{};
  int t0 = 0, t1 = -1;
  if (!BasicTypes(p.SupportType, t0, t1)) return;
  const double L = p.L;
  const double r = p.SpringPct / 100.0;
  const double dScale = static_cast<double>(p.E) * 1E-12;  // E I d in kN m3 -> mm once / I
  const auto A0 = load(t0);
  std::optional<decltype(A0)> B1;
  if (t1 >= 0) B1.emplace(load(t1));

  // Point by point, checked: the way the column has always been made.
  auto at = [&](double x, bool checkGrid, bool exception) {
    const Station A = A0.At(x, checkGrid);
    if (!B1) return PointValues(Checked{}, A, nullptr, r, dScale, x, a, checkGrid, exception);
    const Station B = B1->At(x, checkGrid);
    return PointValues(Checked{}, A, &B, r, dScale, x, a, checkGrid, exception);
  };
  auto byPoint = [&] {
    col = UnitColumn{};
    for (int k = 0; k <= 50; ++k) {
      const double x = k == 0 ? 0.0 : k == 50 ? L : k / 50.0 * L;
      Values v = at(x, false, momentShearException && k >= 1);
      // No deflection at a support: both ends but the free end of the cantilever.
      if (k == 0 || (k == 50 && p.SupportType != 4)) v.d = 0;
      col.M[k] = v.M;
      col.V[k] = v.V;
      col.d[k] = v.d;
    }
    if (an.NPoints < 0 || an.NPoints > 40) Fault("subscript out of range");
    for (int i = 0; i <= an.NPoints; ++i) {
      const double x = static_cast<double>(an.ChPointXrel[i]) * L;
      const Values v = at(x, true, momentShearException);
      col.Mc[i] = v.M;
      col.Vc[i] = v.V;
    }
  };

  if (sameEverywhere) {
    const Values v = at(0.0, false, false);
    col.M.fill(v.M);
    col.V.fill(v.V);
    col.d.fill(v.d);
    col.d[0] = 0;
    if (p.SupportType != 4) col.d[50] = 0;
    if (an.NPoints < 0 || an.NPoints > 40) Fault("subscript out of range");
    for (int i = 0; i <= an.NPoints; ++i) {
      col.Mc[i] = v.M;
      col.Vc[i] = v.V;
    }
    return;
  }
  if (an.NPoints < 0 || an.NPoints > 40) {
    byPoint();  // faults once Grid51 is filled
    return;
  }

  const size_t nc = static_cast<size_t>(an.NPoints) + 1;
  std::array<double, 51> xg;
  std::array<double, 41> xc;
  for (int k = 0; k <= 50; ++k) xg[static_cast<size_t>(k)] = k == 0 ? 0.0 : k == 50 ? L : k / 50.0 * L;
  for (size_t i = 0; i < nc; ++i) xc[i] = static_cast<double>(an.ChPointXrel[i]) * L;
  std::array<Station, 51> Ag, Bg;
  std::array<Station, 41> Ac, Bc;
  StationsAt(A0, xg.data(), 51, false, Ag.data());
  StationsAt(A0, xc.data(), nc, true, Ac.data());
  if (B1) {
    StationsAt(*B1, xg.data(), 51, false, Bg.data());
    StationsAt(*B1, xc.data(), nc, true, Bc.data());
  }
  int bad = 0;
  const Unchecked unchecked{bad};
  for (size_t k = 0; k <= 50; ++k) {
    Values v = PointValues(unchecked, Ag[k], B1 ? &Bg[k] : nullptr, r, dScale, xg[k], a, false,
                           momentShearException && k >= 1);
    if (k == 0 || (k == 50 && p.SupportType != 4)) v.d = 0;
    col.M[k] = v.M;
    col.V[k] = v.V;
    col.d[k] = v.d;
  }
  for (size_t i = 0; i < nc; ++i) {
    const Values v =
        PointValues(unchecked, Ac[i], B1 ? &Bc[i] : nullptr, r, dScale, xc[i], a, true, momentShearException);
    col.Mc[i] = v.M;
    col.Vc[i] = v.V;
  }
  if (bad) byPoint();
}

template <size_t N>
void Route(const State& s, UnitSet<N>& set, int slot, bool toY) {
  set.z[slot] = UnitColumn{};
  set.y[slot] = UnitColumn{};
  const UnitColumn& src = set.solved[slot];
  UnitColumn& dst = toY ? set.y[slot] : set.z[slot];
  const double I = toY ? s.section.Iz : s.section.Iy;
  dst.M = src.M;
  dst.V = src.V;
  dst.Mc = src.Mc;
  dst.Vc = src.Vc;
  for (int k = 0; k <= 50; ++k) dst.d[k] = ToSingle(Div(src.d[k], I));
  // The column the slot does not act in is +0 throughout, and so may be the other one.
  (toY ? set.z[slot] : set.y[slot]).allZero = true;
  std::uint32_t bits = 0;
  for (const auto* a : {&dst.M, &dst.V, &dst.d})
    for (Single v : *a) bits |= std::bit_cast<std::uint32_t>(v);
  for (const auto* a : {&dst.Mc, &dst.Vc})
    for (Single v : *a) bits |= std::bit_cast<std::uint32_t>(v);
  dst.allZero = bits == 0;
}

// The uniform load has no constants of its own: its solution is worked out at each point.
struct UniformLoadAt {
  int t;
  double L, q;
  Station At(double x, bool) const { return UniformBasic(t, L, q, x); }
};

// The 20 strips of a trapezoid, each a point force, summed at each point from the first strip on.
// At many points the strips are taken one after the other over all points, each point's sums
// still growing from the first strip to the last.
struct StripLoads {
  std::array<std::optional<ForceLoad>, 21> strip;
  Station At(double x, bool) const {
    Station sum;
    for (int j = 1; j <= 20; ++j) {
      const Station st = strip[static_cast<size_t>(j)]->At(x);
      sum.M += st.M;
      sum.V += st.V;
      sum.d += st.d;
    }
    return sum;
  }
  void AtAll(const double* xs, size_t n, bool, Station* out) const {
    // The sums by kind, so that a strip is taken at several points at once: both branches of a
    // point are worked out and the one of its side kept, each by the operations of ForceLoad::At.
    // (The file is compiled without floating-point traps, which lets the compiler work out what a
    // point does not keep; the values are the same.)
    std::array<double, 51> M{}, V{}, d{};
    for (int j = 1; j <= 20; ++j) {
      const ForceLoad& f = *strip[static_cast<size_t>(j)];
      const double L = f.L, P = f.P, a = f.a, R = f.R, M0 = f.M0, ML = f.ML, C1 = f.C1;
      if (f.t == 4) {
        for (size_t i = 0; i < n; ++i) {
          const double x = xs[i];
          const bool left = x <= a;
          const double Ml = -P * (a - x);
          const double dl = P * x * x * (3 * a - x) / 6, dr = P * a * a * (3 * x - a) / 6;
          V[i] += left ? -P : 0.0;
          M[i] += left ? Ml : 0.0;
          d[i] += left ? dl : dr;
        }
        continue;
      }
      auto strip = [&](auto leftOf) {
        for (size_t i = 0; i < n; ++i) {
          const double x = xs[i];
          const bool left = leftOf(x);
          const double Ml = M0 + R * x, Mr = ML - (R - P) * (L - x);
          const double xa = x - a;
          const double xm = xa < 0.0 ? 0.0 : xa;  // std::max(x - a, 0.0)
          const double di = C1 * x - M0 * x * x / 2 - R * x * x * x / 6 + P * xm * xm * xm / 6;
          const double Vr = R - P;
          V[i] += left ? R : Vr;
          M[i] += left ? Ml : Mr;
          d[i] += di;
        }
      };
      // Fixed-fixed: a point at the load takes the left branch; the others the right one.
      if (f.t == 2)
        strip([a](double x) { return x <= a; });
      else
        strip([a](double x) { return x < a; });
    }
    for (size_t i = 0; i < n; ++i) out[i] = Station{M[i], V[i], d[i]};
  }
};

struct ForceLoadAt {
  ForceLoad f;
  Station At(double x, bool) const { return f.At(x); }
};

}  // namespace

void SolveUniform(State& s, int slot, Single q) {
  CheckSlot(slot, 0, 4);
  const double L = s.project.L, qd = q;
  FillColumn(
      s, s.analysis.unit.uniform.solved[slot],
      [&](int t) {
        return UniformLoadAt{t, L, qd};
      },
      false, 0.0);
}

// The trapezoid is carried as 20 point forces, one for each strip of equal width.
void SolveTrapezoid(State& s, int slot) {
  CheckSlot(slot, 1, 3);
  const TrapezoidLoad& t = s.loads.trapezoid[slot];
  const double L = s.project.L;
  const double dq = (static_cast<double>(t.q2) - t.q1) / 20;
  const double dx = (static_cast<double>(t.x2) - t.x1) / 20;
  std::array<Single, 21> P{}, a{};
  bool nothing = true;
  for (int j = 1; j <= 20; ++j) {
    P[j] = ToSingle((t.q1 + (j - 0.5) * dq) * dx);
    a[j] = ToSingle(t.x1 + (j - 0.5) * dx);
    if (P[j] != 0) nothing = false;
  }
  // Strips that all carry nothing (an unused slot, x1 = x2): each gives +0 or -0 at every point
  // (finite factors times a zero force), so their sum from +0 is +0 everywhere; the point x = 0 is
  // still worked out, with the faults it may raise.
  FillColumn(
      s, s.analysis.unit.trapezoid.solved[slot],
      [&](int type) {
        StripLoads strips;
        for (int j = 1; j <= 20; ++j) strips.strip[static_cast<size_t>(j)].emplace(type, L, P[j], a[j]);
        return strips;
      },
      false, 0.0, nothing);
}

void SplitPointLoads(State& s) {
  UnitSolutions& u = s.analysis.unit;
  u.forceValue.fill(0);
  u.momentValue.fill(0);
  for (int i = 1; i <= 8; ++i) {
    const PointLoad& pl = s.loads.point[i];
    if (pl.Kind == 1)
      u.momentValue[i] = pl.Value;
    else
      u.forceValue[i] = pl.Value;
  }
}

void SolvePointForce(State& s, int slot) {
  CheckSlot(slot, 1, 8);
  const double L = s.project.L;
  const double P = s.analysis.unit.forceValue[slot];
  const double a = s.loads.point[slot].x;
  FillColumn(
      s, s.analysis.unit.force.solved[slot], [&](int t) { return ForceLoadAt{ForceLoad(t, L, P, a)}; }, false,
      a);
}

void SolvePointMoment(State& s, int slot) {
  CheckSlot(slot, 1, 8);
  const double L = s.project.L;
  const double Mp = s.analysis.unit.momentValue[slot];
  const double a = s.loads.point[slot].x;
  FillColumn(
      s, s.analysis.unit.moment.solved[slot], [&](int t) { return MomentLoad(t, L, Mp, a); },
      s.project.SupportType == 5, a);
}

// Routing: a Z load (Dir 1; My for a moment) goes to My, Vz, dz and its deflection is divided by
// Iy; a Y load (Dir 0; Mz for a moment) to Mz, Vy, dy, divided by Iz.
void RouteUniform(State& s, int slot) {
  CheckSlot(slot, 0, 4);
  Route(s, s.analysis.unit.uniform, slot, s.loads.uniform[slot].Dir == 0);
}

void RouteTrapezoid(State& s, int slot) {
  CheckSlot(slot, 1, 3);
  Route(s, s.analysis.unit.trapezoid, slot, s.loads.trapezoid[slot].Dir == 0.0f);
}

void RoutePointForce(State& s, int slot) {
  CheckSlot(slot, 1, 8);
  Route(s, s.analysis.unit.force, slot, s.loads.point[slot].Dir == 0);
}

void RoutePointMoment(State& s, int slot) {
  CheckSlot(slot, 1, 8);
  Route(s, s.analysis.unit.moment, slot, s.loads.point[slot].Dir == 0);
}

}  // namespace vn
