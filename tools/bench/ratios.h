// A benchmark's table, and below it how its rows compare.
#pragma once

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <map>
#include <string>

namespace orvane::bench {

// Keeps the shortest time of each benchmark, since others work on the machine too.
class Ratios : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration) continue;
      const double time = run.cpu_accumulated_time / static_cast<double>(run.iterations);
      double& shortest = shortest_.try_emplace(run.run_name.function_name, time).first->second;
      shortest = std::min(shortest, time);
    }
  }

  void Print(const char* what, const std::string& above, const std::string& below) const {
    const auto first = shortest_.find(above), second = shortest_.find(below);
    if (first == shortest_.end() || second == shortest_.end()) return;
    std::printf("%-48s %6.1f\n", what, first->second / second->second);
  }

 private:
  std::map<std::string, double> shortest_;
};

}  // namespace orvane::bench
