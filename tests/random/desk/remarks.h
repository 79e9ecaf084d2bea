// The lines that begin with '#': actions for which a replay script has no word. To orvane-replay
// they are comments, so what hangs on one is not seen there.
//
//   #nest LINE             the next time events are let run, LINE is played inside
//   #save-fails / #saves   saves fail / work from here on
//   #enter NAME            the pointer comes onto a control
//   #focus NAME            the keyboard comes to a control
//   #resize WINDOW STATE LEFT TOP WIDTH HEIGHT    STATE: 0 normal, 1 minimised, 2 maximised
//   #close WINDOW          the user closes a window that shows by its frame
//   #folder LIST PATH      a list of the music chooser is led to a folder
//   #choose LIST NAME      a file is chosen in it
//   #walk STEP             next, previous, first or last of the atoms, by keys; or pick the present
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
