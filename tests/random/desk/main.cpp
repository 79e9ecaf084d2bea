// orvane-random-desk: plays at random for as long as you like, and leaves a short script of
// whatever went wrong.
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string_view>

#include "random/desk/apart.h"
#include "random/desk/life.h"
#include "random/desk/numbers.h"
#include "random/desk/script.h"
#include "random/desk/shrink.h"
#include "random/desk/trial.h"

namespace orvane {
namespace {

constexpr std::string_view kUsage =
    "usage: orvane-random-desk [--actions N] [--seed S] [--life N] [--play FILE] [--script N]\n"
    "  --actions  play at least so many (100000)\n"
    "  --seed     of the first life; each has the next (1)\n"
    "  --life     actions at one desk at the most (3000)\n"
    "  --play     play that script instead, with the checks behind each line\n"
    "  --script   print a script for orvane-replay instead, of so many actions\n";
constexpr int kTries = 600;  // to shorten a script

struct Options {
  long Actions = 100000;
  long Seed = 1;
  long Life = 3000;
  long Script = 0;
  std::string Play;
};

bool ReadOptions(int argc, char** argv, Options& options) {
  const NumberOption numbers[] = {{"--actions", &options.Actions},
                                  {"--seed", &options.Seed},
                                  {"--life", &options.Life},
                                  {"--script", &options.Script}};
  for (int i = 1; i + 1 < argc; i += 2) {
    const std::string_view name = argv[i], value = argv[i + 1];
    if (name == "--play") {
      options.Play = value;
    } else if (!ReadNumber(numbers, name, value)) {
      return false;
    }
  }
  return argc % 2 == 1;
}

std::vector<std::string> ReadLines(const std::string& file) {
  std::vector<std::string> lines;
  std::ifstream stream(file, std::ios::binary);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

// Keeps the script of a life that went wrong, as short as it can be and still show the same fault.
void Report(const Trial& trial, long seed) {
  std::cout << "seed " << seed << " went wrong after " << trial.Lines.size()
            << " actions: " << trial.Reason << "\n";
  // When it is played again, its pictures are read after each line, so a fault may be found sooner.
  const Trial again = TryLines(trial.Lines, false);
  const std::string& reason = again.IsWrong ? again.Reason : trial.Reason;
  const auto shows_the_same = [kind = KindOfReason(reason)](const std::vector<std::string>& lines) {
    const Trial shorter = TryLines(lines, false);
    return shorter.IsWrong && KindOfReason(shorter.Reason) == kind;
  };
  const std::vector<std::string> shortest = Shrunk(trial.Lines, shows_the_same, kTries);
  const std::string file = "random-desk-" + std::to_string(seed) + ".txt";
  std::ofstream stream(file, std::ios::binary);
  for (const std::string& line : shortest) stream << line << "\n";
  std::cout << "  " << shortest.size() << " actions show it"
            << (again.IsWrong ? "" : " (not when they are played again)") << ": " << file << ": "
            << reason << std::endl;
}

int PlayAtRandom(const Options& options) {
  std::map<std::string, long> failures;
  long actions = 0, lives = 0, wrong = 0;
  for (long seed = options.Seed; actions < options.Actions; ++seed, ++lives) {
    const Trial trial = TryLife(static_cast<std::uint64_t>(seed), static_cast<int>(options.Life));
    // A life that ended before its first line counts too, or a run of such lives would never end.
    actions += std::max(static_cast<long>(trial.Lines.size()), 1L);
    for (const auto& [text, count] : trial.Failures) failures[text] += count;
    if (trial.IsWrong) {
      ++wrong;
      Report(trial, seed);
    }
    if (lives % 100 == 99) {
      std::cout << actions << " actions, " << lives + 1 << " lives, " << wrong << " wrong"
                << std::endl;
    }
  }
  std::cout << actions << " actions, " << lives << " lives, " << wrong << " wrong\n";
  for (const auto& [text, count] : failures)
    std::cout << "  " << count << " times " << text << "\n";
  return wrong == 0 ? 0 : 1;
}

int PlayScriptFile(const std::string& file) {
  const Trial trial = TryLines(ReadLines(file), true);
  std::cout << (trial.IsWrong ? trial.Reason : "nothing is wrong") << "\n";
  return trial.IsWrong ? 1 : 0;
}

int PrintScript(const Options& options) {
  const auto seed = static_cast<std::uint64_t>(options.Seed);
  for (const std::string& line : RandomScript(seed, static_cast<int>(options.Script))) {
    std::cout << line << "\n";
  }
  return std::cout.flush() ? 0 : 1;
}

}  // namespace
}  // namespace orvane

int main(int argc, char** argv) {
  orvane::Options options;
  if (!orvane::ReadOptions(argc, argv, options)) {
    std::cerr << orvane::kUsage;
    return 2;
  }
  if (options.Script > 0) return orvane::PrintScript(options);
  return options.Play.empty() ? orvane::PlayAtRandom(options)
                              : orvane::PlayScriptFile(options.Play);
}
