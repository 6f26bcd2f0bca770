// Extremes of the combined diagrams, the five classic points, zero points of the moment, the shape
// of the moment diagram for the equivalent moment factors, and the deflection lines.
#include <cmath>

#include "analysis/analysis.h"
#include "analysis/member_analysis.h"
#include "core/format.h"
#include "core/state.h"
#include "design/design_basis.h"

namespace vn {

namespace {

struct Extreme {
  Single& max;
  Single& min;
  Single& maxPos;
  Single& minPos;
  void Take(Single v, Single pos) {
    if (v > max) {
      max = v;
      maxPos = pos;
    }
    if (v < min) {
      min = v;
      minPos = pos;
    }
  }
};

void FillDeflection(const State& s, Single dMax, Single dMin, const char* formula, ControlText& t,
                    Integer& colour, Single& ratio) {
  if (dMax == 0 && dMin == 0) return;
  const bool dc = s.decimalComma;
  const double limit = Div(s.project.L * 1000.0, s.project.deflectionLimit);
  const double d = dMax > std::fabs(dMin) ? dMax : dMin;
  const double IR = std::fabs(Div(d, limit));
  const Single IRlimit = s.analysis.IRlimit;
  t.Formula = formula;
  t.Numbers = FormatNumber(d, "0.0", dc) + "/" + FormatNumber(limit, "0.0", dc) + " = ";
  t.Ratio = FormatNumber(IR, "0.00", dc);
  t.Limit = " < " + FormatNumber(IRlimit, "0.0", dc);
  colour = IR <= IRlimit ? 2 : 4;
  ratio = ToSingle(IR);
}

}  // namespace

FivePoints FivePointValues(const std::array<Single, 51>& M) {
  FivePoints f;
  f.M1 = M[0];
  f.M2 = ToSingle((static_cast<double>(M[12]) + M[13]) / 2);
  f.M3 = M[25];
  f.M4 = ToSingle((static_cast<double>(M[37]) + M[38]) / 2);
  f.M5 = M[50];
  return f;
}

Single PsiOf(const FivePoints& f) {
  double psi;
  if (std::fabs(f.M5) > std::fabs(f.M1))
    psi = f.M1 == 0 ? 0.0 : Div(f.M1, f.M5);
  else
    psi = f.M5 == 0 ? 0.0 : Div(f.M5, f.M1);
  if (psi > 1) psi = 1;
  if (psi < -1) psi = -1;
  return ToSingle(psi);
}

// Zero points of the moment: the last change of sign in k = 1..25 and in k = 25..49, as x/L.
void Inflections(const std::array<Single, 51>& M, Single& first, Single& second) {
  auto find = [&](int from, int to) {
    int found = -1;
    for (int k = from; k <= to; ++k) {
      const Single a = M[k], b = M[k + 1];
      const bool rises = b > a && a <= 0 && b >= 0;
      const bool falls = b < a && a >= 0 && b <= 0;
      if (rises || falls) found = k;
    }
    if (found < 0) return 0.0f;
    const double a = M[found], b = M[found + 1];
    return ToSingle(found / 50.0 + Div(std::fabs(a), std::fabs(b - a)) / 50);
  };
  first = find(1, 25);
  second = find(25, 49);
}

void MomentShapeOf(const std::array<Single, 51>& M, const FivePoints& f, bool zAxis, MomentShape& sh,
                   bool spanPeak) {
  // The inner peak: the largest magnitude in 12..38, the first one on a tie.
  int ki = 0;
  double best = 0;
  for (int k = 12; k <= 38; ++k) {
    if (std::fabs(M[k]) > best) {
      best = std::fabs(M[k]);
      ki = k;
    }
  }
  const double Mi = M[ki];
  const double M1 = f.M1, M3 = f.M3, M5 = f.M5;

  // Bands of 20 % of the slope about the middle of each straight leg.
  const double s1 = ki == 0 ? 0.0 : (Mi - M1) / ki;
  const double s2 = (M5 - Mi) / (50 - ki);
  const double j1 = ki / 2.0, j2 = (ki + 50) / 2.0;
  const double c1 = (M1 + Mi) / 2, w1 = 0.2 * s1 * j1;
  const double c2 = (M5 + Mi) / 2, w2 = 0.2 * s2 * (j2 - ki);
  const double lo1 = std::min(c1 - w1, c1 + w1), hi1 = std::max(c1 - w1, c1 + w1);
  const double lo2 = std::min(c2 - w2, c2 + w2), hi2 = std::max(c2 - w2, c2 + w2);
  const double at1 = M[static_cast<int>(RoundHalfEven(j1))];
  const double at2 = M[static_cast<int>(RoundHalfEven(j2))];
  const bool straight = at1 > lo1 && at1 < hi1 && at2 > lo2 && at2 < hi2;
  sh.Curved = ToBoolean(!straight);

  sh.MidDominates = ToBoolean(std::fabs(M1) < std::fabs(M3) && std::fabs(M5) < std::fabs(M3));

  bool linear = false;
  if (M1 != 0 || M5 != 0) {
    // About z the difference is rounded to single precision and the band is open.
    const double D = zAxis ? static_cast<double>(static_cast<Single>(M5 - M1)) : M5 - M1;
    const double p3 = M1 + 0.3 * D, p7 = M1 + 0.7 * D;
    const double lo = std::min(p3, p7), hi = std::max(p3, p7);
    linear = zAxis ? (M3 > lo && M3 < hi) : (M3 >= lo && M3 <= hi);
  }
  sh.Linear = ToBoolean(linear);

  sh.Psi = PsiOf(f);

  // The larger end moment by magnitude, M5 on a tie. About z the inner moment is the peak Mi; about
  // y the program's own method takes the midspan value M3, which under a load off the middle (a
  // propped cantilever) is below the span's extreme moment Ms of Table B.3. The strict rules take
  // the peak about y too.
  const double endMoment = std::fabs(M1) > std::fabs(M5) ? M1 : M5;
  const double inner = zAxis || spanPeak ? Mi : M3;
  if (sh.MidDominates) {
    sh.AlphaH = ToSingle(inner == 0 ? 0.0 : Div(endMoment, inner));
  } else {
    sh.AlphaS = ToSingle(endMoment == 0 ? 0.0 : Div(inner, endMoment));
  }
}

void ForceExtremes(State& s) {
  Analysis& an = s.analysis;
  an.MyMax = an.MyMin = an.MzMax = an.MzMin = 0;
  an.VzMax = an.VzMin = an.VyMax = an.VyMin = 0;
  an.MyMaxPos = an.MyMinPos = an.MzMaxPos = an.MzMinPos = 0;
  an.VzMaxPos = an.VzMinPos = an.VyMaxPos = an.VyMinPos = 0;
  an.dzMax = an.dzMin = an.dyMax = an.dyMin = 0;

  Extreme my{an.MyMax, an.MyMin, an.MyMaxPos, an.MyMinPos};
  Extreme mz{an.MzMax, an.MzMin, an.MzMaxPos, an.MzMinPos};
  Extreme vz{an.VzMax, an.VzMin, an.VzMaxPos, an.VzMinPos};
  Extreme vy{an.VyMax, an.VyMin, an.VyMaxPos, an.VyMinPos};
  for (int k = 0; k <= 50; ++k) {
    const Single pos = ToSingle(k / 50.0);
    my.Take(an.MyGrid[k], pos);
    mz.Take(an.MzGrid[k], pos);
    vz.Take(an.VzGrid[k], pos);
    vy.Take(an.VyGrid[k], pos);
    if (an.dzGrid[k] > an.dzMax) an.dzMax = an.dzGrid[k];
    if (an.dzGrid[k] < an.dzMin) an.dzMin = an.dzGrid[k];
    if (an.dyGrid[k] > an.dyMax) an.dyMax = an.dyGrid[k];
    if (an.dyGrid[k] < an.dyMin) an.dyMin = an.dyGrid[k];
  }
  // The check points after the grid: on a tie the grid's position stays.
  if (an.NPoints < 0 || an.NPoints > 40) Fault("subscript out of range");
  for (int i = 0; i <= an.NPoints; ++i) {
    const Single pos = an.ChPointXrel[i];
    vz.Take(an.VzPt[i], pos);
    my.Take(an.MyPt[i], pos);
    vy.Take(an.VyPt[i], pos);
    mz.Take(an.MzPt[i], pos);
  }

  an.PointsY = FivePointValues(an.MyGrid);
  an.PointsZ = FivePointValues(an.MzGrid);

  an.InflectionY1 = an.InflectionY2 = an.InflectionZ1 = an.InflectionZ2 = 0;
  const int type = s.project.SupportType;
  if (type == 1 || type == 2 || type == 3 || type == 5) {
    Inflections(an.MyGrid, an.InflectionY1, an.InflectionY2);
    Inflections(an.MzGrid, an.InflectionZ1, an.InflectionZ2);
  }

  an.dzAbs = std::max(std::fabs(an.dzMax), std::fabs(an.dzMin));
  an.dyAbs = std::max(std::fabs(an.dyMax), std::fabs(an.dyMin));
  an.MyAbs = std::max(std::fabs(an.MyMax), std::fabs(an.MyMin));
  an.MzAbs = std::max(std::fabs(an.MzMax), std::fabs(an.MzMin));

  MomentShapeOf(an.MyGrid, an.PointsY, false, an.ShapeY, StrictRules(s));
  MomentShapeOf(an.MzGrid, an.PointsZ, true, an.ShapeZ);
}

void DeflectionText(State& s) {
  Analysis& an = s.analysis;
  an.deflTextZ = ControlText{};
  an.deflTextY = ControlText{};
  an.colDeflZ = an.colDeflY = 2;
  an.IRdeflZ = an.IRdeflY = 0;
  FillDeflection(s, an.dzMax, an.dzMin, "IR = dz/dzMax = ", an.deflTextZ, an.colDeflZ, an.IRdeflZ);
  FillDeflection(s, an.dyMax, an.dyMin, "IR = dy/dyMax = ", an.deflTextY, an.colDeflY, an.IRdeflY);
}

}  // namespace vn
