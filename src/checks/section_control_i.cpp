// Cross-section control of the I family (rolled and welded I, channels, British sections) to
// EN 1993-1-1 6.2: the axial force once for the member, then at every check point the moments,
// the biaxial and N+M interactions and the shear.
//
// Settled departures from the plain text of the standard, all wanted:
//  - n of beta, of MN,y,Rd and of MN,z,Rd is taken against NtRd, also for a class 4 member; only
//    the linear sum uses NRd.
//  - the shear reduction of the moment resistance takes Aw = hw tw for every I section, with /4
//    for the plastic and /6 for the elastic and effective moduli;
//  - steps e to g classify the section under the actual N and M pair, steps b to d use the class
//    of pure bending;
//  - alfa = 2 and beta = 5n (not below 1) for every section of the family, channels included;
//  - shear enters MN,y,Rd only by way of MyRd;
//  - a class 3 or 4 section takes the linear sum with the elastic or effective resistance in place
//    of the stress check of 6.2.1 (7);
//  - the linear sum of steps e and g takes the moment resistance of the class of pure bending, also
//    where the pair makes the section class 3 (the strict rules take the pair's class there).
#include "checks/section_control_i.h"

#include <algorithm>
#include <cmath>

#include "checks/control_framework.h"
#include "checks/control_routines.h"
#include "checks/control_text.h"
#include "checks/shear_resistance.h"
#include "core/format.h"
#include "core/state.h"
#include "design/design_basis.h"
#include "sections/rolled_i.h"

