#include "core/control_registry.h"

#include "core/events.h"
#include "core/file_actions.h"

namespace vn {

void RegisterAllControls(ControlTable& t) {
  RegisterMainFormControls(t);
  RegisterSetupControls(t);
  RegisterSectionControls(t);
  RegisterAnalysisControls(t);
  RegisterResultsControls(t);
  RegisterControlsChecks(t);
  RegisterBucklingControls(t);
  RegisterFileMenuControls(t);
  RegisterDimensionFieldControls(t);
}

}  // namespace vn
