#include "controls/scroll_bar.h"

#include <algorithm>

namespace orvane {

ScrollBar::ScrollBar(Window& window, std::string_view name)
    : Control(window, name), Range(Row.Range), Value(*this, Range.Start) {}

void ScrollBar::SetValue(int value) {
  if (Value == value) return;
  Value = value;
  Raise({.Kind = EventKind::Change});
}

void ScrollBar::StepTo(int value) { SetValue(std::clamp(value, Range.Min, Range.Max)); }

void ScrollBar::DragTo(int value) {
  Value = std::clamp(value, Range.Min, Range.Max);
  Raise({.Kind = EventKind::Scroll});
}

void ScrollBar::Drop() { Raise({.Kind = EventKind::Change}); }

}  // namespace orvane
