#include "random/windows/strike.h"

#include <QTest>

namespace orvane {

void ClickOn(QWidget& window, Qt::MouseButton button, Qt::KeyboardModifiers with, QPoint place) {
  const QPointer<QWindow> handle = window.windowHandle();
  QTest::mousePress(handle.data(), button, with, place);
  if (handle != nullptr) QTest::mouseRelease(handle.data(), button, with, place);
}

void StrikeKey(const QPointer<QWindow>& taker, Qt::Key key, Qt::KeyboardModifiers with) {
  const char letter = QTest::keyToAscii(key);
  const QString text = letter == 0 ? QString() : QString(QChar::fromLatin1(letter));
  const auto send = [&](bool down, Qt::Key code, Qt::KeyboardModifiers held, const QString& says) {
    if (taker != nullptr) QTest::simulateEvent(taker.data(), down, code, held, says, false);
  };
  const Qt::Key modifier = with == Qt::ShiftModifier     ? Qt::Key_Shift
                           : with == Qt::ControlModifier ? Qt::Key_Control
                           : with == Qt::AltModifier     ? Qt::Key_Alt
                                                         : Qt::Key_unknown;
  if (modifier != Qt::Key_unknown) send(true, modifier, {}, {});
  send(true, key, with, text);
  send(false, key, with, text);
  if (modifier != Qt::Key_unknown) send(false, modifier, with, {});
}

}  // namespace orvane
