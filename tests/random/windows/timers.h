// Ticks at the command of chance instead of the clock, so that a sitting can be played again.
#pragma once

#include <QObject>

namespace orvane {

// Keeps the timers of the windows from ticking by themselves, as long as it lives.
class HeldTimers : public QObject {
 public:
  HeldTimers();

  bool eventFilter(QObject* object, QEvent* event) override;
};

}  // namespace orvane
