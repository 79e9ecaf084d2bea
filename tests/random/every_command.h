// Every command of a desk, found by walking its controls, and the states in which to try them.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "desk/orvane_desk.h"

namespace orvane {

// An action that a control offers. It works on any desk.
struct Command {
  std::string Name;  // "click S_bmp"
  std::function<void(Orvane_Desk& desk)> Do;
};

// The commands whose controls are open to the user on this desk, and the ticks.
std::vector<Command> EveryCommand(const Orvane_Desk& desk);

// The state of a desk when a command comes, in a few words.
struct Situation {
  const char* Name;
  void (*Prepare)(Orvane_Desk& desk);
};

const std::vector<Situation>& Situations();

}  // namespace orvane
