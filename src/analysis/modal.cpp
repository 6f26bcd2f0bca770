// Natural frequencies of the first three modes in bending about y, from the classic coefficients
// of the support type.
#include "analysis/analysis.h"
#include "analysis/member_analysis.h"
#include "core/format.h"
#include "core/pipeline.h"
#include "core/state.h"

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
  const double q = static_cast<double>(l.uniform[1].q) + l.uniform[2].q + l.uniform[3].q + l.uniform[4].q;
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
