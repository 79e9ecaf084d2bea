// A text for reading, broken into lines. Blanks before a hyphen are the gap for a letter that
// another control lays over them; no line breaks there.
#pragma once

#include <vector>

#include "desktop/widgets/plate.h"

namespace orvane {

// Lines of at most `width` pixels at 100 per cent.
QStringList BrokenLines(Type type, const QString& text, double width);

class ReadingText : public Plate {
 public:
  using Plate::Plate;

  // The gap, in device pixels of the desk: as wide as its blanks and as high as its line. Empty in
  // a text without a gap.
  QRectF Gap() const;
  QStringList Lines() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  double TopOf(qsizetype line, qsizetype lines) const;  // device pixels of the face
};

// The letter over the gap of the reading text in the same window.
class GreekLetter : public Plate {
 public:
  GreekLetter(Host& owner, Control& shown, QWidget& parent);

  void Lay() override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QRectF gap_;  // device pixels of the desk
};

}  // namespace orvane
