// A straight stroke of a pen, antialiased by the distance of each pixel's centre from it.
#pragma once

#include "raster/canvas.h"

namespace orvane {

// Places are pixels of the canvas, a whole number being the centre of a pixel.
struct Segment {
  double X1 = 0, Y1 = 0, X2 = 0, Y2 = 0;
  double Width = 1;
  Colour Ink = 0;
  // An end is round unless it is flat. A flat end that is covered runs half a pixel on, below the
  // stroke that goes on from it, so that the ground does not shine through the joint.
  bool FlatStart = false, FlatEnd = false;
  bool CoveredEnd = false;
};

// Draws what of it falls on the canvas. A place that is no number, or beyond all numbers, draws
// nothing.
void DrawSegment(const Canvas& canvas, const Segment& segment);

// The same in dashes of `dash` pixels with gaps of the same length, from its start on.
void DrawDashes(const Canvas& canvas, const Segment& segment, double dash);

}  // namespace orvane
