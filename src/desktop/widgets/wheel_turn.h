// The turn of a wheel in whole notches. Touchpads and fine wheels turn by parts of a notch; the
// parts are kept until they make a whole one, and dropped when the wheel turns back.
#pragma once

#include <QWheelEvent>

namespace orvane {

class WheelTurn {
 public:
  // The notches that the turn fills, negative towards the user; angle: eighths of a degree.
  int NotchesOf(int angle) {
    if ((angle < 0) != (rest_ < 0)) rest_ = 0;
    rest_ += angle;
    const int notches = rest_ / QWheelEvent::DefaultDeltasPerStep;
    rest_ %= QWheelEvent::DefaultDeltasPerStep;
    return notches;
  }

 private:
  int rest_ = 0;
};

}  // namespace orvane
