#include "support/test_support.h"

#include "core/startup.h"

namespace vn::test {

State StartedState() {
  State s;
  StartUp(s, VARNELT_BIN_DIR, false);
  return s;
}

}  // namespace vn::test
