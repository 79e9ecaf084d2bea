// Pictures that are not surfaces: the icon, a picture in a card.
#pragma once

#include "desktop/widgets/picture_widget.h"
#include "desktop/widgets/plate.h"
#include "look/dress.h"

namespace orvane {

class IconWidget : public Plate {
 public:
  using Plate::Plate;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

// An image box with round corners and an edge.
class RoundPicture : public PictureWidget {
 public:
  RoundPicture(Host& owner, Control& shown, QWidget& parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const Dress& dress_;
};

}  // namespace orvane
