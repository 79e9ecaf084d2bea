// The colours that the user sets, and the background pictures.
#pragma once

#include <array>
#include <memory>

#include "raster/picture.h"
#include "runtime/colour.h"
#include "runtime/int16.h"

namespace orvane {

struct Colours {
  Colour PenColour = kPalette7;  // of the molecule without element colours, and of every trace
  int ColourByElement = 1;
  Colour LabelColour = kPalette15;
  Colour PlaneColour = kPalette3;
  Int16 BackgroundIndex = -1;  // 0 to 4: picture; -1: plain
  Int16 ColourTarget;          // what a swatch sets: 0 labels, 1 molecule, 2 planes, 3 background
  Int16 ColourRefused;         // result of SwatchClash

  std::array<std::shared_ptr<const Bitmap>, 5> BakImg;  // decoded when first asked for
};

}  // namespace orvane
