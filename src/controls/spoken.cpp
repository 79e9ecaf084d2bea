#include "controls/spoken.h"

#include <array>

namespace orvane {
namespace {

struct KindRow {
  ControlKind Kind;
  SpokenRole Role;
};

constexpr auto kKinds = std::to_array<KindRow>({
    {ControlKind::Panel, SpokenRole::Text},
    {ControlKind::Button, SpokenRole::Button},
    {ControlKind::Toggle, SpokenRole::Toggle},
    {ControlKind::List, SpokenRole::List},
    {ControlKind::ScrollBar, SpokenRole::Slider},
    {ControlKind::TextBox, SpokenRole::Entry},
    {ControlKind::PictureBox, SpokenRole::Picture},
    {ControlKind::ImageBox, SpokenRole::Picture},
    {ControlKind::Label, SpokenRole::Text},
    {ControlKind::Link, SpokenRole::Link},
    {ControlKind::Line, SpokenRole::Decoration},
    {ControlKind::Ornament, SpokenRole::Decoration},
    {ControlKind::Timer, SpokenRole::Decoration},
    {ControlKind::MenuEntry, SpokenRole::MenuItem},
    {ControlKind::FileList, SpokenRole::List},
    {ControlKind::Frame, SpokenRole::Group},
    {ControlKind::GoOn, SpokenRole::Button},
    {ControlKind::Window, SpokenRole::Window},
});

// The name of a control that has no words of its own.
std::string_view WordOf(SpokenRole role) {
  return role == SpokenRole::Picture      ? "Picture"
         : role == SpokenRole::Group      ? "Group"
         : role == SpokenRole::Decoration ? "Ornament"
                                          : "Text";
}

}  // namespace

SpokenRole RoleOf(const Control& control) {
  if (control.Row.Role != SpokenRole::ByKind) return control.Row.Role;
  for (const KindRow& row : kKinds) {
    if (row.Kind == control.Row.Kind) return row.Role;
  }
  return SpokenRole::Decoration;
}

std::string SpokenName(const Control& control) {
  const ControlRow& row = control.Row;
  std::string caption = AsSpoken(control.Caption.Get());
  if (row.Caption.empty() && !caption.empty()) return caption;
  if (!row.Spoken.empty()) return std::string(row.Spoken);
  if (!caption.empty()) return caption;
  return std::string(row.Tip.empty() ? WordOf(RoleOf(control)) : row.Tip);
}

bool LooksOn(const Control& control) {
  return control.Row.Kind == ControlKind::Toggle ? CaptionSaysOn(control.Caption.Get())
                                                 : control.Style.Get().Bevel == 1;
}

std::string AsSpoken(std::string_view caption) {
  std::string text;
  bool blank = false, line = false;  // seen since the last letter
  for (const char letter : caption) {
    if (letter == '&') continue;
    if (letter == ' ' || letter == '\n') {
      blank = true;
      line = line || letter == '\n';
      continue;
    }
    if (blank && !text.empty()) text += line ? ", " : " ";
    text += letter;
    blank = line = false;
  }
  return text;
}

}  // namespace orvane
