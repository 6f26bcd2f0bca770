// Buckling length factors: the case buttons of the dialogs bucklingy and bucklingz, and the cases
// that a change of the end supports sets.
#include <string>

#include "analysis/member_analysis.h"
#include "core/events.h"
#include "core/format.h"
#include "core/recalculate.h"
#include "core/state.h"

namespace vn {

namespace {

// Picture of the main form's buckling button: button 1 for 2.0, 2 for 1.0, 3 for 0.7, 4 for 0.5,
// else 6 (typed); case 5 shows button 5. The factor is compared exactly, as a Single.
int BucklingPicture(Single factor, Integer bucklingCase) {
  int pic = 6;
  if (factor == 2.0f)
    pic = 1;
  else if (factor == 1.0f)
    pic = 2;
  else if (factor == 0.7f)
    pic = 3;
  else if (factor == 0.5f)
    pic = 4;
  if (bucklingCase == 5) pic = 5;
  return pic;
}

}  // namespace

void ShowBucklingFactors(State& s) {
  const Project& p = s.project;
  View& v = s.view;
  v.text["ibly"] = FormatNumber(p.bucklingFactorY, "#0.00", s.decimalComma);
  v.text["iblz"] = FormatNumber(p.bucklingFactorZ, "#0.00", s.decimalComma);
  v.value["cbuttbucklingy"] = BucklingPicture(p.bucklingFactorY, p.bucklingCaseY);
  v.value["cbuttbucklingz"] = BucklingPicture(p.bucklingFactorZ, p.bucklingCaseZ);
}

namespace {

// The dialog marks the button of the current case; case 6 marks the hidden button 6.
void MarkCase(State& s, const std::string& form, Integer bucklingCase) {
  for (int c = 1; c <= 6; ++c)
    s.view.value[form + "." + form + std::to_string(c)] = c == bucklingCase ? 1 : 0;
}

}  // namespace

Single BucklingFactorOfCase(int bucklingCase) {
  switch (bucklingCase) {
    case 1: return 2.0f;    // cantilever
    case 2: return 1.0f;    // pinned-pinned
    case 3: return 0.7f;    // pinned-fixed
    case 4: return 0.5f;    // fixed-fixed
    case 5: return 0.001f;  // held over the length: no buckling governs
  }
  return 0;
}

void ApplySupportTypeToBuckling(State& s) {
  Project& p = s.project;
  int c;
  switch (p.SupportType) {
    case 0:
    case 3:
    case 5: c = 2; break;
    case 1: c = 3; break;
    case 2: c = 4; break;
    case 4: c = 1; break;
    default: return;
  }
  // Cases 5 and 6 are the user's own choice and stay.
  if (p.bucklingCaseY != 5 && p.bucklingCaseY != 6) {
    p.bucklingCaseY = static_cast<Integer>(c);
    p.bucklingFactorY = BucklingFactorOfCase(c);
  }
  if (p.bucklingCaseZ != 5 && p.bucklingCaseZ != 6) {
    p.bucklingCaseZ = static_cast<Integer>(c);
    p.bucklingFactorZ = BucklingFactorOfCase(c);
  }
  ShowBucklingFactors(s);
}

void RegisterBucklingDialogControls(ControlTable& t) {
  for (int axis = 0; axis < 2; ++axis) {
    const std::string form = axis == 0 ? "bucklingy" : "bucklingz";
    for (int c = 1; c <= 5; ++c) {
      auto click = [axis, c, form](State& s, int, std::string_view) {
        Project& p = s.project;
        (axis == 0 ? p.bucklingCaseY : p.bucklingCaseZ) = static_cast<Integer>(c);
        (axis == 0 ? p.bucklingFactorY : p.bucklingFactorZ) = BucklingFactorOfCase(c);
        MarkCase(s, form, static_cast<Integer>(c));
        ShowBucklingFactors(s);
        Recalculate(s);
        return EventResult{};
      };
      AddControl(t, form, form + std::to_string(c), click);
    }
    AddControl(t, form, "Activate", [axis, form](State& s, int, std::string_view) {
      MarkCase(s, form, axis == 0 ? s.project.bucklingCaseY : s.project.bucklingCaseZ);
      return EventResult{};
    });
    AddControl(t, form, "ok", [form](State& s, int, std::string_view) {
      HideDialog(s, form);
      return EventResult{};
    });
  }
}

}  // namespace vn
