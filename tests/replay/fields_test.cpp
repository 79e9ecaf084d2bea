// Every scalar field that a room's header declares is in the dump, under the name it has there.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <regex>
#include <set>
#include <sstream>

#include "replay/played.h"

namespace orvane {
namespace {

std::string TextOf(const std::filesystem::path& file) {
  std::ostringstream text;
  text << std::ifstream(file).rdbuf();
  return text.str();
}

std::vector<std::filesystem::path> StateHeaders() {
  const std::filesystem::path source = std::filesystem::path(ORVANE_SOURCE_DIR) / "src";
  std::vector<std::filesystem::path> headers;
  for (const auto& entry : std::filesystem::directory_iterator(source / "desk")) {
    // The place of the keyboard belongs to the screen reader; no script asks for it.
    if (entry.path().filename() == "walked_atom.h") continue;
    if (entry.path().extension() == ".h") headers.push_back(entry.path());
  }
  return headers;
}

// Names declared on one line, as in "  double MaxX = 0, MaxY = 0;  // a remark". Arrays and the
// parts of a Point or of AxisCells are not scalar fields of the desk.
std::vector<std::string> ScalarsOf(const std::string& line) {
  static const std::regex declaration(
      R"(^  (int|double|float|Int16|Colour|std::string|NameField|AxisCells) ([^;()\[\]]*);.*)");
  static const std::regex part(R"(^  (int|double) X = 0, Y = 0, Z = 0;)");
  static const std::regex name(R"(\s*([A-Za-z][A-Za-z0-9]*)[^,]*,?)");
  std::smatch match;
  if (std::regex_search(line, part) || !std::regex_match(line, match, declaration)) return {};
  const std::string declared = match[2];
  std::vector<std::string> names;
  for (std::sregex_iterator it(declared.begin(), declared.end(), name), end; it != end; ++it) {
    names.push_back((*it)[1]);
  }
  return names;
}

std::vector<std::string> DeclaredScalars() {
  std::vector<std::string> names;
  for (const auto& header : StateHeaders()) {
    std::istringstream lines(TextOf(header));
    for (std::string line; std::getline(lines, line);) {
      for (const std::string& name : ScalarsOf(line)) names.push_back(name);
    }
  }
  return names;
}

TEST(ScalarsOfALine, AreItsNamesWithoutValuesAndRemarks) {
  EXPECT_EQ(ScalarsOf("  double MaxX = 0, MaxY = 0;  // a, b"),
            (std::vector<std::string>{"MaxX", "MaxY"}));
  EXPECT_EQ(ScalarsOf("  Int16 SpinNow, SpinPrev;"),
            (std::vector<std::string>{"SpinNow", "SpinPrev"}));
  EXPECT_TRUE(ScalarsOf("  double RotM[4][4] = {};").empty());
  EXPECT_TRUE(ScalarsOf("  Slots<double> AtomX, AtomY, AtomZ;").empty());
}

TEST(TheDump, HasEveryScalarFieldThatAStateHeaderDeclares) {
  Session session;
  const auto dump = nlohmann::json::parse(session.Do("dump"));
  const std::vector<std::string> names = DeclaredScalars();
  EXPECT_GE(names.size(), 100u);  // else the headers were not read
  for (const std::string& name : names) EXPECT_TRUE(dump.contains(name)) << name;
}

TEST(TheDump, HasNoNameTwice) {
  Session session;
  std::set<std::string> seen;
  const auto count_names = [&](int depth, nlohmann::json::parse_event_t event,
                               const nlohmann::json& parsed) {
    if (depth == 1 && event == nlohmann::json::parse_event_t::key) {
      EXPECT_TRUE(seen.insert(parsed.get<std::string>()).second) << parsed;
    }
    return true;
  };
  EXPECT_TRUE(nlohmann::json::parse(session.Do("dump"), count_names).is_object());
  EXPECT_GE(seen.size(), 100u);
}

}  // namespace
}  // namespace orvane
