#include "desktop/windows/skin.h"

#include <algorithm>

#include "desk/actions.h"
#include "desktop/reader/accessible_widget.h"
#include "desktop/widgets/control_view.h"
#include "desktop/windows/key_sheet_window.h"
#include "desktop/windows/window_widget.h"

namespace orvane {
namespace {

constexpr int kBeat = 8;  // milliseconds; no screen in a classroom shows more pictures than that

}  // namespace

Skin::Skin(Orvane_Desk& of, QtPlatform& outside) : desk(of), platform(outside) {
  platform.skin = this;
  InstallAccessibleWidgets();
  beat_.setSingleShot(true);
  beat_.setTimerType(Qt::PreciseTimer);
  QObject::connect(&beat_, &QTimer::timeout, &beat_, [this] { RepaintNow(); });
  for (Window* window : desk.windows) {
    window->Watcher = this;
    for (Control* control : window->Controls) {
      if (auto* timer = dynamic_cast<Timer*>(control)) SetTimer(*timer);
    }
  }
}

Skin::~Skin() {
  platform.skin = nullptr;
  for (Window* window : desk.windows) window->Watcher = nullptr;
}

void Skin::Changed(Control& control, Aspect aspect) {
  if (auto* timer = dynamic_cast<Timer*>(&control)) return SetTimer(*timer);
  const bool comes = &control == &control.Owner && aspect == Aspect::Visible && control.Visible;
  if (comes) WindowOf(control.Owner);
  const auto window = windows_.find(&control.Owner);
  if (window != windows_.end()) window->second->Take(control, aspect);
  words_.Soon(control.Owner);
}

void Skin::ShowWindows() {
  for (Window* window : desk.windows) {
    if (window->Visible) Changed(*window, Aspect::Visible);
  }
}

WindowWidget& Skin::WindowOf(Window& window) {
  std::unique_ptr<WindowWidget>& widget = windows_[&window];
  if (widget != nullptr) return *widget;
  widget = std::make_unique<WindowWidget>(*this, window);
  const ControlView* picture = widget->ViewOf(desk.main.Picture1);
  GiveSightItsKey(sight, *widget, picture == nullptr ? *widget : picture->widget);
  return *widget;
}

QWidget* Skin::WidgetOf(const Control& control) {
  ControlView* view = WindowOf(control.Owner).ViewOf(control);
  return view == nullptr ? nullptr : &view->widget;
}

void Skin::ShowKeySheet() {
  if (sheet_ == nullptr) {
    sheet_ = std::make_unique<KeySheetWindow>();
    GiveSightItsKey(sight, *sheet_, *sheet_);
  }
  sheet_->Turn();
}

void Skin::RepaintSoon(QWidget& picture) {
  if (std::find(waiting_.begin(), waiting_.end(), &picture) == waiting_.end())
    waiting_.emplace_back(&picture);
  if (beat_.isActive()) return;
  const qint64 since = since_beat_.isValid() ? since_beat_.elapsed() : kBeat;
  beat_.start(static_cast<int>(std::max<qint64>(0, kBeat - since)));
}

void Skin::RepaintNow() {
  since_beat_.start();
  for (const QPointer<QWidget>& picture : waiting_) {
    if (picture != nullptr) picture->update();
  }
  waiting_.clear();
}

void Skin::SetTimer(Timer& timer) {
  std::unique_ptr<Ticker>& ticker = tickers_[&timer];
  if (ticker == nullptr) ticker = std::make_unique<Ticker>([this, &timer] { TickOf(timer); });
  if (timer.Enabled) {
    ticker->Start(timer.Interval);
  } else {
    ticker->Stop();
  }
}

void Skin::TickOf(Timer& timer) {
  if (platform.BoxIsUp()) return;
  Tick(desk, timer);
}

}  // namespace orvane
