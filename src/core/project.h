// The one input record of the member being designed.
#pragma once

#include <array>
#include <string>

#include "core/types.h"

namespace vn {

// Dialog inputs of the families with typed dimensions, one record per section dialog.
struct WeldedIInput {  // p21, double symmetric welded I
  Single isth = 0, istb1 = 0, isttw = 0, isttf = 0;
};
struct WeldedISingleSymInput {  // p22
  Single isth = 0, istb1 = 0, istb2 = 0, isttw = 0, isttf1 = 0, isttf2 = 0;
};
struct WeldedBoxInput {  // p23
  Single isth = 0, istb1 = 0, isttw = 0, isttf = 0, ista = 0;
  Integer oweld = 0;
};
struct HsqSymInput {  // p24
  Single isth = 0, istb1 = 0, istb2 = 0, isttw = 0, isttf1 = 0, isttf2 = 0, c = 0, iload = 0;
  Integer classOption = 0;
};
struct HsqUnsymInput {  // p25
  Single isth = 0, istb1 = 0, istb2 = 0, isttw = 0, isttf1 = 0, isttf2 = 0, istc = 0;
  Integer classOption = 0;
};
struct TeeInput {  // p26
  Number isth = 0, istb1 = 0, isttw = 0;
  Single isttf1 = 0;
};
struct BoxUnequalInput {  // p27
  Number isth = 0, istb1 = 0, istb2 = 0, isttw = 0, isttf1 = 0, isttf2 = 0;
  Single istc = 0;
};
struct FlatBarInput {  // p28
  Single isth = 0, isttw = 0;
};
struct TubeInput {  // p31
  Single istd = 0, isttw = 0;
  Integer hotCold = 0;  // 1 hot finished (opthot), other cold formed (optcold)
};
struct GeneralInput {  // p41
  std::string name;
  Integer classN = 0, classMy = 0, classMz = 0;
  Single istax = 0, istay = 0, istaz = 0, istix = 0, istiy = 0, istiz = 0, istiw = 0;
  Single istwely = 0, istwelz = 0, istwply = 0, istwplz = 0;
};
struct PlateFlatInput {  // p51
  Number isth = 0, istb1 = 0, isttw = 0;
  Single isttf1 = 0;
};
struct PlateBarInput {  // p52, p54: the bar comes from a catalogue row
  Number istb1 = 0;
  Single istt1 = 0;
};
struct PlateWeldedInput {  // p53, p56
  Number isth = 0, istb1 = 0, istb2 = 0, isttw = 0, isttf1 = 0;
  Single isttf2 = 0;
};
struct Plate55Input {  // family 55: a plate family with no dialog, kept in the file format
  Number v1 = 0, v2 = 0, v3 = 0;
  Single v4 = 0;
  Number v5 = 0, v6 = 0;
};

// The two methods of the elastic critical moment as the dialog `vipping` names them; the project file
// keeps the second as a mark after its last value (kMcrEigenMark), and a file without it takes the first.
inline constexpr const char* kMcrTablesText = "Mcr from C factors";
inline constexpr const char* kMcrEigenText = "Mcr by eigenvalue analysis";
inline constexpr const char* kMcrEigenMark = kMcrEigenText;

struct Project {
  // Identification
  std::string fileName;
  std::string projectName;
  std::string projectIdent;

  // Section choice
  Integer ProfileType = 0;
  std::string profileName;
  Integer figureNotToScale = 0;
  Integer rhsTurned = 0;    // 1 rectangular hollow section as catalogued, other turned by 90 degrees
  Integer hsqKind = 0;      // opthsq0 / opthsq1
  Integer angleOption = 0;  // opt_l10_1 / opt_l10_2: 1 or 2

  // Selected row of each catalogue table, indexed by CatalogueId (sections/catalogue.h).
  std::array<Integer, 21> SelectedRow{};
  Integer subFamily101 = 0;  // 1 UB, 2 UC, 3 UBP
  Integer subFamily103 = 0;  // 1 PFC, 2 CH

