// Circles with an outline: small ones are sprites, made once and copied.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "draw/canvas.h"

namespace orvane {

// Measures are pixels of the canvas. The outline is drawn upon the circle, half of it inside.
struct Ball {
  double Radius = 0;
  double Width = 1;  // of the outline
  Colour Ink = 0;    // of the outline
  Colour Fill = 0;
  bool Filled = true;

  friend bool operator==(const Ball&, const Ball&) = default;
};

// A ball in its square: a word's top byte is how much of the pixel it covers.
struct Sprite {
  struct Row {
    int First = 0, Last = 0;            // pixels that are touched, one past the last
    int SolidFirst = 0, SolidLast = 0;  // pixels of these that hide what is below
  };
  int Side = 0;    // pixels to a row of the ball
  int Stride = 0;  // words to a row, with empty ones behind the ball
  int Left = 0;    // of the square, from the pixel of the centre; its top is the same
  std::vector<Row> Rows;
  std::vector<std::uint32_t> Words;
};

// The balls that were drawn lately, each at 4 by 4 places within a pixel.
class BallSprites {
 public:
  // Draws a ball about a point; a whole number is the centre of a pixel.
  void Draw(const Canvas& canvas, double x, double y, const Ball& ball);

 private:
  static constexpr int kPhases = 4;
  struct Set {
    Ball Of;
    std::unique_ptr<Sprite> At[kPhases * kPhases];
  };
  Set& SetOf(const Ball& ball);

  std::vector<std::unique_ptr<Set>> sets_;  // the common ones in front
  std::size_t words_ = 0;                   // in all sprites
};

}  // namespace orvane
