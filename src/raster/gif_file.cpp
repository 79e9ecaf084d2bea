#include "raster/gif_file.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <gif_lib.h>
#include <memory>
#include <new>
#include <utility>

#include "raster/gif_bounds.h"
#include "runtime/no_memory.h"

namespace orvane {
namespace {

// Palette indices, row by row from the top left.
struct Indices {
  int Width = 0, Height = 0;
  std::vector<GifByteType> At;

  GifByteType* Row(int y) { return At.data() + static_cast<std::ptrdiff_t>(y) * Width; }
  const GifByteType* Row(int y) const { return At.data() + static_cast<std::ptrdiff_t>(y) * Width; }
};

struct Box {
  int Left = 0, Top = 0, Width = 0, Height = 0;
};

Indices Blank(int width, int height, GifByteType index) {
  return {width, height,
          std::vector<GifByteType>(
              static_cast<std::size_t>(width) * static_cast<std::size_t>(height), index)};
}

// Most pixels have the colour of the one before, so it need not be looked up again.
Indices IndicesOf(const Bitmap& picture, const GifPalette& palette) {
  GifColours colours(palette);
  Indices indices = Blank(picture.Width, picture.Height, 0);
  std::uint32_t last = 0;  // not an opaque colour
  GifByteType index = 0;
  std::transform(picture.Words.begin(), picture.Words.end(), indices.At.begin(),
                 [&](std::uint32_t word) {
                   const std::uint32_t opaque = word | 0xFF000000u;
                   if (opaque != last) index = colours.IndexOf(last = opaque);
                   return index;
                 });
  return indices;
}

// The same enlarged, with the new part filled with that index.
Indices Grown(const Indices& indices, int width, int height, GifByteType index) {
  Indices grown = Blank(width, height, index);
  for (int y = 0; y < indices.Height; ++y) {
    std::copy_n(indices.Row(y), indices.Width, grown.Row(y));
  }
  return grown;
}

struct Target {
  FileBytes Bytes;
  bool IsWhole = true;
};

// The library is written in C, so nothing may be thrown through it; and it does not check every
// answer.
int AppendTo(GifFileType* file, const GifByteType* bytes, int count) {
  auto& target = *static_cast<Target*>(file->UserData);
  try {
    target.Bytes.insert(target.Bytes.end(), bytes, bytes + count);
  } catch (const std::bad_alloc&) {
    target.IsWhole = false;
  }
  return target.IsWhole ? count : 0;
}

// What the library made or did. As all is in memory, it fails only when there is no more of it.
template <class T>
T* Made(T* thing) {
  if (thing == nullptr) FailMemory();
  return thing;
}
void Done(int result) {
  if (result != GIF_OK) FailMemory();
}

// The frames of a file that is not open.
struct Frames {
  GifFileType Gif{};

