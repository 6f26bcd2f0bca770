// The printed reports on a page: the printer, a PDF, or a picture for review.
#pragma once

#include <QString>

#include "results/report.h"

class QPainter;
class QRectF;
class QWidget;

namespace vn {
struct State;
}

namespace vn::forms {

// The report as the core builds it, dated now.
Report ReportNow(const State& s, ReportKind kind);

// Paints the one page of the report into `page` (device pixels): the head, the blocks in one
// column of label, value and unit, the control lines with their coloured ratios, and for the
// stability report the member figure and the moment charts at the foot.
void PaintReport(QPainter& painter, const QRectF& page, const State& s, const Report& r);

// The print dialog and the page on the printer the person chooses.
void PrintReport(QWidget* parent, const State& s, ReportKind kind);

// The page drawn into a PNG of A4 proportions, for review; false if the file can't be written.
bool SaveReportPicture(const State& s, ReportKind kind, const QString& path);

}  // namespace vn::forms
