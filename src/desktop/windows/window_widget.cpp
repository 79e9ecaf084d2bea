#include "desktop/windows/window_widget.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include "desk/actions.h"
#include "desktop/look/look_style.h"
#include "desktop/widgets/control_view.h"
#include "desktop/widgets/flyout.h"
#include "desktop/windows/menu_strip.h"
#include "desktop/windows/picture_keys_map.h"
#include "desktop/windows/skin.h"
#include "desktop/windows/widget_of_kind.h"
#include "look/dress.h"
#include "look/measures.h"
#include "look/palette.h"
#include "look/window_dress.h"

namespace orvane {
namespace {

// What a window manager's frame may take of the screen, in the toolkit's pixels.
constexpr QSize kFrame(8, 40);

QSize PlanSize(const Window& window) {
  const Place at = window.Row.At;
  return {at.Width / TwipsPerPixel, at.Height / TwipsPerPixel};
}

WindowState StateOf(const QWidget& widget) {
  return widget.isMinimized()                            ? WindowState::Minimised
         : widget.isMaximized() || widget.isFullScreen() ? WindowState::Maximised
                                                         : WindowState::Normal;
}

Qt::CursorShape ShapeOf(int pointer) {
  return pointer == kPointerCross       ? Qt::CrossCursor
         : pointer == kPointerHourglass ? Qt::WaitCursor
                                        : Qt::ArrowCursor;
}

}  // namespace

WindowWidget::WindowWidget(Skin& of, Window& window)
    : Host(of.desk, of.raster, of.sight), skin(of), shown(window) {
  setObjectName(QString::fromStdString(shown.Name));
  setWindowTitle(QString::fromStdString(shown.Caption));
  FitTheScreen();
  desk_ = new Ground(*this, *this, shown);
  flyout = new Flyout(*this, *desk_);
  MakeWidgets();
  SetTabOrder();
  setCursor(ShapeOf(shown.MousePointer));
}

// Its widgets hear that they are hidden, and what they then ask of their window must still exist:
// the toolkit would hide them only when nothing of this class is left.
WindowWidget::~WindowWidget() { hide(); }

void WindowWidget::MakeWidgets() {
  if (HasMenus(shown)) strip = new MenuStrip(*this, *desk_);
  for (Control* control : shown.Controls) {
    const auto above = views_.find(control->Parent);
    QWidget& parent = above == views_.end() ? *desk_ : above->second->widget;
    ControlView* view = MakeView(*this, *control, parent);
    if (view == nullptr) continue;
    view->Begin();
    views_[control] = view;
  }
  flyout->raise();
}

ControlView* WindowWidget::ViewOf(const Control& control) const {
  const auto found = views_.find(&control);
  return found == views_.end() ? nullptr : found->second;
}

void WindowWidget::Take(Control& control, Aspect aspect) {
  if (&control == &shown) return TakeWindow(aspect);
  if (control.Row.Kind == ControlKind::MenuEntry) return strip->Take(control);
  if (ControlView* view = ViewOf(control)) view->Take(aspect);
}

void WindowWidget::TakeWindow(Aspect aspect) {
  switch (aspect) {
    case Aspect::Caption:
      setWindowTitle(QString::fromStdString(shown.Caption));
      break;
    case Aspect::Pointer:
      setCursor(ShapeOf(shown.MousePointer));
      break;
    case Aspect::Visible:
      setVisible(shown.Visible);
      break;
    case Aspect::Front:
      raise();
      activateWindow();
      break;
    case Aspect::Place:
      if (StateOf(*this) == WindowState::Normal) {
        const Place at = shown.At;
        resize((QSizeF(at.Width, at.Height) * NormalFactor() / TwipsPerPixel).toSize());
        move(at.Left / TwipsPerPixel, at.Top / TwipsPerPixel);
      }
      break;
    default:
      break;
  }
}

Place WindowWidget::OnDesk(Place place) const {
  if (strip != nullptr) place.Top += measures::kStripTwips;
  return place;
}

void WindowWidget::LayAll() {
  const QSize plan = PlanSize(shown);
  const bool large = StateOf(*this) == WindowState::Maximised;
  scale.Factor = large ? std::min(static_cast<double>(width()) / plan.width(),
                                  static_cast<double>(height()) / plan.height())
                       : NormalFactor();
  scale.Ratio = devicePixelRatioF();
  const QSize size(static_cast<int>(std::lround(plan.width() * scale.Factor)),
                   static_cast<int>(std::lround(plan.height() * scale.Factor)));
  desk_->setGeometry(large ? (width() - size.width()) / 2 : 0,
                     large ? (height() - size.height()) / 2 : 0, size.width(), size.height());
  if (strip != nullptr) strip->Lay();
  for (Control* control : shown.Controls) {
    if (ControlView* view = ViewOf(*control)) view->Lay();
  }
  if (isActiveWindow()) SizeTips(scale.Factor);
  flyout->hide();
}

void WindowWidget::paintEvent(QPaintEvent*) {
  QPainter(this).fillRect(rect(), QColor::fromRgba(palette::kBand));
}

// The logic decides what becomes of a size that the user or the window manager sets.
void WindowWidget::resizeEvent(QResizeEvent* event) {
  LayAll();
  if (!event->spontaneous()) return;
  const Place now{x() * TwipsPerPixel, y() * TwipsPerPixel, width() * TwipsPerPixel,
                  height() * TwipsPerPixel};
  Resize(desk, shown, now, StateOf(*this));
}

void WindowWidget::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (event->spontaneous()) return;
  ComeToScreen();
  if (StateOf(*this) == WindowState::Normal) StandOnScreen();
  connect(windowHandle(), &QWindow::screenChanged, this, &WindowWidget::ComeToScreen,
          Qt::UniqueConnection);
}

