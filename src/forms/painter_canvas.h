// The drawing surface of the core on a QPainter: screen, printer or PDF.
#pragma once

#include <QRectF>

#include "graphics/canvas.h"

class QPainter;

namespace vn::forms {

class PainterCanvas : public Canvas {
 public:
  // Draws into `target` of the painter's device; the scale starts at 0..100 both ways.
  PainterCanvas(QPainter& painter, const QRectF& target);

  void SetScale(double left, double top, double right, double bottom) override;
  void Clear(Rgb background) override;
  void Line(Point a, Point b, const Pen& pen) override;
  void Polyline(const std::vector<Point>& points, const Pen& pen) override;
  void Polygon(const std::vector<Point>& points, const Pen& pen, std::optional<Rgb> fill) override;
  void Rectangle(Point a, Point b, const Pen& pen, std::optional<Rgb> fill) override;
  void Circle(Point centre, double radius, const Pen& pen, std::optional<Rgb> fill) override;
  void Text(Point at, const std::string& text, const Font& font, HAlign h, VAlign v) override;

 private:
  QPointF map(Point p) const;
  void usePen(const Pen& pen);
  void useFill(std::optional<Rgb> fill);

  QPainter& p_;
  QRectF target_;
  ScaleMap map_;
};

}  // namespace vn::forms
