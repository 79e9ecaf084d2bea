// Scripts that nobody would write. A line is played or refused; the tool survives all of them.
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <random>

#include "replay/played.h"

namespace orvane {
namespace {

using Random =
    std::mt19937;  // its numbers are the same everywhere, those of a distribution are not

std::size_t Below(Random& random, std::size_t bound) { return random() % bound; }

template <class Range>
std::string OneOf(Random& random, const Range& range) {
  return std::string(*(std::begin(range) + static_cast<long>(Below(random, std::size(range)))));
}

std::string RandomBytes(Random& random) {
  std::string bytes;
  for (std::size_t i = Below(random, 40); i > 0; --i) bytes += static_cast<char>(random() & 255u);
  return bytes;
}

constexpr const char* kWords[] = {
    "click",
    "doubleclick",
    "select",
    "press",
    "move",
    "release",
    "bar",
    "drag",
    "drop",
    "type",
    "key",
    "tick",
    "answer",
    "force",
    "enter",
    "restart",
    "dump",
    "sound-fails",
    "no-printer",
    "printer",
    "atoms",
    "bonds",
    "survey",
    "-1",
    "1",
    "2",
    "99999",
    "3.5",
    "",
    "1e9",
    "nan",
    "Picture1",
    "X_Tag(1)",
    "P_Clr(21)",
    "RGB_V(0)",
    "AA_Lst",
    "ZoomBar",
    "Timer1",
    "Content.Get_in",
    "Ramachandran.Area(0)",
    "#",
};

std::string RandomWords(Random& random) {
  std::string line = OneOf(random, kWords);
  for (std::size_t i = Below(random, 6); i > 0; --i) line += " " + OneOf(random, kWords);
  return line;
}

std::vector<std::string> ControlNames(const Orvane_Desk& desk) {
  std::vector<std::string> names;
  for (const Window* window : desk.windows) {
    for (const Control* control : window->Controls) names.push_back(control->FullName());
  }
  return names;
}

// An action on some control. Whether it suits the control is left to chance.
std::string RandomAction(Random& random, const std::vector<std::string>& names) {
  static constexpr const char* kActions[] = {"click", "doubleclick", "select", "press",
                                             "move",  "release",     "bar",    "drag",
                                             "drop",  "tick",        "key"};
  const std::string action = OneOf(random, kActions);
  std::string line = (Below(random, 4) == 0 ? "force " : "") + action + " " + OneOf(random, names);
  if (action == "select" || action == "bar" || action == "drag" || action == "key") {
    line += " " + std::to_string(static_cast<int>(Below(random, 400)) - 100);
  }
  if (action == "press" || action == "move" || action == "release") {
    static constexpr const char* kButtons[] = {"1", "2", "4"};
    line += " " + OneOf(random, kButtons) + " " + std::to_string(Below(random, 360)) + " " +
            std::to_string(Below(random, 360));
  }
  return line;
}

class Garbage : public ::testing::TestWithParam<unsigned> {};

TEST_P(Garbage, OfBytesIsRefusedOrPlayed) {
  Random random(GetParam());
  Session session;
  for (int i = 0; i < 500; ++i) PlayLine(session.player, RandomBytes(random));
  EXPECT_NE(session.Complaint("nonsense"), "");
  EXPECT_NE(session.Do("dump"), "");
}

TEST_P(Garbage, OfWordsIsRefusedOrPlayed) {
  Random random(GetParam());
  Session session;
  for (int i = 0; i < 500; ++i) {
    // The table of controls is long, and none of it depends on the words.
    const std::string line = RandomWords(random);
    if (!line.starts_with("dump")) PlayLine(session.player, line);
    if (session.player.platform->Ended) StartDesk(session.player);
  }
  EXPECT_TRUE(nlohmann::json::accept(session.Do("restart\ndump")));
}

TEST_P(Garbage, OfActionsLeavesADeskThatCanBeAsked) {
  Random random(GetParam());
  Session session(true);
  session.Do("enter");
  const std::vector<std::string> names = ControlNames(session.Desk());
  for (int i = 0; i < 1000; ++i) {
    PlayLine(session.player, RandomAction(random, names));
    session.stream.str("");
    if (session.player.platform->Ended) StartDesk(session.player);
  }
  for (const char* dump : {"dump", "dump controls", "dump atoms", "dump bonds", "dump survey"}) {
    EXPECT_TRUE(nlohmann::json::accept(session.Do(dump))) << dump;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, Garbage, ::testing::Range(1u, 6u));

}  // namespace
}  // namespace orvane
