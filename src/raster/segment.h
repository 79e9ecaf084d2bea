// A straight stroke of a pen, antialiased by the distance of each pixel's centre from it.
#pragma once

#include "raster/canvas.h"

namespace orvane {

// Places are canvas pixels; a whole number is the centre of a pixel.
struct Segment {
  double X1 = 0, Y1 = 0, X2 = 0, Y2 = 0;
  double Width = 1;
  Colour Ink = 0;
  // An end is round unless it is flat. A flat end that is covered runs on for half a pixel below
  // the stroke that continues it, so that the background does not show through the joint.
  bool FlatStart = false, FlatEnd = false;
  bool CoveredEnd = false;
};

// Draws the part of it that falls on the canvas. A place that is NaN or infinite draws nothing.
void DrawSegment(const Canvas& canvas, const Segment& segment);

// The same in dashes of `dash` pixels with gaps of the same length, from its start on.
void DrawDashes(const Canvas& canvas, const Segment& segment, double dash);

}  // namespace orvane
