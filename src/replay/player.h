// A desk that a script works.
#pragma once

#include <istream>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "desk/orvane_desk.h"
#include "replay/effect_watcher.h"
#include "replay/output.h"
#include "replay/replay_platform.h"
#include "replay/surface_lines.h"

namespace orvane {

struct Player {
  // Starts a desk; `trace` also prints the calls on the drawing surface.
  explicit Player(std::ostream& stream, bool trace = false);

  const bool IsTracing;
  Output output;
  std::optional<ReplayPlatform> platform;  // made with its desk
  EffectWatcher watcher{output};
  SurfaceLines surface_lines{output};
  std::vector<std::unique_ptr<PlotLines>> plot_lines;  // one for each picture of the plot
  std::unique_ptr<Orvane_Desk> desk;
};

// Ends the desk and starts another, and prints nothing of that. What waits in the platform is
// dropped as well.
void StartDesk(Player& player);

// Plays one line. Returns nothing when it is done; otherwise the line is no action, and the reason
// is returned.
std::string PlayLine(Player& player, std::string_view line);

// Plays a script until it ends, the program ends, or a line is no action. Returns the program's
// exit code.
int PlayScript(std::istream& script, std::ostream& stream, std::ostream& errors, bool trace);

}  // namespace orvane
