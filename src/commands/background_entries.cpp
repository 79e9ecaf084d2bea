#include "commands/background_entries.h"

#include <algorithm>

#include "draw/backgrounds.h"
#include "runtime/number_text.h"
#include "stereo/repaint_all.h"

namespace orvane {
namespace {

constexpr int kRaised = 2, kPressed = 1;

void BevelDoColor(Orvane_Desk& desk, int bevel) {
  Look look = desk.main.Do_color.Style;
  look.Bevel = bevel;
  desk.main.Do_color.Style = look;
}

void SetPlain(Orvane_Desk& desk, Colour colour) {
  desk.main.Picture1.ResetSurface();
  desk.main.Picture1.SetBackColor(colour);
  desk.colours.BackgroundIndex = -1;
  RepaintAll(desk);
}

// One channel as it was typed. Above 255 counts as 255.
int Channel(const TextBox& box) {
  const int value = RoundedInt16(box.Text.Get());
  if (value < 0) FailConversion(box.Text.Get());
  return std::min(value, 255);
}

}  // namespace

void BkGd_Click(Orvane_Desk& desk) { desk.main.P_Clr_Holder.Visible = false; }

void Bk_Cl_Click(Orvane_Desk& desk) { SetPlain(desk, kPalette0); }
void Wt_Cl_Click(Orvane_Desk& desk) { SetPlain(desk, kPalette15); }

void COL_RGB_Click(Orvane_Desk& desk) {
  BevelDoColor(desk, kPressed);
  desk.main.V_RGB_H.Visible = true;
  desk.main.RGB_V[0].SetFocus();
}

void Do_color_Click(Orvane_Desk& desk) {
  BevelDoColor(desk, kRaised);
  desk.main.V_RGB_H.Visible = false;
  desk.main.Picture1.ResetSurface();
  // All three are read before the colour changes.
  const int red = Channel(desk.main.RGB_V[0]);
  const int green = Channel(desk.main.RGB_V[1]);
  const int blue = Channel(desk.main.RGB_V[2]);
  desk.main.Picture1.SetBackColor(Rgb(red, green, blue));
  desk.colours.BackgroundIndex = -1;
  RepaintAll(desk);
}

void RGB_V_KeyDown(Orvane_Desk& desk, const Event& event) {
  if (event.KeyCode == kEnterKey) Do_color_Click(desk);
}

void Bgr_Click(Orvane_Desk& desk, int picture) {
  desk.colours.BackgroundIndex = picture;
  desk.main.Picture1.SetBackColor(kPalette0);
  desk.main.Picture1.ResetSurface(BackgroundPicture(desk.colours, picture), picture);
  desk.molecule.MoleculeReady = 1;
  RepaintAll(desk);
}

}  // namespace orvane
