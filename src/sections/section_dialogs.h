// The section dialogs of every family: one protocol driven by a table of family data.
//   menu entry / picture button: ProfileType and profileName, then the dialog opens (Load, Activate)
//   Load: the list of the family's table, the short name
//   Activate: the figure's caption, ProfileType, Recalculate, ShowSectionValues, the figure
//   cbo: the family's selected row = the list index, Recalculate, ShowSectionValues
//   prof1..prof3 (p101, p103): the sub-family and its list
//   pic1: figure to scale or not; Command1: close
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "sections/catalogue.h"

namespace vn {

struct State;
class ControlTable;

struct SectionDialogInfo {
  int type;            // ProfileType
  const char* form;    // "p01"
  const char* menu;    // "mnup01"
  const char* button;  // "p01i", the picture button of the main form
  const char* name;    // profileName the family sets; nullptr leaves it unchanged
};

// The dialog of a family, or nullptr.
const SectionDialogInfo* SectionDialogOfType(int type);
const SectionDialogInfo* SectionDialogOfForm(std::string_view form);

// A control of a dialog is reached only with the dialog open and in front: opens it (Load,
// Activate) or brings it to the front (Activate) when another family is shown.
void EnsureSectionDialogActive(State& s, std::string_view form);

// An option or check box of a section dialog ("p23.oweld1"): the dialog in front, the value set by
// `set`, then Recalculate and ShowSectionValues.
void AddSectionDialogOption(ControlTable& t, const char* form, const std::string& control,
                            std::function<void(State&)> set);

// The values of the option groups of a dialog: view.value["p23.oweld"] is the value of the option
// that is set ("p23.oweld0" has the value 0, "p23.oweld1" the value 1).
void ShowDialogOptions(State& s, std::string_view form);

// The typed dimension fields of a dialog in the order of the table ("isth", "istb1" ...); empty
// for a catalogue dialog.
std::vector<std::string> DimensionFieldNames(std::string_view form);

// The typed dimensions of a dimension dialog written into its fields ("##0", "##0.0").
void ShowDimensionFields(State& s, std::string_view form);

// Fills the dialog's list with the rows of the family's table and selects the family's row.
void FillSectionList(State& s, const SectionDialogInfo& d);

// Caption of the figure box: "Figure not to scale" or "Figure to scale".
std::string FigureCaption(const State& s);

void RegisterSectionControls(ControlTable& t);

}  // namespace vn
