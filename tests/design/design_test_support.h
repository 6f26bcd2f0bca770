// Helpers of the design basis tests: a folder of its own for the program's files.
#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "core/state.h"
#include "support/test_support.h"

namespace vn::test {

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
