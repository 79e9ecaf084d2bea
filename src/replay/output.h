// Where the lines of a replay go.
#pragma once

#include <ostream>
#include <string_view>

namespace orvane {

struct Output {
  std::ostream& Stream;
  bool Silent = false;  // while a desk starts, and once the program has ended

  void Line(std::string_view text) {
    if (!Silent) Stream << text << '\n';
  }
};

}  // namespace orvane
