// Desks to be timed: one at work, and one with the heaviest picture that a user can make.
#pragma once

#include <ostream>
#include <string_view>

#include "replay/player.h"

namespace orvane::bench {

// Past its first windows; whatever it prints goes nowhere.
struct BenchDesk {
  BenchDesk();

  std::ostream nowhere{nullptr};
  Player player{nowhere};
  Orvane_Desk& desk = *player.desk;
};

// The row of a list that begins with that key; -1 if there is none.
int RowOf(const List& list, std::string_view key);
void Select(BenchDesk& bench, List& list, std::string_view key);

// The double strand, 123 atoms and 136 bonds, with balls and bonds at their largest, labels and
// hydrogen bonds.
struct HeaviestDesk : BenchDesk {
  HeaviestDesk();
};

// Whether such a desk really has what its name says. If not, it prints a complaint, since its times
// would mean nothing.
bool CanMakeHeaviest();

}  // namespace orvane::bench
