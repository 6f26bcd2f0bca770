#include "graphics/canvas.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace vn::draw {

void Replay(const Drawing& drawing, Canvas& c) {
  using K = DrawCommand::Kind;
  for (const DrawCommand& d : drawing.commands) {
    const auto& p = d.points;
    switch (d.kind) {
      case K::Scale:
        if (p.size() == 2) c.SetScale(p[0].x, p[0].y, p[1].x, p[1].y);
        break;
      case K::Clear: c.Clear(d.fill.value_or(kWhite)); break;
      case K::Line:
        if (p.size() == 2) c.Line(p[0], p[1], d.pen);
        break;
      case K::Polyline: c.Polyline(p, d.pen); break;
      case K::Polygon: c.Polygon(p, d.pen, d.fill); break;
      case K::Rectangle:
        if (p.size() == 2) c.Rectangle(p[0], p[1], d.pen, d.fill);
        break;
      case K::Circle:
        if (p.size() == 1) c.Circle(p[0], d.radius, d.pen, d.fill);
        break;
      case K::Text:
        if (p.size() == 1) c.Text(p[0], d.text, d.font, d.h, d.v);
        break;
    }
  }
}

// ---- RecordingCanvas ----

void RecordingCanvas::SetScale(double left, double top, double right, double bottom) {
  DrawCommand d;
  d.kind = DrawCommand::Kind::Scale;
  d.points = {{left, top}, {right, bottom}};
  out_.commands.push_back(std::move(d));
}

void RecordingCanvas::Clear(Rgb background) {
  // Everything drawn so far is wiped, so it need not be kept.
  out_.commands.clear();
  DrawCommand d;
  d.kind = DrawCommand::Kind::Clear;
  d.fill = background;
  out_.commands.push_back(std::move(d));
}

void RecordingCanvas::Line(Point a, Point b, const Pen& pen) {
  DrawCommand d;
  d.kind = DrawCommand::Kind::Line;
  d.points = {a, b};
  d.pen = pen;
  out_.commands.push_back(std::move(d));
}

void RecordingCanvas::Polyline(const std::vector<Point>& points, const Pen& pen) {
  DrawCommand d;
  d.kind = DrawCommand::Kind::Polyline;
  d.points = points;
  d.pen = pen;
  out_.commands.push_back(std::move(d));
}

void RecordingCanvas::Polygon(const std::vector<Point>& points, const Pen& pen, std::optional<Rgb> fill) {
  DrawCommand d;
  d.kind = DrawCommand::Kind::Polygon;
  d.points = points;
  d.pen = pen;
  d.fill = fill;
  out_.commands.push_back(std::move(d));
}

void RecordingCanvas::Rectangle(Point a, Point b, const Pen& pen, std::optional<Rgb> fill) {
  DrawCommand d;
  d.kind = DrawCommand::Kind::Rectangle;
  d.points = {a, b};
  d.pen = pen;
  d.fill = fill;
  out_.commands.push_back(std::move(d));
}

void RecordingCanvas::Circle(Point centre, double radius, const Pen& pen, std::optional<Rgb> fill) {
  DrawCommand d;
  d.kind = DrawCommand::Kind::Circle;
  d.points = {centre};
  d.radius = radius;
  d.pen = pen;
  d.fill = fill;
  out_.commands.push_back(std::move(d));
}

void RecordingCanvas::Text(Point at, const std::string& text, const Font& font, HAlign h, VAlign v) {
  DrawCommand d;
  d.kind = DrawCommand::Kind::Text;
  d.points = {at};
  d.text = text;
  d.font = font;
  d.h = h;
  d.v = v;
  out_.commands.push_back(std::move(d));
}

// ---- ScaleMap ----

Point ScaleMap::ToDevice(Point p) const {
  const double sx = right - left, sy = bottom - top;
  const double x = sx != 0 && std::isfinite(sx) ? (p.x - left) / sx * width : 0;
  const double y = sy != 0 && std::isfinite(sy) ? (p.y - top) / sy * height : 0;
  return {std::isfinite(x) ? x : 0, std::isfinite(y) ? y : 0};
}

double ScaleMap::XLength(double userLength) const {
  const double sx = std::fabs(right - left);
  const double len = sx != 0 ? std::fabs(userLength) / sx * width : 0;
  return std::isfinite(len) ? len : 0;
}

// ---- SvgCanvas ----

namespace {

// Numbers in the document always with '.', whatever the locale of the process.
std::string Num(double v) {
  if (!std::isfinite(v)) v = 0;
  char buf[64];
  auto [end, ec] = std::to_chars(buf, buf + sizeof buf, v, std::chars_format::fixed, 2);
  if (ec != std::errc()) return "0";
  // 12.50 -> 12.5, 12.00 -> 12, -0.00 -> 0
  while (end > buf && end[-1] == '0') --end;
  if (end > buf && end[-1] == '.') --end;
  if (end == buf || (end - buf == 2 && buf[0] == '-' && buf[1] == '0')) return "0";
  return std::string(buf, end);
}

std::string Color(Rgb c) {
  static const char* hex = "0123456789abcdef";
  std::string s = "#";
  for (std::uint8_t v : {c.r, c.g, c.b}) {
    s += hex[v >> 4];
    s += hex[v & 15];
  }
  return s;
}

std::string Escape(const std::string& text) {
  std::string out;
  for (char ch : text) {
    switch (ch) {
      case '&': out += "&amp;"; break;
      case '<': out += "&lt;"; break;
      case '>': out += "&gt;"; break;
      case '"': out += "&quot;"; break;
      default: out += ch;
    }
  }
  return out;
}

std::string Stroke(const Pen& pen) {
  std::string s = " stroke=\"" + Color(pen.color) + "\" stroke-width=\"" + Num(pen.width) + "\"";
  switch (pen.style) {
    case LineStyle::Solid: break;
    case LineStyle::Dash: s += " stroke-dasharray=\"6 3\""; break;
    case LineStyle::Dot: s += " stroke-dasharray=\"1 2\""; break;
    case LineStyle::DashDot: s += " stroke-dasharray=\"6 2 1 2\""; break;
  }
  return s;
}

std::string Fill(std::optional<Rgb> fill) {
  return fill ? " fill=\"" + Color(*fill) + "\"" : std::string(" fill=\"none\"");
}

}  // namespace

