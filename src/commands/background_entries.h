// What lies behind the molecule: black, white, a mixed colour or a picture. None of these asks
// whether something on the surface will vanish; only swatches do (commands/colour_panel.h).
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

void BkGd_Click(Orvane_Desk& desk);  // opening the menu closes the colour panel

// Shown in no menu of this version.
void Bk_Cl_Click(Orvane_Desk& desk);
void Wt_Cl_Click(Orvane_Desk& desk);

// "RGB" opens the frame with the three boxes; its button, or Enter in a box, takes the colour. If a
// box holds no number, or a negative one, that fails after the frame is closed and the picture is
// wiped, and the back colour stays as it was.
void COL_RGB_Click(Orvane_Desk& desk);
void Do_color_Click(Orvane_Desk& desk);
void RGB_V_KeyDown(Orvane_Desk& desk, const Event& event);

// "Bgr 1" is picture 0. It makes the desk count a structure as present, as any picture does.
void Bgr_Click(Orvane_Desk& desk, int picture);

}  // namespace orvane
