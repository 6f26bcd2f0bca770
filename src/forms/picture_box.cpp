#include "forms/picture_box.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "forms/painter_canvas.h"
#include "forms/session.h"

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

void PictureBox::paintEvent(QPaintEvent* e) {
  QFrame::paintEvent(e);
  QPainter painter(this);
  QRectF area = contentsRect();
  painter.setClipRect(area);
  if (square_) {
    const double side = std::min(area.width(), area.height());
    area = QRectF(area.center().x() - side / 2, area.center().y() - side / 2, side, side);
  }
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
