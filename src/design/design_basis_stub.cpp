// Placeholder of the design basis until its routines land: only what start-up needs to run.
#include <fstream>
#include <sstream>

#include "core/state.h"
#include "design/design_basis.h"

namespace vn {

void SetCodeFactors(State&, int) {}
void SetCombinationFactors(State&, int) {}
void RebuildCombinationList(State&) {}
Integer CodeIndexFromId(const std::string&) { return 0; }
std::string CodeIdFromIndex(int) { return "EU"; }
std::string CodeDisplayName(int) { return "EC3"; }
std::string CodeTitleSuffix(int) { return ""; }
void ReadSteelGrades(State&) {}
void ReadSetupFile(State&) {}
void WriteSetupFile(State&) {}

void LoadSettings(State& s) {
  ReadSteelGrades(s);
  LoadProfileCatalogues(s.catalogues, s.appPath);
  ReadSetupFile(s);
  BuildCaption(s);
}

void BuildCaption(State& s) {
  s.view.caption = "Varnelt EC3" + CodeTitleSuffix(s.project.codeIndex) + ": " + s.project.fileName;
}

}  // namespace vn
