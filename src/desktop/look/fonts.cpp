#include "desktop/look/fonts.h"

#include <cmath>
#include <embedded/inter_bold.h>
#include <embedded/inter_medium.h>
#include <embedded/inter_regular.h>
#include <embedded/inter_semibold.h>

#include <QFontDatabase>
#include <QFontMetricsF>

namespace orvane {
namespace {

constexpr double kCapHeight = 8.0 / 11;  // of Inter, in parts of the size

void AddFont(std::span<const unsigned char> bytes) {
  QFontDatabase::addApplicationFontFromData(QByteArray::fromRawData(
      reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())));
}

}  // namespace

void LoadType() {
  // The machine's own fonts are listed at the first query. Listed now, they cannot come later and
  // replace ours with another version of the same name. Unlike other queries, this one does not
  // also work out what the machine would show in place of a family that it lacks.
  (void)QFontDatabase::isFixedPitch(QStringLiteral("Inter"));
  AddFont(embedded::inter_regular());
  AddFont(embedded::inter_medium());
  AddFont(embedded::inter_semibold());
  AddFont(embedded::inter_bold());
}

QFont FontOf(Type type, double factor) {
  QFont font(QStringLiteral("Inter"));
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(type.Size * factor))));
  font.setWeight(static_cast<QFont::Weight>(type.Weight));
  font.setHintingPreference(QFont::PreferVerticalHinting);
  return font;
}

double WidthOf(Type type, const QString& text) {
  return QFontMetricsF(FontOf(type)).horizontalAdvance(text);
}

QString Elided(Type type, const QString& text, double width) {
  return QFontMetricsF(FontOf(type)).elidedText(text, Qt::ElideRight, width);
}

Qt::Alignment AlignmentOf(Side side) {
  return side == Side::Left    ? Qt::AlignLeft
         : side == Side::Right ? Qt::AlignRight
                               : Qt::AlignHCenter;
}

void DrawLine(QPainter& painter, const QRectF& box, Qt::Alignment align, Type type, QRgb ink,
              double unit, const QString& text) {
  if (text.isEmpty()) return;
  const double width = WidthOf(type, text) * unit;
  const double narrow = width > box.width() ? box.width() / width : 1;
  const double room = box.width() - width * narrow;
  const double x = align & Qt::AlignRight     ? box.left() + room
                   : align & Qt::AlignHCenter ? box.left() + room / 2
                                              : box.left();
  // Capitals are centred in the height of the box, on a whole device pixel.
  const double baseline =
      std::round(box.top() + (box.height() + type.Size * kCapHeight * unit) / 2);
  painter.save();
  painter.setFont(FontOf(type));
  painter.setPen(QColor::fromRgba(ink));
  painter.translate(x, baseline);
  painter.scale(unit * narrow, unit);
  painter.drawText(QPointF(0, 0), text);
  painter.restore();
}

QString WithoutMnemonic(const QString& caption) { return QString(caption).remove(u'&'); }

void DrawMnemonic(QPainter& painter, const QRectF& box, Type type, QRgb ink, double unit,
                  const QString& caption) {
  DrawLine(painter, box, Qt::AlignLeft, type, ink, unit, WithoutMnemonic(caption));
  const qsizetype mark = caption.indexOf(u'&');
  if (mark < 0 || mark + 1 >= caption.size()) return;
  const double before = WidthOf(type, caption.left(mark));
  const double letter = WidthOf(type, caption.mid(mark + 1, 1));
  const double baseline =
      std::round(box.top() + (box.height() + type.Size * kCapHeight * unit) / 2);
  const double thick = std::max(1.0, std::round(unit));
  painter.fillRect(QRectF(std::round(box.left() + before * unit), baseline + 2 * thick,
                          std::round(letter * unit), thick),
                   QColor::fromRgba(ink));
}

}  // namespace orvane
