// What stands on the screen, for those who take it out of the program as a file or on paper.
#pragma once

#include <QImage>

#include "controls/window.h"
#include "raster/raster.h"

namespace orvane {

class Screen {
 public:
  virtual ~Screen() = default;

  Raster raster;  // shared by all pictures, for what it keeps between paints

  virtual QSize SizeOf(Control& control) = 0;  // device pixels
  // As its widgets paint it, without a filter for eyes.
  virtual QImage Grab(Control& control) = 0;
  // The same, but laid out once more, unseen, in about so many pixels.
  virtual QImage GrabAs(Window& window, QSize size) = 0;
};

}  // namespace orvane
