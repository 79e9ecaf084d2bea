// A cut row or a hidden caption, shown whole above everything: right edges equal, growing
// leftwards.
#pragma once

#include <QWidget>

#include "desktop/look/spot.h"

namespace orvane {

class Host;

// Takes no pointer: what lies below goes on being under it.
class Flyout : public QWidget {
 public:
  Flyout(Host& window, QWidget& desk);

  // `row` in device pixels of the desk; `key` stands before `rest`, in a heavier letter.
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
