// What the controls leave behind: a ratio, four texts and a colour for every control group, and the
// working values that the table of detailed results prints. Cleared at the head of every run.
// The governing ratios IRsection, IRbuckling and the limit IRlimit live in Analysis (analysis.h),
// where the choice between Eq 6.10a and 6.10b reads them.
#pragma once

#include <array>
#include <string>

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
  // Where Mcr of the run came from: the eigenvalue analysis, with its critical factor on the design
  // moment diagram, or the C factors; when the eigenvalue analysis was chosen and could not give Mcr,
  // why (More Results, under "Other").
  Boolean McrByEigen = False;
  Number McrFactor = 0;
  std::string McrNote;

  // Flexural and torsional buckling (rows 15-22).
  Number Ncry = 0, lamday = 0, chiy = 0;
  Number Ncrz = 0, lamdaz = 0, chiz = 0;
  Number NcrT = 0, NcrTF = 0;
  // Under the strict rules (6.3.1.4): the slenderness, reduction factor and resistance of the
  // torsional or torsional-flexural mode of a section that has one, and whether that mode, not
  // flexure about z, gives the z line (its chiz and NbzRd are then the mode's).
  Number lamdaT = 0, chiT = 0, NbTRd = 0;
  Boolean torsionalGoverns = False;

  // Interaction factors (rows 24-46).
  Number kyy = 0, kyz = 0, kzz = 0, kzy = 0;
  Number Cmy = 0, Cmy0 = 0, Cmz = 0, CmLt = 0;
  Number Cyy = 0, Cyz = 0, Czy = 0, Czz = 0;
  Number aLt = 0, bLt = 0, cLt = 0, dLt = 0, eLt = 0;
  Number npl = 0, uy = 0, uz = 0, wy = 0, wz = 0, ey = 0;

  // Curve texts left by the last control for the labels obcy, obcz of the main form.
  std::string curveTextY, curveTextZ;

  // Section control of the I family: the work values of the check point at hand, left as the last
  // point had them. Forces are magnitudes in kN and kNm; NEd keeps its sign in Analysis.
  Single MyEd = 0, MzEd = 0, VyEd = 0, VzEd = 0;
  Single MyRd = 0, MzRd = 0;          // moment resistances, reduced for shear where it is high
  Single MNyRd = 0, MNzRd = 0;        // the same, reduced for the axial force
  Single rhoY = 0, rhoZ = 0;          // shear reduction factors of 6.2.8
  double classCur = 0;                // class used by the next moment resistance
  double classNMy = 0, classNMz = 0;  // classes under the actual N and M pair
  double NRd = 0;                     // NcRd under compression, NtRd otherwise
  double alfa = 0, betaN = 0;         // exponents of the biaxial forms: 2 and 5n, not below 1
  // End of the shear line's Limit text: ")" or " Support stiffener recommended)".
  std::string VbSuffix;

  // Buckling control of the I family: working values that the stability routines hand on.
  Number alphaY = 0, alphaZ = 0;  // imperfection factors of the curves in force; kept by families
                                  // without a curve row
  Number lamdaMax = 0;            // the larger of lamday and lamdaz
  Number NbyRd = 0, NbzRd = 0;    // buckling resistances, kN
  Number LTlength = 0;            // m, length of the torsional buckling mode
  Number McrWork = 0;             // Nmm, critical moment of the part at hand
  Number MyLT = 0, MyRdLT = 0;    // kNm, moment and resistance of the governing LT part
  Number Cmz0 = 0;
  std::array<std::string, 7> ltbPartLabel{};   // text of each part of the member
  Boolean hasLoadY = False, hasLoadZ = False;  // anything acts in the plane of y / of z
  // Values of the single symmetric I (22) and the plate families (51 to 56) that the LT control
  // reads; their section stages fill them. mm, and kNm for the resistances of the flange in
  // compression under a positive and a negative moment.
  Number zs = 0, zjTop = 0, zjBot = 0, psifTop = 0, psifBot = 0, ezb = 0, hpl = 0, bpl = 0;
  double MyRdBuckPos = 0, MyRdBuckNeg = 0;

  // Angles: flexural buckling about the principal axes u and v, the member's values turned into
  // them, and the interaction factors of the line about v.
  Number Ncru = 0, lamdau = 0, chiu = 0, NbuRd = 0;
  Number Ncrv = 0, lamdav = 0, chiv = 0, NbvRd = 0;
  Number kvv = 0, kvu = 0, Cmu = 0, Cmv = 0;
  Single MuMax = 0, MvMax = 0;    // kNm, governing moments about u and v
  Single MuCm = 0, MvCm = 0;      // kNm, the largest moments about u and v for Cm
  Single deltaU = 0, deltaV = 0;  // mm, deflections across u and v for Cm

  // The last computed values of the factors that some families take from the runs before them
  // (see RunControls); the shown values above are marked "not computed" (NaN) at each run's head.
  struct Carried {
    Number kc = 0, kyy = 0, kyz = 0, kzy = 0, kzz = 0;
    Number lamdaLT = 0, fLT = 0, XLt = 0, xLT = 0;
  } carried;
};

}  // namespace vn
