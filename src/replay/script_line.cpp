#include "replay/script_line.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace orvane {

std::string_view ScriptLine::NextWord() {
  if (AtEnd) return {};
  const auto blank = Rest.find(' ');
  const std::string_view word = Rest.substr(0, blank);
  AtEnd = blank == std::string_view::npos;
  Rest = AtEnd ? std::string_view() : Rest.substr(blank + 1);
  return word;
}

std::string_view WithoutReturn(std::string_view line) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

bool SaysNothing(std::string_view line) {
  return line.starts_with('#') || line.find_first_not_of(" \t") == std::string_view::npos;
}

std::optional<int> WholeNumber(std::string_view word) {
  int value = 0;
  const char* const last = word.data() + word.size();
  const auto [end, error] = std::from_chars(word.data(), last, value);
  if (end != last || error == std::errc::invalid_argument) return std::nullopt;
  if (error == std::errc::result_out_of_range) {
    return word.starts_with('-') ? std::numeric_limits<int>::min()
                                 : std::numeric_limits<int>::max();
  }
  return value;
}

std::optional<float> RealNumber(std::string_view word) {
  double value = 0;
  const char* const last = word.data() + word.size();
  const auto [end, error] = std::from_chars(word.data(), last, value);
  if (end != last || error != std::errc()) return std::nullopt;
  const auto single = static_cast<float>(value);
  if (!std::isfinite(single)) return std::nullopt;
  return single;
}

}  // namespace orvane
