// From twips to the screen. Both corners of a control are rounded to whole device pixels, not its
// width, so that gaps stay even and edges crisp at every density and size.
#pragma once

#include <QPainter>
#include <QRect>
#include <QWidget>

#include "controls/control.h"

namespace orvane {

struct Scale {
  double Factor = 1;  // of a maximised desk
  double Ratio = 1;   // device pixels to a pixel of the toolkit

  double Unit() const { return Factor * Ratio; }  // device pixels to a pixel of the plan
  int Edge() const;                               // width of an edge of one pixel
  int Device(double pixels) const;                // pixels of the plan, rounded
  QRect Device(const Place& twips) const;
};

// Where a widget stands: its face in device pixels of the desk, and the toolkit's pixels round it.
struct Spot {
  QRect Face;  // the control itself
  QRect Hull;  // with what is painted round it, in the toolkit's pixels
};
Spot SpotOf(const Scale& scale, const Place& absolute, double outset);

// Puts the painter into device pixels with the face's top left at 0, 0. `hull` stands in the desk.
void EnterDevicePixels(QPainter& painter, const Scale& scale, const Spot& spot);

}  // namespace orvane
