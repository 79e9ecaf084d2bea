// The program itself: its streams, its one option on the command line, and its exit code.
#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include "replay/played.h"

namespace orvane {
namespace {

// Runs `orvane-replay WORDS`, with standard error after standard output.
Played RunProgram(const std::string& words, const std::string& script) {
  // A file of this test's own, since others run at the same time.
  const std::string test = testing::UnitTest::GetInstance()->current_test_info()->name();
  const std::string file = testing::TempDir() + "orvane-replay-" + test + ".txt";
  std::ofstream(file, std::ios::binary) << script;
  const std::string command = "'" ORVANE_REPLAY_PROGRAM "' " + words + " < '" + file + "' 2>&1";
  Played played;
  FILE* const pipe = popen(command.c_str(), "r");
  if (pipe == nullptr) return played;
  for (int byte = std::fgetc(pipe); byte != EOF; byte = std::fgetc(pipe)) {
    played.Lines += static_cast<char>(byte);
  }
  played.ExitCode = WEXITSTATUS(pclose(pipe));
  return played;
}

TEST(TheProgram, PlaysItsStandardInput) {
  const Played played = RunProgram("", "enter\n");
  EXPECT_EQ(played.ExitCode, 0);
  EXPECT_EQ(played.Lines, kEntered);
}

TEST(TheProgram, PrintsWhatWasPlayedAndThenTheBadLine) {
  const Played played = RunProgram("", "enter\nbar Bt3_Reset 1\nclick WatN\n");
  EXPECT_EQ(played.ExitCode, 2);
  EXPECT_EQ(played.Lines,
            std::string(kEntered) + "error: line 2: \"Bt3_Reset\" is no control to bar\n");
}

TEST(TheProgram, TracesWhenToldTo) {
  EXPECT_EQ(RunProgram("", "force click Bt_Blt_AA\n").Lines, "");
  EXPECT_EQ(RunProgram("--trace", "force click Bt_Blt_AA\n").Lines, "surface Picture none\n");
}

TEST(TheProgram, KnowsNoOtherWord) {
  EXPECT_EQ(RunProgram("--version", "enter\n").ExitCode, 2);
  EXPECT_EQ(RunProgram("--trace --trace", "enter\n").ExitCode, 2);
}

}  // namespace
}  // namespace orvane
