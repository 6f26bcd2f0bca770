// The load and result charts: texts and formats of the labels, the scaling of the bands, which
// charts are shown, and the read-out under the mouse.
#include "graphics/charts.h"

#include <gtest/gtest.h>

#include "core/pipeline.h"
#include "core/recalculate.h"
#include "graphics/drawing_inspect.h"
#include "support/test_support.h"

namespace vn {
namespace {

using draw::DrawCommand;
using test::HasText;
using test::LinesIn;

// A simple beam of 5 m under 10 kN/m, by hand: M(x) = q x (L - x) / 2 with 31.25 kNm at midspan,
// V(x) = q (L/2 - x) from 25 to -25 kN, and a parabolic deflection of 12.5 mm at midspan.
State SimpleBeamResults() {
  State s = test::StartedState();
  s.project.L = 5;
  Analysis& a = s.analysis;
  for (int k = 0; k <= 50; ++k) {
    const double x = 5.0 * k / 50;
    a.MyGrid[k] = static_cast<Single>(10 * x * (5 - x) / 2);
    a.VzGrid[k] = static_cast<Single>(10 * (2.5 - x));
    a.dzGrid[k] = static_cast<Single>(12.5 * 4 * (x / 5) * (1 - x / 5));
  }
  a.MyMax = 31.25f;
  a.MyMaxPos = 0.5f;
  a.MyMin = 0;
  a.VzMax = 25;
  a.VzMaxPos = 0;
  a.VzMin = -25;
  a.VzMinPos = 1;
  a.dzMax = 12.5f;
  a.dzMin = 0;
  a.dzAbs = 12.5f;
  return s;
}

draw::Drawing Draw(const State& s, ChartAxis axis) {
  draw::Drawing d;
  draw::RecordingCanvas c(d);
  DrawResultChart(c, s, axis);
  return d;
}

TEST(ResultChart, LabelsCarryTheirTextsAndFormats) {
  const draw::Drawing d = Draw(SimpleBeamResults(), ChartAxis::Z);
  EXPECT_TRUE(HasText(d, "My/Vz/Deflection (kNm/kN/mm)"));
  EXPECT_TRUE(HasText(d, "M"));
  EXPECT_TRUE(HasText(d, "V"));
  EXPECT_TRUE(HasText(d, "31.3"));       // "#0.0" of 31.25, the half away from zero
  EXPECT_TRUE(HasText(d, "x=2.500 m"));  // the peak inside the member: 0.5 * 5 m
  EXPECT_TRUE(HasText(d, "25.0"));
  EXPECT_TRUE(HasText(d, "-25.0"));
  // 5 m * 1000 / 12.5 mm = 400.
  EXPECT_TRUE(HasText(d, "Deflection: 12.5 mm  = l/400"));
}

TEST(ResultChart, TheYChartHasItsOwnTitle) {
  const draw::Drawing d = Draw(SimpleBeamResults(), ChartAxis::Y);
  EXPECT_TRUE(HasText(d, "Mz/Vy/Deflection (kNm/kN/mm)"));
}

TEST(ResultChart, PositiveMomentsHangBelowTheBaseline) {
  const draw::Drawing d = Draw(SimpleBeamResults(), ChartAxis::Z);
  const auto blue = LinesIn(d, draw::kBlue);
  ASSERT_EQ(blue.size(), 50u);  // the grid points 0..49, each joined with the next
  // Grid point 25 lies at x = 16 + 70 * 25/50 = 51; the peak is 12 units under the baseline 25
  // (y grows downwards): -12 * M / Mabs = -12 is the height.
  EXPECT_DOUBLE_EQ(blue[25].points[0].x, 51);
  EXPECT_DOUBLE_EQ(blue[25].points[0].y, 37);
  EXPECT_DOUBLE_EQ(blue[0].points[0].y, 25);
}

TEST(ResultChart, AllZeroLiesFlatWithoutAFault) {
  State s = test::StartedState();
  s.analysis = Analysis{};
  draw::Drawing d;
  draw::RecordingCanvas c(d);
  ASSERT_NO_THROW(DrawResultChart(c, s, ChartAxis::Z));
  for (const DrawCommand& line : LinesIn(d, draw::kBlue)) {
    EXPECT_DOUBLE_EQ(line.points[0].y, 25);
    EXPECT_DOUBLE_EQ(line.points[1].y, 25);
  }
  EXPECT_TRUE(HasText(d, "Deflection: 0.0 mm"));
  EXPECT_TRUE(HasText(d, "0.0"));
}

TEST(LoadChart, SumsByCaseWithTheirCaseMarks) {
  State s = test::StartedState();
  Loads& l = s.loads;
  l = Loads{};
  l.axial[1] = {100, 0, True};  // G
  l.axial[2] = {20, 1, False};  // Q1
  l.uniform[1] = {10, 0, 1, True};
  l.uniform[2] = {4, 2, 1, False};
  l.uniform[3] = {7, 1, 0, False};  // in Y: not on the Z chart
  l.point[1] = {0, 15, 2.5f, 2, 1, False};
  l.trapezoid[1] = {2, 4, 1, 3, 0, 1, False};
  s.project.L = 5;
  draw::Drawing d;
  draw::RecordingCanvas c(d);
  DrawLoadChart(c, s, ChartAxis::Z);
  EXPECT_TRUE(HasText(d, "Lateral Load"));
  EXPECT_TRUE(HasText(d, "Axial Load: 100.0 (G)+20.0 (Q1)"));
  EXPECT_TRUE(HasText(d, "10.0 (G)+4.0 (Q2)"));
  EXPECT_TRUE(HasText(d, "15.0 (Q2)"));
  EXPECT_TRUE(HasText(d, "2.500"));  // the point load's position, "#0.000"
  EXPECT_TRUE(HasText(d, "2.0"));
  EXPECT_TRUE(HasText(d, "4.0 (G)"));
  EXPECT_TRUE(HasText(d, "1.000"));
  EXPECT_TRUE(HasText(d, "3.000"));
  EXPECT_FALSE(HasText(d, "7.0 (Q1)"));

  draw::Drawing y;
  draw::RecordingCanvas cy(y);
  DrawLoadChart(cy, s, ChartAxis::Y);
  EXPECT_TRUE(HasText(y, "7.0 (Q1)"));
}

TEST(Charts, LoadsOnlyInYHideTheZCharts) {
  State s = test::StartedState();
  s.loads.uniform[1].Dir = 0;  // the default 10 kN/m turned into Y
  Recalculate(s);
  ASSERT_FALSE(s.view.txtErrorVisible);
  EXPECT_FALSE(s.view.visible["PicLoadZ"]);
  EXPECT_FALSE(s.view.visible["PicMy"]);
  EXPECT_TRUE(s.view.visible["PicLoadY"]);
  EXPECT_TRUE(s.view.visible["PicMz"]);
  EXPECT_EQ(s.analysis.hasLoadY, True);
  EXPECT_EQ(s.analysis.hasLoadZ, False);
  EXPECT_TRUE(HasText(s.view.pictures["PicMz"], "Mz/Vy/Deflection (kNm/kN/mm)"));

  // The selfweight alone brings the Z charts back.
  s.project.SelfweightOn = 1;
  Recalculate(s);
  EXPECT_TRUE(s.view.visible["PicLoadZ"]);
  EXPECT_TRUE(s.view.visible["PicMy"]);
}

TEST(Charts, EndForcesShowTheAxialForceAndTheLoadedDirections) {
  State s = test::StartedState();
  s.project.AnalysisMode = 0;
  s.project.NEndForce = 100;
  s.project.My12 = {0, 0, 100};
  s.project.Vz12 = {0, 50, 50};
  s.project.Mz12 = {0, 0, 0};
  s.project.Vy12 = {0, 0, 0};
  Recalculate(s);
  ASSERT_FALSE(s.view.txtErrorVisible);
  EXPECT_TRUE(HasText(s.view.pictures["PicLoadZ"], " Axial force (kN) 100.0"));
  EXPECT_TRUE(s.view.visible["PicMy"]);
  EXPECT_FALSE(s.view.visible["PicMz"]);
  EXPECT_FALSE(s.view.visible["PicLoadY"]);
  const draw::Drawing& my = s.view.pictures["PicMy"];
  EXPECT_TRUE(HasText(my, "Bending moment (My, kNm)"));
  EXPECT_TRUE(HasText(my, "Shear (Vz, kN)"));
  EXPECT_TRUE(HasText(my, "100.0"));  // My2 at the far end
  EXPECT_TRUE(HasText(my, "50.0"));
}

TEST(ChartReadout, GivesThePositionAndTheForcesOfTheNearestGridPoint) {
  State s = SimpleBeamResults();
  s.analysis.MyGrid[0] = 1.25f;
  // x = 16 is the start: index 0, position 0; "0.0 kNm" of 1.25 is 1.3, and the shear carries kNm.
  EXPECT_EQ(ChartReadout(s, "PicMy", 16).value(), " x = 0.000 m  My = 1.3 kNm  Vz = 25.0 kNm ");
  // x = 51 is midspan: (51 - 16) / 70 * 5 m = 2.5 m, index 25, M = 31.25, V = 0.
  EXPECT_EQ(ChartReadout(s, "PicMy", 51).value(), " x = 2.500 m  My = 31.3 kNm  Vz = 0.0 kNm ");
}

TEST(ChartReadout, EndOfTheMemberGivesNoUpdate) {
  State s = SimpleBeamResults();
  EXPECT_FALSE(ChartReadout(s, "PicMy", 86).has_value());
  EXPECT_FALSE(ChartReadout(s, "PicMy", 15.9).has_value());
  EXPECT_FALSE(ChartReadout(s, "PicLoadZ", 50).has_value());
  // Index 50 only at the limit: 85.99 gives round(49.99) = 50, where V = -25.
  EXPECT_NE(ChartReadout(s, "PicMy", 85.99)->find("Vz = -25.0 kNm"), std::string::npos);
  // A half rounds to the even index: 16.7 gives 0.5, index 0; 18.1 gives 1.5, index 2.
  s.analysis.MyGrid[2] = 7;
  EXPECT_NE(ChartReadout(s, "PicMy", 16.7)->find("My = 0.0 kNm"), std::string::npos);
  EXPECT_NE(ChartReadout(s, "PicMy", 18.1)->find("My = 7.0 kNm"), std::string::npos);
}

TEST(ChartReadout, TheYChartNamesMzAndVy) {
  State s = SimpleBeamResults();
  s.analysis.MzGrid[0] = 2;
  s.analysis.VyGrid[0] = -3;
  EXPECT_EQ(ChartReadout(s, "PicMz", 16).value(), " x = 0.000 m  Mz = 2.0 kNm  Vy = -3.0 kNm ");
}

}  // namespace
}  // namespace vn
