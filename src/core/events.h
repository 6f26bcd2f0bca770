// One table of controls: every input of every form is an entry, fired by its name.
//   Fire(s, "il", "6,0")          a numeric field left with the text typed
//   Fire(s, "cbutt2")             a button, option or menu entry
//   Fire(s, "Loading.iq(2)", "5") a control of a dialog, slot 2 of a control array
// The forms, the command line and the tests all go through here.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/types.h"

namespace vn {

struct State;

struct EventResult {
  bool known = true;          // false: no control of that name
  bool refused = false;       // a warning box was shown (message below)
  std::string message;        // text of the warning box, empty if none
  std::string focus;          // control that gets the focus afterwards ("" = unchanged)
  std::string text;           // the field's text after the event (reformatted value)
  bool recalculated = false;  // Recalculate ran at least once
  std::string question;       // a question the front end asks; the answer comes back as the text
  bool exit = false;          // the program ends at once
  std::string fileError;      // a failed file action: "cannot write 'PATH': REASON", else empty
};

using ControlHandler = std::function<EventResult(State& s, int index, std::string_view text)>;

// What a control is on its form.
enum class ControlKind { Field, Text, List, Option, CheckBox, Button, Menu, Event };

struct ControlEntry {
  std::string form;                     // "" the main form, else the dialog: "Loading", "setup", "p04" ...
  std::string name;                     // "il", "iq", "cbutt2"
  int firstIndex = -1, lastIndex = -1;  // a control array takes indices firstIndex..lastIndex
  ControlHandler run;
  ControlKind kind = ControlKind::Button;  // from the name where the registration does not say
  std::string format;                      // a numeric field's display format
  std::string limit;                       // a numeric field's warning text, the limit itself
  std::string limits;                      // the range the field tests, as a person reads it
  // A list's entries as its form fills them, worked out from the state alone, so that an entry can
  // be chosen by its text before the dialog has been opened; nullptr where the list has no fill
  // of its own (a section dialog's catalogue list is filled by FillSectionList).
  std::function<std::vector<std::string>(const State&)> entries;
};

// The kind a control's name gives it: i... a field, cbo... a list, ch_... a check box, mnu... a
// menu entry, the options by their prefixes; Activate and Unload are form events.
ControlKind KindOfName(std::string_view name);
const char* KindText(ControlKind k);  // "field", "text", "list", "option", "check box", "button" ...
// The unit of a numeric field as the form writes it beside the field ("m", "kN/m", "mm4"), empty
// for a factor. `loads` gives the units that depend on the state (a point load or a moment, x
// relative or in metres).
std::string UnitOfField(const State& s, const ControlEntry& e, int index);

// A list choice by the text of an entry: the index of the entry whose text is `text` (or, failing
// that, the one entry equal to it when case and blanks are ignored: "IPE 360" is "IPE360"). A list
// filled only when its dialog opens is filled first. -1 when no entry or more than one matches;
// `entries` then holds the list's entries.
int ChoiceByText(State& s, const ControlEntry& e, std::string_view text, std::vector<std::string>* entries);
// The entries of a list as its form shows them (filling a section dialog's list if need be).
std::vector<std::string> ListEntries(State& s, const ControlEntry& e);

struct NumericField;

class ControlTable {
 public:
  void Add(ControlEntry e);
  // Finds a control by "name", "name(i)", "form.name" or "form.name(i)". A bare name that several
  // forms share means the main form's.
  const ControlEntry* Find(std::string_view control, int* index) const;
  std::vector<std::string> Names() const;
  const std::vector<ControlEntry>& Entries() const { return entries_; }
  // Gives a field registered with a handler of its own the kind, format, message and limits of `f`.
  void SetField(std::string_view form, std::string_view name, const NumericField& f);
  // Gives the list `form.name` its entries (see ControlEntry::entries).
  void SetEntries(std::string_view form, std::string_view name,
                  std::function<std::vector<std::string>(const State&)> entries);

 private:
  std::vector<ControlEntry> entries_;
};

// The table with the controls of every form, built once.
const ControlTable& Controls();

// Fires one event. An unknown control gives known = false and changes nothing.
EventResult Fire(State& s, std::string_view control, std::string_view text = {});

// ---- The protocol of a numeric field, shared by every form ----

struct NumericField {
  const char* format = "#0.00";
  bool integer = false;  // an Integer field: rounds halves to even, overflow is silent
  std::function<void(State&, double)> store;
  std::function<double(const State&)> value;
  std::function<bool(const State&, double)> valid;   // nullptr: no range test
  std::string message;                               // warning text when not valid
  std::string enter;                                 // control the Enter key moves to
  std::function<void(State&)> after;                 // what runs after a valid value
  bool mismatchMessage = true;                       // false: a mismatch shows nothing
  std::function<std::string(const State&)> enterFn;  // the Enter target where it depends on the state
  // The range `valid` tests, bounds taken, as a person reads it ("0.5 to 1.5", "at least 0.05"):
  // what --controls lists. It may be wider than the message says (beta passes up to 1).
  std::string limits;
};

// The parse step of every numeric field: the typed text as a Single. A text that is no number in
// the decimal-comma locale refuses with "Input string mismatch " and keeps the focus on `self`;
// a value beyond the range of a Single ends the event silently. Both give false with `r` filled.
bool ParseFieldText(State& s, const std::string& self, std::string_view text, Single* value, EventResult* r);

// Parse, store before the test, reformat, test, then recalculate or refuse with the message.
EventResult RunNumericField(State& s, const std::string& self, const NumericField& f, std::string_view text);

// Registration of the controls of each form; each subsystem adds its own.
void RegisterMainFormControls(ControlTable& t);

inline constexpr const char* kMismatchText = "Input string mismatch ";

}  // namespace vn

namespace vn {

// Adds a numeric field with the protocol above; `form` is "" for the main form.
void AddNumericField(ControlTable& t, const std::string& form, const std::string& name, NumericField f);
// Adds a button, option, check box, list or menu entry.
void AddControl(ControlTable& t, const std::string& form, const std::string& name, ControlHandler run,
                int firstIndex = -1, int lastIndex = -1);

}  // namespace vn

namespace vn {

// The index chosen in a list or the state of a check box (1 or 0), as the event's text gives it.
// A text that is no whole number gives -1.
int ChoiceIndex(std::string_view text);

// Main form handlers that other paths run too (RefreshMainForm sets the controls and their events
// fire; the end forces mode sets the support).
void OnSupportButton(State& s, int type);
void OnLtbCheck(State& s, bool checked);
EventResult OnModalCheck(State& s, bool checked);

}  // namespace vn
