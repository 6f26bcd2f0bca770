// Every file the program writes and every file it reads goes through these two routines.
//
// Writing: the bytes go to a new file in the target's own folder, created exclusively under a name
// made at random (mkstemp), so that nothing placed there beforehand, a symbolic link least of all,
// is opened or followed. The file is flushed to disk and only then renamed onto the target, so the
// target is either the previous file, byte for byte, or the complete new one. On any failure the
// temporary file is removed and the reason is given.
//
// Reading: a regular file only (a folder, a device or a FIFO is refused before it is opened), up to
// a bound, so that no file can make the program exhaust its memory.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace vn {

// Fills the temporary file whose path is given, for a library that opens the file by its name
// itself; false with the reason in *reason.
using FillFile = std::function<bool(const std::string& tempPath, std::string* reason)>;

// Writes `bytes` to `path` as above. False with the reason (the system's error text) in *reason.
bool ReplaceFile(const std::string& path, std::string_view bytes, std::string* reason);

// The same for a writer that fills the temporary file by its path.
bool ReplaceFileWith(const std::string& path, const FillFile& fill, std::string* reason);

enum class ReadStatus {
  Ok,
  Missing,   // no such file (or a folder on the way is missing)
  NotAFile,  // a folder, a device, a FIFO or a socket
  TooLarge,  // longer than the bound
  Failed,    // no permission, an input/output error ...
};

// Whether a file longer than the bound is refused or read as far as the bound.
enum class Oversize { Refuse, ReadPrefix };

// Reads the file at `path` whole into *bytes, at most `limit` bytes. With Oversize::ReadPrefix a
// longer file gives its first `limit` bytes and Ok. The reason of a failure is in *reason.
ReadStatus ReadFileBounded(const std::string& path, std::size_t limit, std::string* bytes,
                           std::string* reason, Oversize oversize = Oversize::Refuse);

// The bounds of the files the program reads. A project file is a few kilobytes; anything of
// megabytes is something else. The setup and steel grade files are a few hundred bytes.
inline constexpr std::size_t kProjectFileLimit = 4u << 20;
inline constexpr std::size_t kSettingsFileLimit = 64u << 10;

}  // namespace vn
