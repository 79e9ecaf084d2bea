// Compares what a control says and how it looks with the field that it shows.
#pragma once

#include <string>

#include "desk/orvane_desk.h"

namespace orvane {

// Empty if all is well.
std::string UnknownCaption(const Orvane_Desk& desk);
std::string OtherThanItsField(const Orvane_Desk& desk);

// The number of the axis whose tag is pressed; -1 unless exactly one is.
int PressedTag(const MainWindow& main);

}  // namespace orvane
