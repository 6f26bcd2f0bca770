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
    case Dims::Inp: break;  // no radius in the table
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
  rA = 1u << 0,
  rIx = 1u << 1,
  rIy = 1u << 2,
  rIz = 1u << 3,
  rWely = 1u << 4,
  rWelz = 1u << 5,
  rWply = 1u << 6,
  rWplz = 1u << 7,
  rIw = 1u << 8,
  rG = 1u << 9,
  rS = 1u << 10,
  rAeff = 1u << 11,
  rWeffy = 1u << 12,
  rWeffz = 1u << 13,
  rClass = 1u << 14,
  rNt = 1u << 15,
  rNc = 1u << 16,
  rVy = 1u << 17,
  rVz = 1u << 18,
  rMy = 1u << 19,
  rMz = 1u << 20,
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
    out.s.view.sectionValues.push_back(
        {"Cross Section Class: ", ClassText(c, out.s.decimalComma), "(N/My/Mz)"});
  line(rNt, "Nt,Rd =", c.NtRd, "#0.0", " kN");
  line(rNc, "Nc,Rd =", c.NcRd, "#0.0", " kN");
  line(rVy, "Vc,y,Rd =", c.VbyRd, "#0.0", " kN");
  line(rVz, "Vc,z,Rd =", c.VbzRd, "#0.0", " kN");
  line(rMy, "My,Rd =", c.MyRdClass, "#0.0", " kNm");
  line(rMz, "Mz,Rd =", c.MzRdClass, "#0.0", " kNm");
}

// The single symmetric I: the moduli of both fibres, and the class, effective modulus and moment
// resistance for each flange in compression.
void SingleSymBlock(Block& out, const Section& c) {
  const bool comma = out.s.decimalComma;
  out.Line("A =", c.A, "##0", " mm2");
  out.Line("Ix =", c.Ix, "0.000E+0", " mm4");
  out.Line("Iy =", c.Iy, "0.000E+0", " mm4");
  out.Line("Iz =", c.Iz, "0.000E+0", " mm4");
  out.Line("ez =", c.ez, "#0.0", " mm");
  out.Line("Wel,yt =", c.Wyt, "0.000E+0", " mm3");
  out.Line("Wel,yb =", c.Wyb, "0.000E+0", " mm3");
  out.Line("Wel,z =", c.Welz, "0.000E+0", " mm3");
  out.Line("Wpl,y =", c.Wply, "0.000E+0", " mm3");
  out.Line("Wpl,z =", c.Wplz, "0.000E+0", " mm3");
  out.Line("Iw =", c.Iw, "0.000E+0", " mm6");
  out.Line("g =", c.g, "#0.0", " kg/m");
  out.Line("S =", c.S, "#0.000", " m2/m");
  out.Line("Aeff =", c.Aeff, "##0", " mm2");
  out.Line("Weff,z =", c.Weffz, "0.000E+0", " mm3");
  out.s.view.sectionValues.push_back(
      {"Cross Section Class: ",
       FormatNumber(c.classN, "#0", comma) + "/" + FormatNumber(c.classMz, "#0", comma), "(N/Mz)"});
  out.Line("Nt,Rd =", c.NtRd, "#0.0", " kN");
  out.Line("Nc,Rd =", c.NcRd, "#0.0", " kN");
  out.Line("Vc,y,Rd =", c.VbyRd, "#0.0", " kN");
  out.Line("Vc,z,Rd =", c.VbzRd, "#0.0", " kN");
  out.Line("Mz,Rd =", c.MzRdClass, "#0.0", " kNm");
  auto flange = [&](const char* title, double cls, double Weff, double MyRd) {
    out.s.view.sectionValues.push_back({title, "", ""});
    out.s.view.sectionValues.push_back({"Cross Section Class: ", FormatNumber(cls, "#0", comma), "(My)"});
    out.Line("Weff,y =", Weff, "0.000E+0", " mm3");
    out.Line("My,Rd =", MyRd, "#0.0", " kNm");
  };
  flange("Top flange in compression", c.classMyPos, c.Weffy1, c.MyRdPos);
  flange("Bottom flange in compression", c.classMyNeg, c.Weffy2, c.MyRdNeg);
}

