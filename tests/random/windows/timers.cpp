#include "random/windows/timers.h"

#include <QCoreApplication>
#include <QSocketNotifier>

namespace orvane {

HeldTimers::HeldTimers() { QCoreApplication::instance()->installEventFilter(this); }

// A ticker gets its beats from its own notifier. The next start of the ticker switches the notifier
// on again, and then it is silenced again.
bool HeldTimers::eventFilter(QObject* object, QEvent* event) {
  if (event->type() != QEvent::SockAct || object->parent() != nullptr) return false;
  if (auto* notifier = qobject_cast<QSocketNotifier*>(object)) notifier->setEnabled(false);
  return true;
}

}  // namespace orvane
