#include "forms/report_page.h"

#include <QDateTime>
#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QRegularExpression>
#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

#include "core/state.h"
#include "forms/painter_canvas.h"
#include "graphics/canvas.h"
#include "graphics/section_figure.h"

namespace vn::forms {

Report ReportNow(const State& s, ReportKind kind) {
  const QDateTime now = QDateTime::currentDateTime();
  return BuildReport(s, kind, now.toString("dd.MM.yyyy").toStdString(),
                     now.toString("HH:mm:ss").toStdString());
}

namespace {

// The proportions (width / height) of a recorded picture by the scale it sets, or `fallback`.
double AspectOf(const draw::Drawing& d, double fallback) {
  for (const draw::DrawCommand& c : d.commands) {
    if (c.kind != draw::DrawCommand::Kind::Scale || c.points.size() < 2) continue;
    const double w = std::abs(c.points[1].x - c.points[0].x), h = std::abs(c.points[1].y - c.points[0].y);
    if (w > 0 && h > 0) return w / h;
  }
  return fallback;
}

// A text cut into lines no wider than `width`: at blanks, after "/" and "\" of a path, and at
// "+" of a formula, never before an "=" (so that no "=" stands alone); a piece longer than the
// line is cut where it must.
QStringList Wrap(const QString& text, const QFontMetricsF& m, double width) {
  QStringList lines;
  QString rest = text;
  while (m.horizontalAdvance(rest) > width && rest.size() > 1) {
    int cut = -1;
    for (int i = 1; i < rest.size(); ++i) {
      const QChar c = rest[i - 1], next = rest[i];
      const bool here = (c == ' ' && next != '=') || c == '/' || c == '\\' || (next == '+' && c != ' ');
      if (!here) continue;
      if (m.horizontalAdvance(rest.left(i)) > width) break;
      cut = i;
    }
    if (cut <= 0) {  // no place to break: as many characters as fit
      cut = 1;
      while (cut < rest.size() && m.horizontalAdvance(rest.left(cut + 1)) <= width) ++cut;
    }
    lines << rest.left(cut).trimmed();
    rest = rest.mid(cut);
    if (rest.startsWith(' ')) rest = rest.mid(1);
  }
  lines << rest;
  return lines;
}

struct Figure {
  const draw::Drawing* drawing;
  double aspect;
};

}  // namespace

int PaintReport(QPainter& p, const QRectF& page, const State& s, const Report& r,
                const std::function<void()>& newPage) {
  // The page is laid out on a grid of 1/1000 of its width: the same look on every device.
  const double u = page.width() / 1000.0;
  QFont font("arial");
  font.setPixelSize(std::max(1, qRound(13 * u)));
  QFont bold = font;
  bold.setBold(true);
  QFont title = bold;
  title.setPixelSize(std::max(1, qRound(20 * u)));
  const QFontMetricsF m(font, p.device()), mb(bold, p.device());
  const double left = page.left() + 60 * u, right = page.right() - 60 * u;
  const double line = 17 * u;
  const double bottom = page.bottom() - 50 * u;
  const double valueX = left + 330 * u, unitX = left + 450 * u, extraX = left + 560 * u;
  const double ratioX = left + 610 * u, limitX = left + 675 * u;
  const double headValueX = page.left() + 760 * u;

  // The figures the report carries, in the proportions of their drawing: the member at one scale
  // in x and y, the charts as on the main form, the section square.
  std::vector<Figure> figures;
  auto picture = [&s](const std::string& name) -> const draw::Drawing* {
    auto it = s.view.pictures.find(name);
    return it == s.view.pictures.end() || it->second.commands.empty() ? nullptr : &it->second;
  };
  if (r.figures) {
    if (const draw::Drawing* d = picture("pic11")) figures.push_back({d, AspectOf(*d, 5.7)});
    for (const char* chart : {"PicMy", "PicMz"})
      if (const draw::Drawing* d = picture(chart)) figures.push_back({d, 1.27});
  } else if (const draw::Drawing* d = picture(SectionFigureBox(s.project.ProfileType))) {
    figures.push_back({d, 1.0});
  }

  // Two passes: the first counts the pages, the second draws them with "n/N".
  int pages = 1;
  for (int pass = 0; pass < 2; ++pass) {
    const bool draw = pass == 1;
    int pageNo = 1;
    double y = 0;
    auto text = [&](double x, double at, const QString& t, const QFont& f, const QColor& c = Qt::black) {
      if (!draw) return;
      p.setFont(f);
      p.setPen(c);
      p.drawText(QPointF(x, at), t);
    };
    auto rule = [&](double at) {
      if (!draw) return;
      p.setPen(QPen(Qt::black, std::max(1.0, u)));
      p.drawLine(QPointF(left, at), QPointF(right, at));
    };
    // The head: on the first page the title and the project's lines, on the others the title and
    // the page number.
    auto head = [&](bool first) {
      if (draw) p.fillRect(page, Qt::white);
      y = page.top() + 60 * u;
      text(left, y + 10 * u, QString::fromStdString(r.title), title);
      double hy = y;
      const QString number = QString::number(pageNo) + "/" + QString::number(pages);
      for (const ReportLine& l : r.head) {
        const bool pageLine = QString::fromStdString(l.label).startsWith("Page:");
        if (!first && !pageLine) continue;
        text(page.left() + 620 * u, hy, QString::fromStdString(l.label), font);
        const QString value = pageLine ? number : QString::fromStdString(l.value);
        for (const QString& part : Wrap(value, m, right - headValueX)) {
          text(headValueX, hy, part, font);
          hy += line;
        }
      }
      y = std::max(y + (first ? 3 : 1.5) * line, hy) + line * 0.5;
      rule(y - line * 0.6);
      y += line;
    };
    auto room = [&](double height) {
      if (y + height <= bottom) return;
      if (draw && newPage) newPage();
      ++pageNo;
      head(false);
    };
    head(true);

    for (const ReportLine& l : r.lines) {
      switch (l.kind) {
        case ReportLine::Kind::Blank: y += line * 0.5; continue;
        case ReportLine::Kind::Heading: {
          room(line * 2);  // a heading does not stand alone at the foot of a page
          for (const QString& part : Wrap(QString::fromStdString(l.label), mb, right - left)) {
            text(left, y, part, bold);
            y += line;
          }
          continue;
        }
        case ReportLine::Kind::Text: {
          const QStringList parts = Wrap(QString::fromStdString(l.label), m, right - left - 10 * u);
          for (const QString& part : parts) {
            room(line);
            text(left + 10 * u, y, part, font);
            y += line;
          }
          continue;
        }
        case ReportLine::Kind::Row: {
          room(line);
          const QString label = QString::fromStdString(l.label);
          text(left + 10 * u, y, label, font);
          // A long label pushes its value along; a long value wraps within the margin.
          const double shift = std::max(0.0, left + 10 * u + m.horizontalAdvance(label) + 8 * u - valueX);
          const QString unit = QString::fromStdString(l.unit).trimmed();
          const QString extra = QString::fromStdString(l.extra);
          const bool tail = !unit.isEmpty() || !extra.isEmpty();
          const double valueRoom = (tail ? unitX - 6 * u : right) - valueX - shift;
          const QStringList parts = Wrap(QString::fromStdString(l.value), m, std::max(valueRoom, 40 * u));
          text(unitX + shift, y, unit, font);
          text(extraX + shift, y, extra, font);  // "x = 2.500/0.000 m": short
          for (int i = 0; i < parts.size(); ++i) {
            if (i > 0) room(line);
            text(valueX + shift, y, parts[i], font);
            y += line;
          }
          continue;
        }
        case ReportLine::Kind::Control: {
          // A long formula wraps at the left; the ratio and the limit stand on its last line.
          const QStringList parts = Wrap(QString::fromStdString(l.label), m, ratioX - left - 20 * u);
          room(line * parts.size());
          for (int i = 0; i < parts.size(); ++i) {
            text(left + (i == 0 ? 10 : 30) * u, y, parts[i], font);
            if (i + 1 < parts.size()) y += line;
          }
          const QColor colour = l.colour == 4   ? QColor(255, 0, 0)
                                : l.colour == 2 ? QColor(0, 128, 0)
                                                : Qt::black;
          const QString ratio = QString::fromStdString(l.value);
          text(limitX - 8 * u - QFontMetricsF(bold, p.device()).horizontalAdvance(ratio), y, ratio, bold,
               colour);
          const QStringList limit = Wrap(QString::fromStdString(l.unit), m, right - limitX);
          for (int i = 0; i < limit.size(); ++i) {
            if (i > 0) y += line;
            text(limitX, y, limit[i], font);
          }
          y += line;
          continue;
        }
      }
    }

    // The figures below the text, each whole on a page: the member across the width, the charts
    // side by side, the section at the left.
    y += line;
    size_t i = 0;
    while (i < figures.size()) {
      const bool pair = r.figures && i + 1 < figures.size() && figures[i].aspect < 3;
      // A chart takes half the width, alone or beside the other; the member most of it.
      const bool chart = figures[i].aspect < 3;
      const double width = chart || !r.figures ? (right - left - 20 * u) / 2 : (right - left) * 0.8;
      double height = width / figures[i].aspect;
      height = std::min(height, (bottom - page.top()) * 0.45);
      room(height);
      for (size_t k = 0; k < (pair ? 2u : 1u); ++k) {
        const Figure& f = figures[i + k];
        const double w = std::min(width, height * f.aspect), h = w / f.aspect;
        const QRectF box(left + k * (width + 20 * u) + (width - w) / 2, y, w, h);
        if (draw) {
          p.save();
          p.setClipRect(box, Qt::IntersectClip);
          PainterCanvas canvas(p, box);
          draw::Replay(*f.drawing, canvas);
          p.restore();
        }
      }
      y += height + line;
      i += pair ? 2 : 1;
    }
    pages = pageNo;
  }
  return pages;
}

void PrintReport(QWidget* parent, const State& s, ReportKind kind) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageSize(QPageSize(QPageSize::A4));
  QPrintDialog dialog(&printer, parent);
  dialog.setWindowTitle(kind == ReportKind::SectionCapacity ? "Print - Section Property and Capacity"
                                                            : "Print - Section and Stability Control");
  if (dialog.exec() != QDialog::Accepted) return;
  QPainter painter(&printer);
  const QRectF page = printer.pageRect(QPrinter::DevicePixel);
  PaintReport(painter, page.translated(-page.topLeft()), s, ReportNow(s, kind),
              [&printer] { printer.newPage(); });
}

