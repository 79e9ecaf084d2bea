// Walks the table of events and handlers.
#include "shell/wiring.h"

#include <gtest/gtest.h>
#include <set>
#include <utility>

#include "desk_fixture.h"

namespace orvane {
namespace {

// A row that is there twice would run its handler twice for one action.
TEST(Wiring, HasEachEventOfAControlOnce) {
  std::set<std::pair<std::string_view, EventKind>> rows;
  for (const Wire& wire : Wires()) {
    EXPECT_TRUE(rows.emplace(wire.Control, wire.Kind).second)
        << wire.Control << " with event " << static_cast<int>(wire.Kind);
  }
}

TEST(Wiring, NamesOnlyWindowsAndControlsThatExist) {
  const DeskAtWork at_work;
  for (const Wire& wire : Wires()) {
    bool found = false;
    for (const Window* window : at_work.desk.windows) {
      found = found || wire.Control == window->Name;
      if (!wire.Control.starts_with(window->Prefix)) continue;
      const std::string_view name = wire.Control.substr(window->Prefix.size());
      for (const Control* control : window->Controls) found = found || control->Name == name;
    }
    EXPECT_TRUE(found) << wire.Control;
  }
}

}  // namespace
}  // namespace orvane
