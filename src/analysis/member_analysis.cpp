// Internal forces and deflections; the beam solver lands with the analysis.
#include "core/pipeline.h"
#include "core/state.h"

namespace vn {

void MemberAnalysis(State&) {}

}  // namespace vn
