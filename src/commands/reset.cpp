#include "commands/reset.h"

#include "stereo/reset_view.h"
#include "view/spin.h"

namespace orvane {

void Bt3_Reset_Click(Orvane_Desk& desk) {
  if (desk.molecule.MoleculeReady != 1) return desk.platform.Beep();
  View& view = desk.view;
  view.ZoomNow = 0;
  view.ZoomFactor = 1.0;
  view.SpinNow = 0;
  view.PanX = 0;
  view.PanY = 0;
  view.SurfOffX = 0;
  view.SurfOffY = 0;
  desk.drawing.BallSize = 3;
  desk.drawing.BondWidth = 1;
  desk.drawing.PlaneWidth = 1;
  view.AutoRotateOn = 0;
  desk.main.P_Auto_Rotate.Style = kSpinOffLook;
  desk.main.Rt_speed.SetValue(200);
  desk.main.Timer1.Interval = desk.main.Rt_speed.Value;
  desk.main.Picture1.SetBackColor(kPalette0);
  desk.main.Picture1.ResetSurface();
  ResetView(desk);
}

}  // namespace orvane
