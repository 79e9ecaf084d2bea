#include "stereo/refresh_tail.h"

#include "stereo/compositions.h"

namespace orvane {

void RefreshTail(Orvane_Desk& desk, Tail tail) {
  if (desk.stereo.StereoOn == 1) ComposeStereoPair(desk);
  if (desk.stereo.EnantiomerOn == 1 && tail != Tail::StereoAndRedGreen) ComposeEnantiomerPair(desk);
  if (desk.stereo.RedGreenOn == 1 && tail != Tail::PairsOnly) ComposeRedGreen(desk);
}

}  // namespace orvane
