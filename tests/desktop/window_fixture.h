// The main window on a screen, its boxes answered by a list instead of a user.
#pragma once

#include <deque>
#include <memory>
#include <string>
#include <vector>

#include <QImage>
#include <QTest>

#include "desk/actions.h"
#include "desktop/control_view.h"
#include "desktop/skin.h"
#include "desktop/window_widget.h"
#include "shell/start_up.h"

namespace orvane {

class QuietPlatform : public QtPlatform {
 public:
  std::vector<std::string> Effects;
  std::deque<std::string> Answers;  // replies to input boxes; with none left: cancelled
  std::string Folder;               // stands for the program's, where it is not empty

  void Beep() override { Effects.emplace_back("beep"); }
  void MessageBox(std::string_view text) override { Keep("message ", text); }
  void WarningBox(std::string_view text) override { Keep("warning ", text); }
  void FailureBox(std::string_view text) override { Keep("failure ", text); }
  std::string InputBox(std::string_view prompt, std::string_view) override {
    Keep("ask ", prompt);
    if (Answers.empty()) return "";
    std::string answer = Answers.front();
    Answers.pop_front();
    return answer;
  }
  std::string ProgramFolder() override {
    return Folder.empty() ? QtPlatform::ProgramFolder() : Folder;
  }
  void EndProgram() override { Effects.emplace_back("end"); }

 private:
  void Keep(const char* kind, std::string_view text) {
    Effects.push_back(kind + std::string(text));
  }
};

struct WindowAtWork {
  QuietPlatform platform;
  std::unique_ptr<Orvane_Desk> owned = StartDesk(platform);
  Orvane_Desk& desk = *owned;
  MainWindow& main = desk.main;
  Skin skin{desk, platform};
  WindowWidget& window;

  WindowAtWork() : window(skin.WindowOf(main)) {
    QCursor::setPos(0, 0);
    desk.front.Hide();
    main.Show();
    window.activateWindow();
    (void)QTest::qWaitForWindowActive(&window);
  }

  QWidget& WidgetOf(const Control& control) { return *skin.WidgetOf(control); }
  ControlView& ViewOf(const Control& control) { return *window.ViewOf(control); }
  // The middle of a control, in its widget's pixels.
  QPoint Middle(const Control& control) {
    return ViewOf(control).FaceInWidget().center().toPoint();
  }
  void ClickOn(const Control& control) {
    QTest::mouseClick(&WidgetOf(control), Qt::LeftButton, {}, Middle(control));
  }
  // The pointer as the screen moves it: the toolkit finds out what it comes onto and leaves.
  void PointAt(QWidget& widget, QPoint at) {
    QCursor::setPos(widget.mapToGlobal(at));  // for who asks the screen where it is
    QTest::mouseMove(window.windowHandle(), widget.mapTo(&window, at));
  }
  // Turns the wheel over a widget; angle: eighths of a degree, 120 for a notch, from the user away.
  static void TurnWheel(QWidget& widget, QPoint at, int angle) {
    QWheelEvent turn(at, widget.mapToGlobal(at), {}, QPoint(0, angle), Qt::NoButton, {},
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &turn);
  }
  QImage Shot() { return window.grab().toImage().convertToFormat(QImage::Format_RGB32); }
};

// How often a widget that it filters the events of was asked to paint itself.
struct Paints : QObject {
  int Count = 0;
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++Count;
    return false;
  }
};

// How often an event of that kind came to a control, and the last one.
struct Heard {
  int Count = 0;
  Event Last;

  Heard(Control& control, EventKind kind) {
    control.Bind(kind, [this](const Event& event) {
      ++Count;
      Last = event;
    });
  }
};

}  // namespace orvane
