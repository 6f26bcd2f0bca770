// A sequence of control events with texts, as the forms and the command line fire them: one event a
// line, "control=text", at most eight of them (each runs the pipeline). A line whose control is no known name
// fires the control that its bytes pick, so that any input reaches real controls. The file actions are left
// out: they take a path and would read or write files, which the project and setup fuzz targets cover.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/events.h"
#include "fuzz_support.h"

namespace {

bool TouchesFiles(std::string_view name) {
  for (const char* f : {"mnuopen", "mnusave", "mnusaveas", "mnurecentfile", "Command2", "cmdDetailedResult"})
    if (name.find(f) != std::string_view::npos) return true;
  return false;
}

// The names to fire, "form.name(i)" with the first index of an array.
const std::vector<std::string>& Names() {
  static const std::vector<std::string> names = [] {
    std::vector<std::string> all;
    for (std::string n : vn::Controls().Names()) {
      if (TouchesFiles(n)) continue;
      if (auto open = n.find('('); open != std::string::npos) n = n.substr(0, n.find("..", open)) + ")";
      all.push_back(n);
    }
    return all;
  }();
  return names;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  vn::State s = vn::fuzz::StartedState();
  std::string_view in(reinterpret_cast<const char*>(data), size);
  int events = 0;
  while (!in.empty() && events++ < 8) {
    const size_t end = in.find('\n');
    std::string_view line = in.substr(0, end);
    in = end == std::string_view::npos ? std::string_view() : in.substr(end + 1);
    const size_t eq = line.find('=');
    std::string control(line.substr(0, eq));
    const std::string text(eq == std::string_view::npos ? std::string_view() : line.substr(eq + 1));
    int index = 0;
    if (TouchesFiles(control)) continue;
    if (!vn::Controls().Find(control, &index)) {
      size_t h = 0;
      for (unsigned char c : control) h = h * 131 + c;
      control = Names()[h % Names().size()];
    }
    // "mnunew" asks first; its answer "Yes" would write the project file.
    if (control == "mnunew" && !text.empty()) continue;
    vn::EventResult r = vn::Fire(s, control, text);
    if (r.exit) break;
  }
  return 0;
}
