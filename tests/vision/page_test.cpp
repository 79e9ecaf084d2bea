// docs/colour-vision.md against what the program computes.
#include "vision_maker/page.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace orvane::vision {
namespace {

TEST(ThePageOfColourVision, HasTheNumbersOfTheProgram) {
  std::ifstream file(ORVANE_SOURCE_DIR "/docs/colour-vision.md", std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();

  EXPECT_EQ(text.str(), PageText())
      << "orvane-vision-maker docs/colour-vision.md PICTURE.ppm writes it anew";
}

// Seven elements make 21 pairs.
TEST(ThePageOfColourVision, ListsEveryPairOnce) {
  const std::string page = PageText();
  const std::string_view letters = "CNOSPHR";
  int pairs = 0;
  for (const char a : letters) {
    for (const char b : letters) {
      const std::string row = std::string("\n| ") + a + ", " + b + " |";
      const std::size_t found = page.find(row);
      if (found == std::string::npos) continue;
      ++pairs;
      EXPECT_EQ(page.find(row, found + 1), std::string::npos) << a << b;
    }
  }
  EXPECT_EQ(pairs, 21);
}

}  // namespace
}  // namespace orvane::vision
