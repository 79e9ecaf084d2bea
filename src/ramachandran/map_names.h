// Names on the map that show while the pointer is on their mark. A region is given in pixels of one
// area, not in angles; both ends of each range belong to it.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "windows/plot_window.h"

namespace orvane {

// A name on the map: controls shown and hidden together. The first one tells the state of all: a
// group whose first control is in the wanted state is left alone.
enum class MapName {
  Collagen,
  Antiparallel,
  Parallel,
  ThreeTenHelix,
  RightAlpha,
  Extended,
  LeftAlpha
};
std::vector<Control*> ControlsOf(PlotWindow& plot, MapName name);

// What a move of the pointer over an area does, in the order of the rows: a region shows its name
// inside and hides it outside; a row without a region clears the name.
struct MapRule {
  int Area;
  MapName Name;
  bool IsRegion;
  float Left, Right, Top, Bottom;  // pixels of the area
};
std::span<const MapRule> MapRules();

// The pointer is over that area, at that pixel of it.
void ShowMapNamesAt(PlotWindow& plot, int area, float x, float y);
void HideMapName(PlotWindow& plot, MapName name);

}  // namespace orvane
