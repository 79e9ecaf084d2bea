// Whatever call to the outside world fails, and whichever command makes it, the desk stays whole
// and the next command works.
#include "random/failing_platform.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

#include "random/failing_desk.h"
#include "runtime/no_memory.h"

namespace orvane {
namespace {

// The calls that the command makes when all goes well.
std::vector<Call> CallsOf(const Command& command, const Situation& situation) {
  FailingDesk work(situation);
  command.Do(work.desk);
  EXPECT_EQ(work.Wrong(), "") << command.Name;
  return work.platform.Calls;
}

void FailOnce(const Command& command, const Situation& situation, Call call, int at, Way how) {
  FailingDesk work(situation);
  work.platform.FailsAt = at;
  work.platform.How = how;
  ASSERT_NO_THROW(command.Do(work.desk));
  EXPECT_EQ(work.Wrong(), "");
  for (const Window* window : work.desk.windows) {
    EXPECT_NE(window->MousePointer, kPointerHourglass) << window->Name;
  }
  // Some commands end in a failure of their own, and then its box is what fails.
  const bool is_told = call != Call::FailureBox;
  if (is_told && how == Way::Clause) ExpectPlainBox(work, kClause);
  if (is_told && how == Way::Memory) ExpectPlainBox(work, kNoMemory);
  if (how == Way::TwoFold) {
    EXPECT_EQ(work.Count("failure "), 0);
  }
  ExpectToGoOn(work, command);
}

class AFailingWorld : public ::testing::TestWithParam<Situation> {};

TEST_P(AFailingWorld, LeavesADeskThatGoesOn) {
  const Situation& situation = GetParam();
  const std::vector<Command> commands = EveryCommand(FailingDesk(situation).desk);
  for (const Command& command : commands) {
    const std::vector<Call> calls = CallsOf(command, situation);
    for (int at = 0; at < static_cast<int>(calls.size()); ++at) {
      const Call call = calls[static_cast<std::size_t>(at)];
      for (const Way how : {Way::Clause, Way::TwoFold, Way::Memory, Way::Refusal}) {
        SCOPED_TRACE(std::string(situation.Name) + ": " + command.Name + ", call " +
                     std::to_string(at + 1) + ", " +
                     std::string(kCallNames[static_cast<std::size_t>(call)]) + ", " +
                     std::string(kWayNames[static_cast<std::size_t>(how)]));
        FailOnce(command, situation, call, at, how);
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(EveryCommand, AFailingWorld, ::testing::ValuesIn(Situations()),
                         [](const auto& row) {
                           std::string name = row.param.Name;
                           std::replace(name.begin(), name.end(), ' ', '_');
                           return name;
                         });

// So that no call is left untested because nothing makes it any more.
TEST(AFailingWorldIsComplete, EachCallIsReachedByACommand) {
  std::set<Call> reached;
  for (const Situation& situation : Situations()) {
    for (const Command& command : EveryCommand(FailingDesk(situation).desk)) {
      const std::vector<Call> calls = CallsOf(command, situation);
      reached.insert(calls.begin(), calls.end());
    }
  }
  for (std::size_t call = 0; call < kCallNames.size(); ++call) {
    EXPECT_EQ(reached.count(static_cast<Call>(call)), 1U) << kCallNames[call];
  }
}

}  // namespace
}  // namespace orvane
