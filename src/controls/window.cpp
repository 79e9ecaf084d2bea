#include "controls/window.h"

namespace orvane {

Window::Window(std::span<const ControlRow> table, std::string_view prefix)
    : Control(*this, table.front()),
      MousePointer(*this, kPointerDefault),
      Table(table),
      Prefix(prefix) {}

void Window::Show() {
  Visible = true;  // ends here where there is no memory for it
  WasShown = true;
  BringToFront();
}

Control* Window::Find(std::string_view name) const {
  for (Control* control : Controls) {
    if (control->Row.Name == name) return control;
  }
  return nullptr;
}

}  // namespace orvane
