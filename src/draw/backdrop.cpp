#include "draw/backdrop.h"

namespace orvane {

void ResetToBackground(Orvane_Desk& desk) {
  const int index = desk.colours.BackgroundIndex;
  if (index != -1) {
    desk.main.Picture1.ResetSurface(desk.colours.BakImg.at(static_cast<std::size_t>(index)), index);
  } else {
    desk.main.Picture1.ResetSurface();
  }
}

}  // namespace orvane
