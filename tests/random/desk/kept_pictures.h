// Checks that a kept picture stays as it was, whatever is drawn afterwards.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "desk/orvane_desk.h"

namespace orvane {

struct KeptPicture {
  std::string Of;  // the control that showed it
  std::shared_ptr<const Picture> Image;
  std::uint64_t Digest = 0;  // as it was when it was kept
};

// Returns the first of them that has changed since. Then keeps the pictures shown now in their
// place: that on the surface, and the halves of the split views.
std::string ChangedPicture(const Orvane_Desk& desk, std::vector<KeptPicture>& kept);

}  // namespace orvane
