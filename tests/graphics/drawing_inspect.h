// Reading a recorded picture in the graphics tests: its texts, its commands of one kind, its scale.
#pragma once

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <vector>

#include "graphics/canvas.h"

namespace vn::test {

inline std::vector<std::string> Texts(const draw::Drawing& d) {
  std::vector<std::string> texts;
  for (const draw::DrawCommand& c : d.commands)
    if (c.kind == draw::DrawCommand::Kind::Text) texts.push_back(c.text);
  return texts;
}

inline bool HasText(const draw::Drawing& d, const std::string& text) {
  const auto t = Texts(d);
  return std::find(t.begin(), t.end(), text) != t.end();
}

inline std::vector<draw::DrawCommand> Commands(const draw::Drawing& d, draw::DrawCommand::Kind kind) {
  std::vector<draw::DrawCommand> out;
  for (const draw::DrawCommand& c : d.commands)
    if (c.kind == kind) out.push_back(c);
  return out;
}

// The lines drawn in one colour.
inline std::vector<draw::DrawCommand> LinesIn(const draw::Drawing& d, draw::Rgb colour) {
  std::vector<draw::DrawCommand> out;
  for (const draw::DrawCommand& c : Commands(d, draw::DrawCommand::Kind::Line))
    if (c.pen.color == colour) out.push_back(c);
  return out;
}

// Where a text lands on a square picture of `side` pixels, as the painter places it: the glyphs
// taken generously (0.75 em wide each, 0.95 em above the base line and 0.25 em below, at 96 dots
// an inch), so that a text found inside is inside on screen too.
struct TextBox {
  std::string text;
  double left = 0, top = 0, right = 0, bottom = 0;  // pixels
};

inline std::vector<TextBox> TextBoxes(const draw::Drawing& d, double side) {
  draw::ScaleMap map;
  map.width = map.height = side;
  std::vector<TextBox> boxes;
  for (const draw::DrawCommand& c : d.commands) {
    if (c.kind == draw::DrawCommand::Kind::Scale) {
      map.left = c.points[0].x, map.top = c.points[0].y, map.right = c.points[1].x,
      map.bottom = c.points[1].y;
    }
    if (c.kind != draw::DrawCommand::Kind::Text) continue;
    const double em = c.font.size * 96 / 72, ascent = 0.95 * em, descent = 0.25 * em;
    const double w = 0.75 * em * static_cast<double>(c.text.size());
    const draw::Point at = map.ToDevice(c.points[0]);
    double x = at.x, base = at.y;
    if (c.h == draw::HAlign::Center) x -= w / 2;
    if (c.h == draw::HAlign::Right) x -= w;
    if (c.v == draw::VAlign::Top) base += ascent;
    if (c.v == draw::VAlign::Middle) base += (ascent - descent) / 2;
    if (c.v == draw::VAlign::Bottom) base -= descent;
    boxes.push_back({c.text, x, base - ascent, x + w, base + descent});
  }
  return boxes;
}

// The steel of a drawing in its own units: the filled shapes less the white ones drawn over them,
// sampled on a grid of n x n points over the rectangle [x0, x1] x [y0, y1]. Gives the area's centre.
inline std::optional<draw::Point> SteelCentroid(const draw::Drawing& d, double x0, double y0, double x1,
                                                double y1, int n = 300) {
  auto inPolygon = [](const std::vector<draw::Point>& p, double x, double y) {
    bool in = false;
    for (size_t i = 0, j = p.size() - 1; i < p.size(); j = i++)
      if ((p[i].y > y) != (p[j].y > y) && x < (p[j].x - p[i].x) * (y - p[i].y) / (p[j].y - p[i].y) + p[i].x)
        in = !in;
    return in;
  };
  double sum = 0, sx = 0, sy = 0;
  for (int i = 0; i < n; ++i) {
    for (int j = 0; j < n; ++j) {
      const double x = x0 + (x1 - x0) * (i + 0.5) / n, y = y0 + (y1 - y0) * (j + 0.5) / n;
      bool steel = false;
      for (const draw::DrawCommand& c : d.commands) {
        if (!c.fill || c.kind == draw::DrawCommand::Kind::Clear) continue;
        bool inside = false;
        if (c.kind == draw::DrawCommand::Kind::Polygon) inside = inPolygon(c.points, x, y);
        if (c.kind == draw::DrawCommand::Kind::Rectangle)
          inside = x >= std::min(c.points[0].x, c.points[1].x) &&
                   x <= std::max(c.points[0].x, c.points[1].x) &&
                   y >= std::min(c.points[0].y, c.points[1].y) && y <= std::max(c.points[0].y, c.points[1].y);
        if (c.kind == draw::DrawCommand::Kind::Circle)
          inside = std::hypot(x - c.points[0].x, y - c.points[0].y) <= c.radius;
        if (inside) steel = !(*c.fill == draw::kWhite);
      }
      if (steel) sum += 1, sx += x, sy += y;
    }
  }
  if (sum == 0) return std::nullopt;
  return draw::Point{sx / sum, sy / sum};
}

}  // namespace vn::test
