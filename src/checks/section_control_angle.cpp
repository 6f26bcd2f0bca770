// Cross-section control of the angles (types 10 and 11): an elastic sum of 6.2.1 at the three
// corner points, first in the geometric axes y, z and then in the principal axes u, v, and the
// shear of each leg. An angle has no plastic interaction and no reduction of its moments by shear.
//
// At each check point the moments keep their signs; with n = -NEd/NRd a stress in tension counts
// positive. Point 1 is the end of the leg h, point 2 the heel, point 3 the end of the leg b.
#include <cmath>

#include "checks/control_framework.h"
#include "checks/control_routines.h"
#include "checks/control_text.h"
#include "checks/section_control_i.h"
#include "core/format.h"
#include "core/state.h"

namespace vn {

using text::Colour;
using text::F1;
using text::F2;
using text::Limit;
using text::Write;

namespace {

// The worst of the three corners: point 2 on a tie with point 1, point 3 only when strictly above
// both.
int WorstCorner(const double q[4]) {
  int k = q[2] >= q[1] ? 2 : 1;
  if (q[3] > q[1] && q[3] > q[2]) k = 3;
  return k;
}

std::string CornerLimit(const State& s, double xRel, int point) {
  return " < " + F1(s, s.analysis.IRlimit) + " (" + F2(s, xRel) + "L, point: " + std::to_string(point) +
         ", Ch 6.2.1)";
}

}  // namespace

void SectionControlAngle(State& s) {
  Checks& k = s.checks;
  Analysis& an = s.analysis;
  const Section& c = s.section;
  const Single lim = an.IRlimit;
  auto F = [&s](double v) { return F1(s, v); };

  // 1.
  for (size_t g = 1; g <= 3; ++g) {
    k.secText[g] = ControlText{};
    k.IRsec[g] = 0;
  }
  const double NEd = an.NEd;
  k.NRd = NEd > 0 ? c.NcRd : c.NtRd;

  double& IR1 = k.IRsec[1];
  double& IR2 = k.IRsec[2];
  double& IR3 = k.IRsec[3];
  Integer& col1 = k.colSec[1];
  Integer& col2 = k.colSec[2];
  Integer& col3 = k.colSec[3];

  if (an.NPoints < 0 || an.NPoints > 40) Fault("subscript out of range");

  // 2. The axial force, once, placed at the first check point.
  const double x0 = an.ChPointXrel[0];
  if (NEd < 0) {
    const double ir = std::fabs(Div(NEd, c.NtRd));
    if (Compete(ir, IR1, col1, lim))
      Write(s, k.secText[1], "IR = NEd/NRd = ", F(NEd) + "/" + F(c.NtRd) + " = ", ir,
            PointLimit(s, x0, "L; Ch 6.2.3)"));
  } else if (NEd > 0) {
    const double ir = std::fabs(Div(NEd, c.NcRd));
    if (Compete(ir, IR1, col1, lim))
      Write(s, k.secText[1], "IR = NEd/NRd = ", F(NEd) + "/" + F(c.NcRd) + " = ", ir,
            PointLimit(s, x0, "L; Ch 6.2.4)"));
  }

  const double a = static_cast<double>(c.alfa) * PiSingle / 180;
  const double ca = std::cos(a), sa = std::sin(a);
  const bool equal = s.project.ProfileType == 10;

  // 3. Every check point.
  for (int i = 0; i <= an.NPoints; ++i) {
    const size_t ix = static_cast<size_t>(i);
    const double x = an.ChPointXrel[ix];
    k.MyEd = an.MyPt[ix];
    k.MzEd = an.MzPt[ix];
    k.VyEd = std::fabs(an.VyPt[ix]);
    k.VzEd = std::fabs(an.VzPt[ix]);
    const double My = k.MyEd, Mz = k.MzEd, VyEd = k.VyEd, VzEd = k.VzEd;
    const double n = -Div(NEd, k.NRd);

    // a. The corners about y and z.
    {
      const double q[4] = {0, std::fabs(n + Div(My, c.MytRd) - Div(Mz, c.MzlRd)),
                           std::fabs(n - Div(My, c.MybRd) - Div(Mz, c.MzlRd)),
                           std::fabs(n - Div(My, c.MybRd) + Div(Mz, c.MzrRd))};
      const int pt = WorstCorner(q);
      const double MyRdPt = pt == 1 ? c.MytRd : c.MybRd;
      const double MzRdPt = pt == 3 ? static_cast<double>(c.MzrRd) : c.MzlRd;
      if (Compete(q[pt], IR1, col1, lim))
        Write(s, k.secText[1], "IR = NEd/NRd+My,Ed/My,Rd+Mz,Ed/Mz,Rd = ",
              F(NEd) + "/" + F(k.NRd) + "+" + F(My) + "/" + F(MyRdPt) + "+" + F(Mz) + "/" + F(MzRdPt) + " = ",
              q[pt], CornerLimit(s, x, pt));
    }

    // b. The moments about the principal axes.
    const double Mu = My * ca + Mz * sa;
    const double Mv = -My * sa + Mz * ca;

    // c. The corners about u and v. The heel of an equal angle lies on the u axis.
    {
      const auto& MuRd = c.MuRd;
      const auto& MvRd = c.MvRd;
      const double q2 =
          equal ? std::fabs(n - Div(Mv, MvRd[2])) : std::fabs(n + Div(Mu, MuRd[2]) - Div(Mv, MvRd[2]));
      const double q[4] = {0, std::fabs(n - Div(Mu, MuRd[1]) + Div(Mv, MvRd[1])), q2,
                           std::fabs(n + Div(Mu, MuRd[3]) + Div(Mv, MvRd[3]))};
      const int pt = WorstCorner(q);
      const size_t p = static_cast<size_t>(pt);
      if (Compete(q[pt], IR2, col2, lim))
        Write(
            s, k.secText[2], "IR = NEd/NRd+Mu,Ed/Mu,Rd+Mv,Ed/Mv,Rd = ",
            F(NEd) + "/" + F(k.NRd) + "+" + F(Mu) + "/" + F(MuRd[p]) + "+" + F(Mv) + "/" + F(MvRd[p]) + " = ",
            q[pt], CornerLimit(s, x, pt));
    }

    // d. Shear of the legs, against the resistances of the section.
    if (VzEd != 0) {
      const double ir = Div(VzEd, c.VzRd);
      if (Compete(ir, IR3, col3, lim))
        Write(s, k.secText[3], "IR = Vz,Ed/Vz,Rd = ", F(VzEd) + "/" + F(c.VzRd) + " = ", ir,
              PointLimit(s, x, "L; Ch 6.2.6)"));
    }
    if (VyEd != 0) {
      const double ir = Div(VyEd, c.VyRd);
      if (Compete(ir, IR3, col3, lim))
        Write(s, k.secText[3], "IR = Vy,Ed/Vy,Rd = ", F(VyEd) + "/" + F(c.VyRd) + " = ", ir,
              PointLimit(s, x, "L; Ch 6.2.6)"));
    }
  }

  // 4.
  an.IRsection = IR1 > IR2 ? IR1 : IR2;
  if (IR3 > an.IRsection) an.IRsection = IR3;
}

}  // namespace vn
