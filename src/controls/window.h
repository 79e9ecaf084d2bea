// A window: a table of controls, its title, its place and whether it shows.
#pragma once

#include <span>

#include "controls/control.h"

namespace orvane {

// Shows the controls: it hears of each change after it was made.
class ControlWatcher {
 public:
  virtual ~ControlWatcher() = default;
  virtual void Changed(Control& control, Aspect aspect) = 0;
};

// The pointer shapes of a window, by number.
inline constexpr int kPointerDefault = 0;
inline constexpr int kPointerCross = 2;
inline constexpr int kPointerHourglass = 11;

enum class WindowState { Normal, Minimised, Maximised };

class Window : public Control {
 public:
  // The first row of the table is the window's own. `prefix` stands before the names of its
  // controls when they are named from outside: empty for the main window, "Content." for another.
  Window(std::span<const ControlRow> table, std::string_view prefix);

  Watched<int, Aspect::Pointer> MousePointer;
  WindowState State = WindowState::Normal;  // as the last resize left it
  bool WasShown = false;                    // at least once, by Show
  const std::span<const ControlRow> Table;
  const std::string Prefix;
  std::vector<Control*> Controls;  // in stacking order, lowest first
  ControlWatcher* Watcher = nullptr;

  void Show();  // shows it in front of the others
  void Hide() { Visible = false; }
  // The control of that name without prefix, "X_Tag(1)"; nullptr when there is none.
  Control* Find(std::string_view name) const;
};

}  // namespace orvane
