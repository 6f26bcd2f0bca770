// Cross-section control of the welded I with unequal flanges (type 22): the control of the I family
// with a moment about y that keeps its sign, because the two flanges answer differently. At each
// check point the class and the resistance of the sign at hand are used; ratios and texts show
// the magnitude of the moment.
//
// Settled traits of this twin, all wanted:
//  - the moment resistance is not capped by a class resistance of pure bending;
//  - MN,y,Rd takes the web share a = (A - (tf1 b1 + b2 + tf2)) / A: the lower flange enters as a
//    sum, not as a product;
//  - in the linear branch of N+My and of N+My+Mz the y resistance stays the one of the class
//    found for the actual N and M pair;
//  - the shear resistance of the point reads the signed moment.
#include <cmath>
#include <string>

#include "checks/control_framework.h"
#include "checks/control_routines.h"
#include "checks/control_text.h"
#include "checks/section_control_i.h"
#include "checks/shear_resistance.h"
#include "core/format.h"
#include "core/state.h"
#include "sections/welded_i.h"

namespace vn {

using text::Colour;
using text::F1;
using text::F2;
using text::Limit;
using text::Write;

namespace {

bool On(Boolean flag) { return flag != 0; }

// The class of pure bending for the sign of the moment.
double SignedClass(const Section& c, double MyEd) { return MyEd > 0 ? c.classMyPos : c.classMyNeg; }

}  // namespace

void RhoZOfPoint(State& s) {
  Checks& k = s.checks;
  const Section& c = s.section;
  const double VzEd = k.VzEd;
  if (VzEd > 0.5 * c.VzRd) {
    const double q = Div(2 * VzEd, c.VzRd) - 1;
    k.rhoZ = ToSingle(q * q);
    if (k.rhoZ > 1) k.rhoZ = 1;
  } else {
    k.rhoZ = 0;
  }
}

double MyRdSigned(State& s, double cls, double MyEd) {
  Checks& k = s.checks;
  Section& c = s.section;
  const Project& p = s.project;
  RhoZOfPoint(s);
  const double hw = c.hw, tw = c.tw, fyk = p.fyk;
  const double web = hw * hw * (tw * static_cast<double>(k.rhoZ));
  double base, R;
  if (MyEd > 0 && cls == 4) {
    base = c.MeffyRd1;
    R = web / 6 / 1000000 * fyk;
  } else if (MyEd < 0 && cls == 4) {
    base = c.MeffyRd2;
    R = web / 6 / 1000000 * fyk;
  } else if (cls <= 2 && !On(p.elasticClass12)) {
    base = c.MplyRd;
    R = web / 4 / 1000000 * fyk;
  } else {
    base = c.MelyRd;
    R = web / 6 / 1000000 * fyk;
  }
  return ToSingle(base - Div(R, p.gammaM0));
}

void MNyRdSingleSym(State& s) {
  Checks& k = s.checks;
  const Section& c = s.section;
  const Project& p = s.project;
  const double n = std::fabs(Div(s.analysis.NEd, c.NtRd));
  double a = Div(static_cast<double>(c.A) - (static_cast<double>(c.tf1) * c.b1 + c.b2 + c.tf2), c.A);
  if (a > 0.5) a = 0.5;
  k.MNyRd = ToSingle(Div(k.MyRd * (1 - n), 1 - 0.5 * a));
  if (k.MNyRd > k.MyRd) k.MNyRd = k.MyRd;
  const double N = std::fabs(s.analysis.NEd);
  const double webLimit = Div(Div(0.5 * c.hw * c.tw * p.fyk, p.gammaM0), 1000);
  if (N <= webLimit && N <= 0.25 * c.NtRd) k.MNyRd = k.MyRd;
}

void SectionControlSingleSym(State& s) {
  Checks& k = s.checks;
  Analysis& an = s.analysis;
  const Section& c = s.section;
  const Project& p = s.project;
  const Single lim = an.IRlimit;
  const bool conser = On(p.conserControl);
  auto F = [&s](double v) { return F1(s, v); };

  // 1.
  for (size_t g = 1; g <= 6; ++g) {
    k.secText[g] = ControlText{};
    k.IRsec[g] = 0;
  }
  const double NEd = an.NEd;
  k.NRd = NEd > 0 ? c.NcRd : c.NtRd;
  k.alfa = 2;
  k.betaN = 5 * std::fabs(Div(NEd, c.NtRd));
  if (k.betaN < 1) k.betaN = 1;

  double& IR1 = k.IRsec[1];
  double& IR2 = k.IRsec[2];
  double& IR3 = k.IRsec[3];
  Integer& col1 = k.colSec[1];
  Integer& col2 = k.colSec[2];
  Integer& col3 = k.colSec[3];
  ControlText& t1 = k.secText[1];
  ControlText& t2 = k.secText[2];
  ControlText& t3 = k.secText[3];

  // 2. The axial force, once for the member.
  if (NEd < 0) {
    const double ir = std::fabs(Div(NEd, c.NtRd));
    if (Compete(ir, IR1, col1, lim))
      Write(s, t1, "IR = NEd/NRd = ", F(NEd) + "/" + F(c.NtRd) + " = ", ir, " < " + F(lim) + " (Ch 6.2.3)");
  } else if (NEd > 0) {
    const double ir = std::fabs(Div(NEd, c.NcRd));
    if (Compete(ir, IR1, col1, lim))
      Write(s, t1, "IR = NEd/NRd = ", F(NEd) + "/" + F(c.NcRd) + " = ", ir, " < " + F(lim) + " (Ch 6.2.4)");
  }

  // 3. Every check point; My keeps its sign.
  if (an.NPoints < 0 || an.NPoints > 40) Fault("subscript out of range");
  for (int i = 0; i <= an.NPoints; ++i) {
    const size_t ix = static_cast<size_t>(i);
    const double x = an.ChPointXrel[ix];
    k.MyEd = an.MyPt[ix];
    k.MzEd = std::fabs(an.MzPt[ix]);
    k.VyEd = std::fabs(an.VyPt[ix]);
    k.VzEd = std::fabs(an.VzPt[ix]);
    const double MyEd = k.MyEd, MzEd = k.MzEd, VyEd = k.VyEd, VzEd = k.VzEd;
    const double MyAbs = std::fabs(MyEd);
    const bool lowVz = VzEd < 0.5 * c.VzRd, lowVy = VyEd < 0.5 * c.VyRd;
    const bool highVz = VzEd > 0.5 * c.VzRd, highVy = VyEd > 0.5 * c.VyRd;
    const double classMy = SignedClass(c, MyEd);

    // b. My alone, with the class and resistance of its sign.
    if (MyEd != 0) {
      k.classCur = classMy;
      k.MyRd = ToSingle(MyRdSigned(s, k.classCur, MyEd));
      const double ir = Div(MyAbs, k.MyRd);
      if (Compete(ir, IR1, col1, lim))
        Write(s, t1,
              lowVz ? "IR = My,Ed/My,Rd = " : "IR = My,Ed/MV,y,Rd = ", F(MyAbs) + "/" + F(k.MyRd) + " = ", ir,
              PointLimit(s, x, lowVz ? "L; Ch 6.2.5)" : "L; Ch 6.2.8)"));
    }

    // c. Mz alone.
    if (MzEd != 0) {
      k.classCur = c.classMz;
      ComputeMzRd(s);
      const double ir = Div(MzEd, k.MzRd);
      if (Compete(ir, IR1, col1, lim))
        Write(s, t1,
              lowVy ? "IR = Mz,Ed/Mz,Rd = " : "IR = Mz,Ed/MV,z,Rd = ", F(MzEd) + "/" + F(k.MzRd) + " = ", ir,
              PointLimit(s, x, lowVy ? "L; Ch 6.2.5)" : "L; Ch 6.2.8)"));
    }

    // d. Both moments without an axial force; the class of the sign stands for the class of My.
    if (MyEd != 0 && MzEd != 0 && NEd == 0) {
      k.classCur = classMy;
      k.MyRd = ToSingle(MyRdSigned(s, k.classCur, MyEd));
      k.classCur = c.classMz;
      ComputeMzRd(s);
      if (!conser && classMy <= 2 && c.classMz <= 2) {
        const double ir = Pow(Div(MyAbs, k.MyRd), k.alfa) + Pow(Div(MzEd, k.MzRd), k.betaN);
        if (Compete(ir, IR2, col2, lim))
          Write(s, t2,
                std::string(lowVz ? "IR = [My,Ed/My,Rd]^alfa" : "IR = [My,Ed/MV,y,Rd]^alfa") +
                    (lowVy ? " + [Mz,Ed/Mz,Rd]^beta = " : " + [Mz,Ed/MV,z,Rd]^beta = "),
                "[" + F(MyAbs) + "/" + F(k.MyRd) + "]^" + F2(s, k.alfa) + "+" + "(" + F(MzEd) + "/" +
                    F(k.MzRd) + ")^" + F2(s, k.betaN) + " = ",
                ir, PointLimit(s, x, "L; Ch 6.2.5/6.2.9)"));
      } else {
        const double ir = Div(MyAbs, k.MyRd) + Div(MzEd, k.MzRd);
        if (Compete(ir, IR2, col2, lim))
          Write(s, t2,
                std::string(lowVz ? "IR = My,Ed/My,Rd" : "IR = My,Ed/MV,y,Rd") +
                    (lowVy ? " + Mz,Ed/Mz,Rd = " : " + Mz,Ed/MV,z,Rd = "),
                F(MyAbs) + "/" + F(k.MyRd) + " + " + F(MzEd) + "/" + F(k.MzRd) + " = ", ir,
                PointLimit(s, x, "L; Ch 6.2.1)"));
      }
    }

    // e. N and My, classified for the signed pair.
    if (NEd != 0 && MyEd != 0) {
      k.classCur = ClassSingleSymY(s, NEd, MyEd);
      k.MyRd = ToSingle(MyRdSigned(s, k.classCur, MyEd));
      if (k.classCur <= 2 && !conser) {
        MNyRdSingleSym(s);
        const double ir = Div(MyAbs, k.MNyRd);
        if (Compete(ir, IR2, col2, lim))
          Write(s, t2, highVz ? "IR = My,Ed/MVN,y,Rd = " : "IR = My,Ed/MN,y,Rd = ",
                F(MyAbs) + "/" + F(k.MNyRd) + " = ", ir, PointLimit(s, x, "L; Ch 6.2.9)"));
      } else {
        // The resistance of the pair's class stays.
        const double ir = std::fabs(Div(NEd, k.NRd)) + Div(MyAbs, k.MyRd);
        if (Compete(ir, IR2, col2, lim))
          Write(s, t2, highVz ? "IR = NEd/NRd+My,Ed/MV,y,Rd = " : "IR = NEd/NRd+My,Ed/My,Rd = ",
                F(NEd) + "/" + F(k.NRd) + "+" + F(MyAbs) + "/" + F(k.MyRd) + " = ", ir,
                PointLimit(s, x, "L; Ch 6.2.1/6.2.9)"));
      }
    }

    // f. N and Mz.
    if (NEd != 0 && MzEd != 0) {
      k.classCur = ClassSingleSymZ(s, NEd, MzEd);
      ComputeMzRd(s);
      if (k.classCur <= 2 && !conser) {
        ComputeMNzRd(s);
        const double ir = Div(MzEd, k.MNzRd);
        if (Compete(ir, IR2, col2, lim))
          Write(s, t2, highVy ? "IR = Mz,Ed/MVN,z,Rd = " : "IR = Mz,Ed/MN,z,Rd = ",
                F(MzEd) + "/" + F(k.MNzRd) + " = ", ir, PointLimit(s, x, "L; Ch 6.2.9)"));
      } else {
        k.classCur = c.classMz;
        ComputeMzRd(s);
        const double ir = std::fabs(Div(NEd, k.NRd)) + Div(MzEd, k.MzRd);
        if (Compete(ir, IR2, col2, lim))
          Write(s, t2, highVy ? "IR = NEd/NRd+Mz,Ed/MV,z,Rd = " : "IR = NEd/NRd+Mz,Ed/Mz,Rd = ",
                F(NEd) + "/" + F(k.NRd) + "+" + F(MzEd) + "/" + F(k.MzRd) + " = ", ir,
                PointLimit(s, x, "L; Ch 6.2.1/6.2.9)"));
      }
    }

    // g. N with both moments.
    if (NEd != 0 && MyEd != 0 && MzEd != 0) {
      k.classCur = ClassSingleSymY(s, NEd, MyEd);
      k.classNMy = k.classCur;
      k.MyRd = ToSingle(MyRdSigned(s, k.classCur, MyEd));
      k.classCur = ClassSingleSymZ(s, NEd, MzEd);
      k.classNMz = k.classCur;
      ComputeMzRd(s);
      if (!conser && k.classNMy <= 2 && k.classNMz <= 2) {
        MNyRdSingleSym(s);
        ComputeMNzRd(s);
        const double ir = Pow(Div(MyAbs, k.MNyRd), k.alfa) + Pow(std::fabs(Div(MzEd, k.MNzRd)), k.betaN);
        if (Compete(ir, IR2, col2, lim))
          Write(s, t2,
                std::string(highVz ? "IR = (My,Ed/MVN,y,Rd)^alfa " : "IR = (My,Ed/MN,y,Rd)^alfa ") +
                    (highVy ? " + (Mz,Ed/MVN,z,Rd)^beta = " : " + (Mz,Ed/MN,z,Rd)^beta = "),
                "(" + F(MyAbs) + "/" + F(k.MNyRd) + ")^" + F2(s, k.alfa) + "+" + "(" + F(MzEd) + "/" +
                    F(k.MNzRd) + ")^" + F2(s, k.betaN) + " = ",
                ir, PointLimit(s, x, "L; Ch 6.2.9)"));
      } else {
        // The y resistance of the pair's class stays; z returns to the class of pure bending.
        k.classCur = c.classMz;
        ComputeMzRd(s);
        const double ir = std::fabs(Div(NEd, k.NRd)) + Div(MyAbs, k.MyRd) + Div(MzEd, k.MzRd);
        if (Compete(ir, IR2, col2, lim))
          Write(s, t2,
                std::string(highVz ? "IR = NEd/NRd+My,Ed/MV,y,Rd" : "IR = NEd/NRd+My,Ed/My,Rd") +
                    (highVy ? "+Mz,Ed/MV,z,Rd = " : "+Mz,Ed/Mz,Rd = "),
                F(NEd) + "/" + F(k.NRd) + "+" + F(MyAbs) + "/" + F(k.MyRd) + "+" + F(MzEd) + "/" + F(k.MzRd) +
                    " = ",
                ir, PointLimit(s, x, "L; Ch 6.2.1/6.2.9)"));
      }
    }

    // h. The shear resistances of this point, with the flange contribution under its moment.
    ComputeShearResistances(s, NEd, MyEd);

    // i. Vz: the label says Vz,Rd, the value is Vb,z,Rd.
    if (VzEd != 0) {
      const double ir = Div(VzEd, c.VbzRd);
      if (Compete(ir, IR3, col3, lim))
        Write(s, t3, "IR = Vz,Ed/Vz,Rd = ", F(VzEd) + "/" + F(c.VbzRd) + " = ", ir,
              PointLimit(s, x, "L; Ch 6.2.6") + k.VbSuffix);
    }

    // j. Vy.
    if (VyEd != 0) {
      const double ir = Div(VyEd, c.VbyRd);
      if (Compete(ir, IR3, col3, lim))
        Write(s, t3, "IR = Vy,Ed/Vy,Rd = ", F(VyEd) + "/" + F(c.VbyRd) + " = ", ir,
              PointLimit(s, x, "L; Ch 6.2.6)"));
    }
  }

  // 4. The governing ratio of the section control.
  an.IRsection = IR1 > IR2 ? IR1 : IR2;
  if (IR3 > an.IRsection) an.IRsection = IR3;
}

}  // namespace vn
