#include "desktop/look/look_style.h"

#include <algorithm>
#include <cmath>

#include <QPainterPath>
#include <QStyleFactory>
#include <QStyleOptionMenuItem>
#include <QToolTip>

#include "desktop/look/fonts.h"
#include "look/measures.h"
#include "look/palette.h"

namespace orvane {
namespace {

using namespace measures;
using namespace palette;

QPalette OwnPalette() {
  QPalette colours;
  const auto set = [&](QPalette::ColorRole role, QRgb normal, QRgb off) {
    colours.setColor(role, QColor::fromRgba(normal));
    colours.setColor(QPalette::Disabled, role, QColor::fromRgba(off));
  };
  set(QPalette::Window, kGround, kGround);
  set(QPalette::WindowText, kInk, kDisabled);
  set(QPalette::Base, kFace, kDisabledFace);
  set(QPalette::AlternateBase, kGround, kGround);
  set(QPalette::Text, kInk, kDisabled);
  set(QPalette::PlaceholderText, kInk2, kDisabled);
  set(QPalette::Button, kFace, kDisabledFace);
  set(QPalette::ButtonText, kInk, kDisabled);
  set(QPalette::BrightText, kFace, kFace);
  set(QPalette::Light, kFace, kFace);
  set(QPalette::Midlight, kGround, kGround);
  set(QPalette::Mid, kSoftEdge, kSoftEdge);
  set(QPalette::Dark, kEdge, kEdge);
  set(QPalette::Shadow, kInk2, kInk2);
  set(QPalette::Highlight, kAccent, kSoftEdge);
  set(QPalette::HighlightedText, kFace, kFace);
  set(QPalette::Link, kAccent, kDisabled);
  set(QPalette::LinkVisited, kDeep, kDisabled);
  set(QPalette::ToolTipBase, kBezel, kBezel);
  set(QPalette::ToolTipText, kOnDark, kOnDark);
  return colours;
}

// The size factor of the tips as it is set now.
double TipFactor() { return static_cast<double>(QToolTip::font().pixelSize()) / kTipType.Size; }

QString MenuText(const QStyleOptionMenuItem& item) { return item.text.section(u'\t', 0, 0); }

// Device pixels, so that edges are crisp at every density.
struct Pixels {
  Pixels(QPainter& painter, const QRect& rect, double factor) : painter_(painter) {
    painter_.save();
    const QTransform screen = painter.deviceTransform();
    const QRectF mapped = screen.mapRect(QRectF(rect));
    Box = QRect(mapped.topLeft().toPoint(), mapped.bottomRight().toPoint() - QPoint(1, 1));
    Unit = factor * screen.m11();
    Edge = std::max(1, static_cast<int>(std::lround(Unit)));
    painter_.resetTransform();
    painter_.setWorldTransform(painter_.deviceTransform().inverted());
    painter_.setRenderHint(QPainter::Antialiasing);
  }
  ~Pixels() { painter_.restore(); }

  QRect Box;
  double Unit = 1;
  int Edge = 1;

 private:
  QPainter& painter_;
};

void PaintStripItem(QPainter& painter, const QStyleOptionMenuItem& item, double factor) {
  const Pixels pixels(painter, item.rect, factor);
  const bool open = item.state & (QStyle::State_Selected | QStyle::State_Sunken);
  const bool enabled = item.state & QStyle::State_Enabled;
  painter.fillRect(pixels.Box, QColor::fromRgba(open && enabled ? kTint : kFace));
  painter.fillRect(QRect(pixels.Box.left(), pixels.Box.bottom() + 1 - pixels.Edge,
                         pixels.Box.width(), pixels.Edge),
                   QColor::fromRgba(kHair));
  QRectF text = QRectF(pixels.Box).adjusted(kStripPad * pixels.Unit, 0, 0, 0);
  DrawMnemonic(painter, text, kMenuType, enabled ? kInk : kDisabled, pixels.Unit, item.text);
}

void PaintEntry(QPainter& painter, const QStyleOptionMenuItem& item, double factor) {
  const Pixels pixels(painter, item.rect, factor);
  const double unit = pixels.Unit;
  const bool enabled = item.state & QStyle::State_Enabled;
  const QRectF box(pixels.Box);
  if (item.menuItemType == QStyleOptionMenuItem::Separator) {
    const int middle = pixels.Box.top() + static_cast<int>(std::floor(box.height() / 2));
    const int in = static_cast<int>(std::lround(4 * unit));
    painter.fillRect(
        QRect(pixels.Box.left() + in, middle, pixels.Box.width() - 2 * in, pixels.Edge),
        QColor::fromRgba(kHair));
    return;
  }
  if (enabled && item.state & QStyle::State_Selected) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgba(kTint));
    painter.drawRoundedRect(box, 3 * unit, 3 * unit);
  }
  DrawMnemonic(painter, box.adjusted(kEntryPad * unit, 0, 0, 0), kMenuType,
               enabled ? kInk : kDisabled, unit, MenuText(item));
  if (item.menuItemType == QStyleOptionMenuItem::SubMenu) {
    const double right = box.right() - 4 * unit, middle = std::round(box.center().y());
    QPainterPath arrow(QPointF(right - 5 * unit, middle - 3.5 * unit));
    arrow.lineTo(right, middle);
    arrow.lineTo(right - 5 * unit, middle + 3.5 * unit);
    painter.fillPath(arrow, QColor::fromRgba(enabled ? kThumb : kDisabled));
  }
}

}  // namespace

