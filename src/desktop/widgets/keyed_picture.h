// The main picture: it takes the keyboard, and shows at which atom the walk by keys stands.
#pragma once

#include "desktop/widgets/picture_widget.h"

namespace orvane {

class KeyedPicture : public PictureWidget {
 public:
  using PictureWidget::PictureWidget;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  bool by_keys_ = false;  // the keyboard came here by a key, not by a press of the pointer
};

}  // namespace orvane
