// A cut row or a hidden caption, shown whole above everything else: its right edge stays in place,
// and it grows to the left.
#pragma once

#include <QWidget>

#include "desktop/look/spot.h"

namespace orvane {

class Host;

// Takes no pointer events: what lies below still gets them.
class Flyout : public QWidget {
 public:
  Flyout(Host& window, QWidget& desk);

  // `row` in device pixels of the desk; `key` comes before `rest`, in heavier type.
  void ShowRow(const void* owner, const QRect& row, const QString& key, const QString& rest);
  void HideOf(const void* owner);

  const QString& Text() const { return text_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Host& window_;
  const void* owner_ = nullptr;
  QString key_, rest_, text_;
  Spot spot_;
};

}  // namespace orvane
