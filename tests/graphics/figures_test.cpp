// The section figure, the member figure and the record changes of the last stage of a run.
#include <gtest/gtest.h>

#include <set>

#include "core/events.h"
#include "core/pipeline.h"
#include "core/recalculate.h"
#include "graphics/drawing_inspect.h"
#include "graphics/member_figure.h"
#include "graphics/section_figure.h"
#include "support/test_support.h"

namespace vn {
namespace {

using draw::DrawCommand;
using test::Commands;
using test::HasText;

// A section of a rectangle's bounding box, W wide and H high, drawn to scale.
draw::Drawing ToScale(double W, double H) {
  State s = test::StartedState();
  s.project.ProfileType = 1;
  s.section.FigWidth = static_cast<Single>(W);
  s.section.FigHeight = static_cast<Single>(H);
  s.section.FigCentroidY = static_cast<Single>(W / 2);
  s.section.FigCentroidZ = static_cast<Single>(H / 2);
  s.section.OutlineCount = 5;
  s.section.OutlineInnerLast = 1;
  s.section.Outline[1] = {0, 0};
  s.section.Outline[2] = {static_cast<Single>(W), 0};
  s.section.Outline[3] = {static_cast<Single>(W), static_cast<Single>(H)};
  s.section.Outline[4] = {0, static_cast<Single>(H)};
  s.section.Outline[5] = {0, 0};
  draw::Drawing d;
  draw::RecordingCanvas c(d);
  DrawSectionToScale(c, s);
  return d;
}

TEST(SectionFigure, AWideSectionScalesByItsWidth) {
  const draw::Drawing d = ToScale(300, 100);
  const auto scale = Commands(d, DrawCommand::Kind::Scale);
  ASSERT_EQ(scale.size(), 1u);
  // 300 wide and a margin of 0.1 * 300 = 30 on each side: -30 .. 330; the height, the same 360,
  // centred on 50: 230 at the top, -130 at the foot.
  EXPECT_DOUBLE_EQ(scale[0].points[0].x, -30);
  EXPECT_DOUBLE_EQ(scale[0].points[1].x, 330);
  EXPECT_DOUBLE_EQ(scale[0].points[0].y, 230);
  EXPECT_DOUBLE_EQ(scale[0].points[1].y, -130);
}

TEST(SectionFigure, AHighSectionScalesByItsHeight) {
  const draw::Drawing d = ToScale(100, 300);
  const auto scale = Commands(d, DrawCommand::Kind::Scale);
  ASSERT_EQ(scale.size(), 1u);
  // 300 high: -30 .. 330 upwards, the width centred on 50.
  EXPECT_DOUBLE_EQ(scale[0].points[0].y, 330);
  EXPECT_DOUBLE_EQ(scale[0].points[1].y, -30);
  EXPECT_DOUBLE_EQ(scale[0].points[0].x, -130);
  EXPECT_DOUBLE_EQ(scale[0].points[1].x, 230);
  EXPECT_TRUE(HasText(d, "Y"));
  EXPECT_TRUE(HasText(d, "Z"));
}

TEST(SectionFigure, TheRolledIIsDrawnThroughItsOutline) {
  State s = test::StartedState();
  s.project.figureNotToScale = 0;
  Fire(s, "mnup01");
  const draw::Drawing& d = s.view.pictures["p01.pic1"];
  const auto outline = Commands(d, DrawCommand::Kind::Polygon);
  ASSERT_FALSE(outline.empty());
  ASSERT_EQ(outline[0].points.size(), 21u);  // the 21 points of a rolled I
  EXPECT_DOUBLE_EQ(outline[0].points[0].x, 0);
  EXPECT_DOUBLE_EQ(outline[0].points[9].y, s.section.h);  // point 10: the top left corner
  EXPECT_TRUE(HasText(d, "Y"));
  EXPECT_FALSE(HasText(d, "h"));
}

TEST(SectionFigure, AClickOnTheFigureTogglesTheStockPicture) {
  State s = test::StartedState();
  Fire(s, "mnup04");
  ASSERT_EQ(s.project.figureNotToScale, 1);
  EXPECT_TRUE(HasText(s.view.pictures["p04.pic1"], "h"));
  EXPECT_TRUE(HasText(s.view.pictures["p04.pic1"], "b"));
  Fire(s, "p04.pic1");
  EXPECT_EQ(s.project.figureNotToScale, 0);
  EXPECT_EQ(s.view.text["p04.pic1"], "Figure to scale");
  EXPECT_FALSE(HasText(s.view.pictures["p04.pic1"], "h"));
  Fire(s, "p04.pic1");
  EXPECT_TRUE(HasText(s.view.pictures["p04.pic1"], "h"));
}

TEST(SectionFigure, TheGeneralSectionShowsOnlyItsStockPicture) {
  State s = test::StartedState();
  s.project.ProfileType = 41;
  s.project.figureNotToScale = 0;
  DrawSectionFigure(s);
  EXPECT_TRUE(HasText(s.view.pictures["p41.pic1"], "General profile"));
  EXPECT_EQ(SectionFigureBox(41), "p41.pic1");
  EXPECT_EQ(SectionFigureBox(103), "p103.pic1");
  EXPECT_EQ(SectionFigureBox(55), "");
}

TEST(SectionFigure, EveryFamilyAndAlternativeHasItsOwnStockPicture) {
  State s = test::StartedState();
  std::set<std::string> pictures;
  auto add = [&](int type) {
    draw::SvgCanvas svg(100, 100);
    DrawStockSection(svg, s, type, true);
    pictures.insert(svg.Svg());
  };
  const int types[] = {1, 4, 5, 6, 7, 8, 10, 11, 15, 16, 22, 23, 24, 25, 26, 27, 28, 31, 41, 51, 52, 54, 56};
  for (int type : types) add(type);
  s.project.rhsTurned = 0;  // the rectangle lying on its side
  add(7);
  s.project.p22.istb1 = s.project.p22.istb2 + 100;  // the wider flange on top this time
  add(22);
  s.project.hsqKind = 1;
  add(24);
  s.project.p23.oweld = 1;
  add(23);
  EXPECT_EQ(pictures.size(), std::size(types) + 4);
}

// ---- Member figure and the main form's state ----

TEST(MemberFigure, ShowsTheLengthSpringsAndStiffeners) {
  State s = test::StartedState();
  s.project.L = 5;
  s.project.SupportType = 3;
  s.project.SpringPct = 40;
  s.project.webStiffeners = 1;
  s.project.a = 1000;
  draw::Drawing d;
  draw::RecordingCanvas c(d);
  DrawMemberSymbol(c, s);
  EXPECT_TRUE(HasText(d, "L = 5.000 m"));
  EXPECT_TRUE(HasText(d, "40 %"));
  // Stiffeners every 1000 mm along 5 m: at 1, 2, 3 and 4 m.
  EXPECT_EQ(test::LinesIn(d, draw::Rgb{0, 0, 160}).size(), 4u);
}

TEST(MainFormState, TensionHidesTheColumnData) {
  State s = test::StartedState();
  s.loads.axial[1].N = -100;
  Recalculate(s);
  ASSERT_FALSE(s.view.txtErrorVisible);
  EXPECT_FALSE(s.view.visible["columnframe"]);
  s.loads.axial[1].N = 100;
  Recalculate(s);
  EXPECT_TRUE(s.view.visible["columnframe"]);
}

TEST(MainFormState, AFamilyWithoutWebStiffenersClearsThemAtTheEndOfTheRun) {
  State s = test::StartedState();
  s.project.webStiffeners = 1;
  s.project.rigidEndPost = 1;
  s.project.ProfileType = 28;
  UpdateMainFormState(s);
  EXPECT_EQ(s.project.webStiffeners, 0);
  EXPECT_EQ(s.project.rigidEndPost, 0);
  EXPECT_FALSE(s.view.visible["cbuttsupport"]);

  // The same through a whole run with a channel.
  State t = test::StartedState();
  t.project.webStiffeners = 1;
  Fire(t, "mnup05");
  EXPECT_EQ(t.project.webStiffeners, 0);
  Fire(t, "mnup01");
  EXPECT_TRUE(t.view.visible["cbuttsupport"]);
}

TEST(MainFormState, SpringSupportsEndTheModalAnalysis) {
  State s = test::StartedState();
  Fire(s, "ch_modal", "1");
  Fire(s, "cmd_modresult");
  ASSERT_TRUE(DialogOpen(s.view, "Modal_ns"));
  s.project.SupportType = 3;
  s.project.SpringPct = 50;
  Recalculate(s);
  EXPECT_EQ(s.project.chModal, 0);
  EXPECT_FALSE(DialogOpen(s.view, "Modal_ns"));
  EXPECT_FALSE(s.view.visible["cmd_modresult"]);
  EXPECT_TRUE(s.view.visible["ispring"]);
  EXPECT_EQ(s.view.text["ispring"], "50");
}

TEST(MainFormState, LateralTorsionalBucklingFieldsFollowTheFamily) {
  State s = test::StartedState();
  s.project.ProfileType = 1;
  s.project.ltbOn = 1;
  s.project.ltbLoadLevel = 4;
  s.project.ltbRestraints = 0;
  s.project.ltbZa = 120;
  UpdateMainFormState(s);
  EXPECT_TRUE(s.view.visible["ch_vipp"]);
  EXPECT_EQ(s.view.value["ch_vipp"], 1);
  EXPECT_TRUE(s.view.visible["zaa"]);
  EXPECT_EQ(s.view.text["zaa"], "Za = 120 mm");
  EXPECT_TRUE(s.view.visible["pic_loadlevel"]);

  s.project.ltbOn = 0;
  UpdateMainFormState(s);
  EXPECT_EQ(s.view.value["ch_vipp"], 0);
  EXPECT_FALSE(s.view.visible["pic_vipp"]);

  // A hollow section hides the check box and leaves ltbOn alone.
  s.project.ProfileType = 6;
  s.project.ltbOn = 1;
  UpdateMainFormState(s);
  EXPECT_FALSE(s.view.visible["ch_vipp"]);
  EXPECT_EQ(s.project.ltbOn, 1);
}

TEST(MainFormState, APlateRunsLateralBucklingOnlyUnderANegativeMoment) {
  State s = test::StartedState();
  s.project.ProfileType = 51;
  s.project.ltbOn = 1;
  s.analysis.MyGov = 12;
  UpdateMainFormState(s);
  EXPECT_EQ(s.project.ltbOn, 0);
  EXPECT_FALSE(s.view.visible["ch_vipp"]);
  s.analysis.MyGov = -12;
  UpdateMainFormState(s);
  EXPECT_EQ(s.project.ltbOn, 1);
  EXPECT_TRUE(s.view.visible["ch_vipp"]);
  EXPECT_FALSE(s.view.visible["zaa"]);
  EXPECT_FALSE(s.view.visible["columnframe"]);
}

TEST(MainFormState, TheGeneralSectionWritesItsNameInThePicture) {
  State s = test::StartedState();
  s.project.ProfileType = 41;
  UpdateMainFormState(s);
  EXPECT_TRUE(HasText(s.view.pictures["Picture4"], "General profile"));
}

}  // namespace
}  // namespace vn
