// The stepped plastic axis of the plate sections: the axis found by bisection within each binary
// order is the one that stepping 0.1 mm at a time gives, step for step in 32-bit arithmetic, from a
// small flange to a girder deeper than the steps can climb.
#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "core/types.h"
#include "sections/welded_i.h"

namespace vn {
namespace {

// The axis stepped one 0.1 mm step at a time; -1 where the steps end in the calculation error.
double SteppedOneByOne(const std::vector<Plate>& plates, double A, double h) {
  const double half = A / 2.0, rounds = h / 0.1 + 100;
  float zpl = 2;
  for (double n = 0;; ++n) {
    if (n > rounds) return -1;
    const float next = static_cast<float>(zpl + 0.1);
    if (next == zpl) return -1;
    zpl = next;
    double below = 0;
    for (const Plate& pl : plates) {
      if (pl.z0 <= zpl && zpl <= pl.z0 + pl.ht)
        below += (zpl - pl.z0) * pl.w;
      else if (pl.z0 + pl.ht < zpl)
        below += pl.w * pl.ht;
    }
    if (below >= half) return zpl;
  }
}

double Bisected(const std::vector<Plate>& plates, double A, double h) {
  try {
    return SteppedPlasticAxis(plates, A, h);
  } catch (const CalcFault&) {
    return -1;
  }
}

// An I of three plates: lower flange, web, upper flange, with the total area.
std::vector<Plate> IPlates(double h, double b1, double b2, double tw, double tf1, double tf2, double* A) {
  std::vector<Plate> p = {{b2, tf2, 0, 0}, {tw, h - tf1 - tf2, 0, tf2}, {b1, tf1, 0, h - tf1}};
  *A = b1 * tf1 + b2 * tf2 + tw * (h - tf1 - tf2);
  return p;
}

TEST(SteppedPlasticAxis, IsTheAxisOfStepsOf0_1mm) {
  struct Case {
    double h, b1, b2, tw, tf1, tf2;
  };
  std::vector<Case> cases = {
      {600, 200, 400, 12, 20, 20},   {300, 300, 540, 6, 25, 15},    {150, 150, 150, 12, 12, 12},
      {2.5, 10, 10, 1, 0.2, 0.2},    {4, 10, 1, 1, 1, 1},           {8.05, 50, 10, 2, 1, 1},
      {20000, 500, 100, 20, 40, 30}, {1.5e6, 250, 250, 10, 20, 20},  // deeper than 0.1 mm steps reach
      {3e6, 250, 800, 10, 20, 60},
  };
  std::mt19937 rng(7);
  std::uniform_real_distribution<double> u(0.0, 1.0);
  for (int i = 0; i < 300; ++i) {
    const double h = 3 + std::pow(10.0, 4 * u(rng));
    cases.push_back(
        {h, 1 + 500 * u(rng), 1 + 500 * u(rng), 0.5 + 30 * u(rng), h * 0.3 * u(rng), h * 0.3 * u(rng)});
  }
  for (const Case& c : cases) {
    double A = 0;
    const std::vector<Plate> plates = IPlates(c.h, c.b1, c.b2, c.tw, c.tf1, c.tf2, &A);
    EXPECT_EQ(Bisected(plates, A, c.h), SteppedOneByOne(plates, A, c.h))
        << "h " << c.h << " b1 " << c.b1 << " b2 " << c.b2 << " tw " << c.tw;
  }
}

TEST(SteppedPlasticAxis, AnAxisBeyondTheStepsOrTheirCountIsTheCalculationError) {
  // Half the area is never reached within h / 0.1 + 100 steps: the count runs out.
  const std::vector<Plate> high = {{10, 10, 0, 1000}};
  EXPECT_EQ(Bisected(high, 100, 50), -1.0);
  EXPECT_EQ(SteppedOneByOne(high, 100, 50), -1.0);
}

}  // namespace
}  // namespace vn
