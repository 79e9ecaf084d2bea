// The arguments of a program that plays at random: pairs of a name and a number.
#pragma once

#include <algorithm>
#include <charconv>
#include <span>
#include <string_view>

namespace orvane {

struct NumberOption {
  std::string_view Name;
  long* Value;
};

// Sets the option of that name; false if there is none, or if `text` is not a number.
inline bool ReadNumber(std::span<const NumberOption> options, std::string_view name,
                       std::string_view text) {
  const auto option = std::find_if(options.begin(), options.end(),
                                   [&](const NumberOption& row) { return row.Name == name; });
  if (option == options.end()) return false;
  const auto [end, error] = std::from_chars(text.begin(), text.end(), *option->Value);
  return error == std::errc() && end == text.end();
}

}  // namespace orvane
