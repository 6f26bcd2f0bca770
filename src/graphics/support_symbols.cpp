#include "graphics/support_symbols.h"

#include <cmath>
#include <functional>

namespace vn {

std::pair<EndKind, EndKind> SupportEnds(int supportType) {
  switch (supportType) {
    case 0: return {EndKind::Pinned, EndKind::Roller};
    case 1: return {EndKind::Pinned, EndKind::Fixed};
    case 2: return {EndKind::Fixed, EndKind::Fixed};
    case 3: return {EndKind::Spring, EndKind::Spring};
    case 4: return {EndKind::Fixed, EndKind::Free};
    case 5: return {EndKind::Pinned, EndKind::Spring};
  }
  return {EndKind::Free, EndKind::Free};
}

namespace {

// A triangle under the end with its apex at the member, and the ground under it.
void Hinge(draw::Canvas& c, draw::Point at, double size, const draw::Pen& pen, bool roller) {
  const double h = size * 0.6, w = size * 0.35;
  c.Polygon({at, {at.x - w, at.y + h}, {at.x + w, at.y + h}}, pen, draw::kWhite);
  double ground = at.y + h;
  if (roller) ground += size * 0.15;  // a gap: the end moves along the member
  const double half = w * 1.4;
  c.Line({at.x - half, ground}, {at.x + half, ground}, pen);
  for (double x = at.x - half + size * 0.12; x <= at.x + half; x += size * 0.18)
    c.Line({x, ground}, {x - size * 0.12, ground + size * 0.14}, pen);
}

// A wall across the end, hatched on the side away from the member.
void Wall(draw::Canvas& c, draw::Point at, double size, const draw::Pen& pen, bool rightEnd) {
  const double half = size * 0.55, dir = rightEnd ? 1 : -1;
  c.Line({at.x, at.y - half}, {at.x, at.y + half}, pen);
  for (double y = at.y - half + size * 0.12; y <= at.y + half + 1e-9; y += size * 0.18)
    c.Line({at.x, y}, {at.x + dir * size * 0.14, y - size * 0.12}, pen);
}

// A rotational spring: a hinge with a coil round the end.
void Coil(draw::Canvas& c, draw::Point at, double size, const draw::Pen& pen, bool rightEnd) {
  Hinge(c, at, size, pen, false);
  std::vector<draw::Point> coil;
  const double dir = rightEnd ? 1 : -1;
  const double pi = 3.14159265358979;
  for (int i = 0; i <= 40; ++i) {
    const double t = i / 40.0;
    const double angle = pi * 0.5 + dir * t * 3.2 * pi;  // a turn and a half from the top
    const double r = size * (0.12 + 0.26 * t);
    coil.push_back({at.x + dir * r * std::cos(angle) * -1, at.y - r * std::sin(angle)});
  }
  c.Polyline(coil, pen);
}

}  // namespace

void DrawSupportEnd(draw::Canvas& c, draw::Point at, EndKind kind, bool rightEnd, double size,
                    const draw::Pen& pen) {
  switch (kind) {
    case EndKind::Pinned: Hinge(c, at, size, pen, false); break;
    case EndKind::Roller: Hinge(c, at, size, pen, true); break;
    case EndKind::Fixed: Wall(c, at, size, pen, rightEnd); break;
    case EndKind::Spring: Coil(c, at, size, pen, rightEnd); break;
    case EndKind::Free: break;
  }
}

void DrawSupportIcon(draw::Canvas& c, int supportType) {
  c.SetScale(0, 0, 100, 50);
  const draw::Pen member{draw::kBlack, 2, draw::LineStyle::Solid};
  const draw::Pen thin{draw::kBlack, 1, draw::LineStyle::Solid};
  const draw::Point left{16, 20}, right{84, 20};
  c.Line(left, right, member);
  auto [a, b] = SupportEnds(supportType);
  DrawSupportEnd(c, left, a, false, 30, thin);
  DrawSupportEnd(c, right, b, true, 30, thin);
}

namespace {

// Foot of a column standing on a fixed base: a hatched line across.
void FixedAcross(draw::Canvas& c, draw::Point at, bool below, const draw::Pen& pen) {
  const double dir = below ? 1 : -1;
  c.Line({at.x - 7, at.y}, {at.x + 7, at.y}, pen);
  for (double x = at.x - 5; x <= at.x + 7; x += 4) c.Line({x, at.y}, {x - 3, at.y + dir * 3}, pen);
}

// A hinge: a small triangle pointing at the column's end.
void HingeAt(draw::Canvas& c, draw::Point at, bool below, const draw::Pen& pen) {
  const double dir = below ? 1 : -1;
  c.Polygon({at, {at.x - 5, at.y + dir * 6}, {at.x + 5, at.y + dir * 6}}, pen, draw::kWhite);
}

}  // namespace

void DrawBucklingCaseIcon(draw::Canvas& c, int picture) {
  c.SetScale(0, 0, 30, 60);
  const draw::Pen pen{draw::kBlack, 1, draw::LineStyle::Solid};
  const draw::Pen shape{draw::kBlue, 1.5, draw::LineStyle::Solid};
  const double x = 11, top = 7, foot = 51;
  c.Line({x, top}, {x, foot}, draw::Pen{draw::kBlack, 1, draw::LineStyle::Dot});  // the column
  // The buckled shape: w(t) with t from the foot (0) to the top (1), largest deflection 1.
  const double pi = 3.14159265358979;
  std::function<double(double)> w;
  switch (picture) {
    case 1: w = [pi](double t) { return 1 - std::cos(pi / 2 * t); }; break;
    case 2: w = [pi](double t) { return std::sin(pi * t); }; break;
    case 3: w = [pi](double t) { return std::sin(pi * t) * std::pow(t, 0.6) / 0.78; }; break;
    case 4: w = [pi](double t) { return (1 - std::cos(2 * pi * t)) / 2; }; break;
    default: break;
  }
  if (w) {
    std::vector<draw::Point> curve;
    for (int i = 0; i <= 24; ++i) {
      const double t = i / 24.0;
      curve.push_back({x + 12 * w(t), foot - t * (foot - top)});
    }
    c.Polyline(curve, shape);
  } else {
    c.Line({x, top}, {x, foot}, shape);
  }
  switch (picture) {
    case 1: FixedAcross(c, {x, foot}, true, pen); break;
    case 2:
      HingeAt(c, {x, foot}, true, pen);
      HingeAt(c, {x, top}, false, pen);
      break;
    case 3:
      FixedAcross(c, {x, foot}, true, pen);
      HingeAt(c, {x, top}, false, pen);
      break;
    case 4:
      FixedAcross(c, {x, foot}, true, pen);
      FixedAcross(c, {x, top}, false, pen);
      break;
    case 5:
      // Held all along its length.
      for (double y = top; y <= foot + 1e-9; y += 7) c.Line({x - 6, y}, {x, y}, pen);
      break;
    default: {
      HingeAt(c, {x, foot}, true, pen);
      HingeAt(c, {x, top}, false, pen);
      draw::Font f;
      f.size = 9;
      f.italic = true;
      c.Text({x + 6, (top + foot) / 2}, "k", f, draw::HAlign::Left, draw::VAlign::Middle);
    }
  }
}

}  // namespace vn
