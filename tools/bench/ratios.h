// The medians of a run's times, and how they compare.
#pragma once

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace orvane::bench {

// The bound that a ratio must not exceed, or must reach; 0: the ratio is only printed.
struct Bound {
  double AtMost = 0, AtLeast = 0;
};

// Keeps the processor time of each repetition, since others work on the machine too, and prints
// nothing until all are done.
class Ratios : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration) continue;
      if (run.error_occurred) {
        std::printf("%s: %s\n", run.run_name.str().c_str(), run.error_message.c_str());
        continue;
      }
      std::string name = run.run_name.function_name;
      if (!run.run_name.args.empty()) name += "/" + run.run_name.args;
      times_[name].push_back(run.cpu_accumulated_time / static_cast<double>(run.iterations));
    }
  }

  // The median time of a benchmark by its name; 0 if it did not run.
  double Seconds(const std::string& name) const {
    const auto found = times_.find(name);
    return found == times_.end() ? 0 : Median(found->second);
  }

  void PrintTimes() const {
    for (const auto& [name, times] : times_) {
      std::printf("%-52s %10.2f us\n", name.c_str(), 1e6 * Median(times));
    }
    std::printf("\n");
  }

  void Print(const char* what, const std::string& above, const std::string& below,
             Bound bound = {}) const {
    const auto first = times_.find(above), second = times_.find(below);
    if (first == times_.end() || second == times_.end()) return;
    std::printf("%-52s %8.1f", what, Median(first->second) / Median(second->second));
    if (bound.AtMost > 0) std::printf("   at most  %6.1f", bound.AtMost);
    if (bound.AtLeast > 0) std::printf("   at least %6.1f", bound.AtLeast);
    std::printf("\n");
  }

 private:
  static double Median(std::vector<double> times) {
    const auto middle = times.begin() + static_cast<long>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
  }

  std::map<std::string, std::vector<double>> times_;
};

// Runs the registered benchmarks that the command line asks for, and prints each time.
inline void RunAll(int& argc, char** argv, Ratios& ratios) {
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks(&ratios);
  ratios.PrintTimes();
}

}  // namespace orvane::bench
