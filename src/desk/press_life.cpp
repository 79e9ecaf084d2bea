#include "desk/press_life.h"

#include <utility>

#include "desk/actions.h"

namespace orvane {

void PressAndClick(Orvane_Desk& desk, Control& control, float x, float y) {
  Press(desk, control, kLeftButton, x, y);
  Release(desk, control, kLeftButton, x, y);
  Click(desk, control);
}

void PressAndClickInTheMiddle(Orvane_Desk& desk, Control& control) {
  const Place at = control.At;
  PressAndClick(desk, control, static_cast<float>(at.Width) / (2 * TwipsPerPixel),
                static_cast<float>(at.Height) / (2 * TwipsPerPixel));
}

void PressLife::ButtonDown(int button, float x, float y) {
  held_ = button == kLeftButton && control.IsOpenToUser();
  Press(desk, control, button, x, y);
}

void PressLife::Moved(int buttons, float x, float y) { Move(desk, control, buttons, x, y); }

// The hold ends before the handlers run, since they may open a box, and nothing should look held
// under it.
void PressLife::ButtonUp(int button, float x, float y, bool over) {
  const bool ends = button == kLeftButton && std::exchange(held_, false);
  Release(desk, control, button, x, y);
  if (ends && over) Click(desk, control);
}

void PressLife::KeyDown(int key) {
  if (!held_key_.has_value()) held_key_ = key;
}

bool PressLife::KeyUp(int key) {
  if (held_key_ != key) return false;
  held_key_.reset();
  PressAndClickInTheMiddle(desk, control);
  return true;
}

}  // namespace orvane
