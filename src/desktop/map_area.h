// A quarter of the map: its picture, and an edge.
#pragma once

#include "desktop/picture_widget.h"

namespace orvane {

class MapAreaWidget : public PictureWidget {
 public:
  using PictureWidget::PictureWidget;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace orvane
