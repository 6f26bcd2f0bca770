// Load and result charts; drawn once the graphics land.
#include "core/pipeline.h"
#include "core/state.h"

namespace vn {

void DrawCharts(State&) {}

}  // namespace vn
