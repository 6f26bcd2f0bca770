// The project file (*.vnt): one value after another in a fixed order, no keys, a version at the head.
#pragma once

#include <string>

namespace vn {

struct State;

enum class FileResult {
  Ok,
  NotFound,    // error 53: "can't find file - " / "can't save file - "
  PastEnd,     // error 62: "Input file not compatible with this version "
  OtherError,  // any other run-time error: the action ends silently
};

inline constexpr int kProjectVersion = 120;

// Reads the record from the file, then derives psi, codeIndex and the code's factors. Values are
// stored as they are read: a file too short leaves what was read before its end.
FileResult ReadProject(State& s, const std::string& path);

// Writes the record with the version 120, deriving codeId from codeIndex first. The text is written
// to a temporary file beside the target and moved into place, so a failed write leaves the previous
// file whole.
FileResult WriteProject(State& s, const std::string& path);

// The project file's text of the record as WriteProject writes it.
std::string ProjectFileText(State& s);

}  // namespace vn
