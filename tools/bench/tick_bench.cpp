// orvane-tick-bench: spins the double strand in a real window and prints how regularly the ticks
// come, at 1 and at 200 milliseconds, plainly and with everything on (stereo, balls of size 6,
// width 6, labels, hydrogen bonds). It needs a screen: xvfb-run -a orvane-tick-bench [maximised]

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>
#include <string_view>
#include <sys/resource.h>
#include <vector>

#include <QApplication>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include "desk/actions.h"
#include "desktop/look/look_style.h"
#include "desktop/outside/qt_platform.h"
#include "desktop/windows/skin.h"
#include "desktop/windows/window_widget.h"
#include "shell/start_up.h"

namespace orvane {
namespace {

using Clock = std::chrono::steady_clock;
constexpr int kSeconds = 5;

double CpuSeconds() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
  };
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

void ShowEverything(Orvane_Desk& desk) {
  Click(desk, desk.main.Bt_BlS);
  for (int step = 0; step < 5; ++step) {
    Press(desk, desk.main.Sz_Balls[0], kLeftButton, 1, 1);
    Press(desk, desk.main.Sz_Balls[2], kLeftButton, 1, 1);
  }
  Click(desk, desk.main.Bt3_Label);
  Click(desk, desk.main.Bt3_HBD);
  Click(desk, desk.main.Bt3_Sterio);
}

void MeasureTicks(Orvane_Desk& desk, std::vector<Clock::time_point>& ticks, const char* scene,
                  int interval) {
  StepBar(desk, desk.main.Rt_speed, interval);
  StepBar(desk, desk.main.VScroll1, 11);
  Click(desk, desk.main.P_Auto_Rotate);
  ticks.clear();
  const double cpu = CpuSeconds();
  QTimer::singleShot(kSeconds * 1000, [] { QApplication::exit(); });
  QApplication::exec();
  const double share = (CpuSeconds() - cpu) / kSeconds;
  Click(desk, desk.main.P_Auto_Rotate);
  if (ticks.size() < 2) {
    std::printf("%s at %d ms: %zu ticks\n", scene, interval, ticks.size());
    return;
  }
  std::vector<double> gaps;
  for (std::size_t i = 1; i < ticks.size(); ++i) {
    gaps.push_back(std::chrono::duration<double, std::milli>(ticks[i] - ticks[i - 1]).count());
  }
  std::sort(gaps.begin(), gaps.end());
  const auto at = [&](double part) {
    return gaps[static_cast<std::size_t>(part * static_cast<double>(gaps.size() - 1))];
  };
  std::printf(
      "%s at %d ms: %zu ticks in %d s, gaps median %.2f p99 %.2f longest %.2f ms, %.0f%% of a "
      "core\n",
      scene, interval, ticks.size(), kSeconds, at(0.5), at(0.99), gaps.back(), 100 * share);
}

// Without a window manager nobody else gives a maximised window its size.
void FillTheScreen(Skin& skin, Window& window) {
  WindowWidget& widget = skin.WindowOf(window);
  widget.showMaximized();
  widget.windowHandle()->setGeometry(widget.screen()->geometry());
  QApplication::processEvents();
  std::printf("the desk is shown %.2f times as large\n", widget.scale.Unit());
}

}  // namespace
}  // namespace orvane

int main(int count, char** words) {
  using namespace orvane;
  QApplication application(count, words);
  DressApplication(application);
  QtPlatform platform;
  const auto desk = StartDesk(platform);
  Skin skin(*desk, platform);
  desk->front.Hide();
  desk->main.Show();
  if (count > 1 && std::string_view(words[1]) == "maximised") FillTheScreen(skin, desk->main);
  std::vector<Clock::time_point> ticks;
  desk->main.Timer1.Bind(EventKind::Tick, [&](const Event&) { ticks.push_back(Clock::now()); });

  constexpr int kDoubleStrand = 2;
  SelectRow(*desk, desk->main.DNA_Lst, kDoubleStrand);
  for (const int interval : {200, 1}) MeasureTicks(*desk, ticks, "double strand", interval);
  ShowEverything(*desk);
  for (const int interval : {200, 1}) MeasureTicks(*desk, ticks, "everything on", interval);
}
