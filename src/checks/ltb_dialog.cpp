// The dialog `vipping`, "Lateral Torsional Buckling parameters": the LT length factor, the lateral
// restraints, the load level, the buckling curve and the C factors, with the results of the last
// run (C1, C2, C3, Mcr and the design moment). Every change recalculates.
#include <string>

#include "analysis/member_analysis.h"
#include "checks/buckling.h"
#include "core/control_registry.h"
#include "core/events.h"
#include "core/format.h"
#include "core/recalculate.h"
#include "core/state.h"

namespace vn {

namespace {

const char* kForm = "vipping";

std::string Key(const char* control) { return std::string(kForm) + "." + control; }

float LtbFactorOfCase(int ltbCase) {
  switch (ltbCase) {
    case 1: return 2.0f;
    case 2: return 1.0f;
    case 3: return 0.7f;
    case 4: return 0.5f;
  }
  return 1.0f;
}

// Families that have no rolled or welded LT curve of their own: the general case only.
bool GeneralCurveOnly(int type) {
  return type == 5 || type == 16 || type == 28 || type == 103 || (type >= 51 && type <= 56);
}

// The parts table governs the factors: restraints along the member, or end forces.
bool PartTableInForce(const Project& p) { return !(p.AnalysisMode == 1 && p.ltbRestraints == 0); }

EventResult Changed(State& s) {
  Recalculate(s);
  RefreshLtbDialog(s);
  return EventResult{};
}

EventResult NoSuchItem(const char* name, std::string_view text) {
  EventResult r;
  r.refused = true;
  r.message = std::string("No such item of ") + name + ": " + std::string(text);
  return r;
}

// The entries of the list of lateral restraints: "0" to "6".
std::vector<std::string> RestraintCounts() {
  std::vector<std::string> counts;
  for (int i = 0; i <= 6; ++i) counts.push_back(std::to_string(i));
  return counts;
}

}  // namespace

void RefreshLtbDialog(State& s) {
  const Project& p = s.project;
  const Checks& k = s.checks;
  View& v = s.view;
  const bool dc = s.decimalComma;
  for (int i = 1; i <= 4; ++i) {
    v.value[Key(("latbuckl" + std::to_string(i)).c_str())] = p.ltbCase == i ? 1 : 0;
    v.value[Key(("loadl" + std::to_string(i)).c_str())] = p.ltbLoadLevel == i ? 1 : 0;
  }
  v.items[Key("cbo")] = RestraintCounts();
  v.value[Key("cbo")] = p.ltbRestraints;

  // The parts of the member between the restraints, the governing one chosen.
  const int n = p.ltbRestraints >= 0 && p.ltbRestraints <= 6 ? p.ltbRestraints + 1 : 1;
  std::vector<std::string> parts;
  for (int i = 0; i < n; ++i) parts.push_back(PartLabel(i, n, dc));
  v.items[Key("Beampart")] = parts;
  v.text[Key("Beampart")] = p.ltbPart >= 0 && p.ltbPart < n ? parts[p.ltbPart] : "";

  const bool onlyGeneral = GeneralCurveOnly(p.ProfileType);
  v.visible[Key("Curve3")] = !onlyGeneral;
  v.value[Key("Curve2")] = p.ltbCurve == 2 ? 1 : 0;
  v.value[Key("Curve3")] = p.ltbCurve == 3 ? 1 : 0;
  v.value[Key("Cfactor")] = p.ltbUserC != 0 ? 1 : 0;
  v.value[Key("C1factor")] = p.ltbUserC1 != 0 ? 1 : 0;
  v.text[Key("iza")] = FormatNumber(p.ltbZa, "#00", dc);

  // C factors: the user's while they are in force, else the last results; C2 has no meaning on
  // the parts table, C3 only for the single symmetric section.
  const bool user = p.ltbUserC != 0;
  const bool parts3 = PartTableInForce(p);
  for (const char* f : {"ic1", "ic2", "ic3"}) v.enabled[Key(f)] = user;
  v.text[Key("ic1")] = FormatNumber(user ? p.ltbC1 : k.C1, "#0.000", dc);
  v.text[Key("ic2")] = parts3 ? "N/A" : FormatNumber(user ? p.ltbC2 : k.C2, "#0.000", dc);
  v.text[Key("ic3")] = p.ProfileType != 22 ? "N/A" : FormatNumber(user ? p.ltbC3 : k.C3, "#0.000", dc);
  v.text[Key("C1")] = "C1 = " + FormatNumber(k.C1, "0.000", dc);
  v.text[Key("C2")] = "C2 = " + FormatNumber(k.C2, "0.000", dc);
  v.text[Key("C3")] = "C3 = " + FormatNumber(k.C3, "0.000", dc);
  v.text[Key("Mcr")] = "Mcr = " + FormatNumber(k.Mcr / 1000000, "0.000", dc) + " kNm";
  v.text[Key("MdRb")] = "Md,Rb = " + FormatNumber(k.xLT * k.MyRdLT, "0.0", dc) + " kNm";

  // Where Mcr comes from, and on the eigenvalue analysis what it found.
  const bool eigen = p.ltbMcrMethod == 1;
  v.value[Key("McrTables")] = eigen ? 0 : 1;
  v.value[Key("McrEigen")] = eigen ? 1 : 0;
  std::string method;
  if (eigen && k.McrByEigen != 0)
    method = "Critical factor on My,Ed = " + FormatNumber(k.McrFactor, "0.000", dc);
  else if (eigen && !k.McrNote.empty())
    method = "Mcr from C factors: " + k.McrNote;
  v.text[Key("McrMethod")] = method;
}

void RegisterBucklingControls(ControlTable& t) {
  // The main form's button opens the dialog.
  AddControl(t, "", "cbuttlateral", [](State& s, int, std::string_view) {
    ShowDialog(s, kForm);
    RefreshLtbDialog(s);
    return EventResult{};
  });
  AddControl(t, kForm, "Activate", [](State& s, int, std::string_view) {
    ShowDialog(s, kForm);
    // The rolled and welded curve does not exist for the channels, the flat bar and the plates.
    if (GeneralCurveOnly(s.project.ProfileType) && s.project.ltbCurve != 2) {
      s.project.ltbCurve = 2;
      Recalculate(s);
    }
    RefreshLtbDialog(s);
    return EventResult{};
  });
  for (const char* close : {"ok", "Unload"}) {
    AddControl(t, kForm, close, [](State& s, int, std::string_view) {
      HideDialog(s, kForm);
      return EventResult{};
    });
  }

  // Lateral torsional buckling length: k of the length between the restraints. While the control
  // is off the factor stays at its marker 0.001; the case comes back when it is checked again.
  for (int i = 1; i <= 4; ++i) {
    AddControl(t, kForm, "latbuckl" + std::to_string(i), [i](State& s, int, std::string_view) {
      Project& p = s.project;
      p.ltbCase = static_cast<Integer>(i);
      if (p.ltbOn == 1) p.ltbFactor = LtbFactorOfCase(i);
      return Changed(s);
    });
  }
  AddControl(t, kForm, "cbo", [](State& s, int, std::string_view text) {
    const int index = ChoiceIndex(text);
    if (index < 0 || index > 6) return NoSuchItem("cbo", text);
    s.project.ltbRestraints = static_cast<Integer>(index);
    return Changed(s);
  });
  t.SetEntries(kForm, "cbo", [](const State&) { return RestraintCounts(); });
  for (int i = 1; i <= 4; ++i) {
    AddControl(t, kForm, "loadl" + std::to_string(i), [i](State& s, int, std::string_view) {
      s.project.ltbLoadLevel = static_cast<Integer>(i);
      return Changed(s);
    });
  }
  AddControl(t, kForm, "Curve2", [](State& s, int, std::string_view) {
    s.project.ltbCurve = 2;
    return Changed(s);
  });
  AddControl(t, kForm, "Curve3", [](State& s, int, std::string_view) {
    // Not offered where only the general case exists.
    s.project.ltbCurve = GeneralCurveOnly(s.project.ProfileType) ? 2 : 3;
    return Changed(s);
  });
  AddControl(t, kForm, "Cfactor", [](State& s, int, std::string_view text) {
    Project& p = s.project;
    const bool on = ChoiceIndex(text) == 1;
    p.ltbUserC = ToBoolean(on);
    if (on) {
      // The factors in force are the start of the user's values.
      p.ltbC1 = s.checks.C1;
      p.ltbC2 = s.checks.C2;
      p.ltbC3 = s.checks.C3;
    }
    return Changed(s);
  });
  // Mcr from the C factor tables (the default) or by the eigenvalue analysis of the member.
  for (int method : {0, 1}) {
    AddControl(t, kForm, method == 1 ? "McrEigen" : "McrTables", [method](State& s, int, std::string_view) {
      s.project.ltbMcrMethod = static_cast<Integer>(method);
      return Changed(s);
    });
  }
  AddControl(t, kForm, "C1factor", [](State& s, int, std::string_view text) {
    s.project.ltbUserC1 = ToBoolean(ChoiceIndex(text) == 1);
    return Changed(s);
  });

  auto after = [](State& s) {
    Recalculate(s);
    RefreshLtbDialog(s);
  };
  AddNumericField(t, kForm, "ic1",
                  {"#0.000", false, [](State& s, double v) { s.project.ltbC1 = v; },
                   [](const State& s) { return s.project.ltbC1; },
                   [](const State&, double v) { return v >= 0.2 && v <= 4; }, " 0.2 <= C1i <= 4 ",
                   "vipping.ic2", after, true, nullptr, "0.2 to 4"});
  // ic2 moves on to ic3 only where C3 means something.
  const NumericField ic2{"#0.000",
                         false,
                         [](State& s, double v) { s.project.ltbC2 = v; },
                         [](const State& s) { return s.project.ltbC2; },
                         [](const State&, double v) { return v >= 0 && v <= 4; },
                         " 0 <= C2i <= 4 ",
                         "vipping.ic1",
                         after,
                         true,
                         nullptr,
                         "0 to 4"};
  AddControl(t, kForm, "ic2", [ic2](State& s, int, std::string_view text) {
    NumericField f = ic2;
    if (s.project.ProfileType == 22) f.enter = "vipping.ic3";
    EventResult r = RunNumericField(s, Key("ic2"), f, text);
    s.view.text[Key("ic2")] = r.text;
    return r;
  });
  t.SetField(kForm, "ic2", ic2);
  AddNumericField(t, kForm, "ic3",
                  {"#0.000", false, [](State& s, double v) { s.project.ltbC3 = v; },
                   [](const State& s) { return s.project.ltbC3; },
                   [](const State&, double v) { return v >= 0 && v <= 4; }, " 0 <= C3i <= 4 ", "vipping.ic1",
                   after, true, nullptr, "0 to 4"});
  // Za in whole millimetres, with no test and no word on a bad text.
  NumericField iza{"#00",
                   true,
                   [](State& s, double v) { s.project.ltbZa = v; },
                   [](const State& s) { return s.project.ltbZa; },
                   nullptr,
                   "",
                   "vipping.loadl4",
                   after};
  iza.mismatchMessage = false;
  AddNumericField(t, kForm, "iza", iza);
}

}  // namespace vn
