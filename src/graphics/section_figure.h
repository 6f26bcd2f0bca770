// The section figures: the stock picture of each family with its dimension letters ("Figure not to
// scale"), and the drawing to scale from the outline that the property routine left in Section
// ("Figure to scale"). DrawSectionFigure (core/pipeline.h) records the figure into
// view.pictures["<dialog>.pic1"] of the family's dialog.
#pragma once

#include <string>

#include "graphics/canvas.h"

namespace vn {

struct State;

// The picture of the family's dialog, "p01.pic1" for HEA; empty for a type with no dialog.
std::string SectionFigureBox(int profileType);

// The stock picture of a family on a scale of 0..100 both ways. `letters`: with the axes and the
// dimension letters (the dialog's figure); without, the small picture of the main form. The
// alternatives a family has (a turned hollow section, the wider flange of a single symmetric I,
// the weld of a box, the kind of HSQ, the sub-family of the British I) are read from the record.
void DrawStockSection(draw::Canvas& c, const State& s, int profileType, bool letters);

// The section to scale: the larger of FigWidth and FigHeight fills the box less a margin of 0.1 of
// it on every side; the axes through the centroid with "Y" and "Z".
void DrawSectionToScale(draw::Canvas& c, const State& s);

}  // namespace vn
