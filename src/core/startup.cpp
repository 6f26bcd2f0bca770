#include "core/startup.h"

#include <filesystem>
#include <locale>
#include <system_error>

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

std::string DataFolder(const std::string& programFolder) {
  namespace fs = std::filesystem;
  std::error_code ec;
  if (fs::is_regular_file(fs::path(programFolder) / kSteelGradeFile, ec)) return programFolder;
  const fs::path installed = (fs::path(programFolder) / ".." / "share" / "varnelt").lexically_normal();
  if (fs::is_regular_file(installed / kSteelGradeFile, ec)) return installed.string();
  return programFolder;
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
