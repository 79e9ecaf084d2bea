#include "vision_maker/page.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <string_view>
#include <vector>

#include "draw/elements.h"
#include "vision/colour_difference.h"
#include "vision/display_filter.h"

namespace orvane::vision {
namespace {

constexpr std::string_view kLetters = "CNOSPHR";

constexpr std::string_view kHead =
    R"(# The colours, for eyes that see two of them

In Europe about one man in twelve sees red and green alike, or nearly so. The key **F8** changes the colours
of the picture for protan eyes (no cones for red). Pressed again, it changes them for deutan eyes (none for
green), then for tritan eyes (none for blue), and then it shows the picture as it is. A tip over the picture
says which.

The filter changes only the screen. It touches no stored pixel, exported file, frame of a recording, print or
replay, and it is off at every start. The swatches of the colour panel show the same colours as the picture.
The red-green picture is left alone, since coloured glasses need exactly its two colours.

![Seven balls joined in a row, one of each element, as described below](pictures/colour-vision.png)

Seven atoms, C, N, O, S, P, H and R, painted by the program. Each column is for one kind of eye: protan,
deutan, tritan. From top to bottom: the screen without the filter; the same as that eye sees it; the screen
with the filter; the same as that eye sees it. The first and the third row are what everybody else sees.

## What it does to a colour

Each element has its own colour for each kind of eye; the table in `src/vision/display_filter.cpp` lists
them. A hue between those of two elements is mixed from the two. Greys, black and white do not change. A
shade, a tint or a smooth edge over any grey background becomes the same shade, tint or edge of the new
colour, so a ball has one colour up to its rim.

)";

constexpr std::string_view kMethod = R"(
## How it is measured

What an eye sees is simulated by the method of G. M. Machado, M. M. Oliveira and L. A. F. Fernandes, *A
physiologically-based model for simulation of color vision deficiency*, IEEE Transactions on
Visualization and Computer Graphics 15 (2009), 1291-1298, with the matrices for severity 1.0: no cones of
that kind at all. The difference between two colours is CIEDE2000, from 0 for equal colours to 100 for
black and white.

)";

constexpr std::string_view kCaution = R"(
The numbers hold for large even fields on a screen that keeps to sRGB. Small balls and thin lines look less
different than their numbers say, and a projector in a bright room weakens the difference further. That is
why the threshold is twenty times the difference of about 1 that can just be seen between fields side by
side. The simulation assumes that one kind of cone is missing altogether, which is the hardest case of each;
for tritan eyes its authors had the least to compare it with. No filter replaces the atom names, which every
eye can read.

)";

constexpr std::string_view kFoot = R"(
This page is written by `orvane-vision-maker`, and a test compares it with what the program computes.
)";

std::string Number(double value) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%.1f", value);
  return text.data();
}

Colour InkOf(char letter) { return FindElement({&letter, 1})->Ink; }

std::string Hex(Colour colour) {
  std::array<char, 16> text{};
  std::snprintf(text.data(), text.size(), "`#%02X%02X%02X`", Red(colour), Green(colour),
                Blue(colour));
  return text.data();
}

std::string Colours() {
  std::string text =
      "| Element | As it is | For protan | For deutan | For tritan |\n"
      "| --- | --- | --- | --- | --- |\n";
  for (const char letter : kLetters) {
    text += std::string("| ") + letter + " | " + Hex(InkOf(letter));
    for (const Eye eye : kEyes) text += " | " + Hex(DisplayFilter(eye).Shown(InkOf(letter)));
    text += " |\n";
  }
  return text;
}

struct Seen {
  double Without, With;
};

Seen SeenBy(Eye eye, char first, char second) {
  const DisplayFilter filter(eye);
  const Colour a = InkOf(first), b = InkOf(second);
  return {SeenDifference(eye, a, b), SeenDifference(eye, filter.Shown(a), filter.Shown(b))};
}

std::string Least() {
  std::string text;
  for (const Eye eye : kEyes) {
    Seen least{100, 100};
    for (std::size_t a = 0; a < kLetters.size(); ++a) {
      for (std::size_t b = a + 1; b < kLetters.size(); ++b) {
        const Seen seen = SeenBy(eye, kLetters[a], kLetters[b]);
        least = {std::min(least.Without, seen.Without), std::min(least.With, seen.With)};
      }
    }
    text += "| " + std::string(NameOf(eye)) + " | " + Number(least.Without) + " | " +
            Number(least.With) + " |\n";
  }
  return "**With the filter no pair differs by less than " + Number(kLeastDifference) +
         ".** The smallest difference of any pair:\n\n"
         "| Eye | Without | With |\n| --- | ---: | ---: |\n" +
         text;
}

std::string Pairs() {
  std::string text =
      "## All pairs\n\n"
      "| Pair | protan, without | with | deutan, without | with | tritan, without | with |\n"
      "| --- | ---: | ---: | ---: | ---: | ---: | ---: |\n";
  for (std::size_t a = 0; a < kLetters.size(); ++a) {
    for (std::size_t b = a + 1; b < kLetters.size(); ++b) {
      text += std::string("| ") + kLetters[a] + ", " + kLetters[b] + " |";
      for (const Eye eye : kEyes) {
        const Seen seen = SeenBy(eye, kLetters[a], kLetters[b]);
        text += " " + Number(seen.Without) + " | " + Number(seen.With) + " |";
      }
      text += "\n";
    }
  }
  return text;
}

}  // namespace

std::string PageText() {
  std::string page(kHead);
  page += Colours();
  page += kMethod;
  page += Least();
  page += kCaution;
  page += Pairs();
  page += kFoot;
  return page;
}

}  // namespace orvane::vision