SvgCanvas::SvgCanvas(double width, double height) {
  map_.width = std::isfinite(width) && width > 0 ? width : 1;
  map_.height = std::isfinite(height) && height > 0 ? height : 1;
}

void SvgCanvas::SetScale(double left, double top, double right, double bottom) {
  map_.left = left;
  map_.top = top;
  map_.right = right;
  map_.bottom = bottom;
}

void SvgCanvas::Clear(Rgb background) {
  body_ = "<rect x=\"0\" y=\"0\" width=\"" + Num(map_.width) + "\" height=\"" + Num(map_.height) + "\"" +
          Fill(background) + "/>\n";
}

void SvgCanvas::Line(Point a, Point b, const Pen& pen) {
  Point p = map_.ToDevice(a), q = map_.ToDevice(b);
  body_ += "<line x1=\"" + Num(p.x) + "\" y1=\"" + Num(p.y) + "\" x2=\"" + Num(q.x) + "\" y2=\"" + Num(q.y) +
           "\"" + Stroke(pen) + "/>\n";
}

std::string SvgCanvas::PointsText(const std::vector<Point>& points) const {
  std::string s;
  for (const Point& u : points) {
    Point p = map_.ToDevice(u);
    if (!s.empty()) s += ' ';
    s += Num(p.x) + "," + Num(p.y);
  }
  return s;
}

void SvgCanvas::Polyline(const std::vector<Point>& points, const Pen& pen) {
  if (points.size() < 2) return;
  body_ += "<polyline points=\"" + PointsText(points) + "\" fill=\"none\"" + Stroke(pen) + "/>\n";
}

void SvgCanvas::Polygon(const std::vector<Point>& points, const Pen& pen, std::optional<Rgb> fill) {
  if (points.size() < 2) return;
  body_ += "<polygon points=\"" + PointsText(points) + "\"" + Fill(fill) + Stroke(pen) + "/>\n";
}

void SvgCanvas::Rectangle(Point a, Point b, const Pen& pen, std::optional<Rgb> fill) {
  Point p = map_.ToDevice(a), q = map_.ToDevice(b);
  const double x = std::min(p.x, q.x), y = std::min(p.y, q.y);
  body_ += "<rect x=\"" + Num(x) + "\" y=\"" + Num(y) + "\" width=\"" + Num(std::fabs(q.x - p.x)) +
           "\" height=\"" + Num(std::fabs(q.y - p.y)) + "\"" + Fill(fill) + Stroke(pen) + "/>\n";
}

void SvgCanvas::Circle(Point centre, double radius, const Pen& pen, std::optional<Rgb> fill) {
  Point c = map_.ToDevice(centre);
  body_ += "<circle cx=\"" + Num(c.x) + "\" cy=\"" + Num(c.y) + "\" r=\"" + Num(map_.XLength(radius)) + "\"" +
           Fill(fill) + Stroke(pen) + "/>\n";
}

void SvgCanvas::Text(Point at, const std::string& text, const Font& font, HAlign h, VAlign v) {
  Point p = map_.ToDevice(at);
  const char* anchor = h == HAlign::Left ? "start" : h == HAlign::Center ? "middle" : "end";
  // The alignment is put into the position of the alphabetic baseline (an ascent of 0.8 and a
  // descent of 0.2 of the size), which every renderer honours; a title at the top edge then lies
  // inside the picture also where dominant-baseline is ignored.
  const double px = font.size * 96.0 / 72.0;
  const double y = v == VAlign::Top ? p.y + 0.8 * px : v == VAlign::Middle ? p.y + 0.3 * px : p.y - 0.2 * px;
  body_ += "<text x=\"" + Num(p.x) + "\" y=\"" + Num(y) + "\" font-family=\"" + Escape(font.family) +
           "\" font-size=\"" + Num(px) + "\"";
  if (font.bold) body_ += " font-weight=\"bold\"";
  if (font.italic) body_ += " font-style=\"italic\"";
  body_ += std::string(" fill=\"") + Color(font.color) + "\" text-anchor=\"" + anchor +
           "\" xml:space=\"preserve\">" + Escape(text) + "</text>\n";
}

std::string SvgCanvas::Svg() const {
  return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + Num(map_.width) + "\" height=\"" +
         Num(map_.height) + "\" viewBox=\"0 0 " + Num(map_.width) + " " + Num(map_.height) + "\">\n" + body_ +
         "</svg>\n";
}

}  // namespace vn::draw
