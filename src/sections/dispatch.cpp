#include "sections/dispatch.h"

#include "core/format.h"
#include "core/pipeline.h"
#include "core/state.h"
#include "sections/families.h"

namespace vn {

const std::vector<SectionFamilyRow>& SectionFamilies() {
  static const std::vector<SectionFamilyRow> rows = SectionFamilyTable();
  return rows;
}

void SelectYieldStrength(State& s, int grade) {
  Project& p = s.project;
  if (grade < s.steel.gradeLast) {
    if (grade < 0 || grade > 30) Fault("subscript out of range");
    const SteelGradeRow& row = s.steel.rows[static_cast<size_t>(grade)];
    p.fyk = s.section.tmax <= 40.0f ? row.fy40 : row.fyOver40;
  }
  p.fyd = ToSingle(Div(p.fyk, p.gammaM0));
  p.epsilon = ToSingle(Sqrt(Div(235.0, p.fyk)));
  s.view.text["ifyk"] = FormatNumber(p.fyk, "#000", s.decimalComma);
}

void ComputeSection(State& s) {
  Project& p = s.project;
  // Written from scratch, but for the flag that a flat bar leaves as it was, and the flange that
  // the flat bar's surface reads.
  const Boolean ltbBefore = s.section.ltbRelevant;
  const Single bBefore = s.section.b, tfBefore = s.section.tf;
  s.section = Section{};
  s.section.ltbRelevant = ltbBefore;
  for (const SectionFamilyRow& row : SectionFamilies()) {
    if (p.ProfileType < row.firstType || p.ProfileType > row.lastType) continue;
    if (row.keepsLastFlange) {
      s.section.b = bBefore;
      s.section.tf = tfBefore;
    }
    if (row.axialZero) s.NEdAbs = 0;
    row.properties(s);
    SelectYieldStrength(s, p.steelGrade);
    for (SectionRoutine r : row.then) r(s);
    if (row.channelKind) s.section.channelKind = static_cast<Integer>(row.channelKind);
    if (row.ltbRelevant != kLtbUnchanged) s.section.ltbRelevant = static_cast<Boolean>(row.ltbRelevant);
    if (row.ltbRelevant == 0) {
      p.ltbOn = 0;
      p.ltbRestraints = 0;
    }
    return;
  }
  // A ProfileType with no row does nothing.
}

}  // namespace vn
