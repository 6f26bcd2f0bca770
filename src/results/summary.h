// The summary of controls: the verdict of a run as the Results area shows it, and as plain text.
#pragma once

#include <string>

namespace vn {

struct State;

// The combination that governs, as the line "Governing Loadcase:" names it.
std::string GoverningLoadcaseText(const State& s);

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
