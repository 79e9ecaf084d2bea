// What the windows show, for files and paper.
#include <cmath>

#include <QPainter>

#include "desktop/widgets/control_view.h"
#include "desktop/windows/skin.h"
#include "desktop/windows/window_widget.h"
#include "look/palette.h"

namespace orvane {

QSize Skin::SizeOf(Control& control) {
  return WindowOf(control.Owner).ViewOf(control)->Stand().Face.size();
}

// The control's face alone: its widget may be larger by what is painted around it. The face's
// corner is a whole device pixel and the widget's need not be one, so the painter is moved to the
// face before anything is painted. Then each part falls on the pixels that it has on the screen.
// Round corners show the frame around the picture.
QImage Skin::Grab(Control& source) {
  WindowWidget& window = WindowOf(source.Owner);
  const ControlView* view = window.ViewOf(source);
  const Sight::Leaving leaving(sight);
  if (view == nullptr) return window.grab().toImage().convertToFormat(QImage::Format_RGB32);
  QImage image(view->Stand().Face.size(), QImage::Format_RGB32);
  image.setDevicePixelRatio(window.scale.Ratio);
  image.fill(palette::kBezel);
  QPainter painter(&image);
  painter.translate(-view->FaceInWidget().topLeft());
  view->widget.render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
  return image;
}

QImage Skin::GrabAs(Window& window, QSize size) {
  WindowWidget again(*this, window);
  const double ratio = again.devicePixelRatioF();
  again.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);  // paper may be larger than the screen
  again.resize(static_cast<int>(std::lround(size.width() / ratio)),
               static_cast<int>(std::lround(size.height() / ratio)));
  // A maximised window makes its plan as large as itself. A later change of size would end that
  // state.
  again.setWindowState(Qt::WindowMaximized);
  again.LayAll();
  const Sight::Leaving leaving(sight);
  return again.grab().toImage();
}

}  // namespace orvane
