// A scroll bar: a value within its range, with a change event and a scroll event.
#pragma once

#include "controls/control.h"

namespace orvane {

class ScrollBar : public Control {
 public:
  ScrollBar(Window& window, std::string_view name);

  const BarRange Range;  // the row's
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
