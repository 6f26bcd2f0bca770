// The summary of controls: the verdict of a run as the Results area shows it, and as plain text.
#pragma once

#include <string>

namespace vn {

struct State;

// The combination that governs, as the line "Governing Loadcase:" names it.
std::string GoverningLoadcaseText(const State& s);

// The control line that governs a run, as the verdict names it: the largest ratio among the lines
// the summary shows (section, buckling, and deflection when it is on); the first of equal ratios.
// A ratio counts as the larger of the number the control kept and the one its text shows.
struct GoverningControl {
  bool any = false;       // the summary has a control line at all
  bool fails = false;     // a line is red or above IRlimit: the member is NOT OK
  double ratio = 0;       // the governing ratio, the larger of the kept number and the text
  double kept = 0;        // the governing line's ratio as its control kept it, unrounded
  std::string ratioText;  // as the summary shows it ("0.84")
  std::string block;      // "section", "buckling" or "deflection"
  std::string formula;    // "IR = My,Ed/My,Rd"
  std::string clause;     // "Ch 6.2.5", "L/300" for a deflection line, or empty
};
GoverningControl FindGoverningControl(const State& s);

// The verdict line of the run (View::verdict) from the control lines the summary shows: the
// largest ratio governs, and the run is NOT OK when any shown ratio is red or above the limit.
// The deflection lines count: a member that bends too much is not OK either.
void ShowVerdict(State& s);

// The summary of controls as plain text for a terminal: the lines of View::summary with the ratios
// in a right column, each marked "[OK]" when green and "[NOT OK]" when red, a blank line before
// each block. After a failed run the message comes first and the summary of the last good run
// follows, as the form keeps it on screen.
std::string SummaryText(const State& s);

}  // namespace vn
