// What varnelt-cli adds around the control table: the listing of the controls, list choices by
// their text, the warning for a typed text that is no number, and the check of the data files.
#pragma once

#include <string>
#include <vector>

namespace vn {
struct State;
}

namespace vn::cli {

// Every control as a line: name, kind, dialog, and for a field its unit and limits; or the same
// as a JSON array.
std::string ControlsText(State& s);
std::string ControlsJson(State& s);

// The text of an event as the control takes it: a list's entry named by its text becomes its
// index. False with the message (the entries it could have been) when the text names no entry.
bool ResolveEventText(State& s, const std::string& control, std::string* text, std::string* error);

// For a field whose text is no number where it is read without a message (as 0, or as the number
// it starts with): the warning naming the control, the text and the value read; else empty.
std::string NumberWarning(const State& s, const std::string& control, const std::string& text);

// The data files in `dir` that are missing or shorter than their tables: one line each.
std::vector<std::string> DataFileProblems(const std::string& dir);

}  // namespace vn::cli
