// What a user, a timer or another routine does to a control.
#pragma once

namespace orvane {

enum class EventKind {
  Click,  // also a click on a row of a list, after the row is chosen
  DoubleClick,
  Press,    // pointer button down; Button, X, Y
  Move,     // pointer over the control; Button is the state of the buttons
  Release,  // pointer button up
  Enter,    // the pointer moves onto the control
  Focus,    // the control gets the keyboard
  Key,      // a key in a text box; KeyCode
  Change,   // the value of a bar, or the picture of a picture box, was set
  Scroll,   // the thumb of a bar moves under the pointer
  Tick,     // the interval of a timer is over
  Failed,   // an operation that began at this control ended in a failure
  Close,    // the user closes the window by its frame
  Resize,   // the window has a new size; its place and state are already set
};

// Pointer buttons, as an event numbers them; a Move carries their sum.
inline constexpr int kLeftButton = 1;
inline constexpr int kRightButton = 2;
inline constexpr int kMiddleButton = 4;

inline constexpr int kEnterKey = 13;

struct Event {
  EventKind Kind = EventKind::Click;
  int Index = 0;  // which element of a control array
  int Button = 0;
  float X = 0;  // pixels of the control, from its top left
  float Y = 0;
  int KeyCode = 0;
};

}  // namespace orvane
