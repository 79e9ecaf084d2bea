#include "desktop/windows/skin.h"

#include <algorithm>
#include <new>
#include <utility>

#include "desk/actions.h"
#include "desktop/reader/accessible_widget.h"
#include "desktop/widgets/control_view.h"
#include "desktop/windows/key_sheet_window.h"
#include "desktop/windows/window_widget.h"
#include "runtime/no_memory.h"

namespace orvane {
namespace {

constexpr int kBeat = 8;  // milliseconds; no classroom screen shows more pictures than that

// Bytes, for a window as large as a screen of 3840 by 2160 and all that stands in it.
constexpr std::size_t kRoomForAWindow = std::size_t{40} * 1024 * 1024;

// The toolkit does not get over it when memory runs out in the midst of its work, so there has to
// be room before a window is begun.
void AskForRoom() { ::operator delete(::operator new(kRoomForAWindow)); }

std::unique_ptr<KeySheetWindow> MadeKeySheet(Sight& sight) {
  AskForRoom();
  auto sheet = std::make_unique<KeySheetWindow>();
  GiveSightItsKey(sight, *sheet, *sheet);
  return sheet;
}

}  // namespace

Skin::Skin(Orvane_Desk& of, QtPlatform& outside) : desk(of), platform(outside) {
  platform.screen = this;
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
  platform.screen = nullptr;
  for (Window* window : desk.windows) window->Watcher = nullptr;
}

void Skin::Changed(Control& control, Aspect aspect) {
  if (auto* timer = dynamic_cast<Timer*>(&control)) return SetTimer(*timer);
  const bool comes = &control == &control.Owner && aspect == Aspect::Visible && control.Visible;
  if (comes) {
    Come(control.Owner);
  } else if (const auto window = windows_.find(&control.Owner); window != windows_.end()) {
    window->second->Take(control, aspect);
    if (&control == &control.Owner && aspect == Aspect::Visible) gone_ = &control.Owner;
  }
  words_.Soon(control.Owner);
}

// One for which there is no memory stays away, and whoever asked for it hears why. Another has
// often gone to make place for it, and comes back: without any window nobody could try again.
void Skin::Come(Window& window) {
  const bool is_new = !windows_.contains(&window);
  Window* const gone = gone_;
  try {
    WindowOf(window).Take(window, Aspect::Visible);
  } catch (...) {
    if (is_new) windows_.erase(&window);
    window.Visible = false;
    const bool one_shows =
        std::ranges::any_of(desk.windows, [](const Window* other) { return other->Visible.Get(); });
    if (!one_shows && gone != nullptr) gone->Show();
    throw;
  }
}

void Skin::ShowWindows() {
  for (Window* window : desk.windows) {
    if (window->Visible) Changed(*window, Aspect::Visible);
  }
}

WindowWidget& Skin::WindowOf(Window& window) {
  const auto known = windows_.find(&window);
  if (known != windows_.end()) return *known->second;
  AskForRoom();
  auto made = std::make_unique<WindowWidget>(*this, window);
  const ControlView* picture = made->ViewOf(desk.main.Picture1);
  GiveSightItsKey(sight, *made, picture == nullptr ? *made : picture->widget);
  return *windows_.emplace(&window, std::move(made)).first->second;
}

Host& Skin::HostOf(Window& window) { return WindowOf(window); }

QWidget* Skin::WidgetOf(const Control& control) {
  ControlView* view = WindowOf(control.Owner).ViewOf(control);
  return view == nullptr ? nullptr : &view->widget;
}

void Skin::ShowKeySheet() {
  try {
    if (sheet_ == nullptr) sheet_ = MadeKeySheet(sight);
  } catch (const std::bad_alloc&) {
    return platform.FailureBox(std::string("The keys could not be shown: ") + kNoMemory + ".");
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
