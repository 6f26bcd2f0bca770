// Many members at once: a CSV file of members, a list of project files, or one project file. Each
// member is run on its own copy of a started State; a line or file that can't be read is reported
// with its line number and name and the others are run all the same.
//
// The CSV of members has a header line naming its columns (any order, case aside); a line per
// member; blank lines and lines starting with '#' are skipped. The separator is ',' (or ';' when the
// header holds one, and then a decimal comma is read too):
//   member     name of the member (default: "line N")
//   family     HEA, HEB, HEM, IPE, INP, UPE, UNP, SHS, RHS, CFSHS, CFRHS, L-equal, L-unequal, UB, UC,
//              UBP, J, PFC, CH, or the family number where it has one table        (required)
//   section    the row as its list shows it: "IPE 240", "IPE240" or "240"            (required)
//   grade      steel grade as the list shows it: S235, S355 ... (default: the setup's grade)
//   L          length, m, >= 0.05                                                    (required)
//   support    end supports 0..5 as the buttons cbutt0..cbutt5 (default 0, simply supported)
//   ky, kz     buckling length factors >= 0.2 (default: what the supports set)
//   ltb        1 lateral torsional buckling checked (default), 0 the member is restrained
//   Loads (characteristic, combined by the setup's load combination):
//   N_G, N_Q   axial force, kN, compression positive: permanent and variable (Q1)
//   qz_G, qz_Q uniform load in Z over the whole length, kN/m (bending about y)
//   qy_G, qy_Q uniform load in Y, kN/m (bending about z)
//   or end forces (design values; the member then is in end forces mode, supports 0):
//   NEd, My1, My2, Vz1, Vz2, Mz1, Mz2, Vy1, Vy2   kN and kNm at the ends 1 and 2
// A line with values both among the loads and among the end forces is refused.
#pragma once

#include <string>
#include <vector>

#include "members/member_run.h"

namespace vn {

struct State;

struct BatchEntry {
  std::string source;   // the file the member comes from
  int line = 0;         // its line there; 0 for a project file given by itself
  std::string member;   // the member's name, or the project file's path
  std::string section;  // "IPE240"
  std::string grade;    // "S235"
  Single L = 0;
  std::string error;  // why the line or file was not run; empty when it ran
  MemberOutcome outcome;
};

struct BatchResult {
  std::vector<BatchEntry> entries;  // in the order of the input
  std::string fileError;            // the batch file itself could not be read (nothing else ran)
  int ok = 0, notOk = 0, bad = 0;   // members that pass, that do not (or ended in the error), not read
};

// Runs the file at `path`: a project file (*.vnt), a CSV of members (its first line names the
// column "family"), or else a list of project files, one path a line (relative to the list's
// folder). `started` is a State started as the program starts; it is only read. `workers` threads
// (0: all cores).
BatchResult RunBatch(const State& started, const std::string& path, int workers = 0);

// The same for the text of a CSV of members or of a list of project files; `name` names it in
// the messages, `folder` is where relative paths start.
BatchResult RunBatchText(const State& started, const std::string& text, const std::string& name,
                         const std::string& folder, int workers = 0);

// The table of the results: a header row, then a row per entry: source, line, member, section,
// grade, L, IR, verdict ("OK", "NOT OK", "CALC ERROR", "BAD INPUT"), control (or the error).
std::vector<std::vector<std::string>> BatchTable(const BatchResult& r, bool decimalComma);

// The table as aligned text for a terminal, and the closing count.
std::string BatchText(const BatchResult& r, bool decimalComma);

}  // namespace vn