namespace vn {

using text::Colour;
using text::F1;
using text::F2;
using text::Limit;
using text::PendingLine;
using text::Write;

namespace {

bool On(Boolean flag) { return flag != 0; }

// The class whose moment resistance enters the linear sum N/NRd + M/MRd. The program's own method
// takes the class of pure bending, so that a section of class 1 in bending that is class 3 under its
// own N and M is summed with its plastic moment. Under the strict rules a section of class 3 under
// the pair takes the elastic resistance (6.2.1 (7), 6.2.9.2: the sum is then the stress check
// N/A + M/Wel <= fy/gammaM0), and one of class 4 the effective one: the larger class of the two.
double StrictClassOfPair(const State& s, double classBending, double classPair) {
  if (!StrictRules(s)) return classBending;
  return std::max(classBending, classPair);
}

}  // namespace

std::string PointLimit(const State& s, double xRel, const char* tail) {
  return " < " + F1(s, s.analysis.IRlimit) + " (" + F2(s, xRel) + tail;
}

void ComputeMyRd(State& s) { MyRdOfWebs(s, 1); }

void MyRdOfWebs(State& s, double webs) {
  Checks& k = s.checks;
  Section& c = s.section;
  const Project& p = s.project;
  const double VzEd = k.VzEd;
  if (VzEd > 0.5 * c.VzRd) {
    const double q = Div(2 * VzEd, c.VzRd) - 1;
    k.rhoZ = ToSingle(q * q);
    if (k.rhoZ > 1) k.rhoZ = 1;
  } else {
    k.rhoZ = 0;
  }
  const double hw = c.hw, tw = c.tw, fyk = p.fyk;
  const double web = hw * hw * (webs * k.rhoZ * tw);
  double base, R;
  if (k.classCur <= 2 && !On(p.elasticClass12)) {
    c.Wy = c.Wply;
    R = web / 4 / 1000000 * fyk;
    base = c.MplyRd;
  } else if (k.classCur == 4) {
    c.Wy = ToSingle(c.Weffy);
    R = web / 6 / 1000000 * fyk;
    base = c.MeffyRd;
  } else {
    c.Wy = c.Wely;
    R = web / 6 / 1000000 * fyk;
    base = c.MelyRd;
  }
  k.MyRd = ToSingle(base - Div(R, p.gammaM0));
  // A plastic value from a class under N+M is capped by the value of the bending class.
  if (k.MyRd > c.MyRdClass) k.MyRd = ToSingle(c.MyRdClass);
}

// Both flanges in the plastic form, one in the elastic: wanted as it stands.
void ComputeMzRd(State& s) { MzRdOfWalls(s, s.section.b, 2, 1); }

void MzRdOfWalls(State& s, double depth, double plasticWalls, double elasticWalls) {
  Checks& k = s.checks;
  Section& c = s.section;
  const Project& p = s.project;
  const double VyEd = k.VyEd;
  if (VyEd > 0.5 * c.VyRd) {
    const double q = Div(2 * VyEd, c.VyRd) - 1;
    k.rhoY = ToSingle(q * q);
    if (k.rhoY > 1) k.rhoY = 1;
  } else {
    k.rhoY = 0;
  }
  const double tf = c.tf, fyk = p.fyk;
  const double rho = k.rhoY;
  double base, R;
  if (k.classCur <= 2 && !On(p.elasticClass12)) {
    c.Wz = c.Wplz;
    R = depth * depth * (plasticWalls * rho * tf) / 4 / 1000000 * fyk;
    base = c.MplzRd;
  } else if (k.classCur == 4) {
    c.Wz = c.Weffz;
    R = depth * depth * (elasticWalls * rho * tf) / 6 / 1000000 * fyk;
    base = c.MeffzRd;
  } else {
    c.Wz = c.Welz;
    R = depth * depth * (elasticWalls * rho * tf) / 6 / 1000000 * fyk;
    base = c.MelzRd;
  }
  k.MzRd = ToSingle(base - Div(R, p.gammaM0));
  if (k.MzRd > c.MzRdClass) k.MzRd = c.MzRdClass;
}

namespace {

// n against NtRd and the web share a of 6.2.9.1 (5), at most 0.5.
void AxialShare(const State& s, double* n, double* a) {
  const Section& c = s.section;
  *n = std::fabs(Div(s.analysis.NEd, c.NtRd));
  *a = Div(static_cast<double>(c.A) - 2.0 * c.b * c.tf, c.A);
  if (*a > 0.5) *a = 0.5;
}

}  // namespace

void ComputeMNyRd(State& s) {
  Checks& k = s.checks;
  const Section& c = s.section;
  const Project& p = s.project;
  double n, a;
  AxialShare(s, &n, &a);
  k.MNyRd = ToSingle(Div(k.MyRd * (1 - n), 1 - 0.5 * a));
  if (k.MNyRd > k.MyRd) k.MNyRd = k.MyRd;
  // 6.2.9.1 (4): no reduction while both limits hold.
  const double N = std::fabs(s.analysis.NEd);
  const double webLimit = Div(Div(0.5 * c.hw * c.tw * p.fyk, p.gammaM0), 1000);
  if (N <= webLimit && N <= 0.25 * c.NtRd) k.MNyRd = k.MyRd;
}

void ComputeMNzRd(State& s) {
  Checks& k = s.checks;
  const Section& c = s.section;
  const Project& p = s.project;
  double n, a;
  AxialShare(s, &n, &a);
  if (n <= a) {
    k.MNzRd = k.MzRd;
  } else {
    const double q = Div(n - a, 1 - a);
    k.MNzRd = ToSingle(k.MzRd * (1 - q * q));
  }
  const double N = std::fabs(s.analysis.NEd);
  if (N <= Div(Div(static_cast<double>(c.hw) * c.tw * p.fyk, p.gammaM0), 1000)) k.MNzRd = k.MzRd;
}

namespace {

void ShearI(State& s, double NEd, double MyEd) { ComputeShearResistances(s, NEd, MyEd); }

const SectionControlRules kRulesI{ExponentsI,  false,        ClassAboutY,  ClassAboutZ, ComputeMyRd,
                                  ComputeMzRd, ComputeMNyRd, ComputeMNzRd, ShearI};

}  // namespace

void SectionControlI(State& s) { RunSectionControl(s, kRulesI); }

// alfa = 2 and beta = 5n, not below 1, for every section of the I family, channels included.
void ExponentsI(State& s) {
  Checks& k = s.checks;
  k.alfa = 2;
  k.betaN = 5 * std::fabs(Div(s.analysis.NEd, s.section.NtRd));
  if (k.betaN < 1) k.betaN = 1;
}

void RunSectionControl(State& s, const SectionControlRules& rules) {
  Checks& k = s.checks;
  Analysis& an = s.analysis;
  const Section& c = s.section;
  const Project& p = s.project;
  const Single lim = an.IRlimit;
  const bool conser = On(p.conserControl);
  auto F = [&s](double v) { return F1(s, v); };

  // 1. The groups start empty; the colours keep what they had until a candidate sets them.
  for (size_t g = 1; g <= 6; ++g) {
    k.secText[g] = ControlText{};
    k.IRsec[g] = 0;
  }
  const double NEd = an.NEd;
  k.NRd = NEd > 0 ? c.NcRd : c.NtRd;
  rules.exponents(s);

  double& IR1 = k.IRsec[1];
  double& IR2 = k.IRsec[2];
  double& IR3 = k.IRsec[3];
  Integer& col1 = k.colSec[1];
  Integer& col2 = k.colSec[2];
  Integer& col3 = k.colSec[3];
  ControlText& t1 = k.secText[1];
  ControlText& t2 = k.secText[2];
  ControlText& t3 = k.secText[3];

  // 2. The axial force, once for the member; the closed sections name the first point.
  auto axialLimit = [&](const char* clause) {
    if (rules.axialPlace)
      return PointLimit(s, an.ChPointXrel[0], (std::string("L; ") + clause + ")").c_str());
    return " < " + F(lim) + " (" + clause + ")";
  };
  if (NEd < 0) {
    const double ir = std::fabs(Div(NEd, c.NtRd));
    if (Compete(ir, IR1, col1, lim))
      Write(s, t1, "IR = NEd/NRd = ", F(NEd) + "/" + F(c.NtRd) + " = ", ir, axialLimit("Ch 6.2.3"));
  } else if (NEd > 0) {
    const double ir = std::fabs(Div(NEd, c.NcRd));
    if (Compete(ir, IR1, col1, lim))
      Write(s, t1, "IR = NEd/NRd = ", F(NEd) + "/" + F(c.NcRd) + " = ", ir, axialLimit("Ch 6.2.4"));
  }

  // 3. Every check point, in ascending order of its index. A group's texts are those of the
  // candidate that keeps it: each winner leaves its numbers (as they stand at its point) in the
  // group's pending line, and the strings are made once, after the last point, or before a fault
  // ends the loop.
  PendingLine line1(t1), line2(t2), line3(t3);
  auto flush = [&] {
    line1.Flush();
    line2.Flush();
    line3.Flush();
  };
  if (an.NPoints < 0 || an.NPoints > 40) Fault("subscript out of range");
  try {
    for (int i = 0; i <= an.NPoints; ++i) {
      const size_t ix = static_cast<size_t>(i);
      const double x = an.ChPointXrel[ix];
      // A family whose flanges differ keeps the sign of My for its classes and resistances; the
      // ratios and texts take its magnitude.
      k.MyEd = rules.signedMy ? an.MyPt[ix] : std::fabs(an.MyPt[ix]);
      const double MySigned = k.MyEd;
      k.MzEd = rules.aboutZ ? std::fabs(an.MzPt[ix]) : 0;
      k.VyEd = rules.aboutZ ? std::fabs(an.VyPt[ix]) : 0;
      k.VzEd = std::fabs(an.VzPt[ix]);
      const double MyEd = std::fabs(k.MyEd), MzEd = k.MzEd, VyEd = k.VyEd, VzEd = k.VzEd;
      const double classMy = !rules.signedMy ? c.classMy : MySigned > 0 ? c.classMyPos : c.classMyNeg;
      // The plain texts of b to d hold below half the shear, the MV texts of e to g above it; a
      // family without the reduction for shear always has the plain texts.
      const bool red = rules.shearReduces;
      const bool lowVz = !red || VzEd < 0.5 * c.VzRd, lowVy = !red || VyEd < 0.5 * c.VyRd;
      const bool highVz = red && VzEd > 0.5 * c.VzRd, highVy = red && VyEd > 0.5 * c.VyRd;
      const char* const expFormat = rules.exponentFormat;

      // b. My alone.
      if (MyEd != 0) {
        k.classCur = classMy;
        rules.myRd(s);
        const double ir = Div(MyEd, k.MyRd);
        if (Compete(ir, IR1, col1, lim))
          line1.Keep([&s, x, ir, lowVz, MyEd, MyRd = k.MyRd](ControlText& t) {
            Write(s, t, lowVz ? "IR = My,Ed/My,Rd = " : "IR = My,Ed/MV,y,Rd = ",
                  F1(s, MyEd) + "/" + F1(s, MyRd) + " = ", ir,
                  PointLimit(s, x, lowVz ? "L; Ch 6.2.5)" : "L; Ch 6.2.8)"));
          });
      }

      // c. Mz alone.
      if (MzEd != 0) {
        k.classCur = c.classMz;
        rules.mzRd(s);
        const double ir = Div(MzEd, k.MzRd);
        if (Compete(ir, IR1, col1, lim))
          line1.Keep([&s, x, ir, lowVy, MzEd, MzRd = k.MzRd](ControlText& t) {
            Write(s, t, lowVy ? "IR = Mz,Ed/Mz,Rd = " : "IR = Mz,Ed/MV,z,Rd = ",
                  F1(s, MzEd) + "/" + F1(s, MzRd) + " = ", ir,
                  PointLimit(s, x, lowVy ? "L; Ch 6.2.5)" : "L; Ch 6.2.8)"));
          });
      }

      // d. Both moments without an axial force.
      if (MyEd != 0 && MzEd != 0 && NEd == 0) {
        k.classCur = classMy;
        rules.myRd(s);
        k.classCur = c.classMz;
        rules.mzRd(s);
        if (!conser && classMy <= 2 && c.classMz <= 2) {
          const double ir = Pow(Div(MyEd, k.MyRd), k.alfa) + Pow(Div(MzEd, k.MzRd), k.betaN);
          if (Compete(ir, IR2, col2, lim))
            line2.Keep([&s, x, ir, lowVz, lowVy, MyEd, MzEd, expFormat, MyRd = k.MyRd, MzRd = k.MzRd,
                        alfa = k.alfa, betaN = k.betaN](ControlText& t) {
              auto E = [&](double v) { return FormatNumber(v, expFormat, s.decimalComma); };
              Write(s, t,
                    std::string(lowVz ? "IR = [My,Ed/My,Rd]^alfa" : "IR = [My,Ed/MV,y,Rd]^alfa") +
                        (lowVy ? " + [Mz,Ed/Mz,Rd]^beta = " : " + [Mz,Ed/MV,z,Rd]^beta = "),
                    "[" + F1(s, MyEd) + "/" + F1(s, MyRd) + "]^" + E(alfa) + "+" + "(" + F1(s, MzEd) + "/" +
                        F1(s, MzRd) + ")^" + E(betaN) + " = ",
                    ir, PointLimit(s, x, "L; Ch 6.2.5/6.2.9)"));
            });
        } else {
          const double ir = Div(MyEd, k.MyRd) + Div(MzEd, k.MzRd);
          if (Compete(ir, IR2, col2, lim))
            line2.Keep([&s, x, ir, lowVz, lowVy, MyEd, MzEd, MyRd = k.MyRd, MzRd = k.MzRd](ControlText& t) {
              Write(s, t,
                    std::string(lowVz ? "IR = My,Ed/My,Rd" : "IR = My,Ed/MV,y,Rd") +
                        (lowVy ? " + Mz,Ed/Mz,Rd = " : " + Mz,Ed/MV,z,Rd = "),
                    F1(s, MyEd) + "/" + F1(s, MyRd) + " + " + F1(s, MzEd) + "/" + F1(s, MzRd) + " = ", ir,
                    PointLimit(s, x, "L; Ch 6.2.1)"));
            });
        }
      }

      // e. N and My.
      if (NEd != 0 && MyEd != 0) {
        k.classCur = rules.classY(s, NEd, MySigned);
        const double classPair = k.classCur;
        rules.myRd(s);
        if (k.classCur <= 2 && !conser) {
          rules.mnyRd(s);
          // With 1 - n below zero the ratio is negative and loses: only group 1 shows the overload.
          const double ir = Div(MyEd, k.MNyRd);
          if (Compete(ir, IR2, col2, lim))
            line2.Keep([&s, x, ir, highVz, MyEd, MNyRd = k.MNyRd](ControlText& t) {
              Write(s, t, highVz ? "IR = My,Ed/MVN,y,Rd = " : "IR = My,Ed/MN,y,Rd = ",
                    F1(s, MyEd) + "/" + F1(s, MNyRd) + " = ", ir, PointLimit(s, x, "L; Ch 6.2.9)"));
            });
        } else {
          // The resistance of the class of pure bending; with signed moments that of the pair stays.
          if (!rules.signedMy) {
            k.classCur = StrictClassOfPair(s, classMy, classPair);
            rules.myRd(s);
          }
          const double ir = std::fabs(Div(NEd, k.NRd)) + Div(MyEd, k.MyRd);
          if (Compete(ir, IR2, col2, lim))
            line2.Keep([&s, x, ir, highVz, NEd, MyEd, NRd = k.NRd, MyRd = k.MyRd](ControlText& t) {
              Write(s, t, highVz ? "IR = NEd/NRd+My,Ed/MV,y,Rd = " : "IR = NEd/NRd+My,Ed/My,Rd = ",
                    F1(s, NEd) + "/" + F1(s, NRd) + "+" + F1(s, MyEd) + "/" + F1(s, MyRd) + " = ", ir,
                    PointLimit(s, x, "L; Ch 6.2.1/6.2.9)"));
            });
        }
      }

      // f. N and Mz.
      if (NEd != 0 && MzEd != 0) {
        k.classCur = rules.classZ(s, NEd, MzEd);
        rules.mzRd(s);
        if (k.classCur <= 2 && !conser) {
          rules.mnzRd(s);
          const double ir = Div(MzEd, k.MNzRd);
          if (Compete(ir, IR2, col2, lim))
            line2.Keep([&s, x, ir, highVy, MzEd, MNzRd = k.MNzRd](ControlText& t) {
              Write(s, t, highVy ? "IR = Mz,Ed/MVN,z,Rd = " : "IR = Mz,Ed/MN,z,Rd = ",
                    F1(s, MzEd) + "/" + F1(s, MNzRd) + " = ", ir, PointLimit(s, x, "L; Ch 6.2.9)"));
            });
        } else {
          k.classCur = c.classMz;
          rules.mzRd(s);
          const double ir = std::fabs(Div(NEd, k.NRd)) + Div(MzEd, k.MzRd);
          if (Compete(ir, IR2, col2, lim))
            line2.Keep([&s, x, ir, highVy, NEd, MzEd, NRd = k.NRd, MzRd = k.MzRd](ControlText& t) {
              Write(s, t, highVy ? "IR = NEd/NRd+Mz,Ed/MV,z,Rd = " : "IR = NEd/NRd+Mz,Ed/Mz,Rd = ",
                    F1(s, NEd) + "/" + F1(s, NRd) + "+" + F1(s, MzEd) + "/" + F1(s, MzRd) + " = ", ir,
                    PointLimit(s, x, "L; Ch 6.2.1/6.2.9)"));
            });
        }
      }

      // g. N with both moments.
      if (NEd != 0 && MyEd != 0 && MzEd != 0) {
        k.classCur = rules.classY(s, NEd, MySigned);
        k.classNMy = k.classCur;
        rules.myRd(s);
        k.classCur = rules.classZ(s, NEd, MzEd);
        k.classNMz = k.classCur;
        rules.mzRd(s);
        if (!conser && k.classNMy <= 2 && k.classNMz <= 2) {
          rules.mnyRd(s);
          rules.mnzRd(s);
          const double ir = Pow(Div(MyEd, k.MNyRd), k.alfa) + Pow(std::fabs(Div(MzEd, k.MNzRd)), k.betaN);
          if (Compete(ir, IR2, col2, lim))
            line2.Keep([&s, x, ir, highVz, highVy, MyEd, MzEd, expFormat, MNyRd = k.MNyRd, MNzRd = k.MNzRd,
                        alfa = k.alfa, betaN = k.betaN](ControlText& t) {
              auto E = [&](double v) { return FormatNumber(v, expFormat, s.decimalComma); };
              Write(s, t,
                    std::string(highVz ? "IR = (My,Ed/MVN,y,Rd)^alfa " : "IR = (My,Ed/MN,y,Rd)^alfa ") +
                        (highVy ? " + (Mz,Ed/MVN,z,Rd)^beta = " : " + (Mz,Ed/MN,z,Rd)^beta = "),
                    "(" + F1(s, MyEd) + "/" + F1(s, MNyRd) + ")^" + E(alfa) + "+" + "(" + F1(s, MzEd) + "/" +
                        F1(s, MNzRd) + ")^" + E(betaN) + " = ",
                    ir, PointLimit(s, x, "L; Ch 6.2.9)"));
            });
        } else {
          if (!rules.signedMy) {
            k.classCur = StrictClassOfPair(s, classMy, k.classNMy);
            rules.myRd(s);
          }
          k.classCur = c.classMz;
          rules.mzRd(s);
          const double ir = std::fabs(Div(NEd, k.NRd)) + Div(MyEd, k.MyRd) + Div(MzEd, k.MzRd);
          if (Compete(ir, IR2, col2, lim))
            line2.Keep([&s, x, ir, highVz, highVy, NEd, MyEd, MzEd, NRd = k.NRd, MyRd = k.MyRd,
                        MzRd = k.MzRd](ControlText& t) {
              Write(s, t,
                    std::string(highVz ? "IR = NEd/NRd+My,Ed/MV,y,Rd" : "IR = NEd/NRd+My,Ed/My,Rd") +
                        (highVy ? "+Mz,Ed/MV,z,Rd = " : "+Mz,Ed/Mz,Rd = "),
                    F1(s, NEd) + "/" + F1(s, NRd) + "+" + F1(s, MyEd) + "/" + F1(s, MyRd) + "+" +
                        F1(s, MzEd) + "/" + F1(s, MzRd) + " = ",
                    ir, PointLimit(s, x, "L; Ch 6.2.1/6.2.9)"));
            });
        }
      }

      // h. The shear resistances of this point, with the flange contribution under its moment.
      rules.shear(s, NEd, MySigned);

      // i. Vz: the label says Vz,Rd, the value is Vb,z,Rd.
      if (VzEd != 0) {
        const double ir = Div(VzEd, c.VbzRd);
        if (Compete(ir, IR3, col3, lim))
          line3.Keep([&s, x, ir, VzEd, VbzRd = c.VbzRd, suffix = k.VbSuffix](ControlText& t) {
            Write(s, t, "IR = Vz,Ed/Vz,Rd = ", F1(s, VzEd) + "/" + F1(s, VbzRd) + " = ", ir,
                  PointLimit(s, x, "L; Ch 6.2.6") + suffix);
          });
      }

      // j. Vy.
      if (VyEd != 0) {
        const double ir = Div(VyEd, c.VbyRd);
        if (Compete(ir, IR3, col3, lim))
          line3.Keep([&s, x, ir, VyEd, VbyRd = c.VbyRd](ControlText& t) {
            Write(s, t, "IR = Vy,Ed/Vy,Rd = ", F1(s, VyEd) + "/" + F1(s, VbyRd) + " = ", ir,
                  PointLimit(s, x, "L; Ch 6.2.6)"));
          });
      }
    }
  } catch (...) {
    flush();
    throw;
  }
  flush();

  // 4. The governing ratio of the section control.
  an.IRsection = IR1 > IR2 ? IR1 : IR2;
  if (IR3 > an.IRsection) an.IRsection = IR3;
}

}  // namespace vn
