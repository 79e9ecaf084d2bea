// The folders of the desktop skin against their table in docs/architecture.md.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <set>

#include "house/source_tree.h"

namespace orvane::house {
namespace {

using ::testing::UnorderedElementsAreArray;

// From which folder of the skin into which other.
std::map<std::pair<std::string, std::string>, std::string> ArrowsMade() {
  std::map<std::pair<std::string, std::string>, std::string> made;
  for (const Inclusion& i : Inclusions()) {
    if (!i.Quoted || RoomOf(i.From) != "desktop" || RoomOf(i.Target) != "desktop") continue;
    if (PartOf(i.From) == PartOf(i.Target)) continue;
    made[{PartOf(i.From), PartOf(i.Target)}] = "src/" + i.From + " includes " + i.Target;
  }
  return made;
}

std::set<std::pair<std::string, std::string>> ArrowsAllowed() {
  std::set<std::pair<std::string, std::string>> allowed;
  for (const MapRow& row : MapOfDesktop()) {
    for (const std::string& other : row.MayInclude) allowed.emplace(row.Room, other);
  }
  return allowed;
}

TEST(PartsOfTheDesktop, AreThoseOfTheTable) {
  std::set<std::string> on_disk, on_map;
  for (const Inclusion& i : Inclusions()) {
    if (RoomOf(i.From) == "desktop") on_disk.insert(PartOf(i.From));
  }
  for (const MapRow& row : MapOfDesktop()) {
    on_map.insert(row.Room);
    EXPECT_EQ(PartOf(row.ChiefHeader), row.Room);
    EXPECT_TRUE(ProjectHas("src/" + row.ChiefHeader)) << row.ChiefHeader;
  }
  EXPECT_THAT(on_map, UnorderedElementsAreArray(on_disk));
}

TEST(PartsOfTheDesktop, IncludeOnlyWhatTheTableAllows) {
  const auto allowed = ArrowsAllowed();
  for (const auto& [arrow, where] : ArrowsMade()) EXPECT_TRUE(allowed.contains(arrow)) << where;
}

TEST(PartsOfTheDesktop, NeedAllThatTheTableAllows) {
  const auto made = ArrowsMade();
  for (const auto& arrow : ArrowsAllowed()) {
    EXPECT_TRUE(made.contains(arrow)) << arrow.first << " needs no " << arrow.second;
  }
}

// The rows stand from the ground up, so there is no ring.
TEST(PartsOfTheDesktop, IncludeDownwards) {
  std::set<std::string> below;
  for (const MapRow& row : MapOfDesktop()) {
    for (const std::string& other : row.MayInclude) {
      EXPECT_TRUE(below.contains(other)) << row.Room << " may include " << other;
    }
    below.insert(row.Room);
  }
}

}  // namespace
}  // namespace orvane::house
