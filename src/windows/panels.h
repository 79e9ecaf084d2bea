// How the floating panels close.
#pragma once

#include "windows/main_window.h"

namespace orvane {

// Closes the three floating panels. Nearly every handler begins with it: a handler that wants a
// panel to stay open must not call it.
void HidePanels(MainWindow& window);

}  // namespace orvane
