// The main picture: it takes the keyboard, and shows where the keyboard stands on it.
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
  bool by_keys_ = false;  // the keyboard came by a key, not by a press of the pointer
};

}  // namespace orvane
