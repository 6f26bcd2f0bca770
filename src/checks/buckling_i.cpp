// Flexural, lateral torsional buckling and interaction of I sections; lands with the buckling controls.
#include "checks/control_routines.h"
#include "core/state.h"

namespace vn {

void BucklingControlI(State&) {}

}  // namespace vn
