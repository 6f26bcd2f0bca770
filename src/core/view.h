// What the forms show that the pipeline and the events decide: captions, texts of fields and labels,
// list items, visibility. Keyed by control name ("il", "setup.ie", "Loading.iq(1)"), so that a form
// only copies them into its widgets. The forms hold no engineering state of their own.
#pragma once

#include <algorithm>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "graphics/canvas.h"

namespace vn {

struct View {
  std::string caption;           // caption of the main form
  std::string txtError;          // caption of the error label
  bool txtErrorVisible = false;
  std::string lastMessage;       // warning text of the last event, if any

  std::map<std::string, std::string> text;                // field and label texts
  std::map<std::string, int> value;                       // list index, check box 0/1, option set
  std::map<std::string, bool> visible;                    // shown or hidden
  std::map<std::string, bool> enabled;                    // enabled or disabled
  std::map<std::string, std::vector<std::string>> items;  // items of lists
  std::vector<std::string> openDialogs;                   // dialogs shown, by name
  // The pictures the stages drew, keyed by picture name ("PicMy", "pic11", "p01.pic1"): a run that
  // fails leaves the pictures it had not reached as they were.
  std::map<std::string, draw::Drawing> pictures;

  // Section dialog: the dimension and property blocks as label, value text, unit.
  struct Line {
    std::string label, value, unit;
  };
  std::vector<Line> sectionValues;
};

// Whether a dialog is shown: the one list of open dialogs decides, for every front end.
inline bool DialogOpen(const View& v, std::string_view form) {
  return std::find(v.openDialogs.begin(), v.openDialogs.end(), form) != v.openDialogs.end();
}

}  // namespace vn
