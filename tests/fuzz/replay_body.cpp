#include <sstream>

#include "fuzz/bodies.h"
#include "random/desk/always.h"
#include "replay/player.h"

namespace orvane {
namespace {

constexpr int kMostLines = 60;

}  // namespace

std::string ReadAsReplay(Bytes bytes) {
  std::ostringstream printed;
  Player player(printed);
  LastSeen last;
  std::istringstream script(std::string(bytes.begin(), bytes.end()));
  std::string line;
  for (int n = 0; n < kMostLines && !player.platform->Ended && std::getline(script, line); ++n) {
    if (!PlayLine(player, line).empty()) break;
    std::string wrong = WhatIsWrong(*player.desk, {true, true}, last, true);
    if (!wrong.empty()) return wrong;
  }
  return "";
}

}  // namespace orvane
