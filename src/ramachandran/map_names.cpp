#include "ramachandran/map_names.h"

namespace orvane {
namespace {

using enum MapName;

// The clean-up differs from area to area on purpose: a name of area 0 is cleared by its own region
// or, for the collagen helix, by area 3, and stays when the pointer goes straight into area 1.
// clang-format off
constexpr MapRule kRules[] = {
    // area  name          region    X from    to   Y from    to
    {0, ThreeTenHelix, false,   0,     0,    0,     0},
    {0, Collagen,      true,  110,   115,   19,    24},
    {0, Antiparallel,  true,   43,    53,   33,    42},
    {0, Parallel,      true,   58,    68,   48,    58},

    {1, ThreeTenHelix, true,  106,   111,   23,    29},
    {1, RightAlpha,    true,   88,   104,   38,    53},
    {1, Extended,      true,    0,     6,  133,   138},

    {2, ThreeTenHelix, false,   0,     0,    0,     0},
    {2, RightAlpha,    false,   0,     0,    0,     0},
    {2, Extended,      false,   0,     0,    0,     0},

    {3, ThreeTenHelix, false,   0,     0,    0,     0},
    {3, Collagen,      false,   0,     0,    0,     0},
    {3, LeftAlpha,     true,   33,    44,   72,    82},
};
// clang-format on

bool Contains(const MapRule& rule, float x, float y) {
  return rule.IsRegion && x >= rule.Left && x <= rule.Right && y >= rule.Top && y <= rule.Bottom;
}

void ShowName(PlotWindow& plot, MapName name, bool shown) {
  const std::vector<Control*> controls = ControlsOf(plot, name);
  if (controls.front()->Visible == shown) return;
  for (Control* control : controls) control->Visible = shown;
}

}  // namespace

std::span<const MapRule> MapRules() { return kRules; }

std::vector<Control*> ControlsOf(PlotWindow& plot, MapName name) {
  switch (name) {
    case Collagen:
      return {&plot.CoLn, &plot.Collag};
    case Antiparallel:
      return {&plot.b_sheet[3], &plot.b_sheet[4], &plot.b_sheet[5]};
    case Parallel:
      return {&plot.b_sheet[0], &plot.b_sheet[1], &plot.b_sheet[2]};
    case ThreeTenHelix:
      return {&plot.R_Alf[2], &plot.R_Alf[3]};
    case RightAlpha:
      return {&plot.R_Alf[0], &plot.R_Alf[1]};
    case Extended:
      return {&plot.FEC};
    case LeftAlpha:
      return {&plot.L_Alf[0], &plot.L_Alf[1], &plot.L_Alf[2]};
  }
  return {};
}

void ShowMapNamesAt(PlotWindow& plot, int area, float x, float y) {
  for (const MapRule& rule : kRules) {
    if (rule.Area == area) ShowName(plot, rule.Name, Contains(rule, x, y));
  }
}

void HideMapName(PlotWindow& plot, MapName name) { ShowName(plot, name, false); }

}  // namespace orvane
