#include "shell/panels.h"

namespace orvane {

void HidePanels(Orvane_Desk& desk) {
  desk.main.P_Dir_Holder.Visible = false;
  desk.main.V_RGB_H.Visible = false;
  desk.main.P_Clr_Holder.Visible = false;
}

void TopMenu_Click(Orvane_Desk& desk) {
  desk.main.P_Clr_Holder.Visible = false;
  desk.main.P_Dir_Holder.Visible = false;
  desk.main.V_RGB_H.Visible = false;
}

void Picture1_Change(Orvane_Desk& desk) { desk.molecule.MoleculeReady = 1; }

}  // namespace orvane
