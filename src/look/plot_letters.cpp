#include "look/plot_letters.h"

#include <array>

namespace orvane {
namespace {

using enum PlotFamily;

// clang-format off
constexpr auto kLetters = std::to_array<PlotLetters>({
    {.Control = "Label1",  .Left = 1, .Baseline = 10.5, .HasFace = true},
    // Letters over the gaps of the legend.
    {.Control = "Label5",  .Family = Symbol, .Baseline = 14.5},
    {.Control = "Label6",  .Family = Symbol, .Baseline = 14.5},
    {.Control = "Label4",  .Family = Symbol, .Baseline = 14.5},
    // Names on the map.
    {.Control = "b_sheet",    .Size = 12, .Baseline = 9.5},
    {.Control = "b_sheet(0)", .Family = Symbol, .Size = 12, .Baseline = 9.5},
    {.Control = "b_sheet(4)", .Family = Symbol, .Size = 12, .Baseline = 9.5},
    {.Control = "R_Alf",      .Size = 12, .Baseline = 9.5},
    {.Control = "R_Alf(1)",   .Family = Symbol, .Size = 12, .Baseline = 10.5},
    {.Control = "R_Alf(3)",   .Size = 9,  .Baseline = 7},
    {.Control = "FEC",        .Size = 12, .Baseline = 9.5},
    {.Control = "L_Alf",      .Size = 12, .Baseline = 9.5},
    {.Control = "L_Alf(1)",   .Family = Symbol, .Size = 12, .Baseline = 9.5},
    {.Control = "Collag",     .Size = 12, .Baseline = 9.5},
    // Scale marks, each with a raised degree mark after it.
    {.Control = "Degrs",    .Family = Sans, .Size = 11, .Baseline = 11, .Quiet = true},
    {.Control = "Degrs(1)", .Family = Sans, .Size = 8, .Left = 0.5, .Baseline = 9, .Quiet = true},
    {.Control = "Degrs(3)", .Family = Sans, .Size = 8, .Left = 0.5, .Baseline = 9, .Quiet = true},
    {.Control = "Degrs(5)", .Family = Sans, .Size = 8, .Left = 0.5, .Baseline = 9, .Quiet = true},
    {.Control = "Degrs(7)", .Family = Sans, .Size = 8, .Left = 0.5, .Baseline = 9, .Quiet = true},
    {.Control = "Degrs(9)", .Family = Sans, .Size = 8, .Left = 0.5, .Baseline = 9, .Quiet = true},
    // Axis names.
    {.Control = "Label5(0)", .Family = Symbol, .Size = 17, .Baseline = 16},
    {.Control = "Label10",   .Size = 13, .Baseline = 13},
    {.Control = "Label11",   .Family = Symbol, .Size = 11, .Baseline = 11},
    {.Control = "Label6(0)", .Family = Symbol, .Size = 17, .Baseline = 16, .Upwards = true},
    {.Control = "Label8",    .Size = 13, .Baseline = 13, .Upwards = true},
    {.Control = "Label9",    .Family = Symbol, .Size = 11, .Baseline = 11, .Upwards = true},
});
// clang-format on

}  // namespace

const PlotLetters& PlotLettersOf(const Control& control) {
  for (const PlotLetters& row : kLetters) {
    if (row.Control == control.Row.Name) return row;
  }
  for (const PlotLetters& row : kLetters) {
    if (row.Control == control.Name) return row;
  }
  static constexpr PlotLetters kPlain = {};
  return kPlain;
}

std::string GreekOf(std::string_view letter) {
  if (letter == "a") return "α";
  if (letter == "b") return "β";
  if (letter == "f") return "φ";
  if (letter == "j") return std::string(kStraightPhi);
  return std::string(letter);
}

}  // namespace orvane
