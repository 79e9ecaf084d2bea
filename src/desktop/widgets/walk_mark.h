// What the user sees of the walk over the atoms: painted over the picture on the screen, never onto
// the surface, so no file and no page shows it.
#pragma once

#include <QPainter>

#include "desk/orvane_desk.h"

namespace orvane {

// A thin ring around the atom, and in a corner of the picture its words and how it was placed.
// `face` is the picture in device pixels, `unit` device pixels to a pixel of the surface.
void PaintWalkMark(QPainter& painter, const QRect& face, double unit, const Orvane_Desk& desk);

// The ring of the keyboard, inside the picture: bright on dark, so that it shows on any background.
void PaintPictureRing(QPainter& painter, const QRect& face, double unit);

}  // namespace orvane
