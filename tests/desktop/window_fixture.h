// The main window on a screen. A list answers its boxes in place of a user.
#pragma once

#include <deque>
#include <memory>
#include <string>
#include <vector>

#include <QImage>
#include <QTest>

#include "desk/actions.h"
#include "desktop/widgets/control_view.h"
#include "desktop/windows/skin.h"
#include "desktop/windows/window_widget.h"
#include "shell/start_up.h"

namespace orvane {

class QuietPlatform : public QtPlatform {
 public:
  std::vector<std::string> Effects;
  std::deque<std::string> Answers;  // replies to input boxes; with none left: cancelled
  std::string Folder;               // used instead of the program's folder unless it is empty

  void Beep() override { Effects.emplace_back("beep"); }
  void MessageBox(std::string_view text) override { Keep("message ", text); }
  void WarningBox(std::string_view text) override { Keep("warning ", text); }
  void FailureBox(std::string_view text) override { Keep("failure ", text); }
  std::optional<std::string> InputBox(std::string_view prompt, std::string_view) override {
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
  // Moves the pointer as the screen does: the toolkit finds out what it enters and leaves.
  void PointAt(QWidget& widget, QPoint at) {
    QCursor::setPos(widget.mapToGlobal(at));  // for code that asks the screen where it is
    QTest::mouseMove(window.windowHandle(), widget.mapTo(&window, at));
  }
  // Turns the wheel over a widget. The angle is in eighths of a degree, 120 for a notch, positive
  // away from the user.
  static void TurnWheel(QWidget& widget, QPoint at, int angle) {
    QWheelEvent turn(at, widget.mapToGlobal(at), {}, QPoint(0, angle), Qt::NoButton, {},
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &turn);
  }
  QImage Shot() { return window.grab().toImage().convertToFormat(QImage::Format_RGB32); }
};

// Counts how often the widget whose events it filters was asked to paint itself.
struct Paints : QObject {
  int Count = 0;
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++Count;
    return false;
  }
};

// Counts the events of that kind that came to a control, and keeps the last one.
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
