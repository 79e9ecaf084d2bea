#include "shell/pointer_shape.h"

namespace orvane {

void DropCross(Orvane_Desk& desk) {
  if (desk.main.MousePointer == kPointerCross) desk.main.MousePointer = kPointerDefault;
}

}  // namespace orvane
