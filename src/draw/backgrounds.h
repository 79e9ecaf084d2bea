// The five background pictures. A maker under tools/ draws their files by rule, and they are part
// of the program. Each is decoded when it is first asked for, so that none takes time at the start.
#pragma once

#include <memory>

#include "desk/colours.h"

namespace orvane {

inline constexpr int kBackgroundCount = 5;
inline constexpr int kBackgroundSide = 368;  // pixels, a little more than the surface's 360

// BakImg[index], index from 0; decoded the first time. Fails outside 0 to 4.
std::shared_ptr<const Bitmap> BackgroundPicture(Colours& colours, int index);

}  // namespace orvane
