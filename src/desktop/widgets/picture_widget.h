// A picture box or an image box: the strokes of its picture, rastered at the screen's own density.
#pragma once

#include <QImage>

#include "desk/press_life.h"
#include "desktop/widgets/control_view.h"
#include "desktop/widgets/rest_tip.h"
#include "raster/picture.h"

namespace orvane {

class PictureWidget : public Viewed<QWidget> {
 public:
  PictureWidget(Host& owner, Control& shown, QWidget& parent);

  void Take(Aspect aspect) override;
  void Lay() override;
  const QImage& Pixels();  // of the current picture

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  std::shared_ptr<const Picture> Now() const;
  void RasterOnce();
  void PaintPixels();
  void GoWithout();

  bool stale_ = true;  // the pixels are older than the picture
  bool told_ = false;  // the user knows that there was no memory for them
  QImage pixels_;
  PressLife life_;
  RestTip rest_tip_{*this};
};

}  // namespace orvane
