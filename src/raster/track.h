// The pixels of a straight pen stroke whose place on the canvas is known: four at a time, or eight
// where the processor has registers for them. Both give the same pixels.
#pragma once

#include "raster/canvas.h"

namespace orvane {

// How the ends look. A dashed track has flat ends.
enum Ends : unsigned { kRound = 0, kFlatStart = 1, kFlatEnd = 2, kFlat = 3, kDashed = 7 };

// In pixels of the canvas; a whole number is the centre of a pixel. Both ends lie no farther off
// the canvas than the width of the pen and two pixels.
struct Track {
  double X = 0, Y = 0;            // start
  double AlongX = 1, AlongY = 0;  // direction, of length 1
  double Length = 0;
  double Skipped = 0;  // where in its pattern a dashed track starts
  double Width = 1;    // of the pen; one finer than a pixel draws a fainter pixel
  double Dash = 0;     // length of a dash and of a gap
  Colour Ink = 0;
};

void DrawTrack(const Canvas& canvas, const Track& track, Ends ends);

// The two ways to draw it. The wide one needs a processor for which HasWideRegisters is true.
bool HasWideRegisters();
void DrawTrackNarrow(const Canvas& canvas, const Track& track, Ends ends);
void DrawTrackWide(const Canvas& canvas, const Track& track, Ends ends);

}  // namespace orvane
