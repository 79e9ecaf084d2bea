// Every field that names an atom names one of the structure.
#pragma once

#include <string>

#include "desk/orvane_desk.h"

namespace orvane {

inline constexpr int kMostAtoms = 596;  // of the longest text of records

// `whole`: no load has stopped halfway, so that what is from 1 to a count is of this structure.
std::string WrongNumberOfAnAtom(const Orvane_Desk& desk, bool whole);

}  // namespace orvane
