// Prints the changes of controls that a user would notice at once: windows that come and go, and
// views given to the image controls.
#pragma once

#include "controls/window.h"
#include "replay/output.h"

namespace orvane {

class EffectWatcher : public ControlWatcher {
 public:
  explicit EffectWatcher(Output& output) : output_(output) {}

  void Changed(Control& control, Aspect aspect) override;

 private:
  Output& output_;
};

}  // namespace orvane
