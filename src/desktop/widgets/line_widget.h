// A line from the lower left to the upper right of its box, which may have no width or no height.
#pragma once

#include "desktop/widgets/plate.h"

namespace orvane {

class LineWidget : public Plate {
 public:
  using Plate::Plate;

 protected:
  double Outset() const override;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace orvane
