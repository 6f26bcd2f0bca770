// The drawing surface: user coordinates onto pixels, recording and replay, the SVG text.
#include "graphics/canvas.h"

#include <gtest/gtest.h>

#include <clocale>
#include <string>

namespace vn {
namespace {

using namespace vn::draw;

// ---- user coordinates ----

TEST(CanvasScale, ChartGridOfHundredMapsOntoThePicture) {
  // 0..100 both ways on 200 x 100 pixels: x 50 is half the width, 100 px; y 25 is 25 px down.
  ScaleMap m{0, 0, 100, 100, 200, 100};
  EXPECT_EQ(m.ToDevice({50, 25}), (Point{100, 25}));
  EXPECT_EQ(m.ToDevice({16, 0}), (Point{32, 0}));  // the member starts at x = 16
}

TEST(CanvasScale, TopAboveBottomTurnsTheYAxisUp) {
  // Scale (0, 10)-(10, 0) on 100 x 100: user (0, 0) is the bottom left corner, (10, 10) the top right.
  ScaleMap m{0, 10, 10, 0, 100, 100};
  EXPECT_EQ(m.ToDevice({0, 0}), (Point{0, 100}));
  EXPECT_EQ(m.ToDevice({10, 10}), (Point{100, 0}));
}

TEST(CanvasScale, ScaleWithoutExtentDoesNotDivideByZero) {
  ScaleMap m{5, 5, 5, 5, 100, 100};
  Point p = m.ToDevice({7, 7});
  EXPECT_EQ(p, (Point{0, 0}));
  EXPECT_EQ(m.XLength(3), 0);
}

TEST(CanvasScale, RadiusIsMeasuredAlongX) {
  // 5 units of a 0..100 x axis on 200 px are 10 px, whatever the y scale.
  ScaleMap m{0, 0, 100, 10, 200, 50};
  EXPECT_DOUBLE_EQ(m.XLength(5), 10);
  EXPECT_DOUBLE_EQ(m.XLength(-5), 10);
}

TEST(CanvasColour, ColourValuesHoldRedInTheLowByte) {
  EXPECT_EQ(RgbOfColorValue(65280), kGreen);     // the background of a field being edited
  EXPECT_EQ(RgbOfColorValue(16777215), kWhite);  // a field at rest
  EXPECT_EQ(RgbOfColorValue(0xFF0000), kBlue);   // 255 in the blue channel: the moment curve
  EXPECT_EQ(RgbOfColorValue(255), kRed);
}

// ---- recording and replay ----

TEST(RecordingCanvas, ReplayGivesTheSameCommands) {
  Drawing first, second;
  RecordingCanvas rec(first);
  rec.SetScale(0, 0, 100, 100);
  rec.Line({16, 50}, {86, 50}, Pen{});
  rec.Polyline({{16, 50}, {51, 62}, {86, 50}}, Pen{kBlue, 2, LineStyle::Solid});
  rec.Rectangle({10, 10}, {20, 20}, Pen{}, kRed);
  rec.Circle({50, 50}, 3, Pen{}, std::nullopt);
  rec.Text({50, 5}, "My/Vz/Deflection (kNm/kN/mm)", Font{}, HAlign::Center, VAlign::Top);
  RecordingCanvas again(second);
  Replay(first, again);
  ASSERT_EQ(second.commands.size(), 6u);
  for (size_t i = 0; i < 6; ++i) {
    EXPECT_EQ(second.commands[i].kind, first.commands[i].kind) << i;
    EXPECT_EQ(second.commands[i].points, first.commands[i].points) << i;
    EXPECT_EQ(second.commands[i].pen, first.commands[i].pen) << i;
  }
  EXPECT_EQ(second.commands[3].fill, kRed);
  EXPECT_EQ(second.commands[5].text, "My/Vz/Deflection (kNm/kN/mm)");
  EXPECT_EQ(second.commands[5].h, HAlign::Center);
}

TEST(RecordingCanvas, ClearWipesWhatWasDrawnBefore) {
  Drawing d;
  RecordingCanvas rec(d);
  rec.Line({0, 0}, {1, 1}, Pen{});
  rec.Clear(kWhite);
  rec.Line({2, 2}, {3, 3}, Pen{});
  ASSERT_EQ(d.commands.size(), 2u);
  EXPECT_EQ(d.commands[0].kind, DrawCommand::Kind::Clear);
  EXPECT_EQ(d.commands[1].points[0], (Point{2, 2}));
}

TEST(RecordingCanvas, MalformedCommandsAreSkippedOnReplay) {
  Drawing d;
  DrawCommand bad;
  bad.kind = DrawCommand::Kind::Line;
  bad.points = {{1, 1}};  // a line needs two points
  d.commands.push_back(bad);
  SvgCanvas svg(10, 10);
  Replay(d, svg);
  EXPECT_EQ(svg.Svg().find("<line"), std::string::npos);
}

// ---- SVG ----

TEST(SvgCanvas, LineLandsOnThePixelsOfItsUserCoordinates) {
  // The member line of a chart, x 16..86 of 100, on 200 px: 32..172 px.
  SvgCanvas svg(200, 100);
  svg.SetScale(0, 0, 100, 100);
  svg.Line({16, 50}, {86, 50}, Pen{kBlue, 1, LineStyle::Solid});
  const std::string out = svg.Svg();
  EXPECT_NE(out.find("<line x1=\"32\" y1=\"50\" x2=\"172\" y2=\"50\" stroke=\"#0000ff\""), std::string::npos)
      << out;
  EXPECT_EQ(out.rfind("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"200\" height=\"100\"", 0), 0u);
}

TEST(SvgCanvas, TextIsEscapedAndSizedInPixels) {
  // 7 points are 7 * 96 / 72 = 9.333 px.
  SvgCanvas svg(100, 100);
  svg.Text({0, 0}, "M<0 & V>0", Font{}, HAlign::Right, VAlign::Bottom);
  const std::string out = svg.Svg();
  EXPECT_NE(out.find(">M&lt;0 &amp; V&gt;0</text>"), std::string::npos) << out;
  EXPECT_NE(out.find("font-size=\"9.33\""), std::string::npos) << out;
  EXPECT_NE(out.find("text-anchor=\"end\""), std::string::npos) << out;
}

TEST(SvgCanvas, TextAlignmentIsInTheBaselineSoATitleAtTheTopStaysInside) {
  // 9.333 px: a title hung from y = 0 has its baseline 0.8 of the size lower; one standing on
  // y = 100 its baseline 0.2 of the size higher. No renderer-specific baseline attribute.
  SvgCanvas svg(100, 100);
  svg.SetScale(0, 0, 100, 100);
  svg.Text({50, 0}, "Title", Font{}, HAlign::Center, VAlign::Top);
  svg.Text({50, 100}, "Foot", Font{}, HAlign::Center, VAlign::Bottom);
  const std::string out = svg.Svg();
  EXPECT_NE(out.find("y=\"7.47\""), std::string::npos) << out;
  EXPECT_NE(out.find("y=\"98.13\""), std::string::npos) << out;
  EXPECT_EQ(out.find("dominant-baseline"), std::string::npos) << out;
}

TEST(SvgCanvas, RectangleFromAnyTwoCornersAndCircleRadius) {
  SvgCanvas svg(200, 200);
  svg.SetScale(0, 0, 100, 100);
  svg.Rectangle({60, 40}, {10, 20}, Pen{}, kGreen);  // corners given bottom right first
  svg.Circle({50, 50}, 5, Pen{}, std::nullopt);      // 5 units of 100 on 200 px: radius 10 px
  const std::string out = svg.Svg();
  EXPECT_NE(out.find("<rect x=\"20\" y=\"40\" width=\"100\" height=\"40\" fill=\"#00ff00\""),
            std::string::npos)
      << out;
  EXPECT_NE(out.find("<circle cx=\"100\" cy=\"100\" r=\"10\" fill=\"none\""), std::string::npos) << out;
}

TEST(SvgCanvas, NumbersKeepThePointUnderADecimalCommaLocale) {
  const char* old = std::setlocale(LC_NUMERIC, nullptr);
  std::string saved = old ? old : "C";
  if (!std::setlocale(LC_NUMERIC, "de_DE.UTF-8") && !std::setlocale(LC_NUMERIC, "nb_NO.UTF-8"))
    GTEST_SKIP() << "no decimal-comma locale installed";
  SvgCanvas svg(3, 3);
  svg.SetScale(0, 0, 2, 2);
  svg.Line({1, 1}, {2, 2}, Pen{kBlack, 0.5, LineStyle::Solid});  // (1.5, 1.5) to (3, 3)
  const std::string out = svg.Svg();
  std::setlocale(LC_NUMERIC, saved.c_str());
  EXPECT_NE(out.find("x1=\"1.5\" y1=\"1.5\""), std::string::npos) << out;
  EXPECT_NE(out.find("stroke-width=\"0.5\""), std::string::npos) << out;
}

TEST(SvgCanvas, NonFiniteCoordinatesGiveAValidDocument) {
  SvgCanvas svg(0, -5);  // a surface with no size takes one pixel
  svg.Line({1e308 * 10, 0}, {0, 0}, Pen{});
  const std::string out = svg.Svg();
  EXPECT_EQ(out.find("inf"), std::string::npos);
  EXPECT_EQ(out.find("nan"), std::string::npos);
}

}  // namespace
}  // namespace vn
