#include "commands/key_sheet.h"

#include <algorithm>
#include <cctype>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "commands/desk_keys.h"
#include "draw/elements.h"

namespace orvane {
namespace {

using ::testing::HasSubstr;

const SheetRow* FindRow(std::string_view heading, std::string_view head) {
  static const std::vector<SheetSection> sheet = KeySheet();
  for (const SheetSection& section : sheet) {
    if (section.Heading != heading) continue;
    const auto found = std::ranges::find(section.Rows, head, &SheetRow::Head);
    if (found != section.Rows.end()) return &*found;
  }
  return nullptr;
}

TEST(TheKeySheet, HasARowForEachKeyOfTheTableUnderItsHeading) {
  for (const DeskKey& key : DeskKeys()) {
    if (key.Key.size() == 1 && std::ispunct(key.Key.front()) != 0) continue;  // named in words
    std::string head(key.Key);
    if (!key.Other.empty()) head += " or " + std::string(key.Other);
    const SheetRow* row = FindRow(key.Group, head);
    ASSERT_NE(row, nullptr) << key.Key;
    EXPECT_EQ(row->Words, key.Does);
  }
}

TEST(TheKeySheet, NamesSignsInWords) {
  EXPECT_NE(FindRow("Move and enlarge", "Plus or Equals"), nullptr);
  EXPECT_NE(FindRow("Move and enlarge", "Minus"), nullptr);
  EXPECT_NE(FindRow("Turn", "Full stop"), nullptr);
  EXPECT_NE(FindRow("Turn", "Comma"), nullptr);
}

TEST(TheKeySheet, HasOneSectionForEachHeading) {
  std::vector<std::string> headings;
  for (const SheetSection& section : KeySheet()) headings.push_back(section.Heading);
  std::ranges::sort(headings);
  EXPECT_EQ(std::ranges::adjacent_find(headings), headings.end());
}

TEST(TheKeySheet, ShowsEachElementInItsColour) {
  struct Expected {
    std::string_view Name, Word;
  };
  // In the order of the table of elements.
  constexpr Expected kExpected[] = {
      {"Nitrogen", "blue"},     {"Carbon", "green"},   {"Oxygen", "red"},      {"Sulphur", "gold"},
      {"Phosphorus", "purple"}, {"Hydrogen", "white"}, {"Side chain", "pink"},
  };
  ASSERT_EQ(std::size(kExpected), kElements.size());
  for (std::size_t i = 0; i < kElements.size(); ++i) {
    const SheetRow* row = FindRow("Colours of the elements", kExpected[i].Name);
    ASSERT_NE(row, nullptr) << kExpected[i].Name;
    EXPECT_EQ(row->Swatch, kElements[i].Ink);
    EXPECT_EQ(row->Words, kExpected[i].Word);
  }
}

TEST(TheKeySheet, SaysHowToLookAtAPairAndARedGreenPicture) {
  const std::string text = KeySheetText();
  EXPECT_THAT(text, HasSubstr("parallel: look through the screen until the left eye has the left"));
  EXPECT_THAT(text, HasSubstr("crossed: look at a finger"));
  EXPECT_THAT(text, HasSubstr("the red lines are the right view"));
  EXPECT_THAT(text, HasSubstr("projector"));
}

TEST(TheKeySheet, IsPlainTextToo) {
  const std::string text = KeySheetText();
  EXPECT_THAT(text, HasSubstr("\nTurn\nRight or Down: Turn forward about the chosen axis\n"));
  EXPECT_THAT(text, HasSubstr("\nOxygen: red\n"));
}

}  // namespace
}  // namespace orvane
