// GIF files in memory: one picture, or an animation that grows by a frame at a time.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "draw/picture.h"

namespace orvane {

using FileBytes = std::vector<unsigned char>;

inline constexpr int kGifDelay = 10;  // of a frame, in hundredths of a second

FileBytes GifOf(const Bitmap& picture);

// An animation that loops for ever, so far of one frame.
FileBytes AnimationOf(const Bitmap& first);

// The animation and one frame more, which holds only what differs from the frame before it. Nothing
// when the bytes are no GIF in our palette, or one that is cut short.
std::optional<FileBytes> WithOneMoreFrame(const FileBytes& animation, const Bitmap& next);

// The first frame of a GIF in any palette. Nothing when the bytes are no GIF, or one cut short.
std::optional<Bitmap> FirstFrameOf(std::span<const unsigned char> gif);

}  // namespace orvane
