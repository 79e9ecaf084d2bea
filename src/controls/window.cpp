#include "controls/window.h"

namespace orvane {

Window::Window(std::span<const ControlRow> table, std::string_view prefix)
    : Control(*this, table.front()),
      MousePointer(*this, kPointerDefault),
      Table(table),
      Prefix(prefix) {}

void Window::Show() {
  WasShown = true;
  Visible = true;
  BringToFront();
}

Control* Window::Find(std::string_view name) const {
  for (Control* control : Controls) {
    if (control->Row.Name == name) return control;
  }
  return nullptr;
}

}  // namespace orvane
