#include "core/control_registry.h"

#include "core/events.h"

namespace vn {

void RegisterAllControls(ControlTable& t) {
  RegisterMainFormControls(t);
}

}  // namespace vn
