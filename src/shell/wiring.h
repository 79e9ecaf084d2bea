// Which handler an event of a control runs.
#pragma once

#include <span>
#include <string_view>
#include <variant>

#include "desk/orvane_desk.h"

namespace orvane {

// One row: in every element of that control (an array without index), this event runs this handler.
struct Wire {
  std::string_view Control;  // "X_Tag", "Content.Get_in"
  EventKind Kind;
  std::variant<void (*)(Orvane_Desk&), void (*)(Orvane_Desk&, const Event&)> Handler;
};

std::span<const Wire> Wires();

// Binds every row to its control. Called once, before anything happens on the desk.
void WireControls(Orvane_Desk& desk);

}  // namespace orvane
