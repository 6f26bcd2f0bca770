// The setup file "VarneltEC3Setup.dat": the default settings of the design basis, one value a line
// in the portable text form (numbers with '.', strings in double quotes, #TRUE# / #FALSE#), and the
// start-up sequence that reads it.
#include <charconv>
#include <cmath>
#include <filesystem>
#include <limits>
#include <sstream>

#include "core/format.h"
#include "core/safe_file.h"
#include "core/state.h"
#include "design/design_basis.h"
#include "sections/catalogue.h"

namespace vn {

namespace {

constexpr int kSetupVersion = 120;

// Reads values separated by commas or line ends; a blank line holds no value.
class PortableReader {
 public:
  explicit PortableReader(std::string text) : t_(std::move(text)) {}

  // The next value's text; false at the end of the file.
  bool Next(std::string& value, bool& quoted) {
    for (;;) {
      SkipBlanks();
      if (i_ >= t_.size()) return false;
      if (t_[i_] == '\r' || t_[i_] == '\n') {
        ++i_;
        continue;
      }
      break;
    }
    value.clear();
    quoted = t_[i_] == '"';
    if (quoted) {
      ++i_;
      while (i_ < t_.size() && t_[i_] != '"' && t_[i_] != '\n' && t_[i_] != '\r') value += t_[i_++];
      if (i_ < t_.size() && t_[i_] == '"') ++i_;
      // Anything between the closing quote and the separator is dropped.
      while (i_ < t_.size() && t_[i_] != ',' && t_[i_] != '\n' && t_[i_] != '\r') ++i_;
    } else {
      while (i_ < t_.size() && t_[i_] != ',' && t_[i_] != '\n' && t_[i_] != '\r') value += t_[i_++];
      while (!value.empty() && (value.back() == ' ' || value.back() == '\t')) value.pop_back();
    }
    if (i_ < t_.size() && t_[i_] == ',') ++i_;
    return true;
  }

 private:
  void SkipBlanks() {
    while (i_ < t_.size() && (t_[i_] == ' ' || t_[i_] == '\t')) ++i_;
  }
  std::string t_;
  size_t i_ = 0;
};

// An invariant number: sign, digits with '.', an exponent with E or D; nothing else.
bool InvariantNumber(std::string text, double& out) {
  size_t i = 0;
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
  size_t digits = 0;
  while (i < text.size() && text[i] >= '0' && text[i] <= '9') ++i, ++digits;
  if (i < text.size() && text[i] == '.') {
    ++i;
    while (i < text.size() && text[i] >= '0' && text[i] <= '9') ++i, ++digits;
  }
  if (digits == 0) return false;
  if (i < text.size() && (text[i] == 'E' || text[i] == 'e' || text[i] == 'D' || text[i] == 'd')) {
    text[i++] = 'e';
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
    size_t expDigits = 0;
    while (i < text.size() && text[i] >= '0' && text[i] <= '9') ++i, ++expDigits;
    if (expDigits == 0) return false;
  }
  if (i != text.size()) return false;
  const char* first = text.data() + (text[0] == '+' ? 1 : 0);
  auto r = std::from_chars(first, text.data() + text.size(), out);
  return r.ec == std::errc() && std::isfinite(out);
}

// The values of the file in order. The first value that is missing or can't be read ends the
// reading: the fields from there on keep what they held.
class SetupValues {
 public:
  explicit SetupValues(std::string text) : in_(std::move(text)) {}

  bool Integer_(Integer& f) {
    double v;
    if (!Number_(v)) return false;
    bool overflow = false;
    Integer i = RoundToInteger(v, &overflow);
    if (overflow) return false;
    f = i;
    return true;
  }
  bool Single_(Single& f) {
    double v;
    if (!Number_(v) || std::fabs(v) > std::numeric_limits<float>::max()) return false;
    f = static_cast<Single>(v);
    return true;
  }
  bool Double_(Number& f) {
    double v;
    if (!Number_(v)) return false;
    f = v;
    return true;
  }
  bool String_(std::string& f) {
    std::string v;
    bool quoted;
    if (!in_.Next(v, quoted)) return false;
    f = v;
    return true;
  }
  bool Boolean_(Boolean& f) {
    std::string v;
    bool quoted;
    if (!in_.Next(v, quoted) || quoted) return false;
    if (v == "#TRUE#") {
      f = True;
      return true;
    }
    if (v == "#FALSE#") {
      f = False;
      return true;
    }
    double n;
    if (!InvariantNumber(v, n)) return false;
    f = n != 0 ? True : False;
    return true;
  }

