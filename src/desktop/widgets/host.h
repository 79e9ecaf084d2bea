// What a widget asks of the window that it stands in.
#pragma once

#include <QWidget>

#include "desk/orvane_desk.h"
#include "look/scale.h"
#include "raster/raster.h"

namespace orvane {

class ControlView;
class Flyout;
class Sight;

class Host {
 public:
  Host(Orvane_Desk& of, Raster& with, Sight& through) : desk(of), raster(with), sight(through) {}
  virtual ~Host() = default;
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;

  Orvane_Desk& desk;
  Raster& raster;
  Sight& sight;
  Scale scale;               // of the window as it is now
  Flyout* flyout = nullptr;  // one for all lists of the window

  virtual QWidget& Desk() = 0;  // what the controls stand on
  // Twips from the window's inner top left, below the strip if there is one, to twips of the desk.
  virtual Place OnDesk(Place place) const = 0;
  virtual ControlView* ViewOf(const Control& control) const = 0;

  // Pictures are painted together and at most once in a screen's beat, however often they were
  // drawn on.
  virtual void RepaintSoon(QWidget& picture) = 0;

  virtual void PointerOver(Control& control) = 0;  // reports it once, when it arrives
  // A floating panel was opened or closed. If it had the keyboard when it closed, the keyboard goes
  // back to where it came from.
  virtual void FloatingPanelTurned(Control& panel, bool had_keyboard) = 0;
};

}  // namespace orvane
