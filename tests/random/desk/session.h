// A desk that is played at random: by lines of a replay script, and by a few lines of its own for
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

  std::string NestedComplaint;  // of the first line inside this one that was not an action

  // What the last line, with all that nested in it, was allowed to change.
  bool MayHaveLoaded = false;   // a structure was read
  bool MayHaveSetAxis = false;  // the pointer moved over the picture, or a button was released

  Orvane_Desk& Desk() { return *player.desk; }
};

// Plays one line. Returns why the line, or one that nested in it, is not an action; empty if it was
// done.
std::string PlayRandomLine(Sitting& session, std::string_view line);

}  // namespace orvane
