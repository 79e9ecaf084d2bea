#include "narration/picture_words.h"

#include <algorithm>

#include "narration/names.h"

namespace orvane {
namespace {

constexpr int kStickWidth = 3;  // thinner bonds are wires, even where a split view widens them

// Something that the picture may or may not show.
struct Trait {
  std::string_view Words;
  bool (*Holds)(const Orvane_Desk&);
};

bool IsTrace(const Orvane_Desk& desk) { return desk.drawing.DrawFamily == 1; }
bool HasPlanes(const Orvane_Desk& desk) { return desk.drawing.PeptideOn == 1; }
bool HasOnlyPlanes(const Orvane_Desk& desk) {
  return HasPlanes(desk) && desk.drawing.PlanesOnly == 1;
}

// How it is drawn: the first that holds.
constexpr Trait kModes[] = {
    {"peptide planes alone", HasOnlyPlanes},
    {"ribbon", [](const Orvane_Desk& d) { return IsTrace(d) && d.drawing.RibbonOn == 1; }},
    {"cartoon", [](const Orvane_Desk& d) { return IsTrace(d) && d.drawing.CartoonOn == 1; }},
    {"alpha carbon trace", IsTrace},
    {"ball and stick", [](const Orvane_Desk& d) { return d.drawing.BallsOn == 1; }},
    {"wire frame", [](const Orvane_Desk& d) { return d.drawing.BondWidth < kStickWidth; }},
    {"sticks", [](const Orvane_Desk&) { return true; }},
};

// What else is on: all that hold.
constexpr Trait kExtras[] = {
    {"peptide planes",
     [](const Orvane_Desk& d) { return HasPlanes(d) && d.drawing.PlanesOnly != 1; }},
    {"hydrogen bonds", [](const Orvane_Desk& d) { return d.drawing.HBondShown == 1; }},
    {"labels",
     [](const Orvane_Desk& d) {
       return d.drawing.LabelsOn == 1 && !IsTrace(d) && !HasOnlyPlanes(d);
     }},
    {"stereo pair", [](const Orvane_Desk& d) { return d.stereo.StereoOn == 1; }},
    {"both enantiomers", [](const Orvane_Desk& d) { return d.stereo.EnantiomerOn == 1; }},
    {"red-green stereo", [](const Orvane_Desk& d) { return d.stereo.RedGreenOn == 1; }},
    {"spinning", [](const Orvane_Desk& d) { return d.view.AutoRotateOn == 1; }},
};

std::string Counted(int number, std::string_view noun) {
  return std::to_string(number) + " " + std::string(noun) + (number == 1 ? "" : "s");
}

}  // namespace

std::string PictureWords(const Orvane_Desk& desk) {
  if (desk.main.Picture1.Image()->Strokes.empty()) return "Empty picture";
  const std::string name = StructureName(desk);
  std::string words = name.empty() ? "A structure" : name;
  words += ", " + Counted(desk.molecule.AtomCount, "atom");
  const auto mode = std::ranges::find_if(kModes, [&](const Trait& row) { return row.Holds(desk); });
  words += ", " + std::string(mode->Words);
  for (const Trait& row : kExtras) {
    if (row.Holds(desk)) words += ", " + std::string(row.Words);
  }
  return words;
}

}  // namespace orvane
