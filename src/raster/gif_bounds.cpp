#include "raster/gif_bounds.h"

namespace orvane {
namespace {

constexpr std::size_t kHeader = 13, kFrameHeader = 10;  // bytes
constexpr unsigned char kExtension = 0x21, kFrame = 0x2C, kEnd = 0x3B;

// Goes through a file from its start; whatever lies past the end is 0.
struct Walk {
  std::span<const unsigned char> Bytes;
  std::size_t At = 0;

  unsigned Byte(std::size_t ahead) const {
    return At + ahead < Bytes.size() ? Bytes[At + ahead] : 0U;
  }
  long Word(std::size_t ahead) const { return Byte(ahead) | Byte(ahead + 1) << 8; }
  bool IsOver() const { return At >= Bytes.size(); }

  // The colours that follow a header with those flags.
  void SkipColours(unsigned flags) {
    if ((flags & 0x80U) != 0) At += std::size_t{3} << ((flags & 7U) + 1);
  }
  // Each part begins with its length; an empty one is the last.
  void SkipParts() {
    while (!IsOver() && Byte(0) != 0) At += Byte(0) + 1;
    ++At;
  }
};

}  // namespace

bool IsWithinBounds(std::span<const unsigned char> gif) {
  Walk walk{gif};
  const long width = walk.Word(6), height = walk.Word(8);
  if (width * height > kMostScreenPixels) return false;
  const unsigned screen_flags = walk.Byte(10);
  walk.At = kHeader;
  walk.SkipColours(screen_flags);
  for (long pixels = 0; !walk.IsOver();) {
    switch (walk.Byte(0)) {
      case kEnd:
        return true;
      case kExtension:
        walk.At += 2;
        walk.SkipParts();
        break;
      case kFrame: {
        const long frame_width = walk.Word(5), frame_height = walk.Word(7);
        pixels += frame_width * frame_height;
        if (walk.Word(1) + frame_width > width || walk.Word(3) + frame_height > height)
          return false;
        if (pixels > kMostFramePixels) return false;
        const unsigned flags = walk.Byte(9);
        walk.At += kFrameHeader;
        walk.SkipColours(flags);
        ++walk.At;  // the width of the first codes
        walk.SkipParts();
        break;
      }
      default:
        return false;
    }
  }
  return false;
}

}  // namespace orvane
