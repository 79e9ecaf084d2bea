// The scalar fields of the desk, each under its own name.
#pragma once

#include "desk/orvane_desk.h"
#include "replay/json_line.h"

namespace orvane {

// Part by part in the order of the desk, and within a part in the order of its header.
void AppendStateFields(ObjectLine& line, const Orvane_Desk& desk);

}  // namespace orvane
