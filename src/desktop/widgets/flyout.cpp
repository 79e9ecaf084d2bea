#include "desktop/widgets/flyout.h"

#include <cmath>

#include "desktop/look/fonts.h"
#include "desktop/widgets/control_view.h"
#include "desktop/widgets/host.h"
#include "look/measures.h"
#include "look/palette.h"

namespace orvane {
namespace {

using namespace measures;

}  // namespace

Flyout::Flyout(Host& window, QWidget& desk) : QWidget(&desk), window_(window) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setObjectName(QStringLiteral("Flyout"));
  hide();
}

void Flyout::ShowRow(const void* owner, const QRect& row, const QString& key, const QString& rest) {
  owner_ = owner;
  key_ = key;
  rest_ = rest;
  text_ = key + u' ' + rest;
  const double width = kFlyoutPad + kFlyoutPadRight + WidthOf(kKeyType, key) + kFlyoutGap +
                       WidthOf(kFlyoutType, rest);
  const Scale& scale = window_.scale;
  const int wide = static_cast<int>(std::ceil(width * scale.Unit()));
  const int right = row.left() + row.width();
  const QRect face(right - wide, row.top(), wide, row.height());
  const int out = scale.Device(kFlyoutShadow);
  const QRect all = face.adjusted(-out, -out, out, out);
  const auto low = [&](int v) { return static_cast<int>(std::floor(v / scale.Ratio)); };
  const QPoint first(low(all.left()), low(all.top()));
  spot_ = {face, QRect(first, QPoint(low(all.right()) + 1, low(all.bottom()) + 1))};
  setGeometry(spot_.Hull);
  raise();
  show();
  update();
}

void Flyout::HideOf(const void* owner) {
  if (owner_ == owner) hide();
}

void Flyout::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  EnterDevicePixels(painter, window_.scale, spot_);
  const double unit = window_.scale.Unit();
  const QRect face(QPoint(0, 0), spot_.Face.size());
  PaintShadow(painter, face, 3 * unit, window_.scale.Device(kFlyoutShadow));
  PaintPlate(painter, face, palette::kAccent, palette::kNone, 3 * unit, 0);
  QRectF box = QRectF(face).adjusted(kFlyoutPad * unit, 0, 0, 0);
  DrawLine(painter, box, Qt::AlignLeft, kKeyType, palette::kFace, unit, key_);
  box.adjust((WidthOf(kKeyType, key_) + kFlyoutGap) * unit, 0, 0, 0);
  DrawLine(painter, box, Qt::AlignLeft, kFlyoutType, palette::kFace, unit, rest_);
}

}  // namespace orvane
