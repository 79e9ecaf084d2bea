// The hands of a user without a plan: one event of the toolkit after the other.
#pragma once

#include <functional>
#include <string>

#include "desktop/windows/skin.h"
#include "random/desk/dice.h"
#include "random/windows/outside.h"

namespace orvane {

struct Hands {
  Dice dice;
  Skin& skin;
  OutsideAtRandom& outside;
  // Hears of each event before it is made.
  std::function<void(const std::string& event)> Telling;
};

// One event for whoever takes events now: the menu that is open, else the box that is up, else one
// of the windows. A click counts as one.
void OneEvent(Hands& hands);

// Ends the menu or the box that is up, whatever it asks.
void DismissWhatIsUp();

bool SomethingIsUp();

}  // namespace orvane
