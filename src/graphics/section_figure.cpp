// The section figure; drawn once the graphics land.
#include "core/pipeline.h"
#include "core/state.h"

namespace vn {

void DrawSectionFigure(State&) {}

}  // namespace vn
