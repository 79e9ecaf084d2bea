// Which widget shows a control of the windows beside the main one, and of the music chooser.
#pragma once

#include "desktop/widgets/control_view.h"

namespace orvane {

// nullptr for a control whose widget depends on its kind alone.
ControlView* MakeFurtherView(Host& window, Control& control, QWidget& parent);

}  // namespace orvane
