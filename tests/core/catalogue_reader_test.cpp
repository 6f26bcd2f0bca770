// The catalogue reader: fixed row counts, missing and damaged files, list texts.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <vector>

#include "sections/catalogue.h"
#include "support/test_support.h"

namespace vn {
namespace {

class CatalogueReader : public ::testing::Test {
 protected:
  // Writes `rows` rows of K values; value of row r, column k (1-based) is r * 100 + k + 0.5.
  void Write(const char* file, int rows, int k) {
    std::ofstream out(folder_.Dir() / file, std::ios::binary);
    for (int r = 0; r < rows; ++r)
      for (int c = 1; c <= k; ++c) {
        float v = static_cast<float>(r * 100 + c) + 0.5f;
        unsigned char b[4];
        std::uint32_t bits;
        std::memcpy(&bits, &v, 4);
        for (int i = 0; i < 4; ++i) b[i] = static_cast<unsigned char>(bits >> (8 * i));
        out.write(reinterpret_cast<char*>(b), 4);
      }
  }

  test::TempFolder folder_;
};

TEST_F(CatalogueReader, MissingFileLeavesZerosAndListShowsThePrefixWithZeros) {
  Catalogues c;
  LoadProfileCatalogues(c, folder_.Path());
  std::vector<std::string> items = CatalogueList(c, catHea);
  ASSERT_EQ(items.size(), 24u);
  for (const std::string& item : items) EXPECT_EQ(item, "HEA0");
  EXPECT_EQ(c.table[catHea].at(0, 2), 0.0f);  // h of the first row
  EXPECT_EQ(CatalogueListText(c, catShs, 0), "RHS 0x0x0");
}

TEST_F(CatalogueReader, FullFileFillsColumnsOneToKAndLeavesColumnZeroEmpty) {
  Write("hea.dat", 24, 11);
  Catalogue t;
  ReadCatalogue(t, catHea, folder_.Path());
  EXPECT_EQ(t.at(0, 0), 0.0f);
  EXPECT_EQ(t.at(0, 1), 1.5f);
  EXPECT_EQ(t.at(23, 11), 2311.5f);
  EXPECT_EQ(t.at(24, 1), 0.0f);  // rows 24..28 of the table bound stay empty
  EXPECT_THROW(t.at(29, 1), CalcFault);
  EXPECT_THROW(t.at(0, 12), CalcFault);
}

TEST_F(CatalogueReader, ShortFileLeavesZerosBeyondItsEnd) {
  Write("ipe.dat", 3, 10);
  Catalogue t;
  ReadCatalogue(t, catIpe, folder_.Path());
  EXPECT_EQ(t.at(2, 10), 210.5f);
  EXPECT_EQ(t.at(3, 1), 0.0f);
}

TEST_F(CatalogueReader, LongFileIsReadToTheFixedRowCountOnly) {
  Write("l3.dat", 13, 6);  // two rows more than the reader takes
  Catalogue t;
  ReadCatalogue(t, catL3, folder_.Path());
  EXPECT_EQ(t.at(10, 1), 1001.5f);
  EXPECT_EQ(t.at(11, 1), 0.0f);  // table row 11 exists but is never read
  EXPECT_EQ(t.at(12, 6), 0.0f);
}

TEST_F(CatalogueReader, UbpTakesEighteenRowsFromAFileOfEightyOne) {
  Write("ubp.dat", 81, 19);
  Catalogues c;
  LoadProfileCatalogues(c, folder_.Path());
  EXPECT_EQ(c.table[catUbp].at(17, 19), 1719.5f);
  EXPECT_THROW(c.table[catUbp].at(18, 1), CalcFault);
  EXPECT_EQ(CatalogueList(c, catUbp).size(), 18u);
  EXPECT_EQ(CatalogueList(c, catUb).size(), 81u);
}

TEST_F(CatalogueReader, ListTextsFollowTheFamilyRule) {
  Write("hea.dat", 1, 11);
  Write("shs.dat", 1, 6);
  Write("rhs.dat", 1, 9);
  Write("cfshs.dat", 1, 7);
  Write("l1.dat", 1, 11);
  Write("l2.dat", 1, 16);
  Write("l3.dat", 1, 6);
  Write("hp.dat", 1, 5);
  Write("ub.dat", 1, 19);
  Write("ch.dat", 1, 22);
  Catalogues c;
  LoadProfileCatalogues(c, folder_.Path());
  // Row 0 holds 1.5, 2.5, 3.5, 4.5 ... in columns 1, 2, 3, 4.
  EXPECT_EQ(CatalogueListText(c, catHea, 0), "HEA1.5");
  EXPECT_EQ(CatalogueListText(c, catShs, 0), "RHS 1.5x1.5x2.5");
  EXPECT_EQ(CatalogueListText(c, catRhs, 0), "RHS 1.5x2.5x3.5");
  EXPECT_EQ(CatalogueListText(c, catCfshs, 0), "CFRHS 1.5x2.5x3.5");
  EXPECT_EQ(CatalogueListText(c, catL1, 0), "L 1.5x1.5x2.5");
  EXPECT_EQ(CatalogueListText(c, catL2, 0), "L 1.5x2.5x3.5");
  EXPECT_EQ(CatalogueListText(c, catL3, 0), "L 1.5x2.5x3.5x4.5");
  EXPECT_EQ(CatalogueListText(c, catHp, 0), "BF 1.5x2.5");
  EXPECT_EQ(CatalogueListText(c, catUb, 0), "UB 1.5x2.5x3.5");
  EXPECT_EQ(CatalogueListText(c, catCh, 0), "CH 1.5x2.5x3.5");
  EXPECT_EQ(CatalogueListText(c, catPfc, 0), "PFC 0x0x0");
}

TEST(CatalogueLayout, RowCountsAndBoundsAreThoseOfTheFiles) {
  // hea.dat: 24 rows of 11 values = 1056 bytes.
  EXPECT_EQ(CatalogueInfo(catHea).rows * CatalogueInfo(catHea).cols * 4, 1056);
  EXPECT_EQ(CatalogueInfo(catShs).rows, 101);
  EXPECT_EQ(CatalogueInfo(catRhs).rows, 158);
  EXPECT_EQ(CatalogueInfo(catCfrhs).rows, 116);
  EXPECT_EQ(CatalogueInfo(catL2).cols, 16);
  EXPECT_EQ(CatalogueInfo(catCh).cols, 22);
  EXPECT_EQ(CatalogueInfo(catPfc).cols, 21);
  EXPECT_EQ(CatalogueInfo(catHp).boundRows, 48);
}

}  // namespace
}  // namespace vn
