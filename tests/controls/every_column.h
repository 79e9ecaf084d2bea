// A window of made-up controls: each column of a control's row has a value somewhere that no window
// of the program has there.
#pragma once

#include <array>

#include "controls/kinds.h"
#include "controls/scroll_bar.h"
#include "controls/spoken.h"

namespace orvane {

inline constexpr auto kEveryColumn = std::to_array<ControlRow>({
    {.Name = "Made", .Kind = ControlKind::Window, .Caption = "Made up", .At = {0, 0, 3000, 3000}},
    {.Name = "Holder", .Kind = ControlKind::Panel, .At = {150, 300, 2400, 900}},
    {.Name = "Third",
     .Kind = ControlKind::Button,
     .Parent = "Holder",
     .Caption = "&Odd words",
     .At = {75, 90, 1050, 300},
     .Tip = "Do what is odd",
     .TabStop = 3},
    {.Name = "Second",
     .Kind = ControlKind::Button,
     .Caption = "Two",
     .Enabled = false,
     .TabStop = 2},
    {.Name = "Hidden", .Kind = ControlKind::Button, .Caption = "Gone", .Visible = false},
    {.Name = "Bar",
     .Kind = ControlKind::ScrollBar,
     .At = {150, 1500, 1500, 240},
     .Spoken = "An odd bar",
     .TabStop = 1,
     .Range = {-7, 90, 3, 11, 5}},
    {.Name = "Word", .Kind = ControlKind::Panel, .Caption = "Head", .Role = SpokenRole::Heading},
    {.Name = "Flat", .Kind = ControlKind::Panel, .At = {150, 1950, 600, 300}, .Style = {0, 3}},
    {.Name = "Sunk", .Kind = ControlKind::Panel, .At = {150, 2400, 600, 300}, .Style = {1, 4}},
    {.Name = "Clock", .Kind = ControlKind::Timer, .Interval = 37},
});

struct MadeUpWindow : Window {
  MadeUpWindow() : Window(kEveryColumn, "Made.") {}

  Panel Holder{*this, "Holder"};
  Button Third{*this, "Third"}, Second{*this, "Second"}, Hidden{*this, "Hidden"};
  ScrollBar Bar{*this, "Bar"};
  Panel Word{*this, "Word"}, Flat{*this, "Flat"}, Sunk{*this, "Sunk"};
  Timer Clock{*this, "Clock"};
};

}  // namespace orvane
