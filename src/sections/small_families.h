// Four small families whose dimensions or properties the user types: the T section (type 26), the
// flat bar (28), the circular tube (31) and the general section (41), whose properties are typed
// themselves. Each sets only the part of the section record that its checks read.
#pragma once

namespace vn {

struct State;

// Flat bar h x t: a rectangle, class 1 whatever its proportions, bending about y only.
void FlatProperties(State& s);
void FlatClasses(State& s);

// T section: a flange b x tf over a web tw x (h - tf), both outstands; an axial member.
void TeeProperties(State& s);
void TeeClasses(State& s);

// Circular tube d x t, hot finished or cold formed; one class for every force.
void TubeProperties(State& s);
void TubeClasses(State& s);

// General section: the typed properties and classes; the yield strength of the thin column.
void GeneralProperties(State& s);
void GeneralClasses(State& s);

}  // namespace vn
