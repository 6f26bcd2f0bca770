// The section dialogs of the catalogue families driven through the control table: the profile menu,
// the list of rows, the sub-family options, the figure caption, and the values the dialog shows.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "core/events.h"
#include "core/recalculate.h"
#include "sections/section_fixture.h"

namespace vn::test {
namespace {

State DialogState() {
  State s = SectionState();
  s.project.figureNotToScale = 1;
  s.project.profileName = "HEA";
  s.project.ProfileType = 1;
  // HEA 200 at row 5, IPE 300 at row 10, UB 457x191x67 at row 30, UC 254x254x73 at row 4.
  WriteRow(s, catHea, 5, {200, 190, 200, 10, 6.5f, 18, 5383, 36.92f, 13.36f, 0.2098f, 108.0f});
  WriteRow(s, catIpe, 10, {300, 150, 10.7f, 7.1f, 15, 5381, 83.56f, 6.038f, 0.2012f, 125.9f});
  WriteRow(s, catUb, 30,
           {457, 191, 67, 67.1f, 453.4f, 189.9f, 8.5f, 12.7f, 10.2f, 85.5f, 1.63f, 29400, 1300, 1470, 1450,
            153, 237, 37.1f, 705});
  WriteRow(s, catUc, 4,
           {254, 254, 73, 73.1f, 254.1f, 254.6f, 8.6f, 14.2f, 12.7f, 93.1f, 1.49f, 11400, 898, 992, 3910, 307,
            465, 57.6f, 562});
  s.project.SelectedRow[catHea] = 5;
  s.project.SelectedRow[catIpe] = 10;
  s.project.SelectedRow[catUb] = 30;
  s.project.SelectedRow[catUc] = 4;
  return s;
}

bool IsOpen(const State& s, const std::string& form) {
  const auto& open = s.view.openDialogs;
  return std::find(open.begin(), open.end(), form) != open.end();
}

const View::Line* Line(const State& s, const std::string& label) {
  for (const View::Line& l : s.view.sectionValues)
    if (l.label == label) return &l;
  return nullptr;
}

TEST(SectionDialogs, MenuEntryOpensTheDialogWithItsList) {
  State s = DialogState();
  EventResult r = Fire(s, "mnup01");
  ASSERT_TRUE(r.known);
  EXPECT_FALSE(r.refused);
  EXPECT_TRUE(r.recalculated);
  EXPECT_EQ(s.project.ProfileType, 1);
  EXPECT_EQ(s.project.profileName, "HEA");
  EXPECT_TRUE(IsOpen(s, "p01"));
  const auto& items = s.view.items["p01.cbo"];
  ASSERT_EQ(items.size(), 24u);
  EXPECT_EQ(items[5], "HEA200");
  EXPECT_EQ(items[0], "HEA0");  // an empty row shows the prefix and zero
  EXPECT_EQ(s.view.value["p01.cbo"], 5);
  EXPECT_EQ(s.view.text["p01.pic1"], "Figure not to scale");
  EXPECT_EQ(s.section.h, 190.0f);
  EXPECT_FALSE(s.view.sectionValues.empty());
}

TEST(SectionDialogs, ProfileNamesOfTheMenu) {
  State s = DialogState();
  Fire(s, "mnup04");
  EXPECT_EQ(s.project.ProfileType, 4);
  EXPECT_EQ(s.project.profileName, "IPE");
  Fire(s, "mnup05");  // UPE leaves the name as it was
  EXPECT_EQ(s.project.ProfileType, 5);
  EXPECT_EQ(s.project.profileName, "IPE");
  Fire(s, "mnup16");
  EXPECT_EQ(s.project.ProfileType, 16);
  EXPECT_EQ(s.project.profileName, "IPE");
  Fire(s, "mnup15");
  EXPECT_EQ(s.project.profileName, "INP");
  Fire(s, "mnuj");
  EXPECT_EQ(s.project.ProfileType, 102);
  EXPECT_EQ(s.project.profileName, "J");
  Fire(s, "mnuc");  // the channels are "U" too
  EXPECT_EQ(s.project.ProfileType, 103);
  EXPECT_EQ(s.project.profileName, "U");
  Fire(s, "p02i");  // the picture button does what the menu entry does
  EXPECT_EQ(s.project.ProfileType, 2);
  EXPECT_EQ(s.project.profileName, "HEB");
  EXPECT_TRUE(IsOpen(s, "p02"));
  Fire(s, "mnup11");
  EXPECT_EQ(s.project.ProfileType, 11);
  EXPECT_EQ(s.project.profileName, "L-unequal");
  // The later families keep the name; the general section is drawn not to scale.
  const std::pair<const char*, int> kept[] = {{"mnup06", 6},      {"mnup21", 21},   {"mnu26", 26},
                                              {"mnuplateTg", 56}, {"Command2", 54}, {"mnup28", 28}};
  for (const auto& [control, type] : kept) {
    Fire(s, control);
    EXPECT_EQ(s.project.ProfileType, type) << control;
    EXPECT_EQ(s.project.profileName, "L-unequal") << control;
  }
  EXPECT_TRUE(IsOpen(s, "p54"));
  s.project.figureNotToScale = 0;
  Fire(s, "mnup41");
  EXPECT_EQ(s.project.ProfileType, 41);
  EXPECT_EQ(s.project.figureNotToScale, 1);
  EXPECT_EQ(s.view.text["p41.pic1"], "Figure not to scale");
}

TEST(SectionDialogs, InformationFormsOpenAndClose) {
  State s = DialogState();
  for (const auto& [opener, form] :
       {std::pair{"Picture", "InfoVARNELT"}, std::pair{"setup.cmdULS", "InfoULS"},
        std::pair{"setup.cmdPsi", "InfoPsi"}, std::pair{"mnuabout", "about"}}) {
    Fire(s, opener);
    EXPECT_TRUE(IsOpen(s, form)) << form;
    Fire(s, std::string(form) + ".ok");
    EXPECT_FALSE(IsOpen(s, form)) << form;
  }
}

TEST(SectionDialogs, ListClickSelectsTheRowAndRecalculates) {
  State s = DialogState();
  Fire(s, "mnup04");
  EventResult r = Fire(s, "p04.cbo", "10");
  EXPECT_FALSE(r.refused);
  EXPECT_TRUE(r.recalculated);
  EXPECT_EQ(s.project.SelectedRow[catIpe], 10);
  EXPECT_EQ(s.section.h, 300.0f);
  EXPECT_EQ(s.view.value["p04.cbo"], 10);
  EXPECT_EQ(s.view.text["p04.oname"], "IPE300");
}

TEST(SectionDialogs, ListClickInAnotherDialogBringsItsFamily) {
  State s = DialogState();
  Fire(s, "mnup01");
  Fire(s, "p04.cbo", "10");
  EXPECT_EQ(s.project.ProfileType, 4);
  EXPECT_EQ(s.project.profileName, "IPE");
  EXPECT_EQ(s.section.h, 300.0f);
}

TEST(SectionDialogs, ItemOutsideTheListIsRefused) {
  State s = DialogState();
  Fire(s, "mnup01");
  for (const char* text : {"24", "-1", "abc", ""}) {
    const int before = s.recalcCount;
    EventResult r = Fire(s, "p01.cbo", text);
    EXPECT_TRUE(r.refused) << text;
    EXPECT_FALSE(r.message.empty()) << text;
    EXPECT_EQ(s.recalcCount, before) << text;
    EXPECT_EQ(s.project.SelectedRow[catHea], 5) << text;
  }
  EXPECT_EQ(Fire(s, "p01.cbo", "24").message, "No item 24 in the list of p01 (items 0 to 23)");
  // The UBP list has 18 items only.
  Fire(s, "mnuu");
  Fire(s, "p101.prof3");
  EXPECT_EQ(s.view.items["p101.cbo"].size(), 18u);
  EXPECT_TRUE(Fire(s, "p101.cbo", "18").refused);
  EXPECT_FALSE(Fire(s, "p101.cbo", "17").refused);
}

TEST(SectionDialogs, RowOfZerosEndsInTheCalculationMessage) {
  State s = DialogState();
  Fire(s, "mnup01");
  EventResult r = Fire(s, "p01.cbo", "20");  // a row no file value reached
  EXPECT_FALSE(r.refused);
  EXPECT_TRUE(s.view.txtErrorVisible);
  EXPECT_EQ(s.view.txtError, kCalcErrorText);
}

TEST(SectionDialogs, SubFamiliesKeepTheirRowsSeparately) {
  State s = DialogState();
  Fire(s, "mnuu");
  EXPECT_EQ(s.project.ProfileType, 101);
  EXPECT_EQ(s.project.profileName, "U");
  ASSERT_EQ(s.view.items["p101.cbo"].size(), 81u);  // UB
  EXPECT_EQ(s.view.items["p101.cbo"][30], "UB 457x191x67");
  EXPECT_EQ(s.view.value["p101.cbo"], 30);
  EXPECT_EQ(s.view.value["p101.prof1"], 1);
  EXPECT_EQ(s.section.h, 453.4f);

  Fire(s, "p101.prof2");  // UC
  EXPECT_EQ(s.project.subFamily101, 2);
  EXPECT_EQ(s.view.items["p101.cbo"].size(), 31u);
  EXPECT_EQ(s.view.value["p101.cbo"], 4);
  EXPECT_EQ(s.view.value["p101.prof1"], 0);
  EXPECT_EQ(s.view.value["p101.prof2"], 1);
  EXPECT_EQ(s.section.h, 254.1f);
  Fire(s, "p101.cbo", "6");
  EXPECT_EQ(s.project.SelectedRow[catUc], 6);

  Fire(s, "p101.prof1");  // back to UB: its row is still 30
  EXPECT_EQ(s.project.SelectedRow[catUb], 30);
  EXPECT_EQ(s.view.value["p101.cbo"], 30);
  EXPECT_EQ(s.section.h, 453.4f);
  EXPECT_EQ(s.project.SelectedRow[catUc], 6);

  Fire(s, "mnuc");
  Fire(s, "p103.prof2");
  EXPECT_EQ(s.project.subFamily103, 2);
  EXPECT_EQ(s.view.items["p103.cbo"].size(), 17u);  // CH
  Fire(s, "p103.prof1");
  EXPECT_EQ(s.view.items["p103.cbo"].size(), 16u);  // PFC
}

TEST(SectionDialogs, FigureBoxTogglesTheScaleAndCloseKeepsTheInputs) {
  State s = DialogState();
  Fire(s, "mnup01");
  Fire(s, "p01.pic1");
  EXPECT_EQ(s.project.figureNotToScale, 0);
  EXPECT_EQ(s.view.text["p01.pic1"], "Figure to scale");
  Fire(s, "p01.pic1");
  EXPECT_EQ(s.project.figureNotToScale, 1);
  EXPECT_EQ(s.view.text["p01.pic1"], "Figure not to scale");
  Fire(s, "p01.Command1");
  EXPECT_FALSE(IsOpen(s, "p01"));
  EXPECT_EQ(s.project.SelectedRow[catHea], 5);
  EXPECT_EQ(s.project.ProfileType, 1);
}

TEST(SectionDialogs, BareListNameIsNotAControlOfOneForm) {
  State s = DialogState();
  EXPECT_FALSE(Fire(s, "cbo", "3").known);
}

TEST(ShowSectionValues, Hea200BlocksAsTheDialogShowsThem) {
  State s = DialogState();
  Fire(s, "mnup01");
  struct Expected {
    const char* label;
    const char* value;
    const char* unit;
  };
  // Values: Part of the hand calculations of the property tests; formats of the dialog.
  const Expected lines[] = {
      {"h =", "190", " mm"},
      {"b =", "200", " mm"},
      {"tf =", "10.0", " mm"},
      {"tw =", "6.5", " mm"},
      {"r =", "18", " mm"},
      {"A =", "5383", " mm2"},
      {"Ix =", "2.098E+5", " mm4"},
      {"Iy =", "3.692E+7", " mm4"},
      {"Iz =", "1.336E+7", " mm4"},
      {"Wel,y =", "3.886E+5", " mm3"},
      {"Wel,z =", "1.336E+5", " mm3"},
      {"Wpl,y =", "4.295E+5", " mm3"},
      {"Wpl,z =", "2.038E+5", " mm3"},
      {"Iw =", "1.080E+11", " mm6"},
      {"g =", "42.3", " kg/m"},
      {"S =", "1.136", " m2/m"},
      {"Aeff =", "5383", " mm2"},
      {"Weff,y =", "3.886E+5", " mm3"},
      {"Weff,z =", "1.336E+5", " mm3"},
      {"Cross Section Class: ", "1/1/1", "(N/My/Mz)"},
      {"Nt,Rd =", "1265.0", " kN"},
      {"Nc,Rd =", "1265.0", " kN"},
      {"My,Rd =", "100.9", " kNm"},
      {"Mz,Rd =", "47.9", " kNm"},
  };
  for (const Expected& e : lines) {
    const View::Line* l = Line(s, e.label);
    ASSERT_NE(l, nullptr) << e.label;
    EXPECT_EQ(l->value, e.value) << e.label;
    EXPECT_EQ(l->unit, e.unit) << e.label;
  }
  ASSERT_NE(Line(s, "Vc,y,Rd ="), nullptr);
  ASSERT_NE(Line(s, "Vc,z,Rd ="), nullptr);
  EXPECT_EQ(s.view.sectionValues.front().label, "h =");
}

TEST(ShowSectionValues, DecimalCommaInTheDialog) {
  State s = DialogState();
  s.decimalComma = true;
  Fire(s, "mnup01");
  EXPECT_EQ(Line(s, "tw =")->value, "6,5");
  EXPECT_EQ(Line(s, "S =")->value, "1,136");
}

TEST(ShowSectionValues, BritishDimensionsWithDecimals) {
  State s = DialogState();
  Fire(s, "mnuu");
  EXPECT_EQ(Line(s, "h =")->value, "453.4");
  EXPECT_EQ(Line(s, "b =")->value, "189.9");
  EXPECT_EQ(Line(s, "r =")->value, "10.2");
  EXPECT_EQ(Line(s, "g =")->value, "67.1");
  EXPECT_EQ(Line(s, "S =")->value, "1.630");
}

}  // namespace
}  // namespace vn::test
