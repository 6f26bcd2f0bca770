// Where the program finds its data files: beside itself (the build, a copy unpacked anywhere), else in
// ../share/varnelt of an installed program, whatever the prefix; the steel grade file marks the folder.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "core/startup.h"
#include "support/test_support.h"

namespace vn {
namespace {

namespace fs = std::filesystem;

struct Layout {
  const char* name;
  std::vector<std::string> files;  // relative to the prefix; the program lies in prefix/bin
  std::string expected;            // relative to the prefix
};

TEST(DataFolder, OwnFolderFirstThenTheInstalledShareFolder) {
  const std::vector<Layout> layouts = {
      {"build folder", {"bin/VarneltECmat.dat"}, "bin"},
      {"installed", {"share/varnelt/VarneltECmat.dat"}, "share/varnelt"},
      {"both: its own folder wins", {"bin/VarneltECmat.dat", "share/varnelt/VarneltECmat.dat"}, "bin"},
      // A catalogue alone beside the program is no data folder: the steel grade file marks it.
      {"catalogue alone beside it", {"bin/hea.dat", "share/varnelt/VarneltECmat.dat"}, "share/varnelt"},
      // A folder of that name is not the file.
      {"folder named like the file",
       {"bin/VarneltECmat.dat/x", "share/varnelt/VarneltECmat.dat"},
       "share/varnelt"},
      {"none: its own folder, named in the message", {}, "bin"},
  };
  for (const Layout& l : layouts) {
    test::TempFolder prefix;
    fs::create_directories(prefix.Dir() / "bin");
    for (const std::string& f : l.files) {
      fs::create_directories((prefix.Dir() / f).parent_path());
      prefix.Write(f, "x");
    }
    const std::string bin = prefix.Path("bin");
    EXPECT_EQ(fs::path(DataFolder(bin)), (prefix.Dir() / l.expected).lexically_normal()) << l.name;
  }
}

}  // namespace
}  // namespace vn
