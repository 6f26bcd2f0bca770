// The one current section: dimensions, properties, classes and resistances. Written from scratch by
// ComputeSection at every recalculation; every later stage only reads it.
// Fields marked (d) keep the double value of their expression; all others are stored as Single.
#pragma once

#include <array>

#include "core/types.h"

namespace vn {

struct OutlinePoint {
  Single x = 0, y = 0;
};

struct Section {
  // Dimensions
  Single h = 0, b = 0, tf = 0, tw = 0, r = 0, ri = 0;
  double r1 = 0;  // (d)
  Single r2 = 0;
  Single hw = 0, d = 0, c = 0, tmax = 0;
  Single b1 = 0, tf1 = 0, b2 = 0, tf2 = 0, hweb = 0;
  Single ey = 0, em = 0;

  // Properties
  Single A = 0, Af = 0, Aw = 0;
  Single Iy = 0, Iz = 0, IzDefl = 0, Ix = 0, Iw = 0, Iu = 0, Iv = 0, alfa = 0;
  Single Wely = 0, Welz = 0, Wply = 0, Wplz = 0;
  Single Wyt = 0, Wyb = 0, Wzl = 0, Wzr = 0, Wumin = 0, Wvmin = 0;
  Single Wy = 0, Wz = 0;
  Single Aeff = 0;
  double Weffy = 0;  // (d)
  Single Weffz = 0;
  double Avy = 0, Avz = 0;  // (d)
  Single ez = 0, eyc = 0;
  Single g = 0, S = 0;

  // Classes
  double classN = 0, classMy = 0, classMz = 0, classFlange = 0;  // (d)
  Single classWeb = 0;

  // Resistances, kN and kNm
  double NcRd = 0, NtRd = 0;  // (d)
  double MplyRd = 0;          // (d)
  Single MplzRd = 0;
  double MelyRd = 0;  // (d)
  Single MelzRd = 0;
  double MeffyRd = 0;  // (d)
  Single MeffzRd = 0;
  double MyRdClass = 0;  // (d)
  Single MzRdClass = 0;
  double MfyRd = 0;  // (d)
  Single MfzRd = 0;
  double VyRd = 0, VzRd = 0;  // (d)
  Single VplRd = 0;
  Single VplyRd = 0;  // plastic shear along y of the closed sections
  double VbyRd = 0;   // (d)
  Single VbzRd = 0;
  double NRdBuck = 0, MyRdBuck = 0, MzRdBuck = 0;  // (d)

  // Welded I with unequal flanges (22): index 1 is the upper flange, 2 the lower. The centroid from
  // the lower edge is `ez`; the elastic moduli of the upper and lower fibre are `Wyt` and `Wyb`.
  double c1 = 0, c2 = 0;                    // (d) flange outstands; the legs of an unequal angle
  Single zpl = 0;                           // plastic neutral axis from the lower edge
  Single WeffyTop = 0, WeffyBot = 0;        // effective moduli, upper flange compressed
  Single WeffyTop2 = 0, WeffyBot2 = 0;      // effective moduli, lower flange compressed
  double Weffy1 = 0, Weffy2 = 0;            // (d) the smaller of each pair
  double MeffyRd1 = 0, MeffyRd2 = 0;        // (d)
  double classMyPos = 0, classMyNeg = 0;    // (d) class under positive and negative My
  Single WyPos = 0, WyNeg = 0;              // the modulus the class selects, per sign
  Single MyRdPos = 0, MyRdNeg = 0;          // the resistance the class selects, per sign
  double MyRdBuckPos = 0, MyRdBuckNeg = 0;  // (d) the same times gammaM0 / gammaM1
  Single betaf = 0, betaf2 = 0;             // Iz1 / (Iz1 + Iz2), Iz2 / (Iz1 + Iz2)
  double zs = 0;                            // (d) shear centre above the centroid
  double psif = 0;                          // (d) (Iz1 - Iz2) / (Iz1 + Iz2)
  Single psif2 = 0;                         // its negative
  double zj = 0;                            // (d) asymmetry term of the critical moment, positive My
  Single zj2 = 0;                           // the same, negative My
  // HSQ (24, 25) and the box with unequal flanges (27): the plastic moduli of an upgraded class 3
  // web, and the share of the moment resistance that the load on the lower plate leaves.
  Single WplyTop = 0, WplyBot = 0;
  Single FlangeLoadFactor = 0;
  // The resistances of each sign before the load on the lower plate, which the section control
  // applies with the loads of its own combination; and that load's ratio f / p (0 where none).
  Single MyRdPosUnloaded = 0, MyRdNegUnloaded = 0;
  double FlangeLoadRatio = 0;  // (d)
  // Angles: the three corner points (1 and 3 the leg ends, 2 the heel), their distances from the
  // principal axes, the moduli and resistances about u and v at each point (index 0 unused).
  std::array<Single, 4> uPt{}, vPt{};  // mm, from the v axis and from the u axis
  std::array<Single, 4> Wu{}, Wv{};
  std::array<double, 4> MuRd{}, MvRd{};  // (d) kNm
  double MuRdMin = 0;                    // (d)
  Single MvRdMin = 0;
  double MytRd = 0, MybRd = 0, MzlRd = 0;  // (d) kNm, from the fibre moduli
  Single MzrRd = 0;
  double MelyAngle = 0;  // (d)
  Single MelzAngle = 0;

  // Figure data for the section figure
  std::array<OutlinePoint, 82> Outline{};  // points 1..81
  Integer OutlineCount = 0;
  Integer OutlineInnerLast = 0;
  Integer OutlineRects = 0;
  Single FigHeight = 0, FigWidth = 0, FigCentroidZ = 0, FigCentroidY = 0;

  // Flags the family decides
  Boolean ltbRelevant = 0;
  Integer channelKind = 0;  // 2 marks the channels
};

}  // namespace vn
