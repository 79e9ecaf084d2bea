// Where the walk by keys stands among the atoms. It belongs to the reader, not to the structure: no
// command asks for it.
#pragma once

#include <cstdint>

namespace orvane {

struct WalkedAtom {
  int Number = 0;          // 0: on none
  std::uint64_t Load = 0;  // Molecule::Loads at that step; after another load the walk is on none
  int Picked = 0;          // the last atom that the walk's last press took; 0: it took none
  int Taken = 0;           // how many atoms that press took; more than one where they lie close
  int Order = 0;           // which of the four picks that atom became, 1 to 4
};

}  // namespace orvane
