// Writing a picture of what is on the screen. What is written depends on what the screen shows.
#pragma once

#include <string>
#include <string_view>

#include "desk/orvane_desk.h"

namespace orvane {

struct PictureFormat {
  FileFormat Format;
  std::string_view Suffix;
};

// One picture, or with `recording` one more frame of the animation. Only names of one to three
// letters are written; a longer one is refused in silence, with or without a suffix.
void WritePicture(Orvane_Desk& desk, const PictureFormat& format, const std::string& name,
                  bool recording);

}  // namespace orvane
