#include "desk/orvane_desk.h"

namespace orvane {

Orvane_Desk::Orvane_Desk(Platform& outside) : platform(outside) {}

Control* Orvane_Desk::FindControl(std::string_view full_name) const {
  for (const Window* window : windows) {
    if (!full_name.starts_with(window->Prefix)) continue;
    if (Control* control = window->Find(full_name.substr(window->Prefix.size()))) return control;
  }
  return nullptr;
}

}  // namespace orvane
