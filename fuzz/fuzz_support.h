// What the fuzz targets share: a state started once, as the program starts, from the data files of
// the source tree; each input works on a copy of it.
#pragma once

#include "core/startup.h"
#include "core/state.h"

namespace vn::fuzz {

inline const State& StartedState() {
  static const State started = [] {
    State s;
    StartUp(s, VARNELT_DATA_DIR, false);
    return s;
  }();
  return started;
}

}  // namespace vn::fuzz
