#pragma once

#include <string>

namespace vn {
struct State;
}

namespace vn::cli {

// The project as a short readable text: what the member is, how it is loaded, the verdict.
std::string ProjectText(const State& s);
// The table of detailed results.
std::string DetailText(const State& s);

// Open and save a project file as the menu actions do; false with the message on a file error.
bool OpenProject(State& s, const std::string& path, std::string* error);
bool SaveProject(State& s, const std::string& path, std::string* error);

}  // namespace vn::cli
