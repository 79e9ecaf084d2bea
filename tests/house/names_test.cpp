// No two types have the same name. If two headers each had one, they would compile wherever only
// one of them is included, and then share a destructor: whichever the linker met first.
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <sstream>

#include "house/source_tree.h"

namespace orvane::house {
namespace {

TEST(TheTypesOfHeaders, EachHaveTheirOwnName) {
  static const std::regex space("^namespace ([a-z_:]+) \\{$");
  static const std::regex type("^(?:class|struct|enum class) ([A-Za-z_]+)[^;]*\\{");
  std::map<std::string, std::string> header_of;
  for (const std::string& header : Headers()) {
    std::string inside;
    std::istringstream text(ReadProjectFile(header));
    for (std::string line; std::getline(text, line);) {
      std::smatch match;
      if (std::regex_search(line, match, space)) inside = match[1];
      if (!std::regex_search(line, match, type)) continue;
      const std::string name = inside + "::" + std::string(match[1]);
      const auto [other, is_new] = header_of.emplace(name, header);
      EXPECT_TRUE(is_new) << name << " in " << header << " and in " << other->second;
    }
  }
  EXPECT_GT(header_of.size(), 100u);
}

}  // namespace
}  // namespace orvane::house
