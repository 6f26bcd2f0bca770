// The interaction factors kyy, kyz, kzy, kzz of 6.3.3 (equations 6.61 and 6.62): Method 1 by
// Annex A and Method 2 by Annex B, with their equivalent moment factors from the moment diagram
// (beam mode) or from the two end moments (end force mode). Computed once per run.
//
// Settled departures from the plain text of the standard, each wanted:
//  - Method 2 takes the class about y for all four factors, kzz and kyz included;
//  - the rule of Table B.2 for lamdaz < 0.4 is left out: kzy has one formula at every slenderness;
//  - in Method 2 the LT switch, not the section's torsional stiffness, chooses Table B.1 or B.2;
//  - the test of Method 1 on lamda0 takes the critical moment for uniform moment with C1 from 1.05
//    at k = 0.5 to 1 at k = 1, not the real moment shape;
//  - npl divides by NcRd, with gammaM0;
//  - when nothing acts in one plane, Method 2 reads that plane's shape flags from the other one;
//  - in end force mode a low Cmz (below 0.4) puts 0.4 into Cmy and keeps its own low value;
//  - CmLT of Method 1 reads Ncr,TF where Table A.1 has Ncr,T;
//  - alpha,s and alpha,h about y take the midspan moment, not the span's extreme one (Table B.3);
//  - a sway member (the cantilever) takes Cm from its diagram, not 0.9 (Table B.3, note).
// The strict rules (StrictRules) replace those of them that the standard settles otherwise.
#include <algorithm>
#include <cmath>

#include "checks/buckling.h"
#include "core/state.h"
#include "design/design_basis.h"

