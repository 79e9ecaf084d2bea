// How plates look: faces, edges, type. A control without a row of its own looks as its kind does;
// panels and buttons then change with bevel, text style and state.
#pragma once

#include <string_view>

#include "controls/control.h"
#include "look/palette.h"
#include "look/type.h"

namespace orvane {

enum class Side { Left, Centre, Right };

enum class DressShape {
  Plain,    // face, edge and line of text
  Bevel,    // follows bevel and text style, with hover and press
  Heading,  // joined to the list below: no lower corners, no lower edge
  Swatch,   // face is the control's back colour
  Tab,      // a tab at the desk's edge, with its caption in a flyout
  GoOn,     // round, with an arrow
  Icon,     // the program's icon
  Link,     // underlined
  Reading,  // a text broken into lines
  Greek,    // a letter over the gap in a reading text
  RoundPicture,
};

struct Dress {
  std::string_view Control;  // name with the window's prefix; without an index, for a whole array
  DressShape Shape = DressShape::Plain;
  Argb Face = palette::kNone;
  Argb Edge = palette::kNone;
  int Corner = 0;  // pixels
  Argb Ink = palette::kInk;
  Type Letters{};
  Side Align = Side::Centre;
  int TextLeft = 0, TextRight = 0;  // pixels kept free
  int TextTop = -1;                 // pixels to the box of one line; -1: in the middle
  int LineHeight = 0;               // of a text of several lines, broken where it is wider
  int GrowsTo = 0;                  // twips; the width follows the caption, up to this
  bool Floats = false;              // above everything on the desk, with a shadow
  bool Upwards = false;             // text turned by 90 degrees
  bool LooksPressed = false;        // Bevel: drawn as bevel 1, whatever its style
};

const Dress& DressOf(const Control& control);

}  // namespace orvane
