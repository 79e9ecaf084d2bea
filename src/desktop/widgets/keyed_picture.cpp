#include "desktop/widgets/keyed_picture.h"

#include <QFocusEvent>

#include "desktop/widgets/host.h"
#include "desktop/widgets/walk_mark.h"

namespace orvane {

void KeyedPicture::paintEvent(QPaintEvent* event) {
  PictureWidget::paintEvent(event);
  if (!hasFocus()) return;
  QPainter painter(this);
  const QRect face = EnterPixels(painter);
  PaintWalkMark(painter, face, Unit(), host.desk);
  if (by_keys_) PaintPictureRing(painter, face, Unit());
}

// Nothing changes when a window or a menu gives the keyboard back.
void KeyedPicture::focusInEvent(QFocusEvent* event) {
  PictureWidget::focusInEvent(event);
  const Qt::FocusReason reason = event->reason();
  if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
      reason == Qt::MenuBarFocusReason) {
    return;
  }
  by_keys_ = reason != Qt::MouseFocusReason;
}

}  // namespace orvane
