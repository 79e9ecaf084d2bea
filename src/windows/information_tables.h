// Control tables of the three windows that open before or beside the main window.
#pragma once

#include <span>

#include "controls/control.h"

namespace orvane {

// The first row is the window itself; a container comes before what it holds.
std::span<const ControlRow> FrontTable();
std::span<const ControlRow> ContentTable();
std::span<const ControlRow> AuthorTable();

}  // namespace orvane
