#include "desktop/widgets/reading_text.h"

#include <cmath>

#include <QRegularExpression>

#include "desktop/look/fonts.h"
#include "desktop/widgets/host.h"
#include "look/plot_letters.h"

namespace orvane {
namespace {

// Two blanks or more before a hyphen.
const QRegularExpression& GapPattern() {
  static const QRegularExpression pattern(QStringLiteral("  +(?=-)"));
  return pattern;
}

}  // namespace

QStringList BrokenLines(Type type, const QString& text, double width) {
  static const QRegularExpression words(QStringLiteral(R"(\s*(?:\S|  +(?=-))+)"));
  QStringList lines(QString{});
  for (auto match = words.globalMatch(text); match.hasNext();) {
    const QString word = match.next().captured();
    const QString longer = lines.last() + word;
    const bool fits = lines.last().isEmpty() || WidthOf(type, longer) <= width;
    if (fits) {
      lines.last() = longer;
    } else {
      lines.append(word.trimmed());
    }
  }
  return lines;
}

QStringList ReadingText::Lines() const {
  const double width = static_cast<double>(control.At.Get().Width) / TwipsPerPixel;
  return BrokenLines(dress_.Letters, QString::fromStdString(control.Caption), width);
}

double ReadingText::TopOf(qsizetype line, qsizetype lines) const {
  const double height = dress_.LineHeight * Unit();
  const double all = height * static_cast<double>(lines);
  const double top =
      dress_.TextTop >= 0 ? dress_.TextTop * Unit() : (Stand().Face.height() - all) / 2;
  return top + height * static_cast<double>(line);
}

QRectF ReadingText::Gap() const {
  const QStringList lines = Lines();
  for (qsizetype i = 0; i < lines.size(); ++i) {
    const auto match = GapPattern().match(lines[i]);
    if (!match.hasMatch()) continue;
    const double before = WidthOf(dress_.Letters, lines[i].left(match.capturedStart()));
    const double after = WidthOf(dress_.Letters, lines[i].left(match.capturedEnd()));
    return {Stand().Face.left() + before * Unit(), Stand().Face.top() + TopOf(i, lines.size()),
            (after - before) * Unit(), dress_.LineHeight * Unit()};
  }
  return {};
}

void ReadingText::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect face = EnterPixels(painter);
  const QStringList lines = Lines();
  for (qsizetype i = 0; i < lines.size(); ++i) {
    const QRectF box(0, TopOf(i, lines.size()), face.width(), dress_.LineHeight * Unit());
    DrawLine(painter, box, Qt::AlignLeft, dress_.Letters, dress_.Ink, Unit(), lines[i]);
  }
}

GreekLetter::GreekLetter(Host& owner, Control& shown, QWidget& parent)
    : Plate(owner, shown, parent) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void GreekLetter::Lay() {
  for (const Control* other : control.Owner.Controls) {
    const auto* text = dynamic_cast<ReadingText*>(host.ViewOf(*other));
    if (text != nullptr && !text->Gap().isEmpty()) gap_ = text->Gap();
  }
  const double out = 3 * Unit(), ratio = host.scale.Ratio;
  const QRectF wide = gap_.adjusted(-out, 0, out, 0);
  spot_ = {gap_.toAlignedRect(),
           QRectF(wide.topLeft() / ratio, wide.size() / ratio).toAlignedRect()};
  setGeometry(spot_.Hull);
}

void GreekLetter::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  EnterPixels(painter);
  const QString letter = QString::fromStdString(GreekOf(control.Caption.Get()));
  const double width = WidthOf(dress_.Letters, letter) * Unit();
  const QRectF box = gap_.translated(-spot_.Face.topLeft());
  DrawLine(painter, QRectF(box.center().x() - width / 2, box.top(), width + 1, box.height()),
           Qt::AlignLeft, dress_.Letters, dress_.Ink, Unit(), letter);
}

}  // namespace orvane
