// Where a line continues in another of the same width and direction, as the halves of a bond do.
// Such ends are cut flat and the others are round, so corners close and halves meet in a clean
// edge.
#pragma once

#include <cstddef>
#include <span>

#include "raster/picture.h"

namespace orvane {

struct Joints {
  bool Start = false, End = false;
};

// Looks two strokes back and ahead: the second line of a double bond may lie between the halves.
Joints JointsOf(std::span<const Stroke> strokes, std::size_t index);

}  // namespace orvane
