// A chain of any length to load, draw and survey.
#pragma once

#include <string>

namespace orvane::bench {

// Residues of five atoms (N, CA, C, O, R) that wind up like a spring. Each atom is bonded only to
// the next: they are 1.5 Angstrom apart, the turns 21.
std::string SpringOf(int atoms);

}  // namespace orvane::bench
