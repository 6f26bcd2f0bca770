// The control dispatcher: clears the governing ratios, picks the section control and the buckling
// control of the family, and runs the buckling control only where its condition holds.
#include <cmath>
#include <limits>

#include "checks/control_framework.h"
#include "checks/control_routines.h"
#include "core/pipeline.h"
#include "core/state.h"

namespace vn {

const std::vector<ControlFamilyRow>& ControlFamilies() {
  static const std::vector<ControlFamilyRow> rows = {
      // Rolled I, channels, welded I, British sections: the I family's controls, buckling always.
      {1, 5, BeforeControl::Nothing, SectionControlI, BucklingControlI, BucklingWhen::Always},
      {15, 16, BeforeControl::Nothing, SectionControlI, BucklingControlI, BucklingWhen::Always},
      {21, 21, BeforeControl::Nothing, SectionControlI, BucklingControlI, BucklingWhen::Always},
      {101, 103, BeforeControl::Nothing, SectionControlI, BucklingControlI, BucklingWhen::Always},
      // Welded I with unequal flanges: the twins that keep the sign of My.
      {22, 22, BeforeControl::Nothing, SectionControlSingleSym, BucklingControlSingleSym,
       BucklingWhen::Always},
      // Hollow sections and the box with equal flanges.
      {6, 9, BeforeControl::Nothing, SectionControlHollow, BucklingControlHollow, BucklingWhen::Always},
      {23, 23, BeforeControl::Nothing, SectionControlHollow, BucklingControlHollow, BucklingWhen::Always},
      // Angles: buckling only in compression.
      {10, 11, BeforeControl::Nothing, SectionControlAngle, BucklingControlAngle, BucklingWhen::Compression},
      // T section: an axial member; its load tables are emptied before the control.
      {26, 26, BeforeControl::ClearLoads, SectionControlT, BucklingControlT, BucklingWhen::Compression},
      {28, 28, BeforeControl::Nothing, SectionControlFlat, BucklingControlFlat, BucklingWhen::Compression},
      {31, 31, BeforeControl::Nothing, SectionControlTube, BucklingControlHollow, BucklingWhen::Compression},
      {41, 41, BeforeControl::Nothing, SectionControlGeneral, BucklingControlI, BucklingWhen::Always},
      // HSQ and the box with unequal flanges: in-plane girders without a buckling control; the box
      // keeps its axial force in the shared value, and its control ignores it.
      {24, 25, BeforeControl::AxialZero, SectionControlHSQ, nullptr, BucklingWhen::Never},
      {27, 27, BeforeControl::Nothing, SectionControlHSQ, nullptr, BucklingWhen::Never},
      // Plates with a stiffener (there is no family 55): the LT line alone.
      {51, 54, BeforeControl::AxialZero, SectionControlPlate, BucklingControlPlate, BucklingWhen::Always},
      {56, 56, BeforeControl::AxialZero, SectionControlPlate, BucklingControlPlate, BucklingWhen::Always},
  };
  return rows;
}

void ClearText(ControlText& t) { t = ControlText{}; }

namespace {

void ClearBucklingTexts(Checks& k) {
  ClearText(k.buckTextY);
  ClearText(k.buckTextZ);
  ClearText(k.buckTextLT);
}

// The working values the table of detailed results and the report show. A run marks them "not
// computed" (NaN) first, so that a value the family's controls do not reach (the LT values of an
// angle, XLt in the general case) is shown blank instead of an earlier section's. A control that
// reads one of them before it is computed ends in the calculation message (the checked division
// refuses a NaN), never in a ratio built on another section's value.
void MarkShownValuesNotComputed(Checks& k) {
  const double none = std::numeric_limits<double>::quiet_NaN();
  for (Number* v :
       {&k.Mcr,  &k.lamdaLT, &k.Mcr0,   &k.lamda0, &k.XLt,  &k.xLT,   &k.kc,  &k.fLT, &k.Ncry, &k.lamday,
        &k.chiy, &k.Ncrz,    &k.lamdaz, &k.chiz,   &k.NcrT, &k.NcrTF, &k.kyy, &k.kyz, &k.kzz,  &k.kzy,
        &k.Cmy,  &k.Cmy0,    &k.Cmz,    &k.CmLt,   &k.Cyy,  &k.Cyz,   &k.Czy, &k.Czz, &k.aLt,  &k.bLt,
        &k.cLt,  &k.dLt,     &k.eLt,    &k.npl,    &k.uy,   &k.uz,    &k.wy,  &k.wz,  &k.ey})
    *v = none;
}

// The factors some families read from the runs before them: an angle takes kc of the last LT run
// (Method 1) and, like the single symmetric I, the interaction factors of Method 2, for which they
// have no formula of their own; INP has no row of the rolled LT curve and keeps its reduction
// factors. Each is the last value a run computed (0 before any), kept across the runs that did
// not compute it, and shown where it is used.
void TakeCarriedFactors(State& s) {
  Checks& k = s.checks;
  const Checks::Carried& c = k.carried;
  const int family = s.project.ProfileType;
  const bool method1 = s.project.interactionMethod == 1;
  if ((family == 10 || family == 11) && method1) k.kc = c.kc;
  if ((family == 10 || family == 11 || family == 22) && !method1) {
    k.kyy = c.kyy;
    k.kyz = c.kyz;
    k.kzy = c.kzy;
    k.kzz = c.kzz;
  }
  if (family == 15 && s.project.ltbCurve == 3) {
    k.lamdaLT = c.lamdaLT;
    k.fLT = c.fLT;
    k.XLt = c.XLt;
    k.xLT = c.xLT;
  }
}

void KeepCarriedFactors(Checks& k) {
  auto keep = [](Number& to, Number from) {
    if (!std::isnan(from)) to = from;
  };
  Checks::Carried& c = k.carried;
  keep(c.kc, k.kc);
  keep(c.kyy, k.kyy);
  keep(c.kyz, k.kyz);
  keep(c.kzy, k.kzy);
  keep(c.kzz, k.kzz);
  keep(c.lamdaLT, k.lamdaLT);
  keep(c.fLT, k.fLT);
  keep(c.XLt, k.XLt);
  keep(c.xLT, k.xLT);
}

void RunFamilyControls(State& s);

}  // namespace

void RunControls(State& s) {
  MarkShownValuesNotComputed(s.checks);
  TakeCarriedFactors(s);
  RunFamilyControls(s);
  KeepCarriedFactors(s.checks);
}

namespace {

void RunFamilyControls(State& s) {
  Analysis& an = s.analysis;
  Checks& k = s.checks;

  // 1.
  an.IRsection = 0;
  an.IRbuckling = 0;
  k.C1 = 0;
  k.C2 = 0;
  k.C3 = 0;
  k.McrByEigen = False;
  k.McrFactor = 0;
  k.McrNote.clear();

  // 2.
  const int type = s.project.ProfileType;
  for (const ControlFamilyRow& row : ControlFamilies()) {
    if (type < row.firstType || type > row.lastType) continue;
    if (row.before == BeforeControl::AxialZero) an.NEd = 0;
    if (row.before == BeforeControl::ClearLoads) ClearLoads(s);
    row.sectionControl(s);
    bool run = row.bucklingControl != nullptr;
    if (row.when == BucklingWhen::Never) run = false;
    if (row.when == BucklingWhen::Compression && !(an.NEd > 0)) run = false;
    // 3. A buckling control that does not run leaves no line and IRbuckling at 0.
    if (run)
      row.bucklingControl(s);
    else
      ClearBucklingTexts(k);
    return;
  }

  // A family without controls of its own: no verdict of an earlier section may stand for it.
  for (size_t g = 1; g <= 6; ++g) {
    ClearText(k.secText[g]);
    k.IRsec[g] = 0;
  }
  ClearBucklingTexts(k);
}

}  // namespace

}  // namespace vn
