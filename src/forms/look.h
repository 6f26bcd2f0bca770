// The look of the program's windows: the style, the font and the frames with their caption on the
// border line, so that the main form keeps its size of 1024 by 741 at 96 pixels per inch.
#pragma once

class QApplication;

namespace vn::forms {

void ApplyLook(QApplication& app);

}  // namespace vn::forms
