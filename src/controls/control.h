// What a control is: plain state, kept in the logic and shown by a skin.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "controls/event.h"
#include "controls/watched.h"
#include "runtime/colour.h"

namespace orvane {

class Window;
enum class SpokenRole : std::uint8_t;  // controls/spoken.h

enum class ControlKind : std::uint8_t {
  Panel,
  Button,
  Toggle,
  List,
  ScrollBar,
  TextBox,
  PictureBox,
  ImageBox,
  Label,
  Link,
  Line,
  Ornament,
  Timer,
  MenuEntry,
  FileList,
  Frame,
  GoOn,
  Window,
};

// A place in twips, from the top left of the container; 15 twips are a pixel at 100 per cent.
struct Place {
  int Left = 0, Top = 0, Width = 0, Height = 0;
  friend bool operator==(const Place&, const Place&) = default;
};
inline constexpr int TwipsPerPixel = 15;

// The 3-D look of a panel: bevel 0 off, 1 pressed, 2 raised; TextStyle is ink and weight.
struct Look {
  int Bevel = 2, TextStyle = 2;
  friend bool operator==(const Look&, const Look&) = default;
};

// What a scroll bar may be set to, how far its arrows and its track move it, and where it starts.
struct BarRange {
  int Min = 0, Max = 0, SmallStep = 1, LargeStep = 1, Start = 0;
};

// A row of a window's table: what a control is when the window is made. An element of an array has
// its index in its name, "X_Tag(1)".
struct ControlRow {
  std::string_view Name{};
  ControlKind Kind = ControlKind::Panel;
  std::string_view Parent{};   // name of the container; empty: the window itself
  std::string_view Caption{};  // a letter after "&" is a mnemonic
  Place At{};
  Look Style{};
  bool Visible = true;
  bool Enabled = true;
  std::string_view Tip{};     // one clause, verb first: what a click does
  std::string_view Spoken{};  // name for a screen reader where the caption gives none
  SpokenRole Role{};          // what it is to a screen reader where the kind does not say
  int TabStop = 0;            // place in the tab order, from 1; 0 takes no focus
  BarRange Range{};           // of a scroll bar
  int Interval = 0;           // of a timer, milliseconds
};

class Control {
 public:
  // Takes its start values from the row of that name in the window's table.
  Control(Window& window, std::string_view name);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  const ControlRow& Row;
  const std::string Name;  // without the index
  const int Index;         // in its array; 0 outside arrays
  Window& Owner;
  Control* const Parent;  // the container; nullptr: the window itself

  Watched<std::string, Aspect::Caption> Caption;
  Watched<bool, Aspect::Visible> Visible;
  Watched<bool, Aspect::Enabled> Enabled;
  Watched<Look, Aspect::Look> Style;
  Watched<Place, Aspect::Place> At;
  Watched<Colour, Aspect::BackColor> BackColor;

  void SetTop(int twips);
  void BringToFront() { TellWatcher(*this, Aspect::Front); }
  void SetFocus() { TellWatcher(*this, Aspect::Focus); }

  // Handlers are bound once, by the wiring of the desk, and run by Raise.
  void Bind(EventKind kind, std::function<void(const Event&)> handler);
  bool Handles(EventKind kind) const;
  void Raise(Event event);

  // "X_Tag(1)", "Bt3_Reset", "Orvane_Front.Get_in"
  std::string FullName() const;
  // Whether it and every container or menu above it are enabled and visible, in a window that
  // shows.
  bool IsOpenToUser() const;

 protected:
  Control(Window& window, const ControlRow& row);

 private:
  std::vector<std::pair<EventKind, std::function<void(const Event&)>>> handlers_;
};

// A toggle is drawn as pressed while its caption says on. This changes no state.
bool CaptionSaysOn(std::string_view caption);

}  // namespace orvane
