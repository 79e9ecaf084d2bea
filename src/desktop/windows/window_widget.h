// A window on the screen: it walks its table and makes a widget for each row.
#pragma once

#include <memory>
#include <unordered_map>

#include <QWidget>

#include "controls/window.h"
#include "desktop/widgets/ground.h"
#include "desktop/widgets/host.h"

namespace orvane {

class MenuStrip;
class Skin;

class WindowWidget : public QWidget, public Host {
 public:
  WindowWidget(Skin& skin, Window& shown);
  ~WindowWidget() override;

  Skin& skin;
  Window& shown;
  MenuStrip* strip = nullptr;  // none in a window without menus

  QWidget& Desk() override { return *desk_; }
  ControlView* ViewOf(const Control& control) const override;
  void Take(Control& control, Aspect aspect);

  Place OnDesk(Place place) const override;
  int PlanWidth() const { return shown.Row.At.Width; }
  int PlanHeight() const { return shown.Row.At.Height; }

  void RepaintSoon(QWidget& picture) override;
  void PointerOver(Control& control) override;
  void FloatingPanelTurned(Control& panel, bool had_keyboard) override;
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
  void ComeToScreen();  // a screen that may differ from the last in size and density
  double NormalFactor() const;
  QSize NormalSize() const;

  Ground* desk_;
  bool stood_ = false;  // it has been on the screen before
  std::unordered_map<const Control*, ControlView*> views_;
  const Control* under_pointer_ = nullptr;
  Control* panel_from_ = nullptr;  // what had the keyboard when a floating panel was opened
};

}  // namespace orvane
