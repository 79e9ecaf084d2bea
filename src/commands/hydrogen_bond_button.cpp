#include "commands/hydrogen_bond_button.h"

#include "draw/redraw_chain.h"
#include "stereo/refresh_tail.h"
#include "windows/panels.h"

namespace orvane {

void Bt3_HBD_Click(Orvane_Desk& desk) {
  HidePanels(desk.main);
  if (desk.molecule.MoleculeReady != 1) return desk.platform.Beep();
  if (desk.drawing.HBondShown == 0) {
    desk.drawing.HBondShown = 1;
    desk.main.Bt3_HBD.Caption = "H-bond On";
  } else {
    desk.drawing.HBondShown = 0;
    desk.main.Bt3_HBD.Caption = "H-bond Off";
  }
  RepaintPasses(desk);
  RefreshTail(desk);
}

}  // namespace orvane
