// The drawing surface of the figures and charts. The routines of graphics/ draw in user coordinates
// that they choose with SetScale, as a picture box's Scale does (the charts use 0..100 both ways);
// the surface maps them onto its own pixels. Three surfaces:
//   RecordingCanvas  keeps the commands in a Drawing, which the State holds and any surface replays
//   SvgCanvas        writes an SVG document (tests, export)
//   a QPainter canvas in forms/ (screen, printer, PDF)
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// The types live in vn::draw, apart from the names of the engineering routines (a section outline
// has its own points).
namespace vn::draw {

struct Rgb {
  std::uint8_t r = 0, g = 0, b = 0;
  friend bool operator==(const Rgb&, const Rgb&) = default;
};

// A colour value as the forms write it, &H00BBGGRR: red in the low byte (65280 is pure green).
constexpr Rgb RgbOfColorValue(std::uint32_t v) {
  return {static_cast<std::uint8_t>(v & 0xFF), static_cast<std::uint8_t>((v >> 8) & 0xFF),
          static_cast<std::uint8_t>((v >> 16) & 0xFF)};
}

inline constexpr Rgb kBlack{0, 0, 0};
inline constexpr Rgb kWhite{255, 255, 255};
inline constexpr Rgb kRed{255, 0, 0};
inline constexpr Rgb kGreen{0, 255, 0};
inline constexpr Rgb kBlue{0, 0, 255};

struct Point {
  double x = 0, y = 0;
  friend bool operator==(const Point&, const Point&) = default;
};

enum class LineStyle { Solid, Dash, Dot, DashDot };

struct Pen {
  Rgb color = kBlack;
  double width = 1;  // in pixels of the surface, as a picture's DrawWidth
  LineStyle style = LineStyle::Solid;
  friend bool operator==(const Pen&, const Pen&) = default;
};

struct Font {
  std::string family = "Arial";
  double size = 7;  // points
  bool bold = false;
  bool italic = false;
  Rgb color = kBlack;
  friend bool operator==(const Font&, const Font&) = default;
};

// Where the text's point lies on the text: Left/Top is the picture's CurrentX/CurrentY.
enum class HAlign { Left, Center, Right };
enum class VAlign { Top, Middle, Bottom };

class Canvas {
 public:
  virtual ~Canvas() = default;
  // User coordinates of the edges: (left, top) is the top left corner, (right, bottom) the bottom
  // right. top > bottom makes y point upwards. Until it is called the scale is 0..100 both ways.
  virtual void SetScale(double left, double top, double right, double bottom) = 0;
  // Wipes the picture to its background colour.
  virtual void Clear(Rgb background) = 0;
  virtual void Line(Point a, Point b, const Pen& pen) = 0;
  virtual void Polyline(const std::vector<Point>& points, const Pen& pen) = 0;
  // A closed outline, filled when `fill` is given.
  virtual void Polygon(const std::vector<Point>& points, const Pen& pen, std::optional<Rgb> fill) = 0;
  // The rectangle between two opposite corners.
  virtual void Rectangle(Point a, Point b, const Pen& pen, std::optional<Rgb> fill) = 0;
  // A round circle; the radius is in units of the x axis, as a picture's Circle takes it.
  virtual void Circle(Point centre, double radius, const Pen& pen, std::optional<Rgb> fill) = 0;
  virtual void Text(Point at, const std::string& text, const Font& font, HAlign h = HAlign::Left,
                    VAlign v = VAlign::Top) = 0;
};

// One drawing command as recorded.
struct DrawCommand {
  enum class Kind { Scale, Clear, Line, Polyline, Polygon, Rectangle, Circle, Text };
  Kind kind = Kind::Line;
  // Scale: (left, top), (right, bottom); Line, Rectangle: the two points; Circle: the centre;
  // Polyline, Polygon: all points; Text: the anchor.
  std::vector<Point> points;
  double radius = 0;
  Pen pen;
  std::optional<Rgb> fill;  // Clear: the background
  std::string text;
  Font font;
  HAlign h = HAlign::Left;
  VAlign v = VAlign::Top;
};

// A picture's content: the commands in the order drawn.
struct Drawing {
  std::vector<DrawCommand> commands;
  bool empty() const { return commands.empty(); }
};

// Draws a recorded picture onto another surface.
void Replay(const Drawing& drawing, Canvas& canvas);

// Keeps every command in a Drawing.
class RecordingCanvas : public Canvas {
 public:
  explicit RecordingCanvas(Drawing& out) : out_(out) {}
  void SetScale(double left, double top, double right, double bottom) override;
  void Clear(Rgb background) override;
  void Line(Point a, Point b, const Pen& pen) override;
  void Polyline(const std::vector<Point>& points, const Pen& pen) override;
  void Polygon(const std::vector<Point>& points, const Pen& pen, std::optional<Rgb> fill) override;
  void Rectangle(Point a, Point b, const Pen& pen, std::optional<Rgb> fill) override;
  void Circle(Point centre, double radius, const Pen& pen, std::optional<Rgb> fill) override;
  void Text(Point at, const std::string& text, const Font& font, HAlign h, VAlign v) override;

 private:
  Drawing& out_;
};

// The mapping of user coordinates onto a surface of width x height pixels. A scale with no extent
// (left == right) maps that axis onto the surface's edge rather than dividing by zero.
struct ScaleMap {
  double left = 0, top = 0, right = 100, bottom = 100;
  double width = 100, height = 100;  // pixels
  Point ToDevice(Point p) const;
  double XLength(double userLength) const;  // a length along x in pixels, always >= 0
};

// Writes an SVG document of width x height pixels.
class SvgCanvas : public Canvas {
 public:
  SvgCanvas(double width, double height);
  void SetScale(double left, double top, double right, double bottom) override;
  void Clear(Rgb background) override;
  void Line(Point a, Point b, const Pen& pen) override;
  void Polyline(const std::vector<Point>& points, const Pen& pen) override;
  void Polygon(const std::vector<Point>& points, const Pen& pen, std::optional<Rgb> fill) override;
  void Rectangle(Point a, Point b, const Pen& pen, std::optional<Rgb> fill) override;
  void Circle(Point centre, double radius, const Pen& pen, std::optional<Rgb> fill) override;
  void Text(Point at, const std::string& text, const Font& font, HAlign h, VAlign v) override;
  // The whole document.
  std::string Svg() const;

 private:
  std::string PointsText(const std::vector<Point>& points) const;
  ScaleMap map_;
  std::string body_;
};

}  // namespace vn::draw
