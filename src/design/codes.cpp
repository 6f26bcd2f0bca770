// The design codes: the recommended values of EN 1993-1-1 and the national annexes, and the
// "User defined" code whose factors the user types in the Setup dialog.
#include "core/state.h"
#include "design/design_basis.h"

namespace vn {

namespace {

struct CodeRow {
  const char* id;
  const char* displayName;
};

// In the order of the list Cbo1993; the index is codeIndex.
constexpr CodeRow kCodes[kCodeLast + 1] = {
    {"EU", "EC3"},
    {"NO", "EC3 + NA/Norway"},
    {"SW", "EC3 + NA/Sweden"},
    {"DK", "EC3 + NA/Denmark"},
    {"UK", "EC3 + NA/United Kingdom"},
    {"FI", "EC3 + NA/Finland"},
    {"GE", "EC3 + NA/German"},
    {"NK", "EC3 + NORSOK"},
    {"UD", "EC3 - User defined"},
};

bool KnownCode(int codeIndex) { return codeIndex >= 0 && codeIndex <= kCodeLast; }

// The factors a code fixes. gammaM0, beta and betaw are Numbers (double), the rest Singles.
struct CodeFactors {
  double gammaM0;
  float gammaM1;
  bool netaByFyk;  // eta 1.2 up to fyk 460 and 1.0 above; false: 1.0 always
  float lamdaLT0;
  double beta;
  float lamdaLT0w;
  double betaw;
};

constexpr CodeFactors kCodeFactors[8] = {
    {1, 1.0f, true, 0.4f, 0.75, 0.4f, 0.75},      // EU
    {1.05, 1.05f, true, 0.4f, 0.75, 0.4f, 0.75},  // NO
    {1, 1.0f, true, 0.4f, 0.75, 0.4f, 0.75},      // SW
    {1.1, 1.2f, true, 0.4f, 0.75, 0.4f, 0.75},    // DK
    {1, 1.0f, false, 0.4f, 0.75, 0.2f, 1},        // UK: welded sections 0.2 and 1
    {1, 1.0f, true, 0.4f, 0.75, 0.2f, 1},         // FI
    {1, 1.0f, true, 0.4f, 0.75, 0.4f, 0.75},      // GE
    {1.15, 1.15f, true, 0.4f, 0.75, 0.4f, 0.75},  // NK
};

}  // namespace

void SetCodeFactors(State& s, int codeIndex) {
  // "User defined" keeps what the user typed; an unknown index changes nothing either.
  if (codeIndex < 0 || codeIndex > 7) return;
  Project& p = s.project;
  const CodeFactors& f = kCodeFactors[codeIndex];
  p.gammaM0 = f.gammaM0;
  p.gammaM1 = f.gammaM1;
  // eta of EN 1993-1-5 5.1: 1.2 for steel grades up to S460.
  if (f.netaByFyk)
    p.neta = p.fyk <= 460 ? 1.2f : 1.0f;
  else
    p.neta = 1.0f;
  p.lamdaLT0 = f.lamdaLT0;
  p.beta = f.beta;
  p.lamdaLT0w = f.lamdaLT0w;
  p.betaw = f.betaw;
  // NORSOK works with the load factors of DNV-OS-C101 only.
  if (codeIndex == 7) p.LoadCombMode = 4;
}

Integer CodeIndexFromId(const std::string& codeId) {
  for (int i = 0; i <= kCodeLast; ++i)
    if (codeId == kCodes[i].id) return static_cast<Integer>(i);
  return 0;
}

std::string CodeIdFromIndex(int codeIndex) { return KnownCode(codeIndex) ? kCodes[codeIndex].id : ""; }

std::string CodeDisplayName(int codeIndex) {
  return KnownCode(codeIndex) ? kCodes[codeIndex].displayName : "";
}

std::string CodeTitleSuffix(int codeIndex) {
  // The display name less its leading "EC3".
  std::string name = CodeDisplayName(codeIndex);
  return name.size() > 3 ? name.substr(3) : std::string();
}

void BuildCaption(State& s) {
  s.view.caption = "Varnelt EC3" + CodeTitleSuffix(s.project.codeIndex) + ": " + s.project.fileName;
}

}  // namespace vn

namespace vn {

std::string RulesName(const State& s) { return StrictRules(s) ? kStrictRulesMark : "as specified"; }

bool StrictRules(const State& s) { return s.project.strictRules != 0; }

}  // namespace vn
