// A process of its own for each life, so that a crash, a sanitizer's halt or a hang ends that life
// and not the run.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace orvane {

struct Ending {
  int Status = 0;    // as waitpid gives it; 0: all was well
  std::string Said;  // on its error stream
};

// Runs `live` in a process that ends with what it returns. Runs it once more if the search for
// leaks broke down, since a life counts as clean only if that was seen. If no process can be
// started, nothing can be found out, and this one ends with a message and exit code 2.
Ending RunApart(const std::function<int()>& live);

// All of an open file, from its start.
std::string TextOf(int file);

// "signal Aborted", "exit code 1", with the sanitizer's summary behind it when there is one.
std::string HowItEnded(const Ending& ending);

// The search for leaks at the end has itself come to grief, which says nothing of the life before
// it.
bool LeakSearchBroke(const Ending& ending);

// What two reasons have in common that tell of the same fault: all but numbers and quoted words.
std::string KindOfReason(std::string_view reason);

}  // namespace orvane
