// What a screen reader says of a control: its name and what it is. Both come from the control's
// row, kind and state, so every skin says the same.
#pragma once

#include <string>

#include "controls/control.h"

namespace orvane {

// What a control is to somebody who does not see it. A row names its role where its kind does not
// say.
enum class SpokenRole : std::uint8_t {
  ByKind,
  Button,
  Toggle,  // on or off
  Choice,  // one of a few; one of them is on
  Slider,
  List,
  Dropdown,  // a closed list
  Entry,     // a text to type
  Picture,
  Text,
  Heading,
  Link,
  Group,   // holds other controls
  Result,  // read out by itself when its text changes
  MenuItem,
  Window,
  Decoration,  // skipped
};

SpokenRole RoleOf(const Control& control);

// One line: the name in the row, else the caption without mnemonics, else the tip, else what the
// control is. Where the row has no caption, a caption is a message of the moment and is read while
// it is there.
std::string SpokenName(const Control& control);

// Whether a toggle or a choice looks on.
bool LooksOn(const Control& control);

// A caption as it is read out: without mnemonics, one blank between words, a comma between lines.
std::string AsSpoken(std::string_view caption);

}  // namespace orvane
