// For whose eyes the screen shows the pictures of the molecule. The last step to the screen, and of
// nothing else: strokes, stored pixels, files, frames and paper never come by here.
#pragma once

#include <optional>

#include <QImage>
#include <QString>
#include <QWidget>

#include "desk/orvane_desk.h"
#include "vision/display_filter.h"

namespace orvane {

class Sight {
 public:
  explicit Sight(const Orvane_Desk& of) : desk(of) {}

  const Orvane_Desk& desk;

  // Without a filter at the start; then protan, deutan, tritan, and without again.
  void Next();
  bool IsFiltered() const { return filter_.has_value(); }
  QString Words() const;  // which it is, for the user

  // What the screen shows for a picture of the main window, and for a colour there.
  const QImage& Shown(const QImage& picture);
  QRgb Shown(QRgb colour) const;

  // While one of these lives, what is painted leaves the program and is shown as it is.
  class Leaving {
   public:
    explicit Leaving(Sight& of) : sight_(of) { ++sight_.leaving_; }
    ~Leaving() { --sight_.leaving_; }
    Leaving(const Leaving&) = delete;
    Leaving& operator=(const Leaving&) = delete;

   private:
    Sight& sight_;
  };

 private:
  bool Filters() const;

  std::optional<Eye> eye_;
  std::optional<DisplayFilter> filter_;
  QImage shown_;  // of the picture that was painted last
  int leaving_ = 0;
};

// F8, wherever the keyboard is in the window, which need not be that of the pictures.
void GiveSightItsKey(Sight& sight, QWidget& window, QWidget& told_over);

// The next sight, with every picture painted anew and a word about it.
void TurnSight(Sight& sight, QWidget& told_over);

}  // namespace orvane
