#include "sections/families.h"

namespace vn {

std::vector<SectionFamilyRow> SectionFamilyTable() {
  std::vector<SectionFamilyRow> rows;
  // Rows are added here as the families land, in the order the dispatcher tests them:
  // 1-4, 15, 21, then 5, 16, 6-9, 10, 11, 22 ... 101, 102, 103.
  return rows;
}

}  // namespace vn
