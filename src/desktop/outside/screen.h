// What is on the screen, for the code that writes it to a file or prints it.
#pragma once

#include <QImage>

#include "controls/window.h"
#include "raster/raster.h"

namespace orvane {

class Screen {
 public:
  virtual ~Screen() = default;

  Raster raster;  // shared by all pictures, because of what it keeps between paints

  virtual QSize SizeOf(Control& control) = 0;  // device pixels
  // As its widgets paint it, without a filter for eyes.
  virtual QImage Grab(Control& control) = 0;
  // The same, but laid out again, unseen, in about that many pixels.
  virtual QImage GrabAs(Window& window, QSize size) = 0;
};

}  // namespace orvane
