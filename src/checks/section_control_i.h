// The moment resistances of the section control of the I family at one check point, shared with
// the section controls of the other families. They read and write the work values of Checks
// (classCur, MyEd ... VzEd, MyRd, MzRd, MNyRd, MNzRd, rhoY, rhoZ) and the active moduli Wy, Wz.
#pragma once

#include <string>

namespace vn {

struct State;

// 6.2.5 and 6.2.8: MyRd of the class classCur, reduced for a shear VzEd above half VzRd, and
// capped by MyRdClass.
void ComputeMyRd(State& s);
// The twin about z, with the flanges in place of the web.
void ComputeMzRd(State& s);
// ComputeMyRd with the shear taken by `webs` webs of hw x tw.
void MyRdOfWebs(State& s, double webs);
// ComputeMzRd with the shear taken by walls of depth x tf: `plasticWalls` of them in the plastic
// form, `elasticWalls` in the elastic and effective ones.
void MzRdOfWalls(State& s, double depth, double plasticWalls, double elasticWalls);
// 6.2.9.1 (5): MyRd reduced for the axial force; n is taken against NtRd.
void ComputeMNyRd(State& s);
// 6.2.9.1 (5): MzRd reduced for the axial force.
void ComputeMNzRd(State& s);

// What a family changes in the cross-section control of the I family: the exponents of the
// biaxial forms, whether the axial line names the first point, the classification under a force
// pair, the four moment resistances at a point and the shear resistances of a point.
struct SectionControlRules {
  void (*exponents)(State&);  // sets Checks::alfa and betaN
  bool axialPlace;
  double (*classY)(State&, double N, double M);
  double (*classZ)(State&, double N, double M);
  void (*myRd)(State&);
  void (*mzRd)(State&);
  void (*mnyRd)(State&);
  void (*mnzRd)(State&);
  void (*shear)(State&, double NEd, double MyEd);
  const char* exponentFormat = "0.00";  // the exponents in the Numbers of the biaxial forms
  bool shearReduces = true;             // false: MRd is never reduced for shear, and no MV or MVN text
  bool aboutZ = true;                   // false: bending about y only, no Mz and no Vy lines
  // true: MyEd keeps its sign for the classes (classMyPos, classMyNeg), the resistance and the
  // shear of a point, and the linear N + M forms keep the resistance of the pair's class.
  bool signedMy = false;
};

// alfa = 2 and beta = 5n, not below 1, with n against NtRd.
void ExponentsI(State& s);

// The control of 6.2 at every check point by the given rules.
void RunSectionControl(State& s, const SectionControlRules& rules);
// The single symmetric I: the moment resistance of class `cls` for the sign of MyEd, reduced for a
// shear VzEd above half VzRd (sets rhoZ); no cap by a class of pure bending.
double MyRdSigned(State& s, double cls, double MyEd);
// rhoZ of 6.2.8 at the point: (2 VzEd / VzRd - 1)^2, at most 1, when VzEd is above half VzRd.
void RhoZOfPoint(State& s);
// The twin of the HSQ, box and plate families: the resistance of the sign from the section stage
// (MyRdPos or MyRdNeg), less the shear share of two web thicknesses, hw^2 (2 rho tw) / 4 for a
// plastic class and / 6 for an elastic or effective one.
double MyRdSignedPlated(State& s, double cls, double MyEd);
// Its MN,y,Rd, with the web share a = (A - (tf1 b1 + b2 + tf2)) / A.
void MNyRdSingleSym(State& s);

// The Limit text of a line at a check point: " < " + IRlimit + " (" + x/L + tail.
std::string PointLimit(const State& s, double xRel, const char* tail);

}  // namespace vn
