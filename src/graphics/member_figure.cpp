// Member figure and main form state.
#include "graphics/member_figure.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "analysis/member_analysis.h"
#include "core/format.h"
#include "core/pipeline.h"
#include "core/state.h"
#include "graphics/section_figure.h"
#include "graphics/support_symbols.h"

namespace vn {

namespace {

using draw::Font;
using draw::HAlign;
using draw::Pen;
using draw::Point;
using draw::VAlign;

const Pen kThin{draw::kBlack, 1, draw::LineStyle::Solid};
const Pen kMemberPen{draw::kBlack, 2, draw::LineStyle::Solid};
const Pen kPost{draw::kBlack, 3, draw::LineStyle::Solid};
const Pen kStiffener{draw::Rgb{0, 0, 160}, 1, draw::LineStyle::Solid};

Font SmallFont() {
  Font f;
  f.family = "Arial";
  f.size = 7;
  return f;
}

bool In(int type, std::initializer_list<int> set) {
  return std::find(set.begin(), set.end(), type) != set.end();
}
bool Between(int type, int lo, int hi) { return type >= lo && type <= hi; }

// The families whose lateral torsional buckling the check box switches.
bool LtbFamily(int type) {
  return Between(type, 1, 5) || In(type, {15, 16, 21, 22, 28, 41}) || Between(type, 101, 103);
}
bool NoLtbFamily(int type) { return Between(type, 6, 13) || Between(type, 23, 27) || type == 31; }
bool PlateFamily(int type) { return Between(type, 51, 56); }

void Record(State& s, const char* name, void (*draw)(draw::Canvas&, const State&)) {
  draw::Drawing& d = s.view.pictures[name];
  d.commands.clear();
  draw::RecordingCanvas c(d);
  draw(c, s);
}

}  // namespace

void DrawMemberSymbol(draw::Canvas& c, const State& s) {
  const Project& p = s.project;
  c.Clear(draw::kWhite);
  c.SetScale(0, 0, 100, 18);
  const double x0 = 12, x1 = 88, y = 7;
  c.Line({x0, y}, {x1, y}, kMemberPen);

  // Web stiffeners at distance a along the member, where they stand apart enough to be seen.
  const double L = p.L;
  if (p.webStiffeners == 1 && p.a > 0 && L > 0) {
    const double step = (x1 - x0) * (p.a / 1000.0) / L;
    if (step >= 0.8) {
      for (double x = x0 + step; x < x1 - 1e-6; x += step) c.Line({x, y - 2.5}, {x, y + 2.5}, kStiffener);
    }
  }

  const auto [start, end] = SupportEnds(p.SupportType);
  DrawSupportEnd(c, {x0, y}, start, false, 7, kThin);
  DrawSupportEnd(c, {x1, y}, end, true, 7, kThin);

  // End posts over the supported ends: both ends, but for the cantilever only at its fixed end.
  if (p.rigidEndPost == 1) {
    const double h = p.SupportType == 2 || p.SupportType == 1 ? 2.5 : 3;
    c.Line({x0 + 1, y - h}, {x0 + 1, y + h}, kPost);
    if (end != EndKind::Free) c.Line({x1 - 1, y - h}, {x1 - 1, y + h}, kPost);
  }

  // The spring values at the spring ends.
  if (p.SupportType == 3 || p.SupportType == 5) {
    const std::string spring = FormatNumber(p.SpringPct, "#0", s.decimalComma) + " %";
    if (start == EndKind::Spring) c.Text({x0 - 4, y - 1}, spring, SmallFont(), HAlign::Right, VAlign::Bottom);
    if (end == EndKind::Spring) c.Text({x1 + 4, y - 1}, spring, SmallFont(), HAlign::Left, VAlign::Bottom);
  }

  c.Text({50, 17.5}, "L = " + FormatNumber(p.L, "#0.000", s.decimalComma) + " m", SmallFont(), HAlign::Center,
         VAlign::Bottom);
}

void DrawLoadLevelPicture(draw::Canvas& c, int loadLevel, bool singleSymmetric) {
  c.Clear(draw::kWhite);
  c.SetScale(0, 0, 40, 40);
  // The fourth level carries "Za" right of the section: the section moves left to give it room in
  // the small picture.
  const double top = 12, bot = 34, cx = loadLevel == 4 ? 14 : 20;
  const double bTop = singleSymmetric ? 12 : 18, bBot = 18;
  c.Line({cx - bTop / 2, top}, {cx + bTop / 2, top}, kMemberPen);
  c.Line({cx - bBot / 2, bot}, {cx + bBot / 2, bot}, kMemberPen);
  c.Line({cx, top}, {cx, bot}, kThin);
  // The shear centre: half way for the double symmetric I, nearer the larger flange otherwise.
  const double centre = singleSymmetric ? 25 : (top + bot) / 2;
  c.Circle({cx, centre}, 1, kThin, draw::kBlack);
  double at = top;
  switch (loadLevel) {
    case 2: at = centre; break;
    case 3: at = bot; break;
    case 4: at = 5; break;
    default: at = top; break;
  }
  const draw::Pen red{draw::kRed, 1.5, draw::LineStyle::Solid};
  const double from = std::max(at - 10, 0.5);
  c.Line({cx + 0.01, from}, {cx + 0.01, at}, red);
  c.Polygon({{cx, at}, {cx - 2, at - 3}, {cx + 2, at - 3}}, red, draw::kRed);
  if (loadLevel == 4) {
    c.Line({cx + 4, at}, {cx + 4, centre}, kThin);
    c.Text({cx + 5, (at + centre) / 2}, "Za", SmallFont(), HAlign::Left, VAlign::Middle);
  }
}

void DrawLtbPicture(draw::Canvas& c) {
  c.Clear(draw::kWhite);
  c.SetScale(0, 0, 60, 24);
  // The member's axis and, bowed out of it, the compressed flange seen from above.
  c.Line({4, 12}, {56, 12}, draw::Pen{draw::kBlack, 1, draw::LineStyle::DashDot});
  std::vector<Point> bow;
  for (int i = 0; i <= 20; ++i) {
    const double t = i / 20.0;
    bow.push_back({4 + 52 * t, 12 - 7 * std::sin(3.14159265358979 * t)});
  }
  c.Polyline(bow, draw::Pen{draw::kBlue, 1.5, draw::LineStyle::Solid});
  c.Polygon({{4, 12}, {1, 16}, {7, 16}}, kThin, draw::kWhite);
  c.Polygon({{56, 12}, {53, 16}, {59, 16}}, kThin, draw::kWhite);
}

void UpdateMainFormState(State& s) {
  Project& p = s.project;
  View& v = s.view;
  const int type = p.ProfileType;
  const bool dc = s.decimalComma;

  const bool onScreen = !s.headless;  // a run without a front end draws no picture

  // 1. The member symbol.
  if (onScreen) Record(s, "pic11", DrawMemberSymbol);

  // 2. "Column data" under compression only, never for the families that carry no axial force.
  bool column = s.analysis.NEd > 0;
  if (In(type, {24, 25, 27}) || PlateFamily(type)) column = false;
  v.visible["columnframe"] = column;

  // 3. The spring of the spring supports.
  const bool spring = p.SupportType == 3 || p.SupportType == 5;
  v.visible["ispring"] = spring;
  if (spring) v.text["ispring"] = FormatNumber(p.SpringPct, "#0", dc);

  // 4. Lateral torsional buckling by family.
  bool vipp = false, zaa = false, loadLevel = false;
  if (LtbFamily(type)) {
    if (p.ltbOn != 1) {
      v.value["ch_vipp"] = 0;
    } else {
      v.value["ch_vipp"] = 1;
      vipp = true;
      zaa = p.ltbLoadLevel == 4 && p.ltbRestraints == 0;
      loadLevel = p.ltbRestraints == 0;
    }
    v.visible["ch_vipp"] = true;
  } else if (NoLtbFamily(type)) {
    // ltbOn stays: the controls of these families ignore it.
    v.visible["ch_vipp"] = false;
  } else if (PlateFamily(type)) {
    // With the plate on top the control runs only when the free stiffener is compressed.
    if (s.analysis.MyGov >= 0) {
      v.value["ch_vipp"] = 0;
      p.ltbOn = 0;
      v.visible["ch_vipp"] = false;
    } else {
      v.value["ch_vipp"] = 1;
      p.ltbOn = 1;
      v.visible["ch_vipp"] = true;
      vipp = true;
    }
  }
  v.visible["pic_vipp"] = vipp;
  v.visible["zaa"] = zaa;
  v.visible["pic_loadlevel"] = loadLevel;
  if (vipp && onScreen) Record(s, "pic_vipp", [](draw::Canvas& c, const State&) { DrawLtbPicture(c); });

  // 5. The picture of the load level.
  if (onScreen) {
    draw::Drawing& d = v.pictures["pic_loadlevel"];
    d.commands.clear();
    draw::RecordingCanvas c(d);
    DrawLoadLevelPicture(c, p.ltbLoadLevel, type == 22);
  }

  // 6. Za.
  v.text["zaa"] = "Za = " + FormatNumber(p.ltbZa, "#0", dc) + " mm";

  // 7. Web stiffeners and end posts only where the family's shear control reads them.
  if (Between(type, 1, 4) || Between(type, 6, 9) || type == 15 || Between(type, 21, 25) || type == 27 ||
      type == 101 || type == 102) {
    v.visible["cbuttsupport"] = true;
  } else if (In(type, {5, 10, 11, 16, 26, 28, 31, 41, 103})) {
    v.visible["cbuttsupport"] = false;
    p.webStiffeners = 0;
    p.rigidEndPost = 0;
  }

  // 8. The family's picture on the main form.
  if (onScreen) {
    draw::Drawing& d = v.pictures["Picture4"];
    d.commands.clear();
    draw::RecordingCanvas c(d);
    DrawStockSection(c, s, type, false);
  }

  // 9. No modal analysis on springs.
  if (spring) {
    v.visible["cmd_modresult"] = false;
    p.chModal = 0;
    v.value["ch_modal"] = 0;
    HideDialog(s, "Modal_ns");
  }
}

}  // namespace vn
