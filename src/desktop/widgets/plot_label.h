// Text of the plot window: legend, names on the map, scale marks, axis names.
#pragma once

#include "desktop/look/plot_type.h"
#include "desktop/widgets/plate.h"

namespace orvane {

struct PlotLetters {
  std::string_view Control;  // without index, for all of an array that have no row of their own
  PlotFamily Family = PlotFamily::Serif;
  int Size = 13;         // pixels
  double Left = 0;       // pixels from the control's left edge to the text
  double Baseline = 11;  // pixels below the control's top edge
  bool Upwards = false;  // turned by 90 degrees: from the control's lower edge
  bool HasFace = false;  // on the control's own colour
  bool Quiet = false;    // in ink 2
};

const PlotLetters& PlotLettersOf(const Control& control);

class PlotLabel : public Plate {
 public:
  PlotLabel(WindowWidget& owner, Control& shown, QWidget& parent);

 protected:
  double Outset() const override;
  void paintEvent(QPaintEvent* event) override;

 private:
  const PlotLetters& letters_;
};

}  // namespace orvane
