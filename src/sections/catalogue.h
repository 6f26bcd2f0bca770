// The 21 profile catalogues: small binary files of 4-byte little-endian Singles beside the program,
// read once at start-up into fixed tables. Column 0 of a table exists but is never filled.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/types.h"

namespace vn {

// In the order the start-up reads them.
enum CatalogueId : int {
  catHea,
  catHeb,
  catHem,
  catIpe,
  catUpe,
  catShs,
  catRhs,
  catCfshs,
  catCfrhs,
  catL1,
  catL2,
  catInp,
  catUnp,
  catL3,
  catHp,
  catUb,
  catUbp,
  catUc,
  catJ,
  catCh,
  catPfc,
  catCount
};

// How a list item of a catalogue row is written.
enum class ListRule {
  PrefixCol1,    // "HEA" then column 1
  SquareHollow,  // prefix, column 1 "x" column 1 "x" column 2
  ThreeCols,     // prefix, column 1 "x" column 2 "x" column 3
  EqualAngle,    // "L " column 1 "x" column 1 "x" column 2
  FourCols,      // prefix, columns 1 to 4 joined by "x"
  TwoCols,       // prefix, column 1 "x" column 2
};

struct CatalogueSpec {
  const char* file;
  int rows;       // rows read (the fixed row count of the reader)
  int cols;       // K, values of a row
  int boundRows;  // table bound
  int boundCols;
  int loopRows;  // rows the reading loop counts; more than boundRows only for ubp.dat
  const char* prefix;
  ListRule rule;
};

const CatalogueSpec& CatalogueInfo(CatalogueId id);

struct Catalogue {
  int boundRows = 0, boundCols = 0;
  std::vector<Single> cell;  // boundRows x boundCols, row-major

  // Read access with the table's bound check; a subscript out of range is a fault of the run.
  Single at(int row, int col) const;
  Single& ref(int row, int col);
};

struct Catalogues {
  std::array<Catalogue, catCount> table;
};

// Reads one catalogue file into its table. A missing file leaves zeros; a short file leaves zeros
// beyond its end; a long file is read to the fixed row count only.
void ReadCatalogue(Catalogue& t, CatalogueId id, const std::string& dir);

// Reads all 21 in their fixed order from the program's folder.
void LoadProfileCatalogues(Catalogues& c, const std::string& dir);

// Text of one row in the family's list, e.g. "HEA200", "RHS 100x50x5", "UB 914x419x388".
std::string CatalogueListText(const Catalogues& c, CatalogueId id, int row);

// The list of a family: exactly the rows read, from row 0, in file order.
std::vector<std::string> CatalogueList(const Catalogues& c, CatalogueId id);

}  // namespace vn
