// The rows of the section dispatcher, one per family group, each added when its family lands.
#pragma once

#include <vector>

#include "sections/dispatch.h"

namespace vn {

std::vector<SectionFamilyRow> SectionFamilyTable();

}  // namespace vn
