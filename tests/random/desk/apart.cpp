#include "random/desk/apart.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace orvane {
namespace {

constexpr int kCannotRun = 2;

[[noreturn]] void CannotRun(std::string_view what) {
  std::cerr << what << ": " << std::strerror(errno) << std::endl;
  std::exit(kCannotRun);
}

int StatusOf(pid_t child) {
  int status = 0;
  while (waitpid(child, &status, 0) != child) {
    if (errno != EINTR) CannotRun("a process cannot be waited for");
  }
  return status;
}

std::string SummaryIn(const std::string& said) {
  std::istringstream stream(said);
  for (std::string line; std::getline(stream, line);) {
    if (line.starts_with("SUMMARY: ")) return line;
  }
  return "";
}

Ending RunOnce(const std::function<int()>& live) {
  std::FILE* const kept = std::tmpfile();  // both processes write and read the same open file
  if (kept == nullptr) CannotRun("there is no room for what a process says");
  const int file = fileno(kept);
  std::cout.flush();
  std::fflush(nullptr);
  const pid_t child = fork();
  if (child < 0) CannotRun("no process can be started");
  if (child == 0) {
    dup2(file, STDERR_FILENO);
    std::exit(live());  // and not _exit: the search for leaks runs at the end
  }
  Ending ending;
  ending.Status = StatusOf(child);
  ending.Said = TextOf(file);
  std::fclose(kept);
  return ending;
}

}  // namespace

Ending RunApart(const std::function<int()>& live) {
  Ending first = RunOnce(live);
  if (!LeakSearchBroke(first)) return first;
  std::cout << "the search for leaks broke down; played once more" << std::endl;
  return RunOnce(live);
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

std::string HowItEnded(const Ending& ending) {
  const int signal = WIFSIGNALED(ending.Status) ? WTERMSIG(ending.Status) : 0;
  if (signal == SIGALRM) return "it hangs";
  const std::string how = signal != 0 ? std::string("signal ") + strsignal(signal)
                                      : "exit code " + std::to_string(WEXITSTATUS(ending.Status));
  const std::string summary = SummaryIn(ending.Said);
  return summary.empty() ? how : how + ", " + summary;
}

bool LeakSearchBroke(const Ending& ending) {
  return WIFEXITED(ending.Status) && WEXITSTATUS(ending.Status) != 0 &&
         ending.Said.find("LeakSanitizer has encountered a fatal error") != std::string::npos;
}

std::string KindOfReason(std::string_view reason) {
  std::string kind;
  bool is_quoted = false;
  for (const char letter : reason) {
    if (letter == '"') is_quoted = !is_quoted;
    const bool is_of_number = (letter >= '0' && letter <= '9') || letter == '-';
    if (!is_quoted && !is_of_number) kind += letter;
  }
  return kind;
}

}  // namespace orvane
