#include "shell/wiring.h"

#include "shell/panels.h"

namespace orvane {
namespace {

using enum EventKind;

// By room, and within a room in the order of the window.
// clang-format off
constexpr Wire kWires[] = {
    // shell
    {"Picture1",   Change,  Picture1_Change},
    {"Picture1",   Click,   HidePanels},
    {"Panel3D1",   Click,   HidePanels},
    {"Panel3D2",   Click,   HidePanels},
    {"Panel3D3",   Click,   HidePanels},
    {"Panel3D4",   Click,   HidePanels},
    {"Panel3D5",   Click,   HidePanels},
    {"BMusic",     Click,   HidePanels},
    {"OpTs",       Click,   TopMenu_Click},
    {"DWn",        Click,   TopMenu_Click},
    {"Exp",        Click,   TopMenu_Click},
};
// clang-format on

void BindRow(Orvane_Desk& desk, Control& control, const Wire& wire) {
  control.Bind(wire.Kind, [&desk, handler = wire.Handler](const Event& event) {
    if (const auto* plain = std::get_if<void (*)(Orvane_Desk&)>(&handler)) {
      (*plain)(desk);
    } else {
      std::get<void (*)(Orvane_Desk&, const Event&)>(handler)(desk, event);
    }
  });
}

}  // namespace

std::span<const Wire> Wires() { return kWires; }

void WireControls(Orvane_Desk& desk) {
  for (const Wire& wire : kWires) {
    for (Window* window : desk.windows) {
      if (!wire.Control.starts_with(window->Prefix)) continue;
      const std::string_view name = wire.Control.substr(window->Prefix.size());
      if (name == window->Name) BindRow(desk, *window, wire);
      for (Control* control : window->Controls) {
        if (control->Name == name) BindRow(desk, *control, wire);
      }
    }
  }
}

}  // namespace orvane
