// The member symbol of the main form (pic11) and of the report, the small pictures of the lateral
// torsional buckling frame, and UpdateMainFormState (core/pipeline.h), the last stage of a run,
// which brings the main form's optional fields in line with the family, the supports and the
// forces, and changes ltbOn, webStiffeners, rigidEndPost and chModal for the next run.
#pragma once

#include "graphics/canvas.h"

namespace vn {

struct State;

// A horizontal member with its end supports, the spring values, the end posts, the web stiffeners
// at distance a, and "L = " with the length. Drawn on 0..100 by 0..18.
void DrawMemberSymbol(draw::Canvas& c, const State& s);

// The load level of lateral torsional buckling (1 top flange, 2 shear centre, 3 bottom flange,
// 4 at Za), on an I section; the single symmetric I (type 22) has its own set.
void DrawLoadLevelPicture(draw::Canvas& c, int loadLevel, bool singleSymmetric);

// The sign of lateral torsional buckling: a beam seen from above, bowed sideways.
void DrawLtbPicture(draw::Canvas& c);

}  // namespace vn
