#include "view/spin.h"

namespace orvane {

void StartSpin(Orvane_Desk& desk) {
  desk.main.Timer1.Enabled = true;
  desk.view.AutoRotateOn = 1;
  desk.main.P_Auto_Rotate.Style = kSpinOnLook;
}

void StopSpin(Orvane_Desk& desk) {
  desk.main.Timer1.Enabled = false;
  desk.view.AutoRotateOn = 0;
  desk.main.P_Auto_Rotate.Style = kSpinOffLook;
}

}  // namespace orvane
