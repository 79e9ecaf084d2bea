// The text of a measure in P_Dst_Show. There is one at a time.
#pragma once

#include <span>

#include "desk/orvane_desk.h"

namespace orvane {

// The same atoms are named twice: by their names before the value, by their residues below it.
struct Readout {
  std::string_view Label{};  // "PHI > ", or nothing
  std::span<const int> Atoms{};
  double Value = 0;
  std::string_view Unit{};  // with a blank on both sides
};

void ShowReadout(Orvane_Desk& desk, const Readout& readout);

void EmptyReadout(Orvane_Desk& desk);

}  // namespace orvane
