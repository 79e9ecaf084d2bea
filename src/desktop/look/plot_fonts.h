// The type of the plot window: Liberation Serif and Sans, embedded. Greek letters are written as
// the letters of an old symbol type, "a" for alpha.
#pragma once

#include <QFont>
#include <QString>

#include "look/plot_letters.h"

namespace orvane {

// At 100 per cent, like all type in the windows.
QFont PlotFont(PlotFamily family, int size, const QString& text);

}  // namespace orvane
