// Where a widget stands, in the toolkit's rectangles, and a painter that counts device pixels
// there.
#pragma once

#include <QPainter>
#include <QRect>

#include "look/scale.h"

namespace orvane {

inline QRect RectOf(const PixelBox& box) { return {box.Left, box.Top, box.Width, box.Height}; }

struct Spot {
  QRect Face;  // the control itself, in device pixels of the desk
  QRect Hull;  // with what is painted around it, in the toolkit's pixels
};
Spot SpotOf(const Scale& scale, const Place& absolute, double outset);

// Puts the painter into device pixels with the face's top left at 0, 0. The hull stands in the
// desk.
void EnterDevicePixels(QPainter& painter, const Scale& scale, const Spot& spot);

}  // namespace orvane
