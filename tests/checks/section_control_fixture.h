// A state for the section control tests: an I section given by round resistances, so that every
// expected ratio is a line of hand arithmetic, and check points set one by one.
#pragma once

#include <vector>

#include "core/state.h"
#include "support/test_support.h"

namespace vn::test {

// The resistances are round values stored as 32-bit floats where the section record holds them
// so; a hand calculation in decimals agrees to about the seventh digit.
inline constexpr Tolerance kHandCalc{2e-6, "hand calculation; resistances held as 32-bit floats"};

// One check point: x/L and the design forces there.
struct PointForces {
  float x, My, Mz, Vy, Vz;
};

// A welded-like I of S235 with gammaM0 = gammaM1 = 1 and eta = 1.2:
//   h 300, b 200, tf 10, tw 10, hw 280, d 260, c 80 (c/tf = 8 < 9: class 1), A 6800 mm2,
//   Iy 1e8, Iz 1.3e7 mm4; web hw/tw = 28 < 72/1.2 = 60, stocky.
// Resistances as round numbers (kN, kNm): NtRd = NcRd 1600, MplyRd 200, MelyRd 170, MeffyRd 160,
//   MplzRd 60, MelzRd 40, MeffzRd 35, VzRd = VplRd 400, VyRd 500; classes 1, so MyRdClass 200 and
//   MzRdClass 60. Moduli are markers (Wply 1000, Wely 900, Weffy 800, Wplz 300, Welz 200,
//   Weffz 150) for the active modulus.
// Useful constants of this section:
//   web share a = (A - 2 b tf) / A = (6800 - 4000) / 6800 = 0.4117647
//   0.5 hw tw fyk / 1000 = 329 kN, hw tw fyk / 1000 = 658 kN
//   VbyRd = (1/1.5) 2*200*10 * 235/sqrt 3 / 1000 = 361.8062 kN
inline State SyntheticI() {
  State s;
  Project& p = s.project;
  p.ProfileType = 1;
  p.fyk = 235;
  p.epsilon = 1;
  p.gammaM0 = 1;
  p.gammaM1 = 1;
  p.neta = 1.2f;
  p.E = 210000;
  p.L = 5;
  p.a = 5000;
  p.elasticClass12 = False;
  p.conserControl = False;
  p.noWebBuckling = False;
  Section& c = s.section;
  c.h = 300;
  c.b = 200;
  c.tf = 10;
  c.tw = 10;
  c.hw = 280;
  c.d = 260;
  c.c = 80;
  c.A = 6800;
  c.Iy = 1e8f;
  c.Iz = 1.3e7f;
  c.Wply = 1000;
  c.Wely = 900;
  c.Weffy = 800;
  c.Wplz = 300;
  c.Welz = 200;
  c.Weffz = 150;
  c.classN = c.classMy = c.classMz = 1;
  c.NtRd = c.NcRd = 1600;
  c.MplyRd = 200;
  c.MelyRd = 170;
  c.MeffyRd = 160;
  c.MyRdClass = 200;
  c.MplzRd = 60;
  c.MelzRd = 40;
  c.MeffzRd = 35;
  c.MzRdClass = 60;
  c.MfyRd = 580;
  c.VzRd = 400;
  c.VplRd = 400;
  c.VyRd = 500;
  return s;
}

// Sets the check points 0..n-1 and the axial force of the member.
inline void SetPoints(State& s, double NEd, const std::vector<PointForces>& points) {
  Analysis& an = s.analysis;
  an.NEd = NEd;
  an.NPoints = static_cast<Integer>(points.size()) - 1;
  size_t i = 0;
  for (const PointForces& f : points) {
    an.ChPointXrel[i] = f.x;
    an.MyPt[i] = f.My;
    an.MzPt[i] = f.Mz;
    an.VyPt[i] = f.Vy;
    an.VzPt[i] = f.Vz;
    ++i;
  }
}

}  // namespace vn::test
