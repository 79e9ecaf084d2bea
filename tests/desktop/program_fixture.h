// All the windows as the program starts them, beginning with the splash.
#pragma once

#include "shell/start_up.h"
#include "window_fixture.h"

namespace orvane {

struct ProgramAtWork {
  QuietPlatform platform;
  std::unique_ptr<Orvane_Desk> owned = StartDesk(platform);
  Orvane_Desk& desk = *owned;
  Skin skin{desk, platform};

  ProgramAtWork() {
    QCursor::setPos(0, 0);
    skin.ShowWindows();
    WaitFor(desk.front);
  }

  void WaitFor(Window& window) {
    WindowWidget& widget = skin.WindowOf(window);
    widget.activateWindow();
    (void)QTest::qWaitForWindowActive(&widget);
  }
  WindowWidget& WindowOf(Window& window) { return skin.WindowOf(window); }
  QWidget& WidgetOf(const Control& control) { return *skin.WidgetOf(control); }
  ControlView& ViewOf(const Control& control) {
    return *skin.WindowOf(control.Owner).ViewOf(control);
  }
  void ClickOn(const Control& control) {
    QTest::mouseClick(&WidgetOf(control), Qt::LeftButton, {},
                      ViewOf(control).FaceInWidget().center().toPoint());
  }
  bool IsOnView(Window& window) { return skin.WindowOf(window).isVisible(); }

  void GoToTheDesk() {
    ClickOn(desk.front.Get_in);
    ClickOn(desk.content.Get_in);
    WaitFor(desk.main);
  }
};

}  // namespace orvane
