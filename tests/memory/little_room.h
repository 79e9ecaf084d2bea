// A process that is given hardly any memory more, as on a full machine: small things find their
// place, pictures do not.
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
