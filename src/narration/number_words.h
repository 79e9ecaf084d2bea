// Numbers as a reader expects them: the point as decimal separator everywhere, a true minus sign.
#pragma once

#include <string>

namespace orvane {

std::string NumberWords(double number);   // as short as possible: "1.5", "−38.648"
std::string DegreeWords(double degrees);  // one decimal: "−65.0°", and "180.0°" for half a turn
std::string LengthWords(double angstrom);  // "1.5 Å"

}  // namespace orvane
