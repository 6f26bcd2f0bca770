// The printed reports of the current project, one page each: "Section Property and Capacity" and
// "Section and Stability Control". They print the record and the results of the last run as they
// stand and compute nothing; a front end puts the page on paper, in a PDF or in a terminal.
#pragma once

#include <string>
#include <vector>

#include "core/view.h"

namespace vn {

struct State;

enum class ReportKind { SectionCapacity, Stability };

// One line of the page: a block heading, a row of label, value and unit (and a fourth column in
// the tables), a line of plain text, or a line of the summary of controls with its ratio.
struct ReportLine {
  enum class Kind { Heading, Row, Text, Control, Blank };
  Kind kind = Kind::Text;
  std::string label, value, unit, extra;
  int colour = 0;  // a control line's ratio: 2 green, 4 red
};

struct Report {
  std::string title;
  std::vector<ReportLine> head;   // project, identification, page, date, time, file
  std::vector<ReportLine> lines;  // the blocks in their order
  bool figures = false;           // the member figure and the charts go on the page too
};

// The blocks of the section dialog's values as its three frames show them: the dimensions with the
// weight and surface, the section properties, and the capacity from the first class line (or the
// heading just above it) on.
struct SectionBlocks {
  std::vector<View::Line> dimensions, properties, capacity;
};
SectionBlocks SplitSectionValues(const std::vector<View::Line>& lines);

// The report of the kind, with the date and time of printing as the caller reads its clock
// ("23.11.2026", "14:05:09").
Report BuildReport(const State& s, ReportKind kind, const std::string& date, const std::string& time);

// The page as plain text: the head, then each block, the rows in columns.
std::string ReportText(const Report& r);

}  // namespace vn
