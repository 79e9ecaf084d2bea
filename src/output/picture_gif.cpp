#include "output/picture_gif.h"

#include "draw/elements.h"
#include "windows/swatches.h"

namespace orvane {
namespace {

// The colours of the map's zones and marks.
constexpr std::array kMapInks = {Rgb(254, 143, 149), Rgb(255, 117, 117), Rgb(253, 41, 79),
                                 Rgb(253, 71, 95)};

// Steps through the dark shades of the five background pictures, one after the other. The cube has
// none between black and a fifth of full brightness, and turned them into bright discs and bars.
// clang-format off
constexpr std::array kDarkShades = {
    Rgb(21, 27, 33), Rgb(17, 22, 27), Rgb(13, 17, 21), Rgb(8, 11, 15), Rgb(4, 6, 9),
    Rgb(19, 27, 29), Rgb(11, 19, 21), Rgb(7, 12, 14), Rgb(3, 5, 7),
    Rgb(36, 22, 21), Rgb(32, 20, 19), Rgb(28, 17, 17), Rgb(24, 15, 15), Rgb(20, 12, 13),
    Rgb(17, 10, 11), Rgb(13, 8, 9), Rgb(9, 6, 7), Rgb(5, 3, 5),
    Rgb(10, 29, 25), Rgb(7, 20, 18), Rgb(5, 12, 11), Rgb(2, 6, 6),
    Rgb(15, 21, 50), Rgb(12, 17, 40), Rgb(8, 12, 29), Rgb(5, 7, 18), Rgb(2, 3, 9), Rgb(1, 2, 4)};
// clang-format on

// The cube has six steps of red and of green, and five of blue, which the eye tells apart least;
// greys still have six steps.
consteval GifPalette MakePalette() {
  GifPalette palette;
  palette.Add(kPalette0);
  for (const ElementRow& row : kElements) palette.Add(row.Ink);
  for (const Swatch& swatch : kSwatches) palette.Add(swatch.Face);
  for (const Colour colour : {kPalette3, kPalette7, kPalette14, kPalette15}) palette.Add(colour);
  // Backgrounds of the plot's areas, and of the panel that holds a pair of views.
  for (const Colour colour : {Rgb(249, 137, 121), Rgb(255, 159, 159), Rgb(255, 206, 206),
                              Rgb(34, 48, 59), Rgb(58, 75, 88)}) {
    palette.Add(colour);
  }
  for (const Colour colour : kMapInks) palette.Add(colour);
  for (const Colour colour : kDarkShades) palette.Add(colour);
  for (int step = 0; step < 6 * 6 * 5; ++step) {
    palette.Add(Rgb(step / 30 * 51, step / 5 % 6 * 51, step % 5 * 255 / 4));
  }
  for (int grey = 51; grey < 255; grey += 51) palette.Add(Rgb(grey, grey, grey));
  return palette;
}
constexpr GifPalette kPalette = MakePalette();
static_assert(kPalette.Count <= kGifUnchanged);

}  // namespace

const GifPalette& PicturePalette() { return kPalette; }

FileBytes GifOf(const Bitmap& picture) { return WriteGif(picture, kPalette); }

FileBytes AnimationOf(const Bitmap& first) { return BeginGifAnimation(first, kPalette); }

std::optional<FileBytes> WithOneMoreFrame(const FileBytes& animation, const Bitmap& next) {
  return AppendGifFrame(animation, next, kPalette);
}

}  // namespace orvane
