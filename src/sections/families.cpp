#include "sections/families.h"

#include "sections/angles.h"
#include "sections/box.h"
#include "sections/british.h"
#include "sections/channels.h"
#include "sections/hollow.h"
#include "sections/hsq.h"
#include "sections/plates.h"
#include "sections/rolled_i.h"
#include "sections/small_families.h"
#include "sections/welded_i.h"

namespace vn {

std::vector<SectionFamilyRow> SectionFamilyTable() {
  std::vector<SectionFamilyRow> rows;
  // In the order the dispatcher tests them: 1-4, 15, 21, then 5, 16, 6-9, 10, 11, 22 ... 56, 101, 102,
  // 103.
  rows.push_back({1, 4, RolledIProperties, {RolledIEffective, RolledICapacities}, -1});
  rows.push_back({15, 15, InpProperties, {RolledIEffective, RolledICapacities}, -1});
  rows.push_back({21, 21, WeldedIDoubleProperties, {RolledIEffective, RolledICapacities}, -1});
  rows.push_back({5, 5, UpeProperties, {ChannelEffective, RolledICapacities}, -1, false, 2});
  rows.push_back({16, 16, UnpProperties, {TaperedChannelEffective, RolledICapacities}, -1, false, 2});
  rows.push_back({6, 6, ShsProperties, {HollowEffective, HollowCapacities}, 0});
  rows.push_back({7, 7, RhsProperties, {HollowEffective, HollowCapacities}, 0});
  rows.push_back({8, 8, CfshsProperties, {HollowEffective, HollowCapacities}, 0});
  rows.push_back({9, 9, CfrhsProperties, {HollowEffective, HollowCapacities}, 0});
  rows.push_back({10, 10, EqualAngleProperties, {AngleClassEqual}, 0});
  rows.push_back({11, 11, UnequalAngleProperties, {AngleClassUnequal}, 0});
  rows.push_back({22, 22, SingleSymProperties, {SingleSymEffective, SingleSymClasses}, -1});
  rows.push_back({23, 23, BoxProperties, {HollowEffective, HollowCapacities}, 0});
  rows.push_back({24, 24, HsqProperties, {HsqEffective, HsqClasses}, 0, true});
  rows.push_back({25, 25, HsqUnsymProperties, {HsqEffectiveUnsym, HsqClasses}, 0, true});
  rows.push_back({26, 26, TeeProperties, {TeeClasses}, 0});
  rows.push_back({27, 27, UnequalBoxProperties, {BoxEffective, BoxClasses}, 0, true});
  // The flat bar keeps the LT flag, and the last section's flange in its surface.
  rows.push_back({28, 28, FlatProperties, {FlatClasses}, kLtbUnchanged, false, 0, true});
  rows.push_back({31, 31, TubeProperties, {TubeClasses}, 0});
  rows.push_back({41, 41, GeneralProperties, {GeneralClasses}, -1});
  rows.push_back({51, 51, PlateFlatProperties, {PlateEffective, PlateClasses}, -1, true});
  rows.push_back({52, 52, PlateAngleProperties, {StiffenedEffective, StiffenedClasses}, -1, true});
  rows.push_back({53, 53, PlateWeldedAngleProperties, {StiffenedEffective, StiffenedClasses}, -1, true});
  rows.push_back({54, 54, PlateBulbProperties, {StiffenedEffective, StiffenedClasses}, -1, true});
  rows.push_back({56, 56, PlateTeeProperties, {StiffenedEffective, StiffenedClasses}, -1, true});
  rows.push_back(
      {101, 101, BritishIProperties, {RolledIEffective, SectionShearResistances, RolledICapacities}, -1});
  rows.push_back(
      {102, 102, BritishJProperties, {RolledIEffective, SectionShearResistances, RolledICapacities}, -1});
  rows.push_back({103, 103, BritishChannelProperties, {BritishChannelRoutines}, -1, false, 2});
  return rows;
}

}  // namespace vn
