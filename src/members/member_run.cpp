#include "members/member_run.h"

#include "core/recalculate.h"
#include "core/state.h"
#include "results/summary.h"

namespace vn {

// A member of a list or a search is never drawn: it runs without the pictures and the dialog values,
// and its results are those of a full run to the bit.
void RunMember(State& s) {
  s.headless = true;
  Recalculate(s);
}

MemberOutcome OutcomeOf(const State& s) {
  MemberOutcome o;
  o.g = s.section.g;
  o.ran = s.resultsValid && !s.view.txtErrorVisible;
  if (!o.ran) return o;
  const GoverningControl g = FindGoverningControl(s);
  o.passes = !g.fails;
  if (!g.any) {
    o.ratioText = "0.00";
    return o;
  }
  o.ratio = g.kept;
  o.ratioText = g.ratioText;
  o.block = g.block;
  o.formula = g.formula;
  o.clause = g.clause;
  return o;
}

std::string DescribeControl(const MemberOutcome& o) {
  if (!o.ran) return "Calculation Error. Axial load too big. Increase profile or reduce axial force";
  if (o.block.empty()) return "no control line (no force on the member)";
  std::string t = o.block + " control: " + o.formula;
  if (!o.clause.empty()) t += " (" + o.clause + ")";
  return t;
}

const char* VerdictText(const MemberOutcome& o) {
  if (!o.ran) return "CALC ERROR";
  return o.passes ? "OK" : "NOT OK";
}

}  // namespace vn
