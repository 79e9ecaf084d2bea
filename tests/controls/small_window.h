// A window with a few controls, for tests of what every control does.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "controls/kinds.h"
#include "controls/scroll_bar.h"

namespace orvane {

inline constexpr auto kSmallTable = std::to_array<ControlRow>({
    {.Name = "Small", .Kind = ControlKind::Window, .Caption = "A small window"},
    {.Name = "Top", .Kind = ControlKind::MenuEntry, .Caption = "&Top"},
    {.Name = "Sub", .Kind = ControlKind::MenuEntry, .Parent = "Top", .Caption = "&Sub"},
    {.Name = "Leaf", .Kind = ControlKind::MenuEntry, .Parent = "Sub", .Caption = "&Leaf"},
    {.Name = "Frame", .Kind = ControlKind::Panel, .At = {15, 30, 45, 60}},
    {.Name = "Key", .Kind = ControlKind::Button, .Parent = "Frame", .Caption = "Key"},
    {.Name = "Bar", .Kind = ControlKind::ScrollBar, .Range = {-80, 80, 5, 10, 0}},
    {.Name = "Rows", .Kind = ControlKind::List},
    {.Name = "Image", .Kind = ControlKind::ImageBox},
    {.Name = "Field", .Kind = ControlKind::TextBox, .Caption = "0"},
    {.Name = "Tag(0)", .Kind = ControlKind::Panel, .Caption = "X"},
    {.Name = "Tag(1)", .Kind = ControlKind::Panel, .Caption = "Y"},
});

struct SmallWindow : Window {
  SmallWindow() : Window(kSmallTable, "Small.") {}

  MenuEntry Top{*this, "Top"}, Sub{*this, "Sub"}, Leaf{*this, "Leaf"};
  Panel Frame{*this, "Frame"};
  Button Key{*this, "Key"};
  ScrollBar Bar{*this, "Bar"};
  List Rows{*this, "Rows"};
  ImageBox Image{*this, "Image"};
  TextBox Field{*this, "Field"};
  ControlArray<Panel, 2> Tag{*this, "Tag"};
};

// Keeps what it is told ("Bar value"), and what the control says at that moment where it matters.
class Listener : public ControlWatcher {
 public:
  std::vector<std::string> Heard;

  void Changed(Control& control, Aspect aspect) override {
    Heard.push_back(control.FullName() + " " + Word(control, aspect));
  }

 private:
  static std::string Word(Control& control, Aspect aspect) {
    switch (aspect) {
      case Aspect::Caption:
        return "caption " + control.Caption.Get();
      case Aspect::Visible:
        return control.Visible ? "shown" : "hidden";
      case Aspect::Enabled:
        return control.Enabled ? "enabled" : "disabled";
      case Aspect::Place:
        return "place";
      case Aspect::Value:
        return "value";
      case Aspect::Picture:
        return "picture";
      case Aspect::Front:
        return "front";
      case Aspect::Focus:
        return "focus";
      default:
        return "other";
    }
  }
};

}  // namespace orvane
