#include "desktop/widgets/rest_tip.h"

#include <algorithm>

#include <QGuiApplication>
#include <QToolTip>

#include "desktop/widgets/host.h"
#include "narration/hover_words.h"

namespace orvane {

bool RestTip::Answer(const QHelpEvent& rest) {
  if (QGuiApplication::mouseButtons() != Qt::NoButton) return true;  // a drag is not a rest
  const QPointF at = view_.SurfacePoint(rest.pos());
  const std::string words = RestWords(view_.host.desk, view_.control, static_cast<float>(at.x()),
                                      static_cast<float>(at.y()));
  shown_ = QString::fromStdString(words);
  if (shown_.isEmpty()) return false;
  const int reach = std::max(1, static_cast<int>(kRestReach * view_.host.scale.Factor));
  const QRect place(rest.pos() - QPoint(reach, reach), QSize(2 * reach + 1, 2 * reach + 1));
  QToolTip::showText(rest.globalPos(), shown_, &view_.widget, place);
  return true;
}

// There is one tip at a time, and by now it may belong to another control.
void RestTip::Drop() {
  if (shown_.isEmpty()) return;
  if (QToolTip::text() == shown_) QToolTip::hideText();
  shown_.clear();
}

}  // namespace orvane
