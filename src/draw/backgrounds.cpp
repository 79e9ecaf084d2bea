#include "draw/backgrounds.h"

#include <array>
#include <embedded/Background1.h>
#include <embedded/Background2.h>
#include <embedded/Background3.h>
#include <embedded/Background4.h>
#include <embedded/Background5.h>

#include "raster/gif_file.h"
#include "runtime/failure.h"

namespace orvane {

std::shared_ptr<const Bitmap> BackgroundPicture(Colours& colours, int index) {
  // In the order of the menu, "Bgr &1" first.
  constexpr std::array kFiles = {embedded::Background1, embedded::Background2,
                                 embedded::Background3, embedded::Background4,
                                 embedded::Background5};
  if (index < 0 || index >= kBackgroundCount) FailSubscript(index);
  const auto slot = static_cast<std::size_t>(index);
  std::shared_ptr<const Bitmap>& picture = colours.BakImg[slot];
  if (picture == nullptr) picture = std::make_shared<Bitmap>(FirstFrameOf(kFiles[slot]()).value());
  return picture;
}

}  // namespace orvane
