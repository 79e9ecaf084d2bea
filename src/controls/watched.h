// A property of a control: it reads as its value, and setting it tells the watcher of the control.
#pragma once

#include <utility>

namespace orvane {

class Control;

// What has changed in a control.
enum class Aspect {
  Caption,
  Visible,
  Enabled,
  Look,
  Place,
  BackColor,
  Value,
  Picture,
  Rows,
  Text,
  Interval,
  Pointer,  // the pointer shape of a window
  Front,    // the control was brought in front of its siblings
  Focus,    // the control asks for the keyboard
  Surface,  // a picture box was drawn on
  Walk,     // the walk by keys in a picture box moved, pressed on an atom, or ended
};

void TellWatcher(Control& control, Aspect aspect);  // controls/control.cpp

template <class T, Aspect kAspect>
class Watched {
 public:
  Watched(Control& owner, T value) : owner_(owner), value_(std::move(value)) {}
  Watched(const Watched&) = delete;
  Watched& operator=(const Watched&) = delete;

  Watched& operator=(T value) {
    if (!(value_ == value)) {
      value_ = std::move(value);
      TellWatcher(owner_, kAspect);
    }
    return *this;
  }

  operator const T&() const { return value_; }  // NOLINT(google-explicit-constructor)
  const T& Get() const { return value_; }

  template <class U>
  friend bool operator==(const Watched& property, const U& value) {
    return property.value_ == value;
  }

 private:
  Control& owner_;
  T value_;
};

}  // namespace orvane
