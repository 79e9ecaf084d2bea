// The frames of the splash's two animations: stroke lists that the program's own painters drew,
// kept in a compact form, so that they are sharp at any size.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "desk/orvane_desk.h"

namespace orvane {

// Pictures as bytes and back. Places are kept to a sixteenth of a pixel, and texts are not kept.
std::string FramesAsBytes(std::span<const std::shared_ptr<const Picture>> frames);
std::vector<std::shared_ptr<const Picture>> FramesFromBytes(std::span<const unsigned char> bytes);

// Gives Pro_Image and DNA_Image their frames, and the first of each to the splash; the pictures of
// the overview are frames of the same two. The window about the program has a frame of its own.
void FillInformationPictures(Orvane_Desk& desk);

}  // namespace orvane
