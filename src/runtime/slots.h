// A fixed array with slots 0 to 30000, checked at each use. Slot 0 is never filled: atoms and bonds
// are numbered from 1.
#pragma once

#include <array>

#include "runtime/failure.h"

namespace orvane {

inline constexpr int kLastSlot = 30000;

template <class T>
class Slots {
 public:
  T& operator[](int slot) { return values_[Checked(slot)]; }
  const T& operator[](int slot) const { return values_[Checked(slot)]; }

 private:
  static std::size_t Checked(int slot) {
    if (slot < 0 || slot > kLastSlot) FailSubscript(slot);
    return static_cast<std::size_t>(slot);
  }

  std::array<T, kLastSlot + 1> values_{};
};

}  // namespace orvane
