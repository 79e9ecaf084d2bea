#include "desktop/rest_tip.h"

#include <algorithm>

#include <QGuiApplication>
#include <QToolTip>

#include "desktop/skin.h"
#include "desktop/window_widget.h"
#include "reading/rest_words.h"

namespace orvane {

bool RestTip::Answer(const QHelpEvent& rest) {
  if (QGuiApplication::mouseButtons() != Qt::NoButton) return true;  // a drag is no rest
  const QPointF at = view_.SurfacePoint(rest.pos());
  const std::string words = RestWords(view_.host.skin.desk, view_.control,
                                      static_cast<float>(at.x()), static_cast<float>(at.y()));
  shown_ = !words.empty();
  if (!shown_) return false;
  const int reach = std::max(1, static_cast<int>(kRestReach * view_.host.scale.Factor));
  const QRect place(rest.pos() - QPoint(reach, reach), QSize(2 * reach + 1, 2 * reach + 1));
  QToolTip::showText(rest.globalPos(), QString::fromStdString(words), &view_.widget, place);
  return true;
}

void RestTip::Drop() {
  if (!shown_) return;
  shown_ = false;
  QToolTip::hideText();
}

}  // namespace orvane