  WeldedIInput p21;
  WeldedISingleSymInput p22;
  WeldedBoxInput p23;
  HsqSymInput p24;
  HsqUnsymInput p25;
  TeeInput p26;
  BoxUnequalInput p27;
  FlatBarInput p28;
  TubeInput p31;
  GeneralInput p41;
  PlateFlatInput p51;
  PlateBarInput p52;
  PlateWeldedInput p53;
  PlateBarInput p54;
  Plate55Input p55;
  PlateWeldedInput p56;

  // Material
  Integer steelGrade = 0;
  Single fyk = 0;
  Single E = 0;
  Single rho = 0;
  Single epsilon = 0;
  Single fyd = 0;

  // Member and buckling
  Single L = 0;
  Single bucklingFactorY = 0;
  Single bucklingFactorZ = 0;
  Integer bucklingCaseY = 0;
  Integer bucklingCaseZ = 0;
  Integer bucklingCurveY = 0;
  Integer bucklingCurveZ = 0;

  // End supports
  Integer SupportType = 0;
  Integer SpringPct = 0;
  Integer rigidEndPost = 0;
  Integer webStiffeners = 0;
  Single a = 0;

  // Lateral torsional buckling
  Integer ltbOn = 0;
  Integer ltbCase = 0;
  Single ltbFactor = 0;
  Integer ltbRestraints = 0;
  Integer ltbPart = 0;
  Boolean ltbUserC = False;
  Boolean ltbUserC1 = False;
  Integer ltbCurve = 0;
  Integer ltbLoadLevel = 0;
  Number ltbZa = 0;
  Number ltbC1 = 0, ltbC2 = 0, ltbC3 = 0;
  // Where Mcr comes from: 0 "Mcr from C factors" (the tables, the default), 1 "Mcr by eigenvalue
  // analysis" of the member (options `McrTables`, `McrEigen` of the dialog `vipping`).
  Integer ltbMcrMethod = 0;

  // Analysis switches
  Integer AnalysisMode = 0;
  Integer chModal = 0;
  Boolean checkSLS = False;
  Integer deflectionLimit = 0;
  Integer LoadCombMode = 0;
  Integer SelfweightOn = 0;
  Integer ChPointMode = 0;
  Integer ChPointCount = 0;
  Integer ChPointRelative = 0;
  std::array<Single, 4> ChPointX{};  // slots 1..3

  // End forces of the End forces mode (slots 1..2)
  Single NEndForce = 0;
  std::array<Single, 3> My12{};
  std::array<Single, 3> Mz12{};
  std::array<Single, 3> Vy12{};
  std::array<Single, 3> Vz12{};

  // Reserved numbers of the project file, all 1, used nowhere else.
  Number reserved1 = 0, reserved2 = 0;
  Integer reserved3 = 0;
  Number reserved4 = 0, reserved5 = 0;
  Single reserved6 = 0;

  // Design basis (settings of the Setup dialog and the setup file)
  std::string codeId;
  Integer codeIndex = 0;
  Number gammaM0 = 0;
  Single gammaM1 = 0;
  Single neta = 0;
  Integer interactionMethod = 0;
  Single lamdaLT0 = 0;
  Number beta = 0;
  Single lamdaLT0w = 0;
  Number betaw = 0;
  Single uflimit = 0;
  Boolean elasticClass12 = False;
  Boolean conserControl = False;
  Boolean noFlangeBuckling = False;
  Boolean noWebBuckling = False;
  // The rules in force: False "as specified" (the program's own method, the default), True "EN 1993
  // strict" (the standard's own rules where the two differ, see the help page "Departures").
  Boolean strictRules = False;
  Integer safetyClass = 0;
  Integer psiQ1Index = 0, psiQ2Index = 0;
  Single psiQ1 = 0, psiQ2 = 0;
  Single LfULS_G = 0, LfULS_Q1 = 0, LfULS_Q2 = 0;
  Single LfSLS_G = 0, LfSLS_Q1 = 0, LfSLS_Q2 = 0;

  // Result state of the pipeline
  Integer calcError = 0;  // 0 clear, -1 a calculation error stops the pipeline
};

}  // namespace vn
