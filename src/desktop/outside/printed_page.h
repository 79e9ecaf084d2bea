// Windows on paper: the printed page laid out again at the printer's density, or another window as
// it stands.
#pragma once

#include <QPainter>

namespace orvane {

struct PrintPage;
class Screen;
class Window;

// Draws the page's visible controls at their places, as wide as `paper` (in the painter's pixels,
// `dots` to an inch) allows, centred across it and at its top.
void DrawPrintPage(QPainter& painter, const QRectF& paper, int dots, Screen& screen,
                   PrintPage& page);

// Any other window, as its widgets paint it: laid out again, unseen, as large as the paper allows.
void DrawWindow(QPainter& painter, const QRectF& paper, int dots, Screen& screen, Window& window);

// Prints to the system's default printer. False: there is none, or it does not take the page.
bool PrintOnPaper(Screen& screen, Window& window);

}  // namespace orvane
