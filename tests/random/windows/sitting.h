// A sitting: the program from its start until a number of events were made, it was told to end, or
// something is wrong.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace orvane {

struct Stay {
  int Events = 0;
  int Failures = 0;   // boxes that reported one
  std::string Wrong;  // empty: nothing
};

// Needs an application object. `telling` gets each event before it is made.
Stay SitDown(std::uint64_t seed, int events,
             const std::function<void(const std::string& event)>& telling);

}  // namespace orvane
