// The two one-page reports. Each is the head, the material and the profile, then blocks of label,
// value and unit in a fixed order; the stability report adds the member, its loads, the buckling
// and lateral buckling parameters and the summary of controls.
#include "results/report.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <sstream>

#include "core/format.h"
#include "core/pipeline.h"
#include "core/state.h"
#include "design/design_basis.h"
#include "results/summary.h"
#include "sections/section_dialogs.h"

namespace vn {

namespace {

using Kind = ReportLine::Kind;

struct Page {
  const State& s;
  std::vector<ReportLine>& out;

  // A value the run did not compute (NaN) is left blank.
  std::string F(double v, const char* format) const {
    return std::isnan(v) ? std::string() : FormatNumber(v, format, s.decimalComma);
  }
  void Heading(const std::string& text) { out.push_back({Kind::Heading, text, "", "", "", 0}); }
  void Row(const std::string& label, const std::string& value, const std::string& unit = "",
           const std::string& extra = "") {
    out.push_back({Kind::Row, label, value, unit, extra, 0});
  }
  void Text(const std::string& text) { out.push_back({Kind::Text, text, "", "", "", 0}); }
  void Blank() { out.push_back({Kind::Blank, "", "", "", "", 0}); }
};

bool Between(int type, int first, int last) { return type >= first && type <= last; }

// The name the section dialog gives the section ("HEA200", "RHS 100x100x5 (Cold formed)").
std::string SectionName(const State& s) {
  const SectionDialogInfo* d = SectionDialogOfType(s.project.ProfileType);
  if (d) {
    auto it = s.view.text.find(std::string(d->form) + ".oname");
    if (it != s.view.text.end() && !it->second.empty()) return it->second;
  }
  return s.project.profileName;
}

// The dimensions of the name, after the family's own letters and without the cold formed note.
std::string SizeOf(const State& s) {
  std::string name = SectionName(s);
  const std::string cold = " (Cold formed)";
  if (name.size() > cold.size() && name.compare(name.size() - cold.size(), cold.size(), cold) == 0)
    name.erase(name.size() - cold.size());
  size_t i = 0;
  while (i < name.size() && (std::isalpha(static_cast<unsigned char>(name[i])) || name[i] == ' ')) ++i;
  return i < name.size() ? name.substr(i) : name;
}

// The profile line: the family's text, its size, and the note of its making.
std::string ProfileText(const State& s, ReportKind kind) {
  const Project& p = s.project;
  const int t = p.ProfileType;
  const bool full = kind == ReportKind::SectionCapacity;
  const std::string size = SizeOf(s);
  switch (t) {
    case 1: return (full ? "  HEA" : "HEA") + size;
    case 2: return (full ? "  HEB" : "HEB") + size;
    case 3: return (full ? "  HEM" : "HEM") + size;
    case 4: return (full ? "  IPE" : "IPE") + size;
    case 15: return (full ? "  INP" : "INP") + size;
    case 5: return (full ? "  UPE" : "UPE") + size;
    case 16: return (full ? "  UNP" : "UNP") + size;
    case 6:
    case 7: return (full ? "  RHS " : "RHS ") + size + (full ? " (Hotf.)" : "");
    case 8: return (full ? "  CHRHS-Sq " : "CFRHS-Sq ") + size + (full ? " (Coldf.)" : "");
    case 9: return (full ? "  CFRHS-Rec " : "CFRHS-rec ") + size + (full ? " (Coldf.)" : "");
    case 10:
    case 11: return (full ? "  L " : "L ") + size;
    case 21: return (full ? "  I " : "I ") + size;
    case 22: return (full ? "  I " : "I ") + size + (full ? "" : " (Single sym)");
    case 23: return (full ? "  Box " : "Box ") + size;
    case 27: return (full ? "  Box " : "Box ") + size + (full ? "" : "  (Non symm fl)");
    case 24: return (full ? " HSQ " : "HSQ ") + size;
    case 25: return (full ? " HSQ " : "HSQ ") + size + (full ? "" : "  (Non symm fl)");
    case 26: return (full ? " T " : "T ") + size;
    case 28: return (full ? "  Fb " : "Fb ") + size;
    case 31:
      return (full ? "  Tube " : "Tube ") + size +
             (p.p31.hotCold == 1 ? " (Hot finished)" : " (Cold formed)");
    case 41: return "General: " + SectionName(s);
    case 51: return (full ? " Plate + Fb" : "Plate + Fb") + std::string(" ") + size;
    case 52: return (full ? " Plate + L " : "Plate + L ") + size;
    case 53: return (full ? " Plate + L" : "Plate + L") + std::string(" ") + size;
    case 54: return (full ? " Plate + BF " : "Plate + BF ") + size;
    case 56: return (full ? " Plate + T " : "Plate + T ") + size;
    case 101: {
      const char* sub = p.subFamily101 == 2 ? "UC " : p.subFamily101 == 3 ? "UBP " : "UB ";
      return (full ? "  " : "") + std::string(sub) + size;
    }
    case 102: return (full ? "  J " : "J ") + size;
    case 103: return (full ? "  " : "") + std::string(p.subFamily103 == 1 ? "PFC " : "CH ") + size;
  }
  return SectionName(s);
}

void Head(const State& s, Report& r, const std::string& date, const std::string& time) {
  const Project& p = s.project;
  Page h{s, r.head};
  h.Row("Project: ", p.projectName);
  h.Row(p.ProfileType == 41 ? "Identification:  " : "Identification: ", p.projectIdent);
  h.Row("Page:", "1/1");
  h.Row("Date: ", date);
  h.Row("Time: ", time);
  h.Row("File: ", p.fileName);
}

void Material(Page& pg, ReportKind kind) {
  const State& s = pg.s;
  const Project& p = s.project;
  const bool named = p.steelGrade >= 0 && p.steelGrade < 31 && p.steelGrade <= s.steel.gradeLast;
  pg.Row("Material: ", named ? s.steel.rows[static_cast<size_t>(p.steelGrade)].name : std::string());
  pg.Row("fy", pg.F(p.fyk, "###"), "MPa");
  pg.Row("fd", pg.F(p.fyd, "##.0"), "MPa");
  pg.Row("E", pg.F(p.E, "0.000E+0"), "MPa");
  if (kind == ReportKind::SectionCapacity)
    pg.Row("gm0", pg.F(p.gammaM0, "#.00"));
  else
    pg.Row("gm0/gm1 =", pg.F(p.gammaM0, "#.00") + "/" + pg.F(p.gammaM1, "#.00"));
  // The standard's own rules in place of the program's method are named; the default has no line.
  if (StrictRules(s)) pg.Row("Rules: ", RulesName(s));
}

// The notes of the design options that change a resistance.
void ClassNotes(Page& pg, bool stability) {
  const Project& p = pg.s.project;
  const Section& c = pg.s.section;
  const bool class12 = c.classN <= 2 || c.classMy <= 2 || c.classMz <= 2;
  const bool class4 =
      c.classN == 4 || c.classMy == 4 || c.classMz == 4 || c.classMyPos == 4 || c.classMyNeg == 4;
  if (p.elasticClass12 != 0 && class12)
    pg.Text(stability ? "Elastic design   " : "Cross Section Class 1-2: Elastic design");
  if (class4) {
    const bool flange = p.noFlangeBuckling != 0, web = p.noWebBuckling != 0;
    const char* what = flange && web ? " Flange/Web buckling not taken into account"
                       : web         ? " Web buckling not taken into account"
                       : flange      ? " Flange buckling not taken into account"
                                     : nullptr;
    if (what) pg.Text(stability ? std::string(what) : std::string("Section class 4:") + what);
  }
  if (c.classMyPos == 23 || c.classMyNeg == 23)
    pg.Text("Section class upgraded according to EN 1993-1-1, ch 6.2.2.4");
}

// The capacity. A family with two flanges (or a plate and its stiffener) gives the class and moment
// resistance for each of them in compression, under its own heading; the shear and axial
// resistances, which hold for either, then stand under headings of their own, so that none of
// them reads as a value of the flange above it.
void CapacityBlocks(Page& pg, const std::vector<View::Line>& lines) {
  if (lines.empty()) return;
  static const std::pair<const char*, const char*> kSides[] = {
      {"Top flange in compression", "Topflange in compression:"},
      {"Bottom flange in compression", "Bottom flange in compression:"},
      {"Plate in compression", "Plate in compression:"},
      {"Stiffener in compression", "Stiffener in compression:"}};
  auto sideHeading = [](const View::Line& l) -> const char* {
    if (!l.value.empty() || !l.unit.empty()) return nullptr;
    for (const auto& [dialog, report] : kSides)
      if (l.label == dialog) return report;
    return nullptr;
  };
  const bool sides =
      std::any_of(lines.begin(), lines.end(), [&](const View::Line& l) { return sideHeading(l); });
  pg.Heading("Capacity:");
  if (!sides) {
    for (const View::Line& l : lines) pg.Row(l.label, l.value, l.unit);
    pg.Blank();
    return;
  }
  auto starts = [](const std::string& label, const char* head) { return label.rfind(head, 0) == 0; };
  std::vector<const View::Line*> shear, axial;
  for (const View::Line& l : lines) {
    if (const char* heading = sideHeading(l)) {
      pg.Heading(heading);
    } else if (starts(l.label, "Vc,")) {
      shear.push_back(&l);
    } else if (starts(l.label, "Nt,Rd") || starts(l.label, "Nc,Rd") || starts(l.label, "N,Rd")) {
      axial.push_back(&l);
    } else {
      pg.Row(l.label, l.value, l.unit);
    }
  }
  for (const auto& [heading, group] :
       {std::pair{"Shear capacity:", &shear}, std::pair{"Axial capacity:", &axial}}) {
    if (group->empty()) continue;
    pg.Heading(heading);
    for (const View::Line* l : *group) pg.Row(l->label, l->value, l->unit);
  }
  pg.Blank();
}

void SectionReport(const State& s, Report& r) {
  Page pg{s, r.lines};
  const Project& p = s.project;
  Material(pg, ReportKind::SectionCapacity);
  pg.Blank();
  pg.Row("Profile: ", ProfileText(s, ReportKind::SectionCapacity));
  pg.Blank();

  // The dialog's values of the last run, made afresh: a dialog may not have shown them since.
  State shown = s;
  shown.headless = false;  // the report shows them, with a front end or without
  ShowSectionValues(shown);
  const SectionBlocks b = SplitSectionValues(shown.view.sectionValues);
  auto block = [&](const char* heading, const std::vector<View::Line>& lines) {
    if (lines.empty()) return;
    pg.Heading(heading);
    for (const View::Line& l : lines) pg.Row(l.label, l.value, l.unit);
    pg.Blank();
  };
  // A family whose dimensions are typed in its dialog shows only its weight here: the weight then
  // heads the section properties.
  const bool dimensions = std::any_of(b.dimensions.begin(), b.dimensions.end(), [](const View::Line& l) {
    return l.label != "g =" && l.label != "S =";
  });
  if (!dimensions) {
    std::vector<View::Line> both = b.dimensions;
    both.insert(both.end(), b.properties.begin(), b.properties.end());
    block("Weight and Section property:", both);
  } else {
    const bool catalogue = Between(p.ProfileType, 1, 16) || Between(p.ProfileType, 101, 103);
    block(catalogue ? "Dimensions and weight:" : "Dimension and Weight:", b.dimensions);
    block("Section property:", b.properties);
  }
  CapacityBlocks(pg, b.capacity);

  ClassNotes(pg, false);
  if ((p.ProfileType == 24 || p.ProfileType == 25) && p.hsqKind == 0) {
    const double q = std::abs(s.analysis.qTotal) * (p.ProfileType == 24 ? p.p24.iload / 100.0 : 1.0);
    pg.Text("My,Rd takes into account flange loading of " + pg.F(q, "#0.0") + " kN/m flange (incl loadf)");
  }
  if (p.ProfileType == 10 || p.ProfileType == 11)
    pg.Row("Force transfer:",
           p.angleOption == 2 ? " Two bolts (Ref EC3, BB.1.2)" : " One bolt (Ref EC3, BB.1.2)");
}

const char* kSupportTexts[6] = {"Simply supported",
                                "Pinned at x=0, fixed at x=L",
                                "Fixed at both ends",
                                "Spring restraint at both ends",
                                "Cantilever: fixed at x=0, free at x=L",
                                "Pinned at x=0, spring at x=L"};

std::string CaseText(double c) { return c == 0 ? " (G)" : c == 1.0 ? " (Q1)" : " (Q2)"; }
std::string CaseLetter(double c) { return c == 0 ? "G" : c == 1.0 ? "Q1" : "Q2"; }

void Geometry(Page& pg) {
  const Project& p = pg.s.project;
  pg.Heading("Geometry/Loading:");
  pg.Row("L =", pg.F(p.L, "#0.000"), "m");
  pg.Row("Supports:", p.SupportType >= 0 && p.SupportType <= 5 ? kSupportTexts[p.SupportType] : "");
  if (p.SupportType == 3 || p.SupportType == 5) pg.Row("Spring restraint:", pg.F(p.SpringPct, "#0"), "%");
  // The end post and the web stiffeners only where the family's shear control reads them, as the
  // main form shows its support button.
  auto support = pg.s.view.visible.find("cbuttsupport");
  if (support != pg.s.view.visible.end() && support->second) {
    pg.Row("End post:", p.rigidEndPost != 0 ? "Rigid" : "Non-rigid");
    if (p.webStiffeners == 1) pg.Row("Web stiffener: c/c ", pg.F(p.a, "##0"), "mm");
  }
  pg.Blank();
}

void Loading(Page& pg) {
  const State& s = pg.s;
  const Project& p = s.project;
  if (p.AnalysisMode != 1) {
    pg.Heading("Endforces: (kN/kNm/m)");
    pg.Row("N = ", pg.F(p.NEndForce, "##0.0"), "kN");
    pg.Row("My1/My2 = ", pg.F(p.My12[1], "##0.0") + "/" + pg.F(p.My12[2], "##0.0"), "kNm");
    pg.Row("Mz1/Mz2 = ", pg.F(p.Mz12[1], "##0.0") + "/" + pg.F(p.Mz12[2], "##0.0"), "kNm");
    pg.Row("Vz1/Vz2 = ", pg.F(p.Vz12[1], "##0.0") + "/" + pg.F(p.Vz12[2], "##0.0"), "kN");
    pg.Row("Vy1/Vy2 = ", pg.F(p.Vy12[1], "##0.0") + "/" + pg.F(p.Vy12[2], "##0.0"), "kN");
    pg.Blank();
    return;
  }
  pg.Heading("Loading information: (kN/kNm/m)");
  pg.Text("G=Permanent; Q1/Q2=Variable, Q1 = Main");
  for (size_t i = 1; i <= 3; ++i) {
    const AxialLoad& a = s.loads.axial[i];
    if (a.N != 0) pg.Row("    N = ", pg.F(a.N, "##0.0") + CaseText(a.Case));
  }
  for (int dir : {1, 0}) {
    std::vector<ReportLine> rows;
    Page part{s, rows};
    for (size_t i = 1; i <= 4; ++i) {
      const UniformLoad& u = s.loads.uniform[i];
      if (u.q != 0 && u.Dir == dir) part.Row("q ", part.F(u.q, "##0.000"), "", CaseLetter(u.Case));
    }
    for (size_t i = 1; i <= 3; ++i) {
      const TrapezoidLoad& t = s.loads.trapezoid[i];
      if ((t.q1 != 0 || t.q2 != 0) && t.Dir == dir)
        part.Row("q", part.F(t.q1, "##0.000") + "/" + part.F(t.q2, "##0.000"),
                 part.F(t.x1, "##0.000") + "/" + part.F(t.x2, "##0.000"), CaseLetter(t.Case));
    }
    for (size_t i = 1; i <= 8; ++i) {
      const PointLoad& pt = s.loads.point[i];
      const bool inPlane = pt.Kind == 0 ? pt.Dir == dir : pt.Dir == dir;
      if (pt.Value != 0 && inPlane)
        part.Row(pt.Kind == 0 ? "P" : "M", part.F(pt.Value, "##0.000"), part.F(pt.x, "##0.000"),
                 CaseLetter(pt.Case));
    }
    if (rows.empty()) continue;
    pg.Heading(dir == 1 ? "Loading in z-direction:" : "Loading in y-direction:");
    pg.Row("Load", "kN/kNm", "x/x1/x2 (m)", "G/Q");
    for (const ReportLine& l : rows) pg.out.push_back(l);
  }
  pg.Text(s.loads.uniform[0].Checked != 0 || p.SelfweightOn != 0 ? "Selfweight of member included "
                                                                 : "Selfweight of member not included");
  pg.Row("Psi(Q1/Q2) = ", pg.F(p.psiQ1, "0.0#") + "/" + pg.F(p.psiQ2, "0.0#"));
  pg.Blank();

  // The design forces of the governing combination that the loads give, with where they stand.
  const Analysis& an = s.analysis;
  pg.Heading("Loading/Moment: (kN/kNm/m)");
  pg.Row("N = ", pg.F(an.NEd, "##0.0"), "kN");
  auto extremes = [&](const char* label, double max, double maxAt, double min, double minAt,
                      const char* unit) {
    pg.Row(label, pg.F(max, "##0.0") + "/" + pg.F(min, "##0.0"), unit,
           "x = " + pg.F(maxAt * p.L, "#0.000") + "/" + pg.F(minAt * p.L, "#0.000") + " m");
  };
  extremes("My,max/My,min = ", an.MyMax, an.MyMaxPos, an.MyMin, an.MyMinPos, "kNm");
  extremes("Mz,max/Mz,min = ", an.MzMax, an.MzMaxPos, an.MzMin, an.MzMinPos, "kNm");
  extremes("Vz,max/Vz,min = ", an.VzMax, an.VzMaxPos, an.VzMin, an.VzMinPos, "kN");
  extremes("Vy,max/Vy,min = ", an.VyMax, an.VyMaxPos, an.VyMin, an.VyMinPos, "kN");
  pg.Blank();
}

bool In(int type, std::initializer_list<int> types) {
  return std::find(types.begin(), types.end(), type) != types.end();
}

// The families whose buckling control reads the column data: all but the girders loaded in their
// web plane, which have no buckling control of a strut.
bool StrutFamily(int type) { return !In(type, {24, 25, 27}) && !Between(type, 51, 56); }

// Whether the last run made the lateral torsional control: the families that have it, with the
// control switched on, and the flat bar only in compression, when its buckling control runs.
bool LateralControlRan(const State& s) {
  const int t = s.project.ProfileType;
  if (s.project.ltbOn != 1) return false;
  if (t == 28) return s.analysis.NEd > 0;
  return Between(t, 1, 5) || t == 15 || t == 16 || t == 21 || t == 22 || t == 41 || Between(t, 101, 103) ||
         Between(t, 51, 54) || t == 56;
}

void LateralParameters(Page& pg) {
  const State& s = pg.s;
  const Project& p = s.project;
  const Checks& k = s.checks;
  const int t = p.ProfileType;
  // A loaded member with no restraint between its ends takes its C factors from the load shape, C2
  // with the load height among them; otherwise each part between restraints takes C1 (and C3) from
  // the ratio of its end moments, and C2 does not enter. C3 enters only with the single symmetric I.
  const bool loadShape = p.AnalysisMode == 1 && p.ltbRestraints == 0;
  const bool plate = Between(t, 51, 56);  // the plates' critical moment has no C factor
  pg.Heading("Lateral buckling parameters:");
  pg.Row("Lateral torsional buckling length factor, k = ", pg.F(p.ltbFactor, "#0.00"));
  pg.Row("Number of lateral restraint of compression flange: ", pg.F(p.ltbRestraints, "#0"));
  const std::string part =
      p.ltbPart >= 0 && p.ltbPart <= 6 ? k.ltbPartLabel[static_cast<size_t>(p.ltbPart)] : std::string();
  pg.Row("Mb,Rd = ", pg.F(k.xLT * k.MyRdLT, "#0.0"),
         p.ltbRestraints > 0 ? " kNm  (" + part + " :Lateral torsional control)"
                             : std::string(" kNm  (lateral torsional buckling)"));
  if (!plate) {
    const std::string c1 = pg.F(k.C1, "#0.00"), c2 = pg.F(k.C2, "#0.00"), c3 = pg.F(k.C3, "#0.00");
    if (loadShape)
      pg.Row(t == 22 ? "   C1/C2/C3 = " : "   C1/C2 = ", c1 + "/" + c2 + (t == 22 ? "/" + c3 : ""));
    else
      pg.Row(t == 22 ? "   C1/C3 = " : "   C1 = ", c1 + (t == 22 ? "/" + c3 : ""));
    // A typed load height; the general section has no flange to load, and acts at its centre.
    if (loadShape && p.ltbLoadLevel == 4 && t != 41)
      pg.Row("   Za = ", pg.F(p.ltbZa, "#0"), " mm  (from CoG)");
  }
  pg.Text(p.ltbCurve == 2 ? "Lateral torsional buckling curves: General Case (conservative, ch 6.3.2.2)"
                          : "Lateral torsional buckling curves: Rolled or welded I-sections (ch 6.3.2.3)");
  // The closed formula for C1 replaces the tables only for the load shape, and only under a moment.
  if (p.ltbUserC1 != 0 && loadShape && !plate && s.analysis.MyAbs != 0) pg.Text("Advanced calculation of C1");
  // Mcr by eigenvalue analysis, where it was chosen: the value and where it came from.
  if (p.ltbMcrMethod == 1 && !std::isnan(k.Mcr))
    pg.Row("Mcr = ", pg.F(k.Mcr / 1000000, "#0.0"),
           k.McrByEigen != 0 ? " kNm  (Mcr by eigenvalue analysis of the member)"
                             : " kNm  (Mcr from C factors: " + k.McrNote + ")");
  pg.Blank();
}

void BucklingParameters(Page& pg) {
  const State& s = pg.s;
  const Project& p = s.project;
  const Checks& k = s.checks;
  const int t = p.ProfileType;
  // The buckling lengths are column data: they are read only under compression.
  if (s.analysis.NEd > 0 && StrutFamily(t)) {
    const bool angle = t == 10 || t == 11;
    pg.Heading("Buckling parameters:");
    pg.Row("", "Y-axis", "Z-axis", angle ? "U-axis     V-axis" : "");
    pg.Row("Buckling length factor", pg.F(p.bucklingFactorY, "##0.00"), pg.F(p.bucklingFactorZ, "##0.00"));
    pg.Row("Buckling Curve", k.curveTextY, k.curveTextZ);
    pg.Row("Slenderness", "lamda =" + pg.F(k.lamday, "##0.00"), "lamda =" + pg.F(k.lamdaz, "##0.00"),
           angle ? "lamda =" + pg.F(k.lamdau, "##0.00") + "  lamda =" + pg.F(k.lamdav, "##0.00") : "");
    pg.Blank();
  }
  if (LateralControlRan(s)) LateralParameters(pg);
  // The interaction factors join compression and bending; the T section has no such control.
  const bool bending = s.analysis.MyAbs != 0 || s.analysis.MzGov != 0;
  if (s.analysis.NEd > 0 && bending && StrutFamily(t) && t != 26) {
    pg.Row("Interaction factors kij: ", p.interactionMethod == 1 ? "Method 1" : "Method 2");
    pg.Blank();
  }
}

void Controls(Page& pg) {
  for (const SummaryLine& l : pg.s.view.summary) {
    if (l.title) {
      pg.Heading(l.left + l.note);
    } else {
      ReportLine line{Kind::Control, l.left + l.note, l.ratio, l.limit, "", l.colour};
      pg.out.push_back(line);
    }
  }
}

void StabilityReport(const State& s, Report& r) {
  Page pg{s, r.lines};
  const Project& p = s.project;
  Material(pg, ReportKind::Stability);
  static const char* const kClassNames[] = {
      "", "Reliability Class: ", "Safety Class: ", "Consequences Class: ", "", "Reliability Class: "};
  if (p.LoadCombMode < 4 && p.codeIndex >= 1 && p.codeIndex <= 5 && kClassNames[p.codeIndex][0] != '\0')
    pg.Row(kClassNames[p.codeIndex], p.codeIndex == 1 ? (p.safetyClass == 1 ? "1" : "2-4")
                                     : p.safetyClass == 1 || p.safetyClass == 2
                                         ? pg.F(p.safetyClass, "#0")
                                         : std::string("3"));  // as the dialog's option 3
  ClassNotes(pg, true);
  pg.Blank();
  pg.Row("Profile:", ProfileText(s, ReportKind::Stability));
  pg.Blank();
  Geometry(pg);
  Loading(pg);
  BucklingParameters(pg);
  Controls(pg);
  // The modal block only with the frequencies of this run: a box ticked since the last run has none.
  if (p.chModal == 1 && s.analysis.ModalMass > 0) {
    pg.Blank();
    pg.Heading("Modal analysis:");
    for (size_t i = 1; i <= 3; ++i)
      if (s.analysis.ModalFreq[i] > 0)
        pg.Row("f" + std::to_string(i) + " = ", pg.F(s.analysis.ModalFreq[i], "#0.00"), "Hz");
    // The mass that gave these frequencies.
    pg.Row("Mass m = ", pg.F(s.analysis.ModalMass, "#0"), "kg/m (Selfweigth + q-loads)");
  }
  r.figures = true;
}

}  // namespace

SectionBlocks SplitSectionValues(const std::vector<View::Line>& lines) {
  SectionBlocks b;
  bool properties = false, capacity = false;
  for (size_t i = 0; i < lines.size(); ++i) {
    const View::Line& l = lines[i];
    // The capacity starts at the first class line, or at the heading just before it ("Top flange
    // in compression").
    const bool heading = l.value.empty() && l.unit.empty() && i + 1 < lines.size() &&
                         lines[i + 1].label == "Cross Section Class: ";
    if (l.label == "Cross Section Class: " || heading) capacity = true;
    if (l.label == "A =") properties = true;
    if (capacity)
      b.capacity.push_back(l);
    else if (!properties || l.label == "g =" || l.label == "S =")
      b.dimensions.push_back(l);
    else
      b.properties.push_back(l);
  }
  return b;
}

Report BuildReport(const State& s, ReportKind kind, const std::string& date, const std::string& time) {
  Report r;
  r.title =
      kind == ReportKind::SectionCapacity ? "Section Property and Capacity" : "Section and Stability Control";
  Head(s, r, date, time);
  if (kind == ReportKind::SectionCapacity)
    SectionReport(s, r);
  else
    StabilityReport(s, r);
  return r;
}

std::string ReportText(const Report& r) {
  std::ostringstream o;
  o << r.title << "\n";
  for (const ReportLine& l : r.head) o << l.label << l.value << "\n";
  o << "\n";
  for (const ReportLine& l : r.lines) {
    switch (l.kind) {
      case Kind::Heading: o << l.label << "\n"; break;
      case Kind::Text: o << l.label << "\n"; break;
      case Kind::Blank: o << "\n"; break;
      case Kind::Row: {
        std::string row = l.label;
        if (!l.value.empty()) row += (row.empty() || row.back() == ' ' ? "" : " ") + l.value;
        if (!l.unit.empty()) row += (l.unit.front() == ' ' ? "" : " ") + l.unit;
        if (!l.extra.empty()) row += "  " + l.extra;
        o << row << "\n";
        break;
      }
      case Kind::Control:
        o << l.label << "  " << l.value
          << (l.colour == 4   ? " [NOT OK]"
              : l.colour == 2 ? " [OK]"
                              : "")
          << l.unit << "\n";
        break;
    }
  }
  return o.str();
}

}  // namespace vn
