// What the fuzzers start from and what they have found, played in every build.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

#include "fuzz/bodies.h"

namespace orvane {
namespace {

namespace fs = std::filesystem;

constexpr const char* kCorpus = ORVANE_SOURCE_DIR "/tests/fuzz/corpus";

struct TheCorpus : ::testing::TestWithParam<FuzzBody> {};

TEST_P(TheCorpus, IsReadWithoutHarm) {
  int files = 0;
  for (const auto& entry : fs::directory_iterator(fs::path(kCorpus) / GetParam().Name)) {
    std::ifstream stream(entry.path(), std::ios::binary);
    const std::vector<unsigned char> bytes{std::istreambuf_iterator<char>(stream), {}};
    EXPECT_EQ(GetParam().Read(bytes), "") << entry.path().filename();
    ++files;
  }
  EXPECT_GE(files, 5);
}

INSTANTIATE_TEST_SUITE_P(Fuzz, TheCorpus, ::testing::ValuesIn(kFuzzBodies),
                         [](const auto& body) { return std::string(body.param.Name); });

}  // namespace
}  // namespace orvane
