// One run of one member, as the search for the lightest section and the batch run use it, and its
// outcome in a few values.
#pragma once

#include <string>

#include "core/types.h"

namespace vn {

struct State;

// Runs the pipeline once on the member as the State holds it. Everything that runs many members
// goes through here, so that a leaner run (one that leaves out what only a screen needs) can take
// its place in one spot.
void RunMember(State& s);

// What a run of one member came to.
struct MemberOutcome {
  bool ran = false;       // the run reached its end; false: it ended in the calculation error
  bool passes = false;    // ran, and no shown ratio is above IRlimit (nor red)
  double ratio = 0;       // the governing ratio as its control kept it (0 when no line was shown)
  std::string ratioText;  // as the summary shows it, "0.84"
  std::string block;      // "section", "buckling", "deflection"; empty when no line
  std::string formula;    // "IR = My,Ed/My,Rd"
  std::string clause;     // "Ch 6.2.5"
  Single g = 0;           // mass of the section, kg/m
};

// The outcome of the last run of `s`.
MemberOutcome OutcomeOf(const State& s);

// "section control: IR = My,Ed/My,Rd (Ch 6.2.5)", or the message of a failed run.
std::string DescribeControl(const MemberOutcome& o);

// "OK", "NOT OK" or "CALC ERROR".
const char* VerdictText(const MemberOutcome& o);

}  // namespace vn
