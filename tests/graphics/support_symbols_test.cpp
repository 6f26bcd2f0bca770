// The end support pictures: each support type must be told apart at a glance.
#include "graphics/support_symbols.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace vn {
namespace {

using namespace vn::draw;

TEST(SupportSymbols, EndsFollowTheSupportType) {
  // 0 simple, 1 pinned at x=0 and fixed at x=L, 2 fixed at both ends, 3 springs at both ends,
  // 4 cantilever fixed at x=0 and free at x=L, 5 pinned at x=0 and spring at x=L.
  EXPECT_EQ(SupportEnds(1), std::make_pair(EndKind::Pinned, EndKind::Fixed));
  EXPECT_EQ(SupportEnds(2), std::make_pair(EndKind::Fixed, EndKind::Fixed));
  EXPECT_EQ(SupportEnds(3), std::make_pair(EndKind::Spring, EndKind::Spring));
  EXPECT_EQ(SupportEnds(4), std::make_pair(EndKind::Fixed, EndKind::Free));
  EXPECT_EQ(SupportEnds(5), std::make_pair(EndKind::Pinned, EndKind::Spring));
  EXPECT_EQ(SupportEnds(-1), std::make_pair(EndKind::Free, EndKind::Free));
}

TEST(SupportSymbols, EverySupportTypeHasItsOwnPicture) {
  std::set<std::string> pictures;
  for (int type = 0; type <= 5; ++type) {
    SvgCanvas svg(100, 50);
    DrawSupportIcon(svg, type);
    pictures.insert(svg.Svg());
  }
  EXPECT_EQ(pictures.size(), 6u);
}

TEST(SupportSymbols, EveryBucklingCaseHasItsOwnPicture) {
  std::set<std::string> pictures;
  for (int picture = 1; picture <= 6; ++picture) {
    SvgCanvas svg(30, 60);
    DrawBucklingCaseIcon(svg, picture);
    pictures.insert(svg.Svg());
  }
  EXPECT_EQ(pictures.size(), 6u);
}

TEST(SupportSymbols, BuckledShapesStayOnTheirColumn) {
  // Every buckled shape starts and ends on the column line (x = 11): the ends do not move sideways,
  // but for the cantilever's free top.
  for (int picture : {2, 3, 4}) {
    Drawing d;
    RecordingCanvas rec(d);
    DrawBucklingCaseIcon(rec, picture);
    for (const DrawCommand& cmd : d.commands) {
      if (cmd.kind != DrawCommand::Kind::Polyline) continue;
      EXPECT_NEAR(cmd.points.front().x, 11, 1e-9) << picture;
      EXPECT_NEAR(cmd.points.back().x, 11, 1e-6) << picture;
      for (const Point& p : cmd.points) EXPECT_LE(p.x, 11 + 12 + 1e-9) << picture;
    }
  }
}

TEST(SupportSymbols, CantileverDrawsNothingAtItsFreeEnd) {
  // The member ends at x = 84 of 100; a free end has no symbol, so nothing lies right of x = 80.
  Drawing d;
  RecordingCanvas rec(d);
  DrawSupportIcon(rec, 4);
  for (const DrawCommand& cmd : d.commands) {
    if (cmd.kind == DrawCommand::Kind::Scale) continue;
    bool memberLine = cmd.kind == DrawCommand::Kind::Line && cmd.pen.width == 2;
    if (memberLine) continue;
    for (const Point& p : cmd.points) EXPECT_LT(p.x, 80) << "a symbol at the free end";
  }
}

TEST(SupportSymbols, FixedWallsFaceAwayFromTheMember) {
  // The hatches of the wall at x = 0 lie left of the member's end, those at x = L right of it.
  Drawing left, right;
  RecordingCanvas l(left), r(right);
  DrawSupportEnd(l, {20, 20}, EndKind::Fixed, false, 30, Pen{});
  DrawSupportEnd(r, {80, 20}, EndKind::Fixed, true, 30, Pen{});
  for (const DrawCommand& cmd : left.commands)
    for (const Point& p : cmd.points) EXPECT_LE(p.x, 20);
  for (const DrawCommand& cmd : right.commands)
    for (const Point& p : cmd.points) EXPECT_GE(p.x, 80);
}

}  // namespace
}  // namespace vn
