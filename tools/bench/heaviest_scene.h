// The heaviest picture of a stock structure: 123 atoms and 136 bonds, bonds and balls at their
// largest, with labels and hydrogen bonds, on the surface of 360 by 360.
#pragma once

#include "draw/picture.h"

namespace orvane::bench {

Picture HeaviestScene();

}  // namespace orvane::bench
