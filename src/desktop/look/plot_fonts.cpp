#include "desktop/look/plot_fonts.h"

#include <embedded/liberation_sans.h>
#include <embedded/liberation_serif.h>
#include <embedded/liberation_serif_bold.h>

#include <QFontDatabase>

namespace orvane {
namespace {

bool AddFont(std::span<const unsigned char> bytes) {
  return QFontDatabase::addApplicationFontFromData(QByteArray::fromRawData(
             reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size()))) >=
         0;
}

bool LoadPlotType() {
  return AddFont(embedded::liberation_sans()) && AddFont(embedded::liberation_serif()) &&
         AddFont(embedded::liberation_serif_bold());
}

}  // namespace

QFont PlotFont(PlotFamily family, int size, const QString& text) {
  static const bool loaded = LoadPlotType();  // when the first window needs it
  (void)loaded;
  const bool lent = text.contains(QString::fromUtf8(kStraightPhi.data(), kStraightPhi.size()));
  QFont font(lent                         ? QStringLiteral("Inter")
             : family == PlotFamily::Sans ? QStringLiteral("Liberation Sans")
                                          : QStringLiteral("Liberation Serif"));
  font.setPixelSize(lent ? static_cast<int>(size * kLentSize) : size);
  font.setBold(family == PlotFamily::BoldSerif);
  font.setHintingPreference(QFont::PreferVerticalHinting);
  return font;
}

}  // namespace orvane
