// The summary of controls; the control blocks land with the control framework.
#include "results/summary.h"

#include "core/pipeline.h"
#include "core/state.h"

namespace vn {

void ShowControls(State&) {}

std::string SummaryText(const State& s) {
  std::string out;
  if (s.view.txtErrorVisible) out += s.view.txtError + "\n";
  return out;
}

}  // namespace vn
