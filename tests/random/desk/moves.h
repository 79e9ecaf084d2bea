// What a user might do next, at random: any control of any window, with more weight on what
// matters.
#pragma once

#include <string>
#include <vector>

#include "random/desk/dice.h"
#include "random/desk/session.h"

namespace orvane {

// One action on the desk as it is now, with the lines that prepare it (an answer to the box it
// opens, what nests in a tick). Most are open to the user; some are not, and some are forced.
std::vector<std::string> NextLines(Dice& dice, Sitting& session);

}  // namespace orvane
