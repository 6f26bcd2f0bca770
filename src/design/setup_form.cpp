// The Setup dialog: the code, the load combinations, the material and the other settings of the
// design basis. Every change goes into the record at once and recalculates; "Save as default"
// writes the setup file.
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <functional>
#include <limits>
#include <type_traits>

#include "core/control_registry.h"
#include "core/events.h"
#include "core/format.h"
#include "core/recalculate.h"
#include "core/state.h"
#include "design/design_basis.h"
#include "sections/dispatch.h"

namespace vn {

namespace {

const char* const kForm = "setup";

// The fields under "Parameters can only be changed when using EC3 - User defined".
const char* const kUserFields[] = {"setup.igammam0", "setup.igammam1",   "setup.ineta", "setup.ilamdaLT0",
                                   "setup.ibeta",    "setup.ilamdaLT0w", "setup.ibetaw"};

EventResult NoSuchItem(const char* list, std::string_view text) {
  EventResult r;
  r.refused = true;
  r.message = std::string("No such item of ") + list + ": " + std::string(text);
  return r;
}

// The last row the steel lists show: the rows read, at most the 31 of the table.
int LastGradeRow(const State& s) { return std::min<int>(s.steel.gradeLast, 30); }

std::vector<std::string> GradeNames(const State& s) {
  std::vector<std::string> names;
  for (int i = 0; i <= LastGradeRow(s); ++i) names.push_back(s.steel.rows[static_cast<size_t>(i)].name);
  return names;
}

std::vector<std::string> CodeNames() {
  std::vector<std::string> codes;
  for (int i = 0; i <= kCodeLast; ++i) codes.push_back(CodeDisplayName(i));
  return codes;
}

int ViewValue(const State& s, const std::string& key) {
  auto it = s.view.value.find(key);
  return it == s.view.value.end() ? -1 : it->second;
}

}  // namespace

void ShowSetupAvailability(State& s) {
  const Project& p = s.project;
  View& v = s.view;
  for (const char* field : kUserFields) v.enabled[field] = p.codeIndex == kCodeUserDefined;
  // A typed strength only on the user row (or without a grade table); every other row gives its own.
  const bool userRow = !(p.steelGrade < s.steel.gradeLast);
  v.enabled["ifyk"] = userRow;
  v.enabled["setup.ifyk"] = userRow;
  v.visible["setup.frULS"] = p.LoadCombMode == 4;
  v.visible["setup.frPsi"] = !(p.LoadCombMode == 4 || p.LoadCombMode == 5);
}

namespace {

void OnCodeChoice(State& s, int index) {
  Project& p = s.project;
  p.codeIndex = static_cast<Integer>(index);
  s.view.value["setup.Cbo1993"] = index;
  BuildCaption(s);
  for (const char* field : kUserFields) s.view.enabled[field] = index == kCodeUserDefined;
  SetCodeFactors(s, p.codeIndex);
  SetCombinationFactors(s, p.codeIndex);
  Recalculate(s);
  RebuildCombinationList(s);
  SetClassFrames(s);
}

void OnLoadCombChoice(State& s, int mode) {
  Project& p = s.project;
  View& v = s.view;
  p.LoadCombMode = static_cast<Integer>(mode);
  v.value["setup.CboLoadComb"] = mode;
  v.visible["setup.frULS"] = mode == 4;
  v.visible["setup.frPsi"] = !(mode == 4 || mode == 5);
  SetCombinationFactors(s, p.codeIndex);
  SetClassFrames(s);
  Recalculate(s);
  RebuildCombinationList(s);
  // Setting the main form's list to another item runs its Click event.
  if (ViewValue(s, "CboLoadComb") != mode) Fire(s, "CboLoadComb", std::to_string(mode));
}

void OnSteelGradeChoice(State& s, int index) {
  Project& p = s.project;
  View& v = s.view;
  p.steelGrade = static_cast<Integer>(index);
  v.value["setup.cbofyk"] = index;
  if (index == s.steel.gradeLast) {
    v.enabled["setup.ifyk"] = true;  // the user row: fyk is typed
  } else {
    try {
      SelectYieldStrength(s, p.steelGrade);
    } catch (const CalcFault&) {
      // A grade without strengths: the recalculation below shows the message.
    }
    v.enabled["setup.ifyk"] = false;
    v.text["setup.ifyk"] = SingleText(p.fyk, s.decimalComma);
  }
  Recalculate(s);
  SetCodeFactors(s, p.codeIndex);  // neta goes by fyk
  if (ViewValue(s, "cbofyk") != p.steelGrade) Fire(s, "cbofyk", std::to_string(p.steelGrade));
}

void OnClassChoice(State& s, const std::string& option, int safetyClass) {
  View& v = s.view;
  for (const char* o : {"rbtnSafetyNorwayClass1", "rbtnSafetyNorwayClass24", "rbtnSafetyClass1",
                        "rbtnSafetyClass2", "rbtnSafetyClass3"})
    v.value[std::string("setup.") + o] = option == o ? 1 : 0;
  s.project.safetyClass = static_cast<Integer>(safetyClass);
  SetCombinationFactors(s, s.project.codeIndex);
  RebuildCombinationList(s);
  Recalculate(s);
}

void ShowRules(State& s) {
  const bool strict = s.project.strictRules != 0;
  s.view.value["setup.strict"] = strict ? 1 : 0;
  s.view.value["setup.rbtnRulesSpecified"] = strict ? 0 : 1;
  s.view.value["setup.rbtnRulesStrict"] = strict ? 1 : 0;
}

void SetRules(State& s, bool strict) {
  s.project.strictRules = ToBoolean(strict);
  ShowRules(s);
  Recalculate(s);
}

void Activate(State& s) {
  Project& p = s.project;
  View& v = s.view;
  const bool dc = s.decimalComma;
  auto F = [dc](double x, const char* pattern) { return FormatNumber(x, pattern, dc); };
  if (std::find(v.openDialogs.begin(), v.openDialogs.end(), kForm) == v.openDialogs.end())
    v.openDialogs.push_back(kForm);
  v.text["setup.igammam0"] = F(p.gammaM0, "#0.00");
  v.text["setup.igammam1"] = F(p.gammaM1, "#0.00");
  v.text["setup.ineta"] = F(p.neta, "#0.00");
  v.text["setup.ilamdaLT0"] = F(p.lamdaLT0, "#0.00");
  v.text["setup.ibeta"] = F(p.beta, "#0.00");
  v.text["setup.ilamdaLT0w"] = F(p.lamdaLT0w, "#0.00");
  v.text["setup.ibetaw"] = F(p.betaw, "#0.00");
  v.value["setup.rbtnMethod1"] = p.interactionMethod == 1 ? 1 : 0;
  v.value["setup.rbtnMethod2"] = p.interactionMethod == 2 ? 1 : 0;
  SetClassFrames(s);
  v.text["setup.ifyk"] = F(p.fyk, "#000");
  v.text["setup.ie"] = F(p.E, "0.00E+0");
  v.text["setup.iuflimit"] = F(p.uflimit, "0.00");
  v.value["setup.CheckConserControl"] = p.conserControl != 0 ? 1 : 0;
  v.value["setup.CheckElastic"] = p.elasticClass12 != 0 ? 1 : 0;
  v.value["setup.CheckFlangebuck"] = p.noFlangeBuckling != 0 ? 1 : 0;
  v.value["setup.CheckWebbuck"] = p.noWebBuckling != 0 ? 1 : 0;
  ShowRules(s);
  v.visible["setup.frULS"] = p.LoadCombMode == 4;
  v.text["setup.iLfULS_G"] = F(p.LfULS_G, "#0.00");
  v.text["setup.iLfULS_Q1"] = F(p.LfULS_Q1, "#0.00");
  v.text["setup.iLfULS_Q2"] = F(p.LfULS_Q2, "#0.00");
  v.text["setup.iLfSLS_G"] = F(p.LfSLS_G, "#0.00");
  v.text["setup.iLfSLS_Q1"] = F(p.LfSLS_Q1, "#0.00");
  v.text["setup.iLfSLS_Q2"] = F(p.LfSLS_Q2, "#0.00");

  // The two lists are refilled and set; a list set from empty runs its Click event.
  v.items["setup.Cbo1993"] = CodeNames();
  v.value["setup.Cbo1993"] = -1;
  if (p.codeIndex >= 0 && p.codeIndex <= kCodeLast) OnCodeChoice(s, p.codeIndex);
  v.items["setup.cbofyk"] = GradeNames(s);
  v.value["setup.cbofyk"] = -1;
  if (p.steelGrade >= 0 && p.steelGrade <= LastGradeRow(s)) OnSteelGradeChoice(s, p.steelGrade);

  v.text["setup.idef_limit"] = F(p.deflectionLimit, "#0");
  v.items["setup.CboLoadComb"] = LoadCombEntries();
  v.value["setup.CboLoadComb"] = p.LoadCombMode;
  v.items["setup.Cbo_Q1_Psi1"] = PsiEntries(dc);
  v.items["setup.Cbo_Q2_Psi2"] = PsiEntries(dc);
  v.value["setup.Cbo_Q1_Psi1"] = p.psiQ1Index;
  v.value["setup.Cbo_Q2_Psi2"] = p.psiQ2Index;
}

// The range test of a field. The value is the Single the field holds, and a bound typed as it
// stands passes: 1.2 is a valid neta although the Single 1.2 lies a little above the decimal 1.2.
bool InRange(double v, double lo, double hi) {
  const float f = static_cast<float>(v);
  return f >= static_cast<float>(lo) && f <= static_cast<float>(hi);
}

template <class T>
NumericField Field(T Project::*member, const char* format, double lo, double hi, std::string message,
                   std::string enter, std::function<void(State&)> after = nullptr) {
  NumericField f;
  f.format = format;
  f.integer = std::is_same_v<T, Integer>;
  f.store = [member](State& s, double v) { s.project.*member = static_cast<T>(v); };
  f.value = [member](const State& s) { return static_cast<double>(s.project.*member); };
  f.valid = [lo, hi](const State&, double v) { return InRange(v, lo, hi); };
  auto shortest = [](double v) {
    std::string t = FormatNumber(v, "0.###", false);
    if (!t.empty() && t.back() == '.') t.pop_back();
    return t;
  };
  f.limits = std::isinf(hi) ? "at least " + shortest(lo) : shortest(lo) + " to " + shortest(hi);
  f.message = std::move(message);
  f.enter = "setup." + enter;
  f.after = std::move(after);
  return f;
}

void AfterLoadFactor(State& s) {
  Recalculate(s);
  BuildLoadFactorTexts(s);
  RebuildCombinationList(s);
}

}  // namespace

void RegisterSetupControls(ControlTable& t) {
  const double kNoLimit = std::numeric_limits<float>::infinity();

  // Fields of the code; enabled for "EC3 - User defined" only.
  AddNumericField(t, kForm, "igammam0",
                  Field(&Project::gammaM0, "#0.00", 0.5, 1.5, " 0.5 <= gammam0 <=1.5 ", "igammam1"));
  AddNumericField(t, kForm, "igammam1",
                  Field(&Project::gammaM1, "#0.00", 0.5, 1.5, " 0.5 <= gammam1 <=1.5 ", "ineta"));
  AddNumericField(t, kForm, "ineta",
                  Field(&Project::neta, "#0.00", 1.0, 1.2, " 1 <= neta <=1.2 ", "rbtnMethod1"));
  AddNumericField(t, kForm, "ilamdaLT0",
                  Field(&Project::lamdaLT0, "#0.00", 0.1, 0.8, " 0.1 <= lamdaLT0 <= 0.8 ", "ibeta"));
  // beta passes up to 1, whatever the message says.
  AddNumericField(t, kForm, "ibeta",
                  Field(&Project::beta, "#0.00", 0.1, 1, " 0.1 <= beta <= 0.8 ", "ilamdaLT0w"));
  AddNumericField(t, kForm, "ilamdaLT0w",
                  Field(&Project::lamdaLT0w, "#0.00", 0.1, 0.8, " 0.1 <= lamdaLT0 <= 0.8 ", "ibetaw"));
  AddNumericField(t, kForm, "ibetaw",
                  Field(&Project::betaw, "#0.00", 0.1, 1, " 0.1 <= beta <= 1 ", "cbofyk"));

  // Material, deflection and the limit of minor forces.
  AddNumericField(t, kForm, "ifyk",
                  Field(&Project::fyk, "#00", 50, 2000, " 50 <= fyk <= 2000 ", "ie", [](State& s) {
                    Recalculate(s);
                    SetCodeFactors(s, s.project.codeIndex);  // neta goes by fyk
                  }));
  AddNumericField(t, kForm, "ie",
                  Field(&Project::E, "0.00E+0", 1000, kNoLimit, " 1000 <= E-modulus ", "Cbo1993"));
  AddNumericField(t, kForm, "iuflimit",
                  Field(&Project::uflimit, "#0.00", 0, 0.4, " 0 <= uflimit <= 0.4 ", "CheckElastic"));
  AddNumericField(t, kForm, "idef_limit",
                  Field(&Project::deflectionLimit, "#0", 100, 1500, "100 <= Deflection <=1500 ", "cbofyk"));

  // Load factors of the mode "ULS/SLS"; 0 and 4 pass, whatever the message says.
  const char* const lfMessage = " 0 < Loadfactor < 4.0 ";
  AddNumericField(t, kForm, "iLfULS_G",
                  Field(&Project::LfULS_G, "#0.00", 0, 4, lfMessage, "iLfULS_Q1", AfterLoadFactor));
  AddNumericField(t, kForm, "iLfULS_Q1",
                  Field(&Project::LfULS_Q1, "#0.00", 0, 4, lfMessage, "iLfULS_Q2", AfterLoadFactor));
  {
    // iLfULS_Q2 recalculates once more at the end of its check, also after a refusal.
    NumericField f = Field(&Project::LfULS_Q2, "#0.00", 0, 4, lfMessage, "iLfSLS_G", AfterLoadFactor);
    AddControl(t, kForm, "iLfULS_Q2", [f](State& s, int, std::string_view text) {
      EventResult r = RunNumericField(s, "setup.iLfULS_Q2", f, text);
      s.view.text["setup.iLfULS_Q2"] = r.text;
      const bool tested = r.refused ? r.message == f.message : r.focus == f.enter;
      if (tested) Recalculate(s);
      return r;
    });
    t.SetField(kForm, "iLfULS_Q2", f);
  }
  AddNumericField(t, kForm, "iLfSLS_G",
                  Field(&Project::LfSLS_G, "#0.00", 0, 4, lfMessage, "iLfSLS_Q1", AfterLoadFactor));
  AddNumericField(t, kForm, "iLfSLS_Q1",
                  Field(&Project::LfSLS_Q1, "#0.00", 0, 4, lfMessage, "iLfSLS_Q2", AfterLoadFactor));
  AddNumericField(t, kForm, "iLfSLS_Q2",
                  Field(&Project::LfSLS_Q2, "#0.00", 0, 4, lfMessage, "idef_limit", AfterLoadFactor));

  // Lists.
  AddControl(t, kForm, "Cbo1993", [](State& s, int, std::string_view text) {
    int index = ChoiceIndex(text);
    if (index < 0 || index > kCodeLast) return NoSuchItem("Cbo1993", text);
    OnCodeChoice(s, index);
    return EventResult{};
  });
  AddControl(t, kForm, "CboLoadComb", [](State& s, int, std::string_view text) {
    int mode = ChoiceIndex(text);
    if (mode < 0 || mode >= kLoadCombModes) return NoSuchItem("CboLoadComb", text);
    OnLoadCombChoice(s, mode);
    return EventResult{};
  });
  AddControl(t, kForm, "cbofyk", [](State& s, int, std::string_view text) {
    int index = ChoiceIndex(text);
    if (index < 0 || index > LastGradeRow(s)) return NoSuchItem("cbofyk", text);
    OnSteelGradeChoice(s, index);
    return EventResult{};
  });
  for (int list : {1, 2}) {
    const std::string name = list == 1 ? "Cbo_Q1_Psi1" : "Cbo_Q2_Psi2";
    AddControl(t, kForm, name, [list, name](State& s, int, std::string_view text) {
      int index = ChoiceIndex(text);
      if (index < 0 || index > 9) return NoSuchItem(name.c_str(), text);
      s.view.value["setup." + name] = index;
      OnPsiChoice(s, list, index);
      return EventResult{};
    });
  }
  // The lists' entries before the dialog has been opened.
  t.SetEntries(kForm, "Cbo1993", [](const State&) { return CodeNames(); });
  t.SetEntries(kForm, "CboLoadComb", [](const State&) { return LoadCombEntries(); });
  t.SetEntries(kForm, "cbofyk", GradeNames);
  for (const char* psi : {"Cbo_Q1_Psi1", "Cbo_Q2_Psi2"})
    t.SetEntries(kForm, psi, [](const State& s) { return PsiEntries(s.decimalComma); });

  // Options.
  for (int method : {1, 2}) {
    AddControl(t, kForm, "rbtnMethod" + std::to_string(method), [method](State& s, int, std::string_view) {
      s.project.interactionMethod = static_cast<Integer>(method);
      s.view.value["setup.rbtnMethod1"] = method == 1 ? 1 : 0;
      s.view.value["setup.rbtnMethod2"] = method == 2 ? 1 : 0;
      Recalculate(s);
      return EventResult{};
    });
  }
  const std::pair<const char*, int> classOptions[] = {{"rbtnSafetyNorwayClass1", 1},
                                                      {"rbtnSafetyNorwayClass24", 2},
                                                      {"rbtnSafetyClass1", 1},
                                                      {"rbtnSafetyClass2", 2},
                                                      {"rbtnSafetyClass3", 3}};
  for (const auto& [option, safetyClass] : classOptions) {
    std::string name = option;
    int cls = safetyClass;
    AddControl(t, kForm, name, [name, cls](State& s, int, std::string_view) {
      OnClassChoice(s, name, cls);
      return EventResult{};
    });
  }

  // Check boxes.
  const std::pair<const char*, Boolean Project::*> checks[] = {
      {"CheckConserControl", &Project::conserControl},
      {"CheckElastic", &Project::elasticClass12},
      {"CheckFlangebuck", &Project::noFlangeBuckling},
      {"CheckWebbuck", &Project::noWebBuckling}};
  for (const auto& [box, member] : checks) {
    std::string name = box;
    auto field = member;
    AddControl(t, kForm, name, [name, field](State& s, int, std::string_view text) {
      const bool on = ChoiceIndex(text) == 1;
      s.project.*field = ToBoolean(on);
      s.view.value["setup." + name] = on ? 1 : 0;
      Recalculate(s);
      return EventResult{};
    });
  }

  // The rules in force: the check box `strict` (1 "EN 1993 strict", 0 "as specified") and its two
  // options on the dialog. Any other text than 1 is read as the default rules.
  AddControl(t, kForm, "strict", [](State& s, int, std::string_view text) {
    SetRules(s, ChoiceIndex(text) == 1);
    return EventResult{};
  });
  for (bool strict : {false, true}) {
    AddControl(t, kForm, strict ? "rbtnRulesStrict" : "rbtnRulesSpecified",
               [strict](State& s, int, std::string_view) {
                 SetRules(s, strict);
                 return EventResult{};
               });
  }

  // The main form's menu entry opens the dialog, filled from the record.
  AddControl(t, "", "mnusetup", [](State& s, int, std::string_view) {
    Activate(s);
    return EventResult{};
  });

  // The dialog itself.
  AddControl(t, kForm, "Activate", [](State& s, int, std::string_view) {
    Activate(s);
    return EventResult{};
  });
  AddControl(t, kForm, "Command2", [](State& s, int, std::string_view) {
    // "Save as default". A failure says so, as a failed save of a project does: the settings are
    // not the defaults of the next start, and the setup file is the one there was.
    EventResult r;
    std::string reason;
    if (!WriteSetupFile(s, &reason)) {
      const std::string path = (std::filesystem::path(s.appPath) / kSetupFile).string();
      r.refused = true;
      r.message = "can't save file - " + path;
      r.fileError = "cannot write '" + path + "': " + reason;
    }
    return r;
  });
  AddControl(t, kForm, "CmdOK", [](State& s, int, std::string_view) {
    // Closing saves nothing: the settings stay in the record.
    auto& open = s.view.openDialogs;
    open.erase(std::remove(open.begin(), open.end(), kForm), open.end());
    return EventResult{};
  });
}

}  // namespace vn
