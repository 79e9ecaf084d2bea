// Checks that every field that names an atom names one of the structure.
#pragma once

#include <string>

#include "desk/orvane_desk.h"

namespace orvane {

inline constexpr int kMostAtoms = 596;  // of the longest text of records

// `whole`: no load has stopped halfway, so everything from 1 to a count belongs to this structure.
std::string WrongNumberOfAnAtom(const Orvane_Desk& desk, bool whole);

}  // namespace orvane
