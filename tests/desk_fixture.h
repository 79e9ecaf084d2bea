// A desk for a test, with the main window shown as after the start chain.
#pragma once

#include <memory>

#include "desk/actions.h"
#include "desk/orvane_desk.h"
#include "fake_platform.h"
#include "shell/start_up.h"

namespace orvane {

struct DeskAtWork {
  FakePlatform platform;
  // The desk is megabytes large, so it lives on the heap.
  std::unique_ptr<Orvane_Desk> owned = StartDesk(platform);
  Orvane_Desk& desk = *owned;

  DeskAtWork() { desk.main.Visible = true; }
};

}  // namespace orvane
