// The shear capacity text of the main form and the dialog endstiff ("End Supports/Web stiffener"),
// which sets the web stiffeners, their spacing a and the end post that the shear control reads.
#include <string>

#include "analysis/member_analysis.h"
#include "core/control_registry.h"
#include "core/events.h"
#include "core/format.h"
#include "core/pipeline.h"
#include "core/recalculate.h"
#include "core/state.h"

namespace vn {

namespace {

const char* const kEndStiff = "endstiff";

bool ShowsWebText(int type) { return type < 21 || (type >= 28 && type <= 50); }

std::string PlasticLine(const State& s) {
  return "Vpl,z,Rd = " + FormatNumber(s.section.VplRd, "#00.0", s.decimalComma) + " kN (Plastic capacity)";
}

std::string ActualLine(const State& s) {
  return "Vb,z,Rd = " + FormatNumber(s.section.VbzRd, "#00.0", s.decimalComma) + " kN (Actual capacity)";
}

std::string SpacingText(const State& s) {
  return "c/c=" + FormatNumber(s.project.a, "#00", s.decimalComma) + " mm";
}

// The dialog's options, its field and its result lines as the record stands.
void RefreshEndStiff(State& s) {
  const Project& p = s.project;
  View& v = s.view;
  v.text["endstiff.caption"] = "End Supports/Web stiffener";
  v.text["endstiff.frcapacity"] = "Capacity  (EN 1993-1-5, ch 5.2-5.4)";
  v.text["endstiff.frwebstiff"] = "Vertical web stiffener ";
  v.text["endstiff.frendsupport"] = "End Support (EN 1993-1-5, ch 5.3)";
  v.text["endstiff.oendstiff0"] = "Non-rigid end post";
  v.text["endstiff.oendstiff1"] = "Rigid end post";
  v.text["endstiff.note"] = "Minimum two webstiffeners at the support";
  v.value["endstiff.cwebstiff0"] = p.webStiffeners == 0 ? 1 : 0;
  v.value["endstiff.cwebstiff1"] = p.webStiffeners == 0 ? 0 : 1;
  v.value["endstiff.oendstiff0"] = p.rigidEndPost == 0 ? 1 : 0;
  v.value["endstiff.oendstiff1"] = p.rigidEndPost == 0 ? 0 : 1;
  v.visible["endstiff.iweba"] = p.webStiffeners != 0;
  v.text["endstiff.iweba"] = FormatNumber(p.a, "#0", s.decimalComma);
  v.text["endstiff.ovbrzd"] = PlasticLine(s) + "\n" + ActualLine(s);
}

EventResult RunAndRefresh(State& s) {
  Recalculate(s);
  RefreshEndStiff(s);
  return {};
}

}  // namespace

void ShowWebText(State& s) {
  const Project& p = s.project;
  View& v = s.view;
  const bool shown = ShowsWebText(p.ProfileType);
  const bool stiffeners = shown && p.webStiffeners == 1;
  v.visible["owebstiff"] = stiffeners;
  v.visible["owebcc"] = stiffeners;
  v.visible["ovplzrd"] = shown;
  v.visible["ovbzrd"] = shown;
  if (stiffeners) {
    v.text["owebstiff"] = "Web stiffener";
    v.text["owebcc"] = SpacingText(s);
  }
  if (shown) {
    // Vb,z,Rd is that of the last check point.
    v.text["ovplzrd"] = PlasticLine(s);
    v.text["ovbzrd"] = ActualLine(s);
  }
}

void RegisterControlsChecks(ControlTable& t) {
  // The main form's button opens the dialog.
  AddControl(t, "", "cbuttsupport", [](State& s, int, std::string_view) {
    ShowDialog(s, kEndStiff);
    RefreshEndStiff(s);
    return EventResult{};
  });
  AddControl(t, kEndStiff, "Activate", [](State& s, int, std::string_view) {
    RefreshEndStiff(s);
    return EventResult{};
  });
  AddControl(t, kEndStiff, "ok", [](State& s, int, std::string_view) {
    HideDialog(s, kEndStiff);
    return EventResult{};
  });

  // Without stiffeners the panel is the whole member.
  AddControl(t, kEndStiff, "cwebstiff0", [](State& s, int, std::string_view) {
    s.project.webStiffeners = 0;
    s.project.a = ToSingle(1000.0 * s.project.L);
    return RunAndRefresh(s);
  });
  AddControl(t, kEndStiff, "cwebstiff1", [](State& s, int, std::string_view) {
    s.project.webStiffeners = 1;
    return RunAndRefresh(s);
  });
  for (int post = 0; post <= 1; ++post) {
    AddControl(t, kEndStiff, "oendstiff" + std::to_string(post), [post](State& s, int, std::string_view) {
      s.project.rigidEndPost = static_cast<Integer>(post);
      return RunAndRefresh(s);
    });
  }

  // The spacing: 100 <= a <= 1000 L, both bounds taken, whatever the message says.
  AddNumericField(t, kEndStiff, "iweba",
                  {"#0", false, [](State& s, double v) { s.project.a = static_cast<Single>(v); },
                   [](const State& s) { return double(s.project.a); },
                   [](const State& s, double v) { return v >= 100 && v <= 1000.0 * s.project.L; },
                   " 100 < a < l ", "endstiff.cwebstiff1", [](State& s) { RunAndRefresh(s); }, true, nullptr,
                   "100 to 1000 * L (mm; L in m)"});
}

}  // namespace vn
