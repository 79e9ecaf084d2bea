// The lines that begin with '#': actions for which a replay script has no word. To orvane-replay
// they are comments, so it does not show what depends on one.
//
//   #nest LINE             the next time that pending events run, LINE is played among them
//   #save-fails / #saves   saves fail / work from here on
//   #enter NAME            the pointer enters a control
//   #focus NAME            a control gets the keyboard
//   #resize WINDOW STATE LEFT TOP WIDTH HEIGHT    STATE: 0 normal, 1 minimised, 2 maximised
//   #close WINDOW          the user closes a visible window by its frame
//   #folder LIST PATH      a list of the music chooser opens a folder
//   #choose LIST NAME      a file is chosen in it
//   #walk STEP             next, previous, first or last of the atoms, by keys; or pick this one
//   #map STEP              next or previous name on the map, by keys
//   #look SCALE            everything that shows is painted at that scale
#pragma once

#include <string>
#include <string_view>

#include "random/desk/session.h"

namespace orvane {

// Empty: done, or a comment with a word that is none of these; else the line is no action, for the
// reason that is returned.
std::string PlayRemark(Sitting& session, std::string_view remark);

}  // namespace orvane
