#include "commands/recording.h"

#include <utility>

#include "commands/export.h"
#include "commands/spin.h"

namespace orvane {

void S_AnGif_Click(Orvane_Desk& desk) {
  desk.recording.GifFrame = 0;
  desk.recording.GifRecording = -1;
  P_Auto_Rotate_Click(desk);
}

void RecordTick(Orvane_Desk& desk, std::function<void()> then) {
  if (desk.recording.GifRecording == 0) return then();
  if (desk.recording.GifFrame >= kRecordingTicks) {
    P_Auto_Rotate_Click(desk);
    desk.recording.GifFrame = 0;
    desk.recording.GifRecording = 0;
    return then();
  }
  const auto count = [&desk, then = std::move(then)] {
    desk.recording.GifFrame += 1;
    then();
  };
  if (desk.recording.GifFrame % 2 != 0) return count();
  SaveGif(desk, desk.main.Timer1, count);
}

}  // namespace orvane
