// Ticks that chance decides instead of the clock, so that a sitting can be played again.
#pragma once

#include <QObject>

namespace orvane {

// While it exists, it keeps the timers of the windows from ticking by themselves.
class HeldTimers : public QObject {
 public:
  HeldTimers();

  bool eventFilter(QObject* object, QEvent* event) override;
};

}  // namespace orvane
