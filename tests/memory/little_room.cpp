#include "memory/little_room.h"

#include <cstdlib>
#include <fstream>
#include <malloc.h>
#include <unistd.h>

namespace orvane {
namespace {

constexpr rlim_t kRoom = 80 * 1024;   // bytes; half of a pair, the smallest picture, has 118 * 1024
constexpr int kOwnPages = 64 * 1024;  // bytes; anything larger comes from the system each time

// Set at the start: memory that had once been among the small things would be given out again.
const int from_the_system = mallopt(M_MMAP_THRESHOLD, kOwnPages);

rlim_t AddressSpace() {
  rlim_t pages = 0;
  std::ifstream("/proc/self/statm") >> pages;
  return pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
}

}  // namespace

LittleRoom::LittleRoom() {
  if (from_the_system != 1) std::abort();
  getrlimit(RLIMIT_AS, &before_);
  rlimit little = before_;
  little.rlim_cur = AddressSpace() + kRoom;
  setrlimit(RLIMIT_AS, &little);
}

LittleRoom::~LittleRoom() { setrlimit(RLIMIT_AS, &before_); }

}  // namespace orvane
