// The three pictures of the map: zones of allowed torsions and the marks of known conformations.
#pragma once

#include <memory>

#include "desk/orvane_desk.h"

namespace orvane {

// Picture `index`, 0 to 2, 140 by 140 pixels; made when it is first asked for.
std::shared_ptr<const Bitmap> MapPicture(Orvane_Desk& desk, int index);

}  // namespace orvane
