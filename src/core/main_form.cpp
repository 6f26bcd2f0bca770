// The controls of the main form and the refresh that copies the record into it.
#include <algorithm>
#include <cmath>

#include "analysis/member_analysis.h"
#include "core/control_registry.h"
#include "core/events.h"
#include "core/format.h"
#include "core/recalculate.h"
#include "core/state.h"
#include "design/design_basis.h"
#include "sections/dispatch.h"

namespace vn {

namespace {

const char* const kLoadCombTexts[6] = {"EN 1990 Eq 6.10",    "EN 1990 Eq 6.10a", "EN 1990 Eq 6.10b",
                                       "EN 1990 Eq 6.10a/b", "ULS/SLS",          "Basic loads"};
const char* const kCurveTexts[6] = {"Auto", "a0", "a", "b", "c", "d"};

float LtbFactorOfCase(int ltbCase) {
  switch (ltbCase) {
    case 1: return 2.0f;
    case 2: return 1.0f;
    case 3: return 0.7f;
    case 4: return 0.5f;
  }
  return 1.0f;
}

void AfterFykChange(State& s) {
  Recalculate(s);
  // fyk changes neta, which is re-derived after the run.
  SetCodeFactors(s, s.project.codeIndex);
  RebuildCombinationList(s);
}

EventResult Recalculated(State& s) {
  Recalculate(s);
  return {};
}

}  // namespace

void OnSupportButton(State& s, int type) {
  Project& p = s.project;
  View& v = s.view;
  p.SupportType = static_cast<Integer>(type);
  v.value["cbutt"] = type;
  const bool spring = type == 3 || type == 5;
  v.visible["ispring"] = spring;
  if (spring) v.text["ispring"] = FormatNumber(p.SpringPct, "#0", s.decimalComma);
  // The end supports set the buckling length of both axes (a cantilever 2.0, fixed ends 0.5 ...);
  // a typed factor and "not relevant" stay.
  ApplySupportTypeToBuckling(s);
}

void OnLtbCheck(State& s, bool checked) {
  Project& p = s.project;
  s.view.value["ch_vipp"] = checked ? 1 : 0;
  p.ltbOn = checked ? 1 : 0;
  if (checked) {
    p.ltbFactor = LtbFactorOfCase(p.ltbCase);
  } else {
    p.ltbFactor = 0.001f;
    p.ltbRestraints = 0;
  }
}

EventResult OnModalCheck(State& s, bool checked) {
  Project& p = s.project;
  EventResult r;
  if (checked && (p.SupportType == 3 || p.SupportType == 5)) {
    r.refused = true;
    r.message = " Modal analysis not possible for spring supports ";
    checked = false;
  }
  s.view.value["ch_modal"] = checked ? 1 : 0;
  p.chModal = checked ? 1 : 0;
  s.view.visible["cmd_modresult"] = checked;
  return r;
}

void RegisterMainFormControls(ControlTable& t) {
  // Free text fields: no test, no recalculation.
  AddControl(t, "", "iproj", [](State& s, int, std::string_view text) {
    s.project.projectName = std::string(text);
    s.view.text["iproj"] = s.project.projectName;
    EventResult r;
    r.focus = "iident";
    return r;
  });
  AddControl(t, "", "iident", [](State& s, int, std::string_view text) {
    s.project.projectIdent = std::string(text);
    s.view.text["iident"] = s.project.projectIdent;
    EventResult r;
    r.focus = "cbofyk";
    return r;
  });

  AddNumericField(t, "", "ifyk",
                  {"#00", false, [](State& s, double v) { s.project.fyk = static_cast<Single>(v); },
                   [](const State& s) { return double(s.project.fyk); },
                   [](const State&, double v) { return v >= 50 && v <= 2000; }, " 50 <= fyk <= 2000 ", "il",
                   AfterFykChange, true, nullptr, "50 to 2000"});
  AddNumericField(t, "", "il",
                  {"#0.000", false, [](State& s, double v) { s.project.L = static_cast<Single>(v); },
                   [](const State& s) { return double(s.project.L); },
                   [](const State&, double v) { return v >= 0.05; }, " L >= 0.050 ", "ibly", nullptr, true,
                   [](const State& s) {
                     // Enter goes on to the buckling factors only while "Column data" is shown.
                     auto shown = s.view.visible.find("columnframe");
                     return shown == s.view.visible.end() || shown->second ? std::string("ibly")
                                                                           : std::string("iproj");
                   },
                   "at least 0.05"});
  AddNumericField(
      t, "", "ibly",
      {"#0.00", false, [](State& s, double v) { s.project.bucklingFactorY = static_cast<Single>(v); },
       [](const State& s) { return double(s.project.bucklingFactorY); },
       [](const State&, double v) { return v >= 0.2; }, " Buckling length factor Y-axis >= 0.2 ", "iblz",
       [](State& s) {
         s.project.bucklingCaseY = 6;
         Recalculate(s);
       },
       true, nullptr, "at least 0.2"});
  AddNumericField(
      t, "", "iblz",
      {"#0.00", false, [](State& s, double v) { s.project.bucklingFactorZ = static_cast<Single>(v); },
       [](const State& s) { return double(s.project.bucklingFactorZ); },
       [](const State&, double v) { return v >= 0.2; }, " Buckling length factor Z-axis >= 0.2 ", "iproj",
       [](State& s) {
         s.project.bucklingCaseZ = 6;
         Recalculate(s);
       },
       true, nullptr, "at least 0.2"});
  AddNumericField(t, "", "ispring",
                  {"#0", true, [](State& s, double v) { s.project.SpringPct = static_cast<Integer>(v); },
                   [](const State& s) { return double(s.project.SpringPct); },
                   [](const State&, double v) { return v >= 0 && v <= 100; }, " 1 < Spring-restraint  > 99 ",
                   "il", nullptr, true, nullptr, "0 to 100"});
  AddNumericField(
      t, "", "idef_limit",
      {"#0", true, [](State& s, double v) { s.project.deflectionLimit = static_cast<Integer>(v); },
       [](const State& s) { return double(s.project.deflectionLimit); },
       [](const State&, double v) { return v >= 100 && v <= 1500; }, "100 <= Deflection <=1500 ", "ch_modal",
       nullptr, true, nullptr, "100 to 1500"});

  // Enter on the spring button confirms the spring value typed in ispring, with a narrower range
  // than leaving the field: the event's text is that value (no text is a click).
  const NumericField springByEnter{"#0",
                                   true,
                                   [](State& s, double v) { s.project.SpringPct = static_cast<Integer>(v); },
                                   [](const State& s) { return double(s.project.SpringPct); },
                                   [](const State&, double v) { return v >= 1 && v <= 99; },
                                   " 1 < springstiffness 99 ",
                                   "il",
                                   nullptr};
  for (int type = 0; type <= 5; ++type) {
    AddControl(t, "", "cbutt" + std::to_string(type),
               [type, springByEnter](State& s, int, std::string_view text) {
                 if (type == 5 && !text.empty()) {
                   EventResult r = RunNumericField(s, "ispring", springByEnter, text);
                   s.view.text["ispring"] = r.text;
                   return r;
                 }
                 OnSupportButton(s, type);
                 Recalculate(s);
                 EventResult r;
                 if (type == 3 || type == 5) r.focus = "ispring";
                 return r;
               });
  }

  AddControl(t, "", "cbofyk", [](State& s, int, std::string_view text) {
    Project& p = s.project;
    int index = ChoiceIndex(text);
    // The list holds the rows read, at most the 31 of the table.
    if (index < 0 || index > 30 || index > s.steel.gradeLast) {
      EventResult r;
      r.refused = true;
      r.message = "No such steel grade: " + std::string(text);
      return r;
    }
    p.steelGrade = static_cast<Integer>(index);
    s.view.value["cbofyk"] = index;
    if (index == s.steel.gradeLast) {
      s.view.enabled["ifyk"] = true;
    } else {
      try {
        SelectYieldStrength(s, p.steelGrade);
      } catch (const CalcFault&) {
        // A grade without strengths: the recalculation below shows the message.
      }
      s.view.enabled["ifyk"] = false;
      s.view.text["ifyk"] = SingleText(p.fyk, s.decimalComma);  // as plain text
    }
    AfterFykChange(s);
    return EventResult{};
  });

  auto list = [&t](const char* name, int count, auto store) {
    AddControl(t, "", name, [name, count, store](State& s, int, std::string_view text) {
      int index = ChoiceIndex(text);
      if (index < 0 || index >= count) {
        EventResult r;
        r.refused = true;
        r.message = std::string("No such item of ") + name + ": " + std::string(text);
        return r;
      }
      store(s, index);
      s.view.value[name] = index;
      return Recalculated(s);
    });
  };
  list("cbobcy", 6, [](State& s, int i) { s.project.bucklingCurveY = static_cast<Integer>(i); });
  list("cbobcz", 6, [](State& s, int i) { s.project.bucklingCurveZ = static_cast<Integer>(i); });
  list("CboLoadComb", 6, [](State& s, int i) { s.project.LoadCombMode = static_cast<Integer>(i); });

  AddControl(t, "", "CheckSLS", [](State& s, int, std::string_view text) {
    bool on = ChoiceIndex(text) == 1;
    s.project.checkSLS = ToBoolean(on);
    s.view.value["CheckSLS"] = on ? 1 : 0;
    return Recalculated(s);
  });
  AddControl(t, "", "ch_vipp", [](State& s, int, std::string_view text) {
    OnLtbCheck(s, ChoiceIndex(text) == 1);
    return Recalculated(s);
  });
  AddControl(t, "", "ch_modal",
             [](State& s, int, std::string_view text) { return OnModalCheck(s, ChoiceIndex(text) == 1); });

  // The dialog about the program.
  // The information forms: opened by a button or a picture, closed by a click on them.
  auto info = [&t](const char* form, const char* opener) {
    std::string openerForm, openerControl = opener;
    if (auto dot = openerControl.find('.'); dot != std::string::npos) {
      openerForm = openerControl.substr(0, dot);
      openerControl = openerControl.substr(dot + 1);
    }
    AddControl(t, openerForm, openerControl, [form](State& s, int, std::string_view) {
      if (!DialogOpen(s.view, form)) s.view.openDialogs.push_back(form);
      return EventResult{};
    });
    AddControl(t, form, "ok", [form](State& s, int, std::string_view) {
      auto& open = s.view.openDialogs;
      open.erase(std::remove(open.begin(), open.end(), form), open.end());
      return EventResult{};
    });
  };
  info("about", "mnuabout");
  info("InfoVARNELT", "Picture");
  info("InfoULS", "setup.cmdULS");
  info("InfoPsi", "setup.cmdPsi");
}

void RefreshMainForm(State& s) {
  Project& p = s.project;
  View& v = s.view;
  const bool dc = s.decimalComma;
  v.text["iproj"] = p.projectName;
  v.text["iident"] = p.projectIdent;
  std::vector<std::string> grades;
  for (int i = 0; i <= s.steel.gradeLast && i < 31; ++i) grades.push_back(s.steel.rows[i].name);
  v.items["cbofyk"] = grades;
  v.text["ifyk"] = FormatNumber(p.fyk, "#000", dc);
  v.value["cbofyk"] = p.steelGrade;
  v.text["il"] = FormatNumber(p.L, "#0.000", dc);
  // The web stiffener distance is held at no more than the member length.
  if (p.a > 1000.0 * p.L) p.a = static_cast<Single>(1000.0 * p.L);

  // Setting the controls fires their events where the state changes.
  const bool vipp = p.ltbOn != 0;
  auto vippNow = v.value.find("ch_vipp");
  if (vippNow == v.value.end() || (vippNow->second != 0) != vipp) OnLtbCheck(s, vipp);

  auto button = v.value.find("cbutt");
  if (p.SupportType >= 0 && p.SupportType <= 5 &&
      (button == v.value.end() || button->second != p.SupportType))
    OnSupportButton(s, p.SupportType);

  ShowBucklingFactors(s);

  const bool modal = p.chModal == 1;
  auto modalNow = v.value.find("ch_modal");
  if (modalNow == v.value.end() || (modalNow->second != 0) != modal) OnModalCheck(s, modal);

  v.visible["frLc"] = p.AnalysisMode == 1;
  v.value["CheckSLS"] = p.checkSLS != 0 ? 1 : 0;
  v.text["idef_limit"] = FormatNumber(p.deflectionLimit, "#00", dc);

  v.items["CboLoadComb"].assign(std::begin(kLoadCombTexts), std::end(kLoadCombTexts));
  v.value["CboLoadComb"] = p.LoadCombMode;
  v.items["cbobcy"].assign(std::begin(kCurveTexts), std::end(kCurveTexts));
  v.items["cbobcz"] = v.items["cbobcy"];
  v.value["cbobcy"] = p.bucklingCurveY;
  v.value["cbobcz"] = p.bucklingCurveZ;

  BuildCaption(s);
  ShowSetupAvailability(s);
  // The list selections above fire their Click events; one run with the record as it stands
  // gives the same results.
  Recalculate(s);
  // The curve labels beside the lists are set by the run itself (and cleared by a failed one).
}

}  // namespace vn
