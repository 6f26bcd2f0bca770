#include "core/startup.h"

#include <locale>

#include "core/file_actions.h"
#include "core/recalculate.h"
#include "core/state.h"
#include "design/design_basis.h"

namespace vn {

bool DetectDecimalComma() {
  try {
    std::locale user("");
    return std::use_facet<std::numpunct<char>>(user).decimal_point() != '.';
  } catch (const std::exception&) {
    return false;  // an unknown locale name: the classic one
  }
}

void StartUp(State& s, const std::string& appPath, bool decimalComma) {
  s.appPath = appPath;
  s.currentDir = appPath;
  s.decimalComma = decimalComma;
  BuildRecentMenu(s);
  NewProject(s);
  LoadSettings(s);
  RefreshMainForm(s);
}

}  // namespace vn
