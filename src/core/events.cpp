#include "core/events.h"

#include <cctype>
#include <charconv>
#include <initializer_list>
#include <map>

#include "core/control_registry.h"
#include "core/format.h"
#include "core/recalculate.h"
#include "core/state.h"
#include "design/design_basis.h"

namespace vn {

void ControlTable::Add(ControlEntry e) { entries_.push_back(std::move(e)); }

const ControlEntry* ControlTable::Find(std::string_view control, int* index) const {
  std::string_view form, name = control;
  if (auto dot = control.find('.'); dot != std::string_view::npos) {
    form = control.substr(0, dot);
    name = control.substr(dot + 1);
  }
  int idx = -1;
  if (auto open = name.find('('); open != std::string_view::npos) {
    if (name.back() != ')') return nullptr;
    std::string_view digits = name.substr(open + 1, name.size() - open - 2);
    auto [ptr, ec] = std::from_chars(digits.data(), digits.data() + digits.size(), idx);
    if (ec != std::errc() || ptr != digits.data() + digits.size()) return nullptr;
    name = name.substr(0, open);
  }
  const ControlEntry* found = nullptr;
  int matches = 0;
  for (const ControlEntry& e : entries_) {
    if (e.name != name) continue;
    if (!form.empty() && e.form != form) continue;
    if (form.empty() && e.form.empty()) {  // the main form's wins a shared bare name
      found = &e;
      matches = 1;
      break;
    }
    if (!found) found = &e;
    ++matches;
  }
  if (!found) return nullptr;
  if (form.empty() && matches > 1 && !found->form.empty()) return nullptr;  // ambiguous
  if (found->firstIndex >= 0) {
    if (idx < found->firstIndex || idx > found->lastIndex) return nullptr;
  } else if (idx != -1) {
    return nullptr;
  }
  if (index) *index = idx;
  return found;
}

std::vector<std::string> ControlTable::Names() const {
  std::vector<std::string> names;
  for (const ControlEntry& e : entries_) {
    std::string n = e.form.empty() ? e.name : e.form + "." + e.name;
    if (e.firstIndex >= 0) n += "(" + std::to_string(e.firstIndex) + ".." + std::to_string(e.lastIndex) + ")";
    names.push_back(n);
  }
  return names;
}

const ControlTable& Controls() {
  static const ControlTable table = [] {
    ControlTable t;
    RegisterAllControls(t);
    return t;
  }();
  return table;
}

namespace {

// Frames whose controls are hidden with them.
struct FrameOf {
  const char* frame;
  std::initializer_list<const char*> controls;
};
const FrameOf kFrames[] = {
    {"setup.frULS",
     {"setup.iLfULS_G", "setup.iLfULS_Q1", "setup.iLfULS_Q2", "setup.iLfSLS_G", "setup.iLfSLS_Q1",
      "setup.iLfSLS_Q2"}},
    {"setup.frPsi", {"setup.Cbo_Q1_Psi1", "setup.Cbo_Q2_Psi2"}},
    {"Loading.frPsi", {"Loading.Cbo_Q1_Psi1", "Loading.Cbo_Q2_Psi2"}},
    {"frLc", {"CboLoadComb"}},
};

bool Shown(const std::map<std::string, bool>& flags, const std::string& key) {
  auto it = flags.find(key);
  return it == flags.end() || it->second;
}

// Why a control that the person can't reach on the form takes no event: it is disabled or hidden
// (itself or its frame). A disabled field must not change a result behind the person's back.
std::string Unavailable(const State& s, const ControlEntry& e, int index) {
  std::string key = e.form.empty() ? e.name : e.form + "." + e.name;
  if (index >= 0) key += "(" + std::to_string(index) + ")";
  if (!Shown(s.view.enabled, key)) return key + " is disabled";
  if (!Shown(s.view.visible, key)) return key + " is hidden";
  for (const FrameOf& f : kFrames)
    for (const char* c : f.controls)
      if (key == c && !Shown(s.view.visible, f.frame)) return key + " is hidden (frame " + f.frame + ")";
  return {};
}

}  // namespace

EventResult Fire(State& s, std::string_view control, std::string_view text) {
  int index = -1;
  const ControlEntry* e = Controls().Find(control, &index);
  if (!e) {
    EventResult r;
    r.known = false;
    r.refused = true;
    r.message = "Unknown control: " + std::string(control);
    return r;
  }
  // Events that a handler fires itself (a list set in code) are not the person's input.
  if (s.fireDepth == 0) {
    ShowSetupAvailability(s);
    if (std::string why = Unavailable(s, *e, index); !why.empty()) {
      EventResult r;
      r.refused = true;
      r.message = why;
      s.view.lastMessage = r.message;
      return r;
    }
  }
  int before = s.recalcCount;
  s.view.runMessage.clear();
  EventResult r;
  ++s.fireDepth;
  try {
    r = e->run(s, index, text);
  } catch (const std::exception&) {
    // A numeric fault in a handler outside the recalculation ends the handler at that step; the
    // user sees the one calculation message rather than losing the program.
    s.view.txtError = kCalcErrorText;
    s.view.txtErrorVisible = true;
  }
  --s.fireDepth;
  if (s.fireDepth == 0) ShowSetupAvailability(s);
  r.recalculated = s.recalcCount != before;
  // A box of the run itself (an HSQ's overloaded flange) when the event has none of its own.
  if (r.message.empty()) r.message = s.view.runMessage;
  s.view.lastMessage = r.message;
  return r;
}

bool ParseFieldText(State& s, const std::string& self, std::string_view text, Single* value, EventResult* r) {
  bool mismatch = false, overflow = false;
  *value = ParseNumber(text, s.decimalComma, &mismatch, &overflow);
  if (!mismatch && !overflow) return true;
  r->text = std::string(text);
  if (mismatch) {
    // Run-time error 13: the record keeps its old value and the focus returns.
    r->refused = true;
    r->message = kMismatchText;
    r->focus = self;
    s.view.text[self] = r->text;
  }
  // Any other run-time error shows nothing: the field is left, the record keeps its value.
  return false;
}

EventResult RunNumericField(State& s, const std::string& self, const NumericField& f, std::string_view text) {
  EventResult r;
  Single v = 0;
  if (!ParseFieldText(s, self, text, &v, &r)) {
    if (!f.mismatchMessage) {
      r.refused = false;
      r.message.clear();
      r.focus.clear();
    }
    return r;
  }
  double stored = v;
  if (f.integer) {
    bool intOverflow = false;
    Integer i = RoundToInteger(v, &intOverflow);
    if (intOverflow) {
      // Any other run-time error shows nothing: the field is left, the record keeps its value.
      r.text = std::string(text);
      return r;
    }
    stored = i;
  }
  // Stored before the test: a refused value stays in the record until it is corrected.
  f.store(s, stored);
  r.text = FormatNumber(f.value(s), f.format, s.decimalComma);
  if (f.valid && !f.valid(s, f.value(s))) {
    r.refused = true;
    r.message = f.message;
    r.focus = self;
    return r;
  }
  r.focus = f.enterFn ? f.enterFn(s) : f.enter;
  const double taken = f.value(s);
  if (f.after)
    f.after(s);
  else
    Recalculate(s);
  // The field shows the value in use: a run that replaced it (the strength of a catalogued grade
  // follows the section) must not leave the typed one on show.
  if (f.value(s) != taken) r.text = FormatNumber(f.value(s), f.format, s.decimalComma);
  return r;
}

}  // namespace vn

namespace vn {

void AddNumericField(ControlTable& t, const std::string& form, const std::string& name, NumericField f) {
  std::string self = form.empty() ? name : form + "." + name;
  t.Add({form, name, -1, -1, [self, f](State& s, int, std::string_view text) {
           EventResult r = RunNumericField(s, self, f, text);
           s.view.text[self] = r.text;
           return r;
         }});
}

void AddControl(ControlTable& t, const std::string& form, const std::string& name, ControlHandler run,
                int firstIndex, int lastIndex) {
  t.Add({form, name, firstIndex, lastIndex, std::move(run)});
}

}  // namespace vn

namespace vn {

int ChoiceIndex(std::string_view text) {
  while (!text.empty() && std::isspace(static_cast<unsigned char>(text.front()))) text.remove_prefix(1);
  while (!text.empty() && std::isspace(static_cast<unsigned char>(text.back()))) text.remove_suffix(1);
  int v = -1;
  auto [ptr, ec] = std::from_chars(text.data(), text.data() + text.size(), v);
  if (ec != std::errc() || ptr != text.data() + text.size()) return -1;
  return v;
}

}  // namespace vn
