#include "core/captions.h"

#include <string>

#include "core/state.h"
#include "sections/section_dialogs.h"

namespace vn {

namespace {

struct Entry {
  const char* form;
  const char* name;
  const char* caption = "";
  const char* frame = "";
  const char* row = "";
  const char* tip = "";
};

// Frames of the forms, each written once.
constexpr const char* kColumn = "Column data";
constexpr const char* kSupports = "End supports";
constexpr const char* kSupport = "Support";
constexpr const char* kLtb = "Lateral Torsional Buckling";
constexpr const char* kLc = "Load Combinations (LC)";
constexpr const char* kChartZ = "Loading/Moment/Shear/Deflection - Z-axis  ";
constexpr const char* kChartY = "Loading/Moment/Shear/Deflection - Y-axis  ";
constexpr const char* kPsi = "EN 1990 - Psi factors for Q-loads";
constexpr const char* kPartial = "Partial factors (ch 6.1)";
constexpr const char* kLambda = "Parameters lamdaLT0 && beta";
constexpr const char* kUls = "ULS/SLS Loadfactors";
constexpr const char* kAxial = "Axial Force ";
constexpr const char* kUniform = "q-load";
constexpr const char* kTrapezoid = "Trapezoidal load (kN/m, m)";
constexpr const char* kPoint = "Point load / Moment (kN, kNm, m)";
constexpr const char* kEndForces = "Endforces (kN, kNm)";
constexpr const char* kPoints = "Characteristic points (CP)";
constexpr const char* kWeb = "Vertical web stiffener ";
constexpr const char* kEndPost = "End Support (EN 1993-1-5, ch 5.3)";
constexpr const char* kCurves = "Lateral torsional buckling curves (ref ch 6.3.2.2/6.3.2.3)";
constexpr const char* kLevel = "Loadlevel";
constexpr const char* kLtbLength = "Lateral torsional buckling length";
constexpr const char* kLtbCapacity = "Lateral torsional bending/buckling capacity ";
constexpr const char* kFile = "&File";
constexpr const char* kProfiles = "&Profiles";
constexpr const char* kPrint = "P&rint";
constexpr const char* kHelp = "&Help";
constexpr const char* kHowMany = "Number of Points:";
constexpr const char* kRelative = "Relative (x/L)";
constexpr const char* kAbsolute = "Absolute (m)";

// Dialog events (Activate, Unload) and the slots of the recent files show no caption of their own.
constexpr Entry kTable[] = {
    // ---- Main form ----
    {"", "iproj", "Project", "Input"},
    {"", "iident", "Ident", "Input"},
    {"", "il", "L =", "Member data (m)"},
    {"", "ibly", "Length factor", kColumn, "", ""},
    {"", "iblz", "Length factor", kColumn},
    {"", "cbuttbucklingy", "", kColumn, "", "Buckling length, Y-axis"},
    {"", "cbuttbucklingz", "", kColumn, "", "Buckling length, Z-axis"},
    {"", "cbobcy", "Buckling curve", kColumn},
    {"", "cbobcz", "Buckling curve", kColumn},
    {"", "cbofyk", "", "Material"},
    {"", "ifyk", "fyk =", "Material"},
    {"", "ch_vipp", "Lat tors buckl", kLtb},
    {"", "cbuttlateral", "...", kLtb, "", "Lateral torsional buckling parameters"},
    {"", "cbutt0", "", kSupports, "", "Simply supported"},
    {"", "cbutt1", "", kSupports, "", "Pinned at x=0, fixed at x=L"},
    {"", "cbutt2", "", kSupports, "", "Fixed at both ends"},
    {"", "cbutt3", "", kSupports, "", "Spring restraint at both ends"},
    {"", "cbutt4", "", kSupports, "", "Cantilever: fixed at x=0, free at x=L"},
    {"", "cbutt5", "", kSupports, "", "Pinned at x=0, spring restraint at x=L"},
    {"", "ispring", "Spring =", kSupport},
    {"", "cbuttsupport", "Web stiffeners...", kSupport},
    {"", "ch_modal", "Modal analysis", "Modal Analysis"},
    {"", "cmd_modresult", "Results", "Modal Analysis"},
    {"", "cp", "Calculation points...", "Calculation points"},
    {"", "CboLoadComb", "", kLc},
    {"", "CheckSLS", "Incl Deflection control L/", kLc},
    {"", "idef_limit", "Incl Deflection control L/", kLc},
    {"", "PicLoadZ", "", kChartZ, "", "Click: the loads"},
    {"", "PicMy", "", kChartZ, "", "Click: the loads"},
    {"", "PicLoadY", "", kChartY, "", "Click: the loads"},
    {"", "PicMz", "", kChartY, "", "Click: the loads"},
    {"", "CmdResult", "More Results", "Results "},
    {"", "Picture", "Varnelt EC3", "", "", "About the program and its data files"},
    // Menus.
    {"", "mnufile", "&File"},
    {"", "mnunew", "&New", kFile},
    {"", "mnuopen", "&Open", kFile},
    {"", "mnusave", "&Save", kFile},
    {"", "mnusaveas", "Save &As", kFile},
    {"", "mnuprint00", "Print - Section &Property and Capacity", kFile},
    {"", "mnuprint11", "Print  - Section and Stability Control", kFile},
    {"", "mnupdf0", "Export PDF - Section Property and Capacity...", kFile},
    {"", "mnupdf1", "Export PDF - Section and Stability Control...", kFile},
    {"", "mnurecentfile", "", kFile},
    {"", "mnuexit", "&Exit", kFile},
    {"", "mnusetup", "&Setup"},
    {"", "mnustiff", "&Profiles"},
    {"", "mnup01", "HEA", kProfiles},
    {"", "mnup02", "HEB", kProfiles},
    {"", "mnup03", "HEM", kProfiles},
    {"", "mnup04", "IPE", kProfiles},
    {"", "mnup15", "INP", kProfiles},
    {"", "mnup05", "UPE", kProfiles},
    {"", "mnup16", "UNP", kProfiles},
    {"", "mnup06", "RHS - Square (Hotformed)", kProfiles},
    {"", "mnup07", "RHS - Rect (Hotformed)", kProfiles},
    {"", "mnup08", "CFRHS - Square (Coldformed)", kProfiles},
    {"", "mnup09", "CFRHS - Rect (Coldformed)", kProfiles},
    {"", "mnup10", "L-equal", kProfiles},
    {"", "mnup11", "L-unequal", kProfiles},
    {"", "mnup21", "I - double symmetric", kProfiles},
    {"", "mnup22", "I - single symmetric", kProfiles},
    {"", "mnu26", "T", kProfiles},
    {"", "mnup23", "Box ", kProfiles},
    {"", "mnup27", "Box - Non symmetric flanges", kProfiles},
    {"", "mnup24", "HSQ - Symmetric flange ", kProfiles},
    {"", "mnup25", "HSQ - Non symmetric flange ", kProfiles},
    {"", "mnuplateTg", "Plate + T-girder", kProfiles},
    {"", "mnuplateLr", "Plate + Lroll", kProfiles},
    {"", "mnuplateLweld", "Plate +  L weld", kProfiles},
    {"", "mnuplateBf", "Plate + Bf", kProfiles},
    {"", "mnuplateFb", "Plates + Fb", kProfiles},
    {"", "mnup31", "&Tube", kProfiles},
    {"", "mnup28", "Flatbar", kProfiles},
    {"", "mnup41", "&General Profile ", kProfiles},
    {"", "mnup100", "British profiles", kProfiles},
    {"", "mnuu", "U", kProfiles},
    {"", "mnuj", "J", kProfiles},
    {"", "mnuc", "C", kProfiles},
    {"", "mnulightest", "Lightest Section that Passes...", kProfiles},
    {"", "mnuload1", "&Loading"},
    {"", "mnuendforces", "&Endforces"},
    {"", "mnuprint", "P&rint"},
    {"", "mnuprint0", "Section &Property and Capacity", kPrint},
    {"", "mnuprint1", "&Section and Stability Control", kPrint},
    {"", "mnuProfDB", "Profile Database"},
    {"", "mnuhelp", "&Help"},
    {"", "mnuhelpcont", "&Contents", kHelp},
    {"", "mnuhelpsearch", "&Search for Help On . . . ", kHelp},
    {"", "mnuTheory", "Theory Manual", kHelp},
    {"", "mnuabout", "&About Varnelt - EC3", kHelp},

    // ---- Setup ----
    {"setup", "Cbo1993", "", "EN 1993-1-1 National Annex Settings"},
    {"setup", "igammam0", "Section Control:   gm0 =", kPartial},
    {"setup", "igammam1", "Buckling Control:  gm1 =", kPartial},
    {"setup", "ineta", "Factor  n =", "Shear acc to 6.2.6 (3)"},
    {"setup", "ilamdaLT0", "lamdaLT,0 =", kLambda, "  Rolled I-section", " Recommended maximum value 0.4 "},
    {"setup", "ibeta", "beta =", kLambda, "  Rolled I-section", " Recommended minimum value 0.75 "},
    {"setup", "ilamdaLT0w", "lamdaLT,0 =", kLambda, "  Welded     I-section",
     " Recommended maximum value 0.4 "},
    {"setup", "ibetaw", "beta =", kLambda, "  Welded     I-section", " Recommended minimum value 0.75 "},
    {"setup", "rbtnMethod1", "According to Method 1", "Interaction factors (ref ch 6.3.3)"},
    {"setup", "rbtnMethod2", "According to Method 2", "Interaction factors (ref ch 6.3.3)"},
    {"setup", "CboLoadComb", "", "Load Combinations"},
    {"setup", "rbtnSafetyNorwayClass1", "1", "Reliability Class (EN 1990)"},
    {"setup", "rbtnSafetyNorwayClass24", "2-4", "Reliability Class (EN 1990)"},
    {"setup", "rbtnSafetyClass1", "1", "Safety Class (EN 1990)"},
    {"setup", "rbtnSafetyClass2", "2", "Safety Class (EN 1990)"},
    {"setup", "rbtnSafetyClass3", "3", "Safety Class (EN 1990)"},
    {"setup", "Cbo_Q1_Psi1", "Q1 =", kPsi},
    {"setup", "Cbo_Q2_Psi2", "Q2 =", kPsi},
    {"setup", "cmdPsi", "Psi-factors...", kPsi},
    {"setup", "iLfULS_G", "Permanent (G) =", kUls, "ULS"},
    {"setup", "iLfULS_Q1", "Variable (Q1) =", kUls, "ULS"},
    {"setup", "iLfULS_Q2", "Variable (Q2) =", kUls, "ULS"},
    {"setup", "iLfSLS_G", "Permanent (G) =", kUls, "SLS"},
    {"setup", "iLfSLS_Q1", "Variable (Q1) =", kUls, "SLS"},
    {"setup", "iLfSLS_Q2", "Variable (Q2) =", kUls, "SLS"},
    {"setup", "cmdULS", "Partial factors...", kUls},
    {"setup", "idef_limit", "Deflection limit: L/", "Deflection Control (SLS)"},
    {"setup", "cbofyk", "", "Material  (MPa)"},
    {"setup", "ifyk", "fyk =", "Material  (MPa)"},
    {"setup", "ie", " E =", "Material  (MPa)"},
    {"setup", "iuflimit",
     "Exclude Axial Force (N) and Moment (M) in interaction formula if  N/N and/or  M/M  is less than  ",
     "Minor Axial Forces (N) and Moments (M)"},
    {"setup", "CheckConserControl", "Conservative control for N+My-Mz ", "Section Control (ref ch 6.2.1)"},
    {"setup", "CheckElastic", "Cross Section Class 1-2:  Elastic design", "Section Control (ref ch 6.2.1)"},
    {"setup", "CheckFlangebuck", "Flange buckling not taken into account",
     "Section class 4: Local buckling of flange/web"},
    {"setup", "CheckWebbuck", "Web buckling not taken into account",
     "Section class 4: Local buckling of flange/web"},
    {"setup", "strict", "", "Rules"},
    {"setup", "rbtnRulesSpecified", "as specified", "Rules"},
    {"setup", "rbtnRulesStrict", "EN 1993 strict", "Rules"},
    {"setup", "Command2", "Save as default"},
    {"setup", "CmdOK", "OK"},

    // ---- Loading ----
    {"Loading", "CboLoadComb", "", kLc},
    {"Loading", "Cbo_Q1_Psi1", "Q1 =", kPsi},
    {"Loading", "Cbo_Q2_Psi2", "Q2 =", kPsi},
    {"Loading", "Command3", "Psi-factors...", kPsi},
    {"Loading", "check_selfweight", "Include Selfweight - z-dir"},
    {"Loading", "ch_nn", "", kAxial},
    {"Loading", "inn", "N (kN)", kAxial},
    {"Loading", "inn_gq", "LC", kAxial},
    {"Loading", "ch_q", "", kUniform},
    {"Loading", "iq", "q (kN/m)", kUniform},
    {"Loading", "iq_gq", "LC", kUniform},
    {"Loading", "iq_yz", "Dir", kUniform},
    {"Loading", "ch_qt", "", kTrapezoid},
    {"Loading", "iqt1", "q1", kTrapezoid},
    {"Loading", "iqt2", "q2", kTrapezoid},
    {"Loading", "iqtx1", "x(m)", kTrapezoid},
    {"Loading", "iqtx2", "x(m)", kTrapezoid},
    {"Loading", "iqt_gq", "LC", kTrapezoid},
    {"Loading", "iqt_yz", "Dir", kTrapezoid},
    {"Loading", "qtxrelative", kRelative, kTrapezoid},
    {"Loading", "qtxabsolute", kAbsolute, kTrapezoid},
    {"Loading", "ch_pm", "", kPoint},
    {"Loading", "ipm", "P / M", kPoint},
    {"Loading", "ipmx", "x(m)", kPoint},
    {"Loading", "ipm_pm", "Kind", kPoint},
    {"Loading", "ipm_gq", "LC", kPoint},
    {"Loading", "ipm_yz", "Dir", kPoint},
    {"Loading", "pmxrelative", kRelative, kPoint},
    {"Loading", "pmxabsolute", kAbsolute, kPoint},
    {"Loading", "CmdRemove", "Remove all checked loads"},

    // ---- End forces ----
    {"endforce", "ine", "N =", kEndForces},
    {"endforce", "imy1", "My1 =", kEndForces},
    {"endforce", "imy2", "My2 =", kEndForces},
    {"endforce", "ivz1", "Vz1 =", kEndForces},
    {"endforce", "ivz2", "Vz2 =", kEndForces},
    {"endforce", "imz1", "Mz1 =", kEndForces},
    {"endforce", "imz2", "Mz2 =", kEndForces},
    {"endforce", "ivy1", "Vy1 =", kEndForces},
    {"endforce", "ivy2", "Vy2 =", kEndForces},

    // ---- Buckling length factors: the factor under the picture of the case ----
    {"bucklingy", "bucklingy1", "2.0", "", "", "Cantilever"},
    {"bucklingy", "bucklingy2", "1.0", "", "", "Pinned - pinned"},
    {"bucklingy", "bucklingy3", "0.7", "", "", "Pinned - fixed"},
    {"bucklingy", "bucklingy4", "0.5", "", "", "Fixed - fixed"},
    {"bucklingy", "bucklingy5", "0.001", "", "", "Held over the length: no buckling"},
    {"bucklingz", "bucklingz1", "2.0", "", "", "Cantilever"},
    {"bucklingz", "bucklingz2", "1.0", "", "", "Pinned - pinned"},
    {"bucklingz", "bucklingz3", "0.7", "", "", "Pinned - fixed"},
    {"bucklingz", "bucklingz4", "0.5", "", "", "Fixed - fixed"},
    {"bucklingz", "bucklingz5", "0.001", "", "", "Held over the length: no buckling"},

    // ---- Calculation points ----
    {"chpoints", "cp_0", "11 even distributed points && Max/Min My/Mz "},
    {"chpoints", "cp_1", "Characteristic points"},
    {"chpoints", "no_cp1", "1", kPoints, kHowMany},
    {"chpoints", "no_cp2", "2", kPoints, kHowMany},
    {"chpoints", "no_cp3", "3", kPoints, kHowMany},
    {"chpoints", "cprelative", kRelative, kPoints},
    {"chpoints", "cpabsolute", kAbsolute, kPoints},
    {"chpoints", "icp", "x(m)", kPoints, "CP"},

    // ---- Web stiffeners and end posts ----
    {"endstiff", "cwebstiff0", "No intermediate stiffeners", kWeb},
    {"endstiff", "cwebstiff1", "Stiffeners", kWeb},
    {"endstiff", "iweba", "c/c=", kWeb},
    {"endstiff", "oendstiff0", "Non-rigid end post", kEndPost},
    {"endstiff", "oendstiff1", "Rigid end post", kEndPost},

    // ---- Lateral torsional buckling ----
    {"vipping", "Curve2", "General Case (conservative, ch 6.3.2.2)", kCurves},
    {"vipping", "Curve3", "Rolled or welded I-sections (ch 6.3.2.3)", kCurves},
    {"vipping", "loadl1", "", kLevel, "", "Top flange"},
    {"vipping", "loadl2", "", kLevel, "", "Shear centre"},
    {"vipping", "loadl3", "", kLevel, "", "Bottom flange"},
    {"vipping", "loadl4", "", kLevel, "", "Za = distance from CoG"},
    {"vipping", "iza", "Za =", kLevel},
    {"vipping", "cbo", "", "Lateral restraint points along compression flange"},
    {"vipping", "latbuckl1", "k = 2.0", kLtbLength},
    {"vipping", "latbuckl2", "k = 1.0", kLtbLength},
    {"vipping", "latbuckl3", "k = 0.7", kLtbLength},
    {"vipping", "latbuckl4", "k = 0.5", kLtbLength},
    {"vipping", "Cfactor", "Manual input of C-factors", kLtbCapacity},
    {"vipping", "ic1", "C1i =", kLtbCapacity},
    {"vipping", "ic2", "C2i =", kLtbCapacity},
    {"vipping", "ic3", "C3i =", kLtbCapacity},
    {"vipping", "C1factor", "Alternative calculation of C1", kLtbCapacity},
    {"vipping", "McrTables", kMcrTablesText, "Elastic critical moment Mcr"},
    {"vipping", "McrEigen", kMcrEigenText, "Elastic critical moment Mcr"},

    // ---- More Results ----
    {"detailedresult", "cmdDetailedResult", "Export to spreadsheet..."},

    // ---- Options of the section dialogs ----
    {"p07", "optturn1", "As catalogued (h vertical)", "Position"},
    {"p07", "optturn0", "Turned 90 degrees", "Position"},
    {"p09", "optturn1", "As catalogued (h vertical)", "Position"},
    {"p09", "optturn0", "Turned 90 degrees", "Position"},
    {"p10", "opt_l10_1", " One bolt", "Force transfer:"},
    {"p10", "opt_l10_2", " Two bolts (Ref EC3, BB.1.2)", "Force transfer:"},
    {"p11", "opt_l10_1", " One bolt", "Force transfer:"},
    {"p11", "opt_l10_2", " Two bolts (Ref EC3, BB.1.2)", "Force transfer:"},
    {"p23", "oweld0", "Thick welds: a > 0.5 tf", "Welds"},
    {"p23", "oweld1", "Other welds", "Welds"},
    {"p24", "opthsq0", "Consider flange loading (valid for q-load)", "Flange loading"},
    {"p24", "opthsq1", "No flange loading", "Flange loading"},
    {"p25", "opthsq0", "Consider flange loading (valid for q-load)", "Flange loading"},
    {"p25", "opthsq1", "No flange loading", "Flange loading"},
    {"p24", "OptClass23Y", "Yes", "Upgrade section class if Class 3 web (Ch 6.2.2.24)"},
    {"p24", "OptClass23N", "No", "Upgrade section class if Class 3 web (Ch 6.2.2.24)"},
    {"p25", "OptClass23Y", "Yes", "Upgrade section class if Class 3 web (Ch 6.2.2.24)"},
    {"p25", "OptClass23N", "No", "Upgrade section class if Class 3 web (Ch 6.2.2.24)"},
    {"p31", "opthot", "Hot finished", "Manufacture"},
    {"p31", "optcold", "Cold formed", "Manufacture"},
    {"p41", "istname", "Name:", "Section"},
    {"p41", "cboclassN", "Cross Section Class:", "Section"},
    {"p41", "cboclassMy", "Cross Section Class:", "Section"},
    {"p41", "cboclassMz", "Cross Section Class:", "Section"},
};

ControlCaption Of(const Entry& e) { return {e.caption, e.frame, e.row, e.tip}; }

// The typed dimension of a section dialog: "isttf1" is "tf1 =", the general section's properties
// by their symbols.
std::string DimensionCaption(std::string_view field) {
  static constexpr std::pair<const char*, const char*> kNamed[] = {
      {"iload", "Max loading on one flange (%):"},
      {"istax", "A ="},
      {"istay", "Ay ="},
      {"istaz", "Az ="},
      {"istix", "Ix ="},
      {"istiy", "Iy ="},
      {"istiz", "Iz ="},
      {"istiw", "Iw ="},
      {"istwely", "Wel,y ="},
      {"istwelz", "Wel,z ="},
      {"istwply", "Wpl,y ="},
      {"istwplz", "Wpl,z ="}};
  for (const auto& [name, caption] : kNamed)
    if (field == name) return caption;
  const std::string_view bare = field.substr(0, 3) == "ist" ? field.substr(3) : field;
  return std::string(bare) + " =";
}

// The controls of a family's dialog that follow from its family rather than from the table.
bool SectionDialogCaption(std::string_view form, std::string_view name, ControlCaption* c) {
  const SectionDialogInfo* d = SectionDialogOfForm(form);
  if (!d) return false;
  if (name == "Command1") {
    c->caption = "Close";
    return true;
  }
  if (name == "pic1") {
    c->frame = "Figure not to scale";
    c->tip = "Click: figure to scale or not";
    return true;
  }
  if (name.substr(0, 4) == "prof" && name.size() == 5) {
    static constexpr const char* kBritish[] = {"UB", "UC", "UBP"};
    static constexpr const char* kChannels[] = {"PFC", "CH"};
    const int k = name[4] - '1';
    if (d->type == 101 && k >= 0 && k < 3) c->caption = kBritish[k];
    if (d->type == 103 && k >= 0 && k < 2) c->caption = kChannels[k];
    return !c->caption.empty();
  }
  for (const std::string& field : DimensionFieldNames(form)) {
    if (field != name) continue;
    c->caption = DimensionCaption(name);
    const bool plate = d->type >= 51 && d->type <= 56;
    c->frame = plate           ? (field.back() == '1' ? "Plate:" : "Stiffener:")
               : d->type == 41 ? "Section property"
                               : "Dimensions";
    return true;
  }
  if (name == "cbo") {
    // The plate with a rolled stiffener chooses it from the list in the stiffener's frame.
    // Elsewhere it stands at the head of the dialog, under the family's name as its title.
    c->frame = d->type == 52 || d->type == 54 ? std::string("Stiffener:")
                                              : ShownText(CaptionOf("", d->menu).caption);
    while (!c->frame.empty() && c->frame.back() == ' ') c->frame.pop_back();
    return true;
  }
  return false;
}

}  // namespace

ControlCaption CaptionOf(std::string_view form, std::string_view name, const State* s) {
  for (const Entry& e : kTable) {
    if (form != e.form || name != e.name) continue;
    ControlCaption c = Of(e);
    // The heads of the columns of positions follow the choice of relative or absolute.
    if (s && form == "Loading" && (name == "iqtx1" || name == "iqtx2"))
      c.caption = PositionHeading(s->loads.TrapezoidXRelative != 0);
    if (s && form == "Loading" && name == "ipmx")
      c.caption = PositionHeading(s->loads.PointLoadXRelative != 0);
    if (s && form == "chpoints" && name == "icp")
      c.caption = PositionHeading(s->project.ChPointRelative != 0);
    return c;
  }
  ControlCaption c;
  if (SectionDialogCaption(form, name, &c)) return c;
  // Each family's button on the main form carries the caption of its menu entry.
  if (form.empty())
    for (int type = 1; type <= 103; ++type)
      if (const SectionDialogInfo* d = SectionDialogOfType(type); d && name == d->button)
        return {CaptionOf("", d->menu).caption, kProfiles, "", ""};
  if (name == "ok") c.caption = "OK";
  return c;
}

std::string ShownText(std::string_view caption) {
  std::string out;
  for (size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&') {
      if (i + 1 < caption.size() && caption[i + 1] == '&') out += '&';
      if (i + 1 < caption.size() && caption[i + 1] == '&') ++i;
      continue;
    }
    out += caption[i];
  }
  return out;
}

const char* PositionHeading(bool relative) { return relative ? "x/L" : "x(m)"; }

}  // namespace vn
