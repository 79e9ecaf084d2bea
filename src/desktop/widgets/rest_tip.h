// The tip for what the pointer rests on inside a picture: an atom, a circle of the map.
#pragma once

#include <QHelpEvent>

#include "desktop/widgets/control_view.h"

namespace orvane {

class RestTip {
 public:
  explicit RestTip(const ControlView& view) : view_(view) {}

  // Shows the words for that place until the pointer leaves it. False: there are none, and the
  // control's own tip should show.
  bool Answer(const QHelpEvent& rest);
  // The picture has changed, and what was named may be elsewhere.
  void Drop();

 private:
  const ControlView& view_;
  QString shown_;  // the words of the last tip, which may have gone by now
};

}  // namespace orvane
