// Shows the windows of the desk on the screen: it hears of each change of a control and shows it.
#pragma once

#include <memory>
#include <unordered_map>
#include <vector>

#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include "controls/window.h"
#include "desk/orvane_desk.h"
#include "desktop/look/sight.h"
#include "desktop/outside/qt_platform.h"
#include "desktop/outside/screen.h"
#include "desktop/outside/ticker.h"
#include "desktop/reader/accessible_words.h"

namespace orvane {

class Host;
class KeySheetWindow;
class WindowWidget;

class Skin : public ControlWatcher, public Screen {
 public:
  Skin(Orvane_Desk& desk, QtPlatform& platform);
  ~Skin() override;

  Orvane_Desk& desk;
  QtPlatform& platform;
  Sight sight{desk};

  void Changed(Control& control, Aspect aspect) override;

  // Shows the windows that are visible after the start; from then on they come and go by
  // themselves.
  void ShowWindows();

  // A window is made when it is first shown or asked for.
  WindowWidget& WindowOf(Window& window);
  QWidget* WidgetOf(const Control& control);

  void ShowKeySheet();  // or closes it

  // Pictures are painted together, and at most once in a beat of the screen, however often they
  // were drawn on.
  void RepaintSoon(QWidget& picture);

  QSize SizeOf(Control& control) override;
  QImage Grab(Control& control) override;
  QImage GrabAs(Window& window, QSize size) override;

 private:
  void Come(Window& window);
  Host& HostOf(Window& window);
  void SetTimer(Timer& timer);
  void TickOf(Timer& timer);
  void RepaintNow();

  std::unordered_map<const Window*, std::unique_ptr<WindowWidget>> windows_;
  Window* gone_ = nullptr;  // the one that was hidden last
  std::unordered_map<const Timer*, std::unique_ptr<Ticker>> tickers_;
  std::unique_ptr<KeySheetWindow> sheet_;  // made when it is first asked for
  AccessibleWords words_{desk, [this](Window& window) -> Host& { return HostOf(window); }};
  std::vector<QPointer<QWidget>> waiting_;  // pictures to paint at the next beat
  QTimer beat_;
  QElapsedTimer since_beat_;
};

}  // namespace orvane