// The girders loaded in their web plane (HSQ, the box with unequal flanges, the plates with a
// stiffener): the moduli of both fibres, then for each plate in compression its class (an upgraded
// class 3 web shows as "3/2"), its effective moduli and the moment resistance; the shear.
void PlatedBlock(Block& out, const Section& c, bool plate) {
  const bool comma = out.s.decimalComma;
  out.Line("A =", c.A, "##0", " mm2");
  out.Line("Iy =", c.Iy, "0.000E+0", " mm4");
  out.Line("ez =", c.ez, "#0.0", " mm");
  out.Line("Wel,yt =", c.Wyt, "0.000E+0", " mm3");
  out.Line("Wel,yb =", c.Wyb, "0.000E+0", " mm3");
  out.Line("Wpl,y =", c.Wply, "0.000E+0", " mm3");
  out.Line("g =", c.g, "#0.0", " kg/m");
  out.Line("S =", c.S, "#0.000", " m2/m");
  auto classText = [&](double cls) {
    return cls == 23 ? std::string("3/2") : FormatNumber(cls, "#0", comma);
  };
  auto side = [&](const char* title, double cls, double Wt, double Wb, double MyRd) {
    out.s.view.sectionValues.push_back({title, "", ""});
    out.s.view.sectionValues.push_back({"Cross Section Class: ", classText(cls), "(My)"});
    out.Line("Weff,yt =", Wt, "0.000E+0", " mm3");
    out.Line("Weff,yb =", Wb, "0.000E+0", " mm3");
    out.Line("My,Rd =", MyRd, "#0.0", " kNm");
  };
  side(plate ? "Plate in compression" : "Top flange in compression", c.classMyPos, c.WeffyTop, c.WeffyBot,
       c.MyRdPos);
  side(plate ? "Stiffener in compression" : "Bottom flange in compression", c.classMyNeg, c.WeffyTop2,
       c.WeffyBot2, c.MyRdNeg);
  out.Line("Vc,z,Rd =", c.VbzRd, "#0.0", " kN");
}

// The angles: legs, thickness and radius, the centroid, the corner points and the principal axes,
// then the elastic properties and resistances with the least values about u and v.
void AngleBlocks(Block& out, const Section& c) {
  out.Line("h =", c.h, "#0", " mm");
  out.Line("b =", c.b, "#0", " mm");
  out.Line("t =", c.tw, "#0.0", " mm");
  out.Line("r =", c.r, "#0.0", " mm");
  out.Line("ez =", c.ez, "#0.0", " mm");
  out.Line("ey =", c.eyc, "#0.0", " mm");
  out.Line("u1 =", c.uPt[1], "#0.0", " mm");
  out.Line("u2 =", c.uPt[2], "#0.0", " mm");
  out.Line("v1 =", c.vPt[1], "#0.0", " mm");
  out.Line("v3 =", c.vPt[3], "#0.0", " mm");
  out.Line("alfa =", c.alfa, "#0.0", " deg");
  out.Line("A =", c.A, "##0", " mm2");
  out.Line("Ix =", c.Ix, "0.000E+0", " mm4");
  out.Line("Iy =", c.Iy, "0.000E+0", " mm4");
  out.Line("Iz =", c.Iz, "0.000E+0", " mm4");
  out.Line("Iu =", c.Iu, "0.000E+0", " mm4");
  out.Line("Iv =", c.Iv, "0.000E+0", " mm4");
  out.Line("Wel,y =", c.Wely, "0.000E+0", " mm3");
  out.Line("Wel,z =", c.Welz, "0.000E+0", " mm3");
  out.Line("Wel,u =", c.Wumin, "0.000E+0", " mm3 (min)");
  out.Line("Wel,v =", c.Wvmin, "0.000E+0", " mm3 (min)");
  out.Line("Iw =", c.Iw, "0.000E+0", " mm6");
  out.Line("g =", c.g, "#0.0", " kg/m");
  out.Line("S =", c.S, "#0.000", " m2/m");
  // Only a class 4 angle has an effective area.
  if (c.classN == 4) out.Line("Aeff =", c.Aeff, "##0", " mm2");
  out.s.view.sectionValues.push_back(
      {"Cross Section Class: ", ClassText(c, out.s.decimalComma), "(N/My/Mz)"});
  out.Line("Nt,Rd =", c.NtRd, "#0.0", " kN");
  out.Line("Nc,Rd =", c.NcRd, "#0.0", " kN");
  out.Line("Vc,y,Rd =", c.VbyRd, "#0.0", " kN");
  out.Line("Vc,z,Rd =", c.VbzRd, "#0.0", " kN");
  out.Line("My,Rd =", c.MelyAngle, "#0.0", " kNm");
  out.Line("Mz,Rd =", c.MelzAngle, "#0.0", " kNm");
  out.Line("Mu,Rd =", c.MuRdMin, "#0.0", " kNm (min)");
  out.Line("Mv,Rd =", c.MvRdMin, "#0.0", " kNm (min)");
}

}  // namespace

