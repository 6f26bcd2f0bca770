// Natural frequencies; lands with the analysis.
#include "core/pipeline.h"
#include "core/state.h"

namespace vn {

void ModalAnalysis(State&) {}

}  // namespace vn
