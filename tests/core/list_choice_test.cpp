// A list choice named by the text of its entry, and the kind a control's name gives it.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

#include "core/captions.h"
#include "core/events.h"
#include "core/format.h"
#include "core/state.h"
#include "design/design_basis.h"
#include "support/test_support.h"

namespace vn {
namespace {

TEST(ListChoice, TheEntryByItsTextWithCaseAndBlanksAside) {
  State s = test::StartedState();
  Fire(s, "mnusetup");  // the setup dialog fills its lists when it opens
  struct Case {
    const char* control;
    const char* text;
    int index;
  };
  // The catalogue list of p04 is filled only when its dialog opens: it is filled for the match.
  const Case cases[] = {
      {"cbofyk", "S275", 2},      {"cbofyk", " s275 n/nl ", 3},
      {"p04.cbo", "IPE 360", 12}, {"p04.cbo", "ipe80", 0},
      {"Cbo1993", "EC3", 0},      {"setup.Cbo_Q1_Psi1", "0.7", 6},
      {"cbofyk", "S999", -1},     {"p04.cbo", "HEA 300", -1},
      {"cbobcy", "A", 2},  // the curve "a", not "Auto" or "a0"
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.control) + "=" + c.text);
    const ControlEntry* e = Controls().Find(c.control, nullptr);
    ASSERT_NE(e, nullptr);
    std::vector<std::string> entries;
    EXPECT_EQ(ChoiceByText(s, *e, c.text, &entries), c.index);
    EXPECT_FALSE(entries.empty());
  }
}

TEST(ListChoice, FillingACatalogueListLeavesTheProjectAsItWas) {
  State s = test::StartedState();
  const int type = s.project.ProfileType;
  std::vector<std::string> entries;
  ChoiceByText(s, *Controls().Find("p04.cbo", nullptr), "IPE 360", &entries);
  EXPECT_EQ(s.project.ProfileType, type);
  EXPECT_TRUE(s.view.openDialogs.empty());
}

TEST(ControlKinds, EachControlHasTheKindOfItsForm) {
  struct Case {
    const char* control;
    ControlKind kind;
  };
  const Case cases[] = {
      {"il", ControlKind::Field},
      {"Loading.iq(1)", ControlKind::Field},
      {"iproj", ControlKind::Text},
      {"cbofyk", ControlKind::List},
      {"setup.Cbo1993", ControlKind::List},
      {"CheckSLS", ControlKind::CheckBox},
      {"Loading.ch_pm(2)", ControlKind::CheckBox},
      {"Loading.iq_gq(1)", ControlKind::Button},
      {"mnup04", ControlKind::Menu},
      {"cbutt2", ControlKind::Option},
      {"setup.rbtnMethod1", ControlKind::Option},
      {"p04.Activate", ControlKind::Event},
      {"CmdResult", ControlKind::Button},
  };
  for (const Case& c : cases) {
    const ControlEntry* e = Controls().Find(c.control, nullptr);
    ASSERT_NE(e, nullptr) << c.control;
    EXPECT_EQ(KindText(e->kind), std::string(KindText(c.kind))) << c.control;
  }
}

// The lists of the dialogs take their entries by text before the dialog has been opened in the
// run, and choosing the index found sets what the entry names.
TEST(ListChoice, ADialogsListBeforeTheDialogOpens) {
  State s = test::StartedState();
  struct Case {
    const char* control;
    const char* text;
    int index;
  };
  // Psi lists hold 0.1 to 1.0; the grade table's rows: S235, S235 ..., S275 (2), ..., S355 (5).
  const Case cases[] = {
      {"setup.cbofyk", "S355", 5},
      {"setup.Cbo_Q1_Psi1", "0,5", 4},
      {"Loading.Cbo_Q2_Psi2", "0.3", 2},
      {"Loading.CboLoadComb", "en 1990 eq 6.10a", 1},
      {"setup.CboLoadComb", "Basic loads", 5},
      {"setup.Cbo1993", "EC3 - User defined", kCodeUserDefined},
      {"p05.cbo", "UPE 200", 6},
      {"setup.Cbo_Q1_Psi1", "0.75", -1},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.control) + "=" + c.text);
    std::vector<std::string> entries;
    EXPECT_EQ(ChoiceByText(s, *Controls().Find(c.control, nullptr), c.text, &entries), c.index);
    EXPECT_FALSE(entries.empty());
  }
  EXPECT_TRUE(s.view.openDialogs.empty());
  EXPECT_FALSE(Fire(s, "setup.cbofyk", "5").refused);
  EXPECT_EQ(s.project.steelGrade, 5);
  EXPECT_FLOAT_EQ(s.project.fyk, 355.0f);
}

