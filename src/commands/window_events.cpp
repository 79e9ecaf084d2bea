#include "commands/window_events.h"

#include "windows/panels.h"

namespace orvane {

void HidePanels_Click(Orvane_Desk& desk) { HidePanels(desk.main); }

void TopMenu_Click(Orvane_Desk& desk) {
  desk.main.P_Clr_Holder.Visible = false;
  desk.main.P_Dir_Holder.Visible = false;
  desk.main.V_RGB_H.Visible = false;
}

void Picture1_Change(Orvane_Desk& desk) { desk.molecule.MoleculeReady = 1; }

void DropCross(Orvane_Desk& desk) {
  if (desk.main.MousePointer == kPointerCross) desk.main.MousePointer = kPointerDefault;
}

void Orvane_Desk_Resize(Orvane_Desk& desk) {
  if (desk.main.State == WindowState::Normal) desk.main.At = desk.main.Row.At;
}

}  // namespace orvane
