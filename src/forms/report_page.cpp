#include "forms/report_page.h"

#include <QDateTime>
#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QRegularExpression>
#include <algorithm>

#include "core/state.h"
#include "forms/painter_canvas.h"
#include "graphics/canvas.h"

namespace vn::forms {

Report ReportNow(const State& s, ReportKind kind) {
  const QDateTime now = QDateTime::currentDateTime();
  return BuildReport(s, kind, now.toString("dd.MM.yyyy").toStdString(),
                     now.toString("HH:mm:ss").toStdString());
}

void PaintReport(QPainter& p, const QRectF& page, const State& s, const Report& r) {
  p.save();
  p.fillRect(page, Qt::white);
  // The page is laid out on a grid of 1/1000 of its width: the same look on every device.
  const double u = page.width() / 1000.0;
  QFont font("arial");
  font.setPixelSize(std::max(1, qRound(13 * u)));
  QFont bold = font;
  bold.setBold(true);
  QFont title = bold;
  title.setPixelSize(std::max(1, qRound(20 * u)));
  const double left = page.left() + 60 * u, right = page.right() - 60 * u;
  const double line = 17 * u;
  double y = page.top() + 60 * u;
  auto text = [&](double x, double at, const std::string& t, const QFont& f, const QColor& c = Qt::black) {
    p.setFont(f);
    p.setPen(c);
    p.drawText(QPointF(x, at), QString::fromStdString(t));
  };

  // Head: the title at the left, the project's lines at the right.
  text(left, y + 10 * u, r.title, title);
  double hy = y;
  for (const ReportLine& l : r.head) {
    text(page.left() + 620 * u, hy, l.label, font);
    text(page.left() + 760 * u, hy, l.value, font);
    hy += line;
  }
  y = std::max(y + 3 * line, hy) + line * 0.5;
  p.setPen(QPen(Qt::black, std::max(1.0, u)));
  p.drawLine(QPointF(left, y - line * 0.6), QPointF(right, y - line * 0.6));
  y += line;

  // The blocks; the controls take the whole width, their ratios in a column of their own.
  const double valueX = left + 330 * u, unitX = left + 450 * u, extraX = left + 560 * u;
  const double ratioX = left + 610 * u, limitX = left + 675 * u;
  const double bottom = r.figures ? page.top() + page.height() * 0.74 : page.bottom() - 40 * u;
  for (const ReportLine& l : r.lines) {
    if (y > bottom) break;  // one page: what does not fit is left out
    switch (l.kind) {
      case ReportLine::Kind::Blank: y += line * 0.5; continue;
      case ReportLine::Kind::Heading: text(left, y, l.label, bold); break;
      case ReportLine::Kind::Text: text(left + 10 * u, y, l.label, font); break;
      case ReportLine::Kind::Row: {
        text(left + 10 * u, y, l.label, font);
        // A long label pushes its value along.
        const double labelEnd =
            left + 10 * u + QFontMetricsF(font).horizontalAdvance(QString::fromStdString(l.label));
        const double shift = std::max(0.0, labelEnd + 8 * u - valueX);
        text(valueX + shift, y, l.value, font);
        text(unitX + shift, y, QString::fromStdString(l.unit).trimmed().toStdString(), font);
        text(extraX + shift, y, l.extra, font);
        break;
      }
      case ReportLine::Kind::Control: {
        // A long formula wraps onto a second line at the left.
        QFontMetricsF m(font);
        QString t = QString::fromStdString(l.label);
        const double room = ratioX - left - 20 * u;
        QString rest;
        while (m.horizontalAdvance(t) > room && t.size() > 1) {
          const int cut = t.lastIndexOf(QRegularExpression("[+ ]"), t.size() - 2);
          if (cut <= 0) break;
          rest = t.mid(cut) + rest;
          t = t.left(cut);
        }
        text(left + 10 * u, y, t.toStdString(), font);
        const QColor colour = l.colour == 4   ? QColor(255, 0, 0)
                              : l.colour == 2 ? QColor(0, 128, 0)
                                              : Qt::black;
        // The ratio ends just before the limit, whatever stands before it.
        const double ratioWidth = QFontMetricsF(bold).horizontalAdvance(QString::fromStdString(l.value));
        text(limitX - 8 * u - ratioWidth, y, l.value, bold, colour);
        text(limitX, y, l.unit, font);
        if (!rest.isEmpty()) {
          y += line;
          text(left + 30 * u, y, rest.trimmed().toStdString(), font);
        }
        break;
      }
    }
    y += line;
  }

  // The member and its moment charts at the foot of the stability report.
  if (r.figures) {
    const double top = page.top() + page.height() * 0.76, h = page.height() * 0.2;
    const double w = (right - left) / 3;
    int i = 0;
    for (const char* name : {"pic11", "PicMy", "PicMz"}) {
      auto it = s.view.pictures.find(name);
      const QRectF box(left + i++ * w, top, w - 10 * u, h);
      if (it == s.view.pictures.end() || it->second.commands.empty()) continue;
      p.save();
      p.setClipRect(box);
      PainterCanvas canvas(p, box);
      draw::Replay(it->second, canvas);
      p.restore();
    }
  }
  p.restore();
}

void PrintReport(QWidget* parent, const State& s, ReportKind kind) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageSize(QPageSize(QPageSize::A4));
  QPrintDialog dialog(&printer, parent);
  dialog.setWindowTitle(kind == ReportKind::SectionCapacity ? "Print - Section Property and Capacity"
                                                            : "Print - Section and Stability Control");
  if (dialog.exec() != QDialog::Accepted) return;
  QPainter painter(&printer);
  PaintReport(
      painter,
      printer.pageRect(QPrinter::DevicePixel).translated(-printer.pageRect(QPrinter::DevicePixel).topLeft()),
      s, ReportNow(s, kind));
}

bool SaveReportPicture(const State& s, ReportKind kind, const QString& path) {
  QImage image(1240, 1754, QImage::Format_RGB32);  // A4 at 150 dpi
  image.fill(Qt::white);
  QPainter painter(&image);
  PaintReport(painter, QRectF(0, 0, image.width(), image.height()), s, ReportNow(s, kind));
  painter.end();
  return image.save(path, "PNG");
}

}  // namespace vn::forms
