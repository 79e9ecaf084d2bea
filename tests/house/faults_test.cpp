// The list of faults that a test must see, in tests/faults. These tests only check that each can
// still be put into the program; tests/faults/run shows whether it is seen.
#include <gtest/gtest.h>
#include <set>
#include <sstream>

#include "house/source_tree.h"

namespace orvane::house {
namespace {

struct Fault {
  std::string Name, File;
  std::string Was, Now;  // whole lines
  std::string Test;
};

std::vector<Fault> Faults() {
  std::vector<Fault> faults;
  std::istringstream text(ReadProjectFile("tests/faults/list.txt"));
  std::string name;
  for (std::string line; std::getline(text, line);) {
    if (line.empty() || line.front() == '#') continue;
    if (line.starts_with("in ")) {
      faults.push_back({.Name = name, .File = line.substr(3), .Was = "", .Now = "", .Test = ""});
    } else if (line.starts_with("-")) {
      faults.back().Was += line.substr(1) + "\n";
    } else if (line.starts_with("+")) {
      faults.back().Now += line.substr(1) + "\n";
    } else if (line.starts_with("seen by ")) {
      faults.back().Test = line.substr(8);
    } else {
      name = line;
    }
  }
  return faults;
}

int CountOf(const std::string& words, const std::string& text) {
  int count = 0;
  for (std::size_t at = text.find(words); at != std::string::npos; at = text.find(words, at + 1)) {
    ++count;
  }
  return count;
}

TEST(TheFaults, AreAtLeastTwentyEachWithItsOwnName) {
  std::set<std::string> names;
  for (const Fault& fault : Faults()) EXPECT_TRUE(names.insert(fault.Name).second) << fault.Name;
  EXPECT_GE(names.size(), 20u);
}

TEST(TheFaults, ReplaceLinesThatOccurOnceInTheirFile) {
  for (const Fault& fault : Faults()) {
    EXPECT_EQ(CountOf("\n" + fault.Was, ReadProjectFile(fault.File)), 1) << fault.Name;
    EXPECT_NE(fault.Was, fault.Now) << fault.Name;
  }
}

TEST(TheFaults, AreEachSeenByATestThatExists) {
  const auto* program = ::testing::UnitTest::GetInstance();
  std::set<std::string> tests;
  for (int i = 0; i < program->total_test_suite_count(); ++i) {
    const auto* suite = program->GetTestSuite(i);
    for (int j = 0; j < suite->total_test_count(); ++j) {
      tests.insert(std::string(suite->name()) + "." + suite->GetTestInfo(j)->name());
    }
  }
  for (const Fault& fault : Faults()) {
    EXPECT_TRUE(tests.contains(fault.Test)) << fault.Test << " for: " << fault.Name;
  }
}

}  // namespace
}  // namespace orvane::house
