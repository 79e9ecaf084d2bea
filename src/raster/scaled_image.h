// The image behind the strokes, from the top left of the canvas.
#pragma once

#include <memory>
#include <vector>

#include "raster/canvas.h"
#include "raster/picture.h"

namespace orvane {

// Images at the sizes at which they were shown lately.
class Backdrops {
 public:
  void Draw(const Canvas& canvas, const std::shared_ptr<const Bitmap>& image, double scale);

 private:
  struct Scaled {
    std::shared_ptr<const Bitmap> Of;
    double Scale = 1;
    Bitmap Image;
  };
  std::vector<Scaled> scaled_;  // the latest at the end
};

// An image of that size with the same top left as `image`, in which each pixel of `image` is
// `scale` pixels wide. Shrunk pixels are averaged, enlarged ones run into each other.
Bitmap Resized(const Bitmap& image, double scale, int width, int height);

}  // namespace orvane
