// A kind of control is a class of widget.
#pragma once

#include <QWidget>

#include "desktop/widgets/control_view.h"

namespace orvane {

// nullptr for kinds that are no widget: timers and menu entries.
ControlView* MakeView(Host& window, Control& control, QWidget& parent);

}  // namespace orvane
