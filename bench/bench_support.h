// A member as the program builds it: started from the data files beside the benchmark, an IPE 300
// of 6 m chosen through the events, every load slot in use.
#pragma once

#include <unistd.h>

#include <climits>
#include <string>

#include "core/events.h"
#include "core/recalculate.h"
#include "core/startup.h"
#include "core/state.h"

namespace vn::bench {

inline std::string ProgramFolder() {
  char buf[PATH_MAX];
  ssize_t n = readlink("/proc/self/exe", buf, sizeof buf - 1);
  std::string path = n > 0 ? std::string(buf, static_cast<size_t>(n)) : std::string(".");
  return path.substr(0, path.rfind('/'));
}

inline State FullyLoadedMember(int combMode, int supportType) {
  State s;
  StartUp(s, ProgramFolder(), false);
  Fire(s, "mnup04");
  Fire(s, "p04.cbo", "10");  // IPE 300
  Fire(s, "il", "6");
  Fire(s, "cbutt" + std::to_string(supportType));
  Fire(s, "CboLoadComb", std::to_string(combMode));
  Project& p = s.project;
  p.SpringPct = 40;
  p.SelfweightOn = 1;
  Loads& l = s.loads;
  for (int i = 1; i <= 3; ++i) l.axial[i] = {50.0f * i, static_cast<Single>(i - 1), True};
  for (int i = 1; i <= 4; ++i)
    l.uniform[i] = {2.0f * i, static_cast<Integer>(i % 3), static_cast<Integer>(i % 2), True};
  for (int i = 1; i <= 3; ++i)
    l.trapezoid[i] = {
        1.0f * i, 2.0f * i, 0.5f * i, 1.5f * i + 1.5f, static_cast<Single>(i % 3), static_cast<Single>(i % 2),
        True};
  for (int i = 1; i <= 8; ++i)
    l.point[i] = {static_cast<Integer>(i % 2),       3.0f * i, 0.65f * i, static_cast<Integer>(i % 3),
                  static_cast<Integer>((i / 2) % 2), True};
  Recalculate(s);
  return s;
}

}  // namespace vn::bench
