#include "forms/painter_canvas.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPolygonF>

namespace vn::forms {

using namespace vn::draw;

namespace {

QColor ToQColor(Rgb c) { return QColor(c.r, c.g, c.b); }

Qt::PenStyle ToQtStyle(LineStyle s) {
  switch (s) {
    case LineStyle::Solid: return Qt::SolidLine;
    case LineStyle::Dash: return Qt::DashLine;
    case LineStyle::Dot: return Qt::DotLine;
    case LineStyle::DashDot: return Qt::DashDotLine;
  }
  return Qt::SolidLine;
}

}  // namespace

PainterCanvas::PainterCanvas(QPainter& painter, const QRectF& target) : p_(painter), target_(target) {
  map_.width = target.width();
  map_.height = target.height();
  p_.setRenderHint(QPainter::Antialiasing, true);
  p_.setRenderHint(QPainter::TextAntialiasing, true);
}

QPointF PainterCanvas::map(Point u) const {
  Point d = map_.ToDevice(u);
  return {target_.left() + d.x, target_.top() + d.y};
}

void PainterCanvas::usePen(const Pen& pen) {
  QPen q(ToQColor(pen.color));
  q.setWidthF(pen.width > 0 ? pen.width : 1);
  q.setStyle(ToQtStyle(pen.style));
  q.setCapStyle(Qt::FlatCap);
  q.setJoinStyle(Qt::MiterJoin);
  p_.setPen(q);
}

void PainterCanvas::useFill(std::optional<Rgb> fill) {
  if (fill)
    p_.setBrush(ToQColor(*fill));
  else
    p_.setBrush(Qt::NoBrush);
}

void PainterCanvas::SetScale(double left, double top, double right, double bottom) {
  map_.left = left;
  map_.top = top;
  map_.right = right;
  map_.bottom = bottom;
}

void PainterCanvas::Clear(Rgb background) { p_.fillRect(target_, ToQColor(background)); }

void PainterCanvas::Line(Point a, Point b, const Pen& pen) {
  usePen(pen);
  p_.drawLine(map(a), map(b));
}

void PainterCanvas::Polyline(const std::vector<Point>& points, const Pen& pen) {
  if (points.size() < 2) return;
  QPolygonF poly;
  for (const Point& u : points) poly << map(u);
  usePen(pen);
  p_.drawPolyline(poly);
}

void PainterCanvas::Polygon(const std::vector<Point>& points, const Pen& pen, std::optional<Rgb> fill) {
  if (points.size() < 2) return;
  QPolygonF poly;
  for (const Point& u : points) poly << map(u);
  usePen(pen);
  useFill(fill);
  p_.drawPolygon(poly);
  p_.setBrush(Qt::NoBrush);
}

void PainterCanvas::Rectangle(Point a, Point b, const Pen& pen, std::optional<Rgb> fill) {
  usePen(pen);
  useFill(fill);
  p_.drawRect(QRectF(map(a), map(b)).normalized());
  p_.setBrush(Qt::NoBrush);
}

void PainterCanvas::Circle(Point centre, double radius, const Pen& pen, std::optional<Rgb> fill) {
  const double r = map_.XLength(radius);
  usePen(pen);
  useFill(fill);
  p_.drawEllipse(map(centre), r, r);
  p_.setBrush(Qt::NoBrush);
}

void PainterCanvas::Text(Point at, const std::string& text, const Font& font, HAlign h, VAlign v) {
  QFont f(QString::fromStdString(font.family));
  f.setPointSizeF(font.size > 0 ? font.size : 7);
  f.setBold(font.bold);
  f.setItalic(font.italic);
  p_.setFont(f);
  p_.setPen(ToQColor(font.color));
  const QString t = QString::fromStdString(text);
  // The metrics of the device drawn on, so that a printer places text as the screen does.
  QFontMetricsF fm(f, p_.device());
  QPointF pos = map(at);
  const double w = fm.horizontalAdvance(t);
  if (h == HAlign::Center) pos.rx() -= w / 2;
  if (h == HAlign::Right) pos.rx() -= w;
  if (v == VAlign::Top) pos.ry() += fm.ascent();
  if (v == VAlign::Middle) pos.ry() += (fm.ascent() - fm.descent()) / 2;
  if (v == VAlign::Bottom) pos.ry() -= fm.descent();
  p_.drawText(pos, t);
}

}  // namespace vn::forms
