// What a screen reader says of a control: its name and what it is. Told by the control's row, its
// kind and its state, so that every skin says the same.
#pragma once

#include <string>

#include "controls/control.h"

namespace orvane {

// What a control is for somebody who does not see it. A row whose kind does not tell names it.
enum class SpokenRole : std::uint8_t {
  ByKind,
  Button,
  Toggle,  // on or off
  Choice,  // one of a few, of which one is on
  Slider,
  List,
  Dropdown,  // a closed list
  Entry,     // a text to be typed
  Picture,
  Text,
  Heading,
  Link,
  Group,   // holds other controls
  Result,  // read out by itself when its text changes
  MenuItem,
  Window,
  Decoration,  // passed over
};

SpokenRole RoleOf(const Control& control);

// One line: the word of the row, else the caption without mnemonics, else the tip, else what the
// control is. The caption of a row that has none is a text of the moment, and read while it is
// there.
std::string SpokenName(const Control& control);

// Whether a toggle or a choice looks on.
bool LooksOn(const Control& control);

// A caption as it is read out: without mnemonics, one blank between words, a comma between lines.
std::string AsSpoken(std::string_view caption);

}  // namespace orvane
