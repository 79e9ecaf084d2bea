// One line of a script, taken word by word.
#pragma once

#include <optional>
#include <string_view>

namespace orvane {

// Words are separated by one blank, so two blanks have an empty word between them, which fits
// nothing.
struct ScriptLine {
  std::string_view Rest;
  bool AtEnd = false;  // nothing follows, not even an empty word

  explicit ScriptLine(std::string_view line) : Rest(line) {}
  std::string_view NextWord();  // empty at the end
};

// The line without the carriage return that lines from other systems end with.
std::string_view WithoutReturn(std::string_view line);
// An empty or blank line, or a remark.
bool SaysNothing(std::string_view line);

// A whole number; one that is too large becomes the largest that can be held.
std::optional<int> WholeNumber(std::string_view word);
// A finite number of 32 bits.
std::optional<float> RealNumber(std::string_view word);

}  // namespace orvane
