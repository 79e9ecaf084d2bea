// The hands of a user without a plan: one event of the toolkit after another.
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
  // Is told of each event before it is made.
  std::function<void(const std::string& event)> Telling;
};

// Makes one event for what takes events now: the open menu, or else the open box, or else one of
// the windows. A click counts as one.
void OneEvent(Hands& hands);

// Ends the open menu or box, whatever it asks.
void DismissWhatIsUp();

bool SomethingIsUp();

}  // namespace orvane
