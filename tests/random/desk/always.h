// What holds at every desk between two actions, whatever the user did.
#pragma once

#include <cstdint>
#include <string>

#include "desk/orvane_desk.h"
#include "random/desk/kept_pictures.h"
#include "random/desk/session.h"

namespace orvane {

// What the actions since the last check were allowed to change.
struct Freedom {
  bool MayHaveLoaded = false;   // a structure was read
  bool MayHaveSetAxis = false;  // the pointer moved over the picture, or a button was released
};

// What the last check found, for values that an action may not change.
struct LastSeen {
  std::uint64_t AsRead = 0;  // digest of the coordinates as they were read
  bool HadAxis = true;
  bool TagAgreed = true;       // the pressed tag was that of the live axis
  bool LoadsWereWhole = true;  // no load stopped halfway; the program's own texts never do
  bool HadMemory = true;       // no command stopped between a field and the caption that shows it
  bool InRange = true;         // the working coordinates were far from the end of all numbers
  int Checks = 0;
  std::vector<KeptPicture> Kept;
};

// Returns the first thing that is wrong; empty if all is well. `thorough` reads every picture too.
std::string WhatIsWrong(const Orvane_Desk& desk, Freedom freedom, LastSeen& last, bool thorough);
std::string WhatIsWrong(Sitting& session, LastSeen& last, bool thorough);

}  // namespace orvane
