// A process that gets hardly any more memory, as on a full machine: there is room for small things
// but not for pictures.
#pragma once

#include <sys/resource.h>

namespace orvane {

class LittleRoom {
 public:
  LittleRoom();
  LittleRoom(const LittleRoom&) = delete;
  LittleRoom& operator=(const LittleRoom&) = delete;
  ~LittleRoom();

 private:
  rlimit before_{};
};

}  // namespace orvane
