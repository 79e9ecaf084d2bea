// A sitting: the program from its start until so many events were made, it was told to end, or
// something is wrong.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace orvane {

struct Stay {
  int Events = 0;
  int Failures = 0;   // boxes that told of one
  std::string Wrong;  // empty: nothing
};

// Needs an application object. `telling` hears of each event before it is made.
Stay SitDown(std::uint64_t seed, int events,
             const std::function<void(const std::string& event)>& telling);

}  // namespace orvane
