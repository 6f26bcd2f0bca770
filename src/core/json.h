// The whole state as JSON: every record, every field under its own name, arrays as arrays.
#pragma once

#include <string>

namespace vn {

struct State;

std::string StateToJson(const State& s);

// A text as a JSON string, quotes included; bytes that are no UTF-8 become U+FFFD.
std::string JsonString(const std::string& text);

// Sets one field of the project or the load tables by its JSON path ("Project.L",
// "Loads.UniformLoad[1].q", "Project.p21.isth") from a number or text. For tests and scripts that
// need a state no event reaches. False if no such field.
bool SetFieldByPath(State& s, const std::string& path, const std::string& value);

}  // namespace vn
