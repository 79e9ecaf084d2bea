// Numbers read from text and written to text, with a point as the decimal separator everywhere.
#pragma once

#include <string>
#include <string_view>

#include "runtime/int16.h"

namespace orvane {

// The number at the start of a text: leading blanks are skipped, the first character that is not
// part of a number ends it, and a text that starts with no number gives 0.
double LenientNumber(std::string_view text);

// The whole text as an integer: blanks at both ends, one sign and digits. Anything else, or a value
// outside 16 bits, fails.
Int16 StrictInt16(std::string_view text);

// The whole text as a number: blanks at both ends, a sign, digits, decimals and an exponent are
// allowed; rounded half to even. Anything else, or a value outside 16 bits, fails.
Int16 RoundedInt16(std::string_view text);

// A value narrowed to 32 bits, written with seven significant digits and no exponent; trailing
// zeros are kept, so that a text cut to a field is never too short for it.
std::string SingleText(double value);

// "00.00": at least two digits before the point and two after it, from the value narrowed to 32
// bits; a minus before a negative value, but never a minus zero.
std::string TwoDecimals(double value);

// Every "," becomes ".": record fields keep the point, whatever wrote the number.
std::string Com2Pnt(std::string text);

}  // namespace orvane
