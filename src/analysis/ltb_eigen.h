// The elastic critical moment of a member by the lateral torsional eigenvalue problem of a thin-walled
// beam: lateral displacement v, its slope, the twist phi and its rate at each node, Hermite cubics in
// each element. The elastic stiffness comes from EIz, GIt and EIw; the geometric stiffness from the
// design moment My(x), the Wagner term of a single symmetric section and the loads that act off the
// shear centre. The factor on the design diagram at which the member buckles laterally is the
// smallest positive eigenvalue of K d = lambda (-Kg) d.
//
// This unit alone uses a linear algebra library (Eigen); its interface is plain numbers, so that the
// rest of the core stays with the standard library.
#pragma once

#include <vector>

namespace vn {

// What is held at one end of the member. A fork holds v and phi and leaves both rates free.
struct LtbEnd {
  bool lateral = true;   // v = 0
  bool twist = true;     // phi = 0
  bool bending = false;  // v' = 0: the flanges held against lateral bending (k < 1)
  bool warping = false;  // phi' = 0
};

// A distributed load from x1 to x2 (mm), q1 to q2 (N/mm), linear between; positive in the sense that
// gives a sagging moment on a simple beam (towards the bottom flange).
struct LtbLineLoad {
  double x1 = 0, x2 = 0, q1 = 0, q2 = 0;
};
// A point force P (N) at x (mm), positive as a line load.
struct LtbPointLoad {
  double x = 0, P = 0;
};

struct LtbMember {
  double L = 0;    // mm
  double EIz = 0;  // N mm2
  double GIt = 0;  // N mm2
  double EIw = 0;  // N mm4
  // Wagner coefficient beta_y (mm) of a single symmetric section: positive when the top flange is
  // the larger, so that a positive (top compressing) moment is helped; 0 for a double symmetric one.
  double betaY = 0;
  // The design moment diagram at ascending positions xs (mm), Nmm, linear between; positive My
  // compresses the top flange. At least two points, the first at 0 and the last at L.
  std::vector<double> xs, My;
  // Height of the transverse loads above the shear centre, mm (top flange h/2 on a double symmetric I).
  double zg = 0;
  std::vector<LtbLineLoad> lineLoads;
  std::vector<LtbPointLoad> pointLoads;
  LtbEnd start, end;
  // Inner restraints, mm from x = 0, each holding v and phi.
  std::vector<double> restraints;
  // Elements along the member, shared out between the parts that the restraints make (4 in each at
  // the least). 16 give Mcr within 0.01 % of the converged value on a member without restraints.
  int elements = 16;
};

struct LtbEigenResult {
  bool found = false;  // a positive critical factor exists
  double factor = 0;   // the factor on the diagram and its loads at which the member buckles
};

// The smallest positive factor on the moment diagram (and the loads with it) at which the member
// buckles laterally. Not found when the data are not finite or not positive where they must be,
// when the stiffness is singular (a mechanism), or when no load factor of either sign is positive
// (no moment, or a diagram that compresses no flange).
LtbEigenResult LtbCriticalFactor(const LtbMember& m);

}  // namespace vn
