// The drawing surface of the core on a QPainter: screen, printer or PDF.
#pragma once

#include <QRectF>

#include "graphics/canvas.h"

class QPainter;

namespace vn::forms {

class PainterCanvas : public draw::Canvas {
 public:
  // Draws into `target` of the painter's device; the scale starts at 0..100 both ways.
  PainterCanvas(QPainter& painter, const QRectF& target);

  void SetScale(double left, double top, double right, double bottom) override;
  void Clear(draw::Rgb background) override;
  void Line(draw::Point a, draw::Point b, const draw::Pen& pen) override;
  void Polyline(const std::vector<draw::Point>& points, const draw::Pen& pen) override;
  void Polygon(const std::vector<draw::Point>& points, const draw::Pen& pen,
               std::optional<draw::Rgb> fill) override;
  void Rectangle(draw::Point a, draw::Point b, const draw::Pen& pen, std::optional<draw::Rgb> fill) override;
  void Circle(draw::Point centre, double radius, const draw::Pen& pen,
              std::optional<draw::Rgb> fill) override;
  void Text(draw::Point at, const std::string& text, const draw::Font& font, draw::HAlign h,
            draw::VAlign v) override;

 private:
  QPointF map(draw::Point p) const;
  void usePen(const draw::Pen& pen);
  void useFill(std::optional<draw::Rgb> fill);

  QPainter& p_;
  QRectF target_;
  draw::ScaleMap map_;
};

}  // namespace vn::forms
