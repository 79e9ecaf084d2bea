// What shows one control: a widget with the control's name, place, state and words for a screen
// reader, which passes on what the user does to it.
#pragma once

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWidget>

#include "controls/window.h"
#include "desktop/look/spot.h"

namespace orvane {

class Host;
class PressLife;

class ControlView {
 public:
  ControlView(Host& window, Control& shown, QWidget& own);
  virtual ~ControlView() = default;
  ControlView(const ControlView&) = delete;
  ControlView& operator=(const ControlView&) = delete;

  Control& control;
  QWidget& widget;
  Host& host;

  // Takes the control's state, once the widget is whole: from then on a screen reader may ask.
  void Begin();
  // Something in the control has changed.
  virtual void Take(Aspect aspect);
  // Puts the widget at the control's place.
  virtual void Lay();

  double Unit() const;                               // device pixels to a pixel of the plan
  const Spot& Stand() const { return spot_; }        // in the desk
  QPointF SurfacePoint(QPointF widget_point) const;  // pixels of the control
  QRectF FaceInWidget() const;                       // the control, in the widget's pixels

 protected:
  virtual Place StandsAt() const { return control.At; }
  virtual double Outset() const { return 0; }  // pixels painted around the face
  void Hear(QEvent& event);                    // the pointer or the keyboard comes
  // The pointer's buttons, at a place in the pixels of the control; `over`: over the part that can
  // be clicked.
  void PassPress(PressLife& life, const QMouseEvent& event) const;
  void PassMove(PressLife& life, const QMouseEvent& event) const;
  void PassRelease(PressLife& life, const QMouseEvent& event, bool over) const;
  QRect EnterPixels(QPainter& painter) const;  // device pixels; gives the face, from 0, 0
  bool HasRing() const { return widget.hasFocus(); }

  Spot spot_;
};

// A widget of the toolkit that shows a control.
template <class Base>
class Viewed : public Base, public ControlView {
 public:
  Viewed(Host& owner, Control& shown, QWidget& parent)
      : Base(&parent), ControlView(owner, shown, *this) {}

 protected:
  bool event(QEvent* event) override {
    Hear(*event);
    return Base::event(event);
  }
};

// Corners, faces, edges and rings, in device pixels.
void PaintPlate(QPainter& painter, const QRectF& face, QRgb fill, QRgb edge, double corner,
                int width);
void PaintRing(QPainter& painter, const QRectF& face, QRgb ink, double corner, double unit,
               bool white_within);
void PaintShadow(QPainter& painter, const QRect& face, double corner, int reach);

}  // namespace orvane