void DressApplication(QApplication& application) {
  LoadType();
  QApplication::setStyle(new LookStyle);
  QApplication::setPalette(OwnPalette());
  application.setFont(FontOf(kPlainType));
  SizeTips(1);
  QToolTip::setPalette(OwnPalette());
}

void SizeTips(double factor) { QToolTip::setFont(FontOf(kTipType, std::max(1.0, factor))); }

LookStyle::LookStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

double LookStyle::FactorOf(const QWidget* widget) {
  const QVariant factor = widget == nullptr ? QVariant() : widget->property("factor");
  return factor.isValid() ? factor.toDouble() : 1;
}

void LookStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
  const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
  switch (element) {
    case CE_MenuBarItem:
      return PaintStripItem(*painter, *item, FactorOf(widget));
    case CE_MenuItem:
      return PaintEntry(*painter, *item, FactorOf(widget));
    case CE_MenuBarEmptyArea: {
      const Pixels pixels(*painter, option->rect, FactorOf(widget));
      painter->fillRect(pixels.Box, QColor::fromRgba(kFace));
      painter->fillRect(QRect(pixels.Box.left(), pixels.Box.bottom() + 1 - pixels.Edge,
                              pixels.Box.width(), pixels.Edge),
                        QColor::fromRgba(kHair));
      return;
    }
    case CE_MenuEmptyArea:
      return;
    default:
      return QProxyStyle::drawControl(element, option, painter, widget);
  }
}

void LookStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const {
  switch (element) {
    case PE_PanelMenuBar:
      return;
    case PE_PanelMenu:
    case PE_FrameMenu: {
      const Pixels pixels(*painter, option->rect, FactorOf(widget));
      const int e = pixels.Edge;
      if (element == PE_PanelMenu) {
        painter->fillRect(pixels.Box, QColor::fromRgba(kEdge));
        painter->fillRect(pixels.Box.adjusted(e, e, -e, -e), QColor::fromRgba(kFace));
      }
      return;
    }
    case PE_PanelTipLabel:
      painter->fillRect(option->rect, QColor::fromRgba(kBezel));
      return;
    default:
      return QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
}

QSize LookStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const {
  const double factor = FactorOf(widget);
  const auto whole = [&](double pixels) { return static_cast<int>(std::lround(pixels * factor)); };
  const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
  if (item != nullptr && type == CT_MenuBarItem) {
    const double text = WidthOf(kMenuType, WithoutMnemonic(item->text));
    return {whole(std::ceil(text) + 2 * kStripPad), whole(kStripHeight)};
  }
  if (item != nullptr && type == CT_MenuItem) {
    const bool line = item->menuItemType == QStyleOptionMenuItem::Separator;
    const double text = WidthOf(kMenuType, WithoutMnemonic(MenuText(*item)));
    return {whole(std::ceil(text) + 2 * kEntryPad), whole(line ? kHairlineHeight : kEntryHeight)};
  }
  return QProxyStyle::sizeFromContents(type, option, size, widget);
}

int LookStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                           const QWidget* widget) const {
  const auto whole = [&](double pixels) {
    return static_cast<int>(std::lround(pixels * FactorOf(widget)));
  };
  switch (metric) {
    case PM_MenuBarItemSpacing:
    case PM_MenuBarHMargin:
    case PM_MenuBarVMargin:
    case PM_MenuBarPanelWidth:
      return 0;
    case PM_MenuHMargin:
    case PM_MenuVMargin:
      return whole(kMenuPad);
    case PM_MenuPanelWidth:
      return std::max(1, whole(1));
    case PM_SubMenuOverlap:
      return 0;
    case PM_ToolTipLabelFrameWidth:
      return static_cast<int>(std::lround(kTipPad * TipFactor())) - 1;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

int LookStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* data) const {
  switch (hint) {
    case SH_UnderlineShortcut:
      return 1;
    case SH_ToolTip_WakeUpDelay:
      return kTipDelay;
    case SH_ToolTipLabel_Opacity:
      return 255;
    case SH_ToolTip_Mask: {
      auto* mask = qstyleoption_cast<QStyleHintReturnMask*>(data);
      if (mask == nullptr) return 0;
      QPainterPath round;
      const double corner = kTipCorner * TipFactor();
      round.addRoundedRect(option->rect, corner, corner);
      mask->region = QRegion(round.toFillPolygon().toPolygon());
      return 1;
    }
    case SH_MenuBar_MouseTracking:
    case SH_Menu_MouseTracking:
      return 1;
    default:
      return QProxyStyle::styleHint(hint, option, widget, data);
  }
}

}  // namespace orvane
