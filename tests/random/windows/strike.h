// A click and a key at a window that the first half of either may end; then there is nobody for the
// second.
#pragma once

#include <QPointer>
#include <QWidget>
#include <QWindow>

namespace orvane {

void ClickOn(QWidget& window, Qt::MouseButton button, Qt::KeyboardModifiers with, QPoint place);

// With one modifier at the most. The toolkit's own way to press a key goes on with the window after
// its modifier, and an Alt alone ends a menu.
void StrikeKey(const QPointer<QWindow>& taker, Qt::Key key, Qt::KeyboardModifiers with);

}  // namespace orvane
