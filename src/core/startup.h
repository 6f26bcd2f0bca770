#pragma once

#include <string>

namespace vn {

struct State;

// Whether the user's locale writes 1.1 as "1,1".
bool DetectDecimalComma();

// Start-up of the program from its folder: the decimal sign, a new project, the steel grades,
// catalogues and setup file, then the refresh of the main form, which recalculates.
void StartUp(State& s, const std::string& appPath, bool decimalComma);

}  // namespace vn
