#include "forms/picture_box.h"

#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "forms/painter_canvas.h"
#include "forms/session.h"
#include "graphics/charts.h"

namespace vn::forms {

PictureBox::PictureBox(Session* session, std::string name, QWidget* parent)
    : QFrame(parent), session_(session), name_(std::move(name)) {
  setObjectName(QString::fromStdString(name_));
  setFrameShape(QFrame::Panel);
  setFrameShadow(QFrame::Sunken);
  setAutoFillBackground(true);
  QPalette pal = palette();
  pal.setColor(QPalette::Window, Qt::white);
  setPalette(pal);
}

void PictureBox::setBackdrop(std::function<void(QPainter&, const QRectF&)> backdrop) {
  backdrop_ = std::move(backdrop);
  update();
}

void PictureBox::setSquare(bool square) {
  square_ = square;
  update();
}

void PictureBox::setReadout(bool readout) {
  readout_ = readout;
  setMouseTracking(readout);
}

QRectF PictureBox::drawingArea() const {
  QRectF area = contentsRect();
  if (square_) {
    const double side = std::min(area.width(), area.height());
    area = QRectF(area.center().x() - side / 2, area.center().y() - side / 2, side, side);
  }
  return area;
}

void PictureBox::mouseMoveEvent(QMouseEvent* e) {
  if (readout_) {
    const QRectF area = drawingArea();
    if (area.width() > 0) {
      // The charts run from 0 to 100 across the picture.
      const double x = (e->position().x() - area.left()) / area.width() * 100;
      if (auto tip = ChartReadout(session_->state(), name_, x)) {
        const QString text = QString::fromStdString(*tip);
        setToolTip(text);
        QToolTip::showText(e->globalPosition().toPoint(), text, this);
      }
    }
  }
  QFrame::mouseMoveEvent(e);
}

void PictureBox::paintEvent(QPaintEvent* e) {
  QFrame::paintEvent(e);
  QPainter painter(this);
  painter.setClipRect(contentsRect());
  const QRectF area = drawingArea();
  if (backdrop_) backdrop_(painter, area);
  const auto& pictures = session_->state().view.pictures;
  auto it = pictures.find(name_);
  if (it == pictures.end() || it->second.empty()) return;
  PainterCanvas canvas(painter, area);
  draw::Replay(it->second, canvas);
}

void PictureBox::mouseReleaseEvent(QMouseEvent* e) {
  if (e->button() == Qt::LeftButton && rect().contains(e->position().toPoint())) {
    emit clicked();
    e->accept();
    return;
  }
  QFrame::mouseReleaseEvent(e);
}

}  // namespace vn::forms
