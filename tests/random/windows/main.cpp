// orvane-random-windows: random events at the real windows, without a screen. Each sitting is a
// process of its own, so that a crash ends that sitting alone and its events are known.
#include <cstdio>
#include <deque>
#include <fstream>
#include <iostream>
#include <string_view>
#include <unistd.h>

#include <QApplication>

#include "desktop/programs/application.h"
#include "random/desk/apart.h"
#include "random/desk/numbers.h"
#include "random/windows/sitting.h"

namespace orvane {
namespace {

constexpr std::string_view kUsage =
    "usage: orvane-random-windows [--events N] [--seed S] [--sitting N]\n"
    "  --events   make at least so many (50000)\n"
    "  --seed     of the first sitting; each has the next (1)\n"
    "  --sitting  events at one start of the program at the most (2000)\n"
    "What goes wrong leaves its events in random-windows-SEED.txt; --seed S plays them again.\n";
constexpr unsigned kLongestSitting = 900;  // seconds; a longer one hangs
constexpr int kWrongExit = 3;
constexpr std::size_t kLastEvents = 12;  // that are printed

struct Options {
  long Events = 50000;
  long Seed = 1;
  long Sitting = 2000;
};

bool ReadOptions(int argc, char** argv, Options& options) {
  const NumberOption numbers[] = {
      {"--events", &options.Events}, {"--seed", &options.Seed}, {"--sitting", &options.Sitting}};
  for (int i = 1; i + 1 < argc; i += 2) {
    if (!ReadNumber(numbers, argv[i], argv[i + 1])) return false;
  }
  return argc % 2 == 1;
}

// What the toolkit remarks about a screen that does not exist.
void BeQuiet(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type == QtCriticalMsg || type == QtFatalMsg) std::cerr << text.toStdString() << std::endl;
}

int Sit(long seed, int events, const std::string& file) {
  alarm(kLongestSitting);
  std::ofstream lines(file, std::ios::binary);
  int count = 1;
  char name[] = "orvane";
  char* words[] = {name, nullptr};
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(BeQuiet);
  Application application(count, words);
  const Stay sitting =
      SitDown(static_cast<std::uint64_t>(seed), events, [&](const std::string& event) {
        lines << event << "\n" << std::flush;
      });
  lines << "=" << sitting.Events << " " << sitting.Failures << " " << sitting.Wrong << "\n";
  return sitting.Wrong.empty() ? 0 : kWrongExit;
}

// What a sitting left behind.
struct Trace {
  long Events = 0, Failures = 0;
  std::string Wrong;
  std::deque<std::string> Last;
};

Trace ReadTrace(const std::string& file) {
  Trace trace;
  std::ifstream stream(file, std::ios::binary);
  for (std::string line; std::getline(stream, line);) {
    if (line.starts_with('=')) {
      char* end = nullptr;
      trace.Events = std::strtol(line.c_str() + 1, &end, 10);
      trace.Failures = std::strtol(end, &end, 10);
      trace.Wrong = *end == ' ' ? end + 1 : end;
    } else {
      ++trace.Events;
      trace.Last.push_back(line);
      if (trace.Last.size() > kLastEvents) trace.Last.pop_front();
    }
  }
  return trace;
}

void Report(const Trace& trace, long seed, const Ending& ending, const std::string& file) {
  std::cout << "seed " << seed << " went wrong at event " << trace.Events << ": "
            << (trace.Wrong.empty() ? HowItEnded(ending) : trace.Wrong) << "\n";
  for (const std::string& event : trace.Last) std::cout << "    " << event << "\n";
  std::cout << "  all of it: " << file << std::endl;
}

int Play(const Options& options) {
  long events = 0, sittings = 0, failures = 0, wrong = 0;
  for (long seed = options.Seed; events < options.Events; ++seed, ++sittings) {
    const std::string file = "random-windows-" + std::to_string(seed) + ".txt";
    const Ending ending =
        RunApart([&] { return Sit(seed, static_cast<int>(options.Sitting), file); });
    std::cerr << ending.Said << std::flush;
    const Trace trace = ReadTrace(file);
    events += std::max(trace.Events, 1L);
    failures += trace.Failures;
    if (ending.Status == 0) {
      std::remove(file.c_str());
    } else {
      ++wrong;
      Report(trace, seed, ending, file);
    }
    std::cout << events << " events, " << sittings + 1 << " sittings, " << failures
              << " failure boxes, " << wrong << " wrong" << std::endl;
  }
  return wrong == 0 ? 0 : 1;
}

}  // namespace
}  // namespace orvane

int main(int argc, char** argv) {
  orvane::Options options;
  if (!orvane::ReadOptions(argc, argv, options)) {
    std::cerr << orvane::kUsage;
    return 2;
  }
  return orvane::Play(options);
}