int WriteReportPdf(const State& s, ReportKind kind, const QString& path) {
  QPdfWriter pdf(path);
  pdf.setPageSize(QPageSize(QPageSize::A4));
  pdf.setPageMargins(QMarginsF(0, 0, 0, 0));
  pdf.setResolution(300);
  pdf.setTitle(kind == ReportKind::SectionCapacity ? "Section Property and Capacity"
                                                   : "Section and Stability Control");
  pdf.setCreator("Varnelt EC3");
  QPainter painter;
  if (!painter.begin(&pdf)) return 0;
  const QRectF page(0, 0, pdf.width(), pdf.height());
  const int pages = PaintReport(painter, page, s, ReportNow(s, kind), [&pdf] { pdf.newPage(); });
  return painter.end() ? pages : 0;
}

bool SaveReportPicture(const State& s, ReportKind kind, const QString& path) {
  QImage image(1240, 1754, QImage::Format_RGB32);  // A4 at 150 dpi
  // The picture's own resolution, so that a text of 7 pt is 7 pt on the page.
  image.setDotsPerMeterX(qRound(150 / 0.0254));
  image.setDotsPerMeterY(qRound(150 / 0.0254));
  image.fill(Qt::white);
  QPainter painter(&image);
  // The first page, as a person checks it; the pages after it go to the PDF and the printer.
  bool more = false;
  PaintReport(painter, QRectF(0, 0, image.width(), image.height()), s, ReportNow(s, kind), [&] {
    if (!more) painter.setClipRect(QRect(0, 0, 0, 0));
    more = true;
  });
  painter.end();
  return image.save(path, "PNG");
}

}  // namespace vn::forms
