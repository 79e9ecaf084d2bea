#include "random/desk/script.h"

#include <string_view>

#include "random/desk/moves.h"
#include "random/desk/session.h"

namespace orvane {
namespace {

constexpr int kActionsAQuestion = 10;
constexpr std::string_view kQuestions[] = {"dump",       "dump controls", "dump atoms",
                                           "dump bonds", "dump survey",   "dump readout"};

}  // namespace

std::vector<std::string> RandomScript(std::uint64_t seed, int actions) {
  Sitting session;
  Dice dice{seed};
  std::vector<std::string> script;
  const auto is_over = [&] { return session.player.platform->Ended || actions == 0; };
  while (!is_over()) {
    for (const std::string& line : NextLines(dice, session)) {
      if (is_over()) break;
      if (line.starts_with('#')) continue;
      PlayRandomLine(session, line);
      script.push_back(line);
      --actions;
      if (dice.OneIn(kActionsAQuestion)) script.emplace_back(dice.Of(std::span(kQuestions)));
    }
  }
  script.insert(script.end(), std::begin(kQuestions), std::end(kQuestions));
  return script;
}

}  // namespace orvane
