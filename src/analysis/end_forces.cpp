// End force mode: the member carries the end forces the user gives, linear between the ends, as
// design values. No load factors, no deflections.
#include "analysis/analysis.h"
#include "analysis/member_analysis.h"
#include "core/state.h"

namespace vn {

namespace {

void EndForcesAtPoints(State& s) {
  const Project& p = s.project;
  Analysis& an = s.analysis;
  if (an.NPoints < 0 || an.NPoints > 40) Fault("subscript out of range");
  auto linear = [](Single at1, Single at2, double x) {
    return ToSingle((static_cast<double>(at2) - at1) * x + at1);
  };
  for (int i = 0; i <= an.NPoints; ++i) {
    const double x = an.ChPointXrel[i];
    an.MzPt[i] = linear(p.Mz12[1], p.Mz12[2], x);
    an.MyPt[i] = linear(p.My12[1], p.My12[2], x);
    an.VyPt[i] = linear(p.Vy12[1], p.Vy12[2], x);
    an.VzPt[i] = linear(p.Vz12[1], p.Vz12[2], x);
  }
  an.PointsY.M1 = p.My12[1];
  an.PointsY.M5 = p.My12[2];
  an.PointsZ.M1 = p.Mz12[1];
  an.PointsZ.M5 = p.Mz12[2];
}

// A diagram of 51 values from end 1 in 50 equal steps, the step held in single precision; the
// maximum starts from the value at x = 0, the minimum from 0.
void LinearOnGrid(Single at1, Single at2, std::array<Single, 51>& grid, Single& max, Single& min) {
  const Single step = ToSingle((static_cast<double>(at2) - at1) / 50);
  for (int k = 0; k <= 50; ++k) grid[k] = ToSingle(at1 + static_cast<double>(k) * step);
  max = grid[0];
  min = 0;
  for (int k = 0; k <= 50; ++k) {
    if (grid[k] > max) max = grid[k];
    if (grid[k] < min) min = grid[k];
  }
}

void EndForcesOnGrid(State& s) {
  const Project& p = s.project;
  Analysis& an = s.analysis;
  LinearOnGrid(p.My12[1], p.My12[2], an.MyGrid, an.MyMax, an.MyMin);
  LinearOnGrid(p.Mz12[1], p.Mz12[2], an.MzGrid, an.MzMax, an.MzMin);
  LinearOnGrid(p.Vy12[1], p.Vy12[2], an.VyGrid, an.VyMax, an.VyMin);
  LinearOnGrid(p.Vz12[1], p.Vz12[2], an.VzGrid, an.VzMax, an.VzMin);
  // No deflections in this mode.
  an.dzGrid.fill(0);
  an.dyGrid.fill(0);
  an.dzMax = an.dzMin = an.dyMax = an.dyMin = an.dzAbs = an.dyAbs = 0;
  an.deflTextZ = ControlText{};
  an.deflTextY = ControlText{};

  an.PointsY = FivePointValues(an.MyGrid);
  an.PointsZ = FivePointValues(an.MzGrid);
  an.ShapeY.Psi = PsiOf(an.PointsY);
  an.ShapeZ.Psi = PsiOf(an.PointsZ);
  // The other shape values stay those of the last beam mode run.

  an.InflectionY1 = an.InflectionY2 = 0;
  const int type = p.SupportType;
  if (type == 1 || type == 2 || type == 3 || type == 5)
    Inflections(an.MyGrid, an.InflectionY1, an.InflectionY2);

  an.NEd = p.NEndForce;
  // No uniform load acts in this mode: the load on the HSQ's lower plate is none, rather than the
  // loads of the last run in load mode.
  an.qTotal = 0;
}

}  // namespace

void EndForcePath(State& s) {
  Project& p = s.project;
  const int type = p.ProfileType;
  // Families with one bending axis keep no forces about z; the T section keeps only N.
  if (type == 24 || type == 25 || type == 26 || type == 27 || type == 28) {
    p.Mz12[1] = p.Mz12[2] = 0;
    p.Vy12[1] = p.Vy12[2] = 0;
  }
  if (type == 26) {
    p.My12[1] = p.My12[2] = 0;
    p.Vz12[1] = p.Vz12[2] = 0;
  }
  EndForcesAtPoints(s);
  EndForcesOnGrid(s);
}

}  // namespace vn
