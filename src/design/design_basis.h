// Design codes and their factors, load combinations, steel grades, the setup file.
#pragma once

#include <string>

#include "core/types.h"

namespace vn {

struct State;

// Fixed factors of a code; an index outside 0..7 changes nothing.
void SetCodeFactors(State& s, int codeIndex);
// Combination factors and texts of a code.
void SetCombinationFactors(State& s, int codeIndex);
// The lines of the Setup dialog's list of formulas in force.
void RebuildCombinationList(State& s);
// Index of a code id; an unknown id maps to 0.
Integer CodeIndexFromId(const std::string& codeId);
// The two letters of a code index.
std::string CodeIdFromIndex(int codeIndex);
// Display name of a code ("EC3 + NA/Norway") and its title suffix (" + NA/Norway").
std::string CodeDisplayName(int codeIndex);
std::string CodeTitleSuffix(int codeIndex);

// Steel grade table "VarneltECmat.dat" in the program's folder.
void ReadSteelGrades(State& s);
// Setup file "VarneltEC3Setup.dat" in the program's folder.
void ReadSetupFile(State& s);
void WriteSetupFile(State& s);
// The start-up sequence: steel grades, catalogues, setup file, derived factors and texts.
void LoadSettings(State& s);

// The main form's caption: "Varnelt EC3" + title suffix + ": " + fileName.
void BuildCaption(State& s);

}  // namespace vn
