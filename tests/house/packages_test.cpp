// The list of Debian packages that `run` and `test` install.
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include "house/source_tree.h"

namespace orvane::house {
namespace {

struct PackageRow {
  std::string Group, Package, Purpose;
};

std::vector<PackageRow> PackageRows() {
  static const std::regex group(R"(^\[([a-z]+)\]$)"), row(R"(^(\S+)\s*(.*)$)");
  std::vector<PackageRow> rows;
  std::istringstream text(ReadProjectFile("dependencies.txt"));
  std::string inside;
  for (std::string line; std::getline(text, line);) {
    std::smatch match;
    if (line.starts_with("#")) continue;
    if (std::regex_match(line, match, group)) {
      inside = match[1];
    } else if (std::regex_match(line, match, row)) {
      rows.push_back({inside, match[1], match[2]});
    }
  }
  return rows;
}

TEST(ThePackages, AreInAGroupThatACommandInstalls) {
  const std::set<std::string> groups{"run",   "test", "coverage", "bench",
                                     "peers", "fuzz", "package"};
  ASSERT_FALSE(PackageRows().empty());
  for (const PackageRow& row : PackageRows()) {
    EXPECT_TRUE(groups.contains(row.Group)) << row.Package << " in [" << row.Group << "]";
  }
}

TEST(ThePackages, EachHaveAPurpose) {
  for (const PackageRow& row : PackageRows()) EXPECT_GT(row.Purpose.size(), 8u) << row.Package;
}

TEST(ThePackages, AreListedOnce) {
  std::map<std::string, int> count;
  for (const PackageRow& row : PackageRows()) EXPECT_EQ(++count[row.Package], 1) << row.Package;
}

}  // namespace
}  // namespace orvane::house
