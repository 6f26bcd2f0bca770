// The printed reports on a page: the printer, a PDF, or a picture for review.
#pragma once

#include <QString>
#include <functional>

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

// Paints the report onto pages of the size of `page` (device pixels): the head, the blocks in one
// column of label, value and unit with long texts wrapped within the margins, the control lines with
// their coloured ratios, then the figures (the member figure and the moment charts in the stability
// report, the section in the section report). `newPage` is called between two pages; each page
// carries "Page: n/N". Returns the number of pages.
int PaintReport(QPainter& painter, const QRectF& page, const State& s, const Report& r,
                const std::function<void()>& newPage = {});

// The print dialog and the page on the printer the person chooses.
void PrintReport(QWidget* parent, const State& s, ReportKind kind);

// The report written as an A4 PDF without the print dialog; the number of pages, 0 on failure.
int WriteReportPdf(const State& s, ReportKind kind, const QString& path);

// The first page drawn into a PNG of A4 proportions, for review; false if the file can't be written.
bool SaveReportPicture(const State& s, ReportKind kind, const QString& path);

}  // namespace vn::forms
