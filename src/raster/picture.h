// What a surface holds, as data: strokes in call order over a plain colour or an image.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "runtime/colour.h"

namespace orvane {

// An image of opaque pixels 0xFFRRGGBB, row by row from the top left.
struct Bitmap {
  int Width = 0, Height = 0;
  std::vector<std::uint32_t> Words;
};

enum class StrokeKind : std::uint8_t { Line, Circle, Print };

// One call on a surface. Coordinates are surface pixels, narrowed to 32 bits.
struct Stroke {
  StrokeKind Kind = StrokeKind::Line;
  std::uint8_t Width = 1;  // DrawWidth: pen of a line, outline of a circle
  std::uint8_t Style = 0;  // a line: DrawStyle, 0 solid, 2 dotted; a circle: FillStyle, 0 filled
  float X1 = 0, Y1 = 0;    // start of a line, centre of a circle, top left of a text
  float X2 = 0, Y2 = 0;    // end of a line; X2 is the radius of a circle
  Colour Ink = 0;          // of the line, the outline or the text
  Colour Fill = 0;         // of a circle
  std::uint32_t Text = 0;  // index into Texts of the list

  friend bool operator==(const Stroke&, const Stroke&) = default;
};

// A surface's content at one moment: shared, and never changed.
struct Picture {
  Colour BackColor = 0;
  std::shared_ptr<const Bitmap> Backdrop;  // drawn from the top left at its own size; may be null
  int Width = 0, Height = 0;               // surface pixels
  std::vector<Stroke> Strokes;
  std::vector<std::string> Texts;  // distinct texts of the Print strokes
};

}  // namespace orvane
