// What lies behind the controls of a window: its background, and the dark band of a title.
#pragma once

#include <string_view>

#include "look/palette.h"

namespace orvane {

struct WindowDress {
  std::string_view Window;
  Argb Ground = palette::kGround;
  int Band = 0;         // twips from the top, dark
  bool Centred = true;  // opens in the middle of the screen, not at its own place
};

const WindowDress& WindowDressOf(std::string_view window);

}  // namespace orvane
