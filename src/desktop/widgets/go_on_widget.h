// The round button that leads to the next window. It has the keyboard at the start, so Enter goes
// on.
#pragma once

#include "desktop/widgets/plate.h"

namespace orvane {

class GoOnWidget : public Plate {
 public:
  using Plate::Plate;

 protected:
  double Outset() const override;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace orvane
