// The symbols of the end supports: the pictures of the option buttons cbutt0..cbutt5 and the ends of
// the member symbol.
#pragma once

#include <utility>

#include "graphics/canvas.h"

namespace vn {

enum class EndKind { Pinned, Roller, Fixed, Spring, Free };

// The ends at x = 0 and x = L of a support type: 0 simple, 1 pinned and fixed, 2 fixed at both ends,
// 3 springs at both ends, 4 cantilever, 5 pinned and spring. An unknown type gives two free ends.
std::pair<EndKind, EndKind> SupportEnds(int supportType);

// One end support at the member's end `at`, drawn `size` units high (units equal in x and y); the
// fixed wall and the spring face away from the member, to the left at x = 0, to the right at x = L.
void DrawSupportEnd(draw::Canvas& c, draw::Point at, EndKind kind, bool rightEnd, double size,
                    const draw::Pen& pen);

// The picture of an option button: the member and its two ends on a scale of 0..100 by 0..50.
void DrawSupportIcon(draw::Canvas& c, int supportType);

// The picture of a buckling length button: 1 cantilever (2.0), 2 pinned-pinned (1.0), 3 pinned at
// the top and fixed at the foot (0.7), 4 fixed-fixed (0.5), 5 held over the length (buckling not
// relevant), 6 a typed factor. A standing column and its buckled shape on a scale of 0..30 by 0..60.
void DrawBucklingCaseIcon(draw::Canvas& c, int picture);

}  // namespace vn