void WindowWidget::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange) LayAll();
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) SizeTips(scale.Factor);
}

// 1, or less on a screen that is too small for the window: nothing of it is ever cut off.
double WindowWidget::NormalFactor() const {
  const QSize room = screen()->availableGeometry().size() - kFrame;
  const QSize plan = PlanSize(shown);
  return std::min({1.0, static_cast<double>(room.width()) / plan.width(),
                   static_cast<double>(room.height()) / plan.height()});
}

QSize WindowWidget::NormalSize() const {
  return (QSizeF(PlanSize(shown)) * NormalFactor()).toSize();
}

void WindowWidget::FitTheScreen() {
  const QSize size = NormalSize();
  setMinimumSize(size);
  // Only a window that answers to another size can get one.
  if (!shown.Handles(EventKind::Resize)) setMaximumSize(size);
  if (StateOf(*this) == WindowState::Normal) resize(size);
}

void WindowWidget::ComeToScreen() {
  FitTheScreen();
  LayAll();
}

void WindowWidget::StandOnScreen() {
  const QRect area = screen()->availableGeometry();
  const Place own = shown.Row.At;
  if (WindowDressOf(shown.Name).Centred) {
    move(area.center() - frameGeometry().center() + frameGeometry().topLeft());
  } else if (!stood_) {
    move(area.topLeft() + QPoint(own.Left, own.Top) / TwipsPerPixel);
  }
  stood_ = true;
}

// The logic decides what closing does; its watcher hides the window.
void WindowWidget::closeEvent(QCloseEvent* event) {
  event->ignore();
  CloseWindow(desk, shown);
}

void WindowWidget::keyPressEvent(QKeyEvent* event) {
  if (!AnswerKey(*this, *event)) QWidget::keyPressEvent(event);
}

void WindowWidget::RepaintSoon(QWidget& picture) { skin.RepaintSoon(picture); }

void WindowWidget::PointerOver(Control& control) {
  if (under_pointer_ == &control) return;
  under_pointer_ = &control;
  PointerEnters(desk, control);
}

void WindowWidget::FloatingPanelTurned(Control& panel, bool had_keyboard) {
  Control* from = std::exchange(panel_from_, nullptr);
  if (had_keyboard && from != nullptr && from->IsOpenToUser()) {
    ViewOf(*from)->widget.setFocus(Qt::BacktabFocusReason);
  }
  if (panel.Visible) {
    ViewOf(panel)->widget.raise();
    for (const auto& [control, view] : views_) {
      if (view->widget.hasFocus()) panel_from_ = &view->control;
    }
  }
  SetTabOrder();
}

// The stops in their order; those of a floating panel come right after the control that had the
// keyboard when the panel was opened.
void WindowWidget::SetTabOrder() {
  // Runs while the window is made, too, so it asks this class and no derived one.
  const auto view_of = [this](const Control& control) { return WindowWidget::ViewOf(control); };
  std::vector<Control*> stops, floating;
  for (Control* control : shown.Controls) {
    if (control->Row.TabStop == 0 || view_of(*control) == nullptr) continue;
    const bool floats = control->Parent != nullptr && DressOf(*control->Parent).Floats;
    (floats ? floating : stops).push_back(control);
  }
  const auto by_stop = [](const Control* a, const Control* b) {
    return a->Row.TabStop < b->Row.TabStop;
  };
  std::ranges::sort(stops, by_stop);
  std::ranges::sort(floating, by_stop);
  const auto from = std::ranges::find(stops, panel_from_);
  stops.insert(from == stops.end() ? from : from + 1, floating.begin(), floating.end());
  for (std::size_t i = 1; i < stops.size(); ++i) {
    QWidget::setTabOrder(&view_of(*stops[i - 1])->widget, &view_of(*stops[i])->widget);
  }
  if (focusWidget() == nullptr && !stops.empty()) view_of(*stops.front())->widget.setFocus();
}

}  // namespace orvane
