// The plot window's control table.
#pragma once

#include <span>

#include "controls/control.h"

namespace orvane {

// The first row is the window itself; a container comes before what it holds.
std::span<const ControlRow> PlotWindowTable();

}  // namespace orvane
