// What a control reads and how it looks, against the field that it speaks of.
#pragma once

#include <string>

#include "desk/orvane_desk.h"

namespace orvane {

// Empty where all is well.
std::string UnknownCaption(const Orvane_Desk& desk);
std::string OtherThanItsField(const Orvane_Desk& desk);

// Number of the axis whose tag is pressed, -1 when it is not just one.
int PressedTag(const MainWindow& main);

}  // namespace orvane
