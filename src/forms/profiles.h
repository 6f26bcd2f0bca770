// The entries of the Profiles menu: control, family and dialog, in the menu's order; the captions
// are in the core's table of captions.
#pragma once

#include <string>

#include <QString>

#include "core/captions.h"

namespace vn::forms {

struct ProfileEntry {
  const char* menu;      // control of the menu entry
  int type;              // ProfileType of the family
  const char* dialog;    // the family's dialog
  bool separatorBefore;  // a separator stands before the entry
};

inline constexpr ProfileEntry kProfiles[] = {
    {"mnup01", 1, "p01", false},
    {"mnup02", 2, "p02", false},
    {"mnup03", 3, "p03", false},
    {"mnup04", 4, "p04", false},
    {"mnup15", 15, "p15", false},
    {"mnup05", 5, "p05", false},
    {"mnup16", 16, "p16", false},
    {"mnup06", 6, "p06", false},
    {"mnup07", 7, "p07", false},
    {"mnup08", 8, "p08", false},
    {"mnup09", 9, "p09", false},
    {"mnup10", 10, "p10", false},
    {"mnup11", 11, "p11", false},
    // the welded group
    {"mnup21", 21, "p21", true},
    {"mnup22", 22, "p22", false},
    {"mnu26", 26, "p26", false},
    {"mnup23", 23, "p23", false},
    {"mnup27", 27, "p27", false},
    {"mnup24", 24, "p24", false},
    {"mnup25", 25, "p25", false},
    // the plate group
    {"mnuplateTg", 56, "p56", true},
    {"mnuplateLr", 52, "p52", false},
    {"mnuplateLweld", 53, "p53", false},
    {"mnuplateBf", 54, "p54", false},
    {"mnuplateFb", 51, "p51", false},
    // the other group
    {"mnup31", 31, "p31", true},
    {"mnup28", 28, "p28", false},
    {"mnup41", 41, "p41", false},
    // the British group, under its label
    {"mnuu", 101, "p101", true},
    {"mnuj", 102, "p102", false},
    {"mnuc", 103, "p103", false},
};

// The label that heads the British entries; its text is in the core's table of captions.
inline constexpr const char* kBritishLabelControl = "mnup100";

// The picture button of the main form that opens the family's dialog: "p04i", and "Command2" for
// the plate with a bulb flat.
inline std::string ButtonOf(const ProfileEntry& e) {
  return e.type == 54 ? std::string("Command2") : std::string(e.dialog) + "i";
}

// The caption of the family's menu entry as a title: "Tube", "Box".
inline QString ProfileTitle(const ProfileEntry& e) {
  return QString::fromStdString(vn::ShownText(vn::CaptionOf("", e.menu).caption)).trimmed();
}

// The entry of a dialog ("p04"), or nullptr.
inline const ProfileEntry* ProfileOfDialog(const std::string& dialog) {
  for (const ProfileEntry& e : kProfiles)
    if (dialog == e.dialog) return &e;
  return nullptr;
}

}  // namespace vn::forms
