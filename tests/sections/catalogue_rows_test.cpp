// The families against the catalogue files that lie beside the built program: every row of every
// table of this unit gives a section without a calculation fault, and sample sizes match the
// published tables (ArcelorMittal sales programme; SCI P363 Blue Book).
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "core/pipeline.h"
#include "sections/rolled_i.h"
#include "sections/section_fixture.h"

namespace vn::test {
namespace {

bool HaveFile(const char* name) {
  return std::filesystem::exists(std::filesystem::path(VARNELT_BIN_DIR) / name);
}

// The row of a table whose list text is `text`, or -1.
int RowOf(const State& s, CatalogueId id, const std::string& text) {
  const auto items = CatalogueList(s.catalogues, id);
  for (size_t i = 0; i < items.size(); ++i)
    if (items[i] == text) return static_cast<int>(i);
  return -1;
}

struct Family {
  int type;
  int subFamily;
  CatalogueId id;
};

TEST(CatalogueRows, EveryRowOfTheFilesGivesASection) {
  if (!HaveFile("hea.dat")) GTEST_SKIP() << "no catalogue files beside the program";
  State s = StartedState();
  const Family families[] = {
      {1, 0, catHea}, {2, 0, catHeb},   {3, 0, catHem},  {4, 0, catIpe},  {15, 0, catInp},
      {5, 0, catUpe}, {16, 0, catUnp},  {101, 1, catUb}, {101, 2, catUc}, {101, 3, catUbp},
      {102, 0, catJ}, {103, 1, catPfc}, {103, 2, catCh},
  };
  for (const Family& f : families) {
    if (!HaveFile(CatalogueInfo(f.id).file)) continue;
    s.project.ProfileType = static_cast<Integer>(f.type);
    if (f.type == 101) s.project.subFamily101 = static_cast<Integer>(f.subFamily);
    if (f.type == 103) s.project.subFamily103 = static_cast<Integer>(f.subFamily);
    for (int row = 0; row < CatalogueInfo(f.id).rows; ++row) {
      s.project.SelectedRow[static_cast<size_t>(f.id)] = static_cast<Integer>(row);
      const std::string name = CatalogueListText(s.catalogues, f.id, row);
      ASSERT_NO_THROW(ComputeSection(s)) << name;
      const Section& c = s.section;
      EXPECT_GT(c.A, 0) << name;
      EXPECT_GE(c.classN, 1) << name;
      EXPECT_LE(c.classN, 4) << name;
      EXPECT_GE(c.classMy, 1) << name;
      EXPECT_LE(c.classMy, 4) << name;
      EXPECT_LE(c.Aeff, c.A) << name;
      EXPECT_GT(c.NcRd, 0) << name;
    }
  }
}

TEST(CatalogueRows, SampleSizesMatchThePublishedTables) {
  if (!HaveFile("hea.dat") || !HaveFile("ub.dat")) GTEST_SKIP() << "no catalogue files";
  State s = StartedState();

  const int hea = RowOf(s, catHea, "HEA200");
  ASSERT_GE(hea, 0);
  Choose(s, 1, catHea, hea);
  ComputeSection(s);
  EXPECT_TRUE(Near(s.section.A, 5383, kPublished4));        // 53.83 cm2
  EXPECT_TRUE(Near(s.section.Iy, 36.92e6, kPublished4));    // 3692 cm4
  EXPECT_TRUE(Near(s.section.Wply, 429.5e3, kPublished4));  // 429.5 cm3
  EXPECT_TRUE(Near(s.section.Ix, 209.8e3, kPublished4));    // 20.98 cm4
  EXPECT_TRUE(Near(s.section.Iw, 108.0e9, kPublished4));    // 108.0 x 10^3 cm6

  s.project.subFamily101 = 1;
  const int ub = RowOf(s, catUb, "UB 457x191x67");
  ASSERT_GE(ub, 0);
  Choose(s, 101, catUb, ub);
  ComputeSection(s);
  EXPECT_TRUE(Near(s.section.A, 8550, kPublished3));       // 85.5 cm2
  EXPECT_TRUE(Near(s.section.Iy, 294e6, kPublished3));     // 29400 cm4
  EXPECT_TRUE(Near(s.section.Wply, 1470e3, kPublished3));  // 1470 cm3
  EXPECT_TRUE(Near(s.section.Iw, 0.705e12, kPublished3));  // 0.705 dm6
}

}  // namespace
}  // namespace vn::test
