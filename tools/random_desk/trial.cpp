#include "random_desk/trial.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <functional>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

#include "random_desk/life.h"

namespace orvane {
namespace {

constexpr unsigned kLongestLife = 240;  // seconds; a longer one hangs
constexpr int kWrongExit = 3;           // the reason stands at the end of the lines

// Marks what is no line of the life: "\1reason", "\2count text".
constexpr char kReasonMark = '\1', kFailureMark = '\2';

void Write(int file, std::string text) {
  text += '\n';
  if (write(file, text.data(), text.size()) != static_cast<ssize_t>(text.size())) _exit(4);
}

[[noreturn]] void Live(int file, const std::function<Life(Sitting&, int)>& play) {
  alarm(kLongestLife);
  int code = 0;
  {
    Sitting session;
    const Life life = play(session, file);
    for (const auto& [text, count] : session.failures.Counts) {
      Write(file, kFailureMark + std::to_string(count) + " " + text);
    }
    if (!life.Wrong.empty()) {
      Write(file, kReasonMark + life.Wrong);
      code = kWrongExit;
    }
  }
  std::exit(code);  // and not _exit: leaks are looked for at the end
}

std::string HowItEnded(int status) {
  if (WIFSIGNALED(status)) {
    const int number = WTERMSIG(status);
    return number == SIGALRM ? "it hangs" : "signal " + std::to_string(number);
  }
  return "exit code " + std::to_string(WEXITSTATUS(status));
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

std::string TextOf(int file) {
  std::string text;
  char part[65536];
  lseek(file, 0, SEEK_SET);
  for (ssize_t length = 0; (length = read(file, part, sizeof part)) > 0;) {
    text.append(part, static_cast<std::size_t>(length));
  }
  return text;
}

Trial Try(const std::function<Life(Sitting&, int)>& play, bool speaks) {
  Trial trial;
  std::FILE* const kept = std::tmpfile();  // both processes write and read the same open file
  if (kept == nullptr) {
    trial.IsWrong = true;
    trial.Reason = "no room for the lines";
    return trial;
  }
  const int file = fileno(kept);
  std::fflush(nullptr);
  const pid_t child = fork();
  if (child == 0) {
    if (!speaks) dup2(open("/dev/null", O_WRONLY), STDERR_FILENO);
    Live(file, play);
  }
  int status = 0;
  waitpid(child, &status, 0);
  ReadBack(TextOf(file), trial);
  std::fclose(kept);
  trial.IsWrong = status != 0;
  if (trial.IsWrong && trial.Reason.empty()) trial.Reason = HowItEnded(status);
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