void ShowSectionValues(State& s) {
  s.view.sectionValues.clear();
  if (s.headless) return;  // no dialog to show them in
  Block out{s};
  const Section& c = s.section;
  switch (s.project.ProfileType) {
    case 1:
    case 2:
    case 3:
    case 4: DimensionBlock(out, c, Dims::RolledI, false); break;
    case 15: DimensionBlock(out, c, Dims::Inp, false); break;
    case 5: DimensionBlock(out, c, Dims::Upe, false); break;
    case 16: DimensionBlock(out, c, Dims::Unp, false); break;
    case 101:
    case 102: DimensionBlock(out, c, Dims::British, false); break;
    case 103: DimensionBlock(out, c, Dims::BritishChannel, s.project.subFamily103 != 1); break;
    case 6:
    case 7:
    case 8:
    case 9:
      // One wall thickness, and the corner radius that follows from it.
      out.Line("h =", c.h, "#0", " mm");
      out.Line("b =", c.b, "#0", " mm");
      out.Line("t =", c.tw, "#0.0", " mm");
      out.Line("r =", c.r, "#0.0", " mm");
      if (s.project.ProfileType == 8 || s.project.ProfileType == 9)
        s.view.sectionValues.back().tip = " r = 2*t ; t<=6 \n r = 2.5*t ; 6<t<=10 \n r = 3*t ; t>10 ";
      break;
    case 21:
    case 23: break;  // the typed dimensions stand in the dialog's fields
    case 22: SingleSymBlock(out, c); return;
    case 10:
    case 11: AngleBlocks(out, c); return;
    case 26:
      // An axial member: no moment or shear resistance of its own.
      out.Line("h =", c.h, "#0", " mm");
      out.Line("b =", c.b, "#0", " mm");
      out.Line("tw =", c.tw, "#0.0", " mm");
      out.Line("tf =", c.tf, "#0.0", " mm");
      PropertyBlock(
          out, c, rA | rIx | rIy | rIz | rWely | rWelz | rWply | rIw | rG | rS | rAeff | rClass | rNt | rNc);
      return;
    case 28:
      // Bending about y and shear along z only.
      out.Line("h =", c.h, "#0", " mm");
      out.Line("t =", c.tw, "#0.0", " mm");
      PropertyBlock(
          out, c,
          rA | rIx | rIy | rIz | rWely | rWelz | rWply | rWplz | rG | rS | rClass | rNt | rNc | rVz | rMy);
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
    case 24:
    case 25:
    case 27: PlatedBlock(out, c, false); return;
    case 51:
    case 52:
    case 53:
    case 54:
    case 56: PlatedBlock(out, c, true); return;
    default: return;  // the other families show their own blocks
  }
  PropertyBlock(out, c);
}

}  // namespace vn
