// The lateral torsional eigenvalue solver against closed forms and published values: uniform moment,
// the classic factors of a narrow rectangular beam and cantilever, moments that change sign, the
// Wagner term, restraints and end conditions, convergence, and data it can not solve.
#include "analysis/ltb_eigen.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

#include "support/test_support.h"

namespace vn {
namespace {

using test::Near;
using test::Tolerance;

constexpr double kPi = 3.14159265358979323846;
constexpr Tolerance kClosed{1e-3, "closed form, to 0.1 %"};
constexpr Tolerance kTable3{5e-3, "published factors with 3 significant digits"};
constexpr Tolerance kFirstOrder{1e-2, "a first-order formula in the load height"};

// IPE 300 (It 201.2E3 mm4, Iz 6.038E6 mm4, Iw 125.9E9 mm6), E = 210000, G = E/2.6; N, mm.
constexpr double kE = 210000, kG = kE / 2.6;
constexpr double kEIz = kE * 6.038e6, kGIt = kG * 201.2e3, kEIw = kE * 125.9e9;

// A member between forks with the diagram M0 * shape(x/L) on the 51 points of the design grid.
LtbMember Member(double L, double EIw, const std::function<double(double)>& shape, double M0 = 1e6) {
  LtbMember m;
  m.L = L;
  m.EIz = kEIz;
  m.GIt = kGIt;
  m.EIw = EIw;
  for (int k = 0; k <= 50; ++k) {
    m.xs.push_back(L * k / 50);
    m.My.push_back(M0 * shape(k / 50.0));
  }
  return m;
}

double Mcr(const LtbMember& m, double M0 = 1e6) {
  const LtbEigenResult r = LtbCriticalFactor(m);
  EXPECT_TRUE(r.found);
  return r.factor * M0;
}

// Mcr of uniform moment between forks, over a length Le: pi/Le sqrt(EIz GIt (1 + pi^2 EIw/(Le^2 GIt))).
double UniformClosedForm(double Le, double EIw) {
  return kPi / Le * std::sqrt(kEIz * kGIt * (1 + kPi * kPi * EIw / (Le * Le * kGIt)));
}

double Uniform(double) { return 1; }

TEST(LtbEigen, UniformMomentIsTheClosedForm) {
  for (double L : {2000.0, 6000.0, 15000.0}) {
    for (double EIw : {0.0, kEIw}) {
      EXPECT_TRUE(Near(Mcr(Member(L, EIw, Uniform)), UniformClosedForm(L, EIw), kClosed)) << L << " " << EIw;
      // Either sign of the moment: the section is double symmetric.
      EXPECT_TRUE(Near(Mcr(Member(L, EIw, Uniform, -1e6), 1e6), UniformClosedForm(L, EIw), kClosed));
    }
  }
  // The IPE 300 of 6 m by hand: 90.3818E6 Nmm.
  EXPECT_TRUE(Near(Mcr(Member(6000, kEIw, Uniform)), 90.3818e6, kClosed));
}

TEST(LtbEigen, UniformLoadAtTheShearCentreGivesC1Of113) {
  // Simply supported, q over the whole span at the shear centre: C1 = 1.13 (ENV 1993-1-1 Annex F,
  // Table F.1.2, k = 1; also the classic 1.13 of the ECCS rules).
  const double L = 6000, q = 8e6 / (L * L);  // max My = 1E6 Nmm
  LtbMember m = Member(L, kEIw, [](double s) { return 4 * s * (1 - s); });
  m.lineLoads.push_back({0, L, q, q});
  EXPECT_TRUE(Near(Mcr(m) / UniformClosedForm(L, kEIw), 1.13, Tolerance{1e-2, "C1 to 1 %"}));
  // On the top flange it buckles sooner, on the bottom flange later.
  const double centre = Mcr(m);
  m.zg = 150;
  EXPECT_LT(Mcr(m), 0.8 * centre);
  m.zg = -150;
  EXPECT_GT(Mcr(m), 1.2 * centre);
}

// The narrow rectangular beam (EIw = 0, load at the centroid), Timoshenko & Gere, Theory of Elastic
// Stability (2nd ed., 1961), ch. 6: the critical load is gamma sqrt(EIz GIt) / L^2 (a total load for
// q), with gamma 4.013 for a cantilever with a force at its tip, 12.85 for a cantilever under q,
// 16.94 for a simple beam with a force at midspan and 28.3 for a simple beam under q.
TEST(LtbEigen, NarrowRectangleTakesTimoshenkosFactors) {
  const double L = 4000, root = std::sqrt(kEIz * kGIt);
  struct Case {
    const char* name;
    bool cantilever;
    bool uniform;
    double gamma;
  } cases[] = {{"cantilever, tip force", true, false, 4.013},
               {"cantilever, uniform load", true, true, 12.85},
               {"simple beam, force at midspan", false, false, 16.94},
               {"simple beam, uniform load", false, true, 28.3}};
  for (const Case& c : cases) {
    // A total load of 1 N; the diagram it gives, and the load itself at zg = 0.
    std::function<double(double)> shape;
    if (c.cantilever && !c.uniform) shape = [&](double s) { return -(1 - s) * L; };
    if (c.cantilever && c.uniform) shape = [&](double s) { return -(1 - s) * (1 - s) * L / 2; };
    if (!c.cantilever && !c.uniform) shape = [&](double s) { return (s < 0.5 ? s : 1 - s) * L / 2; };
    if (!c.cantilever && c.uniform) shape = [&](double s) { return s * (1 - s) * L / 2; };
    LtbMember m = Member(L, 0, shape, 1);
    if (c.cantilever) {
      m.start = {true, true, true, true};
      m.end = {false, false, false, false};
    }
    if (c.uniform)
      m.lineLoads.push_back({0, L, 1 / L, 1 / L});
    else
      m.pointLoads.push_back({c.cantilever ? L : L / 2, 1});
    EXPECT_TRUE(Near(Mcr(m, 1), c.gamma * root / (L * L), kTable3)) << c.name;
  }
}

TEST(LtbEigen, CantileverTipLoadAboveTheCentreBucklesFirst) {
  // Timoshenko & Gere, ch. 6: a load a above the centroid of a narrow cantilever, to the first order
  // in a: P = 4.013 sqrt(EIz GIt)/L^2 (1 - a/L sqrt(EIz/GIt)). With a/L sqrt(EIz/GIt) = 0.05.
  const double L = 3000, a = 0.05 * L * std::sqrt(kGIt / kEIz);
  const double P0 = 4.013 * std::sqrt(kEIz * kGIt) / (L * L);
  double P[3];
  const double heights[3] = {a, 0, -a};
  for (int i = 0; i < 3; ++i) {
    LtbMember m = Member(
        L, 0, [&](double s) { return -(1 - s) * L; }, 1);
    m.start = {true, true, true, true};
    m.end = {false, false, false, false};
    m.zg = heights[i];
    m.pointLoads.push_back({L, 1});
    P[i] = Mcr(m, 1);
  }
  EXPECT_TRUE(Near(P[0], P0 * 0.95, kFirstOrder));
  EXPECT_TRUE(Near(P[1], P0, kTable3));
  EXPECT_TRUE(Near(P[2], P0 * 1.05, kFirstOrder));
  EXPECT_LT(P[0], P[1]);
  EXPECT_LT(P[1], P[2]);
}

TEST(LtbEigen, EndMomentsOfOppositeSignFollowThePublishedC1) {
  // Linear diagram M to psi M, forks, It only (kappa -> 0): C1 = 1.77 at psi = 0, 2.33 at -0.5 and
  // 2.55 at -1 (ECCS / NCCI SN003 tables of C1 for end moments, k = 1).
  const double L = 6000;
  const struct { double psi, C1; } rows[] = {{0, 1.77}, {-0.5, 2.33}, {-1, 2.55}};
  for (const auto& r : rows) {
    const double psi = r.psi;
    const LtbMember m = Member(L, 0, [psi](double s) { return 1 + (psi - 1) * s; });
    EXPECT_TRUE(Near(Mcr(m) / UniformClosedForm(L, 0), r.C1, kTable3)) << psi;
    // The diagram upside down buckles alike on a double symmetric section.
    EXPECT_TRUE(Near(Mcr(Member(L, 0, [psi](double s) { return -(1 + (psi - 1) * s); })), Mcr(m), kClosed));
  }
}

TEST(LtbEigen, WagnerTermUnderUniformMomentIsTheMonosymmetricClosedForm) {
  // Uniform moment on a section with unequal flanges (Kitipornchai & Trahair 1980; ENV 1993-1-1
  // Annex F with zj = beta_y / 2): M = Pz (beta/2 +- sqrt(beta^2/4 + (GIt + Pw)/Pz)),
  // Pz = pi^2 EIz/L^2, Pw = pi^2 EIw/L^2; the larger root where the stiffer flange is compressed.
  const double L = 8000, beta = 300;
  const double Pz = kPi * kPi * kEIz / (L * L), Pw = kPi * kPi * kEIw / (L * L);
  const double root = std::sqrt(beta * beta / 4 + (kGIt + Pw) / Pz);
  LtbMember m = Member(L, kEIw, Uniform);
  m.betaY = beta;
  EXPECT_TRUE(Near(Mcr(m), Pz * (beta / 2 + root), kClosed));
  m = Member(L, kEIw, Uniform, -1e6);
  m.betaY = beta;
  EXPECT_TRUE(Near(Mcr(m), Pz * (root - beta / 2), kClosed));
}

TEST(LtbEigen, RestraintsAndEndFixityShortenTheBucklingLength) {
  const double L = 8000;
  // A lateral and torsional restraint at midspan: two forked halves.
  LtbMember m = Member(L, kEIw, Uniform);
  m.restraints = {L / 2};
  EXPECT_TRUE(Near(Mcr(m), UniformClosedForm(L / 2, kEIw), kClosed));
  // Lateral bending and warping held at both ends: the buckled shape 1 - cos(2 pi x/L) solves the
  // equations exactly, with the length L/2 (k = 0.5).
  m = Member(L, kEIw, Uniform);
  m.start = m.end = LtbEnd{true, true, true, true};
  EXPECT_TRUE(Near(Mcr(m), UniformClosedForm(L / 2, kEIw), kClosed));
  // Held at one end only: between the two.
  m.start = LtbEnd{};
  const double one = Mcr(m);
  EXPECT_GT(one, UniformClosedForm(L, kEIw) * 1.01);
  EXPECT_LT(one, UniformClosedForm(L / 2, kEIw) * 0.99);
}

TEST(LtbEigen, ConvergesWithinATenthOfAPercent) {
  // Mcr from the default mesh against a mesh eight times finer, and from above as the mesh is
  // refined (the cubics make the member stiffer than it is, never softer).
  const double L = 5000, q = 8e6 / (L * L);
  std::vector<LtbMember> cases;
  LtbMember udl = Member(L, kEIw, [](double s) { return 4 * s * (1 - s); });
  udl.lineLoads.push_back({0, L, q, q});
  udl.zg = 150;
  cases.push_back(udl);
  LtbMember cantilever = Member(L, kEIw, [](double s) { return s - 1; });
  cantilever.start = {true, true, true, true};
  cantilever.end = {false, false, false, false};
  cantilever.pointLoads.push_back({L, 1e6 / L});
  cantilever.zg = 150;
  cases.push_back(cantilever);
  LtbMember restrained = Member(L, kEIw, [](double s) { return 1 - 2 * s; });
  restrained.restraints = {L / 3, 2 * L / 3};
  cases.push_back(restrained);
  for (size_t i = 0; i < cases.size(); ++i) {
    LtbMember m = cases[i];
    const double coarse = Mcr(m);
    double previous = std::numeric_limits<double>::infinity();
    for (int elements : {12, 24, 48, 96}) {
      m.elements = elements;
      const double v = Mcr(m);
      EXPECT_LE(v, previous * (1 + 1e-9)) << i << " " << elements;
      previous = v;
    }
    EXPECT_TRUE(Near(coarse, previous, kClosed)) << i;
  }
}

TEST(LtbEigen, NoPositiveFactorOrNoModelIsNotFound) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  // No moment at all.
  EXPECT_FALSE(LtbCriticalFactor(Member(6000, kEIw, [](double) { return 0.0; })).found);
  // Not finite, no length, no stiffness.
  LtbMember m = Member(6000, kEIw, Uniform);
  m.My[10] = nan;
  EXPECT_FALSE(LtbCriticalFactor(m).found);
  m = Member(6000, kEIw, Uniform);
  m.L = 0;
  EXPECT_FALSE(LtbCriticalFactor(m).found);
  m = Member(6000, 0, Uniform);
  m.GIt = 0;
  EXPECT_FALSE(LtbCriticalFactor(m).found);
  // A mechanism: nothing holds the twist.
  m = Member(6000, kEIw, Uniform);
  m.start.twist = m.end.twist = false;
  EXPECT_FALSE(LtbCriticalFactor(m).found);
  // A load below the shear centre that makes no moment (all on the supports) buckles nothing.
  m = Member(6000, kEIw, [](double) { return 0.0; });
  m.pointLoads.push_back({0, 1000});
  m.zg = -150;
  EXPECT_FALSE(LtbCriticalFactor(m).found);
  // An absurd number of elements is bounded, not a hang.
  m = Member(6000, kEIw, Uniform);
  m.elements = 1000000;
  EXPECT_TRUE(LtbCriticalFactor(m).found);
}

}  // namespace
}  // namespace vn
