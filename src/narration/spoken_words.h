// What a screen reader says of a control at this moment, where that hangs on more than the control.
#pragma once

#include <string>

#include "desk/orvane_desk.h"

namespace orvane {

// The picture, and the pair of views in its place, are called by what they show. Any other control
// has its spoken name.
std::string NameNow(const Orvane_Desk& desk, const Control& control);

// The picture tells on which atom the walk stands and how that was placed; else it is the tip, what
// a click does.
std::string DescriptionNow(const Orvane_Desk& desk, const Control& control);

}  // namespace orvane
