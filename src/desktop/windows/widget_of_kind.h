// Makes the widget for each kind of control.
#pragma once

#include <QWidget>

#include "desktop/widgets/control_view.h"

namespace orvane {

// nullptr for kinds without a widget: timers, menu entries and windows.
ControlView* MakeView(Host& window, Control& control, QWidget& parent);

}  // namespace orvane
