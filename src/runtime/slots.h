// A fixed array with slots 0 to 30000, checked at each use. Slot 0 is never filled: atoms and bonds
// are numbered from 1. All begin as zero bytes, and a page of them takes memory only when it is
// first written: no structure fills more than 596 of the 30001.
#pragma once

#include <cstdlib>
#include <memory>
#include <type_traits>

#include "runtime/failure.h"

namespace orvane {

inline constexpr int kLastSlot = 30000;

template <class T>
class Slots {
  static_assert(std::is_trivially_copyable_v<T> && std::is_trivially_destructible_v<T>);

 public:
  T& operator[](int slot) { return values_[Checked(slot)]; }
  const T& operator[](int slot) const { return values_[Checked(slot)]; }

 private:
  static std::size_t Checked(int slot) {
    if (slot < 0 || slot > kLastSlot) FailSubscript(slot);
    return static_cast<std::size_t>(slot);
  }

  struct Free {
    void operator()(T* values) const { std::free(values); }
  };
  // The system's zeroed memory as it comes: a loop to clear it would touch every page.
  static T* Zeroed() {
    void* values = std::calloc(kLastSlot + 1, sizeof(T));
    if (values == nullptr) std::abort();
    return static_cast<T*>(values);
  }

  std::unique_ptr<T[], Free> values_{Zeroed()};
};

}  // namespace orvane
