#include "desktop/windows/picture_keys_map.h"

#include <array>

#include "commands/desk_keys.h"
#include "desktop/widgets/control_view.h"
#include "desktop/windows/skin.h"
#include "desktop/windows/window_widget.h"

namespace orvane {
namespace {

struct NamedKey {
  int Code;
  std::string_view Name;
};
constexpr auto kNames = std::to_array<NamedKey>({
    {Qt::Key_Left, "Left"},
    {Qt::Key_Right, "Right"},
    {Qt::Key_Up, "Up"},
    {Qt::Key_Down, "Down"},
    {Qt::Key_PageUp, "Page Up"},
    {Qt::Key_PageDown, "Page Down"},
    {Qt::Key_Home, "Home"},
    {Qt::Key_End, "End"},
    {Qt::Key_Space, "Space"},
    {Qt::Key_Return, "Enter"},
    {Qt::Key_Enter, "Enter"},
    {Qt::Key_Delete, "Delete"},
    {Qt::Key_Escape, "Escape"},
    {Qt::Key_F1, "F1"},
    {Qt::Key_F6, "F6"},
});

std::string NameOfCode(int code) {
  for (const NamedKey& key : kNames) {
    if (key.Code == code) return std::string(key.Name);
  }
  return code > ' ' && code <= '~' ? std::string(1, static_cast<char>(code)) : std::string();
}

bool IsLetter(int code) { return code >= Qt::Key_A && code <= Qt::Key_Z; }

bool HasKeyboard(WindowWidget& window, const Control& control) {
  const ControlView* view = window.ViewOf(control);
  return view != nullptr && view->widget.hasFocus();
}

bool IsOnPicture(WindowWidget& window) {
  const MainWindow& main = window.skin.desk.main;
  return HasKeyboard(window, main.Picture1) || HasKeyboard(window, main.P_Sterio);
}

bool DoKey(WindowWidget& window, KeyPlace where, const QKeyEvent& event) {
  const DeskKey* key = FindDeskKey(where, KeyNameOf(event));
  if (key == nullptr) return false;
  if (!event.isAutoRepeat() || key->Repeats) key->Do(window.skin.desk);
  return true;
}

// When the pair of views takes the picture's place, or gives it back, the keyboard follows.
void StayOnPicture(WindowWidget& window) {
  const DeskKey* jump = FindDeskKey(KeyPlace::Desk, "F6");
  if (!IsOnPicture(window) && window.isActiveWindow()) jump->Do(window.skin.desk);
}

}  // namespace

// Where a sign is on a keyboard, and whether it needs Shift, differs from country to country. So
// Shift counts only with letters and with keys that have no sign.
std::string KeyNameOf(const QKeyEvent& event) {
  if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return "";
  const std::string name = NameOfCode(event.key());
  const bool is_sign = name.size() == 1 && !IsLetter(event.key());
  const bool shifted = event.modifiers() & Qt::ShiftModifier;
  return shifted && !is_sign && !name.empty() ? "Shift+" + name : name;
}

bool AnswerKey(WindowWidget& window, const QKeyEvent& event) {
  Skin& skin = window.skin;
  if (KeyNameOf(event) == "F1") {
    if (!event.isAutoRepeat()) skin.ShowKeySheet();
    return true;
  }
  if (&window.shown == &skin.desk.plot) return DoKey(window, KeyPlace::Map, event);
  if (&window.shown != &skin.desk.main) return false;
  if (DoKey(window, KeyPlace::Desk, event)) return true;
  if (!IsOnPicture(window)) return false;
  const bool done = DoKey(window, KeyPlace::Picture, event);
  if (done) StayOnPicture(window);
  return done;
}

}  // namespace orvane
