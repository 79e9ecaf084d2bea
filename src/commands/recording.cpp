#include "commands/recording.h"

#include "commands/export.h"
#include "commands/spin.h"

namespace orvane {

void S_AnGif_Click(Orvane_Desk& desk) {
  desk.recording.GifFrame = 0;
  desk.recording.GifRecording = -1;
  P_Auto_Rotate_Click(desk);
}

void RecordTick(Orvane_Desk& desk) {
  if (desk.recording.GifRecording == 0) return;
  if (desk.recording.GifFrame >= kRecordingTicks) {
    P_Auto_Rotate_Click(desk);
    desk.recording.GifFrame = 0;
    desk.recording.GifRecording = 0;
    return;
  }
  if (desk.recording.GifFrame % 2 == 0) S_Gif_Click(desk);
  desk.recording.GifFrame += 1;
}

}  // namespace orvane
