#include "desktop/widgets/picture_widget.h"

#include <new>
#include <utility>

#include <QTimer>

#include "controls/kinds.h"
#include "controls/surface.h"
#include "desktop/look/sight.h"
#include "desktop/widgets/host.h"
#include "look/palette.h"
#include "runtime/failure.h"
#include "runtime/no_memory.h"

namespace orvane {

PictureWidget::PictureWidget(Host& owner, Control& shown, QWidget& parent)
    : Viewed(owner, shown, parent), life_(owner.desk, shown) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void PictureWidget::Take(Aspect aspect) {
  const bool drawn =
      aspect == Aspect::Surface || aspect == Aspect::Picture || aspect == Aspect::BackColor;
  if (!drawn) return ControlView::Take(aspect);
  stale_ = true;
  rest_tip_.Drop();
  host.RepaintSoon(*this);
}

void PictureWidget::Lay() {
  ControlView::Lay();
  stale_ = true;
}

std::shared_ptr<const Picture> PictureWidget::Now() const {
  if (const auto* box = dynamic_cast<const PictureBox*>(&control)) return box->Image();
  if (const auto* image = dynamic_cast<const ImageBox*>(&control)) return image->Shown();
  return nullptr;
}

// The picture is as wide as the control, so an image box shows a snapshot of any size as its own.
void PictureWidget::PaintPixels() {
  const QSize size = Stand().Face.size();
  if (pixels_.size() != size) pixels_ = QImage(size, QImage::Format_RGB32);
  if (pixels_.isNull() && !size.isEmpty()) FailMemory();
  const auto picture = Now();
  if (picture == nullptr || picture->Width == 0) return pixels_.fill(Qt::black);
  host.raster.Paint(*picture, static_cast<double>(size.width()) / picture->Width,
                    reinterpret_cast<std::uint32_t*>(pixels_.bits()), size.width(), size.height(),
                    static_cast<int>(pixels_.bytesPerLine() / 4));
}

// The toolkit asks for it while it paints, and nothing may be thrown through the toolkit.
void PictureWidget::RasterOnce() {
  try {
    PaintPixels();
    stale_ = told_ = false;
  } catch (const Failure&) {
    GoWithout();
  } catch (const std::bad_alloc&) {
    GoWithout();
  }
}

// Nothing is shown until there is memory again. The user is told once, when the painting is over.
void PictureWidget::GoWithout() {
  pixels_ = QImage();
  if (std::exchange(told_, true)) return;
  QTimer::singleShot(0, this, [this] {
    host.desk.platform.FailureBox(std::string("The picture could not be painted: ") + kNoMemory +
                                  ".");
  });
}

const QImage& PictureWidget::Pixels() {
  if (stale_) RasterOnce();
  return pixels_;
}

bool PictureWidget::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && rest_tip_.Answer(*static_cast<QHelpEvent*>(event))) {
    return true;
  }
  return Viewed::event(event);
}

void PictureWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect face = EnterPixels(painter);
  painter.setRenderHint(QPainter::Antialiasing, false);
  const bool of_molecule = &control.Owner == &host.desk.main;
  painter.drawImage(face.topLeft(), of_molecule ? host.sight.Shown(Pixels()) : Pixels());
}

void PictureWidget::mousePressEvent(QMouseEvent* event) { PassPress(life_, *event); }

void PictureWidget::mouseMoveEvent(QMouseEvent* event) { PassMove(life_, *event); }

void PictureWidget::mouseReleaseEvent(QMouseEvent* event) {
  PassRelease(life_, *event, FaceInWidget().contains(event->position()));
}

}  // namespace orvane
