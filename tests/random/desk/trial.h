// A life in a process of its own, so that a crash, a sanitizer's halt or a hang ends that life and
// not the run, and its lines are known afterwards.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace orvane {

struct Trial {
  bool IsWrong = false;
  std::string Reason;                    // what a check found, or how the process ended
  std::vector<std::string> Lines;        // as far as it got
  std::map<std::string, long> Failures;  // failure boxes by text, if the life went well
};

Trial TryLife(std::uint64_t seed, int actions);
// `speaks`: show what a sanitizer says about it.
Trial TryLines(const std::vector<std::string>& lines, bool speaks);

}  // namespace orvane
