// Reads a GIF back with the library's reader, so that tests can check what was written.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "raster/gif_file.h"
#include "raster/picture.h"

namespace orvane {

struct ReadFrame {
  int Left = 0, Top = 0, Width = 0, Height = 0;
  int Delay = 0;  // hundredths of a second
  Bitmap Screen;  // the whole picture after this frame has been drawn over the others
};

struct ReadGif {
  bool Whole = false;
  int Width = 0, Height = 0;
  std::vector<std::uint32_t> Palette;  // 0xFFRRGGBB
  std::vector<ReadFrame> Frames;
  bool Loops = false;
  int Rounds = -1;  // 0: for ever
};

ReadGif ReadBack(FileBytes bytes);

}  // namespace orvane
