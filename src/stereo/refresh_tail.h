// The tail of a command that has changed the picture: the composed views that are on are made
// again.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// Which of the three tests a command's tail makes; they differ on purpose.
enum class Tail {
  All,                // stereo, enantiomers, red-green
  PairsOnly,          // stereo, enantiomers: the ribbon and the labels
  StereoAndRedGreen,  // a pointer drag
};

// In the order stereo pair, D/L view, red-green picture.
void RefreshTail(Orvane_Desk& desk, Tail tail = Tail::All);

}  // namespace orvane
