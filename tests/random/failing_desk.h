// A desk whose outside world may fail, and what must hold afterwards.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "random/desk/always.h"
#include "random/every_command.h"
#include "random/failing_platform.h"
#include "shell/start_up.h"

namespace orvane {

struct FailingDesk {
  FailingPlatform platform;
  std::unique_ptr<Orvane_Desk> owned = StartDesk(platform);
  Orvane_Desk& desk = *owned;
  LastSeen last;

  explicit FailingDesk(const Situation& situation);

  std::string Wrong() { return WhatIsWrong(desk, {true, true}, last, true); }
  int Count(std::string_view beginning) const;  // of the effects
};

// One box with plain words and nothing else: "Reset could not be finished: the disk is full."
void ExpectPlainBox(const FailingDesk& work, const std::string& clause);

// What a student does next: the same action again, another structure, a turn, a save.
void ExpectToGoOn(FailingDesk& work, const Command& command);

}  // namespace orvane
