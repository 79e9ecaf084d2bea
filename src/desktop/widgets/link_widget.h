// A line of text that leads somewhere: underlined, with a hand over it.
#pragma once

#include "desktop/widgets/plate.h"

namespace orvane {

class LinkWidget : public Plate {
 public:
  LinkWidget(Host& owner, Control& shown, QWidget& parent);

  void Lay() override;  // as wide as its text, so that only the text can be clicked

 protected:
  double Outset() const override;
  void paintEvent(QPaintEvent* event) override;

 private:
  double width_ = 0;  // device pixels of the text
};

}  // namespace orvane
