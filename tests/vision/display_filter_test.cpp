#include "vision/display_filter.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <vector>

#include "draw/elements.h"
#include "vision/colour_difference.h"

namespace orvane {
namespace {

std::uint32_t Word(Colour colour) {
  return 0xFF000000u | static_cast<std::uint32_t>(Red(colour)) << 16 |
         static_cast<std::uint32_t>(Green(colour)) << 8 | static_cast<std::uint32_t>(Blue(colour));
}

// `share` of 255 of a colour over a background, mixed as at an edge.
Colour Mixed(Colour over, Colour ground, int share) {
  const auto part = [&](int a, int b) { return (a * share + b * (255 - share) + 127) / 255; };
  return Rgb(part(Red(over), Red(ground)), part(Green(over), Green(ground)),
             part(Blue(over), Blue(ground)));
}

int FarthestChannel(Colour a, Colour b) {
  return std::max(
      {std::abs(Red(a) - Red(b)), std::abs(Green(a) - Green(b)), std::abs(Blue(a) - Blue(b))});
}

TEST(TheDisplayFilter, LeavesNoPairOfElementsBelowTheLeastDifference) {
  for (const Eye eye : kEyes) {
    const DisplayFilter filter(eye);
    for (const ElementRow& a : kElements) {
      for (const ElementRow& b : kElements) {
        if (a.Letter >= b.Letter) continue;
        EXPECT_GE(SeenDifference(eye, filter.Shown(a.Ink), filter.Shown(b.Ink)), kLeastDifference)
            << NameOf(eye) << " " << a.Letter << b.Letter;
      }
    }
  }
}

// Someone who sees all colours, such as a teacher beside the student, can still tell the seven
// apart.
TEST(TheDisplayFilter, KeepsTheElementsApartForEveryOtherEyeToo) {
  for (const Eye eye : kEyes) {
    const DisplayFilter filter(eye);
    for (const ElementRow& a : kElements) {
      for (const ElementRow& b : kElements) {
        if (a.Letter >= b.Letter) continue;
        const Lab first = LabOf(LightOf(filter.Shown(a.Ink)));
        EXPECT_GE(Difference(first, LabOf(LightOf(filter.Shown(b.Ink)))), 15)
            << NameOf(eye) << " " << a.Letter << b.Letter;
      }
    }
  }
}

TEST(TheDisplayFilter, ShowsAnElementAsItsTableSays) {
  for (const Eye eye : kEyes) {
    const DisplayFilter filter(eye);
    for (const ShownElement& row : kShownElements) {
      const Colour own = FindElement({&row.Letter, 1})->Ink;
      EXPECT_EQ(filter.Shown(own), row.Ink[IndexOf(eye)]) << NameOf(eye) << " " << row.Letter;
    }
  }
}

TEST(TheDisplayFilter, HasAColourForEveryElementThatIsNotGrey) {
  std::size_t hued = 0;
  for (const ElementRow& row : kElements) {
    const bool grey = Red(row.Ink) == Green(row.Ink) && Green(row.Ink) == Blue(row.Ink);
    if (!grey) ++hued;
  }
  EXPECT_EQ(hued, kHuedElements);
}

TEST(TheDisplayFilter, LeavesEveryGreyAsItIs) {
  for (const Eye eye : kEyes) {
    const DisplayFilter filter(eye);
    for (int grey = 0; grey < 256; ++grey) {
      EXPECT_EQ(filter.Shown(Rgb(grey, grey, grey)), Rgb(grey, grey, grey));
    }
  }
}

// Filtering and mixing can be done in either order: the filtered edge is the edge of the filtered
// colour. The roundings of the two allow two steps.
TEST(TheDisplayFilter, TurnsAnEdgeOverAnyGreyIntoTheEdgeOfTheNewColour) {
  for (const Eye eye : kEyes) {
    const DisplayFilter filter(eye);
    for (const ElementRow& row : kElements) {
      for (const int grey : {0, 128, 192, 255}) {
        const Colour ground = Rgb(grey, grey, grey);
        for (int share = 64; share < 256; ++share) {
          const Colour before = filter.Shown(Mixed(row.Ink, ground, share));
          const Colour behind = Mixed(filter.Shown(row.Ink), ground, share);
          EXPECT_LE(FarthestChannel(before, behind), 3)
              << NameOf(eye) << " " << row.Letter << " " << grey << " " << share;
        }
      }
    }
  }
}

// A step of one in a channel is no more than a few steps on the screen, round the whole circle.
TEST(TheDisplayFilter, HasNoJumpAnywhereOnTheCircleOfHues) {
  for (const Eye eye : kEyes) {
    const DisplayFilter filter(eye);
    std::vector<Colour> circle;
    circle.reserve(6 * 255);
    for (int i = 0; i < 255; ++i) circle.push_back(Rgb(255, i, 0));
    for (int i = 0; i < 255; ++i) circle.push_back(Rgb(255 - i, 255, 0));
    for (int i = 0; i < 255; ++i) circle.push_back(Rgb(0, 255, i));
    for (int i = 0; i < 255; ++i) circle.push_back(Rgb(0, 255 - i, 255));
    for (int i = 0; i < 255; ++i) circle.push_back(Rgb(i, 0, 255));
    for (int i = 0; i < 255; ++i) circle.push_back(Rgb(255, 0, 255 - i));
    Colour before = filter.Shown(circle.back());
    for (const Colour colour : circle) {
      EXPECT_LE(FarthestChannel(before, filter.Shown(colour)), 4);
      before = filter.Shown(colour);
    }
  }
}

TEST(TheDisplayFilter, AppliesToPixelsWhatItShowsForAColour) {
  for (const Eye eye : kEyes) {
    DisplayFilter filter(eye);
    std::vector<Colour> colours;
    // More colours than are kept, and each of them twice in a row.
    for (int r = 0; r < 256; r += 11) {
      for (int g = 0; g < 256; g += 11) {
        for (int b = 0; b < 256; b += 11) colours.insert(colours.end(), 2, Rgb(r, g, b));
      }
    }
    ASSERT_GT(colours.size(), 8192u);
    std::vector<std::uint32_t> words;
    words.reserve(colours.size());
    for (const Colour colour : colours) words.push_back(Word(colour));

    filter.Apply(words.data(), words.size());

    for (std::size_t i = 0; i < words.size(); ++i) {
      ASSERT_EQ(words[i], Word(filter.Shown(colours[i])));
    }
  }
}

TEST(TheDisplayFilter, LeavesTheRedGreenPictureToTheGlasses) {
  Stereo stereo;
  EXPECT_FALSE(IsForGlasses(stereo));
  stereo.RedGreenOn = 1;
  EXPECT_TRUE(IsForGlasses(stereo));
}

}  // namespace
}  // namespace orvane
