// A scroll bar: a value within its range, with a change event and a scroll event.
#pragma once

#include "controls/control.h"

namespace orvane {

struct BarRange {
  int Min = 0, Max = 0, SmallStep = 1, LargeStep = 1, Start = 0;
};

class ScrollBar : public Control {
 public:
  ScrollBar(Window& window, std::string_view name, BarRange range);

  const BarRange Range;
  Watched<int, Aspect::Value> Value;

  // Sets the value from code or at the end of a step. When it changes, the change event runs here,
  // inside the setter, before this returns.
  void SetValue(int value);

  // The user's ways to move it (each clips to the range):
  void StepTo(int value);  // arrow or page area: one change event if the value changed
  void DragTo(int value);  // thumb held: the value is set, then one scroll event
  void Drop();             // thumb let go: one change event at the value it has
};

}  // namespace orvane
