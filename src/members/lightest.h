// The lightest section that passes: every row of the chosen catalogue families is run on a copy of
// the member as it stands (loads, supports, restraints, settings), and the rows whose every shown
// ratio (section, buckling, deflection where it is on) is not above IRlimit are listed by mass.
// The project itself is not touched; a row is taken over by the events of choosing it by hand.
#pragma once

#include <atomic>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "members/member_run.h"
#include "sections/catalogue.h"

namespace vn {

struct State;

// A family whose sections are the rows of one catalogue table. The British families 101 and 103
// have several tables, each a family here (UB, UC, UBP; PFC, CH).
struct CatalogueFamily {
  const char* name;  // "IPE": the name --lightest and the batch take
  int type;          // ProfileType
  int subFamily;     // 1..3 for 101 (UB, UC, UBP), 1..2 for 103 (PFC, CH), else 0
  CatalogueId table;
};

// All of them, in the order of the Profiles menu.
const std::vector<CatalogueFamily>& CatalogueFamilies();

// The families a list names: names ("IPE", "ub", "L-equal") or family numbers ("4"; 101 gives
// UB, UC and UBP, 103 PFC and CH), comma separated, case and blanks aside; "all" gives all. False
// with the message naming what is unknown.
bool ParseFamilies(const std::string& list, std::vector<const CatalogueFamily*>* out, std::string* error);

// The family of a name or number that stands for one table, or nullptr.
const CatalogueFamily* FamilyByName(const std::string& name);

// Puts the row of the family into the record, as choosing it in its dialog does (family, table,
// row, the family's short name), without running anything.
void PutCatalogueRow(State& s, const CatalogueFamily& f, int row);

// The events that choose the row by hand: the Profiles menu entry, the table of a British family,
// the row of the list.
std::vector<std::pair<std::string, std::string>> ChoiceEvents(const CatalogueFamily& f, int row);

struct LightestRow {
  const CatalogueFamily* family = nullptr;
  int row = 0;          // row of the catalogue table, from 0
  std::string section;  // the list text, "IPE240"
  MemberOutcome outcome;
};

struct LightestResult {
  std::vector<LightestRow> passing;  // by mass, then in the order of the families and rows
  int rowsRun = 0;
  int failedRuns = 0;  // rows whose run ended in the calculation error
  bool cancelled = false;
};

// `done` is told the rows run so far and the total, from the workers' threads.
using Progress = std::function<void(int done, int total)>;

// Runs every row of the families on copies of `member` (which is only read) with `workers`
// threads (0: all cores).
LightestResult FindLightest(const State& member, const std::vector<const CatalogueFamily*>& families,
                            int workers = 0, const Progress& progress = {},
                            const std::atomic<bool>* cancel = nullptr);

// The list as a table for a terminal: the families and rows run, then a line per passing row with
// its mass, section, governing ratio and control; `limit` is IRlimit.
std::string LightestText(const LightestResult& r, const std::vector<const CatalogueFamily*>& families,
                         double limit, bool decimalComma);

// The same as JSON: {"families", "IRlimit", "rowsRun", "failedRuns", "passing": [{"family", "type",
// "row", "section", "g", "IR", "IRtext", "block", "formula", "clause", "choose"}]}, where "choose"
// are the events that choose the row by hand ("mnup04", "p04.cbo=8").
std::string LightestJson(const LightestResult& r, const std::vector<const CatalogueFamily*>& families,
                         double limit);

}  // namespace vn
