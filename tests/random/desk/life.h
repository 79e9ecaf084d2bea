// A life: one desk from its start until a number of actions have been played, the program ends, or
// something is wrong.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "random/desk/always.h"
#include "random/desk/session.h"

namespace orvane {

// After how many actions a random life also reads every picture.
inline constexpr int kThoroughEvery = 16;

struct Life {
  int Actions = 0;    // lines that were played
  std::string Wrong;  // empty: nothing
};

// Gets each line before it is played.
using LineListener = std::function<void(std::string_view line)>;

// Plays a random life. A session serves one life.
Life PlayLife(Sitting& session, std::uint64_t seed, int actions, const LineListener& before);

// Plays those lines, with every check after each: a shortened script has few lines.
Life PlayLines(Sitting& session, std::span<const std::string> lines);

}  // namespace orvane
