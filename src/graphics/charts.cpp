// Load and result charts. Every chart is drawn on 0..100 both ways (y downwards), in Arial 7, the
// member from x = 16 to x = 86, 70 units for L; the result grid's points 0..50 lie evenly along it.
#include "graphics/charts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "core/format.h"
#include "core/pipeline.h"
#include "core/state.h"
#include "graphics/support_symbols.h"

namespace vn {

namespace {

using draw::Font;
using draw::HAlign;
using draw::Pen;
using draw::Point;
using draw::VAlign;

const Pen kThin{draw::kBlack, 1, draw::LineStyle::Solid};
const Pen kMember{draw::kBlack, 2, draw::LineStyle::Solid};
const Pen kMomentPen{draw::kBlue, 1, draw::LineStyle::Solid};  // 255 in the blue channel
const Pen kHatch{draw::Rgb{190, 190, 190}, 1, draw::LineStyle::Solid};

Font ChartFont(bool bold = false) {
  Font f;
  f.family = "Arial";
  f.size = 7;
  f.bold = bold;
  return f;
}

double GridX(int i) { return kChartLeft + (kChartRight - kChartLeft) * i / 50.0; }
double MemberX(double xRel) { return kChartLeft + (kChartRight - kChartLeft) * xRel; }

std::string Fmt(const State& s, double v, const char* pattern) {
  return FormatNumber(v, pattern, s.decimalComma);
}

// The diagrams of one direction.
struct Diagrams {
  const std::array<Single, 51>& M;
  const std::array<Single, 51>& V;
  const std::array<Single, 51>& d;
  Single Mmax, Mmin, MmaxPos, MminPos;
  Single Vmax, Vmin, VmaxPos, VminPos;
  Single dmax, dmin, dabs;
};

Diagrams Of(const State& s, ChartAxis axis) {
  const Analysis& a = s.analysis;
  if (axis == ChartAxis::Z)
    return {a.MyGrid, a.VzGrid, a.dzGrid,   a.MyMax,    a.MyMin, a.MyMaxPos, a.MyMinPos,
            a.VzMax,  a.VzMin,  a.VzMaxPos, a.VzMinPos, a.dzMax, a.dzMin,    a.dzAbs};
  return {a.MzGrid, a.VyGrid, a.dyGrid,   a.MzMax,    a.MzMin, a.MzMaxPos, a.MzMinPos,
          a.VyMax,  a.VyMin,  a.VyMaxPos, a.VyMinPos, a.dyMax, a.dyMin,    a.dyAbs};
}

double Larger(double a, double b) { return std::max(std::fabs(a), std::fabs(b)); }

// Where a text at a position along the member is anchored: near an end it runs inwards.
HAlign AlongMember(double xRel) {
  if (xRel <= 0.1) return HAlign::Left;
  if (xRel >= 0.9) return HAlign::Right;
  return HAlign::Center;
}

// One band: the baseline, hatching from it to the curve, the curve joining the grid points 0..49
// each with the next. `height` gives the height of grid point i, upwards positive.
template <class Height>
void Band(draw::Canvas& c, double base, Height height, const Pen& curve) {
  std::array<Point, 51> p;
  for (int i = 0; i <= 50; ++i) p[static_cast<size_t>(i)] = {GridX(i), base - height(i)};
  for (int i = 0; i <= 50; i += 2) c.Line({GridX(i), base}, p[static_cast<size_t>(i)], kHatch);
  c.Line({kChartLeft, base}, {kChartRight, base}, kThin);
  for (int i = 0; i < 50; ++i) c.Line(p[static_cast<size_t>(i)], p[static_cast<size_t>(i) + 1], curve);
}

void Mark(draw::Canvas& c, double base, const char* letter) {
  c.Text({7, base}, letter, ChartFont(true), HAlign::Center, VAlign::Middle);
}

// A value at its place along the member, beside the curve point at y: above it when the curve
// rises above the baseline, below it otherwise.
void ValueAt(draw::Canvas& c, double xRel, double y, double base, const std::string& text) {
  const bool above = y < base;
  c.Text({MemberX(xRel), above ? y - 0.5 : y + 0.5}, text, ChartFont(), AlongMember(xRel),
         above ? VAlign::Bottom : VAlign::Top);
}

// The moment band: height -12 M / Mabs, so that sagging moments hang below the baseline; the
// extremes with their values and, for one inside the member, its position.
void MomentBand(draw::Canvas& c, const State& s, const Diagrams& g, double base) {
  double Mabs = Larger(g.Mmin, g.Mmax);
  if (Mabs == 0) Mabs = 0.001;  // all zero: the curve lies flat
  Band(
      c, base, [&](int i) { return -12.0 * g.M[static_cast<size_t>(i)] / Mabs; }, kMomentPen);
  Mark(c, base, "M");
  auto extreme = [&](double value, double pos) {
    const double y = base + 12.0 * value / Mabs;
    ValueAt(c, pos, y, base, Fmt(s, value, "#0.0"));
    if (pos > 0 && pos < 1) {
      // The position of a peak inside the member, on the other side of the baseline.
      const bool above = y < base;
      c.Text({MemberX(pos), above ? base + 0.5 : base - 0.5},
             "x=" + Fmt(s, pos * static_cast<double>(s.project.L), "#0.000 m"), ChartFont(), AlongMember(pos),
             above ? VAlign::Top : VAlign::Bottom);
    }
  };
  if (g.Mmax != 0 || g.Mmin == 0) extreme(g.Mmax, g.MmaxPos);
  if (g.Mmin != 0) extreme(g.Mmin, g.MminPos);
}

// The shear band: height 12 V / Vabs, positive upwards, with 0.0001 as the smallest divisor.
void ShearBand(draw::Canvas& c, const State& s, const Diagrams& g, double base) {
  const double Vabs = std::max(Larger(g.Vmin, g.Vmax), 0.0001);
  Band(
      c, base, [&](int i) { return 12.0 * g.V[static_cast<size_t>(i)] / Vabs; }, kThin);
  Mark(c, base, "V");
  if (g.Vmax != 0 || g.Vmin == 0)
    ValueAt(c, g.VmaxPos, base - 12.0 * g.Vmax / Vabs, base, Fmt(s, g.Vmax, "#0.0"));
  if (g.Vmin != 0) ValueAt(c, g.VminPos, base - 12.0 * g.Vmin / Vabs, base, Fmt(s, g.Vmin, "#0.0"));
}

// The deflection band: height -10 d / dabs, and the largest deflection as a ratio of the span.
void DeflectionBand(draw::Canvas& c, const State& s, const Diagrams& g, double base, double labelY) {
  const double dabs = g.dabs != 0 ? std::fabs(g.dabs) : 0.0001;
  Band(
      c, base, [&](int i) { return -10.0 * g.d[static_cast<size_t>(i)] / dabs; }, kThin);
  // The deflection that governs, with its sign: the larger of the maximum and the minimum.
  const double d = g.dmax > std::fabs(g.dmin) ? g.dmax : g.dmin;
  std::string text = "Deflection: " + Fmt(s, d, "#0.0") + " mm";
  if (d != 0) text += "  = l/" + Fmt(s, static_cast<double>(s.project.L) * 1000 / std::fabs(d), "#0");
  c.Text({50, labelY}, text, ChartFont(), HAlign::Center, VAlign::Bottom);
}

// ---- Loads ----

int CaseOf(double c) { return c == 0 ? 0 : c == 1 ? 1 : 2; }
const char* const kCaseText[3] = {" (G)", " (Q1)", " (Q2)"};

// "10.0 (G)+5.0 (Q1)": the sums of the cases that carry anything.
std::string CaseSums(const State& s, const std::array<double, 3>& sum) {
  std::string text;
  for (int c = 0; c < 3; ++c) {
    if (sum[static_cast<size_t>(c)] == 0) continue;
    if (!text.empty()) text += "+";
    text += Fmt(s, sum[static_cast<size_t>(c)], "#0.0") + kCaseText[c];
  }
  return text;
}

int DirCode(ChartAxis axis) { return axis == ChartAxis::Z ? 1 : 0; }

// An arrow from `from` to `to`, its head at `to`.
void Arrow(draw::Canvas& c, Point from, Point to, const Pen& pen, double head = 2.5) {
  c.Line(from, to, pen);
  const double dx = to.x - from.x, dy = to.y - from.y;
  const double len = std::hypot(dx, dy);
  if (len == 0) return;
  const double ux = dx / len, uy = dy / len;
  c.Polygon({to,
             {to.x - ux * head - uy * head * 0.45, to.y - uy * head + ux * head * 0.45},
             {to.x - ux * head + uy * head * 0.45, to.y - uy * head - ux * head * 0.45}},
            pen, pen.color);
}

// A concentrated moment: three quarters of a circle round the point with its arrow head.
void MomentSymbol(draw::Canvas& c, Point at, double r, bool positive, const Pen& pen) {
  const double pi = 3.14159265358979;
  std::vector<Point> arc;
  for (int i = 0; i <= 18; ++i) {
    const double t = pi * (0.25 + 1.5 * i / 18.0);
    arc.push_back({at.x + r * std::cos(t), at.y - r * std::sin(t)});
  }
  if (!positive) std::reverse(arc.begin(), arc.end());
  c.Polyline(arc, pen);
  const Point end = arc.back(), before = arc[arc.size() - 2];
  Arrow(c, before, end, pen, 2);
}

constexpr double kMemberY = 54;  // the member on the load charts
constexpr double kLoadTop = 22;  // the tail of a point force's arrow
constexpr double kBlock = 14;    // height of the largest distributed load

void AxialArrow(draw::Canvas& c, double N, double y) {
  if (N == 0) return;
  // Compression pushes at the end, tension pulls away from it; clear of the support's symbol.
  if (N > 0) {
    Arrow(c, {kChartRight + 13, y}, {kChartRight + 3, y}, kThin);
  } else {
    Arrow(c, {kChartRight + 3, y}, {kChartRight + 13, y}, kThin);
  }
}

// Texts along the member in rows: a text that would run into another of its row goes one row
// further out, so that loads close together keep readable labels.
class LabelRows {
 public:
  // Row 0 at `first`, each further row `step` away (negative: upwards); at most `rows` rows.
  LabelRows(draw::Canvas& c, double first, double step, int rows, VAlign v)
      : c_(c), first_(first), step_(step), v_(v), used_(static_cast<size_t>(rows)) {}

