// The three kinds of eye that see two colours where others see three.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace orvane {

enum class Eye { Protan, Deutan, Tritan };  // without the cones for red, for green, for blue

inline constexpr std::array kEyes = {Eye::Protan, Eye::Deutan, Eye::Tritan};

constexpr std::size_t IndexOf(Eye eye) { return static_cast<std::size_t>(eye); }

constexpr std::string_view NameOf(Eye eye) {
  constexpr std::array<std::string_view, 3> names = {"protan", "deutan", "tritan"};
  return names[IndexOf(eye)];
}

}  // namespace orvane
