// Load combinations of EN 1990 for each code and class: the factors the member analysis multiplies
// the load cases G, Q1 and Q2 with, and the formula texts of the Setup dialog, the Loading dialog
// and the report.
#include <cctype>

#include "core/format.h"
#include "core/recalculate.h"
#include "core/state.h"
#include "design/design_basis.h"

namespace vn {

namespace {

const char* const kLoadCombTexts[kLoadCombModes] = {"EN 1990 Eq 6.10",  "EN 1990 Eq 6.10a",
                                                    "EN 1990 Eq 6.10b", "EN 1990 Eq 6.10a/b",
                                                    "ULS/SLS",          "Basic loads"};

struct GammaRow {
  float gammaG_610, gammaQ_610;  // Q1 and Q2 alike
  float gammaG_610a, gammaQ_610a;
  float gammaG_610b, xi;
};

constexpr GammaRow kGammas[kCodeLast + 1] = {
    {1.35f, 1.5f, 1.35f, 1.5f, 1.35f, 0.85f},   // EU
    {1.35f, 1.5f, 1.35f, 1.5f, 1.35f, 0.89f},   // NO
    {1.35f, 1.5f, 1.35f, 1.5f, 1.35f, 0.89f},   // SW
    {1.1f, 1.5f, 1.2f, 0.0f, 1.0f, 1.0f},       // DK: 6.10a is the permanent load alone
    {1.35f, 1.5f, 1.35f, 1.5f, 1.35f, 0.925f},  // UK
    {1.1f, 1.5f, 1.35f, 0.0f, 1.15f, 1.0f},     // FI: 6.10a is the permanent load alone
    {1.35f, 1.5f, 1.35f, 1.5f, 1.35f, 0.85f},   // GE
    {1.35f, 1.5f, 1.35f, 1.5f, 1.35f, 0.89f},   // NK
    {1.35f, 1.5f, 1.1f, 1.5f, 1.35f, 0.85f},    // UD: 1.1 in 6.10a, as the program has it
};

// KFI, the reliability factor on the variable loads, of a code and class.
float Kfi(int codeIndex, int safetyClass, int loadCombMode) {
  switch (codeIndex) {
    case 1:
    case 7: return safetyClass == 1 ? 0.9f : 1.0f;
    case 2: return safetyClass == 1 ? 0.83f : safetyClass == 2 ? 0.91f : 1.0f;
    case 3:
      if (safetyClass == 1) return loadCombMode == 0 ? 1.0f : 0.9f;
      return safetyClass == 2 ? 1.0f : 1.1f;
    case 5: return safetyClass == 1 ? 0.9f : safetyClass == 2 ? 1.0f : 1.1f;
  }
  return 1.0f;
}

// Sweden, Denmark and Finland put KFI on the permanent load too.
bool KfiOnPermanent(int codeIndex) { return codeIndex == 2 || codeIndex == 3 || codeIndex == 5; }

}  // namespace

std::string LoadCombText(int mode) { return mode >= 0 && mode < kLoadCombModes ? kLoadCombTexts[mode] : ""; }

Single PsiOfIndex(int index) { return static_cast<Single>((index + 1) * 0.1); }

std::vector<std::string> LoadCombEntries() {
  std::vector<std::string> modes;
  for (int i = 0; i < kLoadCombModes; ++i) modes.push_back(LoadCombText(i));
  return modes;
}

std::vector<std::string> PsiEntries(bool decimalComma) {
  std::vector<std::string> psi;
  for (int i = 0; i < 10; ++i) psi.push_back(FormatNumber(PsiOfIndex(i), "0.0", decimalComma));
  return psi;
}

namespace {

// The decimal points of the factors after "LC =" written as commas.
std::string CommaInFormula(std::string text) {
  const size_t start = text.find("LC =");
  if (start == std::string::npos) return text;
  for (size_t i = start + 1; i + 1 < text.size(); ++i)
    if (text[i] == '.' && std::isdigit(static_cast<unsigned char>(text[i - 1])) &&
        std::isdigit(static_cast<unsigned char>(text[i + 1])))
      text[i] = ',';
  return text;
}

}  // namespace

void SetCombinationFactors(State& s, int codeIndex) {
  if (codeIndex < 0 || codeIndex > kCodeLast) return;
  const Project& p = s.project;
  CombinationFactors& c = s.comb;
  const GammaRow& g = kGammas[codeIndex];
  c.gammaG_610 = g.gammaG_610;
  c.gammaQ1_610 = g.gammaQ_610;
  c.gammaQ2_610 = g.gammaQ_610;
  c.gammaG_610a = g.gammaG_610a;
  c.gammaQ1_610a = g.gammaQ_610a;
  c.gammaQ2_610a = g.gammaQ_610a;
  c.gammaG_610b = g.gammaG_610b;
  c.xi = g.xi;
  c.KFI = Kfi(codeIndex, p.safetyClass, p.LoadCombMode);
  c.KFIG = KfiOnPermanent(codeIndex) ? static_cast<Number>(c.KFI) : 1.0;

  const bool dc = s.decimalComma;
  auto F = [dc](double v, const char* pattern) { return FormatNumber(v, pattern, dc); };
  const std::string psi1 = F(p.psiQ1, "0.0");
  const std::string psi2 = F(p.psiQ2, "0.0");
  const std::string k = F(c.KFI, "0.0#");
  const std::string xi = F(c.xi, "0.0##");
  const std::string g610b = F(c.gammaG_610b, "0.0##");

  // The texts are those of the program, blanks and all.
  switch (codeIndex) {
    case 1:
    case 7:
      c.text610 = "ULS: Eq 6.10: LC = 1.35*G + " + k + "*1.5*Q1 + " + k + "*1.5*" + psi1 + "*Q2";
      c.text610a =
          "ULS: Eq 6.10a: LC = 1.35*G +" + k + "*1.5*" + psi1 + "*Q1 + " + k + "*1.5*" + psi2 + "*Q2";
      c.text610b =
          "ULS: Eq 6.10b: LC = " + xi + "*" + g610b + "*G + " + k + "*1.5*Q1 + " + k + "*1.5*" + psi2 + "*Q2";
      break;
    case 2:
      c.text610 = "ULS: Eq 6.10: LC = " + k + "*(1.35*G + 1.5*Q1 + 1.5*" + psi1 + "*Q2)";
      c.text610a = "ULS: Eq 6.10a: LC = " + k + "*(1.35*G + 1.5*" + psi1 + "*Q1 + " + "1.5*" + psi2 + "*Q2)";
      c.text610b =
          "ULS: Eq 6.10b: LC = " + k + "*(" + xi + "*" + g610b + "*G" + " + 1.5*Q1 + 1.5*" + psi2 + "*Q2)";
      break;
    case 3:
      c.text610 = "ULS: Eq 6.10: LC = " + k + "(1.1*G + 1.5*Q1 + 1.5*" + psi1 + "*Q2)";
      c.text610a = "ULS: Eq 6.10a: LC = " + k + "*1.2*G";
      c.text610b =
          "ULS: Eq 6.10b: LC = " + k + "*(" + xi + "*" + g610b + "*G" + " + 1.5*Q1 + 1.5*" + psi2 + "*Q2)";
      break;
    case 5:
      c.text610 = "ULS: Eq 6.10: LC =  " + k + " (1.1*G + 1.5*Q1 + 1.5*" + psi1 + "*Q2)";
      c.text610a = "ULS: Eq 6.10a: LC = " + k + "*1.35*G";
      c.text610b = "ULS: Eq 6.10b: LC = " + k + "*(" + g610b + "*G + 1.5*Q1 +" + "1.5*" + psi2 + "*Q2)";
      break;
    default:  // EU, UK, GE, UD
      // psi1 at Q2 in Eq 6.10 is the program's text.
      c.text610 = "ULS: Eq 6.10: LC = 1.35*G + 1.5*Q1 + 1.5*" + psi1 + "*Q2";
      c.text610a = "ULS: Eq 6.10a: LC = 1.35*G + 1.5*" + psi1 + "*Q1 + 1.5*" + psi2 + "*Q2";
      c.text610b = "ULS: Eq 6.10b: LC = " + xi + "*" + g610b + "*G + 1.5*Q1 + 1.5*" + psi2 + "*Q2";
      break;
  }
  c.textSLS = "SLS: Eq 6.14a: LC = G + Q1 + " + psi2 + "*Q2";
  // Under the decimal comma the fixed factors of a formula (1.35, 1.5, 1.1) take it too, as its psi
  // and k do: "1.35*G + 1.5*0,7*Q2" would mix the two signs in one line. The equation's number
  // before "LC =" is a clause, not a number, and keeps its point.
  if (dc)
    for (std::string* text : {&c.text610, &c.text610a, &c.text610b}) *text = CommaInFormula(*text);
}

void BuildLoadFactorTexts(State& s) {
  const Project& p = s.project;
  CombinationFactors& c = s.comb;
  const bool dc = s.decimalComma;
  auto F = [dc](double v) { return FormatNumber(v, "0.00", dc); };
  c.textULSUser = "ULS: " + F(p.LfULS_G) + "*G + " + F(p.LfULS_Q1) + "*Q1 + " + F(p.LfULS_Q2) + "*Q2";
  c.textSLSUser = "SLS: " + F(p.LfSLS_G) + "*G + " + F(p.LfSLS_Q1) + "*Q1 + " + F(p.LfSLS_Q2) + "*Q2";
  c.textBasic = "Basic loads: G + Q1 + Q2";
}

void RebuildCombinationList(State& s) {
  const Project& p = s.project;
  const CombinationFactors& c = s.comb;
  View& v = s.view;
  std::vector<std::string>& lines = v.items["setup.lstCombination"];
  lines.clear();
  switch (p.LoadCombMode) {
    case 0: lines = {c.text610, c.textSLS}; break;
    case 1: lines = {c.text610a, c.textSLS}; break;
    case 2: lines = {c.text610b, c.textSLS}; break;
    case 3: lines = {c.text610a, c.text610b, c.textSLS}; break;
    case 4: lines = {c.textULSUser, c.textSLSUser}; break;
    case 5: lines = {"Basic loads: G + Q1 + Q2"}; break;
  }

  // The code may have changed the factors: show them again.
  const bool dc = s.decimalComma;
  auto F = [dc](double x) { return FormatNumber(x, "#0.00", dc); };
  v.text["setup.igammam0"] = F(p.gammaM0);
  v.text["setup.igammam1"] = F(p.gammaM1);
  v.text["setup.ilamdaLT0"] = F(p.lamdaLT0);
  v.text["setup.ibeta"] = F(p.beta);
  v.text["setup.ilamdaLT0w"] = F(p.lamdaLT0w);
  v.text["setup.ibetaw"] = F(p.betaw);
  v.text["setup.ineta"] = F(p.neta);
  v.value["setup.rbtnMethod1"] = p.interactionMethod == 1 ? 1 : 0;
  v.value["setup.rbtnMethod2"] = p.interactionMethod == 2 ? 1 : 0;
}

void SetClassFrames(State& s) {
  const Project& p = s.project;
  View& v = s.view;
  v.visible["setup.frSafetyNorway"] = false;
  v.visible["setup.frSafetyClass"] = false;
  if (p.LoadCombMode >= 4) return;
  const char* caption = nullptr;
  switch (p.codeIndex) {
    case 1: {
      // Norway: "1" and "2-4".
      v.visible["setup.frSafetyNorway"] = true;
      v.text["setup.frSafetyNorway"] = "Reliability Class";
      v.value["setup.rbtnSafetyNorwayClass1"] = p.safetyClass == 1 ? 1 : 0;
      v.value["setup.rbtnSafetyNorwayClass24"] = p.safetyClass == 1 ? 0 : 1;
      return;
    }
    case 2: caption = "Safety Class"; break;
    case 3: caption = "Consequences Class"; break;
    case 5: caption = "Reliability Class"; break;
    default: return;  // no class for the other codes
  }
  v.visible["setup.frSafetyClass"] = true;
  v.text["setup.frSafetyClass"] = caption;
  const int option = p.safetyClass == 1 || p.safetyClass == 2 ? p.safetyClass : 3;
  for (int i = 1; i <= 3; ++i) v.value["setup.rbtnSafetyClass" + std::to_string(i)] = option == i ? 1 : 0;
}

void OnPsiChoice(State& s, int list, int index) {
  Project& p = s.project;
  if (list == 1) {
    p.psiQ1Index = static_cast<Integer>(index);
    p.psiQ1 = PsiOfIndex(index);
  } else {
    p.psiQ2Index = static_cast<Integer>(index);
    p.psiQ2 = PsiOfIndex(index);
  }
  SetCombinationFactors(s, p.codeIndex);
  Recalculate(s);
  RebuildCombinationList(s);
}

}  // namespace vn
