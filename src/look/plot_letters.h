// How the texts of the plot window are set. Greek letters are written as the letters of an old
// symbol type, "a" for alpha.
#pragma once

#include <string>
#include <string_view>

#include "controls/control.h"

namespace orvane {

enum class PlotFamily { Serif, BoldSerif, Sans, Symbol };

struct PlotLetters {
  std::string_view Control;  // without an index, for all of an array that have no row of their own
  PlotFamily Family = PlotFamily::Serif;
  int Size = 13;         // pixels
  double Left = 0;       // pixels from the control's left edge to the text
  double Baseline = 11;  // pixels below the control's top edge
  bool Upwards = false;  // turned by 90 degrees, starting at the control's lower edge
  bool HasFace = false;  // on the control's own colour
  bool Quiet = false;    // in ink 2
};

const PlotLetters& PlotLettersOf(const Control& control);

// "a", "b", "f" and "j" as they are drawn, in UTF-8: alpha, beta and the two shapes of phi.
std::string GreekOf(std::string_view letter);

// The straight phi is missing in the serif type. The windows' own type lends it, a little smaller,
// since its letters are larger for their size.
inline constexpr std::string_view kStraightPhi = "ϕ";
inline constexpr double kLentSize = 0.8;

}  // namespace orvane
