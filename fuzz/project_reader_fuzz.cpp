// The project reader on any bytes: the record read (or read as far as the file goes), then shown and
// recalculated as Open does (RefreshMainForm runs the pipeline), written back as a project file and
// printed as JSON.
#include <cstddef>
#include <cstdint>
#include <string>

#include "core/json.h"
#include "core/project_file.h"
#include "core/recalculate.h"
#include "fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  vn::State s = vn::fuzz::StartedState();
  const std::string text(reinterpret_cast<const char*>(data), size);
  if (vn::ReadProjectText(s, text) == vn::FileResult::Ok) {
    vn::RefreshMainForm(s);
  }
  // Whatever was read, the record can be written and printed.
  (void)vn::ProjectFileText(s);
  (void)vn::StateToJson(s);
  return 0;
}
