// The main window's control table: one row for each control. The window and every skin of it are
// built from it.
#pragma once

#include <span>

#include "controls/control.h"

namespace orvane {

// The first row is the window itself; a container comes before what it holds.
std::span<const ControlRow> MainWindowTable();

}  // namespace orvane
