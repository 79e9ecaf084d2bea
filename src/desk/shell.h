// State of the information windows and of the sound commands.
#pragma once

#include <string>

#include "runtime/int16.h"

namespace orvane {

struct Shell {
  Int16 FromFrontAuthor;  // -1 when Author_frm was opened from Orvane_Front
  Int16 FrontFrame;       // frame of the splash's two animations, 0 to 9
  std::string SoundFile;  // relative path of a stock tune
  std::string SoundPath;  // full path that PlayWave opens
};

}  // namespace orvane
