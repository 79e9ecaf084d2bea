// How a button, a toggle or a panel looks in each of its states.
#pragma once

#include "controls/control.h"
#include "look/dress.h"

namespace orvane {

// What is happening to it.
struct Touch {
  bool Off = false;    // not enabled
  bool Under = false;  // the pointer is over it
  bool Held = false;   // by a button or a key
};

struct BevelLook {
  Argb Face = palette::kNone;
  Argb Edge = palette::kNone;
  Argb LowerEdge = palette::kNone;  // kNone: as the other edges
  Argb Ink = palette::kInk;
  Type Letters{};
  bool Sunken = false;  // with a shade below the upper edge, while it has no ring
};

// For a control with DressShape::Bevel.
BevelLook BevelLookOf(const Control& control, const Dress& dress, Touch touch);

// The shade below the upper edge of a sunken plate: its share of kDeep.
inline constexpr float kSunkenShade = 0.27F;

// The edge around a swatch of that colour: the colour itself, darker.
Argb SwatchEdge(Argb face);

}  // namespace orvane
