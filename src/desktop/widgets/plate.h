// Panels, buttons, toggles, labels and ornaments: a face, an edge and a caption; a press and a
// click.
#pragma once

#include <QMouseEvent>
#include <QWidget>

#include "desk/press_life.h"
#include "desktop/widgets/control_view.h"
#include "look/dress.h"

namespace orvane {

class Plate : public Viewed<QWidget> {
 public:
  Plate(Host& owner, Control& shown, QWidget& parent);

  void Take(Aspect aspect) override;

 protected:
  Place StandsAt() const override;
  double Outset() const override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

  bool IsHeld() const { return life_.IsHeld(); }

  const Dress& dress_;

 private:
  void PaintBevel(QPainter& painter, const QRect& face);
  void PaintSwatch(QPainter& painter, const QRect& face);
  void PaintPlain(QPainter& painter, const QRect& face);
  void PaintCaption(QPainter& painter, const QRect& face, QRgb ink, Type letters);

  PressLife life_;
};

}  // namespace orvane
