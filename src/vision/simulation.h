// What a colour looks like to an eye that lacks one kind of cone.
#pragma once

#include "runtime/colour.h"
#include "vision/eye.h"

namespace orvane {

// Emitted light, 0 to 1 for each channel; twice the number is twice the light.
struct Light {
  double Red = 0, Green = 0, Blue = 0;
};

Light LightOf(Colour colour);  // by the curve of sRGB
Colour ColourOf(Light light);  // the nearest; what no screen can show is clipped

// The light that looks to everybody the way this one looks to that eye. Red, green and blue stay
// between 0 and 1, as on a screen.
Light Simulated(Eye eye, Light light);

inline Colour Simulated(Eye eye, Colour colour) {
  return ColourOf(Simulated(eye, LightOf(colour)));
}

}  // namespace orvane
