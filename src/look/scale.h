// Takes twips to the screen. Both corners of a control are rounded to whole device pixels, rather
// than its width, so that gaps stay even and edges crisp at every density and size.
#pragma once

#include "controls/control.h"

namespace orvane {

// A rectangle in pixels; its right and lower end are Left + Width and Top + Height.
struct PixelBox {
  int Left = 0, Top = 0, Width = 0, Height = 0;
  friend bool operator==(const PixelBox&, const PixelBox&) = default;
};

struct Scale {
  double Factor = 1;  // of a maximised desk
  double Ratio = 1;   // device pixels to a pixel of the skin

  double Unit() const { return Factor * Ratio; }  // device pixels to a pixel of the plan
  int Edge() const;                               // width of an edge of one pixel
  int Device(double pixels) const;                // pixels of the plan, rounded
  PixelBox Device(const Place& twips) const;
};

// Where a control stands: itself in device pixels of the desk, and the skin's whole pixels that
// cover it with what is painted around it.
struct PixelSpot {
  PixelBox Face;
  PixelBox Hull;
};
PixelSpot PixelSpotOf(const Scale& scale, const Place& absolute, double outset);

}  // namespace orvane
