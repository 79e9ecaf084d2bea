// The animated recording.
#pragma once

#include <string>

#include "runtime/int16.h"

namespace orvane {

struct Recording {
  Int16 GifRecording;       // nonzero (-1) while recording
  Int16 GifFrame;           // ticks of the recording so far, 0 to 35
  std::string GifBaseName;  // asked for at frame 0, reused for all later frames
};

}  // namespace orvane
