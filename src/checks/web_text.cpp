// Web stiffener and shear text; lands with the shear controls.
#include "core/pipeline.h"
#include "core/state.h"

namespace vn {

void ShowWebText(State&) {}

}  // namespace vn
