// A state for the section tests: a small steel grade table, the partial factors 1.0, and catalogue
// tables of the program's sizes filled with zeros, into which a test writes the rows it needs.
#pragma once

#include <initializer_list>

#include "core/state.h"
#include "sections/catalogue.h"
#include "support/test_support.h"

namespace vn::test {

// Carried through the program's single-precision steps, so the expected value of a hand calculation
// agrees to a few units in the seventh digit.
inline constexpr Tolerance kHand{2e-6, "hand calculation with the program's single-precision steps"};

inline constexpr int kS235 = 0, kS275 = 1, kS355 = 2;

inline State SectionState() {
  State s;
  s.steel.rows[0] = {"S235", 235, 215};
  s.steel.rows[1] = {"S275", 275, 255};
  s.steel.rows[2] = {"S355", 355, 335};
  s.steel.rows[3] = {"User", 0, 0};
  s.steel.gradeLast = 3;
  Project& p = s.project;
  p.steelGrade = kS235;
  p.fyk = 235;
  p.gammaM0 = 1;
  p.gammaM1 = 1;
  p.neta = 1;
  p.E = 210000;
  p.rho = 7850;
  p.elasticClass12 = False;
  p.noFlangeBuckling = False;
  p.noWebBuckling = False;
  p.subFamily101 = 1;
  p.subFamily103 = 1;
  p.a = 5000;
  p.L = 5;
  for (int id = 0; id < catCount; ++id) {
    const CatalogueSpec& spec = CatalogueInfo(static_cast<CatalogueId>(id));
    Catalogue& t = s.catalogues.table[static_cast<size_t>(id)];
    t.boundRows = spec.boundRows;
    t.boundCols = spec.boundCols;
    t.cell.assign(static_cast<size_t>(spec.boundRows * spec.boundCols), 0.0f);
  }
  return s;
}

// Writes the values of columns 1, 2, ... of one row, as the catalogue file holds them.
inline void WriteRow(State& s, CatalogueId id, int row, std::initializer_list<float> values) {
  int col = 1;
  for (float v : values) s.catalogues.table[static_cast<size_t>(id)].ref(row, col++) = v;
}

// Chooses the family and the row, as the dialog does, without recalculating.
inline void Choose(State& s, int profileType, CatalogueId id, int row) {
  s.project.ProfileType = static_cast<Integer>(profileType);
  s.project.SelectedRow[static_cast<size_t>(id)] = static_cast<Integer>(row);
}

}  // namespace vn::test
