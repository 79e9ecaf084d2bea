// One fixed style: the toolkit's own drawing in the palette of the program, with menus and tooltips
// of its own. A dark or coloured desktop theme does not affect the windows.
#pragma once

#include <QApplication>
#include <QProxyStyle>

namespace orvane {

// Sets style, palette and type, before the first window.
void DressApplication(QApplication& application);

// Sets tips to the size of the desk that they appear over; never smaller than at 100 per cent.
void SizeTips(double factor);

class LookStyle : public QProxyStyle {
 public:
  LookStyle();

  static double FactorOf(const QWidget* widget);  // of the maximised desk that the menu belongs to

  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override;
};

}  // namespace orvane
