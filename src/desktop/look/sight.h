// For whose eyes the screen shows the pictures of the molecule. It is the last step to the screen
// only: strokes, stored pixels, files, frames and paper never pass through here.
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
  QString Words() const;  // which one it is, in words for the user

  // What the screen shows for a picture of the main window, and for a colour there.
  const QImage& Shown(const QImage& picture);
  QRgb Shown(QRgb colour) const;

  // While an object of this class exists, what is painted leaves the program and is not filtered.
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
  QImage shown_;  // the last picture that was painted
  int leaving_ = 0;
};

// F8, wherever the keyboard is in the window, even in one without the pictures.
void GiveSightItsKey(Sight& sight, QWidget& window, QWidget& told_over);

// Goes to the next sight, repaints every picture and says which sight it is.
void TurnSight(Sight& sight, QWidget& told_over);

}  // namespace orvane
