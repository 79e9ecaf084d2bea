#include "random/windows/timers.h"

#include <QCoreApplication>
#include <QSocketNotifier>

namespace orvane {

HeldTimers::HeldTimers() { QCoreApplication::instance()->installEventFilter(this); }

// A ticker hears of its beats by a notifier of its own. Silenced, it comes back with the next start
// of the ticker, and is silenced again.
bool HeldTimers::eventFilter(QObject* object, QEvent* event) {
  if (event->type() != QEvent::SockAct || object->parent() != nullptr) return false;
  if (auto* notifier = qobject_cast<QSocketNotifier*>(object)) notifier->setEnabled(false);
  return true;
}

}  // namespace orvane
