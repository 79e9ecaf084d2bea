// Plays scripts inside the test process.
#pragma once

#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "replay/player.h"

namespace orvane {

struct Played {
  int ExitCode = 0;
  std::string Lines;   // standard output
  std::string Errors;  // standard error
};

Played Play(const std::string& script, bool trace = false);

// A player that a test feeds line by line, so that it can look at the desk in between.
struct Session {
  std::ostringstream stream;
  Player player;

  explicit Session(bool trace = false) : player(stream, trace) {}
  Orvane_Desk& Desk() const { return *player.desk; }

  // Plays the lines and returns what they printed. A line that is not an action fails the test.
  std::string Do(std::string_view lines);
  // What the player says about a line that is not an action.
  std::string Complaint(std::string_view line) { return PlayLine(player, line); }
};

// What the two clicks of `enter` print.
inline constexpr std::string_view kEntered =
    "hide Orvane_Front\nshow Content\nhide Content\nshow Orvane_Desk\n";

}  // namespace orvane
