// The routines of the member analysis. MemberAnalysis (core/pipeline.h) runs them in order; each
// reads and writes the State, as the pipeline's stages do.
#pragma once

#include <array>
#include <string>

#include "analysis/analysis.h"
#include "core/types.h"

namespace vn {

struct State;
struct EventResult;
class ControlTable;

// ---- Driver (member_analysis.cpp) ----

// The check points: 11 even points plus two beside each point load, or the user's points.
void ComputeCheckGrid(State& s);
// Families with one bending axis lose their Y loads (and, but for the flat bar, their axial
// forces); the T section loses all loads but the axial forces.
void CleanLoadsForSection(State& s);
// Slot 0 of the uniform loads from the selfweight switch.
void SetSelfweightSlot(State& s);
// All unit solutions and their routing to Z and Y.
void SolveAllSlots(State& s);

// The five forms of the combination; mode 3 uses 6.10a and 6.10b in turn.
enum class CombForm {
  Eq610 = 0,
  Eq610a = 1,
  Eq610b = 2,
  UserFactors = 4,
  BasicLoads = 5,
  None = -1  // no combination: nothing acts
};
void CombineLoads(State& s, CombForm form);
// MyGov with its sign, MzGov as a magnitude.
void GoverningMoments(State& s);

// ---- Unit-load solver (solver.cpp) ----

void SolveUniform(State& s, int slot, Single q);
void SolveTrapezoid(State& s, int slot);
void SplitPointLoads(State& s);
void SolvePointForce(State& s, int slot);
void SolvePointMoment(State& s, int slot);
void RouteUniform(State& s, int slot);
void RouteTrapezoid(State& s, int slot);
void RoutePointForce(State& s, int slot);
void RoutePointMoment(State& s, int slot);

// ---- Extremes, shape, deflection (extremes.cpp) ----

void ForceExtremes(State& s);
void DeflectionText(State& s);

// M1 = M[0], M2 = (M[12] + M[13]) / 2, M3 = M[25], M4 = (M[37] + M[38]) / 2, M5 = M[50].
FivePoints FivePointValues(const std::array<Single, 51>& M);
// End moments, smaller over larger, cut to -1..1; 0 when the smaller is 0.
Single PsiOf(const FivePoints& f);
// x/L of the last change of sign in each half of the member, 0 when none.
void Inflections(const std::array<Single, 51>& M, Single& first, Single& second);
// Curved, MidDominates, Linear, Psi and AlphaS or AlphaH of a moment diagram; zAxis takes the
// rules of the z diagram (inner moment the peak, open band of Linear). spanPeak takes the peak as
// the inner moment of AlphaS and AlphaH also for y (the strict rules, Annex B Table B.3).
void MomentShapeOf(const std::array<Single, 51>& M, const FivePoints& f, bool zAxis, MomentShape& sh,
                   bool spanPeak = false);

// ---- End force mode (end_forces.cpp) ----

// The end force path: the one-axis families lose their forces about z, the forces vary linearly
// between the ends on both grids.
void EndForcePath(State& s);

// ---- Dialogs and their controls (analysis_controls.cpp) ----

// A dialog opened without blocking the main form, and closed.
void ShowDialog(State& s, const std::string& form);
void HideDialog(State& s, const std::string& form);
void RegisterLoadingDialogControls(ControlTable& t);
void RegisterBucklingDialogControls(ControlTable& t);

// ---- Loading dialog (loading_dialog.cpp) ----

// The checks made when the Loading dialog closes; a refusal keeps it open.
EventResult ValidateLoadingOnClose(State& s);
// Opening the dialog: beam mode, a run, the table.
void ActivateLoadingDialog(State& s);
// "Remove all checked loads".
void RemoveCheckedLoads(State& s);
// The fields, captions and ticks of the dialog from the record, and the frames of the mode.
void RefreshLoadTable(State& s);

// ---- Calculation points (chpoints_dialog.cpp) ----

void RefreshCheckPointTable(State& s);

// ---- Buckling length factors (buckling_length.cpp) ----

// Factor of a case button 1..5; 0 for any other case.
Single BucklingFactorOfCase(int bucklingCase);
// The case set by a support type on an axis whose case is not a user choice (5 or 6).
void ApplySupportTypeToBuckling(State& s);
// The factor fields ibly, iblz and the pictures of their buttons from the record.
void ShowBucklingFactors(State& s);

// ---- Modal analysis (modal.cpp) ----

// c_n of a support type, mode n = 1..3; 0 where the type has none (spring supports).
double ModalCoefficient(int supportType, int mode);

}  // namespace vn
