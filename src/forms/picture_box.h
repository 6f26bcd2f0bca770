// A picture of a form: shows the drawing the core recorded under its name (view.pictures) and
// fires its name when clicked.
#pragma once

#include <QFrame>
#include <functional>
#include <string>

namespace vn::forms {

class Session;

class PictureBox : public QFrame {
  Q_OBJECT

 public:
  PictureBox(Session* session, std::string name, QWidget* parent = nullptr);
  const std::string& name() const { return name_; }
  // Draws something of the form's own before the core's drawing (a stock picture, a symbol).
  void setBackdrop(std::function<void(class QPainter&, const QRectF&)> backdrop);
  // Draws into the largest centred square, so that a figure to scale keeps its proportions.
  void setSquare(bool square);
  // A result chart: while the mouse moves over it the tool tip reads the forces under it.
  void setReadout(bool readout);

 signals:
  void clicked();

 protected:
  void paintEvent(QPaintEvent* e) override;
  void mouseReleaseEvent(QMouseEvent* e) override;
  void mouseMoveEvent(QMouseEvent* e) override;

 private:
  Session* session_;
  std::string name_;
  std::function<void(QPainter&, const QRectF&)> backdrop_;
  bool square_ = false;
  bool readout_ = false;

  QRectF drawingArea() const;
};

}  // namespace vn::forms
