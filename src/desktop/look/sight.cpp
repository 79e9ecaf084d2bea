#include "desktop/look/sight.h"

#include <QApplication>
#include <QShortcut>
#include <QToolTip>

namespace orvane {
namespace {

constexpr int kTipStays = 3000;  // milliseconds

}  // namespace

void Sight::Next() {
  const std::size_t next = eye_.has_value() ? IndexOf(*eye_) + 1 : 0;
  eye_ = next < kEyes.size() ? std::optional(kEyes[next]) : std::nullopt;
  if (eye_.has_value()) {
    filter_.emplace(*eye_);
  } else {
    filter_.reset();
  }
}

QString Sight::Words() const {
  if (!eye_.has_value()) return QStringLiteral("Colours as they are");
  const std::string_view name = NameOf(*eye_);
  return QStringLiteral("Colours for %1 eyes, on the screen only")
      .arg(QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size())));
}

bool Sight::Filters() const {
  return filter_.has_value() && leaving_ == 0 && !IsForGlasses(desk.stereo);
}

const QImage& Sight::Shown(const QImage& picture) {
  if (!Filters()) return picture;
  shown_ = picture.copy();
  const auto words = static_cast<std::size_t>(shown_.bytesPerLine() / 4) *
                     static_cast<std::size_t>(shown_.height());
  filter_->Apply(reinterpret_cast<std::uint32_t*>(shown_.bits()), words);
  return shown_;
}

QRgb Sight::Shown(QRgb colour) const {
  if (!Filters()) return colour;
  const Colour shown = filter_->Shown(Rgb(qRed(colour), qGreen(colour), qBlue(colour)));
  return qRgb(Red(shown), Green(shown), Blue(shown));
}

void GiveSightItsKey(Sight& sight, QWidget& window, QWidget& told_over) {
  auto* key = new QShortcut(Qt::Key_F8, &window);
  QObject::connect(key, &QShortcut::activated, &told_over, [&] { TurnSight(sight, told_over); });
}

void TurnSight(Sight& sight, QWidget& told_over) {
  sight.Next();
  for (QWidget* part : QApplication::allWidgets()) part->update();
  QToolTip::showText(told_over.mapToGlobal(QPoint(8, 8)), sight.Words(), &told_over, {}, kTipStays);
}

}  // namespace orvane
