// A number in the form of the pages.
#pragma once

#include <array>
#include <cstdio>
#include <string>

namespace orvane::stock_check {

// Rounded to this many decimals: "142.5". There is no minus zero.
inline std::string Fixed(double value, int decimals) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%.*f", decimals, value);
  std::string words = text.data();
  if (words.find_first_not_of("-0.") == std::string::npos && words.front() == '-')
    words.erase(0, 1);
  return words;
}

}  // namespace orvane::stock_check
