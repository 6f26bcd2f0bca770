#include "core/events.h"

#include <cctype>
#include <charconv>
#include <initializer_list>
#include <map>
#include <optional>

#include "core/control_registry.h"
#include "core/format.h"
#include "core/recalculate.h"
#include "core/state.h"
#include "design/design_basis.h"
#include "sections/section_dialogs.h"

namespace vn {

void ControlTable::Add(ControlEntry e) {
  if (e.kind == ControlKind::Button) e.kind = KindOfName(e.name);
  entries_.push_back(std::move(e));
}

void ControlTable::SetEntries(std::string_view form, std::string_view name,
                              std::function<std::vector<std::string>(const State&)> entries) {
  for (ControlEntry& e : entries_)
    if (e.form == form && e.name == name) e.entries = entries;
}

void ControlTable::SetField(std::string_view form, std::string_view name, const NumericField& f) {
  for (ControlEntry& e : entries_) {
    if (e.form != form || e.name != name) continue;
    e.kind = ControlKind::Field;
    e.format = f.format;
    e.limit = f.valid ? f.message : std::string();
    e.limits = f.limits;
  }
}

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
  ControlEntry e{form, name, -1, -1, [self, f](State& s, int, std::string_view text) {
                   EventResult r = RunNumericField(s, self, f, text);
                   s.view.text[self] = r.text;
                   return r;
                 }};
  e.kind = ControlKind::Field;
  e.format = f.format;
  e.limit = f.valid ? f.message : std::string();
  e.limits = f.limits;
  t.Add(std::move(e));
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

namespace vn {

namespace {

bool StartsWith(std::string_view s, std::string_view prefix) { return s.substr(0, prefix.size()) == prefix; }
bool EndsWith(std::string_view s, std::string_view suffix) {
  return s.size() >= suffix.size() && s.substr(s.size() - suffix.size()) == suffix;
}

// Case and blanks ignored: "IPE 360" and "ipe360" are the entry "IPE360"; either decimal sign:
// "0.7" is the psi entry "0,7" under the decimal comma.
std::string Folded(std::string_view text) {
  std::string out;
  for (unsigned char ch : text)
    if (!std::isspace(ch)) out += ch == ',' ? '.' : static_cast<char>(std::tolower(ch));
  return out;
}

std::string_view Trimmed(std::string_view text) {
  while (!text.empty() && std::isspace(static_cast<unsigned char>(text.front()))) text.remove_prefix(1);
  while (!text.empty() && std::isspace(static_cast<unsigned char>(text.back()))) text.remove_suffix(1);
  return text;
}

}  // namespace

ControlKind KindOfName(std::string_view name) {
  if (name == "Activate" || name == "Unload") return ControlKind::Event;
  if (name == "iproj" || name == "iident" || name == "istname") return ControlKind::Text;
  if (StartsWith(name, "ch_")) return ControlKind::CheckBox;
  // The case, direction and P/M cells of the load rows are buttons that step through their values.
  if (EndsWith(name, "_gq") || EndsWith(name, "_yz") || EndsWith(name, "_pm")) return ControlKind::Button;
  if (name.size() > 1 && name[0] == 'i' && name != "items") return ControlKind::Field;
  if (StartsWith(name, "mnu")) return ControlKind::Menu;
  if (StartsWith(Folded(name), "cbo") && !StartsWith(name, "cbutt")) return ControlKind::List;
  if (StartsWith(name, "ch_") || StartsWith(name, "check") || StartsWith(name, "Check") ||
      name == "Cfactor" || name == "C1factor")
    return ControlKind::CheckBox;
  if (StartsWith(name, "cbutt") && name.size() == 6) return ControlKind::Option;  // the supports
  for (const char* option :
       {"rbtn",       "opt",        "Opt",         "prof",        "latbuckl",    "loadl",      "Curve",
        "bucklingy",  "bucklingz",  "oweld",       "cwebstiff",   "oendstiff",   "cp_",        "no_cp",
        "cpabsolute", "cprelative", "pmxrelative", "pmxabsolute", "qtxrelative", "qtxabsolute"})
    if (StartsWith(name, option)) return ControlKind::Option;
  return ControlKind::Button;
}

const char* KindText(ControlKind k) {
  switch (k) {
    case ControlKind::Field: return "field";
    case ControlKind::Text: return "text";
    case ControlKind::List: return "list";
    case ControlKind::Option: return "option";
    case ControlKind::CheckBox: return "check box";
    case ControlKind::Button: return "button";
    case ControlKind::Menu: return "menu";
    case ControlKind::Event: return "event";
  }
  return "button";
}

std::string UnitOfField(const State& s, const ControlEntry& e, int index) {
  if (e.kind != ControlKind::Field) return {};
  const std::string& n = e.name;
  const std::string& f = e.form;
  if (f.empty() && n == "il") return "m";
  if (n == "ifyk" || n == "ie") return "MPa";
  if (n == "ispring") return "%";
  if (f == "Loading") {
    if (n == "inn") return "kN";
    if (n == "iq" || n == "iqt1" || n == "iqt2") return "kN/m";
    if (n == "iqtx1" || n == "iqtx2") return s.loads.TrapezoidXRelative != 0 ? "x/L" : "m";
    if (n == "ipmx") return s.loads.PointLoadXRelative != 0 ? "x/L" : "m";
    if (n == "ipm") {
      if (index >= 1 && index <= 8) return s.loads.point[static_cast<size_t>(index)].Kind == 0 ? "kN" : "kNm";
      return "kN or kNm";
    }
  }
  if (f == "endforce") return n == "ine" || n[1] == 'v' ? "kN" : "kNm";
  if (f == "chpoints") return s.project.ChPointRelative != 0 ? "x/L" : "m";
  if (f == "endstiff" || n == "iza") return "mm";
  if (f == "p41") {
    if (StartsWith(n, "ista")) return "mm2";
    if (n == "istiw") return "mm6";
    if (StartsWith(n, "isti")) return "mm4";
    if (StartsWith(n, "istw")) return "mm3";
  }
  if (StartsWith(n, "ist")) return "mm";
  return {};
}

std::vector<std::string> ListEntries(State& s, const ControlEntry& e) {
  const std::string key = e.form.empty() ? e.name : e.form + "." + e.name;
  auto it = s.view.items.find(key);
  if ((it == s.view.items.end() || it->second.empty()) && e.name == "cbo") {
    // A section dialog fills its catalogue list when it opens.
    if (const SectionDialogInfo* d = SectionDialogOfForm(e.form)) {
      // Only the entries: the choice on show stays as it is.
      const auto shown = s.view.value.find(key);
      const std::optional<int> before =
          shown == s.view.value.end() ? std::nullopt : std::optional(shown->second);
      FillSectionList(s, *d);
      if (before)
        s.view.value[key] = *before;
      else
        s.view.value.erase(key);
    }
    it = s.view.items.find(key);
  }
  // A dialog not opened yet in this run has not filled its list: the entries it will show.
  if ((it == s.view.items.end() || it->second.empty()) && e.entries) return e.entries(s);
  return it == s.view.items.end() ? std::vector<std::string>() : it->second;
}

int ChoiceByText(State& s, const ControlEntry& e, std::string_view text, std::vector<std::string>* entries) {
  *entries = ListEntries(s, e);
  const std::string_view wanted = Trimmed(text);
  for (size_t i = 0; i < entries->size(); ++i)
    if ((*entries)[i] == wanted) return static_cast<int>(i);
  int found = -1;
  for (size_t i = 0; i < entries->size(); ++i) {
    if (Folded((*entries)[i]) != Folded(wanted)) continue;
    if (found >= 0) return -1;  // two entries differ only in case or blanks: the text names neither
    found = static_cast<int>(i);
  }
  return found;
}

}  // namespace vn
