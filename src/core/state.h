// The whole state of the program: the project, the data read at start-up, the results of the last
// recalculation and what the forms show. Every routine is a free function taking the State.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "analysis/analysis.h"
#include "analysis/loads.h"
#include "checks/checks.h"
#include "core/project.h"
#include "core/settings_store.h"
#include "core/view.h"
#include "design/combination.h"
#include "design/steel.h"
#include "sections/catalogue.h"
#include "sections/section.h"

namespace vn {

struct State {
  Project project;
  Loads loads;
  Analysis analysis;
  Checks checks;
  Section section;
  Catalogues catalogues;
  SteelGrades steel;
  CombinationFactors comb;
  View view;

  Single NEdAbs = 0;  // working axial force of the section classes and controls

  std::string appPath;     // the program's folder, where its data files lie
  std::string currentDir;  // the start folder of the file dialogs
  // The per-user settings store of the recent files; in memory unless a front end sets another.
  std::shared_ptr<SettingsStore> settings = std::make_shared<MemorySettingsStore>();
  // The spreadsheet the More Results table is exported to, set by a front end that has one
  // (false with the reason when the file can't be written); empty: the export fails.
  std::function<bool(const State&, const std::string& path, std::string* error)> spreadsheet;
  bool decimalComma = false;  // the user's locale writes 1,1 for 1.1
  int recalcCount = 0;        // runs of Recalculate, for tests and the command line
  // The last run reached its end: the summary, the ratios, the charts and the tables belong to the
  // inputs as they stand. False after a failed run: nothing may be shown, printed or exported.
  bool resultsValid = false;
  // A run without a front end. Recalculate computes every result as ever: the section, the
  // analysis, every ratio and control text, the values of More Results, the summary and its
  // verdict, the web text, the changes the run makes to the record (ltbOn, webStiffeners,
  // rigidEndPost, chModal) and what the charts decide for the next run (hasLoadY, hasLoadZ). It
  // leaves out what only a screen needs: the section figure, the charts, the member figure and the
  // family's pictures (view.pictures stays empty), and the section dialog's values
  // (view.sectionValues stays empty; the report makes its own). The results are the same to the
  // bit as with the flag clear. Set it once on a State that no screen shows (a batch, a search
  // through the catalogues, a benchmark), before StartUp or at any time after.
  bool headless = false;
  int fireDepth = 0;  // events in progress: a handler may fire others (a list set in code)
};

}  // namespace vn
