#include "sections/section_dialogs.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "core/events.h"
#include "core/pipeline.h"
#include "core/recalculate.h"
#include "core/state.h"
#include "sections/rolled_i.h"

namespace vn {

namespace {

constexpr std::array<SectionDialogInfo, 31> kDialogs{{
    {1, "p01", "mnup01", "p01i", "HEA"},           {2, "p02", "mnup02", "p02i", "HEB"},
    {3, "p03", "mnup03", "p03i", "HEM"},           {4, "p04", "mnup04", "p04i", "IPE"},
    {15, "p15", "mnup15", "p15i", "INP"},          {5, "p05", "mnup05", "p05i", nullptr},
    {16, "p16", "mnup16", "p16i", nullptr},        {6, "p06", "mnup06", "p06i", nullptr},
    {7, "p07", "mnup07", "p07i", nullptr},         {8, "p08", "mnup08", "p08i", nullptr},
    {9, "p09", "mnup09", "p09i", nullptr},         {10, "p10", "mnup10", "p10i", nullptr},
    {11, "p11", "mnup11", "p11i", "L-unequal"},    {21, "p21", "mnup21", "p21i", nullptr},
    {22, "p22", "mnup22", "p22i", nullptr},        {26, "p26", "mnu26", "p26i", nullptr},
    {23, "p23", "mnup23", "p23i", nullptr},        {27, "p27", "mnup27", "p27i", nullptr},
    {24, "p24", "mnup24", "p24i", nullptr},        {25, "p25", "mnup25", "p25i", nullptr},
    {56, "p56", "mnuplateTg", "p56i", nullptr},    {52, "p52", "mnuplateLr", "p52i", nullptr},
    {53, "p53", "mnuplateLweld", "p53i", nullptr}, {54, "p54", "mnuplateBf", "Command2", nullptr},
    {51, "p51", "mnuplateFb", "p51i", nullptr},    {31, "p31", "mnup31", "p31i", nullptr},
    {28, "p28", "mnup28", "p28i", nullptr},        {41, "p41", "mnup41", "p41i", nullptr},
    {101, "p101", "mnuu", "p101i", "U"},           {102, "p102", "mnuj", "p102i", "J"},
    {103, "p103", "mnuc", "p103i", "U"},  // "U" for the channels too
}};

// The option groups of the dialogs, each shown as the value of "<form>.<group>" that its options
// compare with their own value.
struct OptionGroup {
  const char* form;
  const char* group;
  int (*value)(const State&);
};

const OptionGroup kOptionGroups[] = {
    {"p07", "turned", [](const State& s) -> int { return s.project.rhsTurned; }},
    {"p09", "turned", [](const State& s) -> int { return s.project.rhsTurned; }},
    {"p10", "angle", [](const State& s) -> int { return s.project.angleOption; }},
    {"p11", "angle", [](const State& s) -> int { return s.project.angleOption; }},
    {"p23", "oweld", [](const State& s) -> int { return s.project.p23.oweld; }},
    {"p24", "opthsq", [](const State& s) -> int { return s.project.hsqKind; }},
    {"p25", "opthsq", [](const State& s) -> int { return s.project.hsqKind; }},
    {"p24", "OptClass23", [](const State& s) -> int { return s.project.p24.classOption; }},
    {"p25", "OptClass23", [](const State& s) -> int { return s.project.p25.classOption; }},
    {"p31", "tube", [](const State& s) -> int { return s.project.p31.hotCold == 1 ? 1 : 0; }},
    // The class lists of the general section hold the classes 1 to 4 as the items 0 to 3.
    {"p41", "cboclassN", [](const State& s) -> int { return s.project.p41.classN - 1; }},
    {"p41", "cboclassMy", [](const State& s) -> int { return s.project.p41.classMy - 1; }},
    {"p41", "cboclassMz", [](const State& s) -> int { return s.project.p41.classMz - 1; }},
};

std::string Key(const SectionDialogInfo& d, const char* control) {
  return std::string(d.form) + "." + control;
}

// Draws the figure outside a recalculation; a figure that cannot be drawn stays as it was.
void RedrawFigure(State& s) {
  try {
    DrawSectionFigure(s);
  } catch (const std::exception&) {
  }
}

bool IsOpen(const State& s, const SectionDialogInfo& d) {
  const auto& open = s.view.openDialogs;
  return std::find(open.begin(), open.end(), d.form) != open.end();
}

void Load(State& s, const SectionDialogInfo& d) {
  FillSectionList(s, d);
  ShowDimensionFields(s, d.form);
  if (d.type == 41) {
    s.view.text["p41.istname"] = s.project.p41.name;
    for (const char* list : {"cboclassN", "cboclassMy", "cboclassMz"})
      s.view.items[Key(d, list)] = {"1", "2", "3", "4"};
  }
  if (d.name) s.project.profileName = d.name;
  if (!IsOpen(s, d)) s.view.openDialogs.push_back(d.form);
}

void Unload(State& s, const SectionDialogInfo& d) {
  auto& open = s.view.openDialogs;
  open.erase(std::remove(open.begin(), open.end(), d.form), open.end());
}

void Activate(State& s, const SectionDialogInfo& d) {
  s.view.text[Key(d, "pic1")] = FigureCaption(s);
  s.project.ProfileType = static_cast<Integer>(d.type);
  if (d.name) s.project.profileName = d.name;
  Recalculate(s);
  ShowSectionValues(s);
  ShowDialogOptions(s, d.form);
  RedrawFigure(s);
}

// A control of a dialog is reached only with the dialog open and in front: opening it runs Load,
// bringing it to the front from another form runs Activate.
void EnsureActive(State& s, const SectionDialogInfo& d) {
  if (!IsOpen(s, d)) {
    Load(s, d);
    Activate(s, d);
  } else if (s.project.ProfileType != d.type) {
    Activate(s, d);
  }
}

void OpenFromMenu(State& s, const SectionDialogInfo& d) {
  s.project.ProfileType = static_cast<Integer>(d.type);
  if (d.name) s.project.profileName = d.name;
  if (d.type == 41) s.project.figureNotToScale = 1;  // the general section has no outline to draw
  if (!IsOpen(s, d)) Load(s, d);
  Activate(s, d);
}

int ListRows(const State& s, const SectionDialogInfo& d) {
  const CatalogueId id = CatalogueOfType(s, d.type);
  if (id == catCount) return 0;
  return CatalogueInfo(id).rows;
}

EventResult OnListClick(State& s, const SectionDialogInfo& d, std::string_view text) {
  EventResult r;
  const int rows = ListRows(s, d);
  const int index = ChoiceIndex(text);
  if (index < 0 || index >= rows) {
    r.refused = true;
    r.message = rows > 0 ? "No item " + std::string(text) + " in the list of " + d.form + " (items 0 to " +
                               std::to_string(rows - 1) + ")"
                         : std::string("The list of ") + d.form + " is empty";
    return r;
  }
  EnsureActive(s, d);
  const CatalogueId id = CatalogueOfType(s, d.type);
  s.project.SelectedRow[static_cast<size_t>(id)] = static_cast<Integer>(index);
  s.view.value[Key(d, "cbo")] = index;
  Recalculate(s);
  ShowSectionValues(s);
  return r;
}

// The options of the dialogs with several tables: UB, UC, UBP in p101; PFC, CH in p103. Each table
// keeps its own selected row.
void OnSubFamily(State& s, const SectionDialogInfo& d, int option, int count) {
  EnsureActive(s, d);
  if (d.type == 101)
    s.project.subFamily101 = static_cast<Integer>(option);
  else
    s.project.subFamily103 = static_cast<Integer>(option);
  for (int k = 1; k <= count; ++k)
    s.view.value[Key(d, ("prof" + std::to_string(k)).c_str())] = k == option ? 1 : 0;
  FillSectionList(s, d);
  Recalculate(s);
  ShowSectionValues(s);
}

// The general section's name, which its label shows, and its three class lists.
void RegisterGeneralSectionControls(ControlTable& t, const SectionDialogInfo* d) {
  AddControl(t, d->form, "istname", [d](State& s, int, std::string_view text) {
    EnsureActive(s, *d);
    s.project.p41.name = std::string(text);
    s.view.text[Key(*d, "istname")] = s.project.p41.name;
    Recalculate(s);
    ShowSectionValues(s);
    EventResult r;
    r.text = s.project.p41.name;
    r.recalculated = true;
    return r;
  });
  struct ClassList {
    const char* name;
    Integer GeneralInput::*slot;
  };
  static constexpr ClassList kLists[] = {{"cboclassN", &GeneralInput::classN},
                                         {"cboclassMy", &GeneralInput::classMy},
                                         {"cboclassMz", &GeneralInput::classMz}};
  for (const ClassList& list : kLists) {
    AddControl(t, d->form, list.name, [d, list](State& s, int, std::string_view text) {
      EventResult r;
      const int index = ChoiceIndex(text);
      if (index < 0 || index > 3) {
        r.refused = true;
        r.message =
            "No item " + std::string(text) + " in the list " + d->form + "." + list.name + " (items 0 to 3)";
        return r;
      }
      EnsureActive(s, *d);
      s.project.p41.*list.slot = static_cast<Integer>(index + 1);
      Recalculate(s);
      ShowSectionValues(s);
      ShowDialogOptions(s, d->form);
      r.recalculated = true;
      return r;
    });
    t.SetEntries(d->form, list.name, [](const State&) {
      return std::vector<std::string>{"1", "2", "3", "4"};
    });
  }
}

}  // namespace

const SectionDialogInfo* SectionDialogOfType(int type) {
  for (const SectionDialogInfo& d : kDialogs)
    if (d.type == type) return &d;
  return nullptr;
}

void ShowDialogOptions(State& s, std::string_view form) {
  for (const OptionGroup& g : kOptionGroups)
    if (form == g.form) s.view.value[std::string(g.form) + "." + g.group] = g.value(s);
}

const SectionDialogInfo* SectionDialogOfForm(std::string_view form) {
  for (const SectionDialogInfo& d : kDialogs)
    if (form == d.form) return &d;
  return nullptr;
}

void EnsureSectionDialogActive(State& s, std::string_view form) {
  if (const SectionDialogInfo* d = SectionDialogOfForm(form)) EnsureActive(s, *d);
}

void AddSectionDialogOption(ControlTable& t, const char* form, const std::string& control,
                            std::function<void(State&)> set) {
  AddControl(t, form, control, [form, set](State& s, int, std::string_view) {
    EnsureSectionDialogActive(s, form);
    set(s);
    Recalculate(s);
    ShowSectionValues(s);
    ShowDialogOptions(s, form);  // a run may have turned an option off
    RedrawFigure(s);             // the stock picture follows some options
    return EventResult{};
  });
}

std::string FigureCaption(const State& s) {
  return s.project.figureNotToScale != 0 ? "Figure not to scale" : "Figure to scale";
}

void FillSectionList(State& s, const SectionDialogInfo& d) {
  std::vector<std::string>& items = s.view.items[Key(d, "cbo")];
  items.clear();
  const CatalogueId id = CatalogueOfType(s, d.type);
  if (id == catCount) return;
  try {
    items = CatalogueList(s.catalogues, id);
  } catch (const CalcFault&) {
    items.clear();  // a table never read: the list stays empty
  }
  s.view.value[Key(d, "cbo")] = s.project.SelectedRow[static_cast<size_t>(id)];
  if (d.type == 101) {
    for (int k = 1; k <= 3; ++k)
      s.view.value[Key(d, ("prof" + std::to_string(k)).c_str())] = s.project.subFamily101 == k;
  } else if (d.type == 103) {
    s.view.value[Key(d, "prof1")] = s.project.subFamily103 == 1;
    s.view.value[Key(d, "prof2")] = s.project.subFamily103 != 1;
  }
}

void RegisterSectionControls(ControlTable& t) {
  for (const SectionDialogInfo& dialog : kDialogs) {
    const SectionDialogInfo* d = &dialog;
    auto open = [d](State& s, int, std::string_view) {
      OpenFromMenu(s, *d);
      return EventResult{};
    };
    AddControl(t, "", d->menu, open);
    AddControl(t, "", d->button, open);

    AddControl(t, d->form, "Activate", [d](State& s, int, std::string_view) {
      if (!IsOpen(s, *d)) Load(s, *d);
      Activate(s, *d);
      return EventResult{};
    });
    AddControl(t, d->form, "cbo",
               [d](State& s, int, std::string_view text) { return OnListClick(s, *d, text); });
    AddControl(t, d->form, "pic1", [d](State& s, int, std::string_view) {
      EnsureActive(s, *d);
      s.project.figureNotToScale = s.project.figureNotToScale != 0 ? 0 : 1;
      s.view.text[Key(*d, "pic1")] = FigureCaption(s);
      RedrawFigure(s);
      return EventResult{};
    });
    AddControl(t, d->form, "Command1", [d](State& s, int, std::string_view) {
      Unload(s, *d);  // the inputs stay in the project
      return EventResult{};
    });

    // A rectangular tube as catalogued (h upright) or turned by 90 degrees.
    if (d->type == 7 || d->type == 9) {
      AddSectionDialogOption(t, d->form, "optturn1", [](State& s) { s.project.rhsTurned = 1; });
      AddSectionDialogOption(t, d->form, "optturn0", [](State& s) { s.project.rhsTurned = 0; });
    }
    // The welds of the box, which choose its buckling curve.
    if (d->type == 23) {
      AddSectionDialogOption(t, d->form, "oweld0", [](State& s) { s.project.p23.oweld = 0; });
      AddSectionDialogOption(t, d->form, "oweld1", [](State& s) { s.project.p23.oweld = 1; });
    }
    if (d->type == 10 || d->type == 11) {
      // How the angle is connected: 1 as a member of its own, 2 by one leg, which the buckling
      // control takes with the effective slenderness of the angle rules.
      for (int k = 1; k <= 2; ++k)
        AddSectionDialogOption(t, d->form, "opt_l10_" + std::to_string(k),
                               [k](State& s) { s.project.angleOption = static_cast<Integer>(k); });
    }

    // A tube hot finished or cold formed.
    if (d->type == 31) {
      AddSectionDialogOption(t, d->form, "opthot", [](State& s) { s.project.p31.hotCold = 1; });
      AddSectionDialogOption(t, d->form, "optcold", [](State& s) { s.project.p31.hotCold = 0; });
    }

    if (d->type == 41) RegisterGeneralSectionControls(t, d);

    if (d->type == 24 || d->type == 25) {
      // The load of the floor slabs on one projection of the lower plate, considered or not.
      AddSectionDialogOption(t, d->form, "opthsq0", [](State& s) { s.project.hsqKind = 0; });
      AddSectionDialogOption(t, d->form, "opthsq1", [](State& s) { s.project.hsqKind = 1; });
      // A class 3 web upgraded to class 2 (EN 1993-1-1 6.2.2.4): 0 yes, 1 no.
      const bool sym = d->type == 24;
      auto classOption = [sym](State& s) -> Integer& {
        return sym ? s.project.p24.classOption : s.project.p25.classOption;
      };
      AddSectionDialogOption(t, d->form, "OptClass23Y", [classOption](State& s) { classOption(s) = 0; });
      AddSectionDialogOption(t, d->form, "OptClass23N", [classOption](State& s) { classOption(s) = 1; });
    }

    if (d->type == 101 || d->type == 103) {
      const int count = d->type == 101 ? 3 : 2;
      for (int k = 1; k <= count; ++k) {
        AddControl(t, d->form, "prof" + std::to_string(k), [d, k, count](State& s, int, std::string_view) {
          OnSubFamily(s, *d, k, count);
          return EventResult{};
        });
      }
    }
  }
}

}  // namespace vn
