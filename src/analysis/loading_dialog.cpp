// The Loading dialog: a form over the load record. Every change writes the record and recalculates;
// the checks of the record are made when the dialog closes.
#include <string>
#include <vector>

#include "analysis/member_analysis.h"
#include "core/captions.h"
#include "core/events.h"
#include "core/format.h"
#include "core/recalculate.h"
#include "core/state.h"
#include "design/design_basis.h"

namespace vn {

namespace {

const char* kForm = "Loading";

int CaseCode(double c) { return c == 0 ? 0 : c == 1 ? 1 : 2; }
const char* CaseText(int code) { return code == 0 ? "G" : code == 1 ? "Q1" : "Q2"; }
int NextCase(double c) { return (CaseCode(c) + 1) % 3; }

std::string Self(const char* name, int i) {
  return std::string(kForm) + "." + name + "(" + std::to_string(i) + ")";
}

// Position shown in the table: x/L with the relative flag, else metres.
double Shown(const State& s, Single x, Integer relative) {
  if (relative == 0) return x;
  return s.project.L != 0 ? x / static_cast<double>(s.project.L) : 0.0;
}

void AfterChange(State& s) {
  Recalculate(s);
  RefreshLoadTable(s);
}

EventResult Changed(State& s) {
  AfterChange(s);
  return EventResult{};
}

// A value field: parsed, stored, shown with "#0.0"; no range.
EventResult ValueField(State& s, const std::string& self, Single& slot, std::string_view text) {
  EventResult r;
  Single v = 0;
  if (!ParseFieldText(s, self, text, &v, &r)) return r;
  slot = v;
  r.text = FormatNumber(slot, "#0.0", s.decimalComma);
  s.view.text[self] = r.text;
  AfterChange(s);
  return r;
}

// A position field: 0 < v <= 1 as x/L with the relative flag, else 0 < v <= L in metres; stored
// in metres. A value out of range clears the position and keeps the focus.
EventResult PositionField(State& s, const std::string& self, Single& slot, Integer relative,
                          const char* symbol, std::string_view text) {
  EventResult r;
  Single v = 0;
  if (!ParseFieldText(s, self, text, &v, &r)) return r;
  const Single L = s.project.L;
  const bool valid = relative != 0 ? v > 0 && v <= 1 : v > 0 && v <= L;
  if (!valid) {
    slot = 0;
    r.refused = true;
    r.message = " 0 < ";
    r.message.append(symbol);
    r.message.append(relative != 0 ? " <= 1 " : " <= l ");
    r.focus = self;
  } else {
    slot = relative != 0 ? static_cast<Single>(static_cast<double>(v) * L) : v;
  }
  r.text = FormatNumber(Shown(s, slot, relative), "#0.000", s.decimalComma);
  s.view.text[self] = r.text;
  if (valid) AfterChange(s);
  return r;
}

bool Ticked(std::string_view text) { return ChoiceIndex(text) == 1; }

void ClearRows(State& s) {
  Loads& l = s.loads;
  for (int i = 1; i <= 3; ++i) {
    if (l.axial[i].Checked == 0) continue;
    l.axial[i].N = 0;
    l.axial[i].Checked = False;
  }
  for (int i = 1; i <= 4; ++i) {
    if (l.uniform[i].Checked == 0) continue;
    l.uniform[i].q = 0;
    l.uniform[i].Checked = False;
  }
  for (int i = 1; i <= 3; ++i) {
    TrapezoidLoad& t = l.trapezoid[i];
    if (t.Checked == 0) continue;
    t.q1 = t.q2 = t.x1 = t.x2 = 0;
    t.Checked = False;
  }
  for (int i = 1; i <= 8; ++i) {
    PointLoad& p = l.point[i];
    if (p.Checked == 0) continue;
    p.Value = 0;
    p.x = 0;
    p.Checked = False;
  }
}

// A point load slot stays where the support can take it: a force not on a support (on the
// cantilever also at the free end), a moment not at a fixed end.
bool PointSlotKept(const PointLoad& p, int supportType, Single L) {
  const bool moment = p.Kind == 1;
  if (!moment) {
    if (supportType == 4) return p.x != 0 && p.x <= L;
    return p.x != 0 && p.x < L;
  }
  switch (supportType) {
    case 0:
    case 3: return p.x <= L;
    case 1:
    case 5: return p.x < L;
    default: return p.x != 0 && p.x < L;  // 2 and 4
  }
}

void CombinationListOfLoading(State& s) {
  View& v = s.view;
  RebuildCombinationList(s);
  v.items["Loading.lstCombination"] = v.items["setup.lstCombination"];
}

}  // namespace

void RefreshLoadTable(State& s) {
  const Project& p = s.project;
  const Loads& l = s.loads;
  View& v = s.view;
  const bool dc = s.decimalComma;
  auto F = [dc](double x, const char* pattern) { return FormatNumber(x, pattern, dc); };

  for (int i = 1; i <= 3; ++i) {
    const AxialLoad& a = l.axial[i];
    v.text[Self("inn", i)] = F(a.N, "#0.0");
    v.text[Self("inn_gq", i)] = CaseText(CaseCode(a.Case));
    v.value[Self("ch_nn", i)] = a.Checked != 0 ? 1 : 0;
  }
  for (int i = 1; i <= 4; ++i) {
    const UniformLoad& q = l.uniform[i];
    v.text[Self("iq", i)] = F(q.q, "#0.0");
    v.text[Self("iq_gq", i)] = CaseText(CaseCode(q.Case));
    v.text[Self("iq_yz", i)] = q.Dir == 0 ? "Y" : "Z";
    v.value[Self("ch_q", i)] = q.Checked != 0 ? 1 : 0;
  }
  for (int i = 1; i <= 3; ++i) {
    const TrapezoidLoad& t = l.trapezoid[i];
    v.text[Self("iqt1", i)] = F(t.q1, "#0.0");
    v.text[Self("iqt2", i)] = F(t.q2, "#0.0");
    v.text[Self("iqtx1", i)] = F(Shown(s, t.x1, l.TrapezoidXRelative), "#0.000");
    v.text[Self("iqtx2", i)] = F(Shown(s, t.x2, l.TrapezoidXRelative), "#0.000");
    v.text[Self("iqt_gq", i)] = CaseText(CaseCode(t.Case));
    v.text[Self("iqt_yz", i)] = t.Dir == 0.0f ? "Y" : "Z";
    v.value[Self("ch_qt", i)] = t.Checked != 0 ? 1 : 0;
  }
  for (int i = 1; i <= 8; ++i) {
    const PointLoad& pl = l.point[i];
    const bool moment = pl.Kind == 1;
    v.text[Self("ipm", i)] = F(pl.Value, "#0.0");
    v.text[Self("ipmx", i)] = F(Shown(s, pl.x, l.PointLoadXRelative), "#0.000");
    v.text[Self("ipm_pm", i)] = std::string(1, moment ? 'M' : 'P');
    v.text[Self("ipm_gq", i)] = CaseText(CaseCode(pl.Case));
    v.text[Self("ipm_yz", i)] = moment ? (pl.Dir == 0 ? "Mz" : "My") : (pl.Dir == 0 ? "Y" : "Z");
    v.value[Self("ch_pm", i)] = pl.Checked != 0 ? 1 : 0;
  }
  v.text["Loading.pmx"] = PositionHeading(l.PointLoadXRelative != 0);
  v.text["Loading.qtx"] = PositionHeading(l.TrapezoidXRelative != 0);
  v.value["Loading.pmxrelative"] = l.PointLoadXRelative != 0 ? 1 : 0;
  v.value["Loading.pmxabsolute"] = l.PointLoadXRelative != 0 ? 0 : 1;
  v.value["Loading.qtxrelative"] = l.TrapezoidXRelative != 0 ? 1 : 0;
  v.value["Loading.qtxabsolute"] = l.TrapezoidXRelative != 0 ? 0 : 1;
  v.value["Loading.check_selfweight"] = p.SelfweightOn == 1 ? 1 : 0;
  v.items["Loading.CboLoadComb"] = LoadCombEntries();
  v.items["Loading.Cbo_Q1_Psi1"] = PsiEntries(s.decimalComma);
  v.items["Loading.Cbo_Q2_Psi2"] = PsiEntries(s.decimalComma);
  v.value["Loading.CboLoadComb"] = p.LoadCombMode;
  v.value["Loading.Cbo_Q1_Psi1"] = p.psiQ1Index;
  v.value["Loading.Cbo_Q2_Psi2"] = p.psiQ2Index;

  // The ticks count in "Basic loads" only, and only there can they be seen.
  const bool basic = p.LoadCombMode == 5, user = p.LoadCombMode == 4;
  v.visible["Loading.frPsi"] = !basic && !user;
  for (const char* frame :
       {"Loading.frN", "Loading.frq", "Loading.frqt", "Loading.frPM", "Loading.CmdRemove"})
    v.visible[frame] = basic;
}

void ActivateLoadingDialog(State& s) {
  s.project.AnalysisMode = 1;
  Recalculate(s);
  CombinationListOfLoading(s);
  RefreshLoadTable(s);
}

void RemoveCheckedLoads(State& s) {
  ClearRows(s);
  AfterChange(s);
}

EventResult ValidateLoadingOnClose(State& s) {
  Project& p = s.project;
  Loads& l = s.loads;
  const Single L = p.L;
  EventResult r;

  // Trapezoids: cut to the member, gone when wholly beyond it, no positions without values.
  for (int i = 1; i <= 3; ++i) {
    TrapezoidLoad& t = l.trapezoid[i];
    if (t.q1 != 0 || t.q2 != 0) {
      if (t.x1 < L || t.x2 < L) {
        if (t.x2 > L) t.x2 = L;
      } else {
        t.q1 = t.q2 = t.x1 = t.x2 = 0;
      }
    } else {
      t.x1 = t.x2 = 0;
    }
    if (t.x1 == 0 && t.x2 == 0) t.q1 = t.q2 = 0;
  }
  for (int i = 1; i <= 3 && !r.refused; ++i) {
    const TrapezoidLoad& t = l.trapezoid[i];
    if ((t.q1 > 0 && t.q2 < 0) || (t.q1 < 0 && t.q2 > 0)) {
      r.refused = true;
      r.message = " Trapezoidal load: One positive and one negative value ";
      r.focus = Self("iqt1", i);
    }
  }
  for (int i = 1; i <= 3 && !r.refused; ++i) {
    const TrapezoidLoad& t = l.trapezoid[i];
    if (t.x1 > t.x2) {
      r.refused = true;
      r.message = " x1 < x2 ";
      r.focus = Self("iqtx1", i);
    }
  }
  // Point loads: no position without a value; none where the support takes it.
  for (int i = 1; i <= 8; ++i) {
    PointLoad& pl = l.point[i];
    if (pl.Value == 0) pl.x = 0;
  }
  for (int i = 1; i <= 8; ++i) {
    PointLoad& pl = l.point[i];
    if (!PointSlotKept(pl, p.SupportType, L)) {
      pl.Value = 0;
      pl.x = 0;
    }
  }
  // Calculation points on the member.
  for (int i = 1; i <= 3; ++i)
    if (p.ChPointX[i] > L) p.ChPointX[i] = L;
  // Web stiffeners no further apart than the member is long.
  if (static_cast<double>(L) * 1000 < p.a) {
    p.webStiffeners = 0;
    p.a = static_cast<Single>(static_cast<double>(L) * 1000 / 2);
  }
  return r;
}

void RegisterLoadingDialogControls(ControlTable& t) {
  // Combination mode and psi factors, as on the main form and in the Setup dialog.
  AddControl(t, kForm, "CboLoadComb", [](State& s, int, std::string_view text) {
    const int index = ChoiceIndex(text);
    if (index < 0 || index > 5) {
      EventResult r;
      r.refused = true;
      r.message = "No such item of CboLoadComb: " + std::string(text);
      return r;
    }
    s.project.LoadCombMode = static_cast<Integer>(index);
    s.view.value["CboLoadComb"] = index;
    SetCombinationFactors(s, s.project.codeIndex);
    Recalculate(s);
    CombinationListOfLoading(s);
    RefreshLoadTable(s);
    return EventResult{};
  });
  for (int list = 1; list <= 2; ++list) {
    const char* name = list == 1 ? "Cbo_Q1_Psi1" : "Cbo_Q2_Psi2";
    AddControl(t, kForm, name, [list, name](State& s, int, std::string_view text) {
      const int index = ChoiceIndex(text);
      if (index < 0 || index > 9) {
        EventResult r;
        r.refused = true;
        r.message = std::string("No such item of ") + name + ": " + std::string(text);
        return r;
      }
      OnPsiChoice(s, list, index);
      CombinationListOfLoading(s);
      RefreshLoadTable(s);
      return EventResult{};
    });
  }
  // The lists' entries before the dialog has been opened.
  t.SetEntries(kForm, "CboLoadComb", [](const State&) { return LoadCombEntries(); });
  for (const char* psi : {"Cbo_Q1_Psi1", "Cbo_Q2_Psi2"})
    t.SetEntries(kForm, psi, [](const State& s) { return PsiEntries(s.decimalComma); });
  AddControl(t, kForm, "check_selfweight", [](State& s, int, std::string_view text) {
    s.project.SelfweightOn = Ticked(text) ? 1 : 0;
    return Changed(s);
  });

  // Axial forces.
  AddControl(
      t, kForm, "inn",
      [](State& s, int i, std::string_view text) {
        return ValueField(s, Self("inn", i), s.loads.axial[i].N, text);
      },
      1, 3);
  AddControl(
      t, kForm, "inn_gq",
      [](State& s, int i, std::string_view) {
        s.loads.axial[i].Case = static_cast<Single>(NextCase(s.loads.axial[i].Case));
        return Changed(s);
      },
      1, 3);
  AddControl(
      t, kForm, "ch_nn",
      [](State& s, int i, std::string_view text) {
        s.loads.axial[i].Checked = ToBoolean(Ticked(text));
        return Changed(s);
      },
      1, 3);

  // Uniform loads.
  AddControl(
      t, kForm, "iq",
      [](State& s, int i, std::string_view text) {
        return ValueField(s, Self("iq", i), s.loads.uniform[i].q, text);
      },
      1, 4);
  AddControl(
      t, kForm, "iq_gq",
      [](State& s, int i, std::string_view) {
        s.loads.uniform[i].Case = static_cast<Integer>(NextCase(s.loads.uniform[i].Case));
        return Changed(s);
      },
      1, 4);
  AddControl(
      t, kForm, "iq_yz",
      [](State& s, int i, std::string_view) {
        UniformLoad& q = s.loads.uniform[i];
        q.Dir = q.Dir == 0 ? 1 : 0;
        return Changed(s);
      },
      1, 4);
  AddControl(
      t, kForm, "ch_q",
      [](State& s, int i, std::string_view text) {
        s.loads.uniform[i].Checked = ToBoolean(Ticked(text));
        return Changed(s);
      },
      1, 4);

  // Trapezoidal loads.
  AddControl(
      t, kForm, "iqt1",
      [](State& s, int i, std::string_view text) {
        return ValueField(s, Self("iqt1", i), s.loads.trapezoid[i].q1, text);
      },
      1, 3);
  AddControl(
      t, kForm, "iqt2",
      [](State& s, int i, std::string_view text) {
        return ValueField(s, Self("iqt2", i), s.loads.trapezoid[i].q2, text);
      },
      1, 3);
  AddControl(
      t, kForm, "iqtx1",
      [](State& s, int i, std::string_view text) {
        return PositionField(s, Self("iqtx1", i), s.loads.trapezoid[i].x1, s.loads.TrapezoidXRelative, "x1",
                             text);
      },
      1, 3);
  AddControl(
      t, kForm, "iqtx2",
      [](State& s, int i, std::string_view text) {
        return PositionField(s, Self("iqtx2", i), s.loads.trapezoid[i].x2, s.loads.TrapezoidXRelative, "x2",
                             text);
      },
      1, 3);
  AddControl(
      t, kForm, "iqt_gq",
      [](State& s, int i, std::string_view) {
        s.loads.trapezoid[i].Case = static_cast<Single>(NextCase(s.loads.trapezoid[i].Case));
        return Changed(s);
      },
      1, 3);
  AddControl(
      t, kForm, "iqt_yz",
      [](State& s, int i, std::string_view) {
        TrapezoidLoad& q = s.loads.trapezoid[i];
        q.Dir = q.Dir == 0.0f ? 1.0f : 0.0f;
        return Changed(s);
      },
      1, 3);
  AddControl(
      t, kForm, "ch_qt",
      [](State& s, int i, std::string_view text) {
        s.loads.trapezoid[i].Checked = ToBoolean(Ticked(text));
        return Changed(s);
      },
      1, 3);

  // Point forces and moments.
  AddControl(
      t, kForm, "ipm",
      [](State& s, int i, std::string_view text) {
        return ValueField(s, Self("ipm", i), s.loads.point[i].Value, text);
      },
      1, 8);
  AddControl(
      t, kForm, "ipmx",
      [](State& s, int i, std::string_view text) {
        return PositionField(s, Self("ipmx", i), s.loads.point[i].x, s.loads.PointLoadXRelative, "x", text);
      },
      1, 8);
  AddControl(
      t, kForm, "ipm_pm",
      [](State& s, int i, std::string_view) {
        PointLoad& pl = s.loads.point[i];
        pl.Kind = pl.Kind == 1 ? 0 : 1;
        return Changed(s);
      },
      1, 8);
  AddControl(
      t, kForm, "ipm_gq",
      [](State& s, int i, std::string_view) {
        s.loads.point[i].Case = static_cast<Integer>(NextCase(s.loads.point[i].Case));
        return Changed(s);
      },
      1, 8);
  AddControl(
      t, kForm, "ipm_yz",
      [](State& s, int i, std::string_view) {
        PointLoad& pl = s.loads.point[i];
        pl.Dir = pl.Dir == 0 ? 1 : 0;
        return Changed(s);
      },
      1, 8);
  AddControl(
      t, kForm, "ch_pm",
      [](State& s, int i, std::string_view text) {
        s.loads.point[i].Checked = ToBoolean(Ticked(text));
        return Changed(s);
      },
      1, 8);

  // How positions are typed.
  auto option = [&t](const char* name, bool point, Integer flag) {
    AddControl(t, kForm, name, [point, flag](State& s, int, std::string_view) {
      (point ? s.loads.PointLoadXRelative : s.loads.TrapezoidXRelative) = flag;
      return Changed(s);
    });
  };
  option("pmxrelative", true, 1);
  option("pmxabsolute", true, 0);
  option("qtxrelative", false, 1);
  option("qtxabsolute", false, 0);

  AddControl(t, kForm, "CmdRemove", [](State& s, int, std::string_view) {
    // The button stands in "Basic loads" mode only.
    if (s.project.LoadCombMode == 5) RemoveCheckedLoads(s);
    return EventResult{};
  });
  AddControl(t, kForm, "Command3", [](State& s, int, std::string_view) {
    ShowDialog(s, "InfoPsi");
    return EventResult{};
  });

  // Opening, and closing with its checks (the same on ok and on unload).
  AddControl(t, kForm, "Activate", [](State& s, int, std::string_view) {
    ActivateLoadingDialog(s);
    return EventResult{};
  });
  for (const char* close : {"ok", "Unload"}) {
    AddControl(t, kForm, close, [](State& s, int, std::string_view) {
      EventResult r = ValidateLoadingOnClose(s);
      if (r.refused) {
        RefreshLoadTable(s);
        return r;
      }
      HideDialog(s, kForm);
      AfterChange(s);
      return r;
    });
  }
}

}  // namespace vn
