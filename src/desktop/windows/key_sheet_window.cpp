#include "desktop/windows/key_sheet_window.h"

#include <algorithm>

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>

#include "desktop/look/fonts.h"
#include "desktop/look/icon.h"
#include "desktop/widgets/control_view.h"
#include "desktop/widgets/reading_text.h"
#include "look/palette.h"

namespace orvane {
namespace {

using namespace palette;

// Pixels at 100 per cent. On a smaller screen the whole sheet is smaller.
constexpr int kWide = 956, kHigh = 556;
constexpr double kTitleBand = 44, kMargin = 20, kGap = 16;
constexpr int kColumns = 3;
constexpr double kColumn = (kWide - 2 * kMargin - (kColumns - 1) * kGap) / kColumns;
constexpr double kHeads = 108;  // the part of a column that holds the keys
constexpr double kRow = 14, kHeading = 18, kAfter = 7, kSwatch = 10;
constexpr Type kTitleType{18, 700}, kHeadingType{11, 600}, kKeyType{11, 600}, kTextType{11, 400};

QString Text(const std::string& text) { return QString::fromStdString(text); }

QStringList LinesOf(const std::string& paragraph) {
  return BrokenLines(kTextType, Text(paragraph), kColumn);
}

double HeightOf(const SheetSection& section) {
  double height = kHeading + kRow * static_cast<double>(section.Rows.size()) + kAfter;
  for (const std::string& paragraph : section.Texts) {
    height += kRow * static_cast<double>(LinesOf(paragraph).size()) + 3;
  }
  return height;
}

// Draws the sections one under the other, in columns.
class SheetPainter {
 public:
  SheetPainter(QPainter& painter, double unit) : painter_(painter), unit_(unit) {}

  void Paint(const std::vector<SheetSection>& sections) {
    for (const SheetSection& section : sections) {
      const bool fits = top_ + HeightOf(section) - kAfter <= kHigh - kMargin / 2;
      if (!fits) {
        left_ += kColumn + kGap;
        top_ = kFirst;
      }
      PaintSection(section);
    }
  }

 private:
  static constexpr double kFirst = kTitleBand + 10;

  void Line(double left, double width, double height, Type type, QRgb ink, const QString& text) {
    DrawLine(painter_, QRectF(left * unit_, top_ * unit_, width * unit_, height * unit_),
             Qt::AlignLeft, type, ink, unit_, text);
  }

  void PaintSection(const SheetSection& section) {
    Line(left_, kColumn, kRow, kHeadingType, kAccent, Text(section.Heading));
    painter_.fillRect(QRectF(left_ * unit_, (top_ + kRow + 1) * unit_, kColumn * unit_, unit_),
                      QColor::fromRgba(kHair));
    top_ += kHeading;
    for (const SheetRow& row : section.Rows) PaintRow(row);
    for (const std::string& paragraph : section.Texts) {
      for (const QString& line : LinesOf(paragraph)) {
        Line(left_, kColumn, kRow, kTextType, kInk, line);
        top_ += kRow;
      }
      top_ += 3;
    }
    top_ += kAfter;
  }

  void PaintRow(const SheetRow& row) {
    double left = left_;
    if (row.Swatch) {
      const QRectF face(left * unit_, (top_ + (kRow - kSwatch) / 2) * unit_, kSwatch * unit_,
                        kSwatch * unit_);
      PaintPlate(painter_, face, qRgb(Red(*row.Swatch), Green(*row.Swatch), Blue(*row.Swatch)),
                 kEdge, 2 * unit_, std::max(1, static_cast<int>(unit_)));
      left += kSwatch + 6;
    }
    Line(left, left_ + kHeads - left, kRow, kKeyType, kDeep, Text(row.Head));
    Line(left_ + kHeads, kColumn - kHeads, kRow, kTextType, kInk, Text(row.Words));
    top_ += kRow;
  }

  QPainter& painter_;
  const double unit_;
  double left_ = kMargin, top_ = kFirst;
};

}  // namespace

KeySheetWindow::KeySheetWindow() {
  setObjectName(QStringLiteral("KeySheet"));
  setWindowTitle(QString::fromLatin1(kSheetTitle));
  setAccessibleName(QString::fromLatin1(kSheetTitle));
  setAccessibleDescription(Text(KeySheetText()));
  setFocusPolicy(Qt::StrongFocus);
  setToolTip(QStringLiteral("Press Escape or F1 to close this sheet"));
  resize(QSize(kWide, kHigh).boundedTo(screen()->availableSize()));
}

void KeySheetWindow::Turn() {
  if (isVisible()) {
    close();
    return;
  }
  from_ = QApplication::activeWindow();
  show();
  raise();
  activateWindow();
  setFocus();
}

// As large as the window allows: all of it grows on a projector.
void KeySheetWindow::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const double ratio = devicePixelRatioF();
  const double unit =
      std::min(static_cast<double>(width()) / kWide, static_cast<double>(height()) / kHigh) * ratio;
  painter.scale(1 / ratio, 1 / ratio);
  painter.setRenderHint(QPainter::Antialiasing);
  const QSizeF all = QSizeF(size()) * ratio;
  painter.fillRect(QRectF(QPointF(0, 0), all), QColor::fromRgba(kGround));
  painter.fillRect(QRectF(0, 0, all.width(), kTitleBand * unit), QColor::fromRgba(kBezel));
  painter.translate((all.width() - kWide * unit) / 2, 0);
  PaintIcon(painter, QRectF(kMargin * unit, 8 * unit, 28 * unit, 28 * unit));
  DrawLine(painter, QRectF(60 * unit, 0, 800 * unit, kTitleBand * unit), Qt::AlignLeft, kTitleType,
           kOnDark, unit, QString::fromLatin1(kSheetTitle));
  SheetPainter(painter, unit).Paint(sections_);
}

void KeySheetWindow::keyPressEvent(QKeyEvent* event) {
  const bool closes = event->key() == Qt::Key_Escape || event->key() == Qt::Key_F1;
  if (!closes) return QWidget::keyPressEvent(event);
  close();
}

// The keyboard goes back to where it came from.
void KeySheetWindow::closeEvent(QCloseEvent* event) {
  QWidget::closeEvent(event);
  if (from_ != nullptr && from_->isVisible()) from_->activateWindow();
}

}  // namespace orvane
