// The table of detailed results: what the last control left in the shared results, row by row.
// It formats and places, it computes nothing.
#include "results/detail_table.h"

#include <cmath>
#include <string>
#include <utility>

#include "core/format.h"
#include "core/recalculate.h"
#include "core/state.h"

namespace vn {

namespace {

struct Writer {
  DetailTable& t;
  bool comma;
  int row = 1;  // the next row to fill; row 0 is the header

  void Head(const char* name) {
    t.rows[static_cast<size_t>(row)][0] = name;
    t.bold.insert(row);
    ++row;
  }
  void Text(const char* name, std::string value) {
    t.rows[static_cast<size_t>(row)][0] = name;
    t.rows[static_cast<size_t>(row)][1] = std::move(value);
    ++row;
  }
  void Value(const char* name, double v, const char* format, const char* unit = "",
             const char* reference = "") {
    DetailRow& r = t.rows[static_cast<size_t>(row)];
    r[0] = name;
    r[1] = std::isnan(v) ? std::string() : FormatNumber(v, format, comma);  // not computed: blank
    r[2] = unit;
    r[3] = reference;
    ++row;
  }
};

}  // namespace

DetailTable MakeDetailTable(const State& s) {
  DetailTable t;
  t.rows.assign(kDetailRows, DetailRow{});
  t.rows[0] = {" Parameter", "Value", "unit", " Reference"};
  // After a failed run the table holds the message, not the values of an earlier run.
  if (!s.resultsValid) {
    t.rows[1][0] = kCalcErrorText;
    return t;
  }

  const Checks& c = s.checks;
  const MomentShape& shape = s.analysis.ShapeY;
  const bool method1 = s.project.interactionMethod == 1;
  const char* method = method1 ? " Method 1" : " Method 2";
  Writer w{t, s.decimalComma};

  // The shape of the My diagram, as the LT and Cm factors took it.
  w.Head(" Moment shape");
  w.Text(" My", shape.Curved != False ? "q-load" : "P-load");
  w.Text(" My", shape.Linear != False ? "Line" : "Curve");

  // Mcr and Mcr0 are kept in Nmm and shown in kNm.
  w.Head(" Lateral Buckling Factors");
  w.Value(" Mcr", c.Mcr / 1000000.0, "0.000", " kNm");
  // C1 belongs to Mcr: without a lateral torsional run it is blank like Mcr.
  w.Value(" C1", std::isnan(c.Mcr) ? c.Mcr : c.C1, "0.000", "", " (Mcr)");
  w.Value(" lamdaLt", c.lamdaLT, "#0.000", "", " Ch 6.3.2");
  w.Value(" Mcr0", c.Mcr0 / 1000000.0, "#0.000", " kNm");
  w.Value(" lamda0", c.lamda0, "#0.000");
  w.Value(" XLt", c.XLt, "#0.000", "", " Ch 6.3.2.3");
  w.Value(" XLtmod", c.xLT, "#0.000", "", " Ch 6.3.2.3");
  w.Value(" kc", c.kc, "#0.000", "", " Ch 6.3.2.3");
  w.Value(" f", c.fLT, "#0.000", "", "  ");

  w.Head(" Buckling Factors");
  w.Value(" Ncr,y", c.Ncry, "#0.000", " kN", " Ch 6.3.1.2");
  w.Value(" lamday", c.lamday, "#0.000", "", " Ch 6.3.1.2");
  w.Value(" Xy", c.chiy, "#0.000", "", " Ch 6.3.1.2");
  w.Value(" Ncr,z", c.Ncrz, "#0.000", " kN", " Ch 6.3.1.2");
  w.Value(" lamdaz", c.lamdaz, "#0.000", "", " Ch 6.3.1.2");
  w.Value(" Xz", c.chiz, "#0.000", "", " Ch 6.3.1.2");
  w.Value(" NcrT", c.NcrT, "#0.000", " kN");
  w.Value(" NcrTF", c.NcrTF, "#0.000", " kN");

  w.Head(" Interaction Factors");
  w.Value(" kyy", c.kyy, "#0.000", "", method);
  w.Value(" kyz", c.kyz, "#0.000", "", method);
  w.Value(" kzz", c.kzz, "#0.000", "", method);
  w.Value(" kzy", c.kzy, "#0.000", "", method);
  w.Value(" Cmy", c.Cmy, "#0.000", "", method);
  w.Value(" Cmy0", c.Cmy0, "#0.000", "", method);
  w.Value(" Cmz", c.Cmz, "#0.000", "", method);
  w.Value(" CmLt", c.CmLt, "#0.000", "", method);
  if (method1) {
    const std::pair<const char*, double> annexA[] = {
        {" Cyy", c.Cyy}, {" Cyz", c.Cyz}, {" Czy", c.Czy}, {" Czz", c.Czz}, {" aLt", c.aLt},
        {" bLt", c.bLt}, {" cLt", c.cLt}, {" dLt", c.dLt}, {" eLt", c.eLt}, {" npl", c.npl},
        {" uy", c.uy},   {" uz", c.uz},   {" wy", c.wy},   {" wz", c.wz},   {" ey", c.ey}};
    for (const auto& [name, v] : annexA) w.Value(name, v, "#0.000", "", " Method 1");
  }

  w.Head(" Shear area");
  w.Value(" Az", s.section.Avz, "#0 ", " mm2");
  w.Value(" Ay", s.section.Avy, "#0 ", " mm2");
  w.Head(" Other");
  // The method of Mcr, where the eigenvalue analysis was chosen and the LT control ran.
  if (s.project.ltbMcrMethod == 1 && !std::isnan(c.Mcr)) {
    if (c.McrByEigen != 0) {
      w.Text(" Mcr method", "eigenvalue analysis");
      w.Value(" Mcr factor", c.McrFactor, "#0.000", "", " Mcr / max|My,Ed|");
    } else {
      DetailRow& r = t.rows[static_cast<size_t>(w.row)];
      w.Text(" Mcr method", "C factors");
      r[3] = " eigenvalue analysis: " + c.McrNote;
    }
  }
  return t;
}

void BuildDetailTable(State& s) {
  DetailTable t = MakeDetailTable(s);
  s.view.detailGrid = std::move(t.rows);
  s.view.detailGridBold = std::move(t.bold);
}

}  // namespace vn
