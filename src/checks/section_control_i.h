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
// 6.2.9.1 (5): MyRd reduced for the axial force; n is taken against NtRd.
void ComputeMNyRd(State& s);
// 6.2.9.1 (5): MzRd reduced for the axial force.
void ComputeMNzRd(State& s);

// The single symmetric I: the moment resistance of class `cls` for the sign of MyEd, reduced for a
// shear VzEd above half VzRd (sets rhoZ); no cap by a class of pure bending.
double MyRdSigned(State& s, double cls, double MyEd);
// Its MN,y,Rd, with the web share a = (A - (tf1 b1 + b2 + tf2)) / A.
void MNyRdSingleSym(State& s);

// The Limit text of a line at a check point: " < " + IRlimit + " (" + x/L + tail.
std::string PointLimit(const State& s, double xRel, const char* tail);

}  // namespace vn
