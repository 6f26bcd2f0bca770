// Natural frequencies of the first three modes in bending about y, from the classic coefficients
// of the support type.
#include "analysis/analysis.h"
#include "analysis/member_analysis.h"
#include "core/format.h"
#include "core/pipeline.h"
#include "core/state.h"
#include "design/design_basis.h"

namespace vn {

double ModalCoefficient(int supportType, int mode) {
  static const double c[5][3] = {
      {1.57, 6.28, 14.1},  // 0 simple
      {2.45, 7.95, 16.6},  // 1 pinned-fixed
      {3.56, 9.82, 19.2},  // 2 fixed-fixed
      {0, 0, 0},           // 3 springs: none
      {0.56, 3.51, 9.82},  // 4 cantilever
  };
  if (supportType < 0 || supportType > 4 || mode < 1 || mode > 3) return 0;
  return c[supportType][mode - 1];
}

void ModalAnalysis(State& s) {
  const Project& p = s.project;
  const Loads& l = s.loads;
  Analysis& an = s.analysis;
  View& v = s.view;
  const bool dc = s.decimalComma;

  // The user's uniform loads whatever their case and direction (102 kg per kN), plus the section
  // weight, also without the selfweight switch.
  // The program's own method counts a variable load in full. The strict rules take the mass of the
  // quasi-permanent combination of EN 1990, G + psi2 Q: a G load in full, a Q1 or Q2 load times the
  // psi of its list. Those lists hold the combination values psi0 of Eq 6.10a, and psi2 <= psi0 for
  // every category of EN 1990 Table A1.1, so that the mass is never below the quasi-permanent one and
  // the frequency never above the standard's: with no psi2 of its own the member errs on the low side.
  const bool strict = StrictRules(s);
  double q = 0;
  for (int i = 1; i <= 4; ++i) {
    const UniformLoad& u = l.uniform[i];
    const double psi = !strict || u.Case == 0 ? 1.0 : u.Case == 1 ? p.psiQ1 : p.psiQ2;
    q += psi * u.q;
  }
  an.ModalMass = ToSingle(102 * q + s.section.g);
  v.text["Modal_ns.massa"] = "Mass: m = " + FormatNumber(an.ModalMass, "#0", dc) + " kg/m";

  const double L = p.L;
  const double root = Sqrt(Div(static_cast<double>(s.section.Iy) * p.E * 1E-6, L * L * L * L * an.ModalMass));
  for (int n = 1; n <= 3; ++n) {
    const std::string key = "Modal_ns.mod" + std::to_string(n);
    const double c = ModalCoefficient(p.SupportType, n);
    an.ModalFreq[n] = ToSingle(c * root);
    if (c == 0) {  // no coefficients for spring supports
      v.text[key] = "";
      continue;
    }
    const double f = an.ModalFreq[n];
    v.text[key] = "Mode " + std::to_string(n) + ": " + FormatNumber(f, "#0.00", dc) + " Hz/" +
                  FormatNumber(Div(1.0, f), "#0.00", dc) + "s";
  }
}

}  // namespace vn