  Frames() = default;
  Frames(const Frames&) = delete;
  Frames& operator=(const Frames&) = delete;
  ~Frames() { GifFreeSavedImages(&Gif); }
};

struct Source {
  std::span<const unsigned char> Bytes;
  std::size_t Next = 0;
};

int ReadFrom(GifFileType* file, GifByteType* bytes, int count) {
  auto& source = *static_cast<Source*>(file->UserData);
  const std::size_t left = source.Bytes.size() - source.Next;
  const std::size_t given = std::min(left, static_cast<std::size_t>(count));
  std::memcpy(bytes, source.Bytes.data() + source.Next, given);
  source.Next += given;
  return static_cast<int>(given);
}

struct CloseReading {
  void operator()(GifFileType* file) const { DGifCloseFile(file, nullptr); }
};
struct CloseWriting {
  void operator()(GifFileType* file) const { EGifCloseFile(file, nullptr); }
};
struct FreeMap {
  void operator()(ColorMapObject* map) const { GifFreeMapObject(map); }
};
using ReadGif = std::unique_ptr<GifFileType, CloseReading>;

// nullptr: not a GIF, or one that is cut short, or one that claims to be larger than any screen.
ReadGif Read(Source& source) {
  if (!IsWithinBounds(source.Bytes)) return nullptr;
  ReadGif gif(DGifOpen(&source, ReadFrom, nullptr));
  if (gif != nullptr && DGifSlurp(gif.get()) != GIF_OK) gif.reset();
  return gif;
}

// The frames and blocks of `gif` on a screen of that size.
FileBytes Written(const GifFileType& gif, const GifPalette& palette, int width, int height) {
  Target target;
  std::array<GifColorType, 256> colours{};
  for (std::size_t i = 0; i < colours.size(); ++i) {
    const std::uint32_t word = palette.Words[i];
    colours[i] = {static_cast<GifByteType>(word >> 16), static_cast<GifByteType>(word >> 8),
                  static_cast<GifByteType>(word)};
  }
  std::unique_ptr<GifFileType, CloseWriting> file(Made(EGifOpen(&target, AppendTo, nullptr)));
  file->SWidth = width;
  file->SHeight = height;
  file->SColorResolution = 8;
  const std::unique_ptr<ColorMapObject, FreeMap> map(
      Made(GifMakeMapObject(static_cast<int>(colours.size()), colours.data())));
  file->SColorMap = map.get();          // lent: writing puts a copy in its place,
  file->SavedImages = gif.SavedImages;  // and neither changes nor frees these
  file->ImageCount = gif.ImageCount;
  const int result = EGifSpew(file.get());
  if (result == GIF_OK) {
    static_cast<void>(file.release());  // a complete write has closed it
  } else if (file->SColorMap == map.get()) {
    file->SColorMap = nullptr;
  }
  Done(result);
  if (!target.IsWhole) FailMemory();
  return std::move(target.Bytes);
}

void AddLooping(SavedImage& first) {
  GifByteType name[] = "NETSCAPE2.0";
  GifByteType for_ever[] = {1, 0, 0};
  Done(GifAddExtensionBlock(&first.ExtensionBlockCount, &first.ExtensionBlocks,
                            APPLICATION_EXT_FUNC_CODE, sizeof name - 1, name));
  Done(GifAddExtensionBlock(&first.ExtensionBlockCount, &first.ExtensionBlocks,
                            CONTINUE_EXT_FUNC_CODE, sizeof for_ever, for_ever));
}

void AddDelay(SavedImage& frame, int transparent) {
  const GraphicsControlBlock control{.DisposalMode = DISPOSE_DO_NOT,
                                     .UserInputFlag = false,
                                     .DelayTime = kGifDelay,
                                     .TransparentColor = transparent};
  GifByteType packed[4];
  EGifGCBToExtension(&control, packed);
  Done(GifAddExtensionBlock(&frame.ExtensionBlockCount, &frame.ExtensionBlocks,
                            GRAPHICS_EXT_FUNC_CODE, sizeof packed, packed));
}

SavedImage& AddImage(GifFileType& gif, const Indices& pixels, const Box& box) {
  SavedImage& image = *Made(GifMakeSavedImage(&gif, nullptr));
  image.ImageDesc = {box.Left, box.Top, box.Width, box.Height, false, nullptr};
  const std::size_t count =
      static_cast<std::size_t>(box.Width) * static_cast<std::size_t>(box.Height);
  // The library frees it.
  image.RasterBits = Made(static_cast<GifByteType*>(std::malloc(count)));
  for (int y = 0; y < box.Height; ++y) {
    std::copy_n(pixels.Row(box.Top + y) + box.Left, box.Width,
                image.RasterBits + static_cast<std::ptrdiff_t>(y) * box.Width);
  }
  return image;
}

FileBytes FirstOf(const Bitmap& picture, const GifPalette& palette, bool animated) {
  Frames frames;
  SavedImage& image =
      AddImage(frames.Gif, IndicesOf(picture, palette), {0, 0, picture.Width, picture.Height});
  if (animated) {
    AddLooping(image);
    AddDelay(image, NO_TRANSPARENT_COLOR);
  }
  return Written(frames.Gif, palette, picture.Width, picture.Height);
}

bool HasPalette(const GifFileType& gif, const GifPalette& palette) {
  const ColorMapObject* map = gif.SColorMap;
  if (map == nullptr || map->ColorCount != 256) return false;
  for (std::size_t i = 0; i < 256; ++i) {
    const GifColorType& colour = map->Colors[i];
    if ((palette.Words[i] & 0xFFFFFFu) !=
        static_cast<std::uint32_t>(colour.Red << 16 | colour.Green << 8 | colour.Blue)) {
      return false;
    }
  }
  return true;
}

// Each frame is as we write it, in the file's palette. That it lies within the screen is checked in
// IsWithinBounds.
bool FramesAreOurs(const GifFileType& gif) {
  return std::all_of(gif.SavedImages, gif.SavedImages + gif.ImageCount,
                     [](const SavedImage& i) { return i.ImageDesc.ColorMap == nullptr; });
}

// What is on the screen when all frames have been drawn.
Indices LastScreen(const GifFileType& gif) {
  Indices screen = Blank(gif.SWidth, gif.SHeight, kGifUnchanged);
  for (int n = 0; n < gif.ImageCount; ++n) {
    const SavedImage& image = gif.SavedImages[n];
    const GifImageDesc& at = image.ImageDesc;
    for (int y = 0; y < at.Height; ++y) {
      const GifByteType* from = image.RasterBits + static_cast<std::ptrdiff_t>(y) * at.Width;
      GifByteType* to = screen.Row(at.Top + y) + at.Left;
      std::transform(from, from + at.Width, to, to, [](GifByteType drawn, GifByteType under) {
        return drawn == kGifUnchanged ? under : drawn;
      });
    }
  }
  return screen;
}

// The smallest box around what changes; one pixel when nothing does.
Box ChangedBox(const Indices& frame) {
  int left = frame.Width, right = -1, top = frame.Height, bottom = -1;
  for (int y = 0; y < frame.Height; ++y) {
    const GifByteType* row = frame.Row(y);
    const GifByteType* end = row + frame.Width;
    const auto changed = [](GifByteType index) { return index != kGifUnchanged; };
    const GifByteType* first = std::find_if(row, end, changed);
    if (first == end) continue;
    left = std::min(left, static_cast<int>(first - row));
    while (!changed(end[-1])) --end;
    right = std::max(right, static_cast<int>(end - row) - 1);
    top = std::min(top, y);
    bottom = y;
  }
  if (right < 0) return {0, 0, 1, 1};
  return {left, top, right - left + 1, bottom - top + 1};
}

}  // namespace

FileBytes WriteGif(const Bitmap& picture, const GifPalette& palette) {
  return FirstOf(picture, palette, false);
}

FileBytes BeginGifAnimation(const Bitmap& first, const GifPalette& palette) {
  return FirstOf(first, palette, true);
}

std::optional<FileBytes> AppendGifFrame(const FileBytes& animation, const Bitmap& next,
                                        const GifPalette& palette) {
  Source source{animation};
  const ReadGif gif = Read(source);
  if (gif == nullptr || gif->ImageCount == 0) return std::nullopt;
  if (!HasPalette(*gif, palette) || !FramesAreOurs(*gif)) return std::nullopt;

  // The picture on the screen may have changed its size meanwhile. The file's screen grows with it;
  // around a smaller picture it is black.
  const int width = std::max(gif->SWidth, next.Width), height = std::max(gif->SHeight, next.Height);
  const Indices before = Grown(LastScreen(*gif), width, height, kGifUnchanged);
  Indices frame = Grown(IndicesOf(next, palette), width, height, 0);
  std::transform(
      frame.At.begin(), frame.At.end(), before.At.begin(), frame.At.begin(),
      [](GifByteType now, GifByteType then) { return now == then ? kGifUnchanged : now; });
  AddDelay(AddImage(*gif, frame, ChangedBox(frame)), kGifUnchanged);
  return Written(*gif, palette, width, height);
}

std::optional<Bitmap> FirstFrameOf(std::span<const unsigned char> bytes) {
  Source source{bytes};
  const ReadGif gif = Read(source);
  if (gif == nullptr || gif->ImageCount == 0) return std::nullopt;
  const SavedImage& frame = gif->SavedImages[0];
  const GifImageDesc& at = frame.ImageDesc;
  const ColorMapObject* map = at.ColorMap != nullptr ? at.ColorMap : gif->SColorMap;
  if (map == nullptr) return std::nullopt;
  Bitmap picture{at.Width, at.Height, {}};
  picture.Words.reserve(static_cast<std::size_t>(at.Width) * static_cast<std::size_t>(at.Height));
  for (int i = 0; i < at.Width * at.Height; ++i) {
    const int index = frame.RasterBits[i];
    if (index >= map->ColorCount) return std::nullopt;
    const GifColorType& colour = map->Colors[index];
    picture.Words.push_back(0xFF000000U | std::uint32_t{colour.Red} << 16 |
                            std::uint32_t{colour.Green} << 8 | colour.Blue);
  }
  return picture;
}

}  // namespace orvane
