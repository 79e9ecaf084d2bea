#include "spring.h"

#include <cmath>
#include <cstdio>

namespace orvane::bench {

std::string SpringOf(int atoms) {
  constexpr const char* kNames[] = {"N", "CA", "C", "O", "R"};
  std::string text;
  for (int i = 1; i <= atoms; ++i) {
    char record[96];
    std::snprintf(record, sizeof record, "ATOM%7d  %-3s %3s %c%4d    %8.3f%8.3f%8.3f ", i,
                  kNames[(i - 1) % 5], "GLY", ' ', (i - 1) / 5 + 1, 5 * std::cos(0.25 * i),
                  5 * std::sin(0.25 * i), 0.85 * i - 200);
    text += record;
  }
  return text;
}

}  // namespace orvane::bench
