// Helpers of the design basis tests: a folder of its own for the program's files.
#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "core/state.h"

namespace vn::test {

// A fresh folder under the system's temporary folder, removed again at the end of the test.
class TempFolder {
 public:
  TempFolder() {
    std::random_device rd;
    path_ = std::filesystem::temp_directory_path() /
            ("varnelt-design-" + std::to_string(rd()) + "-" + std::to_string(rd()));
    std::filesystem::create_directories(path_);
  }
  ~TempFolder() {
    std::error_code ec;
    std::filesystem::remove_all(path_, ec);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  std::string Path() const { return path_.string(); }

  void Write(const std::string& name, const std::string& content) const {
    std::ofstream out(path_ / name, std::ios::binary);
    out << content;
  }
  std::string Read(const std::string& name) const {
    std::ifstream in(path_ / name, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  }
  bool Exists(const std::string& name) const { return std::filesystem::exists(path_ / name); }

 private:
  std::filesystem::path path_;
};

// A grade table as the delivered file has it: tab-separated, the user row last.
inline const char* const kGradeFile =
    "S235\t235\t215\n"
    "S275\t275\t255\n"
    "S355\t355\t335\n"
    "S420\t420\t390\n"
    "S460\t460\t430\n"
    "S355 (default)\t355\t335\n"
    "Test 461\t461\t440\n"
    "User defined\t0\t0\n";  // row 7: gradeLast 7

}  // namespace vn::test
