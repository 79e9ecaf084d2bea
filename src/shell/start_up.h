// Starts a desk.
#pragma once

#include <memory>

#include "desk/orvane_desk.h"

namespace orvane {

// A desk whose controls are bound to their handlers and whose main window is loaded.
std::unique_ptr<Orvane_Desk> StartDesk(Platform& outside);

// Loads the main window: sets every start value of the desk, in order. Leaves the window hidden.
void Orvane_Desk_Load(Orvane_Desk& desk);

}  // namespace orvane
