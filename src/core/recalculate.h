#pragma once

namespace vn {

struct State;

// The one message of a failed run, whatever its cause.
inline constexpr const char* kCalcErrorText =
    " Calculation Error. Axial load too big. Increase profile or reduce axial force ";

// Why nothing is printed or exported after a failed run.
inline constexpr const char* kNoResultsText =
    "The last calculation ended in an error: there are no results to print or export. "
    "Correct the input first.";

// Rebuilds all results from the project record, in a fixed order. A failed numeric step at any
// depth, or a set calcError, ends the run in the one message; nothing is rolled back.
// With s.headless set (see State) the run draws nothing and fills no dialog's values: the same
// results, to the bit, without what only a screen needs. Every event that recalculates follows it.
void Recalculate(State& s);

// The defaults of a new project, in three stages with a recalculation between the first two.
void NewProject(State& s);

// Copies the record into the main form; the controls' own events run as they are set, so this
// recalculates.
void RefreshMainForm(State& s);

}  // namespace vn
