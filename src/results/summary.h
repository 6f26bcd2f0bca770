#pragma once

#include <string>

namespace vn {

struct State;

// The summary of controls as plain text, one line a control, with a mark for red and green ratios.
std::string SummaryText(const State& s);

}  // namespace vn
