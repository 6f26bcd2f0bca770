#pragma once

#include <string>

namespace vn {

struct State;

// Whether the user's locale writes 1.1 as "1,1".
bool DetectDecimalComma();

// The folder of the data files (catalogues, steel grades, setup, help) for a program that lies in
// `programFolder`: that folder itself where the steel grade file lies in it (the build, a copy
// unpacked anywhere), else <programFolder>/../share/varnelt where it lies there (an installed
// program: bin/ and share/varnelt/ under one prefix, whatever the prefix). Where neither holds it,
// the program's own folder, so that the message about the missing files names that folder.
std::string DataFolder(const std::string& programFolder);

// Start-up of the program from its folder: the decimal sign, a new project, the steel grades,
// catalogues and setup file, then the refresh of the main form, which recalculates.
void StartUp(State& s, const std::string& appPath, bool decimalComma);

}  // namespace vn
