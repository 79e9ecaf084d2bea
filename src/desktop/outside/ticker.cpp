#include "desktop/outside/ticker.h"

#include <cstdint>
#include <sys/timerfd.h>
#include <unistd.h>
#include <utility>

namespace orvane {

Ticker::Ticker(std::function<void()> tick)
    : tick_(std::move(tick)),
      clock_(timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC)),
      notifier_(QSocketNotifier::Read) {
  if (clock_ < 0) return;
  notifier_.setSocket(clock_);
  QObject::connect(&notifier_, &QSocketNotifier::activated, this, [this] { Beat(); });
}

Ticker::~Ticker() {
  notifier_.setEnabled(false);
  if (clock_ >= 0) close(clock_);
}

void Ticker::Start(int interval) {
  if (interval == interval_) return;
  Stop();
  interval_ = interval;
  if (clock_ < 0) {
    toolkit_timer_ = startTimer(interval, Qt::PreciseTimer);
    return;
  }
  Wind(interval);
  notifier_.setEnabled(true);
}

void Ticker::Stop() {
  interval_ = 0;
  if (toolkit_timer_ != 0) killTimer(std::exchange(toolkit_timer_, 0));
  if (clock_ < 0) return;
  notifier_.setEnabled(false);
  Wind(0);
}

// From now on there is a beat every `interval` milliseconds; 0: none, and unread beats are dropped.
void Ticker::Wind(int interval) {
  itimerspec beats{};
  beats.it_interval.tv_sec = interval / 1000;
  beats.it_interval.tv_nsec = interval % 1000 * 1000000L;
  beats.it_value = beats.it_interval;
  timerfd_settime(clock_, 0, &beats, nullptr);
}

void Ticker::Beat() {
  std::uint64_t beats = 0;
  if (read(clock_, &beats, sizeof beats) == sizeof beats) Run();
}

void Ticker::timerEvent(QTimerEvent*) { Run(); }

void Ticker::Run() {
  if (in_tick_) return;
  in_tick_ = true;
  tick_();
  in_tick_ = false;
}

}  // namespace orvane
