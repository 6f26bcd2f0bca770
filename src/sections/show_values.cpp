// The values of the open section dialog: the dimension block and the property block of the family,
// each line a label, the value in the family's format and the unit.
#include "core/format.h"
#include "core/pipeline.h"
#include "core/state.h"

namespace vn {

namespace {

struct Block {
  State& s;
  void Line(const char* label, double value, const char* format, const char* unit) {
    s.view.sectionValues.push_back({label, FormatNumber(value, format, s.decimalComma), unit});
  }
};

// The frame "Dimension && Weight": whole millimetres as "#0", values with a decimal as "#0.0".
enum class Dims { RolledI, Inp, Upe, Unp, British, BritishChannel };

void DimensionBlock(Block& out, const Section& c, Dims kind, bool toeRadius) {
  const bool decimals = kind == Dims::British || kind == Dims::BritishChannel;
  const char* whole = decimals ? "#0.0" : "#0";
  out.Line("h =", c.h, whole, " mm");
  out.Line("b =", c.b, whole, " mm");
  out.Line("tf =", c.tf, "#0.0", " mm");
  out.Line("tw =", c.tw, "#0.0", " mm");
  switch (kind) {
    case Dims::Inp:
      break;  // no radius in the table
    case Dims::Unp:
      out.Line("r1 =", c.r1, "#0.0", " mm");
      out.Line("r2 =", c.r2, "#0.0", " mm");
      break;
    default:
      out.Line("r =", c.r, whole, " mm");
      if (toeRadius) out.Line("r2 =", c.r2, "#0.0", " mm");
  }
}

std::string ClassText(const Section& c, bool comma) {
  return FormatNumber(c.classN, "#0", comma) + "/" + FormatNumber(c.classMy, "#0", comma) + "/" +
         FormatNumber(c.classMz, "#0", comma);
}

// The rows of the frames "Section property" and "Capacity", in their order.
enum Row : unsigned {
  rA = 1u << 0, rIx = 1u << 1, rIy = 1u << 2, rIz = 1u << 3, rWely = 1u << 4, rWelz = 1u << 5,
  rWply = 1u << 6, rWplz = 1u << 7, rIw = 1u << 8, rG = 1u << 9, rS = 1u << 10, rAeff = 1u << 11,
  rWeffy = 1u << 12, rWeffz = 1u << 13, rClass = 1u << 14, rNt = 1u << 15, rNc = 1u << 16,
  rVy = 1u << 17, rVz = 1u << 18, rMy = 1u << 19, rMz = 1u << 20,
  rAll = (1u << 21) - 1
};

// The frames "Section property" and "Capacity": all rows for the I-like families and the channels,
// the rows that apply for the smaller families.
void PropertyBlock(Block& out, const Section& c, unsigned rows = rAll) {
  auto line = [&](Row r, const char* label, double value, const char* format, const char* unit) {
    if (rows & r) out.Line(label, value, format, unit);
  };
  line(rA, "A =", c.A, "##0", " mm2");
  line(rIx, "Ix =", c.Ix, "0.000E+0", " mm4");
  line(rIy, "Iy =", c.Iy, "0.000E+0", " mm4");
  line(rIz, "Iz =", c.Iz, "0.000E+0", " mm4");
  line(rWely, "Wel,y =", c.Wely, "0.000E+0", " mm3");
  line(rWelz, "Wel,z =", c.Welz, "0.000E+0", " mm3");
  line(rWply, "Wpl,y =", c.Wply, "0.000E+0", " mm3");
  line(rWplz, "Wpl,z =", c.Wplz, "0.000E+0", " mm3");
  line(rIw, "Iw =", c.Iw, "0.000E+0", " mm6");
  line(rG, "g =", c.g, "#0.0", " kg/m");
  line(rS, "S =", c.S, "#0.000", " m2/m");
  line(rAeff, "Aeff =", c.Aeff, "##0", " mm2");
  line(rWeffy, "Weff,y =", c.Weffy, "0.000E+0", " mm3");
  line(rWeffz, "Weff,z =", c.Weffz, "0.000E+0", " mm3");
  if (rows & rClass)
    out.s.view.sectionValues.push_back({"Cross Section Class: ", ClassText(c, out.s.decimalComma), "(N/My/Mz)"});
  line(rNt, "Nt,Rd =", c.NtRd, "#0.0", " kN");
  line(rNc, "Nc,Rd =", c.NcRd, "#0.0", " kN");
  line(rVy, "Vc,y,Rd =", c.VbyRd, "#0.0", " kN");
  line(rVz, "Vc,z,Rd =", c.VbzRd, "#0.0", " kN");
  line(rMy, "My,Rd =", c.MyRdClass, "#0.0", " kNm");
  line(rMz, "Mz,Rd =", c.MzRdClass, "#0.0", " kNm");
}

}  // namespace

void ShowSectionValues(State& s) {
  s.view.sectionValues.clear();
  Block out{s};
  const Section& c = s.section;
  switch (s.project.ProfileType) {
    case 1: case 2: case 3: case 4:
      DimensionBlock(out, c, Dims::RolledI, false);
      break;
    case 15:
      DimensionBlock(out, c, Dims::Inp, false);
      break;
    case 5:
      DimensionBlock(out, c, Dims::Upe, false);
      break;
    case 16:
      DimensionBlock(out, c, Dims::Unp, false);
      break;
    case 101: case 102:
      DimensionBlock(out, c, Dims::British, false);
      break;
    case 103:
      DimensionBlock(out, c, Dims::BritishChannel, s.project.subFamily103 != 1);
      break;
    case 6: case 7: case 8: case 9:
      // One wall thickness, and the corner radius that follows from it.
      out.Line("h =", c.h, "#0", " mm");
      out.Line("b =", c.b, "#0", " mm");
      out.Line("t =", c.tw, "#0.0", " mm");
      out.Line("r =", c.r, "#0.0", " mm");
      break;
    case 26:
      // An axial member: no moment or shear resistance of its own.
      out.Line("h =", c.h, "#0", " mm");
      out.Line("b =", c.b, "#0", " mm");
      out.Line("tw =", c.tw, "#0.0", " mm");
      out.Line("tf =", c.tf, "#0.0", " mm");
      PropertyBlock(out, c, rA | rIx | rIy | rIz | rWely | rWelz | rWply | rIw | rG | rS | rAeff |
                                rClass | rNt | rNc);
      return;
    case 28:
      // Bending about y and shear along z only.
      out.Line("h =", c.h, "#0", " mm");
      out.Line("t =", c.tw, "#0.0", " mm");
      PropertyBlock(out, c, rA | rIx | rIy | rIz | rWely | rWelz | rWply | rWplz | rG | rS |
                                rClass | rNt | rNc | rVz | rMy);
      return;
    case 31:
      out.Line("d =", c.d, "#0.0", " mm");
      out.Line("t =", c.tw, "#0.0", " mm");
      PropertyBlock(out, c, rAll & ~(rIw | rAeff | rWeffy | rWeffz));
      return;
    case 41:
      // The properties are the typed fields themselves.
      PropertyBlock(out, c, rG | rClass | rNt | rNc | rVy | rVz | rMy | rMz);
      return;
    default:
      return;  // the other families show their own blocks
  }
  PropertyBlock(out, c);
}

}  // namespace vn
