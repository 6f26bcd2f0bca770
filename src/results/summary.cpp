// The summary of controls of the main form: the governing load case, then the section, buckling and
// deflection blocks. It prints what the controls left and computes nothing but the layout.
#include "results/summary.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>
#include <system_error>
#include <vector>

#include "core/format.h"
#include "core/pipeline.h"
#include "core/state.h"
#include "design/design_basis.h"

namespace vn {

namespace {

// The families with a buckling block: all but HSQ (24, 25) and the box with unequal flanges (27).
bool HasBucklingBlock(int type) {
  return (type >= 1 && type <= 16) || type == 21 || type == 22 || type == 23 || type == 26 || type == 28 ||
         type == 31 || type == 41 || (type >= 51 && type <= 56) || (type >= 101 && type <= 103);
}

SummaryLine Title(std::string text, std::string note = {}) {
  SummaryLine l;
  l.left = std::move(text);
  l.note = std::move(note);
  l.title = true;
  return l;
}

SummaryLine Control(std::string left, const ControlText& t, Integer colour, std::string limitTail = {}) {
  SummaryLine l;
  l.left = std::move(left);
  l.ratio = t.Ratio;
  l.colour = colour;
  l.limit = t.Limit + limitTail;
  return l;
}

// " At: x= 1.00 / 2.50 (m)": the user's check points as they were entered.
std::string CheckPointNote(const State& s) {
  const Project& p = s.project;
  const int count = p.ChPointCount == 1 ? 1 : p.ChPointCount == 2 ? 2 : 3;
  const bool relative = p.ChPointRelative != 0;
  std::string note = " At: x= ";
  for (int i = 1; i <= count; ++i) {
    double x = p.ChPointX[static_cast<size_t>(i)];
    if (relative) x = p.L != 0 ? x / static_cast<double>(p.L) : 0.0;
    if (i > 1) note += " / ";
    note += FormatNumber(x, "#0.00", s.decimalComma);
  }
  note += relative ? " (L)" : " (m)";
  return note;
}

}  // namespace

std::string GoverningLoadcaseText(const State& s) {
  const Project& p = s.project;
  const CombinationFactors& c = s.comb;
  const bool sls = p.checkSLS != 0;
  auto en1990 = [&](const std::string& uls) {
    return "EN1990 " + uls + " " + (sls ? " / EN1990 " + c.textSLS : std::string());
  };
  if (s.analysis.permanentFavourable != 0 && p.LoadCombMode >= 0 && p.LoadCombMode <= 3) {
    // The strict rules found the permanent load favourable: gamma G,inf = 1.0 in place of its factor.
    const std::string& uls = p.LoadCombMode == 0                 ? c.text610
                             : p.LoadCombMode == 1               ? c.text610a
                             : p.LoadCombMode == 2               ? c.text610b
                             : s.analysis.GoverningEquation == 1 ? c.text610a
                                                                 : c.text610b;
    return en1990(uls + "  (G favourable: gamma G,inf = " + FormatNumber(1.0, "0.0", s.decimalComma) + ")");
  }
  switch (p.LoadCombMode) {
    case 0: return en1990(c.text610);
    case 1: return en1990(c.text610a);
    case 2: return en1990(c.text610b);
    case 3: return en1990(s.analysis.GoverningEquation == 1 ? c.text610a : c.text610b);
    case 4: return c.textULSUser + (sls ? " / " + c.textSLSUser : std::string());
    case 5: return c.textBasic;
  }
  return {};
}

void ShowControls(State& s) {
  const Project& p = s.project;
  const Checks& k = s.checks;
  const Analysis& an = s.analysis;
  std::vector<SummaryLine>& out = s.view.summary;
  out.clear();

  // Section block.
  SummaryLine loadcase;
  loadcase.left = "Governing Loadcase:";
  loadcase.note = GoverningLoadcaseText(s);
  // The standard's own rules in place of the program's method are named on the first line.
  if (StrictRules(s)) loadcase.note += "   [Rules: " + RulesName(s) + "]";
  out.push_back(loadcase);
  out.push_back(Title("SECTION CONTROL:", p.ChPointMode > 0 ? CheckPointNote(s) : std::string()));
  for (size_t g = 1; g <= 3; ++g) {
    const ControlText& t = k.secText[g];
    if (t.Formula.empty()) continue;
    out.push_back(Control(t.Formula + t.Numbers, t, k.colSec[g]));
  }

  // Buckling block.
  if (HasBucklingBlock(p.ProfileType)) {
    const ControlText* texts[3] = {&k.buckTextY, &k.buckTextZ, &k.buckTextLT};
    const Integer colours[3] = {k.colBuckY, k.colBuckZ, k.colLT};
    if (std::any_of(std::begin(texts), std::end(texts),
                    [](const ControlText* t) { return !t->Formula.empty(); })) {
      out.push_back(
          Title("BUCKLING CONTROL:", p.ltbOn != 0 ? " (incl Lateral Torsional Buckling)" : std::string()));
      for (int i = 0; i < 3; ++i) {
        const ControlText& t = *texts[i];
        if (t.Formula.empty()) continue;
        // The flexural lines carry no " = " of their own; the LT line does.
        std::string left = i < 2 ? t.Formula + " = " + t.Numbers + " =" : t.Formula + t.Numbers;
        out.push_back(Control(std::move(left), t, colours[i]));
      }
    }
  }

  // Deflection block, a serviceability check outside IRsection and IRbuckling.
  if (p.checkSLS != 0 && (!an.deflTextZ.Formula.empty() || !an.deflTextY.Formula.empty())) {
    out.push_back(
        Title("DEFLECTION CONTROL:", " (L/" + FormatNumber(p.deflectionLimit, "0", s.decimalComma) + ")"));
    if (!an.deflTextZ.Formula.empty())
      out.push_back(
          Control(an.deflTextZ.Formula + an.deflTextZ.Numbers, an.deflTextZ, an.colDeflZ, "      "));
    if (!an.deflTextY.Formula.empty())
      out.push_back(Control(an.deflTextY.Formula + an.deflTextY.Numbers, an.deflTextY, an.colDeflY));
  }
  ShowVerdict(s);
}

namespace {

// The number a ratio text shows ("0.17", "0,17"), or -1 when it shows none.
double RatioOfText(const std::string& text) {
  std::string t;
  bool digits = false;
  for (char c : text) {
    if ((c >= '0' && c <= '9') || c == '.' || c == ',') {
      t += c == ',' ? '.' : c;
      digits = digits || (c >= '0' && c <= '9');
    } else if (!t.empty()) {
      break;
    }
  }
  if (!digits) return -1;
  double v = -1;  // read whatever the C locale of the moment says
  const auto [end, error] = std::from_chars(t.data(), t.data() + t.size(), v);
  return error == std::errc() ? v : -1;
}

// "IR = My,Ed/My,Rd" of "IR = My,Ed/My,Rd = ": the formula without its closing "=".
std::string FormulaHead(std::string f) {
  auto trim = [&f] {
    while (!f.empty() && (f.back() == ' ' || f.back() == '=')) f.pop_back();
  };
  trim();
  return f;
}

// "Ch 6.3.3" of " < 1.0 (0.50L; Ch 6.3.3)".
std::string Clause(const std::string& limit) {
  const size_t at = limit.find("Ch ");
  if (at == std::string::npos) return {};
  const size_t end = limit.find_first_of(");", at);
  std::string c = limit.substr(at, end == std::string::npos ? std::string::npos : end - at);
  while (!c.empty() && c.back() == ' ') c.pop_back();
  return c;
}

}  // namespace

GoverningControl FindGoverningControl(const State& s) {
  const Project& p = s.project;
  const Checks& k = s.checks;
  const Analysis& an = s.analysis;
  GoverningControl g;

  struct Candidate {
    const char* block;
    const ControlText* text;
    double ratio;
    Integer colour;
  };
  std::vector<Candidate> lines;
  for (size_t i = 1; i <= 3; ++i)
    if (!k.secText[i].Formula.empty()) lines.push_back({"section", &k.secText[i], k.IRsec[i], k.colSec[i]});
  if (HasBucklingBlock(p.ProfileType)) {
    if (!k.buckTextY.Formula.empty()) lines.push_back({"buckling", &k.buckTextY, k.IRbuckY, k.colBuckY});
    if (!k.buckTextZ.Formula.empty()) lines.push_back({"buckling", &k.buckTextZ, k.IRbuckZ, k.colBuckZ});
    if (!k.buckTextLT.Formula.empty()) lines.push_back({"buckling", &k.buckTextLT, k.IRbuckLT, k.colLT});
  }
  if (p.checkSLS != 0) {
    if (!an.deflTextZ.Formula.empty())
      lines.push_back({"deflection", &an.deflTextZ, an.IRdeflZ, an.colDeflZ});
    if (!an.deflTextY.Formula.empty())
      lines.push_back({"deflection", &an.deflTextY, an.IRdeflY, an.colDeflY});
  }
  if (lines.empty()) return g;

  // The ratio of a line is the larger of the number the control kept and the one its text shows,
  // so that the verdict never reads lower than the summary beside it.
  const double limit = an.IRlimit;
  const Candidate* governing = nullptr;
  double largest = -1;
  for (const Candidate& c : lines) {
    const double ratio = std::max(std::fabs(c.ratio), RatioOfText(c.text->Ratio));
    if (ratio > largest) {  // the first of equal ratios keeps the place
      largest = ratio;
      governing = &c;
    }
    g.fails = g.fails || c.colour == kRed || ratio > limit;
  }
  const ControlText& t = *governing->text;
  g.any = true;
  g.ratio = largest;
  g.kept = std::fabs(governing->ratio);
  g.ratioText = t.Ratio;
  if (RatioOfText(g.ratioText) < 0) g.ratioText = FormatNumber(largest, "0.00", s.decimalComma);
  g.block = governing->block;
  g.formula = FormulaHead(t.Formula);
  g.clause = Clause(t.Limit);
  if (g.clause.empty() && g.block == "deflection")
    g.clause = "L/" + FormatNumber(p.deflectionLimit, "0", s.decimalComma);
  return g;
}

void ShowVerdict(State& s) {
  s.view.verdict.clear();
  s.view.verdictColour = 0;
  const GoverningControl g = FindGoverningControl(s);
  if (!g.any) return;
  std::string v = g.fails ? "NOT OK: " : "OK: ";
  v += "governing IR = " + g.ratioText + (g.fails ? " > " : " <= ") +
       FormatNumber(s.analysis.IRlimit, "0.0", s.decimalComma) + ", " + g.block + " control: " + g.formula;
  if (!g.clause.empty()) v += " (" + g.clause + ")";
  s.view.verdict = v;
  s.view.verdictColour = g.fails ? kRed : kGreen;
}

namespace {

std::string Mark(int colour) {
  if (colour == 2) return "[OK]";
  if (colour == 4) return "[NOT OK]";
  return {};
}

std::string TrimRight(std::string t) {
  while (!t.empty() && (t.back() == ' ' || t.back() == '\t')) t.pop_back();
  return t;
}

}  // namespace

std::string SummaryText(const State& s) {
  std::string out;
  if (s.view.txtErrorVisible) out += TrimRight(s.view.txtError) + "\n";
  const std::vector<SummaryLine>& lines = s.view.summary;
  const size_t markWidth = std::string("[NOT OK]").size();
  size_t i = 0;
  while (i < lines.size()) {
    // One block: a title or the load case line and the control lines after it. The right column
    // starts past the widest left text of the block.
    size_t end = i + 1;
    while (end < lines.size() && !lines[end].title) ++end;
    size_t width = 0;
    for (size_t j = i; j < end; ++j)
      if (!lines[j].title && !(lines[j].ratio.empty() && lines[j].limit.empty()))
        width = std::max(width, lines[j].left.size());
    for (size_t j = i; j < end; ++j) {
      const SummaryLine& l = lines[j];
      std::string text;
      if (l.title) {
        out += "\n";
        text = l.left + l.note;
      } else if (l.ratio.empty() && l.limit.empty()) {
        text = l.note.empty() ? l.left : l.left + " " + l.note;
      } else {
        std::string mark = Mark(l.colour);
        mark.resize(std::max(mark.size(), markWidth), ' ');
        text = l.left + std::string(width - l.left.size() + 2, ' ') + l.ratio + " " + mark + l.limit;
      }
      out += TrimRight(text) + "\n";
    }
    i = end;
  }
  return out;
}

}  // namespace vn
