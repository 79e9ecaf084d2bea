// The frame round the map, its caption broken into the upper line.
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
