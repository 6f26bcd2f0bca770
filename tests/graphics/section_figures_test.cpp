// The section figures agree with the section: the axes through the centroid of what is drawn, the
// angle an L as its stock picture, the single symmetric I's y axis ezb above the lower edge, and
// every letter inside the picture.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

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

// The smallest figure box of a section dialog in pixels: 170 less its sunken border.
constexpr double kBoxPixels = 166;

// Every family with a figure to scale, by the menu entry that opens its dialog.
const char* const kFamilyMenus[] = {
    "mnup01",     "mnup04",     "mnup15", "mnup05", "mnup16",     "mnup06",     "mnup07",
    "mnup08",     "mnup09",     "mnup10", "mnup11", "mnup21",     "mnup22",     "mnu26",
    "mnup23",     "mnup27",     "mnup24", "mnup25", "mnuplateTg", "mnuplateLr", "mnuplateLweld",
    "mnuplateBf", "mnuplateFb", "mnup31", "mnup28", "mnuu",       "mnuj",       "mnuc"};

// The figure to scale of the family that `menu` opens, as the run draws it into its dialog.
const draw::Drawing& ToScale(State& s, const std::string& menu) {
  s.project.figureNotToScale = 0;
  Fire(s, menu);
  return s.view.pictures[SectionFigureBox(s.project.ProfileType)];
}

// The y and z axes: the longest horizontal and vertical dash-dotted lines.
struct Axes {
  double y = NAN, z = NAN;
};
Axes AxesOf(const draw::Drawing& d) {
  Axes a;
  double longestY = 0, longestZ = 0;
  for (const DrawCommand& c : test::Commands(d, DrawCommand::Kind::Line)) {
    if (c.pen.style != draw::LineStyle::DashDot) continue;
    const draw::Point p = c.points[0], q = c.points[1];
    if (p.y == q.y && std::fabs(q.x - p.x) > longestY) longestY = std::fabs(q.x - p.x), a.y = p.y;
    if (p.x == q.x && std::fabs(q.y - p.y) > longestZ) longestZ = std::fabs(q.y - p.y), a.z = p.x;
  }
  return a;
}

// Texts that leave a square picture of `side` pixels, and pairs of texts that overlap.
std::string TextFaults(const draw::Drawing& d, double side = kBoxPixels) {
  std::string faults;
  const auto boxes = test::TextBoxes(d, side);
  for (size_t i = 0; i < boxes.size(); ++i) {
    const test::TextBox& b = boxes[i];
    if (b.left < 0 || b.top < 0 || b.right > side || b.bottom > side)
      faults += " \"" + b.text + "\" cut off;";
    for (size_t j = i + 1; j < boxes.size(); ++j) {
      const test::TextBox& o = boxes[j];
      if (b.left < o.right && o.left < b.right && b.top < o.bottom && o.top < b.bottom)
        faults += " \"" + b.text + "\" over \"" + o.text + "\";";
    }
  }
  return faults;
}

TEST(SectionFiguresToScale, AxesRunThroughTheCentroidOfWhatIsDrawnAndLettersStayInside) {
  for (const char* menu : kFamilyMenus) {
    SCOPED_TRACE(menu);
    State s = test::StartedState();
    const draw::Drawing& d = ToScale(s, menu);
    const Section& c = s.section;
    const double W = c.FigWidth, H = c.FigHeight, D = std::max(W, H);
    const auto centre = test::SteelCentroid(d, -0.01 * D, -0.01 * D, W + 0.01 * D, H + 0.01 * D);
    ASSERT_TRUE(centre.has_value());
    const Axes axes = AxesOf(d);
    // The figure's fillets are chords and its plates may overlap where they are welded: 1.5 % of
    // the figure's size is what such an outline can move the centroid by; a wrong frame moves it
    // by a tenth or more.
    EXPECT_NEAR(axes.y, centre->y, 0.015 * D);
    // The non-symmetric HSQ has no second moment about z: its record keeps the middle of its width.
    if (s.project.ProfileType != 25) {
      EXPECT_NEAR(axes.z, centre->x, 0.015 * D);
    }
    EXPECT_EQ(TextFaults(d), "");
  }
}

TEST(SectionFiguresToScale, TheStockPicturesKeepTheirLettersInsideAndApart) {
  State s = test::StartedState();
  const int types[] = {1,  4,  5,  6,  7,  8,  10, 11, 15, 16, 21,  22,  23, 24,
                       25, 26, 27, 28, 31, 51, 52, 53, 54, 56, 101, 102, 103};
  auto check = [&](int type) {
    SCOPED_TRACE(type);
    draw::Drawing d;
    draw::RecordingCanvas c(d);
    DrawStockSection(c, s, type, true);
    EXPECT_EQ(TextFaults(d), "");
  };
  for (int type : types) check(type);
  // The alternatives: the rectangle on its side, the wider flange on top, the other kind of HSQ.
  s.project.rhsTurned = 1 - s.project.rhsTurned;
  check(7);
  s.project.p22.istb1 = s.project.p22.istb2 + 100;
  check(22);
  s.project.hsqKind = 1 - s.project.hsqKind;
  check(24);
  // The load levels of the lateral torsional buckling dialog, icons of 28 pixels: "Za" of the
  // fourth stays inside.
  for (int level = 1; level <= 4; ++level) {
    draw::Drawing d;
    draw::RecordingCanvas c(d);
    DrawLoadLevelPicture(c, level, false);
    EXPECT_EQ(TextFaults(d, 28), "") << "level " << level;
  }
}

