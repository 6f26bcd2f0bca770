// The look of the program's windows: the style, the font and the frames with their caption on the
// border line, so that the main form keeps its size of 1024 by 741 at 96 pixels per inch.
#pragma once

class QApplication;
class QWidget;

namespace vn::forms {

void ApplyLook(QApplication& app);

// Makes every frame of `dialog` at least as wide as its caption, which the look sets in from the
// border, so that no caption is cut off by the frame's right edge.
void KeepCaptionsWhole(QWidget* dialog);

}  // namespace vn::forms
