// The picture of the heaviest desk, as a list of strokes.
#pragma once

#include "raster/picture.h"

namespace orvane::bench {

Picture HeaviestScene();

}  // namespace orvane::bench
