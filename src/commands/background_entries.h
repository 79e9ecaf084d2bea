// What lies behind the molecule: black, white, a mixed colour or a picture. None of these asks
// whether something on the surface will vanish; only swatches do (draw/colours.h).
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

void BkGd_Click(Orvane_Desk& desk);  // opening the menu closes the colour panel

// Shown in no menu of this version.
void Bk_Cl_Click(Orvane_Desk& desk);
void Wt_Cl_Click(Orvane_Desk& desk);

// "RGB" opens the frame with the three boxes; its button, or Enter in a box, takes the colour. A
// box that holds no number, or a negative one, ends that in a failure when the frame is closed and
// the picture wiped, with the back colour as it was.
void COL_RGB_Click(Orvane_Desk& desk);
void Do_color_Click(Orvane_Desk& desk);
void RGB_V_KeyDown(Orvane_Desk& desk, const Event& event);

// "Bgr 1" is picture 0. Counts as a structure being there, as any picture does.
void Bgr_Click(Orvane_Desk& desk, int picture);

}  // namespace orvane
