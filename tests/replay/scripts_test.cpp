// Plays each script of tests/replay/scripts and compares what it prints with the lines beside it.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

#include "replay/played.h"

namespace orvane {
namespace {

namespace fs = std::filesystem;

const fs::path kScripts = fs::path(ORVANE_SOURCE_DIR) / "tests/replay/scripts";

std::string TextOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  EXPECT_TRUE(stream.good()) << file;
  std::ostringstream text;
  text << stream.rdbuf();
  return text.str();
}

std::vector<std::string> ScriptNames() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(kScripts)) {
    if (entry.path().extension() == ".txt") names.push_back(entry.path().stem().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

class Script : public ::testing::TestWithParam<std::string> {};

// A first line "# --trace" plays the script with its trace.
TEST_P(Script, PrintsTheLinesBesideIt) {
  const std::string script = TextOf(kScripts / (GetParam() + ".txt"));
  const Played played = Play(script, script.starts_with("# --trace\n"));
  EXPECT_EQ(played.Errors, "");
  EXPECT_EQ(played.ExitCode, 0);
  EXPECT_EQ(played.Lines, TextOf(kScripts / (GetParam() + ".expected")));
}

INSTANTIATE_TEST_SUITE_P(Replay, Script, ::testing::ValuesIn(ScriptNames()),
                         [](const auto& script) { return script.param; });

}  // namespace
}  // namespace orvane
