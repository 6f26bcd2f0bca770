#include "sections/catalogue.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "core/format.h"
#include "core/safe_file.h"

namespace vn {

namespace {

constexpr std::array<CatalogueSpec, catCount> kSpecs{{
    {"hea.dat", 24, 11, 29, 12, 24, "HEA", ListRule::PrefixCol1},
    {"heb.dat", 24, 11, 29, 12, 24, "HEB", ListRule::PrefixCol1},
    {"hem.dat", 24, 11, 29, 12, 24, "HEM", ListRule::PrefixCol1},
    {"ipe.dat", 18, 10, 20, 12, 18, "IPE", ListRule::PrefixCol1},
    {"upe.dat", 14, 14, 16, 15, 14, "UPE", ListRule::PrefixCol1},
    {"shs.dat", 101, 6, 116, 8, 101, "RHS ", ListRule::SquareHollow},
    {"rhs.dat", 158, 9, 166, 10, 158, "RHS ", ListRule::ThreeCols},
    {"cfshs.dat", 99, 7, 116, 8, 99, "CFRHS ", ListRule::ThreeCols},
    {"cfrhs.dat", 116, 9, 146, 10, 116, "CFRHS ", ListRule::ThreeCols},
    {"l1.dat", 60, 11, 66, 13, 60, "L ", ListRule::EqualAngle},
    {"l2.dat", 49, 16, 51, 17, 49, "L ", ListRule::ThreeCols},
    {"inp.dat", 21, 11, 23, 13, 21, "INP", ListRule::PrefixCol1},
    {"unp.dat", 16, 15, 23, 16, 16, "UNP", ListRule::PrefixCol1},
    {"l3.dat", 11, 6, 13, 7, 11, "L ", ListRule::FourCols},
    {"hp.dat", 47, 5, 48, 6, 47, "BF ", ListRule::TwoCols},
    {"ub.dat", 81, 19, 86, 20, 81, "UB ", ListRule::ThreeCols},
    // ubp.dat: the loop counts 81 rows over a table of 18; reads beyond row 17 fail and are skipped.
    {"ubp.dat", 18, 19, 18, 20, 81, "UBP ", ListRule::ThreeCols},
    {"uc.dat", 31, 19, 31, 20, 31, "UC ", ListRule::ThreeCols},
    {"j.dat", 13, 19, 21, 20, 13, "J ", ListRule::ThreeCols},
    {"ch.dat", 17, 22, 18, 23, 17, "CH ", ListRule::ThreeCols},
    {"pfc.dat", 16, 21, 18, 22, 16, "PFC ", ListRule::ThreeCols},
}};

std::string JoinPath(const std::string& dir, const char* file) {
  if (dir.empty()) return file;
  if (dir.back() == '/') return dir + file;
  return dir + "/" + file;
}

}  // namespace

const CatalogueSpec& CatalogueInfo(CatalogueId id) { return kSpecs.at(static_cast<size_t>(id)); }

Single Catalogue::at(int row, int col) const {
  if (row < 0 || row >= boundRows || col < 0 || col >= boundCols) Fault("subscript out of range");
  return cell[static_cast<size_t>(row * boundCols + col)];
}

Single& Catalogue::ref(int row, int col) {
  if (row < 0 || row >= boundRows || col < 0 || col >= boundCols) Fault("subscript out of range");
  return cell[static_cast<size_t>(row * boundCols + col)];
}

void ReadCatalogue(Catalogue& t, CatalogueId id, const std::string& dir) {
  const CatalogueSpec& s = CatalogueInfo(id);
  t.boundRows = s.boundRows;
  t.boundCols = s.boundCols;
  t.cell.assign(static_cast<size_t>(s.boundRows * s.boundCols), 0.0f);
  // Only the bytes of the rows read are taken: a longer file is read as far as the fixed row count,
  // and a missing file, or a folder, device or FIFO in its place, leaves every cell 0.
  const int rows = std::min(s.loopRows, s.boundRows);  // reads beyond the table fail their bound check
  std::string bytes;
  if (ReadFileBounded(JoinPath(dir, s.file), static_cast<size_t>(rows * s.cols * 4), &bytes, nullptr,
                      Oversize::ReadPrefix) != ReadStatus::Ok)
    return;
  size_t at = 0;
  for (int row = 0; row < rows; ++row) {
    for (int col = 1; col <= s.cols; ++col) {
      if (at + 4 > bytes.size()) return;  // short file: zeros beyond
      const auto* b = reinterpret_cast<const unsigned char*>(bytes.data() + at);
      at += 4;
      std::uint32_t bits = static_cast<std::uint32_t>(b[0]) | (static_cast<std::uint32_t>(b[1]) << 8) |
                           (static_cast<std::uint32_t>(b[2]) << 16) |
                           (static_cast<std::uint32_t>(b[3]) << 24);
      float v;
      std::memcpy(&v, &bits, 4);
      t.cell[static_cast<size_t>(row * s.boundCols + col)] = v;
    }
  }
}

void LoadProfileCatalogues(Catalogues& c, const std::string& dir) {
  for (int i = 0; i < catCount; ++i) ReadCatalogue(c.table[i], static_cast<CatalogueId>(i), dir);
}

std::string CatalogueListText(const Catalogues& c, CatalogueId id, int row) {
  const CatalogueSpec& s = CatalogueInfo(id);
  const Catalogue& t = c.table[id];
  auto col = [&](int k) { return SingleText(t.at(row, k)); };
  std::string text = s.prefix;
  switch (s.rule) {
    case ListRule::PrefixCol1: return text + col(1);
    case ListRule::SquareHollow: return text + col(1) + "x" + col(1) + "x" + col(2);
    case ListRule::ThreeCols: return text + col(1) + "x" + col(2) + "x" + col(3);
    case ListRule::EqualAngle: return text + col(1) + "x" + col(1) + "x" + col(2);
    case ListRule::FourCols: return text + col(1) + "x" + col(2) + "x" + col(3) + "x" + col(4);
    case ListRule::TwoCols: return text + col(1) + "x" + col(2);
  }
  return text;
}

std::vector<std::string> CatalogueList(const Catalogues& c, CatalogueId id) {
  std::vector<std::string> items;
  const int rows = CatalogueInfo(id).rows;
  items.reserve(static_cast<size_t>(rows));
  for (int row = 0; row < rows; ++row) items.push_back(CatalogueListText(c, id, row));
  return items;
}

}  // namespace vn
