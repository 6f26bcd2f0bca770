// The caption of every control as its form shows it, in one table that the Qt forms build their
// labels from and the command line lists (varnelt-cli --controls).
#pragma once

#include <string>
#include <string_view>

namespace vn {

struct State;

// Texts keep the accelerator marks of the menus and buttons ("&Setup"; "&&" is a plain "&"):
// ShownText gives them as a person reads them.
struct ControlCaption {
  std::string caption;  // the text on a button, option or check box, the label in front of a field
                        // or list or the head of its column; "" where the form shows no text of its own
  std::string frame;    // the caption of the frame it stands in, of a menu entry its menu; "" none
  std::string row;      // the label of its row where it stands in a table ("ULS", "CP")
  std::string tip;      // the tool tip; the only text of a button that shows a picture
};

// The caption of the control `name` (no slot) of `form` ("" the main form, "setup", "p04" ...).
// With a state, a column head that follows the state ("x/L" or "x(m)") is the one on show.
ControlCaption CaptionOf(std::string_view form, std::string_view name, const State* s = nullptr);

// A caption without its accelerator marks: "Save &As" -> "Save As", "lamdaLT0 && beta" -> "lamdaLT0 & beta".
std::string ShownText(std::string_view caption);

// The head of a column of positions along the member: "x/L" relative, "x(m)" in metres.
const char* PositionHeading(bool relative);

}  // namespace vn
