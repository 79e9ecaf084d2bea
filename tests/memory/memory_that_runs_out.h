// Memory that is refused once, at a chosen call.
#pragma once

namespace orvane {

// While it exists, it refuses the `at`th request for memory, counted from 1, and no other.
class MemoryRunsOut {
 public:
  explicit MemoryRunsOut(long at);
  MemoryRunsOut(const MemoryRunsOut&) = delete;
  MemoryRunsOut& operator=(const MemoryRunsOut&) = delete;
  ~MemoryRunsOut();

  static bool HasRefused();  // since the last one began
};

}  // namespace orvane
