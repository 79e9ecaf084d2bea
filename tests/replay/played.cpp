#include "replay/played.h"

#include <gtest/gtest.h>

namespace orvane {

Played Play(const std::string& script, bool trace) {
  std::istringstream in(script);
  std::ostringstream out;
  std::ostringstream errors;
  Played played;
  played.ExitCode = PlayScript(in, out, errors, trace);
  played.Lines = out.str();
  played.Errors = errors.str();
  return played;
}

std::string Session::Do(std::string_view lines) {
  stream.str("");
  while (!lines.empty()) {
    const std::string_view line = lines.substr(0, lines.find('\n'));
    EXPECT_EQ(PlayLine(player, line), "") << line;
    lines.remove_prefix(std::min(lines.size(), line.size() + 1));
  }
  return stream.str();
}

}  // namespace orvane
