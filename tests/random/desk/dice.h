// Random numbers that are the same on every machine: a seed always gives the same sequence.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace orvane {

struct Dice {
  std::uint64_t State;  // the seed at first; two neighbours give sequences that share nothing

  std::uint64_t Next() {
    std::uint64_t mixed = State += 0x9E3779B97F4A7C15u;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
    return mixed ^ (mixed >> 31);
  }

  // The slight preference for small numbers does not matter here.
  int Below(int limit) { return static_cast<int>(Next() % static_cast<std::uint64_t>(limit)); }
  int Between(int low, int high) { return low + Below(high - low + 1); }
  bool OneIn(int chances) { return Below(chances) == 0; }

  template <class T, std::size_t kExtent>
  const T& Of(std::span<T, kExtent> choices) {
    return choices[static_cast<std::size_t>(Below(static_cast<int>(choices.size())))];
  }
};

}  // namespace orvane
