// A desk that is played by chance: lines of a replay script, and a few remarks of its own for what
// no script can ask (random/desk/remarks.h).
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <ostream>
#include <streambuf>
#include <string>
#include <string_view>
#include <vector>

#include "raster/raster.h"
#include "replay/player.h"

namespace orvane {

// Takes a player's lines and keeps only how often each failure was shown.
class FailureTally : public std::streambuf {
 public:
  std::map<std::string, long> Counts;

 protected:
  std::streamsize xsputn(const char* text, std::streamsize length) override;
  int overflow(int letter) override { return letter; }
};

struct Sitting {
  Sitting();

  FailureTally failures;
  std::ostream stream{&failures};
  Player player{stream};
  Raster raster;
  std::vector<std::uint32_t> canvas;
  std::deque<std::string> Pending;  // what the next pending events will be

  std::string NestedComplaint;  // of the first line inside the present one that was no action

  // What the line played last, with all that nested in it, was allowed to change.
  bool MayHaveLoaded = false;   // a structure was read
  bool MayHaveSetAxis = false;  // the pointer over the picture was moved, or a button let go

  Orvane_Desk& Desk() { return *player.desk; }
};

// Plays one line. Empty: done; else the line, or one that nested in it, is no action, for the
// reason that is returned.
std::string PlayRandomLine(Sitting& session, std::string_view line);

}  // namespace orvane
