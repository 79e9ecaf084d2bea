// A scroll bar: arrows at both ends, a page area on a rounded track, a thumb.
#pragma once

#include <QAbstractSlider>
#include <QBasicTimer>
#include <QMouseEvent>

#include "controls/scroll_bar.h"
#include "desktop/widgets/control_view.h"
#include "desktop/widgets/wheel_turn.h"

namespace orvane {

class BarWidget : public Viewed<QAbstractSlider> {
 public:
  BarWidget(Host& owner, ScrollBar& shown, QWidget& parent);

  void Take(Aspect aspect) override;
  QRectF ThumbInWidget() const;  // in the widget's pixels

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  // Lengths along the bar from its start, in device pixels.
  struct Way {
    double Length, Arrow, Thumb, ThumbAt;
  };
  Way WayOf() const;
  double Along(QPointF widget_point) const;  // of the pointer
  void StepBy(int step);
  void Repeat();  // repeats the step of the held button
  void PaintArrow(QPainter& painter, const QRect& face, bool at_end);

  ScrollBar& bar_;
  bool lies_;  // left to right
  bool dragging_ = false;
  double grip_ = 0;  // from the start of the thumb to where it is held
  WheelTurn turn_;
  double pointer_ = 0;  // along the bar, while a step repeats
  int held_step_ = 0;   // the step of the held button; 0: none
  QBasicTimer repeat_;
};

}  // namespace orvane