  // Places the text at x; returns the y of the row it went into.
  double Put(double x, const std::string& text, HAlign h) {
    const double w = 1.45 * static_cast<double>(text.size()) + 1;
    const double x0 = h == HAlign::Left ? x : h == HAlign::Right ? x - w : x - w / 2;
    const double x1 = x0 + w;
    size_t row = 0;
    for (; row + 1 < used_.size(); ++row) {
      bool free = true;
      for (const auto& [a, b] : used_[row]) free = free && (x1 <= a || x0 >= b);
      if (free) break;
    }
    used_[row].push_back({x0, x1});
    const double y = first_ + step_ * static_cast<double>(row);
    c_.Text({x, y}, text, ChartFont(), h, v_);
    return y;
  }

 private:
  draw::Canvas& c_;
  double first_, step_;
  VAlign v_;
  std::vector<std::vector<std::pair<double, double>>> used_;
};

}  // namespace

bool LoadsInDirection(const State& s, ChartAxis axis) {
  if (s.project.AnalysisMode != 1) {
    const Project& p = s.project;
    if (axis == ChartAxis::Z) return p.My12[1] != 0 || p.My12[2] != 0 || p.Vz12[1] != 0 || p.Vz12[2] != 0;
    return p.Mz12[1] != 0 || p.Mz12[2] != 0 || p.Vy12[1] != 0 || p.Vy12[2] != 0;
  }
  const Loads& l = s.loads;
  const int dir = DirCode(axis);
  for (int i = 1; i <= 4; ++i)
    if (l.uniform[i].q != 0 && l.uniform[i].Dir == dir) return true;
  for (int i = 1; i <= 3; ++i) {
    const TrapezoidLoad& t = l.trapezoid[i];
    if ((t.q1 != 0 || t.q2 != 0) && (t.Dir == 0.0f ? 0 : 1) == dir) return true;
  }
  for (int i = 1; i <= 8; ++i)
    if (l.point[i].Value != 0 && l.point[i].Dir == dir) return true;
  return false;
}

void DrawLoadChart(draw::Canvas& c, const State& s, ChartAxis axis) {
  const Loads& l = s.loads;
  const Project& p = s.project;
  const int dir = DirCode(axis);
  const double L = p.L;
  auto rel = [L](double x) { return L > 0 ? std::clamp(x / L, 0.0, 1.0) : 0.0; };
  c.Clear(draw::kWhite);
  c.SetScale(0, 0, 100, 100);

  // The sums by case for the labels: N by case; q by case in this direction (the selfweight in
  // slot 0 is a permanent load in Z).
  std::array<double, 3> N{}, q{};
  for (int i = 1; i <= 3; ++i) N[static_cast<size_t>(CaseOf(l.axial[i].Case))] += l.axial[i].N;
  double qTotal = 0;
  for (int i = 0; i <= 4; ++i) {
    const UniformLoad& u = l.uniform[i];
    if (u.Dir != dir || u.q == 0) continue;
    q[static_cast<size_t>(CaseOf(u.Case))] += u.q;
    qTotal += u.q;
  }

  // The member and its supports.
  c.Line({kChartLeft, kMemberY}, {kChartRight, kMemberY}, kMember);
  auto [start, end] = SupportEnds(p.SupportType);
  DrawSupportEnd(c, {kChartLeft, kMemberY}, start, false, 12, kThin);
  DrawSupportEnd(c, {kChartRight, kMemberY}, end, true, 12, kThin);

  // The scale of the distributed loads: the largest of them is kBlock high.
  double qMax = std::fabs(qTotal);
  for (int i = 1; i <= 3; ++i) {
    const TrapezoidLoad& t = l.trapezoid[i];
    if ((t.Dir == 0.0f ? 0 : 1) != dir) continue;
    qMax = std::max({qMax, static_cast<double>(std::fabs(t.q1)), static_cast<double>(std::fabs(t.q2))});
  }
  const double top = kMemberY - 2;
  auto qHeight = [&](double v) { return qMax > 0 ? kBlock * std::fabs(v) / qMax : 0.0; };

  // Values above the loads (two rows upwards from the arrows' tails), positions under the member
  // (three rows downwards).
  LabelRows values(c, kLoadTop - 0.5, -7, 2, VAlign::Bottom);
  LabelRows positions(c, kMemberY + 11, 7, 3, VAlign::Top);

  c.Text({1, 1}, "Lateral Load", ChartFont(true), HAlign::Left, VAlign::Top);
  if (qTotal != 0) {
    const double h = qHeight(qTotal);
    c.Rectangle({kChartLeft, top - h}, {kChartRight, top}, kThin, std::nullopt);
    for (int k = 0; k <= 10; ++k) {
      const double x = kChartLeft + 7.0 * k;
      if (qTotal > 0)
        Arrow(c, {x, top - h}, {x, top}, kThin, 1.8);
      else
        Arrow(c, {x, top}, {x, top - h}, kThin, 1.8);
    }
    // The sums by case over the block's start.
    c.Text({kChartLeft, top - h - 0.5}, CaseSums(s, q), ChartFont(), HAlign::Left, VAlign::Bottom);
  }

  // Trapezoidal loads: their values at the ends, their positions under the member.
  for (int i = 1; i <= 3; ++i) {
    const TrapezoidLoad& t = l.trapezoid[i];
    if ((t.Dir == 0.0f ? 0 : 1) != dir || (t.q1 == 0 && t.q2 == 0)) continue;
    const double x1 = MemberX(rel(t.x1)), x2 = MemberX(rel(t.x2));
    const double h1 = qHeight(t.q1), h2 = qHeight(t.q2);
    c.Polygon({{x1, top}, {x1, top - h1}, {x2, top - h2}, {x2, top}}, kThin, draw::Rgb{225, 225, 225});
    const std::string cs = kCaseText[CaseOf(t.Case)];
    values.Put(x1, Fmt(s, t.q1, "#0.0"), HAlign::Right);
    values.Put(x2, Fmt(s, t.q2, "#0.0") + cs, HAlign::Left);
    positions.Put(x1, Fmt(s, t.x1, "#0.000"), HAlign::Right);
    positions.Put(x2, Fmt(s, t.x2, "#0.000"), HAlign::Left);
  }

  // Point forces and moments; a moment's value is led down to its symbol.
  for (int i = 1; i <= 8; ++i) {
    const PointLoad& pl = l.point[i];
    if (pl.Value == 0 || pl.Dir != dir) continue;
    const double x = MemberX(rel(pl.x));
    const std::string value = Fmt(s, pl.Value, "#0.0") + kCaseText[CaseOf(pl.Case)];
    if (pl.Kind == 1) {
      MomentSymbol(c, {x, kMemberY}, 5, pl.Value > 0, kThin);
      const double y = values.Put(x, value, HAlign::Center);
      c.Line({x, y}, {x, kMemberY - 5}, Pen{draw::Rgb{150, 150, 150}, 1, draw::LineStyle::Dot});
    } else {
      if (pl.Value > 0)
        Arrow(c, {x, kLoadTop}, {x, kMemberY - 1}, kThin);
      else
        Arrow(c, {x, kMemberY - 1}, {x, kLoadTop}, kThin);
      values.Put(x, value, HAlign::Center);
    }
    positions.Put(x, Fmt(s, pl.x, "#0.000"), HAlign::Center);
  }

  // The axial force at the far end, and its sums by case.
  const double Nsum = N[0] + N[1] + N[2];
  AxialArrow(c, Nsum, kMemberY);
  const std::string axial = CaseSums(s, N);
  if (!axial.empty()) c.Text({1, 99}, "Axial Load: " + axial, ChartFont(), HAlign::Left, VAlign::Bottom);
}

void DrawResultChart(draw::Canvas& c, const State& s, ChartAxis axis) {
  c.Clear(draw::kWhite);
  c.SetScale(0, 0, 100, 100);
  const Diagrams g = Of(s, axis);
  c.Text({50, 1}, axis == ChartAxis::Z ? "My/Vz/Deflection (kNm/kN/mm)" : "Mz/Vy/Deflection (kNm/kN/mm)",
         ChartFont(true), HAlign::Center, VAlign::Top);
  MomentBand(c, s, g, 25);
  ShearBand(c, s, g, 55);
  DeflectionBand(c, s, g, 81, 100);
}

void DrawEndForceLoadChart(draw::Canvas& c, const State& s) {
  c.Clear(draw::kWhite);
  c.SetScale(0, 0, 100, 100);
  const double N = s.project.NEndForce;
  c.Text({1, 1}, " Axial force (kN) " + Fmt(s, N, "#0.0"), ChartFont(true), HAlign::Left, VAlign::Top);
  c.Line({kChartLeft, kMemberY}, {kChartRight, kMemberY}, kMember);
  if (N != 0) {
    // The same force at both ends: pushing in under compression, pulling out under tension.
    const bool pushing = N > 0;
    const double l0 = kChartLeft - 11, l1 = kChartLeft - 1, r0 = kChartRight + 11, r1 = kChartRight + 1;
    Arrow(c, pushing ? Point{l0, kMemberY} : Point{l1, kMemberY},
          pushing ? Point{l1, kMemberY} : Point{l0, kMemberY}, kThin);
    Arrow(c, pushing ? Point{r0, kMemberY} : Point{r1, kMemberY},
          pushing ? Point{r1, kMemberY} : Point{r0, kMemberY}, kThin);
  }
}

void DrawEndForceResultChart(draw::Canvas& c, const State& s, ChartAxis axis) {
  c.Clear(draw::kWhite);
  c.SetScale(0, 0, 100, 100);
  const Diagrams g = Of(s, axis);
  const bool z = axis == ChartAxis::Z;
  c.Text({50, 1}, z ? "Bending moment (My, kNm)" : "Bending moment (Mz, kNm)", ChartFont(true),
         HAlign::Center, VAlign::Top);
  c.Text({50, 51}, z ? "Shear (Vz, kN)" : "Shear (Vy, kN)", ChartFont(true), HAlign::Center, VAlign::Top);

  // Straight diagrams between the end values, which are written at the ends.
  double Mabs = Larger(g.Mmin, g.Mmax);
  if (Mabs == 0) Mabs = 0.001;
  const double mBase = 28, vBase = 77;
  Band(
      c, mBase, [&](int i) { return -12.0 * g.M[static_cast<size_t>(i)] / Mabs; }, kMomentPen);
  Mark(c, mBase, "M");
  const double Vabs = std::max(Larger(g.Vmin, g.Vmax), 0.0001);
  Band(
      c, vBase, [&](int i) { return 12.0 * g.V[static_cast<size_t>(i)] / Vabs; }, kThin);
  Mark(c, vBase, "V");
  for (int end : {0, 50}) {
    const double xRel = end / 50.0;
    const Single M = g.M[static_cast<size_t>(end)], V = g.V[static_cast<size_t>(end)];
    ValueAt(c, xRel, mBase + 12.0 * M / Mabs, mBase, Fmt(s, M, "#0.0"));
    ValueAt(c, xRel, vBase - 12.0 * V / Vabs, vBase, Fmt(s, V, "#0.0"));
  }
}

std::optional<std::string> ChartReadout(const State& s, std::string_view picture, double x) {
  const bool my = picture == "PicMy", mz = picture == "PicMz";
  if (!my && !mz) return std::nullopt;
  if (!s.resultsValid) return std::nullopt;  // no values of an earlier run under a failed one
  if (!(x >= kChartLeft && x < kChartRight)) return std::nullopt;
  const double t = (x - kChartLeft) / (kChartRight - kChartLeft);
  const int i = std::clamp(static_cast<int>(RoundHalfEven(t * 50)), 0, 50);
  const double position = t * static_cast<double>(s.project.L);
  const Analysis& a = s.analysis;
  const double M = my ? a.MyGrid[static_cast<size_t>(i)] : a.MzGrid[static_cast<size_t>(i)];
  const double V = my ? a.VzGrid[static_cast<size_t>(i)] : a.VyGrid[static_cast<size_t>(i)];
  // The shear carries "kNm" in this tip, as a fixed text.
  return " x = " + Fmt(s, position, "0.000 m") + (my ? "  My = " : "  Mz = ") + Fmt(s, M, "0.0 kNm") +
         (my ? "  Vz = " : "  Vy = ") + Fmt(s, V, "0.0 kNm") + " ";
}

void DrawCharts(State& s) {
  View& v = s.view;
  Analysis& a = s.analysis;
  // Without a front end (s.headless) nothing is drawn; the flags and what is on show are kept.
  const bool onScreen = !s.headless;
  auto record = [&v, onScreen](const char* name, auto drawFn) {
    if (!onScreen) return;
    draw::Drawing& d = v.pictures[name];
    d.commands.clear();
    draw::RecordingCanvas c(d);
    drawFn(c);
  };
  auto clear = [&v, onScreen](const char* name) {
    if (onScreen) v.pictures[name].commands.clear();
  };

  a.hasLoadY = ToBoolean(LoadsInDirection(s, ChartAxis::Y));
  a.hasLoadZ = ToBoolean(LoadsInDirection(s, ChartAxis::Z));
  const bool y = a.hasLoadY != 0, z = a.hasLoadZ != 0;

  if (s.project.AnalysisMode == 1) {
    record("PicLoadZ", [&](draw::Canvas& c) { DrawLoadChart(c, s, ChartAxis::Z); });
    record("PicLoadY", [&](draw::Canvas& c) { DrawLoadChart(c, s, ChartAxis::Y); });
    v.visible["PicLoadY"] = v.visible["PicMz"] = y;
    if (y)
      record("PicMz", [&](draw::Canvas& c) { DrawResultChart(c, s, ChartAxis::Y); });
    else
      clear("PicMz");
    const bool zShown = z || s.project.SelfweightOn != 0;
    v.visible["PicLoadZ"] = v.visible["PicMy"] = zShown;
    if (zShown)
      record("PicMy", [&](draw::Canvas& c) { DrawResultChart(c, s, ChartAxis::Z); });
    else
      clear("PicMy");
    return;
  }

  // End forces: the axial force, and the directions that carry moment or shear.
  record("PicLoadZ", [&](draw::Canvas& c) { DrawEndForceLoadChart(c, s); });
  v.visible["PicLoadZ"] = true;
  clear("PicLoadY");
  v.visible["PicLoadY"] = false;
  v.visible["PicMy"] = z;
  v.visible["PicMz"] = y;
  if (z)
    record("PicMy", [&](draw::Canvas& c) { DrawEndForceResultChart(c, s, ChartAxis::Z); });
  else
    clear("PicMy");
  if (y)
    record("PicMz", [&](draw::Canvas& c) { DrawEndForceResultChart(c, s, ChartAxis::Y); });
  else
    clear("PicMz");
}

}  // namespace vn
