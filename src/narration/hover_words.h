// What is said about the point under a resting pointer, beyond the control's own tip.
#pragma once

#include <string>

#include "desk/orvane_desk.h"

namespace orvane {

// Pixels of a control around the pointer: about as far as a press picks.
inline constexpr float kRestReach = 4;

// The words for a point of a control, in its own pixels. Over the picture and the halves of a split
// view they say which atom is there and, on a second line, how it was placed; over an area of the
// map, what the circle there is. Empty for every other control, where there is neither, and for
// atoms while they spin.
std::string RestWords(const Orvane_Desk& desk, const Control& control, float x, float y);

}  // namespace orvane
