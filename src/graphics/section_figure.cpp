// Section figures: stock pictures drawn from simple proportions, and the figure to scale from the
// outline points of the section record.
#include "graphics/section_figure.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "core/pipeline.h"
#include "core/state.h"

namespace vn {

namespace {

using draw::Font;
using draw::HAlign;
using draw::Pen;
using draw::Point;
using draw::VAlign;

const Pen kEdge{draw::kBlack, 1, draw::LineStyle::Solid};
const Pen kAxis{draw::Rgb{90, 90, 90}, 1, draw::LineStyle::DashDot};
const Pen kDimension{draw::Rgb{60, 60, 60}, 1, draw::LineStyle::Solid};
constexpr draw::Rgb kSteel{200, 212, 228};

Font LetterFont() {
  Font f;
  f.family = "Arial";
  f.size = 8;
  f.italic = true;
  return f;
}

Font AxisFont() {
  Font f;
  f.family = "Arial";
  f.size = 8;
  f.bold = true;
  return f;
}

void Shape(draw::Canvas& c, const std::vector<Point>& points, draw::Rgb fill = kSteel) {
  c.Polygon(points, kEdge, fill);
}

void Box(draw::Canvas& c, double x0, double y0, double x1, double y1) {
  c.Rectangle({x0, y0}, {x1, y1}, kEdge, kSteel);
}

// A dimension line with end ticks and its letter beside it. Vertical lines put the letter on the
// left, horizontal ones above or below (the stock pictures have y upwards), at `at` of the line's
// length: a line under the section keeps its letter clear of the "Z" at the foot of the z axis.
void DimV(draw::Canvas& c, double x, double y0, double y1, const char* letter) {
  c.Line({x, y0}, {x, y1}, kDimension);
  c.Line({x - 1.5, y0}, {x + 1.5, y0}, kDimension);
  c.Line({x - 1.5, y1}, {x + 1.5, y1}, kDimension);
  c.Text({x - 2, (y0 + y1) / 2}, letter, LetterFont(), HAlign::Right, VAlign::Middle);
}

void DimH(draw::Canvas& c, double y, double x0, double x1, const char* letter, bool above = true,
          double at = 0.5) {
  c.Line({x0, y}, {x1, y}, kDimension);
  c.Line({x0, y - 1.5}, {x0, y + 1.5}, kDimension);
  c.Line({x1, y - 1.5}, {x1, y + 1.5}, kDimension);
  c.Text({x0 + at * (x1 - x0), above ? y + 1.5 : y - 1.5}, letter, LetterFont(), HAlign::Center,
         above ? VAlign::Bottom : VAlign::Top);
}

// Axes through (x, y): Y from `left` to `right` with "Y" at its end, Z from `top` down to `bottom`
// with "Z" hanging right of its foot; the ends keep clear of the dimension lines, and `right` and
// `bottom` leave the letters room inside the picture (5 and 8 units).
void Axes(draw::Canvas& c, double x, double y, double left, double right, double top, double bottom) {
  c.Line({left, y}, {right, y}, kAxis);
  c.Line({x, top}, {x, bottom}, kAxis);
  c.Text({right, y}, "Y", AxisFont(), HAlign::Left, VAlign::Middle);
  c.Text({x + 1, bottom}, "Z", AxisFont(), HAlign::Left, VAlign::Top);
}

// Points round a quarter circle, from angle a0 to a1 (radians).
void Arc(std::vector<Point>& pts, double cx, double cy, double r, double a0, double a1, int n = 6) {
  for (int i = 0; i <= n; ++i) {
    const double a = a0 + (a1 - a0) * i / n;
    pts.push_back({cx + r * std::cos(a), cy + r * std::sin(a)});
  }
}

constexpr double kPi = 3.14159265358979;

// ---- The families' stock pictures, centred on (50, 50) with y upwards ----

// An I of height h and width b; tapered flanges slope the inner faces.
void StockI(draw::Canvas& c, double b, double bBottom, double h, bool tapered, bool letters, bool unequal) {
  const double top = 50 + h / 2, bot = 50 - h / 2, tw = 5, tf = 7;
  const double xt0 = 50 - b / 2, xt1 = 50 + b / 2, xb0 = 50 - bBottom / 2, xb1 = 50 + bBottom / 2;
  const double taper = tapered ? 2.5 : 0;
  const double wl = 50 - tw / 2, wr = 50 + tw / 2;
  Shape(c, {{xb0, bot},
            {xb1, bot},
            {xb1, bot + tf - taper},
            {wr, bot + tf + taper},
            {wr, top - tf - taper},
            {xt1, top - tf + taper},
            {xt1, top},
            {xt0, top},
            {xt0, top - tf + taper},
            {wl, top - tf - taper},
            {wl, bot + tf + taper},
            {xb0, bot + tf - taper}});
  if (!letters) return;
  DimV(c, std::min(xt0, xb0) - 5, bot, top, "h");
  if (unequal) {
    DimH(c, top + 4, xt0, xt1, "b1");
    DimH(c, bot - 4, xb0, xb1, "b2", false, 0.85);
  } else {
    DimH(c, top + 4, xt0, xt1, "b");
  }
  Axes(c, 50, 50, std::min(xt0, xb0) - 2, 50 + std::max(b, bBottom) / 2 + 8, top + 2, bot - 6);
}

// A channel with its web at the left.
void StockChannel(draw::Canvas& c, bool tapered, bool letters) {
  const double h = 70, b = 34, tw = 5, tf = 7, taper = tapered ? 2.5 : 0;
  const double top = 50 + h / 2, bot = 50 - h / 2, x0 = 50 - b / 2, x1 = 50 + b / 2;
  Shape(c, {{x0, bot},
            {x1, bot},
            {x1, bot + tf - taper},
            {x0 + tw, bot + tf + taper},
            {x0 + tw, top - tf - taper},
            {x1, top - tf + taper},
            {x1, top},
            {x0, top}});
  if (!letters) return;
  DimV(c, x0 - 5, bot, top, "h");
  DimH(c, top + 4, x0, x1, "b");
  Axes(c, x0 + 11, 50, x0 - 2, x1 + 8, top + 2, bot - 6);
}

// A hollow rectangle with rounded corners, w wide and h high.
void StockHollow(draw::Canvas& c, double w, double h, double t, double r, bool letters) {
  const double x0 = 50 - w / 2, x1 = 50 + w / 2, y0 = 50 - h / 2, y1 = 50 + h / 2;
  auto rounded = [](double a0, double b0, double a1, double b1, double rad) {
    std::vector<Point> p;
    Arc(p, a1 - rad, b0 + rad, rad, -kPi / 2, 0);
    Arc(p, a1 - rad, b1 - rad, rad, 0, kPi / 2);
    Arc(p, a0 + rad, b1 - rad, rad, kPi / 2, kPi);
    Arc(p, a0 + rad, b0 + rad, rad, kPi, 1.5 * kPi);
    return p;
  };
  Shape(c, rounded(x0, y0, x1, y1, r));
  Shape(c, rounded(x0 + t, y0 + t, x1 - t, y1 - t, std::max(r - t, 0.5)), draw::kWhite);
  if (!letters) return;
  DimV(c, x0 - 5, y0, y1, "h");
  DimH(c, y1 + 4, x0, x1, "b");
  Axes(c, 50, 50, x0 - 2, x1 + 8, y1 + 2, y0 - 6);
}

// An angle: the vertical leg h at the left, the horizontal leg b at the foot.
void StockAngle(draw::Canvas& c, double b, bool letters) {
  const double h = 64, t = 7, x0 = 50 - b / 2, y0 = 50 - h / 2;
  Shape(c, {{x0, y0}, {x0 + b, y0}, {x0 + b, y0 + t}, {x0 + t, y0 + t}, {x0 + t, y0 + h}, {x0, y0 + h}});
  if (!letters) return;
  DimV(c, x0 - 5, y0, y0 + h, "h");
  DimH(c, y0 - 5, x0, x0 + b, "b", false, 0.75);
  // The centroid lies near the heel.
  Axes(c, x0 + b * 0.28, y0 + h * 0.3, x0 - 2, x0 + b + 6, y0 + h + 2, y0 - 9);
}

// A welded box; `flush` puts the webs outside under the flanges' edges.
void StockBox(draw::Canvas& c, double b1, double b2, bool flush, bool letters, bool unequal) {
  const double h = 70, t = 6, top = 50 + h / 2, bot = 50 - h / 2;
  const double inner = std::min(b1, b2) - (flush ? 0 : 16);  // between the webs' outer faces
  const double wx0 = 50 - inner / 2, wx1 = 50 + inner / 2;
  Box(c, 50 - b1 / 2, top - t, 50 + b1 / 2, top);
  Box(c, 50 - b2 / 2, bot, 50 + b2 / 2, bot + t);
  Box(c, wx0, bot + t, wx0 + t, top - t);
  Box(c, wx1 - t, bot + t, wx1, top - t);
  if (!letters) return;
  DimV(c, 50 - std::max(b1, b2) / 2 - 5, bot, top, "h");
  DimH(c, top + 4, 50 - b1 / 2, 50 + b1 / 2, unequal ? "b1" : "b");
  if (unequal) DimH(c, bot - 4, 50 - b2 / 2, 50 + b2 / 2, "b2", false, 0.85);
  Axes(c, 50, 50, 50 - std::max(b1, b2) / 2 - 2, 50 + std::max(b1, b2) / 2 + 4, top + 2, bot - 6);
}

// HSQ: a narrow top flange, two webs, a wide bottom flange standing out on both sides (symmetric)
// or one side (non symmetric). The second kind sets the webs in from the top flange's edges.
void StockHsq(draw::Canvas& c, bool symmetric, bool inset, bool letters) {
  const double h = 56, t = 6, top = 50 + h / 2, bot = 50 - h / 2;
  const double b1 = 36, b2 = 72;
  const double topX0 = symmetric ? 50 - b1 / 2 : 14, topX1 = topX0 + b1;
  const double botX0 = symmetric ? 50 - b2 / 2 : 14, botX1 = botX0 + b2;
  const double web0 = topX0 + (inset ? 6 : 0), web1 = topX1 - (inset ? 6 : 0);
  Box(c, topX0, top - t, topX1, top);
  Box(c, botX0, bot, botX1, bot + t);
  Box(c, web0, bot + t, web0 + t, top - t);
  Box(c, web1 - t, bot + t, web1, top - t);
  if (!letters) return;
  DimV(c, botX0 - 4, bot, top, "h");
  DimH(c, top + 4, topX0, topX1, "b1");
  DimH(c, bot - 4, botX0, botX1, "b2", false, 0.85);
  Axes(c, (web0 + web1) / 2, 50 - 6, botX0 - 1, botX1 + 4, top + 2, bot - 6);
}

void StockTee(draw::Canvas& c, bool letters) {
  const double h = 64, b = 60, t = 7, top = 50 + h / 2, bot = 50 - h / 2;
  Shape(c, {{50 - t / 2, bot},
            {50 + t / 2, bot},
            {50 + t / 2, top - t},
            {50 + b / 2, top - t},
            {50 + b / 2, top},
            {50 - b / 2, top},
            {50 - b / 2, top - t},
            {50 - t / 2, top - t}});
  if (!letters) return;
  DimV(c, 50 - b / 2 - 5, bot, top, "h");
  DimH(c, top + 4, 50 - b / 2, 50 + b / 2, "b");
  Axes(c, 50, top - h * 0.3, 50 - b / 2 - 2, 50 + b / 2 + 8, top + 2, bot - 6);
}

void StockFlatBar(draw::Canvas& c, bool letters) {
  const double h = 70, t = 12;
  Box(c, 50 - t / 2, 50 - h / 2, 50 + t / 2, 50 + h / 2);
  if (!letters) return;
  DimV(c, 50 - t / 2 - 6, 50 - h / 2, 50 + h / 2, "h");
  Axes(c, 50, 50, 50 - t / 2 - 3, 50 + t / 2 + 14, 50 + h / 2 + 2, 50 - h / 2 - 6);
}

void StockTube(draw::Canvas& c, bool letters) {
  c.Circle({50, 50}, 34, kEdge, kSteel);
  c.Circle({50, 50}, 28, kEdge, draw::kWhite);
  if (!letters) return;
  DimH(c, 90, 16, 84, "d");
  Axes(c, 50, 50, 8, 92, 86, 8);
}

// A plate with its stiffener underneath: 51 flat bar, 52 rolled angle, 53 welded angle, 54 bulb
// flat, 55 and 56 a T.
void StockPlate(draw::Canvas& c, int type, bool letters) {
  const double B = 76, t = 5, top = 82, plateBot = top - t, foot = 18, tw = 5;
  Box(c, 50 - B / 2, plateBot, 50 + B / 2, top);
  const double wx = 50 - tw / 2;
  double flange = 0;
  switch (type) {
    case 51: Box(c, wx, foot, wx + tw, plateBot); break;
    case 52:
    case 53:
      flange = 22;
      Shape(c, {{wx, foot},
                {wx + flange, foot},
                {wx + flange, foot + 5},
                {wx + tw, foot + 5},
                {wx + tw, plateBot},
                {wx, plateBot}});
      break;
    case 54: {
      std::vector<Point> p{{wx, plateBot}, {wx, foot}};
      Arc(p, wx + tw + 2, foot + 4, 5, -kPi / 2, kPi / 2, 8);
      p.push_back({wx + tw, foot + 12});
      p.push_back({wx + tw, plateBot});
      Shape(c, p);
      break;
    }
    default:
      flange = 30;
      Box(c, 50 - flange / 2, foot, 50 + flange / 2, foot + 5);
      Box(c, wx, foot + 5, wx + tw, plateBot);
      break;
  }
  if (!letters) return;
  DimH(c, top + 4, 50 - B / 2, 50 + B / 2, "B");
  DimV(c, 50 - B / 2 + 10, foot, plateBot, "h");
  if (flange > 0) {
    const double x0 = type == 52 || type == 53 ? wx : 50 - flange / 2;
    DimH(c, foot - 4, x0, x0 + flange, "b", false, 0.9);
  }
  Axes(c, 50, 64, 50 - B / 2 - 2, 50 + B / 2 + 4, top + 2, foot - 9);
}

double WiderFirst(const State& s) { return s.project.p22.istb1 >= s.project.p22.istb2; }

// ---- Drawing to scale ----

// How a family's record places its figure. The outline runs up from the lower left corner of the
// bounding box, and so does FigCentroidZ, with two exceptions:
// - the angle's record runs down from the back of the horizontal leg: its points (heel first) and
//   its centroid h - ez. Drawn mirrored, it is the L of the stock picture, heel at the lower left,
//   the y axis ez above the foot and u rising to the right;
// - the families whose FigCentroidZ is the distance from the upper edge while their rectangles run
//   up: the single symmetric I (h - ezb), the HSQ and the unequal box (h - ez, ez from the lower
//   edge), the plates with a stiffener (ez from the plate).
bool MirroredRecord(int type) { return type == 10 || type == 11; }

bool CentroidFromUpperEdge(int type) {
  return MirroredRecord(type) || type == 22 || type == 24 || type == 25 || type == 27 ||
         (type >= 51 && type <= 56);
}

// The record's points in the drawing's frame, y upwards from the lower edge.
struct FigureFrame {
  const Section& sec;
  bool mirrored = false;
  Point At(int i) const {
    const OutlinePoint& p = sec.Outline[static_cast<size_t>(std::clamp(i, 0, 81))];
    return {p.x, mirrored ? sec.FigHeight - p.y : p.y};
  }
  std::vector<Point> Contour(int first, int last) const {
    std::vector<Point> pts;
    for (int i = first; i <= last && i <= 81; ++i) pts.push_back(At(i));
    return pts;
  }
};

void DrawOutlineSection(draw::Canvas& c, const FigureFrame& f) {
  c.Polygon(f.Contour(1, f.sec.OutlineCount), kEdge, kSteel);
  if (f.sec.OutlineInnerLast >= 51) c.Polygon(f.Contour(51, f.sec.OutlineInnerLast), kEdge, draw::kWhite);
}

// `unit` is a fiftieth of the figure's larger dimension; the margin round the section is five units.
void DrawRectSection(draw::Canvas& c, const FigureFrame& f, int type, double unit) {
  const Section& sec = f.sec;
  const int n = std::clamp<int>(sec.OutlineRects, 0, 40);
  for (int i = 1; i <= n; ++i) c.Rectangle(f.At(2 * i - 1), f.At(2 * i), kEdge, kSteel);
  if (n < 1) return;
  // The flanges' letters as the dialog's fields name them: b1 above the upper flange, b2 below the
  // lower one, whatever the order of the rectangles; the plates carry B on the plate. The letter
  // stands in the margin, close to the plate, so that it is not cut by the picture's edge.
  auto label = [&](int rect, const char* letter, bool above) {
    const Point a = f.At(2 * rect - 1), b = f.At(2 * rect);
    const double y = above ? std::max(a.y, b.y) + 0.1 * unit : std::min(a.y, b.y) - 0.1 * unit;
    // Beside the z axis, which runs through the middle, at three quarters of the plate.
    c.Text({0.25 * std::min(a.x, b.x) + 0.75 * std::max(a.x, b.x), y}, letter, LetterFont(), HAlign::Center,
           above ? VAlign::Bottom : VAlign::Top);
  };
  // The upper flange reaches highest (the widest plate where a web reaches as high), the lower one
  // lowest.
  int top = 1, bottom = 1;
  auto hi = [&](int i) { return std::max(f.At(2 * i - 1).y, f.At(2 * i).y); };
  auto lo = [&](int i) { return std::min(f.At(2 * i - 1).y, f.At(2 * i).y); };
  auto wide = [&](int i) { return std::fabs(f.At(2 * i).x - f.At(2 * i - 1).x); };
  for (int i = 2; i <= n; ++i) {
    if (hi(i) > hi(top) || (hi(i) == hi(top) && wide(i) > wide(top))) top = i;
    if (lo(i) < lo(bottom) || (lo(i) == lo(bottom) && wide(i) > wide(bottom))) bottom = i;
  }
  if (type >= 51 && type <= 56) {
    label(top, "B", true);
  } else if (n >= 3) {
    label(top, "b1", true);
    label(bottom, "b2", false);
  }
}

// The channel: the line from the centroid to the shear centre behind the web, with a small circle.
void DrawChannel(draw::Canvas& c, const FigureFrame& f) {
  DrawOutlineSection(c, f);
  const Point a = f.At(f.sec.OutlineCount + 1), b = f.At(f.sec.OutlineCount + 2);
  if (a.x != b.x || a.y != b.y) {
    c.Line(a, b, kAxis);
    c.Circle(b, std::max(f.sec.FigWidth, f.sec.FigHeight) * 0.015, kEdge, draw::kWhite);
  }
}

// The angle with its principal axes through the centroid: u along the two points after the outline,
// v square to it, both kept clear of the picture's edge by the room of their letters.
void DrawAngle(draw::Canvas& c, const FigureFrame& f, Point centroid, double x0, double y0, double x1,
               double y1, double D) {
  DrawOutlineSection(c, f);
  const Point a = f.At(f.sec.OutlineCount + 1), b = f.At(f.sec.OutlineCount + 2);
  double ux = b.x - a.x, uy = b.y - a.y;
  const double len = std::hypot(ux, uy);
  if (!(len > 0)) return;
  ux /= len;
  uy /= len;
  if (ux < 0) ux = -ux, uy = -uy;  // u points to the right, v upwards
  const double vx = -uy, vy = ux;
  const double room = 0.08 * D;
  // How far a ray from the centroid runs before it leaves the picture less the room.
  auto reach = [&](double dx, double dy) {
    double t = 0.45 * D;
    if (dx > 0) t = std::min(t, (x1 - room - centroid.x) / dx);
    if (dx < 0) t = std::min(t, (x0 + room - centroid.x) / dx);
    if (dy > 0) t = std::min(t, (y1 - room - centroid.y) / dy);
    if (dy < 0) t = std::min(t, (y0 + room - centroid.y) / dy);
    return std::max(t, 0.0);
  };
  const double tu = std::min(reach(ux, uy), reach(-ux, -uy)), tv = std::min(reach(vx, vy), reach(-vx, -vy));
  const Point uEnd{centroid.x + tu * ux, centroid.y + tu * uy},
      vEnd{centroid.x + tv * vx, centroid.y + tv * vy};
  c.Line({centroid.x - tu * ux, centroid.y - tu * uy}, uEnd, kAxis);
  c.Line({centroid.x - tv * vx, centroid.y - tv * vy}, vEnd, kAxis);
  c.Text({uEnd.x + 0.01 * D, uEnd.y}, "u", AxisFont(), HAlign::Left, VAlign::Top);
  c.Text({vEnd.x - 0.01 * D, vEnd.y}, "v", AxisFont(), vx < 0 ? HAlign::Right : HAlign::Left, VAlign::Top);
}

void DrawRoundSection(draw::Canvas& c, const Section& sec) {
  const double D = sec.FigHeight;
  c.Circle({D / 2, D / 2}, D / 2, kEdge, kSteel);
  if (sec.tw > 0 && sec.tw < D / 2) c.Circle({D / 2, D / 2}, D / 2 - sec.tw, kEdge, draw::kWhite);
}

bool IsRectFamily(int type) { return (type >= 22 && type <= 27) || (type >= 51 && type <= 56); }

}  // namespace

std::string SectionFigureBox(int type) {
  const bool known = (type >= 1 && type <= 11) || type == 15 || type == 16 || (type >= 21 && type <= 28) ||
                     type == 31 || type == 41 || (type >= 51 && type <= 56 && type != 55) ||
                     (type >= 101 && type <= 103);
  if (!known) return {};
  const std::string number = type < 10 ? "0" + std::to_string(type) : std::to_string(type);
  return "p" + number + ".pic1";
}

void DrawStockSection(draw::Canvas& c, const State& s, int type, bool letters) {
  const Project& p = s.project;
  c.Clear(draw::kWhite);
  c.SetScale(0, 100, 100, 0);
  switch (type) {
    case 1:
    case 2:
    case 3:
    case 21:  // broad flanges
      StockI(c, 64, 64, 70, false, letters, false);
      break;
    case 4: StockI(c, 40, 40, 70, false, letters, false); break;
    case 15: StockI(c, 36, 36, 70, true, letters, false); break;
    case 101: {
      const bool broad = p.subFamily101 == 2 || p.subFamily101 == 3;
      StockI(c, broad ? 64 : 40, broad ? 64 : 40, 70, false, letters, false);
      break;
    }
    case 102: StockI(c, 36, 36, 70, true, letters, false); break;
    case 22:
      if (WiderFirst(s))
        StockI(c, 64, 40, 70, false, letters, true);
      else
        StockI(c, 40, 64, 70, false, letters, true);
      break;
    case 5: StockChannel(c, false, letters); break;
    case 16: StockChannel(c, true, letters); break;
    case 103: StockChannel(c, p.subFamily103 == 2, letters); break;
    case 6: StockHollow(c, 60, 60, 6, 9, letters); break;
    case 8: StockHollow(c, 60, 60, 6, 14, letters); break;
    case 7:
    case 9: {
      const double r = type == 7 ? 9 : 14;
      if (p.rhsTurned == 1)
        StockHollow(c, 42, 70, 6, r, letters);
      else
        StockHollow(c, 70, 42, 6, r, letters);
      break;
    }
    case 10: StockAngle(c, 64, letters); break;
    case 11: StockAngle(c, 40, letters); break;
    case 23: StockBox(c, 70, 70, p.p23.oweld != 0, letters, false); break;
    case 27: StockBox(c, 56, 76, false, letters, true); break;
    case 24:
    case 25: StockHsq(c, type == 24, p.hsqKind != 0, letters); break;
    case 26: StockTee(c, letters); break;
    case 28: StockFlatBar(c, letters); break;
    case 31: StockTube(c, letters); break;
    case 51:
    case 52:
    case 53:
    case 54:
    case 55:
    case 56: StockPlate(c, type, letters); break;
    default: {
      Font f;
      f.family = "Arial";
      f.size = 8;
      c.Text({50, 50}, "General profile", f, HAlign::Center, VAlign::Middle);
    }
  }
}

void DrawSectionToScale(draw::Canvas& c, const State& s) {
  const Section& sec = s.section;
  const int type = s.project.ProfileType;
  const double W = sec.FigWidth, H = sec.FigHeight;
  const double D = std::max(W, H);
  // The larger dimension and a margin of 0.1 of it on every side; the other dimension centred.
  const double half = 0.6 * D, cx = W / 2, cy = H / 2;
  c.Clear(draw::kWhite);
  c.SetScale(cx - half, cy + half, cx + half, cy - half);
  const FigureFrame f{sec, MirroredRecord(type)};
  // The centroid in the drawing's frame.
  const double y = CentroidFromUpperEdge(type) ? H - sec.FigCentroidZ : sec.FigCentroidZ;
  const double z = sec.FigCentroidY;
  if (IsRectFamily(type))
    DrawRectSection(c, f, type, 0.02 * D);
  else if (type == 5 || type == 16 || type == 103)
    DrawChannel(c, f);
  else if (type == 10 || type == 11)
    DrawAngle(c, f, {z, y}, cx - half, cy - half, cx + half, cy + half, D);
  else if (type == 31)
    DrawRoundSection(c, sec);
  else
    DrawOutlineSection(c, f);
  // The axes through the centroid, reaching into the margin; each letter at the axis' end, inside
  // the picture: "Y" right of the y axis, "Z" left of the foot of the z axis, away from the
  // flanges' letters, which stand right of it.
  c.Line({cx - 0.58 * D, y}, {cx + 0.52 * D, y}, kAxis);
  c.Line({z, cy + 0.56 * D}, {z, cy - 0.57 * D}, kAxis);
  c.Text({cx + 0.525 * D, y}, "Y", AxisFont(), HAlign::Left, VAlign::Middle);
  c.Text({z - 0.015 * D, cy - 0.59 * D}, "Z", AxisFont(), HAlign::Right, VAlign::Bottom);
}

void DrawSectionFigure(State& s) {
  if (s.headless) return;  // no screen to draw on
  const std::string box = SectionFigureBox(s.project.ProfileType);
  if (box.empty()) return;
  draw::Drawing& d = s.view.pictures[box];
  d.commands.clear();
  draw::RecordingCanvas c(d);
  const Section& sec = s.section;
  // The general section has no outline; a section without dimensions has nothing to scale.
  const bool toScale = s.project.figureNotToScale == 0 && s.project.ProfileType != 41 &&
                       std::max(sec.FigWidth, sec.FigHeight) > 0;
  if (toScale)
    DrawSectionToScale(c, s);
  else
    DrawStockSection(c, s, s.project.ProfileType, true);
}

}  // namespace vn
