#include "raster/gif_reader.h"

#include <algorithm>
#include <cstring>
#include <gif_lib.h>

namespace orvane {
namespace {

int Give(GifFileType* file, GifByteType* bytes, int count) {
  auto& left = *static_cast<FileBytes*>(file->UserData);
  const int given = std::min(count, static_cast<int>(left.size()));
  std::copy_n(left.begin(), given, bytes);
  left.erase(left.begin(), left.begin() + given);
  return given;
}

void ReadBlocks(const SavedImage& image, ReadGif& gif) {
  for (int i = 0; i + 1 < image.ExtensionBlockCount; ++i) {
    const ExtensionBlock &name = image.ExtensionBlocks[i], &value = image.ExtensionBlocks[i + 1];
    if (name.Function != APPLICATION_EXT_FUNC_CODE || name.ByteCount != 11) continue;
    if (std::memcmp(name.Bytes, "NETSCAPE2.0", 11) != 0 || value.ByteCount != 3) continue;
    gif.Loops = value.Bytes[0] == 1;
    gif.Rounds = value.Bytes[1] + 256 * value.Bytes[2];
  }
}

}  // namespace

ReadGif ReadBack(FileBytes bytes) {
  ReadGif read;
  GifFileType* gif = DGifOpen(&bytes, Give, nullptr);
  if (gif == nullptr) return read;
  read.Whole = DGifSlurp(gif) == GIF_OK;
  read.Width = gif->SWidth;
  read.Height = gif->SHeight;
  for (int i = 0; gif->SColorMap != nullptr && i < gif->SColorMap->ColorCount; ++i) {
    const GifColorType& c = gif->SColorMap->Colors[i];
    read.Palette.push_back(0xFF000000u | static_cast<std::uint32_t>(c.Red) << 16 |
                           static_cast<std::uint32_t>(c.Green) << 8 | c.Blue);
  }
  Bitmap screen{read.Width, read.Height, std::vector<std::uint32_t>(read.Width * read.Height)};
  for (int n = 0; n < gif->ImageCount; ++n) {
    const SavedImage& image = gif->SavedImages[n];
    const GifImageDesc& at = image.ImageDesc;
    ReadBlocks(image, read);
    GraphicsControlBlock control{0, false, 0, NO_TRANSPARENT_COLOR};
    DGifSavedExtensionToGCB(gif, n, &control);
    for (int i = 0; i < at.Width * at.Height; ++i) {
      const int index = image.RasterBits[i];
      if (index == control.TransparentColor) continue;
      screen.Words[(at.Top + i / at.Width) * read.Width + at.Left + i % at.Width] =
          read.Palette[index];
    }
    read.Frames.push_back({at.Left, at.Top, at.Width, at.Height, control.DelayTime, screen});
  }
  DGifCloseFile(gif, nullptr);
  return read;
}

}  // namespace orvane
