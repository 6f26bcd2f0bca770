// The welded box with equal flanges (type 23): four plates, the webs set in from the flanges' edges
// by a. It is reduced, classified and resisted as a hollow section, with the two webs as its shear
// area.
#include "sections/box.h"

#include <algorithm>
#include <array>

#include "core/format.h"
#include "core/state.h"
#include "sections/rolled_i.h"
#include "sections/welded_i.h"

namespace vn {

void BoxProperties(State& s) {
  Section& c = s.section;
  const Project& p = s.project;
  const WeldedBoxInput& in = p.p23;
  c.h = in.isth;
  c.b = in.istb1;
  c.tw = in.isttw;
  c.tf = in.isttf;
  c.hweb = in.ista;
  const double h = c.h, b = c.b, tw = c.tw, tf = c.tf, a = c.hweb;

  // 1. Upper flange, left web, right web, lower flange.
  const std::array<Plate, 4> plates{
      {{b, tf, 0, h - tf}, {tw, h - 2 * tf, a, tf}, {tw, h - 2 * tf, b - a - tw, tf}, {b, tf, 0, 0}}};
  const PlateSums sum = PlateTable(c, plates);

  // 2. The nominal weld stands for the corner radius.
  c.r = NominalWeld(c.tw);
  const double r = c.r;
  c.d = ToSingle(h - 2 * (r + tf));
  c.c = ToSingle(b - 2 * (a + tw));
  c.hw = ToSingle(h - 2 * tf);
  c.ri = c.c;

  // 3. and 4.
  c.A = ToSingle(sum.A);
  c.g = ToSingle(static_cast<double>(p.rho) * c.A * 1e-6);
  c.S = ToSingle((4 * tf + 2 * b + 4 * a + 2 * (h - 2 * tf)) / 1000);
  c.Wely = ToSingle(Div(c.Iy, h - c.ez));
  c.Welz = ToSingle(Div(c.Iz, b - c.eyc));

  // 5. Torsion of the closed cell between the web centres, and the overhangs as open plates.
  const double e = b - 2 * a - tw, f = h - tf;
  double Ix = Div(2 * e * e * f * f, Div(e, tf) + Div(f, tw));
  Ix += 4 * tf * tf * tf * a / 3;
  c.Ix = ToSingle(Ix);

  // 6. Warping of the cell; nil when it is square in its wall thicknesses.
  double Iw = (f * f / 24) * (e * e * f * tw + e * e * e * tf);
  const double q = Div(e * e * tw - f * e * tf, e * e * tw + f * e * tf);
  Iw = Iw * (q * q);
  c.Iw = ToSingle(Iw);

  // 7. Plastic moduli.
  const double hw = c.hw;
  c.Wply = ToSingle(hw * hw * tw / 2 + (h - tf) * tf * b);
  c.Wplz = ToSingle(b * b * tf / 2 + (b - 2 * a - tw) * hw * tw);

  // 8.
  c.tmax = std::max(c.tf, c.tw);
  auto dim = [&](Single v) { return SingleText(v, s.decimalComma); };
  SetSectionName(s, 23, "Box " + dim(c.h) + "x" + dim(c.b) + "x" + dim(c.tw) + "x" + dim(c.tf));
  for (int i = 0; i < 4; ++i) {
    const Plate& pl = plates[static_cast<size_t>(i)];
    SetOutlinePoint(c, 2 * i + 1, pl.y0, pl.z0);
    SetOutlinePoint(c, 2 * i + 2, pl.y0 + pl.w, pl.z0 + pl.ht);
  }
  c.OutlineRects = 4;
  c.OutlineCount = 8;
  c.OutlineInnerLast = 1;
  c.FigHeight = c.h;
  c.FigWidth = c.b;
  c.FigCentroidY = c.eyc;
  c.FigCentroidZ = c.ez;
}

}  // namespace vn
