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
  TooLarge,    // a file of megabytes is no project file: "Input file not compatible with this version "
};

inline constexpr int kProjectVersion = 120;

// Reads the record from the file, then derives psi, codeIndex and the code's factors. Values are
// stored as they are read: a file too short leaves what was read before its end. A folder, a device
// or a FIFO is NotFound and a file larger than kProjectFileLimit is TooLarge, both before anything
// is stored; the reason of such a failure is in *reason.
FileResult ReadProject(State& s, const std::string& path, std::string* reason = nullptr);

// The reader of the file's text, as ReadProject uses it once the file is read.
FileResult ReadProjectText(State& s, const std::string& text);

// Writes the record with the version 120, deriving codeId from codeIndex first. The text goes to a
// new temporary file beside the target that is moved into place when complete, so a failed write
// leaves the previous file byte for byte; every failure is NotFound, with its reason in *reason.
FileResult WriteProject(State& s, const std::string& path, std::string* reason = nullptr);

// The project file's text of the record as WriteProject writes it.
std::string ProjectFileText(State& s);

}  // namespace vn
