// A small tab at the desk's edge. Under the pointer or with the keyboard, its caption comes out to
// the left; the pointer may follow it there.
#pragma once

#include "desk/press_life.h"
#include "desktop/widgets/control_view.h"

namespace orvane {

class TabWidget : public Viewed<QWidget> {
 public:
  TabWidget(Host& owner, Control& shown, QWidget& parent);

  void Lay() override;
  bool IsOut() const { return underMouse() || hasFocus(); }

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void PaintTab(QPainter& painter, const QRect& face);
  void PaintCaption(QPainter& painter, const QRect& face);

  Spot tab_;  // the tab itself
  Spot out_;  // its caption
  PressLife life_;
};

}  // namespace orvane
