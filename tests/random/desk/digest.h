// Combines many numbers into one, to check that none of them has changed.
#pragma once

#include <cstdint>
#include <cstring>

namespace orvane {

struct Digest {
  std::uint64_t Value = 14695981039346656037u;

  void Mix(std::uint64_t bits) {
    Value = (Value ^ bits) * 1099511628211u;
    Value ^= Value >> 29;
  }
  // By its bits, so that even what is not a number equals itself.
  void MixNumber(double value) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    Mix(bits);
  }
};

}  // namespace orvane
