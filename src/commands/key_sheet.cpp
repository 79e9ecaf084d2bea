#include "commands/key_sheet.h"

#include <algorithm>
#include <array>

#include "commands/desk_keys.h"
#include "draw/elements.h"
#include "narration/atom_words.h"

namespace orvane {
namespace {

// Keys that any such window answers to, whatever the desk does.
const SheetSection kEveryControl = {"Everywhere",
                                    {
                                        {"Tab", "Go to the next control; Shift+Tab back", {}},
                                        {"Space or Enter", "Click the control with the ring", {}},
                                        {"Arrows, Page keys", "Choose in a list, step a bar", {}},
                                        {"Alt and a letter", "Open the menu with that letter", {}},
                                        {"F1", "Show or close this sheet", {}},
                                        {"F8", "Show the pictures for another eye", {}},
                                    },
                                    {}};

const std::array<std::string, 4> kDepth = {
    "A pair, parallel: look through the screen until the left eye has the left view and the right "
    "eye the right one, and a third picture appears between them. The centres of the two views "
    "must be no further apart than your eyes, about 6 cm, so a large screen does not work.",
    "A pair, crossed: look at a finger held before the screen until the left eye has the right "
    "view. This works at any size.",
    "Red and green glasses: the red lines are the right view of the pair, the green ones the left. "
    "Each is seen through the glass of its own colour. Remove coloured backgrounds first.",
    "Which way shows front and back correctly differs from structure to structure. If a "
    "right-handed helix looks left-handed, look the other way, or turn the glasses round. For a "
    "projector, maximise the window, and press 3 on the picture for thicker lines."};

// The word for a sign that is easily overlooked and that a screen reader may leave out.
std::string InWords(std::string_view key) {
  return key == "+"   ? "Plus"
         : key == "=" ? "Equals"
         : key == "-" ? "Minus"
         : key == "." ? "Full stop"
         : key == "," ? "Comma"
                      : std::string(key);
}

std::string KeysOf(const DeskKey& key) {
  std::string keys = InWords(key.Key);
  if (!key.Other.empty()) keys += " or " + InWords(key.Other);
  return keys;
}

SheetSection& SectionOf(std::vector<SheetSection>& sections, std::string_view heading) {
  const auto found = std::ranges::find(sections, heading, &SheetSection::Heading);
  if (found != sections.end()) return *found;
  sections.push_back({std::string(heading), {}, {}});
  return sections.back();
}

struct NamedColour {
  std::string_view Name;
  Colour Ink;
};
constexpr auto kColourNames = std::to_array<NamedColour>({
    {"red", Rgb(255, 0, 0)},
    {"green", Rgb(0, 255, 0)},
    {"blue", Rgb(0, 0, 255)},
    {"gold", Rgb(255, 215, 0)},
    {"purple", Rgb(128, 0, 128)},
    {"pink", Rgb(255, 105, 180)},
    {"white", Rgb(255, 255, 255)},
    {"black", Rgb(0, 0, 0)},
});

int Apart(Colour a, Colour b) {
  const int red = Red(a) - Red(b), green = Green(a) - Green(b), blue = Blue(a) - Blue(b);
  return red * red + green * green + blue * blue;
}

// The nearest colour that has a name.
std::string ColourWord(Colour colour) {
  return std::string(std::ranges::min_element(kColourNames, {}, [&](const NamedColour& named) {
                       return Apart(named.Ink, colour);
                     })->Name);
}

SheetSection ColoursOfElements() {
  SheetSection section{"Colours of the elements", {}, {}};
  for (const ElementRow& element : kElements) {
    section.Rows.push_back(
        {std::string(ElementWord(element.Letter)), ColourWord(element.Ink), element.Ink});
  }
  section.Texts = {"While the swatch CPK is chosen under Options, Mol_Colour."};
  return section;
}

}  // namespace

std::vector<SheetSection> KeySheet() {
  std::vector<SheetSection> sections{kEveryControl};
  for (const DeskKey& key : DeskKeys()) {
    SectionOf(sections, key.Group).Rows.push_back({KeysOf(key), std::string(key.Does), {}});
  }
  sections.push_back(ColoursOfElements());
  sections.push_back({"Seeing depth", {}, {kDepth.begin(), kDepth.end()}});
  return sections;
}

std::string KeySheetText() {
  std::string text;
  for (const SheetSection& section : KeySheet()) {
    text += section.Heading + "\n";
    for (const SheetRow& row : section.Rows) {
      text += row.Head;
      if (!row.Words.empty()) text += ": " + row.Words;
      text += "\n";
    }
    for (const std::string& paragraph : section.Texts) text += paragraph + "\n";
  }
  return text;
}

}  // namespace orvane
