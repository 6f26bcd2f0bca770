// The setup file and the steel grade file on any bytes: the first byte chooses the file (bit 0) and
// whether the default project is then shown and recalculated with what was read (bit 1); the rest is
// the file's text. The settings are derived as at start-up.
#include <cstddef>
#include <cstdint>
#include <string>

#include "core/recalculate.h"
#include "design/design_basis.h"
#include "fuzz_support.h"
#include "sections/dispatch.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  vn::State s = vn::fuzz::StartedState();
  const std::string text(reinterpret_cast<const char*>(data + 1), size - 1);
  if (data[0] & 1) {
    vn::ReadSteelGradesText(s, text);
  } else {
    vn::ReadSetupText(s, text);
    vn::DeriveProjectSettings(s);
  }
  try {
    vn::SelectYieldStrength(s, s.project.steelGrade);
  } catch (const vn::CalcFault&) {
    // As after a read project: the recalculation below shows the message.
  }
  if (data[0] & 2) vn::RefreshMainForm(s);  // which runs the pipeline
  return 0;
}
