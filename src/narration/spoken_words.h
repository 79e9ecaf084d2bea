// What a screen reader says of a control at this moment, where that depends on more than the
// control.
#pragma once

#include <string>

#include "desk/orvane_desk.h"

namespace orvane {

// The picture, and the pair of views in its place, are named by what they show. Any other control
// has its spoken name.
std::string NameNow(const Orvane_Desk& desk, const Control& control);

// For the picture, the atom on which the walk stands and how it was placed; otherwise the tip,
// which says what a click does.
std::string DescriptionNow(const Orvane_Desk& desk, const Control& control);

}  // namespace orvane
