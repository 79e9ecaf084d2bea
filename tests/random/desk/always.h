// What holds at every desk between two actions, whatever the user did.
#pragma once

#include <cstdint>
#include <string>

#include "desk/orvane_desk.h"
#include "random/desk/kept_pictures.h"
#include "random/desk/session.h"

namespace orvane {

// What the actions since the check before were free to change.
struct Freedom {
  bool MayHaveLoaded = false;   // a structure was read
  bool MayHaveSetAxis = false;  // the pointer over the picture was moved, or a button let go
};

// What the check before found, for what an action may not change.
struct LastSeen {
  std::uint64_t AsRead = 0;  // digest of the coordinates as they were read
  bool HadAxis = true;
  bool TagAgreed = true;       // the pressed tag was that of the live axis
  bool LoadsWereWhole = true;  // no load stopped halfway; the program's own texts never do
  bool HadMemory = true;  // no command stopped between a field and the caption that tells of it
  bool InRange = true;    // the working coordinates were far from the end of all numbers
  int Checks = 0;
  std::vector<KeptPicture> Kept;
};

// Empty: all is well; else the first thing that is not. `thorough` reads every picture, too.
std::string WhatIsWrong(const Orvane_Desk& desk, Freedom freedom, LastSeen& last, bool thorough);
std::string WhatIsWrong(Sitting& session, LastSeen& last, bool thorough);

}  // namespace orvane
