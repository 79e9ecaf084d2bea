// The background of a window's controls; centred in a maximised window.
#pragma once

#include <QWidget>

#include "controls/window.h"

namespace orvane {

class Host;

class Ground : public QWidget {
 public:
  Ground(QWidget& parent, Host& window, Window& shown);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  Host& host_;
  Window& shown_;
};

}  // namespace orvane
