// The five background pictures. Each is painted by rule when it is first asked for and kept from
// then on, so that they take no room in the program and no time at the start.
#pragma once

#include <memory>

#include "draw/colours_state.h"

namespace orvane {

inline constexpr int kBackgroundCount = 5;
inline constexpr int kBackgroundSide = 368;  // pixels, somewhat more than the surface's 360

// BakImg[index], index from 0; painted the first time. Fails outside 0 to 4.
std::shared_ptr<const Bitmap> BackgroundPicture(Colours& colours, int index);

}  // namespace orvane
