// The frame around the map; its caption interrupts the upper line.
#pragma once

#include "desktop/widgets/plate.h"

namespace orvane {

class PlotFrame : public Plate {
 public:
  using Plate::Plate;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace orvane
