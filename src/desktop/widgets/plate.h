// Panels, buttons, toggles, labels and ornaments: a face, an edge and a caption; a press and a
// click.
#pragma once

#include <optional>

#include <QMouseEvent>
#include <QWidget>

#include "desktop/widgets/control_view.h"
#include "look/dress.h"

namespace orvane {

class Plate : public Viewed<QWidget> {
 public:
  Plate(WindowWidget& owner, Control& shown, QWidget& parent);

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

  bool IsHeld() const { return held_ || held_key_.has_value(); }

  const Dress& dress_;

 private:
  void PaintBevel(QPainter& painter, const QRect& face);
  void PaintSwatch(QPainter& painter, const QRect& face);
  void PaintPlain(QPainter& painter, const QRect& face);
  void PaintCaption(QPainter& painter, const QRect& face, QRgb ink, Type letters);

  bool held_ = false;            // by the left button
  std::optional<int> held_key_;  // which clicks when it is let go while the keyboard is still here
};

// Left, right and middle button, as events count them; the sum of those held for a move.
int ButtonOf(Qt::MouseButton button);
int ButtonsOf(Qt::MouseButtons buttons);

}  // namespace orvane
