// GIF files in memory: one picture, or an animation that grows by one frame at a time.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "raster/gif_palette.h"
#include "raster/picture.h"

namespace orvane {

using FileBytes = std::vector<unsigned char>;

inline constexpr int kGifDelay = 10;  // of a frame, in hundredths of a second

FileBytes WriteGif(const Bitmap& picture, const GifPalette& palette);

// An animation that loops for ever, with one frame so far.
FileBytes BeginGifAnimation(const Bitmap& first, const GifPalette& palette);

// The animation with one more frame, which holds only what differs from the frame before it.
// Nothing when the bytes are not a GIF in that palette, or one that is cut short.
std::optional<FileBytes> AppendGifFrame(const FileBytes& animation, const Bitmap& next,
                                        const GifPalette& palette);

// The first frame of a GIF in any palette. Nothing when the bytes are not a GIF or are cut short.
std::optional<Bitmap> FirstFrameOf(std::span<const unsigned char> gif);

}  // namespace orvane
