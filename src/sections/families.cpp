#include "sections/families.h"

#include "sections/angles.h"
#include "sections/british.h"
#include "sections/channels.h"
#include "sections/rolled_i.h"

namespace vn {

std::vector<SectionFamilyRow> SectionFamilyTable() {
  std::vector<SectionFamilyRow> rows;
  // In the order the dispatcher tests them: 1-4, 15, 21, then 5, 16, 6-9, 10, 11, 22 ... 101, 102, 103.
  rows.push_back({1, 4, RolledIProperties, {RolledIEffective, RolledICapacities}, -1});
  rows.push_back({15, 15, InpProperties, {RolledIEffective, RolledICapacities}, -1});
  // 21 welded I double symmetric
  rows.push_back({5, 5, UpeProperties, {ChannelEffective, RolledICapacities}, -1, false, 2});
  rows.push_back({16, 16, UnpProperties, {TaperedChannelEffective, RolledICapacities}, -1, false, 2});
  // 6-9 hollow
  rows.push_back({10, 10, EqualAngleProperties, {AngleClassEqual}, 0});
  rows.push_back({11, 11, UnequalAngleProperties, {AngleClassUnequal}, 0});
  // 22-28, 31, 41, 51-56
  rows.push_back({101, 101, BritishIProperties,
                  {RolledIEffective, SectionShearResistances, RolledICapacities}, -1});
  rows.push_back({102, 102, BritishJProperties,
                  {RolledIEffective, SectionShearResistances, RolledICapacities}, -1});
  rows.push_back({103, 103, BritishChannelProperties, {BritishChannelRoutines}, -1, false, 2});
  return rows;
}

}  // namespace vn
