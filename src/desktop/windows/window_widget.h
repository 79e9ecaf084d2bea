// A window on the screen: its table walked, a widget made for each row.
#pragma once

#include <memory>
#include <unordered_map>

#include <QWidget>

#include "controls/window.h"
#include "desktop/look/spot.h"

namespace orvane {

class ControlView;
class Flyout;
class MenuStrip;
class Skin;
class WindowWidget;

// What the controls stand on; centred in a maximised window.
class Ground : public QWidget {
 public:
  explicit Ground(WindowWidget& window);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  WindowWidget& window_;
};

class WindowWidget : public QWidget {
 public:
  WindowWidget(Skin& skin, Window& shown);
  ~WindowWidget() override;

  Skin& skin;
  Window& shown;
  Scale scale;
  Flyout* flyout = nullptr;
  MenuStrip* strip = nullptr;  // none in a window without menus

  QWidget& Desk() { return *desk_; }
  ControlView* ViewOf(const Control& control) const;
  void Take(Control& control, Aspect aspect);

  // Twips from the window's inner top left, below the strip if there is one, to twips of the desk.
  Place OnDesk(Place place) const;
  int PlanWidth() const { return shown.Row.At.Width; }
  int PlanHeight() const { return shown.Row.At.Height; }

  void PointerOver(Control& control);  // tells of it once, when it comes
  // One was opened, or closed with or without the keyboard in it, which then goes back to where it
  // came from.
  void FloatingPanelTurned(Control& panel, bool had_keyboard);
  void LayAll();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void MakeWidgets();
  void TakeWindow(Aspect aspect);
  void SetTabOrder();
  void StandOnScreen();
  void FitTheScreen();
  void ComeToScreen();  // one that may differ from the last in size and density
  double NormalFactor() const;
  QSize NormalSize() const;

  Ground* desk_;
  bool stood_ = false;  // has been on the screen before
  std::unordered_map<const Control*, ControlView*> views_;
  const Control* under_pointer_ = nullptr;
  Control* panel_from_ = nullptr;  // who had the keyboard when a floating panel was opened
};

}  // namespace orvane
