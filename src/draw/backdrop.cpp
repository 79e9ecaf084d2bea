#include "draw/backdrop.h"

#include "draw/backgrounds.h"

namespace orvane {

void ResetToBackground(Orvane_Desk& desk) {
  const int index = desk.colours.BackgroundIndex;
  if (index != -1) {
    desk.main.Picture1.ResetSurface(BackgroundPicture(desk.colours, index), index);
  } else {
    desk.main.Picture1.ResetSurface();
  }
}

}  // namespace orvane
