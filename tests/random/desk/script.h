// A script for orvane-replay, made of the moves of a life by chance.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace orvane {

// So many actions, with a question after the state behind one in ten, and each question once more
// at the end. Shorter where one of the actions ends the program. The remarks of a life are left
// out.
std::vector<std::string> RandomScript(std::uint64_t seed, int actions);

}  // namespace orvane