namespace vn {

namespace {

// The families of Method 2: I sections and hollow sections take different rows for kzz.
bool MethodTwoISection(int type) {
  return (type >= 1 && type <= 5) || type == 15 || type == 16 || type == 21 || type == 41 ||
         (type >= 101 && type <= 103);
}
bool MethodTwoHollow(int type) { return (type >= 6 && type <= 9) || type == 23 || type == 31; }

// Cm0 of Table A.2 for one axis.
double Cm0OfDiagram(const State& s, const FivePoints& pt, const MomentShape& sh, double Ncr, Single I,
                    double deflection, double Mmax) {
  const Project& p = s.project;
  const double n = Div(s.analysis.NEd, Ncr);
  if (pt.M1 == 0 && pt.M5 == 0) return sh.Curved != 0 ? 1 + 0.03 * n : 1 - 0.18 * n;
  const double psi = sh.Psi;
  if (sh.Linear != 0) return 0.79 + 0.21 * psi + 0.36 * (psi - 0.33) * n;
  const double L = 1000 * static_cast<double>(p.L);
  return 1 + (Div(PiSingle * PiSingle * static_cast<double>(p.E) * I * std::fabs(deflection),
                  L * L * Mmax * 1000000) -
              1) *
                 n;
}

double Cm0OfEnds(const State& s, const MomentShape& sh, double Ncr) {
  const double psi = sh.Psi;
  return 0.79 + 0.21 * psi + 0.36 * (psi - 0.33) * Div(s.analysis.NEd, Ncr);
}

// Cm of Table B.3 for one axis, from the shape flags in force and the axis' own ratios.
double CmOfTableB3(bool curved, bool midDominates, bool linear, const MomentShape& own) {
  const double psi = own.Psi;
  double Cm;
  if (!midDominates) {
    const double aS = own.AlphaS;
    if (aS >= 0)
      Cm = 0.2 + 0.8 * aS;
    else if (psi >= 0)
      Cm = curved ? 0.1 - 0.8 * aS : -0.8 * aS;
    else
      Cm = curved ? 0.1 * (1 - psi) - 0.8 * aS : 0.2 * (-psi) - 0.8 * aS;
    if (Cm < 0.4) Cm = 0.4;
  } else {
    const double aH = own.AlphaH;
    if (aH < 0 && psi < 0)
      Cm = curved ? 0.95 + 0.05 * aH * (1 + 2 * psi) : 0.9 + 0.1 * aH * (1 + 2 * psi);
    else
      Cm = curved ? 0.95 + 0.05 * aH : 0.9 + 0.1 * aH;
  }
  if (linear) {
    Cm = 0.6 + 0.4 * psi;
    if (Cm < 0.4) Cm = 0.4;
  }
  return Cm;
}

}  // namespace

void LoadPlanes(State& s) {
  const Project& p = s.project;
  const Analysis& an = s.analysis;
  Checks& k = s.checks;
  bool y = false, z = false;
  if (p.AnalysisMode == 1) {
    for (int i = 0; i <= 50; ++i) {
      if (an.MyGrid[i] != 0 || an.VzGrid[i] != 0) z = true;
      if (an.MzGrid[i] != 0 || an.VyGrid[i] != 0) y = true;
    }
  } else {
    y = p.Mz12[1] != 0 || p.Mz12[2] != 0 || p.Vy12[1] != 0 || p.Vy12[2] != 0;
    z = p.My12[1] != 0 || p.My12[2] != 0 || p.Vz12[1] != 0 || p.Vz12[2] != 0;
  }
  k.hasLoadY = ToBoolean(y);
  k.hasLoadZ = ToBoolean(z);
}

// ---- Method 1 ----

void EquivalentMomentA(State& s) {
  const Analysis& an = s.analysis;
  const Section& c = s.section;
  Checks& k = s.checks;
  k.Cmy0 = Cm0OfDiagram(s, an.PointsY, an.ShapeY, k.Ncry, c.Iy, an.dzAbs, an.MyAbs);
  k.Cmz0 = Cm0OfDiagram(s, an.PointsZ, an.ShapeZ, k.Ncrz, c.Iz, an.dyAbs, an.MzGov);
}

void EquivalentMomentAEnd(State& s) {
  Checks& k = s.checks;
  k.Cmy0 = Cm0OfEnds(s, s.analysis.ShapeY, k.Ncry);
  k.Cmz0 = Cm0OfEnds(s, s.analysis.ShapeZ, k.Ncrz);
}

void FactorsMethod1(State& s) {
  Project& p = s.project;
  const Section& c = s.section;
  const Analysis& an = s.analysis;
  Checks& k = s.checks;
  const double NEd = an.NEd;

  k.aLt = 1 - Div(c.Ix, c.Iy);
  if (k.aLt < 0) k.aLt = 0;
  if (NEd != 0) {
    const double W = c.classMy <= 3 ? static_cast<double>(c.Wely) : c.Weffy;
    k.ey = Div(Div(1000 * std::fabs(an.MyGov) * c.A, NEd), W);
  } else {
    k.ey = 0;
  }
  k.C1 = Div(1, k.kc * k.kc);
  if (c.ltbRelevant == 0) k.lamda0 = 0;

  // Beyond a critical load the amplification has no meaning: the run ends in the message.
  // A tension passes.
  // Under the strict rules CmLT reads Ncr,T (Annex A, Table A.1), and passing it ends the run too.
  const bool strict = StrictRules(s);
  if (NEd > k.NcrTF || NEd > k.Ncry || NEd > k.Ncrz || (strict && NEd > k.NcrT)) {
    p.calcError = -1;
    return;
  }

  const double nz = 1 - Div(NEd, k.Ncrz), nTF = 1 - Div(NEd, k.NcrTF);
  if (k.lamda0 <= 0.2 * Sqrt(k.C1) * Pow(nz * nTF, 0.25)) {
    k.Cmy = k.Cmy0;
    k.Cmz = k.Cmz0;
    k.CmLt = 1;
  } else {
    const double r = Sqrt(k.ey) * k.aLt;
    k.Cmy = k.Cmy0 + (1 - k.Cmy0) * Div(r, 1 + r);
    k.Cmz = k.Cmz0;
    // CmLT = Cmy^2 aLT / sqrt((1 - NEd/Ncr,z)(1 - NEd/Ncr,T)) in Table A.1. The program's own method
    // reads Ncr,TF, which a double symmetric section doesn't have (1E+25), so that its CmLT comes
    // out low; the strict rules take the torsional critical force Ncr,T.
    const double nT = strict ? 1 - Div(NEd, k.NcrT) : nTF;
    k.CmLt = Div(k.Cmy * k.Cmy * k.aLt, Sqrt(nz * nT));
    if (k.CmLt < 1) k.CmLt = 1;
  }

  k.uy = Div(1 - Div(NEd, k.Ncry), 1 - k.chiy * Div(NEd, k.Ncry));
  k.uz = Div(1 - Div(NEd, k.Ncrz), 1 - k.chiz * Div(NEd, k.Ncrz));
  k.wy = std::min(Div(c.Wply, c.Wely), 1.5);
  k.wz = std::min(Div(c.Wplz, c.Welz), 1.5);
  k.npl = Div(NEd, c.NcRd);

  const double lm = k.lamdaMax, m = std::fabs(an.MyGov), mz = an.MzGov;
  const double lamda0 = k.lamda0, lz4 = Pow(k.lamdaz, 4);
  const double Cmy2 = k.Cmy * k.Cmy, Cmz2 = k.Cmz * k.Cmz;
  const double wy = k.wy, wz = k.wz, npl = k.npl, aLt = k.aLt;

  // The C factors belong to the plastic forms. A section without plastic moduli (an angle) is
  // always elastic and takes the factors of class 3, which do not read them.
  if (c.Wply == 0 || c.Wplz == 0) {
    k.bLt = k.cLt = k.dLt = k.eLt = 0;
    k.Cyy = k.Cyz = k.Czy = k.Czz = 0;
  } else {
    const double ratioY = Div(c.Wely, c.Wply), ratioZ = Div(c.Welz, c.Wplz);

    k.bLt = 0.5 * aLt * lamda0 * lamda0 * Div(Div(m, k.xLT), c.MplyRd) * Div(mz, c.MplzRd);
    const double py = Div(1.6, wy) * Cmy2, pz = Div(1.6, wz) * Cmz2;
    k.Cyy = 1 + (wy - 1) * ((2 - py * lm - py * lm * lm) * npl - k.bLt);
    k.Cyy = std::max(k.Cyy, ratioY);

    k.cLt = Div(10 * aLt * lamda0 * lamda0, 5 + lz4) * Div(m, k.Cmy * k.xLT * c.MplyRd);
    k.Cyz = 1 + (wz - 1) * ((2 - Div(14 * Cmz2 * lm * lm, Pow(wz, 5))) * npl - k.cLt);
    k.Cyz = std::max(k.Cyz, 0.6 * Sqrt(Div(wz, wy)) * ratioZ);

    k.dLt = Div(2 * aLt * lamda0, 0.1 + lz4) * Div(m, k.Cmy * k.xLT * c.MplyRd) * Div(mz, k.Cmz * c.MplzRd);
    k.Czy = 1 + (wy - 1) * ((2 - Div(14 * Cmy2 * lm * lm, Pow(wy, 5))) * npl - k.dLt);
    k.Czy = std::max(k.Czy, 0.6 * Sqrt(Div(wy, wz)) * ratioY);

    k.eLt = Div(1.7 * aLt * lamda0, 0.1 + lz4) * Div(m, k.Cmy * k.xLT * c.MplyRd);
    k.Czz = 1 + (wz - 1) * (2 - pz * lm - pz * lm * lm - k.eLt) * npl;
    k.Czz = std::max(k.Czz, ratioZ);
  }

  const double ay = 1 - Div(NEd, k.Ncry), az = 1 - Div(NEd, k.Ncrz);
  if (c.classMy > 2) {
    k.kyy = Div(k.Cmy * k.CmLt * k.uy, ay);
    k.kzy = Div(k.Cmy * k.CmLt * k.uz, ay);
  } else {
    k.kyy = Div(Div(k.Cmy * k.CmLt * k.uy, ay), k.Cyy);
    k.kzy = Div(Div(k.Cmy * k.CmLt * k.uz, ay), k.Czy) * 0.6 * Sqrt(Div(wy, wz));
  }
  if (c.classMz > 2) {
    k.kyz = Div(k.Cmz * k.uy, az);
    k.kzz = Div(k.Cmz * k.uz, az);
  } else {
    k.kyz = Div(Div(k.Cmz * k.uy, az), k.Cyz) * 0.6 * Sqrt(Div(wz, wy));
    k.kzz = Div(Div(k.Cmz * k.uz, az), k.Czz);
  }
}

// ---- The principal axes of an angle ----

void EquivalentMomentUV(State& s) {
  const Project& p = s.project;
  const Analysis& an = s.analysis;
  const Section& c = s.section;
  Checks& k = s.checks;
  if (p.AnalysisMode == 1) {
    // u takes the diagram of the y plane and v that of the z plane, as y and z do in Table A.2.
    k.Cmu = Cm0OfDiagram(s, an.PointsY, an.ShapeY, k.Ncru, c.Iu, k.deltaU, k.MuCm);
    k.Cmv = Cm0OfDiagram(s, an.PointsZ, an.ShapeZ, k.Ncrv, c.Iv, k.deltaV, k.MvCm);
  } else {
    k.Cmu = Cm0OfEnds(s, an.ShapeY, k.Ncru);
    k.Cmv = Cm0OfEnds(s, an.ShapeZ, k.Ncrv);
  }
}

void FactorsUV(State& s) {
  Project& p = s.project;
  Checks& k = s.checks;
  const double NEd = s.analysis.NEd;
  if (NEd > k.Ncrv || NEd > k.Ncru) {
    p.calcError = -1;
    return;
  }
  k.lamda0 = 1;
  k.CmLt = 1;
  const double av = 1 - Div(NEd, k.Ncrv);
  const double muv = Div(av, 1 - k.chiv * Div(NEd, k.Ncrv));
  k.kvv = Div(k.Cmv * muv, av);
  // The u factor takes the mu of z that Method 1 left, as the program has it.
  k.kvu = Div(k.Cmu * k.CmLt * k.uz, 1 - Div(NEd, k.Ncru));
}

// ---- Method 2 ----

void EquivalentMomentB(State& s) {
  const Analysis& an = s.analysis;
  Checks& k = s.checks;
  LoadPlanes(s);
  // A plane with nothing in it reads the shape flags of the other plane.
  const MomentShape& fy = k.hasLoadZ != 0 ? an.ShapeY : an.ShapeZ;
  const MomentShape& fz = k.hasLoadY != 0 ? an.ShapeZ : an.ShapeY;
  k.Cmy = CmOfTableB3(fy.Curved != 0, fy.MidDominates != 0, fy.Linear != 0, an.ShapeY);
  k.CmLt = s.section.ltbRelevant == -1 ? k.Cmy : 1;
  k.Cmz = CmOfTableB3(fz.Curved != 0, fz.MidDominates != 0, fz.Linear != 0, an.ShapeZ);
  // A member with a sway buckling mode takes Cmy = Cmz = 0.9 (Table B.3, note). The cantilever's
  // free end sways in both planes; CmLT stays with the moment diagram, which is what it measures
  // between the braced points. The program's own method takes the diagram for Cmy and Cmz as well.
  if (StrictRules(s) && s.project.AnalysisMode == 1 && s.project.SupportType == 4) {
    k.Cmy = 0.9;
    k.Cmz = 0.9;
  }
}

void EquivalentMomentBEnd(State& s) {
  const Analysis& an = s.analysis;
  Checks& k = s.checks;
  k.Cmy = 0.6 + 0.4 * an.ShapeY.Psi;
  if (k.Cmy < 0.4) k.Cmy = 0.4;
  k.Cmz = 0.6 + 0.4 * an.ShapeZ.Psi;
  if (k.Cmz < 0.4) k.Cmy = 0.4;  // the bound lands on Cmy, and Cmz keeps its low value
  k.CmLt = k.Cmy;
}

void FactorsMethod2(State& s) {
  const Project& p = s.project;
  const Section& c = s.section;
  Checks& k = s.checks;
  const int type = p.ProfileType;
  const bool iSection = MethodTwoISection(type);
  const bool hollow = MethodTwoHollow(type);
  if (!iSection && !hollow) return;  // other families keep the factors they had
  const double n = s.analysis.NEd;
  const double ny = Div(n, k.NbyRd), nz = Div(n, k.NbzRd);
  const double Cmy = k.Cmy, Cmz = k.Cmz;
  // The program's own method takes the class about y for all four factors. Under the strict rules
  // each pair of factors takes the class of its own moment (Tables B.1 and B.2): kyy and kzy that of
  // My, kzz and kyz that of Mz.
  const bool strict = StrictRules(s);
  const bool elasticY = c.classMy > 2;
  const bool elasticZ = strict ? c.classMz > 2 : elasticY;
  if (elasticY) {  // Table B.1, elastic
    k.kyy = std::min(Cmy * (1 + 0.6 * k.lamday * ny), Cmy * (1 + 0.6 * ny));
    if (p.ltbOn == 0) {
      k.kzy = 0.8 * k.kyy;
    } else {  // Table B.2
      const double d = k.CmLt - 0.25;
      k.kzy = std::max(1 - Div(0.05 * k.lamdaz, d) * nz, 1 - Div(0.05, d) * nz);
    }
  } else {  // plastic
    k.kyy = std::min(Cmy * (1 + (k.lamday - 0.2) * ny), Cmy * (1 + 0.8 * ny));
    if (p.ltbOn == 0) {
      k.kzy = 0.6 * k.kyy;
    } else {
      const double d = k.CmLt - 0.25;
      const double first = 1 - Div(0.1 * k.lamdaz, d) * nz;
      // Table B.2 has its own line for lamda,z < 0.4: kzy = 0.6 + lamda,z, at most the first form.
      // The program's own method keeps the first form, bounded below, at every slenderness.
      if (strict && k.lamdaz < 0.4)
        k.kzy = std::min(0.6 + k.lamdaz, first);
      else
        k.kzy = std::max(first, 1 - Div(0.1, d) * nz);
    }
  }
  if (elasticZ) {
    k.kzz = std::min(Cmz * (1 + 0.6 * k.lamdaz * nz), Cmz * (1 + 0.6 * nz));
    k.kyz = k.kzz;
  } else {
    if (iSection)
      k.kzz = std::min(Cmz * (1 + (2 * k.lamdaz - 0.6) * nz), Cmz * (1 + 1.4 * nz));
    else
      k.kzz = std::min(Cmz * (1 + (k.lamdaz - 0.2) * nz), Cmz * (1 + 0.8 * nz));
    k.kyz = 0.6 * k.kzz;
  }
}

void InteractionFactors(State& s, bool lateralTorsional) {
  const Project& p = s.project;
  if (p.interactionMethod == 1) {
    if (p.AnalysisMode == 1)
      EquivalentMomentA(s);
    else
      EquivalentMomentAEnd(s);
    if (lateralTorsional) CriticalMoment0(s);
    FactorsMethod1(s);
  } else {
    if (p.AnalysisMode == 1)
      EquivalentMomentB(s);
    else
      EquivalentMomentBEnd(s);
    FactorsMethod2(s);
  }
}

}  // namespace vn
