// A click and a key for a window that may end after the first half of either; then nobody gets the
// second half.
#pragma once

#include <QPointer>
#include <QWidget>
#include <QWindow>

namespace orvane {

void ClickOn(QWidget& window, Qt::MouseButton button, Qt::KeyboardModifiers with, QPoint place);

// With one modifier at most. The toolkit's own way to press a key keeps using the window after the
// modifier, and Alt alone ends a menu.
void StrikeKey(const QPointer<QWindow>& taker, Qt::Key key, Qt::KeyboardModifiers with);

}  // namespace orvane
