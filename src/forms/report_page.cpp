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
#include <utility>

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

  // The blocks; the controls take the whole width, their ratios in a column of their own. The page
  // is one page, and nothing may be left off it (a control line least of all): when the blocks are
  // longer than the room above the figures, the lines and their font shrink until they fit.
  const double valueX = left + 330 * u, unitX = left + 450 * u, extraX = left + 560 * u;
  const double ratioX = left + 610 * u, limitX = left + 675 * u;
  const double bottom = r.figures ? page.top() + page.height() * 0.74 : page.bottom() - 40 * u;
  const double top = y;
  // Lays the blocks out from `top` with lines `fit` times their size; draws them if `draw`, and
  // returns where the next line would stand.
  auto blocks = [&](double fit, bool draw) {
    QFont small = font, smallBold = bold;
    small.setPixelSize(std::max(1, qRound(13 * u * fit)));
    smallBold.setPixelSize(std::max(1, qRound(13 * u * fit)));
    const double step = line * fit;
    const QFontMetricsF m(small);
    auto put = [&](double x, double at, const std::string& t, const QFont& f, const QColor& c = Qt::black) {
      if (draw) text(x, at, t, f, c);
    };
    double at = top;
    for (const ReportLine& l : r.lines) {
      switch (l.kind) {
        case ReportLine::Kind::Blank: at += step * 0.5; continue;
        case ReportLine::Kind::Heading: put(left, at, l.label, smallBold); break;
        case ReportLine::Kind::Text: put(left + 10 * u, at, l.label, small); break;
        case ReportLine::Kind::Row: {
          put(left + 10 * u, at, l.label, small);
          // A long label pushes its value along.
          const double labelEnd = left + 10 * u + m.horizontalAdvance(QString::fromStdString(l.label));
          const double shift = std::max(0.0, labelEnd + 8 * u - valueX);
          put(valueX + shift, at, l.value, small);
          put(unitX + shift, at, QString::fromStdString(l.unit).trimmed().toStdString(), small);
          put(extraX + shift, at, l.extra, small);
          break;
        }
        case ReportLine::Kind::Control: {
          // A long formula wraps onto a second line at the left.
          QString t = QString::fromStdString(l.label);
          const double room = ratioX - left - 20 * u;
          QString rest;
          while (m.horizontalAdvance(t) > room && t.size() > 1) {
            const int cut = t.lastIndexOf(QRegularExpression("[+ ]"), t.size() - 2);
            if (cut <= 0) break;
            rest = t.mid(cut) + rest;
            t = t.left(cut);
          }
          put(left + 10 * u, at, t.toStdString(), small);
          const QColor colour = l.colour == 4   ? QColor(255, 0, 0)
                                : l.colour == 2 ? QColor(0, 128, 0)
                                                : Qt::black;
          // The ratio ends just before the limit, whatever stands before it.
          const double ratioWidth =
              QFontMetricsF(smallBold).horizontalAdvance(QString::fromStdString(l.value));
          put(limitX - 8 * u - ratioWidth, at, l.value, smallBold, colour);
          put(limitX, at, l.unit, small);
          if (!rest.isEmpty()) {
            at += step;
            put(left + 30 * u, at, rest.trimmed().toStdString(), small);
          }
          break;
        }
      }
      at += step;
    }
    return at;
  };
  double fit = 1;
  for (int i = 0; i < 4; ++i) {  // a smaller font wraps less, so a step or two settles it
    const double end = blocks(fit, false) - line * fit;  // the last line's baseline
    if (end <= bottom) break;
    fit *= (bottom - top) / (end - top);
  }
  blocks(fit, true);

  // The member and its moment charts at the foot of the stability report, each in the proportions
  // of its box on the main form, so that the member keeps its shape and the charts their scale.
  if (r.figures) {
    const double figureTop = page.top() + page.height() * 0.76, h = page.height() * 0.2;
    const double w = (right - left) / 3;
    int i = 0;
    for (const auto& [name, aspect] :
         {std::pair{"pic11", 5.7}, std::pair{"PicMy", 1.27}, std::pair{"PicMz", 1.27}}) {
      auto it = s.view.pictures.find(name);
      const double width = w - 10 * u, height = std::min(h, width / aspect);
      const QRectF box(left + i++ * w, figureTop + (h - height) / 2, width, height);
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
