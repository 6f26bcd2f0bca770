// Member figure and main form state; lands with the graphics.
#include "core/pipeline.h"
#include "core/state.h"

namespace vn {

void UpdateMainFormState(State&) {}

}  // namespace vn
