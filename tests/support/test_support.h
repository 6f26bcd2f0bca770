// Shared helpers of the tests: a started state, and expected values with their tolerance and its reason.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
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
            ("varnelt-test-" + std::to_string(rd()) + "-" + std::to_string(rd()));
    std::filesystem::create_directories(path_);
  }
  ~TempFolder() {
    std::error_code ec;
    std::filesystem::remove_all(path_, ec);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  std::string Path() const { return path_.string(); }
  std::string Path(const std::string& name) const { return (path_ / name).string(); }
  const std::filesystem::path& Dir() const { return path_; }

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

// A state started as the program starts, from the data files beside the built program.
State StartedState();

// Tolerances, each with its reason.
struct Tolerance {
  double relative;
  const char* reason;
};
inline constexpr Tolerance kSingle{2e-7 * 4, "stored as a 32-bit float"};
inline constexpr Tolerance kPublished3{5e-3, "published tables give 3 significant digits"};
inline constexpr Tolerance kPublished4{5e-4, "published tables give 4 significant digits"};

inline ::testing::AssertionResult Near(double actual, double expected, Tolerance t) {
  double allowed = std::fabs(expected) * t.relative;
  if (std::fabs(actual - expected) <= allowed) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure()
         << actual << " differs from " << expected << " by more than " << allowed << " (" << t.reason << ")";
}

}  // namespace vn::test
