// Text of the plot window: legend, names on the map, scale marks, axis names.
#pragma once

#include "desktop/widgets/plate.h"
#include "look/plot_letters.h"

namespace orvane {

class PlotLabel : public Plate {
 public:
  PlotLabel(Host& owner, Control& shown, QWidget& parent);

 protected:
  double Outset() const override;
  void paintEvent(QPaintEvent* event) override;

 private:
  const PlotLetters& letters_;
};

}  // namespace orvane
