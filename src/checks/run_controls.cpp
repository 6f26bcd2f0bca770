// The control dispatcher; the controls land by family.
#include "core/pipeline.h"
#include "core/state.h"

namespace vn {

void RunControls(State&) {}

}  // namespace vn
