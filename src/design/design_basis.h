// Design codes and their factors, load combinations, steel grades, the setup file.
#pragma once

#include <string>
#include <vector>

#include "core/types.h"

namespace vn {

struct State;

// ---- Design codes (codes.cpp) ----

// Index of the last code in the list Cbo1993 ("EC3 - User defined").
inline constexpr int kCodeLast = 8;
// The code whose factors the user types.
inline constexpr int kCodeUserDefined = 8;

// Fixed factors of a code; an index outside 0..7 changes nothing.
void SetCodeFactors(State& s, int codeIndex);
// Index of a code id; an unknown id maps to 0.
Integer CodeIndexFromId(const std::string& codeId);
// The two letters of a code index; "" outside 0..8.
std::string CodeIdFromIndex(int codeIndex);
// Display name of a code ("EC3 + NA/Norway") and its title suffix (" + NA/Norway"); "" outside
// 0..8.
std::string CodeDisplayName(int codeIndex);
std::string CodeTitleSuffix(int codeIndex);

// ---- The rules in force (codes.cpp) ----

// The mark of the strict rules as the setup and project files keep it after their last value.
inline constexpr const char* kStrictRulesMark = "EN 1993 strict";
// The name of the rules in force: "as specified" or "EN 1993 strict".
std::string RulesName(const State& s);
// True where the standard's own rules replace the program's departures from them.
bool StrictRules(const State& s);

// The main form's caption: "Varnelt EC3" + title suffix + ": " + fileName.
void BuildCaption(State& s);

// ---- Load combinations (combinations.cpp) ----

// Text of a load combination mode in the lists CboLoadComb ("EN 1990 Eq 6.10" ... "Basic loads");
// "" outside 0..5.
std::string LoadCombText(int mode);
inline constexpr int kLoadCombModes = 6;

// psi of a list index of Cbo_Q1_Psi1 / Cbo_Q2_Psi2: (index + 1) * 0.1.
Single PsiOfIndex(int index);
// The entries of the lists CboLoadComb (the six modes) and Cbo_Q1_Psi1 / Cbo_Q2_Psi2 ("0.1" to
// "1.0"), as the Setup and Loading dialogs fill them.
std::vector<std::string> LoadCombEntries();
std::vector<std::string> PsiEntries(bool decimalComma);
// Combination factors and texts of a code; an index outside 0..8 changes nothing.
void SetCombinationFactors(State& s, int codeIndex);
// The texts of the modes "ULS/SLS" and "Basic loads", from the user's load factors.
void BuildLoadFactorTexts(State& s);
// The lines of the Setup dialog's list of formulas in force, and the refill of its code fields.
void RebuildCombinationList(State& s);
// The class frames of the Setup dialog: which is shown, its caption, the option selected.
void SetClassFrames(State& s);
// Which inputs of the Setup dialog and the strength field can be used now, from the record: the
// user-defined code's factors, a typed strength on the user row, the load factors of ULS/SLS.
void ShowSetupAvailability(State& s);
// A choice in a psi list (list 1 Cbo_Q1_Psi1, list 2 Cbo_Q2_Psi2), in the Setup or Loading dialog.
void OnPsiChoice(State& s, int list, int index);

// ---- Steel grades (steel_grades.cpp) ----

inline constexpr const char* kSteelGradeFile = "VarneltECmat.dat";
// Steel grade table "VarneltECmat.dat" in the program's folder.
void ReadSteelGrades(State& s);
// The reader of the steel grade file's text, as ReadSteelGrades uses it.
void ReadSteelGradesText(State& s, const std::string& text);

// ---- Setup file and start-up (setup_file.cpp) ----

inline constexpr const char* kSetupFile = "VarneltEC3Setup.dat";
// Setup file "VarneltEC3Setup.dat" in the program's folder. The reader is silent: a missing,
// damaged or oversized file leaves the defaults. The writer ("Save as default") replaces the file
// only when the new one is complete; false with the reason when it could not, the old file intact.
void ReadSetupFile(State& s);
void ReadSetupText(State& s, const std::string& text);
bool WriteSetupFile(State& s, std::string* reason = nullptr);
// The start-up sequence: steel grades, catalogues, setup file, derived factors and texts.
void LoadSettings(State& s);
// What a read project derives from its stored settings: psi from the indices, codeIndex from
// codeId, SetCodeFactors, SetCombinationFactors.
void DeriveProjectSettings(State& s);

}  // namespace vn
