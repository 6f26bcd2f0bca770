// The controls of the analysis dialogs (Loading, chpoints, endforce, bucklingy, bucklingz,
// Modal_ns) and the main form's entries that open them.
#include <algorithm>
#include <string>

#include "analysis/member_analysis.h"
#include "core/captions.h"
#include "core/control_registry.h"
#include "core/events.h"
#include "core/format.h"
#include "core/recalculate.h"
#include "core/state.h"

namespace vn {

namespace {

// ---- Calculation points ----

std::string Icp(int i) { return "chpoints.icp(" + std::to_string(i) + ")"; }

double ShownCheckPoint(const State& s, int i) {
  const Project& p = s.project;
  if (p.ChPointRelative == 0) return p.ChPointX[i];
  return p.L != 0 ? p.ChPointX[i] / static_cast<double>(p.L) : 0.0;
}

// Leaving icp(i): 0 <= v <= 1 as x/L with the relative flag, else 0 <= v <= L; stored in metres.
// The message of the absolute range is the point load's, " 0 < x <= l ", although 0 passes.
EventResult CheckPointField(State& s, int i, std::string_view text) {
  Project& p = s.project;
  EventResult r;
  const std::string self = Icp(i);
  Single v = 0;
  if (!ParseFieldText(s, self, text, &v, &r)) return r;
  const bool relative = p.ChPointRelative != 0;
  const bool valid = relative ? v >= 0 && v <= 1 : v >= 0 && v <= p.L;
  if (!valid) {
    p.ChPointX[i] = 0;
    r.refused = true;
    r.message = relative ? " 0 <= x <= 1 " : " 0 < x <= l ";
    r.focus = self;
  } else {
    p.ChPointX[i] = relative ? static_cast<Single>(static_cast<double>(v) * p.L) : v;
    r.focus = i < 3 && i + 1 <= p.ChPointCount ? Icp(i + 1) : "chpoints.ok";
  }
  r.text = FormatNumber(ShownCheckPoint(s, i), "#0.000", s.decimalComma);
  s.view.text[self] = r.text;
  if (valid) {
    Recalculate(s);
    RefreshCheckPointTable(s);
  }
  return r;
}

// ---- End forces ----

bool ZFieldsHidden(int type) { return type >= 24 && type <= 28; }

void RefreshEndForces(State& s) {
  const Project& p = s.project;
  View& v = s.view;
  const bool dc = s.decimalComma;
  auto F = [dc](double x) { return FormatNumber(x, "#0.0", dc); };
  v.text["endforce.ine"] = F(p.NEndForce);
  v.text["endforce.imy1"] = F(p.My12[1]);
  v.text["endforce.imy2"] = F(p.My12[2]);
  v.text["endforce.ivz1"] = F(p.Vz12[1]);
  v.text["endforce.ivz2"] = F(p.Vz12[2]);
  v.text["endforce.imz1"] = F(p.Mz12[1]);
  v.text["endforce.imz2"] = F(p.Mz12[2]);
  v.text["endforce.ivy1"] = F(p.Vy12[1]);
  v.text["endforce.ivy2"] = F(p.Vy12[2]);
  // The fields the family can carry: one bending axis shows no z forces, the T only N.
  const int type = p.ProfileType;
  const bool zShown = !ZFieldsHidden(type), yShown = type != 26;
  for (const char* f : {"imz1", "imz2", "ivy1", "ivy2"}) v.visible[std::string("endforce.") + f] = zShown;
  for (const char* f : {"imy1", "imy2", "ivz1", "ivz2"}) v.visible[std::string("endforce.") + f] = yShown;
}

void ActivateEndForces(State& s) {
  s.project.AnalysisMode = 0;
  Recalculate(s);
  RefreshEndForces(s);
}

// The end force fields have no range: parse, store, format; a mismatch is told, and the run
// follows in every case.
void AddEndForceField(ControlTable& t, const char* name, Single Project::*scalar,
                      std::array<Single, 3> Project::*pair, int end, std::string enter) {
  const std::string self = std::string("endforce.") + name;
  NumericField f;
  f.format = "#0.0";
  f.store = [scalar, pair, end](State& s, double v) {
    (scalar ? s.project.*scalar : (s.project.*pair)[end]) = static_cast<Single>(v);
  };
  f.value = [scalar, pair, end](const State& s) {
    return static_cast<double>(scalar ? s.project.*scalar : (s.project.*pair)[end]);
  };
  f.enter = enter;
  AddControl(t, "endforce", name, [self, f](State& s, int, std::string_view text) {
    const int before = s.recalcCount;
    EventResult r = RunNumericField(s, self, f, text);
    s.view.text[self] = r.text;
    if (!r.refused && self == "endforce.ivz2") {
      const int type = s.project.ProfileType;
      r.focus = type == 26 ? "endforce.ine" : ZFieldsHidden(type) ? "endforce.imy1" : "endforce.imz1";
    }
    if (s.recalcCount == before) Recalculate(s);
    return r;
  });
}

// ---- Modal analysis ----

void ShowModal(State& s) {
  Recalculate(s);
  ShowDialog(s, "Modal_ns");
}

}  // namespace

void ShowDialog(State& s, const std::string& form) {
  auto& open = s.view.openDialogs;
  if (std::find(open.begin(), open.end(), form) == open.end()) open.push_back(form);
}

void HideDialog(State& s, const std::string& form) {
  auto& open = s.view.openDialogs;
  open.erase(std::remove(open.begin(), open.end(), form), open.end());
}

void RefreshCheckPointTable(State& s) {
  const Project& p = s.project;
  View& v = s.view;
  v.value["chpoints.cp_0"] = p.ChPointMode == 1 ? 0 : 1;
  v.value["chpoints.cp_1"] = p.ChPointMode == 1 ? 1 : 0;
  v.visible["chpoints.fr_cp"] = p.ChPointMode == 1;
  for (int n = 1; n <= 3; ++n) {
    v.value["chpoints.no_cp" + std::to_string(n)] = p.ChPointCount == n ? 1 : 0;
    v.visible[Icp(n)] = n <= p.ChPointCount;
    v.text[Icp(n)] = FormatNumber(ShownCheckPoint(s, n), "#0.000", s.decimalComma);
  }
  v.value["chpoints.cprelative"] = p.ChPointRelative != 0 ? 1 : 0;
  v.value["chpoints.cpabsolute"] = p.ChPointRelative != 0 ? 0 : 1;
  v.text["chpoints.cpx"] = PositionHeading(p.ChPointRelative != 0);
}

void RegisterAnalysisControls(ControlTable& t) {
  RegisterLoadingDialogControls(t);
  RegisterBucklingDialogControls(t);

  // Main form entries.
  AddControl(t, "", "mnuload1", [](State& s, int, std::string_view) {
    s.project.AnalysisMode = 1;
    s.view.visible["frLc"] = true;
    ShowDialog(s, "Loading");
    ActivateLoadingDialog(s);
    return EventResult{};
  });
  AddControl(t, "", "mnuendforces", [](State& s, int, std::string_view) {
    s.project.AnalysisMode = 0;
    s.project.SupportType = 0;
    s.view.visible["frLc"] = false;
    ShowDialog(s, "endforce");
    ActivateEndForces(s);
    return EventResult{};
  });
  // The buttons of the buckling length factors and of the calculation points.
  for (const char* axis : {"y", "z"}) {
    const std::string form = std::string("buckling") + axis;
    AddControl(t, "", "cbuttbuckling" + std::string(axis), [form](State& s, int, std::string_view) {
      ShowDialog(s, form);
      return Fire(s, form + ".Activate");
    });
  }
  AddControl(t, "", "cp", [](State& s, int, std::string_view) {
    ShowDialog(s, "chpoints");
    RefreshCheckPointTable(s);
    return EventResult{};
  });
  // A click on a chart opens the loads of the mode in force.
  for (const char* chart : {"PicMy", "PicMz", "PicLoadY", "PicLoadZ"}) {
    AddControl(t, "", chart, [](State& s, int, std::string_view) {
      return Fire(s, s.project.AnalysisMode == 1 ? "mnuload1" : "mnuendforces");
    });
  }
  AddControl(t, "", "cmd_modresult", [](State& s, int, std::string_view) {
    // Enabled only while the modal analysis is on.
    if (s.project.chModal == 1) ShowModal(s);
    return EventResult{};
  });

  // Calculation points.
  const char* cp = "chpoints";
  for (int mode = 0; mode <= 1; ++mode) {
    AddControl(t, cp, "cp_" + std::to_string(mode), [mode](State& s, int, std::string_view) {
      s.project.ChPointMode = static_cast<Integer>(mode);
      Recalculate(s);
      RefreshCheckPointTable(s);
      return EventResult{};
    });
  }
  for (int n = 1; n <= 3; ++n) {
    AddControl(t, cp, "no_cp" + std::to_string(n), [n](State& s, int, std::string_view) {
      s.project.ChPointCount = static_cast<Integer>(n);
      Recalculate(s);
      RefreshCheckPointTable(s);
      return EventResult{};
    });
  }
  for (int relative = 0; relative <= 1; ++relative) {
    AddControl(t, cp, relative ? "cprelative" : "cpabsolute", [relative](State& s, int, std::string_view) {
      s.project.ChPointRelative = static_cast<Integer>(relative);
      Recalculate(s);
      RefreshCheckPointTable(s);
      return EventResult{};
    });
  }
  AddControl(
      t, cp, "icp", [](State& s, int i, std::string_view text) { return CheckPointField(s, i, text); }, 1, 3);
  {
    NumericField shown;
    shown.format = "#0.000";
    shown.limits = "0 to 1 as x/L, 0 to L in m";
    t.SetField(cp, "icp", shown);
  }
  AddControl(t, cp, "Activate", [](State& s, int, std::string_view) {
    RefreshCheckPointTable(s);
    return EventResult{};
  });
  AddControl(t, cp, "ok", [](State& s, int, std::string_view) {
    HideDialog(s, "chpoints");
    return EventResult{};
  });

  // End forces: N, then My and Vz, then Mz and Vy.
  AddEndForceField(t, "ine", &Project::NEndForce, nullptr, 0, "endforce.imy1");
  AddEndForceField(t, "imy1", nullptr, &Project::My12, 1, "endforce.imy2");
  AddEndForceField(t, "imy2", nullptr, &Project::My12, 2, "endforce.ivz1");
  AddEndForceField(t, "ivz1", nullptr, &Project::Vz12, 1, "endforce.ivz2");
  AddEndForceField(t, "ivz2", nullptr, &Project::Vz12, 2, "endforce.imz1");
  AddEndForceField(t, "imz1", nullptr, &Project::Mz12, 1, "endforce.imz2");
  AddEndForceField(t, "imz2", nullptr, &Project::Mz12, 2, "endforce.ivy1");
  AddEndForceField(t, "ivy1", nullptr, &Project::Vy12, 1, "endforce.ivy2");
  AddEndForceField(t, "ivy2", nullptr, &Project::Vy12, 2, "endforce.ine");
  AddControl(t, "endforce", "Activate", [](State& s, int, std::string_view) {
    ActivateEndForces(s);
    return EventResult{};
  });
  AddControl(t, "endforce", "ok", [](State& s, int, std::string_view) {
    HideDialog(s, "endforce");
    return EventResult{};
  });

  // Modal results.
  AddControl(t, "Modal_ns", "Activate", [](State& s, int, std::string_view) {
    Recalculate(s);
    return EventResult{};
  });
  AddControl(t, "Modal_ns", "ok", [](State& s, int, std::string_view) {
    HideDialog(s, "Modal_ns");
    return EventResult{};
  });
}

}  // namespace vn