// The captions the forms show, as the forms of the program write them.
TEST(Captions, EachControlHasTheTextOfItsForm) {
  State s = test::StartedState();
  struct Case {
    const char* form;
    const char* name;
    const char* caption;
    const char* frame;
  };
  const Case cases[] = {
      {"", "il", "L =", "Member data (m)"},
      {"", "mnusaveas", "Save &As", "&File"},
      {"", "mnup31", "&Tube", "&Profiles"},
      {"", "p31i", "&Tube", "&Profiles"},  // the family's button carries its menu caption
      {"", "Command2", "Plate + Bf", "&Profiles"},
      {"setup", "ibeta", "beta =", "Parameters lamdaLT0 && beta"},
      {"setup", "iLfSLS_Q2", "Variable (Q2) =", "ULS/SLS Loadfactors"},
      {"Loading", "iq", "q (kN/m)", "q-load"},
      {"Loading", "ipmx", "x(m)", "Point load / Moment (kN, kNm, m)"},
      {"p22", "isttf1", "tf1 =", "Dimensions"},
      {"p56", "istb1", "b1 =", "Plate:"},
      {"p56", "isttw", "tw =", "Stiffener:"},
      {"p41", "istwply", "Wpl,y =", "Section property"},
      {"p101", "prof3", "UBP", ""},
      {"p103", "prof2", "CH", ""},
      {"p24", "OptClass23Y", "Yes", "Upgrade section class if Class 3 web (Ch 6.2.2.24)"},
      {"p04", "Command1", "Close", ""},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.form) + "." + c.name);
    const ControlCaption got = CaptionOf(c.form, c.name, &s);
    EXPECT_EQ(got.caption, c.caption);
    EXPECT_EQ(got.frame, c.frame);
  }
  EXPECT_EQ(CaptionOf("setup", "ibeta").row, "  Rolled I-section");
  EXPECT_EQ(CaptionOf("", "cbutt4").tip, "Cantilever: fixed at x=0, free at x=L");
  EXPECT_EQ(ShownText("Save &As"), "Save As");
  EXPECT_EQ(ShownText("lamdaLT0 && beta"), "lamdaLT0 & beta");
  // The head of the column of positions follows the choice of relative positions.
  Fire(s, "Loading.pmxrelative");
  EXPECT_EQ(CaptionOf("Loading", "ipmx", &s).caption, "x/L");
}

// Every control a person can act on has a text of its own, a tip or at least its frame.
TEST(Captions, NoControlWithoutAWord) {
  for (const ControlEntry& e : Controls().Entries()) {
    if (e.kind == ControlKind::Event || e.name == "ok" || e.name == "mnurecentfile") continue;
    const ControlCaption c = CaptionOf(e.form, e.name);
    EXPECT_FALSE(c.caption.empty() && c.tip.empty() && c.frame.empty()) << e.form << "." << e.name;
  }
}

// The limits listed for a field are those its test takes: both bounds pass, a step beyond each is
// refused. (beta passes up to 1 although its message says 0.8.)
TEST(Captions, TheLimitsListedAreTheLimitsTested) {
  int checked = 0;
  for (const ControlEntry& e : Controls().Entries()) {
    if (e.kind != ControlKind::Field || e.limits.empty()) continue;
    double lo = 0, hi = HUGE_VAL;
    char* end = nullptr;
    if (e.limits.rfind("at least ", 0) == 0) {
      lo = std::strtod(e.limits.c_str() + 9, &end);
      if (*end) continue;
    } else {
      lo = std::strtod(e.limits.c_str(), &end);
      if (std::string(end).rfind(" to ", 0) != 0) continue;
      hi = std::strtod(end + 4, &end);
      if (*end) continue;  // limits that depend on the state ("100 to 1000 * L")
    }
    const std::string name = e.form.empty() ? e.name : e.form + "." + e.name;
    SCOPED_TRACE(name + ": " + e.limits);
    const double step = e.format.find('.') == std::string::npos ? 1.0 : 0.01;
    auto refused = [&](double v) {
      State s = test::StartedState();
      // The code's fields, a typed strength and the load factors are open under the user's code,
      // the user's row and the mode "ULS/SLS"; the spring with spring supports.
      Fire(s, "setup.Cbo1993", std::to_string(kCodeUserDefined));
      Fire(s, "setup.cbofyk", std::to_string(s.steel.gradeLast));
      Fire(s, "setup.CboLoadComb", "4");  // the load factors of "ULS/SLS"
      Fire(s, "cbutt3");                  // the spring value of spring supports
      const EventResult r = Fire(s, name, FormatNumber(v, "0.0##", false));
      EXPECT_TRUE(r.known);
      return r.refused;
    };
    EXPECT_FALSE(refused(lo));
    EXPECT_TRUE(refused(lo - step));
    if (hi != HUGE_VAL) {
      EXPECT_FALSE(refused(hi));
      EXPECT_TRUE(refused(hi + step));
    }
    ++checked;
  }
  EXPECT_GE(checked, 25);
}

}  // namespace
}  // namespace vn