 private:
  bool Number_(double& v) {
    std::string text;
    bool quoted;
    return in_.Next(text, quoted) && !quoted && InvariantNumber(text, v);
  }
  PortableReader in_;
};

std::filesystem::path SetupPath(const State& s) { return std::filesystem::path(s.appPath) / kSetupFile; }

std::string Quoted(const std::string& v) { return "\"" + v + "\""; }
std::string BooleanText(Boolean b) { return b != 0 ? "#TRUE#" : "#FALSE#"; }

}  // namespace

void ReadSetupFile(State& s) {
  // A file that is missing, no regular file or larger than any setup file leaves the defaults.
  std::string text;
  if (ReadFileBounded(SetupPath(s).string(), kSettingsFileLimit, &text, nullptr) != ReadStatus::Ok) return;
  ReadSetupText(s, text);
}

void ReadSetupText(State& s, const std::string& text) {
  try {
    SetupValues f(text);
    Project& p = s.project;
    Integer version = 0;  // read and ignored
    // A file of an older version has no rules at its end and is in the default rules, and so is
    // one whose value there is anything but the mark of the strict rules.
    p.strictRules = False;
    std::string rules;
    const bool complete =
        (f.Integer_(version) && f.String_(p.codeId) && f.Double_(p.gammaM0) && f.Single_(p.gammaM1) &&
         f.Single_(p.neta) && f.Integer_(p.interactionMethod) && f.Single_(p.lamdaLT0) && f.Double_(p.beta) &&
         f.Single_(p.lamdaLT0w) && f.Double_(p.betaw) && f.Integer_(p.steelGrade) && f.Single_(p.fyk) &&
         f.Single_(p.E) && f.Single_(p.uflimit) && f.Boolean_(p.elasticClass12) &&
         f.Boolean_(p.conserControl) && f.Boolean_(p.noFlangeBuckling) && f.Boolean_(p.noWebBuckling) &&
         f.Integer_(p.LoadCombMode) && f.Integer_(p.deflectionLimit) && f.Integer_(p.safetyClass) &&
         f.Integer_(p.psiQ1Index) && f.Integer_(p.psiQ2Index) && f.Single_(p.LfULS_G) &&
         f.Single_(p.LfULS_Q1) && f.Single_(p.LfULS_Q2) && f.Single_(p.LfSLS_G) && f.Single_(p.LfSLS_Q1) &&
         f.Single_(p.LfSLS_Q2));
    if (complete && f.String_(rules) && rules == kStrictRulesMark) p.strictRules = True;
  } catch (const std::exception&) {
    // A setup file that can't be read gives no message.
  }
}

bool WriteSetupFile(State& s, std::string* reason) {
  try {
    Project& p = s.project;
    p.codeId = CodeIdFromIndex(p.codeIndex);
    std::ostringstream out;
    auto line = [&out](const std::string& v) { out << v << '\n'; };
    line(std::to_string(kSetupVersion));
    line(Quoted(p.codeId));
    line(DoubleFileText(p.gammaM0));
    line(FloatFileText(p.gammaM1));
    line(FloatFileText(p.neta));
    line(std::to_string(p.interactionMethod));
    line(FloatFileText(p.lamdaLT0));
    line(DoubleFileText(p.beta));
    line(FloatFileText(p.lamdaLT0w));
    line(DoubleFileText(p.betaw));
    line(std::to_string(p.steelGrade));
    line(FloatFileText(p.fyk));
    line(FloatFileText(p.E));
    line(FloatFileText(p.uflimit));
    line(BooleanText(p.elasticClass12));
    line(BooleanText(p.conserControl));
    line(BooleanText(p.noFlangeBuckling));
    line(BooleanText(p.noWebBuckling));
    line(std::to_string(p.LoadCombMode));
    line(std::to_string(p.deflectionLimit));
    line(std::to_string(p.safetyClass));
    line(std::to_string(p.psiQ1Index));
    line(std::to_string(p.psiQ2Index));
    line(FloatFileText(p.LfULS_G));
    line(FloatFileText(p.LfULS_Q1));
    line(FloatFileText(p.LfULS_Q2));
    line(FloatFileText(p.LfSLS_G));
    line(FloatFileText(p.LfSLS_Q1));
    line(FloatFileText(p.LfSLS_Q2));
    // Appended after the last value, and only for the strict rules: a reader of the older version
    // stops before it, and a setup in the default rules is written exactly as before.
    if (p.strictRules != 0) line(Quoted(kStrictRulesMark));
    // A failed write leaves the previous setup file as it was.
    return ReplaceFile(SetupPath(s).string(), out.str(), reason);
  } catch (const std::exception& e) {
    if (reason) *reason = e.what();
    return false;
  }
}

void LoadSettings(State& s) {
  Project& p = s.project;
  ReadSteelGrades(s);
  LoadProfileCatalogues(s.catalogues, s.appPath);
  ReadSetupFile(s);
  p.psiQ1 = PsiOfIndex(p.psiQ1Index);
  p.psiQ2 = PsiOfIndex(p.psiQ2Index);
  p.codeIndex = CodeIndexFromId(p.codeId);
  SetCombinationFactors(s, p.codeIndex);
  SetCodeFactors(s, p.codeIndex);
  // The list of codes holds the nine names, 0 to kCodeLast.
  std::vector<std::string> names;
  for (int i = 0; i <= kCodeLast; ++i) names.push_back(CodeDisplayName(i));
  s.view.items["setup.Cbo1993"] = names;
  BuildCaption(s);
  BuildLoadFactorTexts(s);
}

void DeriveProjectSettings(State& s) {
  Project& p = s.project;
  p.psiQ1 = PsiOfIndex(p.psiQ1Index);
  p.psiQ2 = PsiOfIndex(p.psiQ2Index);
  p.codeIndex = CodeIndexFromId(p.codeId);
  SetCodeFactors(s, p.codeIndex);
  SetCombinationFactors(s, p.codeIndex);
}

}  // namespace vn
