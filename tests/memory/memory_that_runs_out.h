// Memory that is refused once, at the call of one's choice.
#pragma once

namespace orvane {

// Refuses from its start to its end: the `at`th time that memory is asked for, from 1, and no
// other.
class MemoryRunsOut {
 public:
  explicit MemoryRunsOut(long at);
  MemoryRunsOut(const MemoryRunsOut&) = delete;
  MemoryRunsOut& operator=(const MemoryRunsOut&) = delete;
  ~MemoryRunsOut();

  static bool HasRefused();  // since the last one began
};

}  // namespace orvane
