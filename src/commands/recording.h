// The animated recording uses the spin: every second tick of the timer writes one frame.
#pragma once

#include <functional>

#include "desk/orvane_desk.h"

namespace orvane {

inline constexpr int kRecordingTicks = 35;  // 18 frames, at ticks 0, 2, ... 34

// Starts a recording and clicks P_Auto_Rotate. If the spin was already on, that click stops it.
void S_AnGif_Click(Orvane_Desk& desk);

// The recording's part of a tick: a frame on even ticks, the end at the last. Then goes on with
// `then`, the rest of the tick: frame 0 asks for a name, and shows the structure as it stood.
void RecordTick(Orvane_Desk& desk, std::function<void()> then);

}  // namespace orvane
