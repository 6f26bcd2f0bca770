// The load and result charts of the main form: PicLoadZ and PicMy for the Z direction, PicLoadY and
// PicMz for Y. All four draw on a scale of 0..100 both ways; the member runs from x = 16 to x = 86.
// DrawCharts (core/pipeline.h) records them into view.pictures and decides which are shown; the
// routines below draw one chart onto any surface, so that the report can use them too.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "graphics/canvas.h"

namespace vn {

struct State;

enum class ChartAxis { Z, Y };

// The member's ends on the charts' scale.
inline constexpr double kChartLeft = 16;
inline constexpr double kChartRight = 86;

// Beam mode: the loads acting in one direction, with the axial force.
void DrawLoadChart(draw::Canvas& c, const State& s, ChartAxis axis);
// Beam mode: moment, shear and deflection bands of one direction.
void DrawResultChart(draw::Canvas& c, const State& s, ChartAxis axis);
// End forces mode: the axial force (PicLoadZ).
void DrawEndForceLoadChart(draw::Canvas& c, const State& s);
// End forces mode: the moment and shear bands of one direction.
void DrawEndForceResultChart(draw::Canvas& c, const State& s, ChartAxis axis);

// Whether any load of the user lies in a direction (beam mode) or any end force (end forces mode).
bool LoadsInDirection(const State& s, ChartAxis axis);

// The tool tip of a result chart while the mouse is at x (chart units) over "PicMy" or "PicMz":
// the position and the forces at the nearest grid point. No value outside 16 <= x < 86 or for
// another picture: the tip stays as it was.
std::optional<std::string> ChartReadout(const State& s, std::string_view picture, double x);

}  // namespace vn
