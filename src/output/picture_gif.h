// The program's GIF files: one fixed palette, so that all frames of a recording share it and a
// colour that the program draws with is the same in the file.
#pragma once

#include <optional>

#include "raster/gif_file.h"

namespace orvane {

// The colours of pens, swatches and plot, then a cube through the spectrum.
const GifPalette& PicturePalette();

FileBytes GifOf(const Bitmap& picture);

// An animation that loops for ever, with one frame so far.
FileBytes AnimationOf(const Bitmap& first);

// The animation with one more frame. Nothing when the bytes are not a GIF in our palette, or one
// that is cut short.
std::optional<FileBytes> WithOneMoreFrame(const FileBytes& animation, const Bitmap& next);

}  // namespace orvane
