// What the controls leave behind: a ratio, four texts and a colour for every control group, and the
// working values that the table of detailed results prints. Cleared at the head of every run.
// The governing ratios IRsection, IRbuckling and the limit IRlimit live in Analysis (analysis.h),
// where the choice between Eq 6.10a and 6.10b reads them.
#pragma once

#include <array>

#include "analysis/analysis.h"
#include "core/types.h"

namespace vn {

inline constexpr Integer kGreen = 2;  // colour index of a ratio within the limit
inline constexpr Integer kRed = 4;    // colour index of a ratio above the limit

struct Checks {
  // Section control groups 1..6 (index 0 unused): 1 single forces, 2 interaction, 3 shear.
  std::array<Number, 7> IRsec{};
  std::array<ControlText, 7> secText{};
  std::array<Integer, 7> colSec{};

  // Buckling lines: about y, about z, lateral torsional.
  Number IRbuckY = 0, IRbuckZ = 0, IRbuckLT = 0;
  ControlText buckTextY, buckTextZ, buckTextLT;
  Integer colBuckY = 0, colBuckZ = 0, colLT = 0;

  // Lateral torsional buckling (detail table rows 5-13).
  Number Mcr = 0;  // Nmm
  Number C1 = 0, C2 = 0, C3 = 0;
  Number lamdaLT = 0;
  Number Mcr0 = 0;  // Nmm
  Number lamda0 = 0;
  Number XLt = 0;  // chi LT before the modification
  Number xLT = 0;  // chi LT,mod
  Number kc = 0;
  Number fLT = 0;

  // Flexural and torsional buckling (rows 15-22).
  Number Ncry = 0, lamday = 0, chiy = 0;
  Number Ncrz = 0, lamdaz = 0, chiz = 0;
  Number NcrT = 0, NcrTF = 0;

  // Interaction factors (rows 24-46).
  Number kyy = 0, kyz = 0, kzz = 0, kzy = 0;
  Number Cmy = 0, Cmy0 = 0, Cmz = 0, CmLt = 0;
  Number Cyy = 0, Cyz = 0, Czy = 0, Czz = 0;
  Number aLt = 0, bLt = 0, cLt = 0, dLt = 0, eLt = 0;
  Number npl = 0, uy = 0, uz = 0, wy = 0, wz = 0, ey = 0;

  // Curve texts left by the last control for the labels obcy, obcz of the main form.
  std::string curveTextY, curveTextZ;
};

}  // namespace vn
