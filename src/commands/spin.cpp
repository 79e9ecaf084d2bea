#include "commands/spin.h"

#include "commands/recording.h"
#include "desk/actions.h"
#include "stereo/refresh_tail.h"
#include "view/spin.h"
#include "view/transform.h"
#include "windows/panels.h"

namespace orvane {

void P_Auto_Rotate_Click(Orvane_Desk& desk) {
  HidePanels(desk.main);
  if (desk.molecule.MoleculeReady != 1) return desk.platform.Beep();
  if (desk.view.AutoRotateOn == 1) return StopSpin(desk);

  StartSpin(desk);
  // The change event gives SpinNow a value; otherwise a recording would spin by 0 degrees.
  if (desk.main.VScroll1.Value == 1 && desk.recording.GifRecording != 0) {
    desk.main.VScroll1.SetValue(2);
  }
}

void Rt_speed_Change(Orvane_Desk& desk) { desk.main.Timer1.Interval = desk.main.Rt_speed.Value; }

void Timer1_Tick(Orvane_Desk& desk) {
  desk.platform.LetEventsRun();
  if (desk.view.AutoRotateOn != 1) return;
  if (IsAsking(desk)) return;  // a tick inside this one has asked for the recording's name
  RecordTick(desk, [&desk] {
    SpinStep(desk);
    RefreshTail(desk);
  });
}

void Timer1_Failed(Orvane_Desk& desk) { StopSpin(desk); }

}  // namespace orvane
