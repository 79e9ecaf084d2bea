// The shortest script that still shows what is wrong.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace orvane {

// Leaves out one stretch after another, long ones first, as long as `still_wrong` is true of the
// rest. In the end no single line can go. Gives up after `tries` and returns what it has by then.
std::vector<std::string> Shrunk(
    std::vector<std::string> lines,
    const std::function<bool(const std::vector<std::string>&)>& still_wrong, int tries);

}  // namespace orvane
