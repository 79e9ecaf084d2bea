// orvane-start-bench: where the time goes between the start of the process and the first picture of
// a structure, in milliseconds for each step. It needs a screen: xvfb-run -a orvane-start-bench
//
// It starts itself again for each round, since only a new process finds its libraries unloaded. The
// steps are those of the program.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <QApplication>
#include <QPaintEvent>
#include <QProcess>
#include <QTimer>

#include "desk/actions.h"
#include "desktop/look/look_style.h"
#include "desktop/outside/qt_platform.h"
#include "desktop/windows/skin.h"
#include "shell/start_up.h"

namespace orvane {
namespace {

constexpr int kRounds = 15;

double Now() {  // the same clock in the process that starts and the one that is started
  using Milliseconds = std::chrono::duration<double, std::milli>;
  return Milliseconds(std::chrono::steady_clock::now().time_since_epoch()).count();
}

class Steps {
 public:
  explicit Steps(double begin) : last_(begin) {}
  void Done(const char* step) {
    const double now = Now();
    std::printf("%s\t%.3f\n", step, now - last_);
    last_ = Now();
  }

 private:
  double last_;
};

// Leaves the event loop after the next paint of a window.
class Painted : public QObject {
 public:
  void Await() {
    qApp->installEventFilter(this);
    QApplication::exec();
    qApp->removeEventFilter(this);
  }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) QTimer::singleShot(0, qApp, &QApplication::quit);
    return false;
  }
};

int PlayOneRound(int count, char** words) {
  Steps steps(std::strtod(words[1], nullptr));
  steps.Done("libraries");
  QApplication::setDesktopSettingsAware(false);
  QApplication application(count, words);
  QApplication::setQuitOnLastWindowClosed(false);
  steps.Done("toolkit, screen, list of fonts");
  DressApplication(application);
  steps.Done("type and style");
  QtPlatform platform;
  const auto desk = StartDesk(platform);
  steps.Done("desk");
  Skin skin(*desk, platform);
  skin.ShowWindows();
  steps.Done("splash, its widgets");
  Painted painted;
  painted.Await();
  steps.Done("splash, painted");
  desk->front.Hide();
  desk->main.Show();
  steps.Done("main window, its widgets");
  painted.Await();
  steps.Done("main window, painted");
  SelectRow(*desk, desk->main.AA_Lst, 0);
  steps.Done("alanine, built and loaded");
  painted.Await();
  steps.Done("alanine, painted");
  return 0;
}

void PrintMedians(const char* self) {
  std::vector<std::string> order;
  std::map<std::string, std::vector<double>> times;
  for (int round = 0; round <= kRounds; ++round) {
    QProcess child;
    child.start(QString::fromLocal8Bit(self), {QString::number(Now(), 'f', 6)});
    child.waitForFinished();
    if (round == 0) continue;  // this round reads the libraries from the disk
    for (const QByteArray& line : child.readAllStandardOutput().split('\n')) {
      const QList<QByteArray> parts = line.split('\t');
      if (parts.size() != 2) continue;
      const std::string step = parts[0].toStdString();
      if (times[step].empty()) order.push_back(step);
      times[step].push_back(parts[1].toDouble());
    }
  }
  double sum = 0;
  for (const std::string& step : order) {
    std::vector<double>& all = times[step];
    std::nth_element(all.begin(), all.begin() + static_cast<long>(all.size() / 2), all.end());
    sum += all[all.size() / 2];
    std::printf("%-40s %8.1f ms %8.1f in all\n", step.c_str(), all[all.size() / 2], sum);
  }
}

}  // namespace
}  // namespace orvane

int main(int count, char** words) {
  if (count > 1) return orvane::PlayOneRound(count, words);
  orvane::PrintMedians(words[0]);
}
