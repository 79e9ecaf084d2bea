// Turns a picture's strokes into antialiased pixels at any scale. Nothing is drawn at one size and
// stretched to another, except a backdrop, which has pixels of its own.
#pragma once

#include <cstdint>
#include <memory>

#include "raster/picture.h"

namespace orvane {

// Keeps balls, labels and backdrops between paints; the pixels do not depend on what it keeps.
class Raster {
 public:
  Raster();
  ~Raster();

  // Fills `height` rows of `width` pixels 0xFFRRGGBB, `stride` pixels from one row to the next.
  // `scale` is canvas pixels to a surface pixel, for places, pens, radii, type and backdrop alike.
  void Paint(const Picture& picture, double scale, std::uint32_t* words, int width, int height,
             int stride);

  // The whole picture at that scale, in an image of its own.
  Bitmap Paint(const Picture& picture, double scale = 1);

 private:
  struct Caches;
  std::unique_ptr<Caches> caches_;
};

}  // namespace orvane
