// The life of a press on a control: the press, the time it is held, the release, and the click that
// may end it. A skin's pointer, a key on a control and a key that stands for a control all go
// through it.
#pragma once

#include <optional>

#include "desk/orvane_desk.h"

namespace orvane {

// The whole life at once, at a place in the control's pixels or in its middle.
void PressAndClick(Orvane_Desk& desk, Control& control, float x, float y);
void PressAndClickInTheMiddle(Orvane_Desk& desk, Control& control);

// What a skin keeps for each control that can be held.
class PressLife {
 public:
  PressLife(Orvane_Desk& of, Control& held) : desk(of), control(held) {}

  Orvane_Desk& desk;
  Control& control;

  // For the look of the control: held by the left button or by a key.
  bool IsHeld() const { return held_ || held_key_.has_value(); }

  // Any button presses and releases, but only the left one holds; another button pressed meanwhile
  // ends the hold. A control that is not open to the user is not held.
  void ButtonDown(int button, float x, float y);
  void Moved(int buttons, float x, float y);
  // The click follows when a left button that held is released over the control.
  void ButtonUp(int button, float x, float y, bool over);

  // A key that stands for a click: the whole life runs when it is released. `key` is the skin's own
  // number for it; a second key does nothing while one is held.
  void KeyDown(int key);
  bool KeyUp(int key);  // false: not the key that is held

  // The keyboard has gone elsewhere, and the key will be released there: no click.
  void KeyboardLeaves() { held_key_.reset(); }

 private:
  bool held_ = false;
  std::optional<int> held_key_;
};

}  // namespace orvane
