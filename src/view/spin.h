// Whether the structure spins, and how the switch shows it.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

inline constexpr Look kSpinOnLook{.Bevel = 1, .TextStyle = 2};
inline constexpr Look kSpinOffLook{.Bevel = 0, .TextStyle = 3};

void StartSpin(Orvane_Desk& desk);
void StopSpin(Orvane_Desk& desk);

}  // namespace orvane
