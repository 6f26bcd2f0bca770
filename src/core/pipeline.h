// The stages of one recalculation, in the order Recalculate runs them. Each stage lives with its
// subsystem; a stage still to come is an empty routine. With State::headless set, the stages of
// the screen (the section values, the section figure, the drawing of the charts and of the member
// figure) draw and fill nothing; what they decide for the record and the next run they still do.
#pragma once

namespace vn {

struct State;

void ComputeSection(State& s);       // sections: properties, classes, resistances
void ShowSectionValues(State& s);    // sections: the values of the open section dialog
void DrawSectionFigure(State& s);    // graphics: the section figure
void MemberAnalysis(State& s);       // analysis: internal forces and deflections
void RunControls(State& s);          // checks: the controls of the section family
void DrawCharts(State& s);           // graphics: load and result charts
void ModalAnalysis(State& s);        // analysis: natural frequencies
void ShowWebText(State& s);          // checks: web stiffener and shear text
void ShowControls(State& s);         // results: the summary of controls
void UpdateMainFormState(State& s);  // graphics: member figure and main form state

}  // namespace vn
