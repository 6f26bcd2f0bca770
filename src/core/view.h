// What the forms show that the pipeline and the events decide: captions, texts of fields and labels,
// list items, visibility. Keyed by control name ("il", "setup.ie", "Loading.iq(1)"), so that a form
// only copies them into its widgets. The forms hold no engineering state of their own.
#pragma once

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "graphics/canvas.h"

namespace vn {

// One line of the summary of controls. A control line has its formula with the numbers at the
// left, the ratio in the colour of its index (2 green, 4 red), then the limit in black; a title
// is bold and underlined and may be followed on the same line by a note in plain type.
struct SummaryLine {
  std::string left;    // title, "Governing Loadcase:", or Formula + Numbers
  std::string note;    // plain text after the left text on the same line (the load case, " At: x= ...")
  std::string ratio;   // the IR as "0.00"; empty on a title
  int colour = 0;      // colour index of the ratio: 2 green, 4 red, 0 none
  std::string limit;   // " < 1.0 (0.50L; Ch 6.2.5)"
  bool title = false;  // bold and underlined
};

struct View {
  std::string caption;   // caption of the main form
  std::string txtError;  // caption of the error label
  bool txtErrorVisible = false;
  std::string lastMessage;  // warning text of the last event, if any
  std::string runMessage;   // a box that a stage of the recalculation showed during the event

  std::map<std::string, std::string> text;                // field and label texts
  std::map<std::string, int> value;                       // list index, check box 0/1, option set
  std::map<std::string, bool> visible;                    // shown or hidden
  std::map<std::string, bool> enabled;                    // enabled or disabled
  std::map<std::string, std::vector<std::string>> items;  // items of lists
  std::vector<std::string> openDialogs;                   // dialogs shown, by name
  // The pictures the stages drew, keyed by picture name ("PicMy", "pic11", "p01.pic1"): a run that
  // fails leaves the pictures it had not reached as they were.
  std::map<std::string, draw::Drawing> pictures;

  // Section dialog: the dimension and property blocks as label, value text, unit, and the text
  // shown when the mouse rests on the label, if any.
  struct Line {
    std::string label, value, unit;
    std::string tip;
  };
  std::vector<Line> sectionValues;

  // Summary of controls: the governing load case and the section, buckling and deflection
  // blocks, one entry a printed line. Rebuilt by every run that reaches the summary.
  std::vector<SummaryLine> summary;
  // The verdict of the run in one line above the summary: OK or NOT OK, the governing ratio, its
  // block, formula and clause ("OK: governing IR = 0.17 <= 1.0, buckling control:
  // IR = NEd/Nb,z,Rd+kzy*My,Ed/(xLT*My,Rd) (Ch 6.3.3)"); colour 2 green or 4 red. Empty when the
  // summary has no control line, and after a run that failed.
  std::string verdict;
  int verdictColour = 0;

  // More Results: the grid of 55 rows by 4 cells (Parameter, Value, unit, Reference), row 0 the
  // header, empty strings for empty cells; the rows in detailGridBold are group heads, shown bold.
  // Filled when the dialog gets the focus, read cell by cell by the export.
  std::vector<std::array<std::string, 4>> detailGrid;
  std::set<int> detailGridBold;
};

// Whether a dialog is shown: the one list of open dialogs decides, for every front end.
inline bool DialogOpen(const View& v, std::string_view form) {
  return std::find(v.openDialogs.begin(), v.openDialogs.end(), form) != v.openDialogs.end();
}

}  // namespace vn
