#include "ramachandran/map_walk.h"

#include <vector>

#include "desk/actions.h"
#include "ramachandran/map_names.h"

namespace orvane {
namespace {

std::vector<MapRule> Marks() {
  std::vector<MapRule> marks;
  for (const MapRule& rule : MapRules()) {
    if (rule.IsRegion) marks.push_back(rule);
  }
  return marks;
}

MapArea& AreaOf(Orvane_Desk& desk, const MapRule& mark) {
  return desk.plot.Area[static_cast<std::size_t>(mark.Area)];
}

bool IsShown(Orvane_Desk& desk, const MapRule& mark) {
  return ControlsOf(desk.plot, mark.Name).front()->Visible;
}

// No mark reaches the corner of its area.
void Leave(Orvane_Desk& desk, const MapRule& mark) { Move(desk, AreaOf(desk, mark), 0, 0, 0); }

void StepBy(Orvane_Desk& desk, int step) {
  const std::vector<MapRule> marks = Marks();
  const int count = static_cast<int>(marks.size());
  int from = step > 0 ? -1 : count;
  for (int i = 0; i < count; ++i) {
    const MapRule& mark = marks[static_cast<std::size_t>(i)];
    if (!IsShown(desk, mark)) continue;
    from = i;
    Leave(desk, mark);
  }
  const MapRule& next = marks[static_cast<std::size_t>((from + step + count) % count)];
  Move(desk, AreaOf(desk, next), 0, (next.Left + next.Right) / 2, (next.Top + next.Bottom) / 2);
}

}  // namespace

void ShowNextMapName(Orvane_Desk& desk) { StepBy(desk, 1); }
void ShowPreviousMapName(Orvane_Desk& desk) { StepBy(desk, -1); }

}  // namespace orvane
