// The steel grade file and the setup file delivered beside the program, read as plain text.
#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

std::vector<std::string> Lines(const std::string& file) {
  std::ifstream in(std::string(VARNELT_DATA_DIR) + "/" + file, std::ios::binary);
  EXPECT_TRUE(in) << file;
  std::vector<std::string> lines;
  std::string line;
  while (std::getline(in, line)) lines.push_back(line);
  return lines;
}

std::vector<std::string> Fields(const std::string& line) {
  std::vector<std::string> f;
  std::stringstream s(line);
  std::string cell;
  while (std::getline(s, cell, '\t')) f.push_back(cell);
  return f;
}

// A whole number written with digits only, so that no locale can read it differently.
bool Within(double v, double lo, double hi) { return v >= lo && v <= hi; }

bool PlainInteger(const std::string& t, int& v) {
  if (t.empty() || t.find_first_not_of("0123456789") != std::string::npos) return false;
  v = std::stoi(t);
  return true;
}

TEST(SteelGradeFile, HoldsTheGradesOfEn1993Table31AndTheUserRowLast) {
  const std::vector<std::string> lines = Lines("VarneltECmat.dat");
  ASSERT_GE(lines.size(), 7u);
  ASSERT_LE(lines.size(), 31u);  // the table has 31 rows
  std::set<std::string> names;
  for (size_t i = 0; i < lines.size(); ++i) {
    const std::vector<std::string> f = Fields(lines[i]);
    ASSERT_EQ(f.size(), 3u) << "line " << i << ": name, fy up to 40 mm, fy over 40 mm";
    EXPECT_TRUE(names.insert(f[0]).second) << "name twice: " << f[0];
    int fy40 = 0, fy80 = 0;
    EXPECT_TRUE(PlainInteger(f[1], fy40) && PlainInteger(f[2], fy80)) << "line " << i;
    if (i + 1 < lines.size()) {
      // EN 1993-1-1 Table 3.1: 235 to 460 MPa, never more for the thicker material.
      EXPECT_GE(fy40, 235) << f[0];
      EXPECT_LE(fy40, 460) << f[0];
      EXPECT_LE(fy80, fy40) << f[0];
      EXPECT_GE(fy80, fy40 - 30) << f[0];
    }
  }
  // Row 5 is the grade of a new project: S355 of EN 10025-2, 355 MPa up to 40 mm, 335 above.
  EXPECT_EQ(lines[5], "S355\t355\t335");
  EXPECT_EQ(lines[0], "S235\t235\t215");
  // Table 3.1 values that are easy to get wrong: S450 has 440 / 410, S460 Q 460 / 440.
  EXPECT_TRUE(names.count("S450"));
  for (const std::string& l : lines) {
    if (l.rfind("S450\t", 0) == 0) {
      EXPECT_EQ(l, "S450\t440\t410");
    }
    if (l.rfind("S460 Q", 0) == 0) {
      EXPECT_EQ(Fields(l)[1] + "/" + Fields(l)[2], "460/440");
    }
  }
  EXPECT_EQ(Fields(lines.back())[0], "User defined");
}

TEST(SetupFile, HoldsTwentyNineDefaultsEachInsideItsLimit) {
  const std::vector<std::string> v = Lines("VarneltEC3Setup.dat");
  ASSERT_EQ(v.size(), 29u);
  auto num = [&](int line) { return std::stod(v.at(static_cast<size_t>(line - 1))); };
  auto whole = [&](int line) {
    int n = -1;
    EXPECT_TRUE(PlainInteger(v.at(static_cast<size_t>(line - 1)), n)) << "line " << line << " is an Integer";
    return n;
  };
  EXPECT_EQ(whole(1), 120);  // version
  const std::set<std::string> codes{"\"EU\"", "\"NO\"", "\"SW\"", "\"DK\"", "\"UK\"",
                                    "\"FI\"", "\"GE\"", "\"NK\"", "\"UD\""};
  EXPECT_TRUE(codes.count(v[1])) << v[1];  // codeId, in double quotes
  EXPECT_EQ(v[1], "\"EU\"");
  EXPECT_TRUE(Within(num(3), 0.5, 1.5)) << "line 3";    // gammaM0 " 0.5 <= gammam0 <=1.5 "
  EXPECT_TRUE(Within(num(4), 0.5, 1.5)) << "line 4";    // gammaM1
  EXPECT_TRUE(Within(num(5), 1.0, 1.2)) << "line 5";    // neta " 1 <= neta <=1.2 "
  EXPECT_TRUE(whole(6) == 1 || whole(6) == 2);          // interactionMethod
  EXPECT_TRUE(Within(num(7), 0.1, 0.8)) << "line 7";    // lamdaLT0
  EXPECT_TRUE(Within(num(8), 0.1, 1.0)) << "line 8";    // beta
  EXPECT_TRUE(Within(num(9), 0.1, 0.8)) << "line 9";    // lamdaLT0w
  EXPECT_TRUE(Within(num(10), 0.1, 1.0)) << "line 10";  // betaw
  // steelGrade: a catalogued row of the steel grade file, not the user row; fyk its value up to 40 mm.
  const std::vector<std::string> grades = Lines("VarneltECmat.dat");
  const int grade = whole(11);
  ASSERT_GE(grade, 0);
  ASSERT_LT(grade, static_cast<int>(grades.size()) - 1);
  EXPECT_EQ(num(12), std::stod(Fields(grades[static_cast<size_t>(grade)])[1]));
  EXPECT_TRUE(Within(num(12), 50, 2000)) << "line 12";  // fyk " 50 <= fyk <= 2000 "
  EXPECT_GE(num(13), 1000);                             // E " 1000 <= E-modulus "
  EXPECT_EQ(num(13), 210000);
  EXPECT_TRUE(Within(num(14), 0, 0.4)) << "line 14";  // uflimit " 0 <= uflimit <= 0.4 "
  for (int line = 15; line <= 18; ++line)             // the four check boxes
    EXPECT_TRUE(v[line - 1] == "#TRUE#" || v[line - 1] == "#FALSE#") << "line " << line;
  EXPECT_TRUE(Within(whole(19), 0, 5)) << "line 19";       // LoadCombMode, six modes
  EXPECT_TRUE(Within(whole(20), 100, 1500)) << "line 20";  // deflectionLimit
  EXPECT_TRUE(Within(whole(21), 1, 3)) << "line 21";       // safetyClass
  EXPECT_TRUE(Within(whole(22), 0, 9)) << "line 22";       // psi list index: "0.1" to "1.0"
  EXPECT_TRUE(Within(whole(23), 0, 9)) << "line 23";
  EXPECT_EQ(whole(22), 6);                 // psi0 = (6 + 1) * 0.1 = 0.7
  for (int line = 24; line <= 29; ++line)  // load factors " 0 < Loadfactor < 4.0 "
    EXPECT_TRUE(num(line) >= 0 && num(line) <= 4) << "line " << line;
  EXPECT_EQ(num(24), 1.35);
  EXPECT_EQ(num(25), 1.5);
  EXPECT_EQ(num(27), 1.0);
  // Numbers are written with '.', never with ','.
  for (const std::string& line : v) EXPECT_EQ(line.find(','), std::string::npos) << line;
}

}  // namespace
