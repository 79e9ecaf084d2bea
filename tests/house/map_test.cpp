// The map in docs/architecture.md against the folders that it draws.
#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "house/source_tree.h"

namespace orvane::house {
namespace {

using ::testing::Contains;
using ::testing::UnorderedElementsAreArray;

std::vector<std::string> RoomsOnTheMap() {
  std::vector<std::string> rooms;
  for (const MapRow& row : Map()) rooms.push_back(row.Room);
  return rooms;
}

TEST(TheMap, HasOneRowForEveryFolderUnderSrcAndNoOther) {
  EXPECT_THAT(RoomsOnTheMap(), UnorderedElementsAreArray(RoomsOnDisk()));
}

TEST(TheMap, NamesOnlyChiefHeadersThatExistInTheirOwnRoom) {
  for (const MapRow& row : Map()) {
    if (row.ChiefHeader.empty()) continue;
    EXPECT_EQ(RoomOf(row.ChiefHeader), row.Room);
    EXPECT_TRUE(ProjectHas("src/" + row.ChiefHeader)) << row.ChiefHeader;
  }
}

TEST(TheMap, AllowsIncludingOnlyRoomsThatItHas) {
  for (const MapRow& row : Map()) {
    for (const std::string& other : row.MayInclude) {
      EXPECT_THAT(RoomsOnTheMap(), Contains(other)) << "in the row of " << row.Room;
    }
  }
}

}  // namespace
}  // namespace orvane::house
