#include "random/desk/trial.h"

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <sstream>
#include <unistd.h>

#include "random/desk/apart.h"
#include "random/desk/life.h"

namespace orvane {
namespace {

constexpr unsigned kLongestLife = 240;  // seconds; a longer one hangs
constexpr int kWrongExit = 3;           // the reason is at the end of the lines

// Marks lines that are not of the life: "\1reason", "\2count text".
constexpr char kReasonMark = '\1', kFailureMark = '\2';

void Write(int file, std::string text) {
  text += '\n';
  if (write(file, text.data(), text.size()) != static_cast<ssize_t>(text.size())) _exit(4);
}

int Live(int file, const std::function<Life(Sitting&, int)>& play) {
  alarm(kLongestLife);
  if (ftruncate(file, 0) != 0) _exit(4);  // the lines of a life that is played once more
  lseek(file, 0, SEEK_SET);
  Sitting session;
  const Life life = play(session, file);
  for (const auto& [text, count] : session.failures.Counts) {
    Write(file, kFailureMark + std::to_string(count) + " " + text);
  }
  if (life.Wrong.empty()) return 0;
  Write(file, kReasonMark + life.Wrong);
  return kWrongExit;
}

void ReadBack(const std::string& text, Trial& trial) {
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    if (line.starts_with(kReasonMark)) {
      trial.Reason = line.substr(1);
    } else if (line.starts_with(kFailureMark)) {
      const auto blank = line.find(' ');
      trial.Failures[line.substr(blank + 1)] = std::atol(line.c_str() + 1);
    } else {
      trial.Lines.push_back(line);
    }
  }
}

Trial Try(const std::function<Life(Sitting&, int)>& play, bool speaks) {
  Trial trial;
  std::FILE* const kept = std::tmpfile();  // both processes write and read the same open file
  if (kept == nullptr) {
    std::cerr << "there is no room for the lines of a life" << std::endl;
    std::exit(2);
  }
  const int file = fileno(kept);
  const Ending ending = RunApart([&] { return Live(file, play); });
  if (speaks) std::cerr << ending.Said << std::flush;
  ReadBack(TextOf(file), trial);
  std::fclose(kept);
  trial.IsWrong = ending.Status != 0;
  if (trial.IsWrong && trial.Reason.empty()) trial.Reason = HowItEnded(ending);
  return trial;
}

}  // namespace

Trial TryLife(std::uint64_t seed, int actions) {
  return Try(
      [=](Sitting& session, int file) {
        return PlayLife(session, seed, actions,
                        [file](std::string_view line) { Write(file, std::string(line)); });
      },
      true);
}

Trial TryLines(const std::vector<std::string>& lines, bool speaks) {
  Trial trial = Try([&](Sitting& session, int) { return PlayLines(session, lines); }, speaks);
  trial.Lines = lines;
  return trial;
}

}  // namespace orvane
