// A quarter of the map: its picture, and an edge.
#pragma once

#include "desktop/widgets/picture_widget.h"

namespace orvane {

class MapAreaWidget : public PictureWidget {
 public:
  MapAreaWidget(Host& owner, Control& shown, QWidget& parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace orvane