// Which corners of its bounding box a drawn outline fills: lower left, lower right, upper left,
// upper right, probed a twentieth in from each corner.
std::string FilledCorners(const std::vector<draw::Point>& outline) {
  double x0 = outline[0].x, x1 = x0, y0 = outline[0].y, y1 = y0;
  for (const draw::Point& p : outline) {
    x0 = std::min(x0, p.x), x1 = std::max(x1, p.x), y0 = std::min(y0, p.y), y1 = std::max(y1, p.y);
  }
  draw::Drawing one;
  draw::RecordingCanvas(one).Polygon(outline, {}, draw::kBlack);
  const double dx = (x1 - x0) / 20, dy = (y1 - y0) / 20;
  std::string corners;
  for (const draw::Point p : {draw::Point{x0 + dx, y0 + dy}, draw::Point{x1 - dx, y0 + dy},
                              draw::Point{x0 + dx, y1 - dy}, draw::Point{x1 - dx, y1 - dy}}) {
    corners +=
        test::SteelCentroid(one, p.x - dx / 4, p.y - dy / 4, p.x + dx / 4, p.y + dy / 4, 3) ? '#' : '.';
  }
  return corners;
}

TEST(SectionFiguresToScale, AnAngleIsTheLOfItsStockPicture) {
  for (const char* menu : {"mnup10", "mnup11"}) {
    SCOPED_TRACE(menu);
    State s = test::StartedState();
    const draw::Drawing& d = ToScale(s, menu);
    const auto outline = test::Commands(d, DrawCommand::Kind::Polygon);
    ASSERT_FALSE(outline.empty());
    // The heel at the lower left: the foot reaches the lower right, the vertical leg the upper
    // left, and the upper right is empty.
    EXPECT_EQ(FilledCorners(outline[0].points), "###.");
    // The same corners as the stock pictures of the dialog and of the main form.
    for (bool letters : {true, false}) {
      draw::Drawing stock;
      draw::RecordingCanvas c(stock);
      DrawStockSection(c, s, s.project.ProfileType, letters);
      EXPECT_EQ(FilledCorners(test::Commands(stock, DrawCommand::Kind::Polygon)[0].points), "###.");
    }
    // The y axis ez above the foot, the z axis eyc right of the back of the vertical leg.
    const Axes axes = AxesOf(d);
    EXPECT_NEAR(axes.y, s.section.ez, 1e-3);
    EXPECT_NEAR(axes.z, s.section.eyc, 1e-3);
    // With the legs in +y/-z and -y/+z of the centroid the product of inertia is negative, so the
    // major axis u rises to the right and the minor v to the left.
    for (const DrawCommand& t : test::Commands(d, DrawCommand::Kind::Text)) {
      if (t.text == "u") {
        EXPECT_TRUE(t.points[0].x > axes.z && t.points[0].y > axes.y);
      }
      if (t.text == "v") {
        EXPECT_TRUE(t.points[0].x < axes.z && t.points[0].y > axes.y);
      }
    }
    EXPECT_TRUE(test::HasText(d, "u"));
    EXPECT_TRUE(test::HasText(d, "v"));
  }
}

TEST(SectionFiguresToScale, TheSingleSymmetricIHasItsYAxisEzbAboveTheLowerEdge) {
  // Flanges 300 x 20 and 200 x 20, web 560 x 12, h = 600. Areas and their centres from the lower
  // edge: 300 x 20 = 6000 at 590, 560 x 12 = 6720 at 300, 200 x 20 = 4000 at 10; A = 16720.
  // Wider flange on top: sum A z = 6000 x 590 + 6720 x 300 + 4000 x 10 = 5 596 000, ezb =
  // 5 596 000 / 16720 = 334.69. Wider flange below: 4000 x 590 + 2 016 000 + 6000 x 10 =
  // 4 436 000, ezb = 265.31. The axis moves towards the larger flange.
  struct Case {
    float top, bottom;
    double ezb;
  };
  for (const Case k : {Case{300, 200, 5596000.0 / 16720}, Case{200, 300, 4436000.0 / 16720}}) {
    SCOPED_TRACE(k.top);
    State s = test::StartedState();
    s.project.figureNotToScale = 0;
    Fire(s, "mnup22");
    s.project.p22 = {600, k.top, k.bottom, 12, 20, 20};
    Recalculate(s);
    ASSERT_NEAR(s.section.ez, k.ezb, 0.01);
    const draw::Drawing& d = s.view.pictures["p22.pic1"];
    double lower = 1e9;
    for (const DrawCommand& r : test::Commands(d, DrawCommand::Kind::Rectangle))
      lower = std::min({lower, r.points[0].y, r.points[1].y});
    EXPECT_NEAR(AxesOf(d).y - lower, k.ezb, 0.01);
    EXPECT_EQ(TextFaults(d), "");  // the narrow flange's letter stays clear of "Z"
  }
}

}  // namespace
}  // namespace vn
