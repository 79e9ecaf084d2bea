#include "desktop/widgets/text_widget.h"

#include <QKeyEvent>
#include <QSignalBlocker>

#include "desk/actions.h"
#include "desktop/look/fonts.h"
#include "desktop/widgets/host.h"
#include "look/measures.h"
#include "look/palette.h"

namespace orvane {
namespace {

using namespace measures;

// The colour that a box of an array stands for, as a mark at its left.
constexpr QRgb kMarks[] = {palette::kRedMark, palette::kGreenMark, palette::kBlueMark};

}  // namespace

TextWidget::TextWidget(Host& owner, TextBox& shown, QWidget& parent)
    : Viewed(owner, shown, parent), box_(shown) {
  setFrame(false);
  QPalette colours = QWidget::palette();
  colours.setColor(QPalette::Base, Qt::transparent);
  colours.setColor(QPalette::Text, QColor::fromRgba(palette::kInk));
  colours.setColor(QPalette::Highlight, QColor::fromRgba(palette::kAccent));
  colours.setColor(QPalette::HighlightedText, QColor::fromRgba(palette::kFace));
  setPalette(colours);
  setText(QString::fromStdString(box_.Text));
  connect(this, &QLineEdit::textEdited, this,
          [this](const QString& typed) { TypeText(host.desk, box_, typed.toStdString()); });
}

void TextWidget::Take(Aspect aspect) {
  ControlView::Take(aspect);
  const QString text = QString::fromStdString(box_.Text);
  if (aspect == Aspect::Text && text != this->text()) setText(text);
}

void TextWidget::Lay() {
  ControlView::Lay();
  const double factor = host.scale.Factor;
  setFont(FontOf(kPlainType, factor));
  // The toolkit keeps two pixels of its own beside the text.
  setTextMargins(static_cast<int>(kMarkedTextLeft * factor) - 2, 0, static_cast<int>(4 * factor),
                 0);
}

void TextWidget::paintEvent(QPaintEvent* event) {
  {
    QPainter painter(this);
    const QRect face = EnterPixels(painter);
    const double unit = Unit();
    PaintPlate(painter, face, palette::kFace, underMouse() ? palette::kAccent : palette::kEdge,
               4 * unit, host.scale.Edge());
    if (HasRing()) PaintRing(painter, face, palette::kAccent, 4, unit, true);
    const int left = host.scale.Device(kMarkLeft), in = host.scale.Device(kMarkIn);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgba(kMarks[control.Index % 3]));
    painter.drawRoundedRect(QRect(face.left() + left, face.top() + in,
                                  host.scale.Device(kMarkWidth), face.height() - 2 * in),
                            2 * unit, 2 * unit);
  }
  QLineEdit::paintEvent(event);
}

// Enter ends here. The toolkit would pass it up to the window, which would act on whatever has the
// keyboard by then.
void TextWidget::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  PressKey(host.desk, control, enter ? kEnterKey : event->key());
  if (enter) return event->accept();
  QLineEdit::keyPressEvent(event);
}

}  // namespace orvane
