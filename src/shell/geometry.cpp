#include "shell/geometry.h"

namespace orvane {

void Orvane_Desk_Resize(Orvane_Desk& desk) {
  if (desk.main.State == WindowState::Normal) desk.main.At = desk.main.Row.At;
}

}  // namespace orvane
