// A timer that keeps its beat. The toolkit's own timer waits in whole milliseconds and begins each
// wait when the last tick ended, so at one millisecond a tick that meets a paint comes a whole beat
// late. Here the system counts the beats, whatever the program does meanwhile: a late tick is not
// followed by a wait, and beats that could not be answered are dropped.
#pragma once

#include <functional>

#include <QObject>
#include <QSocketNotifier>

namespace orvane {

class Ticker : public QObject {
 public:
  explicit Ticker(std::function<void()> tick);
  ~Ticker() override;

  void Start(int interval);  // milliseconds; a running ticker restarts if the interval is new
  void Stop();
  bool IsActive() const { return interval_ > 0; }

 protected:
  void timerEvent(QTimerEvent* event) override;  // where the system gives no such clock

 private:
  void Beat();
  void Wind(int interval);
  void Run();

  std::function<void()> tick_;
  int clock_;  // a system file that can be read when a beat has come; or -1
  QSocketNotifier notifier_;
  int toolkit_timer_ = 0;
  int interval_ = 0;
  bool in_tick_ = false;  // a tick lets events run, and none may begin inside it
};

}  // namespace orvane
