// Desks to be timed: one at work, and one with the heaviest picture that a user can make.
#pragma once

#include <ostream>
#include <string_view>

#include "replay/player.h"

namespace orvane::bench {

// Behind its first windows, with whatever it prints going nowhere.
struct BenchDesk {
  BenchDesk();

  std::ostream nowhere{nullptr};
  Player player{nowhere};
  Orvane_Desk& desk = *player.desk;
};

// The row of a list that begins with that key; -1 when there is none.
int RowOf(const List& list, std::string_view key);
void Select(BenchDesk& bench, List& list, std::string_view key);

// The double strand, 123 atoms and 136 bonds, with balls and bonds at their largest, labels and
// hydrogen bonds.
struct HeaviestDesk : BenchDesk {
  HeaviestDesk();
};

// Whether such a desk comes to what its name says, else a complaint is printed: its times would say
// nothing.
bool CanMakeHeaviest();

}  // namespace orvane::bench
