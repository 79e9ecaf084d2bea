// The pictures of the map: those kept are what the maker draws, and the marks lie under the hover
// regions.

#include "ramachandran/map_pictures.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

#include "desk_fixture.h"
#include "map_maker/map_maker.h"
#include "ramachandran/map_names.h"

namespace orvane {
namespace {

struct Extent {
  int Left = 999, Right = -1, Top = 999, Bottom = -1;
};

std::uint32_t WordAt(const Bitmap& map, int x, int y) {
  return map.Words[static_cast<std::size_t>(y * map.Width + x)];
}

// The smallest rectangle round the pixels of exactly that colour.
Extent ExtentOf(const Bitmap& map, std::uint32_t word) {
  Extent extent;
  for (int y = 0; y < map.Height; ++y) {
    for (int x = 0; x < map.Width; ++x) {
      if (WordAt(map, x, y) != word) continue;
      extent = {std::min(extent.Left, x), std::max(extent.Right, x), std::min(extent.Top, y),
                std::max(extent.Bottom, y)};
    }
  }
  return extent;
}

constexpr std::uint32_t kForbidden = 0xFFFFCECE;    // 255, 206, 206
constexpr std::uint32_t kOuterLimits = 0xFFFE8F95;  // 254, 143, 149
constexpr std::uint32_t kNormal = 0xFFFF7575;       // 255, 117, 117

TEST(MapPictures, AreWhatTheMakerDraws) {
  for (int index = 0; index < 3; ++index) {
    std::ifstream file(std::string(ORVANE_SOURCE_DIR) + "/src/ramachandran/maps/ram" +
                           std::to_string(index) + ".ppm",
                       std::ios::binary);
    std::ostringstream kept;
    kept << file.rdbuf();
    EXPECT_EQ(kept.str(), maps::MapFile(index)) << index;
  }
}

TEST(MapPictures, Are140PixelsSquare) {
  DeskAtWork work;
  for (int index = 0; index < 3; ++index) {
    const auto map = MapPicture(work.desk, index);
    EXPECT_EQ(map->Width, 140);
    EXPECT_EQ(map->Height, 140);
    EXPECT_EQ(map->Words.size(), 140U * 140U);
  }
}

// The required extents of the zones. An edge may be off by the pixel that it shares.
struct ZoneRow {
  int Map;
  std::uint32_t Word;
  Extent At;
};
TEST(MapPictures, HaveTheirZonesAtTheirPlaces) {
  DeskAtWork work;
  const ZoneRow rows[] = {{0, kOuterLimits, {5, 125, 0, 118}},
                          {0, kNormal, {35, 116, 0, 70}},
                          {1, kOuterLimits, {0, 114, 24, 139}},
                          {1, kNormal, {14, 92, 35, 52}},
                          {2, kOuterLimits, {32, 51, 46, 118}}};
  for (const ZoneRow& row : rows) {
    const Extent extent = ExtentOf(*MapPicture(work.desk, row.Map), row.Word);
    // The right end of the normal zone of map 1 lies under the mark of the helix.
    const int right = row.Map == 1 && row.Word == kNormal ? 86 : row.At.Right;
    EXPECT_NEAR(extent.Left, row.At.Left, 2) << row.Map;
    EXPECT_NEAR(extent.Right, right, 2) << row.Map;
    EXPECT_NEAR(extent.Top, row.At.Top, 2) << row.Map;
    EXPECT_NEAR(extent.Bottom, row.At.Bottom, 2) << row.Map;
  }
}

TEST(MapPictures, HaveAMarkUnderTheMiddleOfEveryHoverRegion) {
  DeskAtWork work;
  constexpr int kMapOfArea[] = {0, 1, -1, 2};
  for (const MapRule& rule : MapRules()) {
    if (!rule.IsRegion) continue;
    const auto map = MapPicture(work.desk, kMapOfArea[rule.Area]);
    const int x = static_cast<int>((rule.Left + rule.Right) / 2);
    const int y = static_cast<int>((rule.Top + rule.Bottom) / 2);
    const std::uint32_t word = WordAt(*map, x, y);
    EXPECT_NE(word, kForbidden) << x << ", " << y;
    EXPECT_LT((word >> 8) & 255U, 90U) << "not the dark red of a mark at " << x << ", " << y;
  }
}

TEST(MapPictures, AreMadeOnce) {
  DeskAtWork work;
  EXPECT_EQ(work.desk.survey.ram[0], nullptr);
  EXPECT_EQ(MapPicture(work.desk, 0), MapPicture(work.desk, 0));
}

}  // namespace
}  // namespace orvane
