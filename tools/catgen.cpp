// catgen: builds the data files that lie beside the program from the readable tables in data/src.
//
//   catgen SRC_DIR OUT_DIR           writes the 21 catalogue files (*.dat, 4-byte little-endian
//                                    singles, no header), the steel grade file and the setup file
//   catgen --check SRC_DIR DATA_DIR  builds the same files in memory and compares them byte for byte
//                                    with those in DATA_DIR; exit status 1 when any differs
//   catgen --derive SRC_DIR          prints the section values that the published tables lack,
//                                    computed from the nominal geometry held in the tables
//                                    (see data/src/README.md), for checking the computed cells
//
// Each catalogue table data/src/<name>.csv has a header row "designation,<K columns>,source": the
// columns in the order of the catalogue file, each name carrying its unit. A cell is divided by the
// column's storage factor (the factor the program multiplies the stored value by) and stored as a
// single. The header, the row count and every cell are checked; any fault stops the tool.
//
// Standard library only.
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/csv.h"

namespace {

// ---------------------------------------------------------------------------------------------
// Reading the readable tables

using Row = std::vector<std::string>;

struct Table {
  Row header;
  std::vector<Row> rows;
  int Col(const std::string& name) const {
    for (size_t i = 0; i < header.size(); ++i)
      if (header[i] == name) return static_cast<int>(i);
    throw std::runtime_error("no column " + name);
  }
};

Row SplitCsvLine(const std::string& line) { return vn::SplitCsvCells(line); }

Table ReadCsv(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw std::runtime_error("cannot open " + path);
  Table t;
  std::string line;
  bool first = true;
  while (std::getline(in, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.empty()) continue;
    if (first) {
      t.header = SplitCsvLine(line);
      first = false;
    } else {
      t.rows.push_back(SplitCsvLine(line));
    }
  }
  if (first) throw std::runtime_error(path + ": empty");
  return t;
}

double ParseCell(const std::string& text, const std::string& where) {
  double v = 0;
  const char* b = text.data();
  const char* e = b + text.size();
  auto r = std::from_chars(b, e, v);
  if (text.empty() || r.ec != std::errc() || r.ptr != e || !std::isfinite(v))
    throw std::runtime_error(where + ": not a number: '" + text + "'");
  return v;
}

std::string JoinPath(const std::string& dir, const std::string& file) {
  if (dir.empty() || dir.back() == '/') return dir + file;
  return dir + "/" + file;
}

// ---------------------------------------------------------------------------------------------
// The 21 catalogues: file, rows, and the K columns with their storage factors

struct Column {
  const char* name;
  double factor;  // the program multiplies the stored single by this to get the CSV unit
};

struct CatalogueFile {
  const char* name;  // data/src/<name>.csv -> <name>.dat
  int rows;
  std::vector<Column> cols;
};

const std::vector<Column> kRolledI = {{"number", 1},   {"h_mm", 1},     {"b_mm", 1},    {"tf_mm", 1},
                                      {"tw_mm", 1},    {"r_mm", 1},     {"A_mm2", 1},   {"Iy_mm4", 1e6},
                                      {"Iz_mm4", 1e6}, {"It_mm4", 1e6}, {"Iw_mm6", 1e9}};

const std::vector<Column> kBritishI = {
    {"serial_1", 1},    {"serial_2", 1},    {"serial_3", 1},    {"g_kg_m", 1},      {"h_mm", 1},
    {"b_mm", 1},        {"tw_mm", 1},       {"tf_mm", 1},       {"r_mm", 1},        {"A_mm2", 100},
    {"S_m2_m", 1},      {"Iy_mm4", 1e4},    {"Wel_y_mm3", 1e3}, {"Wpl_y_mm3", 1e3}, {"Iz_mm4", 1e4},
    {"Wel_z_mm3", 1e3}, {"Wpl_z_mm3", 1e3}, {"It_mm4", 1e4},    {"Iw_mm6", 1e9}};

std::vector<Column> Pfc() {
  std::vector<Column> c = kBritishI;
  c.push_back({"ey_mm", 10});
  c.push_back({"ey_plus_em_mm", 10});
  return c;
}

std::vector<Column> Ch() {
  std::vector<Column> c = Pfc();
  c.insert(c.begin() + 9, Column{"r2_mm", 1});
  c[8] = {"r1_mm", 1};
  return c;
}

const std::vector<CatalogueFile>& Catalogues() {
  static const std::vector<CatalogueFile> files = {
      {"hea", 24, kRolledI},
      {"heb", 24, kRolledI},
      {"hem", 24, kRolledI},
      {"ipe",
       18,
       {{"h_mm", 1},
        {"b_mm", 1},
        {"tf_mm", 1},
        {"tw_mm", 1},
        {"r_mm", 1},
        {"A_mm2", 1},
        {"Iy_mm4", 1e6},
        {"Iz_mm4", 1e6},
        {"It_mm4", 1e6},
        {"Iw_mm6", 1e9}}},
      {"upe",
       14,
       {{"h_mm", 1},
        {"b_mm", 1},
        {"tw_mm", 1},
        {"tf_mm", 1},
        {"r_mm", 1},
        {"ey_mm", 1},
        {"em_mm", 1},
        {"A_mm2", 1},
        {"Iy_mm4", 1e4},
        {"Iz_mm4", 1e4},
        {"Wpl_y_mm3", 1e3},
        {"Wpl_z_mm3", 1e3},
        {"It_mm4", 1e3},
        {"Iw_mm6", 1e9}}},
      {"shs",
       101,
       {{"h_mm", 1}, {"t_mm", 1}, {"A_mm2", 100}, {"I_mm4", 1e4}, {"Wpl_mm3", 1e3}, {"It_mm4", 1e4}}},
      {"rhs",
       158,
       {{"h_mm", 1},
        {"b_mm", 1},
        {"t_mm", 1},
        {"A_mm2", 100},
        {"Iy_mm4", 1e4},
        {"Iz_mm4", 1e4},
        {"Wpl_y_mm3", 1e3},
        {"Wpl_z_mm3", 1e3},
        {"It_mm4", 1e4}}},
      {"cfshs",
       99,
       {{"h_mm", 1},
        {"b_mm", 1},
        {"t_mm", 1},
        {"A_mm2", 100},
        {"I_mm4", 1e4},
        {"Wpl_mm3", 1e3},
        {"It_mm4", 1e4}}},
      {"cfrhs",
       116,
       {{"h_mm", 1},
        {"b_mm", 1},
        {"t_mm", 1},
        {"A_mm2", 100},
        {"Iy_mm4", 1e4},
        {"Iz_mm4", 1e4},
        {"Wpl_y_mm3", 1e3},
        {"Wpl_z_mm3", 1e3},
        {"It_mm4", 1e4}}},
      {"l1",
       60,
       {{"h_mm", 1},
        {"t_mm", 1},
        {"r_mm", 1},
        {"A_mm2", 1},
        {"e_mm", 1},
        {"v_mm", 1},
        {"u2_mm", 1},
        {"u1_mm", 1},
        {"I_mm4", 1e4},
        {"Iu_mm4", 1e4},
        {"Iv_mm4", 1e4}}},
      {"l2",
       49,
       {{"h_mm", 1},
        {"b_mm", 1},
        {"t_mm", 1},
        {"r_mm", 1},
        {"A_mm2", 1},
        {"ez_mm", 1},
        {"ey_mm", 1},
        {"v_long_tip_mm", 1},
        {"v_short_tip_mm", 1},
        {"u_heel_mm", 1},
        {"u_long_tip_mm", 1},
        {"tan_alpha", 1},
        {"Iy_mm4", 1e4},
        {"Iz_mm4", 1e4},
        {"Iu_mm4", 1e4},
        {"Iv_mm4", 1e4}}},
      {"inp",
       21,
       {{"h_mm", 1},
        {"b_mm", 1},
        {"tf_mm", 1},
        {"tw_mm", 1},
        {"A_mm2", 1e3},
        {"Iy_mm4", 1e6},
        {"Wpl_y_mm3", 1e3},
        {"Iz_mm4", 1e6},
        {"Wpl_z_mm3", 1e3},
        {"It_mm4", 1e3},
        {"Iw_mm6", 1e9}}},
      {"unp",
       16,
       {{"h_mm", 1},
        {"b_mm", 1},
        {"tw_mm", 1},
        {"tf_mm", 1},
        {"r1_mm", 1},
        {"r2_mm", 1},
        {"ey_mm", 1},
        {"ey_plus_em_mm", 1},
        {"A_mm2", 1},
        {"Iy_mm4", 1e4},
        {"Iz_mm4", 1e4},
        {"It_mm4", 1e6},
        {"Iw_mm6", 1e9},
        {"Wpl_y_mm3", 1e3},
        {"Wpl_z_mm3", 1e3}}},
      {"l3", 11, {{"h_mm", 1}, {"b_mm", 1}, {"t_mm", 1}, {"t2_mm", 1}, {"r_mm", 1}, {"r2_mm", 1}}},
      {"hp", 47, {{"h_mm", 1}, {"t_mm", 1}, {"c_mm", 1}, {"r_mm", 1}, {"A_mm2", 100}}},
      {"ub", 81, kBritishI},
      {"ubp", 18, kBritishI},
      {"uc", 31, kBritishI},
      {"j", 13, kBritishI},
      {"ch", 17, Ch()},
      {"pfc", 16, Pfc()},
  };
  return files;
}

void PutSingle(std::string& out, float v) {
  std::uint32_t bits;
  std::memcpy(&bits, &v, 4);
  for (int i = 0; i < 4; ++i) out += static_cast<char>((bits >> (8 * i)) & 0xFF);
}

std::string BuildCatalogue(const std::string& srcDir, const CatalogueFile& f) {
  const std::string path = JoinPath(srcDir, std::string(f.name) + ".csv");
  Table t = ReadCsv(path);
  const size_t k = f.cols.size();
  // designation, the K columns of the file, any further columns for the reader (not stored), source
  if (t.header.size() < k + 2 || t.header.front() != "designation" || t.header.back() != "source")
    throw std::runtime_error(path + ": header must be designation, " + std::to_string(k) +
                             " columns, source");
  for (size_t c = 0; c < k; ++c)
    if (t.header[c + 1] != f.cols[c].name)
      throw std::runtime_error(path + ": column " + std::to_string(c + 1) + " must be " + f.cols[c].name +
                               ", not " + t.header[c + 1]);
  if (static_cast<int>(t.rows.size()) != f.rows)
    throw std::runtime_error(path + ": " + std::to_string(t.rows.size()) + " rows, the file holds " +
                             std::to_string(f.rows));
  std::string out;
  for (const Row& r : t.rows) {
    if (r.size() != t.header.size())
      throw std::runtime_error(path + ": row " + r.front() + " has a wrong cell count");
    for (size_t c = 0; c < k; ++c) {
      double v = ParseCell(r[c + 1], path + " " + r.front() + " " + f.cols[c].name);
      PutSingle(out, static_cast<float>(v / f.cols[c].factor));
    }
  }
  return out;
}

// The steel grade file: "name<TAB>fy for t <= 40<TAB>fy for 40 < t <= 80", one grade a line.
std::string BuildSteelGrades(const std::string& srcDir) {
  const std::string path = JoinPath(srcDir, "steel_grades.csv");
  Table t = ReadCsv(path);
  const int name = t.Col("name"), fy40 = t.Col("fy_t_le_40_MPa"), fy80 = t.Col("fy_t_40_to_80_MPa");
  if (t.rows.empty() || t.rows.size() > 31) throw std::runtime_error(path + ": 1 to 31 grades");
  std::string out;
  for (const Row& r : t.rows) {
    for (int c : {fy40, fy80}) ParseCell(r.at(c), path + " " + r.at(name));
    out += r.at(name) + "\t" + r.at(fy40) + "\t" + r.at(fy80) + "\n";
  }
  return out;
}

// The setup file: 29 values, one a line, in the portable text form.
std::string BuildSetup(const std::string& srcDir) {
  const std::string path = JoinPath(srcDir, "setup_defaults.csv");
  Table t = ReadCsv(path);
  const int line = t.Col("line"), type = t.Col("type"), value = t.Col("value");
  if (t.rows.size() != 29) throw std::runtime_error(path + ": the setup file has 29 lines");
  std::string out;
  int expected = 1;
  for (const Row& r : t.rows) {
    if (ParseCell(r.at(line), path) != expected++) throw std::runtime_error(path + ": lines out of order");
    const std::string& ty = r.at(type);
    const std::string& v = r.at(value);
    if (ty == "String") {
      out += "\"" + v + "\"";
    } else if (ty == "Boolean") {
      if (v != "#TRUE#" && v != "#FALSE#") throw std::runtime_error(path + ": Boolean " + v);
      out += v;
    } else if (ty == "Integer" || ty == "Single" || ty == "Number") {
      double d = ParseCell(v, path + " line " + r.at(line));
      if (ty == "Integer" && d != std::floor(d)) throw std::runtime_error(path + ": Integer " + v);
      out += v;
    } else {
      throw std::runtime_error(path + ": type " + ty);
    }
    out += "\n";
  }
  return out;
}

std::map<std::string, std::string> BuildAll(const std::string& srcDir) {
  std::map<std::string, std::string> files;
  for (const CatalogueFile& f : Catalogues()) files[std::string(f.name) + ".dat"] = BuildCatalogue(srcDir, f);
  files["VarneltECmat.dat"] = BuildSteelGrades(srcDir);
  files["VarneltEC3Setup.dat"] = BuildSetup(srcDir);
  return files;
}

// ---------------------------------------------------------------------------------------------
// Section values from the nominal geometry (--derive)
//
// The outline is a polygon whose root and toe radii are arcs of many short chords; area,
// centroid, second moments and perimeter follow from Green's theorem, the plastic moduli from
// the equal-area axis. Torsion and warping constants and the shear centre use the closed
// formulas of the section tables (SCI P363 appendix), written out below.

constexpr double kPi = 3.14159265358979323846;

struct Pt {
  double y, z;
};
using Poly = std::vector<Pt>;

// Rounds the corners of `pts` (counter-clockwise) whose radius is above 0 with an arc tangent to
// both edges; a convex corner loses material, a re-entrant one (a root fillet) gains it.
Poly Rounded(const Poly& pts, const std::vector<double>& radius, int steps = 400) {
  Poly out;
  const size_t n = pts.size();
  for (size_t i = 0; i < n; ++i) {
    const Pt p = pts[i];
    const double r = radius[i];
    if (r <= 0) {
      out.push_back(p);
      continue;
    }
    const Pt a = pts[(i + n - 1) % n], b = pts[(i + 1) % n];
    double d1y = p.y - a.y, d1z = p.z - a.z, l1 = std::hypot(d1y, d1z);
    double d2y = b.y - p.y, d2z = b.z - p.z, l2 = std::hypot(d2y, d2z);
    d1y /= l1, d1z /= l1, d2y /= l2, d2z /= l2;
    const double angle = std::acos(std::clamp(-(d1y * d2y + d1z * d2z), -1.0, 1.0));
    const double tangent = r / std::tan(angle / 2);
    const Pt t1{p.y - d1y * tangent, p.z - d1z * tangent};
    const Pt t2{p.y + d2y * tangent, p.z + d2z * tangent};
    double by = -d1y + d2y, bz = -d1z + d2z, lb = std::hypot(by, bz);
    const double toCentre = r / std::sin(angle / 2);
    const Pt c{p.y + by / lb * toCentre, p.z + bz / lb * toCentre};
    const double a1 = std::atan2(t1.z - c.z, t1.y - c.y);
    double da = std::atan2(t2.z - c.z, t2.y - c.y) - a1;
    while (da > kPi) da -= 2 * kPi;
    while (da < -kPi) da += 2 * kPi;
    for (int k = 0; k <= steps; ++k) {
      const double an = a1 + da * k / steps;
      out.push_back({c.y + r * std::cos(an), c.z + r * std::sin(an)});
    }
  }
  return out;
}

struct Props {
  double A = 0, yc = 0, zc = 0, Iy = 0, Iz = 0, perimeter = 0;
};

Props Properties(const Poly& p) {
  double a = 0, sy = 0, sz = 0, iyy = 0, izz = 0, per = 0;
  for (size_t i = 0; i < p.size(); ++i) {
    const Pt u = p[i], v = p[(i + 1) % p.size()];
    const double c = u.y * v.z - v.y * u.z;
    a += c / 2;
    sy += (u.z + v.z) * c / 6;
    sz += (u.y + v.y) * c / 6;
    iyy += (u.z * u.z + u.z * v.z + v.z * v.z) * c / 12;
    izz += (u.y * u.y + u.y * v.y + v.y * v.y) * c / 12;
    per += std::hypot(v.y - u.y, v.z - u.z);
  }
  Props r;
  r.A = a;
  r.zc = sy / a;
  r.yc = sz / a;
  r.Iy = iyy - a * r.zc * r.zc;
  r.Iz = izz - a * r.yc * r.yc;
  r.perimeter = per;
  return r;
}

// The part of `p` on one side of the line z = v (alongZ) or y = v.
Poly Clip(const Poly& p, bool alongZ, double v, bool keepAbove) {
  Poly out;
  auto coord = [&](const Pt& q) { return alongZ ? q.z : q.y; };
  auto inside = [&](const Pt& q) { return keepAbove ? coord(q) >= v : coord(q) <= v; };
  for (size_t i = 0; i < p.size(); ++i) {
    const Pt a = p[i], b = p[(i + 1) % p.size()];
    const bool ia = inside(a), ib = inside(b);
    if (ia) out.push_back(a);
    if (ia != ib) {
      const double t = (v - coord(a)) / (coord(b) - coord(a));
      out.push_back({a.y + t * (b.y - a.y), a.z + t * (b.z - a.z)});
    }
  }
  return out;
}

// Plastic modulus about the axis through the equal-area line z = const (aboutY) or y = const.
double PlasticModulus(const Poly& p, bool aboutY) {
  double lo = 1e300, hi = -1e300;
  for (const Pt& q : p) {
    const double c = aboutY ? q.z : q.y;
    lo = std::min(lo, c), hi = std::max(hi, c);
  }
  const double half = Properties(p).A / 2;
  for (int i = 0; i < 200; ++i) {
    const double m = (lo + hi) / 2;
    const Poly above = Clip(p, aboutY, m, true);
    (above.size() > 2 && Properties(above).A > half ? lo : hi) = m;
  }
  const double m = (lo + hi) / 2;
  const Props up = Properties(Clip(p, aboutY, m, true)), dn = Properties(Clip(p, aboutY, m, false));
  return aboutY ? up.A * (up.zc - m) + dn.A * (m - dn.zc) : up.A * (up.yc - m) + dn.A * (m - dn.yc);
}

// Flange thickness at the web face and at the toe of a sloping flange, tf being measured at yRef.
struct Flange {
  double root, toe;
};
Flange Sloped(double tf, double slope, double yRef, double yWeb, double yToe) {
  return {tf + slope * (yRef - yWeb), tf - slope * (yToe - yRef)};
}

// I section, web centreline at y = 0, mid-height at z = 0; tf is measured at yRef from the web
// centreline (b/4 for flanges sloping as DIN 1025-1 and BS 4-1 joists).
Poly ISection(double h, double b, double tw, double tf, double r1, double r2, double slope, double yRef) {
  const Flange f = Sloped(tf, slope, yRef, tw / 2, b / 2);
  const Poly pts = {{-b / 2, -h / 2},
                    {b / 2, -h / 2},
                    {b / 2, -h / 2 + f.toe},
                    {tw / 2, -h / 2 + f.root},
                    {tw / 2, h / 2 - f.root},
                    {b / 2, h / 2 - f.toe},
                    {b / 2, h / 2},
                    {-b / 2, h / 2},
                    {-b / 2, h / 2 - f.toe},
                    {-tw / 2, h / 2 - f.root},
                    {-tw / 2, -h / 2 + f.root},
                    {-b / 2, -h / 2 + f.toe}};
  return Rounded(pts, {0, 0, r2, r1, r1, r2, 0, 0, r2, r1, r1, r2});
}

// Channel, back of the web at y = 0; tf is measured at yRef from the back (b/2 for DIN 1026-1).
Poly Channel(double h, double b, double tw, double tf, double r1, double r2, double slope, double yRef) {
  const Flange f = Sloped(tf, slope, yRef, tw, b);
  const Poly pts = {{0, -h / 2},          {b, -h / 2},        {b, -h / 2 + f.toe}, {tw, -h / 2 + f.root},
                    {tw, h / 2 - f.root}, {b, h / 2 - f.toe}, {b, h / 2},          {0, h / 2}};
  return Rounded(pts, {0, 0, r2, r1, r1, r2, 0, 0});
}

// Torsion constant of a rolled I section (El Darwish and Johnston, as in the section tables):
// two flanges, the web, the two web-to-flange junctions, the four free ends.
double TorsionI(double h, double b, double tw, double tf, double r) {
  const double T = tf, t = tw;
  const double a1 =
      -0.042 + 0.2204 * t / T + 0.1355 * r / T - 0.0865 * r * t / (T * T) - 0.0725 * t * t / (T * T);
  const double d1 = ((T + r) * (T + r) + (r + 0.25 * t) * t) / (2 * r + T);
  return 2.0 / 3 * b * std::pow(T, 3) + (h - 2 * T) * std::pow(t, 3) / 3 + 2 * a1 * std::pow(d1, 4) -
         0.420 * std::pow(T, 4);
}

// The same with sloping flanges: each outstand as a strip whose thickness runs from the root to
// the toe thickness (integral of t^3/3), the junction with the thickness at the web face.
double TorsionSlopedI(double h, double b, double tw, double tf, double r1, double slope, double yRef) {
  const Flange f = Sloped(tf, slope, yRef, tw / 2, b / 2);
  const double out = (b - tw) / 2;
  const double T = f.root, t = tw, r = r1;
  const double a1 =
      -0.042 + 0.2204 * t / T + 0.1355 * r / T - 0.0865 * r * t / (T * T) - 0.0725 * t * t / (T * T);
  const double d1 = ((T + r) * (T + r) + (r + 0.25 * t) * t) / (2 * r + T);
  return 4 * out * (f.root + f.toe) * (f.root * f.root + f.toe * f.toe) / 12 + 2 * tw * std::pow(T, 3) / 3 +
         (h - 2 * T) * std::pow(t, 3) / 3 + 2 * a1 * std::pow(d1, 4) - 0.420 * std::pow(T, 4);
}

// Torsion constant of a channel (section tables' formula for channels).
double TorsionChannel(double h, double b, double tw, double tf, double r) {
  const double T = tf, t = tw;
  const double a3 =
      -0.0908 + 0.2621 * t / T + 0.1231 * r / T - 0.0752 * t * r / (T * T) - 0.0945 * (t / T) * (t / T);
  const double d3 = 2 * ((3 * r + t + T) - std::sqrt(2 * (2 * r + t) * (2 * r + T)));
  return 2.0 / 3 * b * std::pow(T, 3) + (h - 2 * T) * std::pow(t, 3) / 3 + 2 * a3 * std::pow(d3, 4) -
         0.420 * std::pow(T, 4);
}

// Channel: shear centre from the web centreline, e0 = b'^2 h'^2 tf / (4 Iy), and the warping
// constant Iw = h'^2/4 (Iz + A (ys - tw/2)^2 (1 - A h'^2 / (4 Iy))), b' = b - tw/2, h' = h - tf.
double ChannelShearCentre(double h, double b, double tw, double tf, double Iy) {
  const double bp = b - tw / 2, hp = h - tf;
  return bp * bp * hp * hp * tf / (4 * Iy);
}
double ChannelWarping(double h, double tw, double tf, double A, double Iy, double Iz, double ys) {
  const double hp = h - tf;
  return hp * hp / 4 * (Iz + A * (ys - tw / 2) * (ys - tw / 2) * (1 - A * hp * hp / (4 * Iy)));
}

// Flange slope that makes the outline's area equal the published area.
template <class Shape>
double FitSlope(Shape shape, double area) {
  double lo = 0, hi = 0.3;
  for (int i = 0; i < 60; ++i) {
    const double m = (lo + hi) / 2;
    (Properties(shape(m)).A > area ? lo : hi) = m;
  }
  return (lo + hi) / 2;
}

// n significant figures, as the tables print them.
std::string Sig(double v, int n = 4) {
  if (v == 0) return "0";
  char buf[64];
  std::snprintf(buf, sizeof buf, "%.*g", n, v);
  double r = std::strtod(buf, nullptr);
  std::snprintf(buf, sizeof buf, "%.10g", r);
  return buf;
}

double Cell(const Table& t, const Row& r, const char* col) { return ParseCell(r.at(t.Col(col)), r.at(0)); }

void DeriveInp(const std::string& src) {
  Table t = ReadCsv(JoinPath(src, "inp.csv"));
  std::cout << "# inp: INP 425 and 475 from DIN 1025-1 geometry (14 % slope, tf at b/4 from the toe)\n";
  auto geom = [&](const Row& r) {
    const double h = Cell(t, r, "h_mm"), b = Cell(t, r, "b_mm"), tw = Cell(t, r, "tw_mm"),
                 tf = Cell(t, r, "tf_mm");
    return std::array<double, 4>{h, b, tw, tf};
  };
  // Ratio of the published It and Iw to the formulas, for the published neighbours.
  auto ratios = [&](const Row& r) {
    auto [h, b, tw, tf] = geom(r);
    const double r1 = Cell(t, r, "r1_mm"), r2 = Cell(t, r, "r2_mm");
    const Props p = Properties(ISection(h, b, tw, tf, r1, r2, 0.14, b / 4));
    const double it = TorsionSlopedI(h, b, tw, tf, r1, 0.14, b / 4);
    const double iw = p.Iz * (h - tf) * (h - tf) / 4;
    return std::array<double, 2>{Cell(t, r, "It_mm4") / it, Cell(t, r, "Iw_mm6") / iw};
  };
  for (size_t i = 0; i < t.rows.size(); ++i) {
    const Row& r = t.rows[i];
    auto [h, b, tw, tf] = geom(r);
    const double r1 = Cell(t, r, "r1_mm"), r2 = Cell(t, r, "r2_mm");
    const Poly poly = ISection(h, b, tw, tf, r1, r2, 0.14, b / 4);
    const Props p = Properties(poly);
    const double it = TorsionSlopedI(h, b, tw, tf, r1, 0.14, b / 4);
    const double iw = p.Iz * (h - tf) * (h - tf) / 4;
    const bool computed = r.back().rfind("computed", 0) == 0;
    if (!computed) {
      auto q = ratios(r);
      std::cout << "#   " << r[0] << ": published/formula It " << Sig(q[0], 4) << ", Iw " << Sig(q[1], 4)
                << "; A outline " << Sig(p.A, 5) << " published " << Cell(t, r, "A_mm2") << "\n";
      continue;
    }
    auto qa = ratios(t.rows.at(i - 1)), qb = ratios(t.rows.at(i + 1));
    const double kIt = (qa[0] + qb[0]) / 2, kIw = (qa[1] + qb[1]) / 2;
    std::cout << r[0] << ": A outline " << Sig(p.A, 5) << " Iy " << Sig(p.Iy) << " Wpl_y "
              << Sig(PlasticModulus(poly, true)) << " Iz " << Sig(p.Iz) << " Wpl_z "
              << Sig(PlasticModulus(poly, false)) << " It formula " << Sig(it) << " x " << Sig(kIt) << " = "
              << Sig(it * kIt) << " Iw formula " << Sig(iw) << " x " << Sig(kIw) << " = " << Sig(iw * kIw)
              << " Wel_y " << Sig(p.Iy / (h / 2)) << " Wel_z " << Sig(p.Iz / (b / 2)) << "\n";
  }
}

// British joists (J) and tapered channels (CH): geometry and area of EN 10365.
void DeriveBritishTapered(const std::string& src, bool channel) {
  Table t = ReadCsv(JoinPath(src, channel ? "ch.csv" : "j.csv"));
  std::cout << (channel ? "# ch" : "# j") << ": designation,g,h,b,tw,tf,r1,r2,A,S,Iy,Wel_y,Wpl_y,Iz,Wel_z,"
            << "Wpl_z,It,Iw" << (channel ? ",ey,ey_plus_em (e0, em)" : "") << "; fitted slope\n";
  for (const Row& r : t.rows) {
    const double h = Cell(t, r, "h_mm"), b = Cell(t, r, "b_mm"), tw = Cell(t, r, "tw_mm"),
                 tf = Cell(t, r, "tf_mm"), A = Cell(t, r, "A_mm2");
    const double r1 = Cell(t, r, channel ? "r1_mm" : "r_mm");
    const double r2 = Cell(t, r, "r2_mm");
    auto shape = [&](double s) {
      return channel ? Channel(h, b, tw, tf, r1, r2, s, b / 2) : ISection(h, b, tw, tf, r1, r2, s, b / 4);
    };
    const double slope = FitSlope(shape, A);
    const Poly poly = shape(slope);
    const Props p = Properties(poly);
    std::ostringstream o;
    o << r[0] << "," << Sig(p.perimeter / 1000, 3) << "," << Sig(p.Iy) << "," << Sig(p.Iy / (h / 2)) << ","
      << Sig(PlasticModulus(poly, true)) << "," << Sig(p.Iz) << ",";
    if (channel) {
      const double e0 = ChannelShearCentre(h, b, tw, tf, p.Iy);
      const double ys = p.yc;
      const double em = ys - tw / 2 + e0;
      o << Sig(p.Iz / (b - ys)) << "," << Sig(PlasticModulus(poly, false)) << ","
        << Sig(TorsionChannel(h, b, tw, tf, r1)) << "," << Sig(ChannelWarping(h, tw, tf, p.A, p.Iy, p.Iz, ys))
        << "," << Sig(ys, 4) << "," << Sig(ys + em, 4) << "  (e0 " << Sig(e0, 4) << ", em " << Sig(em, 4)
        << ")";
    } else {
      o << Sig(p.Iz / (b / 2)) << "," << Sig(PlasticModulus(poly, false)) << ","
        << Sig(TorsionI(h, b, tw, tf, r1)) << "," << Sig(p.Iz * (h - tf) * (h - tf) / 4);
    }
    o << "  slope " << Sig(std::atan(slope) * 180 / kPi, 3) << " deg";
    std::cout << o.str() << "\n";
  }
}

// A parallel-flange I section from its geometry alone (UBP 305x305x180).
void DeriveUbp(double h, double b, double tw, double tf, double r) {
  const Poly poly = ISection(h, b, tw, tf, r, 0, 0, 0);
  const Props p = Properties(poly);
  std::cout << "# ubp: UBP " << h << "x" << b << ": A " << Sig(p.A) << " g " << Sig(p.A * 7850e-6, 4) << " S "
            << Sig(p.perimeter / 1000, 3) << " Iy " << Sig(p.Iy) << " Wel_y " << Sig(p.Iy / (h / 2))
            << " Wpl_y " << Sig(PlasticModulus(poly, true)) << " Iz " << Sig(p.Iz) << " Wel_z "
            << Sig(p.Iz / (b / 2)) << " Wpl_z " << Sig(PlasticModulus(poly, false)) << " It "
            << Sig(TorsionI(h, b, tw, tf, r)) << " Iw " << Sig(p.Iz * (h - tf) * (h - tf) / 4) << "\n";
}

// Cold formed square hollow section (EN 10219-2): outer corner radius 2t (t <= 6), 2.5t (t <= 10),
// 3t above, inner radius ro - t; It = t^3 p/3 + 2 K Ah with the mean perimeter p, the area Ah
// enclosed by the mid-line, K = 2 Ah t / p.
void DeriveColdFormedSquare(double b, double t) {
  const double ro = t <= 6 ? 2 * t : (t <= 10 ? 2.5 * t : 3 * t), ri = ro - t;
  Poly outer =
      Rounded({{-b / 2, -b / 2}, {b / 2, -b / 2}, {b / 2, b / 2}, {-b / 2, b / 2}}, {ro, ro, ro, ro});
  const double bi = b - 2 * t;
  Poly inner =
      Rounded({{-bi / 2, -bi / 2}, {bi / 2, -bi / 2}, {bi / 2, bi / 2}, {-bi / 2, bi / 2}}, {ri, ri, ri, ri});
  const Props po = Properties(outer), pi = Properties(inner);
  const double A = po.A - pi.A, I = po.Iy - pi.Iy;
  const double wpl = PlasticModulus(outer, true) - PlasticModulus(inner, true);
  const double rc = (ro + ri) / 2;
  const double perim = 4 * (b - t) - 2 * rc * (4 - kPi);
  const double ah = (b - t) * (b - t) - rc * rc * (4 - kPi);
  const double k = 2 * ah * t / perim;
  const double it = t * t * t * perim / 3 + 2 * k * ah;
  std::cout << "# cfshs: CFSHS " << b << "x" << b << "x" << t << ": A " << Sig(A, 3) << " I " << Sig(I, 3)
            << " Wel " << Sig(I / (b / 2), 3) << " Wpl " << Sig(wpl, 3) << " It " << Sig(it, 3) << " mass "
            << Sig(A * 7850e-6, 3) << "\n";
}

// Bulb flat of EN 10067 in the outline the program's figure uses: the flat t x h, on one side a
// bulb of projection c whose end is a half round of radius r at the top edge and whose shoulder
// falls at 30 degrees back to the web face. Only the sizes the published table lacks (HP 60 to 100)
// are computed; the others carry c, r and A of EN 10067 and are left as they stand.
void DeriveBulbFlats(const std::string& src) {
  Table t = ReadCsv(JoinPath(src, "hp.csv"));
  std::cout << "# hp: designation, A (mm2), the sizes computed from the outline\n";
  const int source = t.Col("source");
  for (const Row& r : t.rows) {
    if (r.at(static_cast<size_t>(source)).rfind("EN 10067, published", 0) == 0) continue;
    const double h = Cell(t, r, "h_mm"), tw = Cell(t, r, "t_mm"), c = Cell(t, r, "c_mm"),
                 rr = Cell(t, r, "r_mm");
    const double bulb =
        2 * rr * c - 2 * rr * rr * (1 - kPi / 4) + (c - rr) * (c - rr) * std::tan(kPi / 6) / 2;
    std::cout << r[0] << "," << Sig(tw * h + bulb, 4) << "\n";
  }
}

// Unequal angles: distances of the heel and the leg tips from the principal axes, from the
// centroid distances and tan(alpha). y along the short leg b, z along the long leg h, the heel at
// the origin, u at alpha from y.
void DeriveUnequalAngles(const std::string& src) {
  Table t = ReadCsv(JoinPath(src, "l2.csv"));
  std::cout << "# l2: designation,v_long_tip,v_short_tip,u_heel,u_long_tip\n";
  for (const Row& r : t.rows) {
    const double h = Cell(t, r, "h_mm"), b = Cell(t, r, "b_mm"), ez = Cell(t, r, "ez_mm"),
                 ey = Cell(t, r, "ey_mm");
    const double a = std::atan(Cell(t, r, "tan_alpha")), s = std::sin(a), c = std::cos(a);
    std::cout << r[0] << "," << Sig(ey * s + (h - ez) * c, 3) << "," << Sig((b - ey) * s + ez * c, 3) << ","
              << Sig(ey * c + ez * s, 3) << "," << Sig((h - ez) * s - ey * c, 3) << "\n";
  }
}

void Derive(const std::string& src) {
  DeriveInp(src);
  DeriveBritishTapered(src, false);
  DeriveBritishTapered(src, true);
  // The 305x305 bearing piles are rolled on one set of rolls: h - 2 tf = 277.1 and b - tw = 295.4
  // for every mass; the 180 kg/m size has tw = tf = 24.8.
  DeriveUbp(277.1 + 2 * 24.8, 295.4 + 24.8, 24.8, 24.8, 15.2);
  // The three sizes the cold formed table adds, then two published ones as a check of the method.
  for (auto [b, t] : {std::pair{20.0, 2.0}, {20.0, 2.5}, {25.0, 3.0}, {25.0, 2.0}, {40.0, 2.5}})
    DeriveColdFormedSquare(b, t);
  DeriveBulbFlats(src);
  DeriveUnequalAngles(src);
}

int Usage() {
  std::cerr << "usage: catgen SRC_DIR OUT_DIR\n"
               "       catgen --check SRC_DIR DATA_DIR\n"
               "       catgen --derive SRC_DIR\n";
  return 2;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    std::vector<std::string> args(argv + 1, argv + argc);
    if (args.size() == 2 && args[0] == "--derive") {
      Derive(args[1]);
      return 0;
    }
    if (args.size() == 3 && args[0] == "--check") {
      int differ = 0;
      for (const auto& [name, bytes] : BuildAll(args[1])) {
        std::ifstream in(JoinPath(args[2], name), std::ios::binary);
        std::ostringstream have;
        have << in.rdbuf();
        if (!in || have.str() != bytes) {
          std::cerr << name << " differs from what data/src gives: run catgen data/src data\n";
          ++differ;
        }
      }
      if (differ == 0) std::cout << "all data files match their sources\n";
      return differ ? 1 : 0;
    }
    if (args.size() == 2 && args[0][0] != '-') {
      for (const auto& [name, bytes] : BuildAll(args[0])) {
        std::ofstream out(JoinPath(args[1], name), std::ios::binary | std::ios::trunc);
        out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        if (!out) throw std::runtime_error("cannot write " + JoinPath(args[1], name));
      }
      return 0;
    }
    return Usage();
  } catch (const std::exception& e) {
    std::cerr << "catgen: " << e.what() << "\n";
    return 1;
  }
}
