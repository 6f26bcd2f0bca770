// The entries of the Profiles menu: control, caption, family and dialog, in the menu's order.
#pragma once

#include <string>

namespace vn::forms {

struct ProfileEntry {
  const char* menu;      // control of the menu entry
  const char* caption;   // caption with its accelerator
  int type;              // ProfileType of the family
  const char* dialog;    // the family's dialog
  bool separatorBefore;  // a separator stands before the entry
};

inline constexpr ProfileEntry kProfiles[] = {
    {"mnup01", "HEA", 1, "p01", false},
    {"mnup02", "HEB", 2, "p02", false},
    {"mnup03", "HEM", 3, "p03", false},
    {"mnup04", "IPE", 4, "p04", false},
    {"mnup15", "INP", 15, "p15", false},
    {"mnup05", "UPE", 5, "p05", false},
    {"mnup16", "UNP", 16, "p16", false},
    {"mnup06", "RHS - Square (Hotformed)", 6, "p06", false},
    {"mnup07", "RHS - Rect (Hotformed)", 7, "p07", false},
    {"mnup08", "CFRHS - Square (Coldformed)", 8, "p08", false},
    {"mnup09", "CFRHS - Rect (Coldformed)", 9, "p09", false},
    {"mnup10", "L-equal", 10, "p10", false},
    {"mnup11", "L-unequal", 11, "p11", false},
    // the welded group
    {"mnup21", "I - double symmetric", 21, "p21", true},
    {"mnup22", "I - single symmetric", 22, "p22", false},
    {"mnu26", "T", 26, "p26", false},
    {"mnup23", "Box ", 23, "p23", false},
    {"mnup27", "Box - Non symmetric flanges", 27, "p27", false},
    {"mnup24", "HSQ - Symmetric flange ", 24, "p24", false},
    {"mnup25", "HSQ - Non symmetric flange ", 25, "p25", false},
    // the plate group
    {"mnuplateTg", "Plate + T-girder", 56, "p56", true},
    {"mnuplateLr", "Plate + Lroll", 52, "p52", false},
    {"mnuplateLweld", "Plate +  L weld", 53, "p53", false},
    {"mnuplateBf", "Plate + Bf", 54, "p54", false},
    {"mnuplateFb", "Plates + Fb", 51, "p51", false},
    // the other group
    {"mnup31", "&Tube", 31, "p31", true},
    {"mnup28", "Flatbar", 28, "p28", false},
    {"mnup41", "&General Profile ", 41, "p41", false},
    // the British group, under its label
    {"mnuu", "U", 101, "p101", true},
    {"mnuj", "J", 102, "p102", false},
    {"mnuc", "C", 103, "p103", false},
};

// The label that heads the British entries.
inline constexpr const char* kBritishLabel = "British profiles";
inline constexpr const char* kBritishLabelControl = "mnup100";

// The picture button of the main form that opens the family's dialog: "p04i", and "Command2" for
// the plate with a bulb flat.
inline std::string ButtonOf(const ProfileEntry& e) {
  return e.type == 54 ? std::string("Command2") : std::string(e.dialog) + "i";
}

// The entry of a dialog ("p04"), or nullptr.
inline const ProfileEntry* ProfileOfDialog(const std::string& dialog) {
  for (const ProfileEntry& e : kProfiles)
    if (dialog == e.dialog) return &e;
  return nullptr;
}

}  // namespace vn::forms
