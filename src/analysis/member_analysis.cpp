// The member analysis: check grid, loads cleaned for the section family, unit solutions, the load
// combination, extremes. Closed-form superposition of linear solutions; no second-order effect.
#include "analysis/member_analysis.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

#include "analysis/analysis.h"
#include "core/pipeline.h"
#include "core/state.h"
#include "design/design_basis.h"

namespace vn {

namespace {

// Load case of a slot: 0 G, 1 Q1, 2 Q2. A case held as a float is Q1 only when exactly 1.0.
int CaseOf(double code) { return code == 0 ? 0 : code == 1 ? 1 : 2; }

// Families that carry bending about y only: HSQ, T, box with unequal flanges, flat bar, plates.
bool OneAxisFamily(int type) {
  return type == 24 || type == 25 || type == 27 || type == 28 || (type >= 51 && type <= 56);
}

struct Factors {
  double F[3] = {0, 0, 0};  // ULS factor of G, Q1, Q2
  double S[3] = {0, 0, 0};  // SLS factor
  bool basic = false;       // "Basic loads": 1 for a ticked slot, 0 otherwise, whatever the case
};

Factors FactorsOf(const State& s, CombForm form) {
  const Project& p = s.project;
  const CombinationFactors& c = s.comb;
  Factors f;
  const double psiQ1 = p.psiQ1, psiQ2 = p.psiQ2, KFI = c.KFI, KFIG = c.KFIG;
  f.S[0] = 1;
  f.S[1] = 1;
  f.S[2] = psiQ2;
  switch (form) {
    case CombForm::Eq610:
      f.F[0] = c.gammaG_610 * KFIG;
      f.F[1] = c.gammaQ1_610 * KFI;
      f.F[2] = c.gammaQ2_610 * KFI * psiQ1;  // psi of the main load's list, as the program has it
      break;
    case CombForm::Eq610a:
      f.F[0] = c.gammaG_610a * KFIG;
      f.F[1] = c.gammaQ1_610a * KFI * psiQ1;
      f.F[2] = c.gammaQ2_610a * KFI * psiQ2;
      break;
    case CombForm::Eq610b:
      f.F[0] = c.gammaG_610b * KFIG * c.xi;
      f.F[1] = 1.5 * KFI;  // the 1.5 of Eq 6.10b is a constant
      f.F[2] = 1.5 * KFI * psiQ2;
      break;
    case CombForm::UserFactors:
      f.F[0] = p.LfULS_G;
      f.F[1] = p.LfULS_Q1;
      f.F[2] = p.LfULS_Q2;
      f.S[0] = p.LfSLS_G;
      f.S[1] = p.LfSLS_Q1;
      f.S[2] = p.LfSLS_Q2;
      break;
    case CombForm::BasicLoads: f.basic = true; break;
    case CombForm::None: f.S[0] = f.S[1] = f.S[2] = 0; break;
  }
  // A favourable permanent load takes gamma G,inf = 1.0 in Eq 6.10, 6.10a and 6.10b, with neither
  // K_FI nor xi, which belong to the unfavourable side (EN 1990 Table A1.2(B)).
  const bool en1990 = form == CombForm::Eq610 || form == CombForm::Eq610a || form == CombForm::Eq610b;
  if (en1990 && s.analysis.permanentFavourable != 0) f.F[0] = 1.0;
  return f;
}

// out[k] = a[k] + F t[k] into Singles. `bad` is set where ToSingle might fault: a Single that is
// infinite, not a number, or the largest Single (a sum just beyond it rounds to it, and ToSingle
// refuses that); the sums are then made again one by one, checked. `negativeZero` is set where a
// Single is -0. The loops hold no branch, so the compiler works out several points at once.
void SumInto(Single* out, const Single* a, double F, const Single* t, size_t n, int& bad, int& negativeZero) {
  for (size_t k = 0; k < n; ++k) out[k] = static_cast<Single>(a[k] + F * t[k]);
  std::uint32_t large = 0, minusZero = 0;
  for (size_t k = 0; k < n; ++k) {
    const std::uint32_t bits = std::bit_cast<std::uint32_t>(out[k]);
    large |= (bits & 0x7fffffffu) >= 0x7f7fffffu;
    minusZero |= bits == 0x80000000u;
  }
  bad |= static_cast<int>(large);
  negativeZero |= static_cast<int>(minusZero);
}

// Adds one routed slot with its factors to the diagrams and the check points, point by point,
// each sum checked as it is stored.
void AddSlotByPoint(Analysis& an, const UnitColumn& z, const UnitColumn& y, double F, double S) {
  for (int k = 0; k <= 50; ++k) {
    an.MyGrid[k] = ToSingle(an.MyGrid[k] + F * z.M[k]);
    an.VzGrid[k] = ToSingle(an.VzGrid[k] + F * z.V[k]);
    an.dzGrid[k] = ToSingle(an.dzGrid[k] + S * z.d[k]);
    an.MzGrid[k] = ToSingle(an.MzGrid[k] + F * y.M[k]);
    an.VyGrid[k] = ToSingle(an.VyGrid[k] + F * y.V[k]);
    an.dyGrid[k] = ToSingle(an.dyGrid[k] + S * y.d[k]);
  }
  for (int i = 0; i <= an.NPoints; ++i) {
    an.MyPt[i] = ToSingle(an.MyPt[i] + F * z.Mc[i]);
    an.VzPt[i] = ToSingle(an.VzPt[i] + F * z.Vc[i]);
    an.MzPt[i] = ToSingle(an.MzPt[i] + F * y.Mc[i]);
    an.VyPt[i] = ToSingle(an.VyPt[i] + F * y.Vc[i]);
  }
}

// The sums of one direction (My, Vz, dz from z; Mz, Vy, dy from y) into working copies.
struct DirectionSums {
  std::array<Single, 51> M, V, d;
  std::array<Single, 41> Mc, Vc;
};

void SumDirection(const std::array<Single, 51>& M, const std::array<Single, 51>& V,
                  const std::array<Single, 51>& d, const std::array<Single, 41>& Mc,
                  const std::array<Single, 41>& Vc, const UnitColumn& col, double F, double S, int points,
                  DirectionSums& out, int& bad, int& negativeZero) {
  const size_t n = static_cast<size_t>(points);
  SumInto(out.M.data(), M.data(), F, col.M.data(), 51, bad, negativeZero);
  SumInto(out.V.data(), V.data(), F, col.V.data(), 51, bad, negativeZero);
  SumInto(out.d.data(), d.data(), S, col.d.data(), 51, bad, negativeZero);
  SumInto(out.Mc.data(), Mc.data(), F, col.Mc.data(), n, bad, negativeZero);
  SumInto(out.Vc.data(), Vc.data(), F, col.Vc.data(), n, bad, negativeZero);
}

// Adds one routed slot. The sums are made for all points into working copies and checked together;
// they are kept only when every one is a storable Single. Otherwise the slot is added point by
// point, so that the fault comes at the same sum as ever with the sums before it stored.
// A column of +0 throughout adds nothing: F * (+0) is +0 or -0 for a finite factor, and x + (+-0)
// is x for every x but -0, which is why the sums are watched for -0 (`negativeZero`, kept over the
// slots of one combination) and a column is passed over only while none has been stored.
void AddSlot(Analysis& an, const UnitColumn& z, const UnitColumn& y, double F, double S, int& negativeZero) {
  const bool finite = std::isfinite(F) && std::isfinite(S);
  const bool skipZ = finite && !negativeZero && z.allZero;
  const bool skipY = finite && !negativeZero && y.allZero;
  if (skipZ && skipY) return;
  const int points = an.NPoints + 1;  // 1..41, checked by the caller
  DirectionSums sz, sy;
  int bad = 0, negative = negativeZero;
  if (!skipZ)
    SumDirection(an.MyGrid, an.VzGrid, an.dzGrid, an.MyPt, an.VzPt, z, F, S, points, sz, bad, negative);
  if (!skipY)
    SumDirection(an.MzGrid, an.VyGrid, an.dyGrid, an.MzPt, an.VyPt, y, F, S, points, sy, bad, negative);
  if (bad) {
    AddSlotByPoint(an, z, y, F, S);
    return;
  }
  negativeZero = negative;
  const size_t count = static_cast<size_t>(points);
  if (!skipZ) {
    an.MyGrid = sz.M;
    an.VzGrid = sz.V;
    an.dzGrid = sz.d;
    std::copy_n(sz.Mc.begin(), count, an.MyPt.begin());
    std::copy_n(sz.Vc.begin(), count, an.VzPt.begin());
  }
  if (!skipY) {
    an.MzGrid = sy.M;
    an.VyGrid = sy.V;
    an.dyGrid = sy.d;
    std::copy_n(sy.Mc.begin(), count, an.MzPt.begin());
    std::copy_n(sy.Vc.begin(), count, an.VyPt.begin());
  }
}

void RunControlsOnce(State& s) {
  if (s.analysis.controlRunner)
    s.analysis.controlRunner(s);
  else
    RunControls(s);
}

// One equation of Eq 6.10a/b: combine, extremes, governing moments, the controls. Returns the
// larger of the two governing ratios, or false when a control raised the calculation error.
bool TryEquation(State& s, CombForm form, double& ratio) {
  Analysis& an = s.analysis;
  CombineLoads(s, form);
  an.IRsection = 0;
  an.IRbuckling = 0;
  ForceExtremes(s);
  GoverningMoments(s);
  RunControlsOnce(s);
  if (s.project.calcError == -1) return false;
  ratio = std::max(an.IRsection, an.IRbuckling);
  return true;
}

// The strict rules of EN 1990 Table A1.2(B): each equation of the mode runs with the permanent load
// unfavourable (gamma G,sup) and favourable (gamma G,inf = 1.0), and the combination with the
// larger of the governing ratios governs. The program's own method takes gamma G,sup alone, which
// under an uplift (wind on a light roof) relieves the member by more than the permanent load can.
// On a tie the unfavourable side, and of Eq 6.10a/b the 6.10b, keep their place as in the default.
bool StrictGoverningCombination(State& s) {
  Analysis& an = s.analysis;
  const int mode = s.project.LoadCombMode;
  std::vector<std::pair<CombForm, int>> forms;
  if (mode == 3)
    forms = {{CombForm::Eq610a, 1}, {CombForm::Eq610b, 2}};
  else
    forms = {{mode == 0 ? CombForm::Eq610 : mode == 1 ? CombForm::Eq610a : CombForm::Eq610b, 0}};
  double best = -1;
  CombForm bestForm = forms.front().first;
  int bestEquation = 0;
  bool bestFavourable = false;
  for (bool favourable : {false, true}) {
    for (const auto& [form, equation] : forms) {
      an.permanentFavourable = ToBoolean(favourable);
      double r = 0;
      if (!TryEquation(s, form, r)) return false;
      const bool wins = favourable ? r > best : (equation == 2 ? r >= best : r > best);
      if (wins) {
        best = r;
        bestForm = form;
        bestEquation = equation;
        bestFavourable = favourable;
      }
    }
  }
  an.permanentFavourable = ToBoolean(bestFavourable);
  if (mode == 3) an.GoverningEquation = static_cast<Integer>(bestEquation);
  CombineLoads(s, bestForm);
  return true;
}

// The transverse loads in z with the factors of the combination, for the load height of the
// lateral torsional eigenvalue analysis. Routed as the solver routes them: a slot of direction 0 acts
// in y, a point slot of kind 1 is a moment. A trapezoid as the solver's 20 strips, each a force at
// the strip's middle.
template <class FactorOf>
void FactoredLoadsZInForce(State& s, const FactorOf& F) {
  const Loads& l = s.loads;
  FactoredLoadsZ& z = s.analysis.loadsZ;
  z = FactoredLoadsZ{};
  for (int i = 0; i <= 4; ++i) {
    const UniformLoad& q = l.uniform[i];
    if (q.Dir != 0) z.q += F(CaseOf(q.Case), q.Checked) * q.q;
  }
  for (int i = 1; i <= 3; ++i) {
    const TrapezoidLoad& t = l.trapezoid[i];
    if (t.Dir == 0.0f) continue;
    const double Fi = F(CaseOf(t.Case), t.Checked);
    const double dq = (static_cast<double>(t.q2) - t.q1) / 20, dx = (static_cast<double>(t.x2) - t.x1) / 20;
    if (dx == 0) continue;
    for (int j = 1; j <= 20; ++j)
      z.forces.push_back({Fi * (t.q1 + (j - 0.5) * dq) * dx, t.x1 + (j - 0.5) * dx});
  }
  for (int i = 1; i <= 8; ++i) {
    const PointLoad& pl = l.point[i];
    if (pl.Kind == 1 || pl.Dir == 0) continue;
    z.forces.push_back({F(CaseOf(pl.Case), pl.Checked) * pl.Value, pl.x});
  }
}

}  // namespace

void ComputeCheckGrid(State& s) {
  const Project& p = s.project;
  Analysis& an = s.analysis;
  const double L = p.L;
  if (p.ChPointMode != 1) {
    // "11 even distributed points && Max/Min My/Mz": the tenth points, then two points beside each
    // point load, in the order of the slots.
    an.NPoints = 10;
    for (int i = 0; i <= 10; ++i) an.ChPointXrel[i] = ToSingle(i / 10.0);
    for (int j = 1; j <= 8; ++j) {
      const Single x = s.loads.point[j].x;
      if (x == 0 || x == p.L) continue;
      an.ChPointXrel[++an.NPoints] = ToSingle(Div(x * 0.999, L));
      an.ChPointXrel[++an.NPoints] = ToSingle(Div(x * 1.001, L));
    }
    return;
  }
  // The user's points.
  const int count = p.ChPointCount == 1 ? 1 : p.ChPointCount == 2 ? 2 : 3;
  an.NPoints = static_cast<Integer>(count - 1);
  for (int i = 0; i < count; ++i) an.ChPointXrel[i] = ToSingle(Div(p.ChPointX[i + 1], L));
}

void CleanLoadsForSection(State& s) {
  const int type = s.project.ProfileType;
  Loads& l = s.loads;
  if (OneAxisFamily(type)) {
    if (type != 28)
      for (int i = 1; i <= 3; ++i) l.axial[i].N = 0;
    for (int i = 1; i <= 4; ++i) {
      if (l.uniform[i].Dir == 0) l.uniform[i].q = 0;
      l.uniform[i].Dir = 1;
    }
    for (int i = 1; i <= 3; ++i) {
      if (l.trapezoid[i].Dir == 0) {
        l.trapezoid[i].q1 = 0;
        l.trapezoid[i].q2 = 0;
        l.trapezoid[i].Dir = 1.0f;
      }
    }
    for (int i = 1; i <= 8; ++i) {
      PointLoad& pl = l.point[i];
      if (pl.Dir == 0) {
        pl.Dir = 1;
        pl.Value = 0;
        pl.Case = 0;
        pl.x = 0;
      }
    }
  }
  if (type == 26) {
    for (int i = 1; i <= 4; ++i) l.uniform[i].q = 0;
    for (int i = 1; i <= 3; ++i) {
      TrapezoidLoad& t = l.trapezoid[i];
      t.q1 = t.q2 = t.x1 = t.x2 = 0;
    }
    for (int i = 1; i <= 8; ++i) {
      l.point[i].Value = 0;
      l.point[i].x = 0;
    }
  }
}

void SetSelfweightSlot(State& s) {
  UniformLoad& u = s.loads.uniform[0];
  if (s.project.SelfweightOn == 1) {
    u.q = ToSingle(s.section.g * 0.01);  // kg/m to kN/m with the program's rounded gravity
    u.Case = 0;
    u.Dir = 1;
    u.Checked = True;
  } else {
    u.q = 0;
    u.Checked = False;
  }
}

void SolveAllSlots(State& s) {
  for (int i = 0; i <= 4; ++i) SolveUniform(s, i, s.loads.uniform[i].q);
  for (int i = 1; i <= 3; ++i) SolveTrapezoid(s, i);
  SplitPointLoads(s);
  for (int i = 1; i <= 8; ++i) SolvePointForce(s, i);
  for (int i = 1; i <= 8; ++i) SolvePointMoment(s, i);
  for (int i = 0; i <= 4; ++i) RouteUniform(s, i);
  for (int i = 1; i <= 3; ++i) RouteTrapezoid(s, i);
  for (int i = 1; i <= 8; ++i) RoutePointForce(s, i);
  for (int i = 1; i <= 8; ++i) RoutePointMoment(s, i);
}

void CombineLoads(State& s, CombForm form) {
  Analysis& an = s.analysis;
  const Loads& l = s.loads;
  const UnitSolutions& u = an.unit;
  an.MyGrid.fill(0);
  an.VzGrid.fill(0);
  an.dzGrid.fill(0);
  an.MzGrid.fill(0);
  an.VyGrid.fill(0);
  an.dyGrid.fill(0);
  if (an.NPoints < 0 || an.NPoints > 40) Fault("subscript out of range");
  for (int i = 0; i <= an.NPoints; ++i) an.MyPt[i] = an.VzPt[i] = an.VyPt[i] = an.MzPt[i] = 0;
  an.NEd = 0;
  an.qTotal = 0;

  int negativeZero = 0;  // a sum stored as -0 so far (the sums start at +0)
  const Factors f = FactorsOf(s, form);
  auto F = [&](int c, Boolean checked) { return f.basic ? (checked ? 1.0 : 0.0) : f.F[c]; };
  auto S = [&](int c, Boolean checked) { return f.basic ? (checked ? 1.0 : 0.0) : f.S[c]; };
  // Only the eigenvalue analysis of Mcr reads them: with the tables nothing is spent on them.
  if (s.project.ltbMcrMethod == 1)
    FactoredLoadsZInForce(s, F);
  else
    s.analysis.loadsZ = FactoredLoadsZ{};

  for (int i = 1; i <= 3; ++i) {
    const AxialLoad& a = l.axial[i];
    an.NEd += F(CaseOf(a.Case), a.Checked) * a.N;
  }
  for (int i = 0; i <= 4; ++i) {
    const UniformLoad& q = l.uniform[i];
    const int c = CaseOf(q.Case);
    an.qTotal += F(c, q.Checked) * q.q;
    AddSlot(an, u.uniform.z[i], u.uniform.y[i], F(c, q.Checked), S(c, q.Checked), negativeZero);
  }
  for (int i = 1; i <= 3; ++i) {
    const TrapezoidLoad& t = l.trapezoid[i];
    const int c = CaseOf(t.Case);
    AddSlot(an, u.trapezoid.z[i], u.trapezoid.y[i], F(c, t.Checked), S(c, t.Checked), negativeZero);
  }
  for (int i = 1; i <= 8; ++i) {
    const PointLoad& pl = l.point[i];
    const int c = CaseOf(pl.Case);
    AddSlot(an, u.force.z[i], u.force.y[i], F(c, pl.Checked), S(c, pl.Checked), negativeZero);
  }
  for (int i = 1; i <= 8; ++i) {
    const PointLoad& pl = l.point[i];
    const int c = CaseOf(pl.Case);
    AddSlot(an, u.moment.z[i], u.moment.y[i], F(c, pl.Checked), S(c, pl.Checked), negativeZero);
  }
}

void GoverningMoments(State& s) {
  Analysis& an = s.analysis;
  an.MyGov = std::fabs(an.MyMax) > std::fabs(an.MyMin) ? an.MyMax : an.MyMin;
  an.MzGov = std::max(std::fabs(an.MzMax), std::fabs(an.MzMin));
}

void MemberAnalysis(State& s) {
  Project& p = s.project;
  Analysis& an = s.analysis;
  ComputeCheckGrid(s);
  an.loadsZ = FactoredLoadsZ{};

  if (p.AnalysisMode != 1) {
    EndForcePath(s);
    GoverningMoments(s);
    return;
  }

  CleanLoadsForSection(s);
  SetSelfweightSlot(s);
  SolveAllSlots(s);

  an.permanentFavourable = False;
  if (StrictRules(s) && p.LoadCombMode >= 0 && p.LoadCombMode <= 3) {
    if (!StrictGoverningCombination(s)) return;
  } else
    switch (p.LoadCombMode) {
      case 0: CombineLoads(s, CombForm::Eq610); break;
      case 1: CombineLoads(s, CombForm::Eq610a); break;
      case 2: CombineLoads(s, CombForm::Eq610b); break;
      case 3: {
        // Both equations run through the controls; the higher utilisation governs, 6.10b on a tie.
        double A = 0, B = 0;
        if (!TryEquation(s, CombForm::Eq610a, A)) return;
        if (!TryEquation(s, CombForm::Eq610b, B)) return;
        if (A > B) {
          an.GoverningEquation = 1;
          CombineLoads(s, CombForm::Eq610a);
        } else {
          an.GoverningEquation = 2;
          CombineLoads(s, CombForm::Eq610b);
        }
        break;
      }
      case 4: CombineLoads(s, CombForm::UserFactors); break;
      case 5: CombineLoads(s, CombForm::BasicLoads); break;
      default: CombineLoads(s, CombForm::None); break;  // no such combination: nothing acts
    }

  ForceExtremes(s);
  DeflectionText(s);
  GoverningMoments(s);
}

}  // namespace vn
