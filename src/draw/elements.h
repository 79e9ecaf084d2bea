// Colours and ball radii by element letter, the third character of an atom's name.
#pragma once

#include <array>
#include <string_view>

#include "runtime/colour.h"

namespace orvane {

struct ElementRow {
  char Letter;
  Colour Ink;         // of bond lines and of the ball
  double BallRadius;  // surface pixels, added to the ball size; van der Waals radius in Angstrom
};

// clang-format off
inline constexpr std::array kElements = {
    ElementRow{'N', Rgb( 60,  60, 240), 1.54},
    ElementRow{'C', Rgb(  0, 240,  80), 1.85},
    ElementRow{'O', Rgb(240,   0,   0), 1.4},
    ElementRow{'S', Rgb(218, 165,  32), 1.85},
    ElementRow{'P', Rgb(160,  32, 240), 1.9},
    ElementRow{'H', Rgb(255, 255, 255), 1.2},   // its line, not its ball, is black on white
    ElementRow{'R', Rgb(255,  20, 147), 1.85},  // a whole side chain, drawn as one atom
};
// clang-format on

// nullptr: no such letter, and the atom is painted like the one before it.
constexpr const ElementRow* FindElement(std::string_view letter) {
  if (letter.empty()) return nullptr;
  for (const ElementRow& row : kElements) {
    if (row.Letter == letter.front()) return &row;
  }
  return nullptr;
}

}  // namespace orvane
