#include "commands/bars.h"

#include "stereo/refresh_tail.h"
#include "view/transform.h"
#include "windows/panels.h"

namespace orvane {
namespace {

void ChangeBy(Orvane_Desk& desk, void (*step)(Orvane_Desk&)) {
  HidePanels(desk.main);
  if (desk.molecule.MoleculeReady != 1) return desk.platform.Beep();
  step(desk);
  RefreshTail(desk);
}

}  // namespace

void ZoomBar_Scroll(Orvane_Desk& desk) {
  desk.view.ZoomNow = -desk.main.ZoomBar.Value;
  ZoomAll(desk);
}

void VScroll1_Scroll(Orvane_Desk& desk) {
  desk.view.SpinNow = -desk.main.VScroll1.Value;
  SpinStep(desk);
}

void X_TRANS_Scroll(Orvane_Desk& desk) { ShiftAllX(desk); }
void Y_TRANS_Scroll(Orvane_Desk& desk) { ShiftAllY(desk); }

void ZoomBar_Change(Orvane_Desk& desk) { ChangeBy(desk, ZoomBar_Scroll); }
void VScroll1_Change(Orvane_Desk& desk) { ChangeBy(desk, VScroll1_Scroll); }
void X_TRANS_Change(Orvane_Desk& desk) { ChangeBy(desk, X_TRANS_Scroll); }
void Y_TRANS_Change(Orvane_Desk& desk) { ChangeBy(desk, Y_TRANS_Scroll); }

}  // namespace orvane
