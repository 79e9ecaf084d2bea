// The main window's control table: a row a control, by which the window and every skin of it is
// built.
#pragma once

#include <span>

#include "controls/control.h"

namespace orvane {

// The first row is the window itself; a container stands before what it holds.
std::span<const ControlRow> MainWindowTable();

}  // namespace orvane
