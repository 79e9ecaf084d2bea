// orvane-replay: plays a script from standard input on a desk without a window, and prints what the
// program did.
#include <iostream>
#include <string_view>

#include "replay/player.h"

int main(int argc, char** argv) {
  const bool trace = argc == 2 && std::string_view(argv[1]) == "--trace";
  if (argc > 1 && !trace) {
    std::cerr << "usage: orvane-replay [--trace] < script\n";
    return 2;
  }
  // The streams stay tied, so a caller that feeds a script line by line reads the answer to each at
  // once.
  std::ios::sync_with_stdio(false);
  return orvane::PlayScript(std::cin, std::cout, std::cerr, trace);
}
