// What the picture shows, in one sentence.
#pragma once

#include <string>

#include "desk/orvane_desk.h"

namespace orvane {

// "Alanine, 13 atoms, ball and stick, labels, spinning": the structure, how it is drawn, and what
// is switched on. "Empty picture" while nothing is drawn.
std::string PictureWords(const Orvane_Desk& desk);

}  // namespace orvane
