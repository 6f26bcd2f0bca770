// A list choice named by the text of its entry, and the kind a control's name gives it.
#include <gtest/gtest.h>

#include "core/events.h"
#include "core/state.h"
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

}  // namespace
}  // namespace vn
