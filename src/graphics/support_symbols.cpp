#include "graphics/support_symbols.h"

#include <cmath>

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

void DrawSupportEnd(draw::Canvas& c, draw::Point at, EndKind kind, bool rightEnd, double size, const draw::Pen& pen) {
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

}  // namespace vn
