// GIF files, read back by the library's own reader.
#include "output/picture_gif.h"

#include <gtest/gtest.h>
#include <set>

#include "desk_fixture.h"
#include "draw/backgrounds.h"
#include "draw/elements.h"
#include "raster/canvas.h"
#include "raster/gif_reader.h"
#include "raster/raster.h"
#include "shell/start_up.h"
#include "windows/swatches.h"

namespace orvane {
namespace {

Bitmap Plain(int width, int height, Colour colour) {
  return {width, height, std::vector<std::uint32_t>(width * height, WordOf(colour))};
}

// One picture of every colour of the palette except the last, which is not a colour: 17 by 15
// pixels.
Bitmap EveryColour() {
  Bitmap picture = Plain(17, 15, kPalette0);
  std::copy_n(PicturePalette().Words.begin(), 255, picture.Words.begin());
  return picture;
}

TEST(GifPalette, HoldsEveryColourOfPensAndSwatchesExactly) {
  std::set<Colour> colours{kPalette0, kPalette3, kPalette7, kPalette14, kPalette15};
  for (const ElementRow& row : kElements) colours.insert(row.Ink);
  for (const Swatch& swatch : kSwatches) colours.insert(swatch.Face);
  GifColours map(PicturePalette());
  for (const Colour colour : colours) {
    EXPECT_EQ(PicturePalette().Words[map.IndexOf(WordOf(colour))], WordOf(colour))
        << std::hex << colour;
  }
}

TEST(GifPalette, GoesThroughTheSpectrumInStepsOfAFifthAndOfAQuarterInBlue) {
  GifColours map(PicturePalette());
  for (int red = 0; red < 256; red += 51) {
    for (int green = 0; green < 256; green += 51) {
      for (const int blue : {0, 63, 127, 191, 255}) {
        const std::uint32_t word = WordOf(Rgb(red, green, blue));
        EXPECT_EQ(PicturePalette().Words[map.IndexOf(word)], word);
      }
    }
  }
}

TEST(GifPalette, HasEachFifthBetweenBlackAndWhite) {
  GifColours map(PicturePalette());
  for (int grey = 0; grey < 256; grey += 51) {
    const std::uint32_t word = WordOf(Rgb(grey, grey, grey));
    EXPECT_EQ(PicturePalette().Words[map.IndexOf(word)], word);
  }
}

// Half of the cube's step is 25, more than a dark background itself has, so a glow became a bright
// disc. The table's own steps are 13 at most, so the error is at most half of that.
TEST(GifPalette, HasTheShadesOfTheBackgroundPictures) {
  Colours colours;
  GifColours map(PicturePalette());
  for (int n = 0; n < kBackgroundCount; ++n) {
    int most = 0;
    for (const std::uint32_t word : BackgroundPicture(colours, n)->Words) {
      const std::uint32_t given = PicturePalette().Words[map.IndexOf(word)];
      for (const int shift : {0, 8, 16}) {
        most = std::max(most, std::abs(static_cast<int>(word >> shift & 255u) -
                                       static_cast<int>(given >> shift & 255u)));
      }
    }
    EXPECT_LE(most, 6) << "picture " << n;
  }
}

TEST(GifPalette, HoldsTheZonesOfTheMapExactly) {
  GifColours map(PicturePalette());
  for (const Colour zone : {Rgb(255, 206, 206), Rgb(254, 143, 149), Rgb(255, 117, 117)}) {
    EXPECT_EQ(PicturePalette().Words[map.IndexOf(WordOf(zone))], WordOf(zone));
  }
}

TEST(GifPalette, GivesWhatItDoesNotHoldTheNearestColour) {
  GifColours map(PicturePalette());
  // Next to black, to the side chain's pink (255, 20, 147) and to white; no other colour is as
  // near.
  EXPECT_EQ(PicturePalette().Words[map.IndexOf(WordOf(Rgb(1, 0, 1)))], WordOf(kPalette0));
  EXPECT_EQ(PicturePalette().Words[map.IndexOf(WordOf(Rgb(254, 22, 146)))],
            WordOf(Rgb(255, 20, 147)));
  EXPECT_EQ(PicturePalette().Words[map.IndexOf(WordOf(Rgb(252, 251, 253)))], WordOf(kPalette15));
}

TEST(GifPalette, NeverGivesTheIndexThatIsNotAColour) {
  GifColours map(PicturePalette());
  for (int red = 0; red < 256; red += 15) {
    for (int green = 0; green < 256; green += 15) {
      for (int blue = 0; blue < 256; blue += 15) {
        EXPECT_NE(map.IndexOf(WordOf(Rgb(red, green, blue))), kGifUnchanged);
      }
    }
  }
}

TEST(GifPalette, RemembersEachColourAsItsOwn) {
  GifColours map(PicturePalette());
  std::vector<std::uint8_t> first;
  // Far more colours than it can remember, twice: by the second time it has forgotten many.
  const auto word = [](std::uint32_t i) { return 0xFF000000u | (i * 7919u & 0xFFFFFFu); };
  for (std::uint32_t i = 0; i < 20000; ++i) first.push_back(map.IndexOf(word(i)));
  for (std::uint32_t i = 20000; i-- > 0;) {
    EXPECT_EQ(map.IndexOf(word(i)), first[i]) << std::hex << word(i);
  }
  EXPECT_GT(std::set<std::uint8_t>(first.begin(), first.end()).size(), 100u);
}

TEST(GifFile, HoldsEachPixelOfThePaletteExactly) {
  const Bitmap picture = EveryColour();
  const ReadGif gif = ReadBack(GifOf(picture));

  ASSERT_TRUE(gif.Whole);
  EXPECT_EQ(gif.Width, 17);
  EXPECT_EQ(gif.Height, 15);
  ASSERT_EQ(gif.Palette.size(), 256u);
  ASSERT_EQ(gif.Frames.size(), 1u);
  EXPECT_EQ(gif.Frames[0].Screen.Words, picture.Words);
  EXPECT_FALSE(gif.Loops);
}

TEST(GifFile, TwoPicturesShareOnePalette) {
  EXPECT_EQ(ReadBack(GifOf(Plain(2, 2, Rgb(240, 0, 0)))).Palette,
            ReadBack(GifOf(EveryColour())).Palette);
}

TEST(GifFile, IsReadBackPixelByPixel) {
  const Bitmap picture = FirstFrameOf(GifOf(EveryColour())).value();
  EXPECT_EQ(picture.Width, 17);
  EXPECT_EQ(picture.Height, 15);
  EXPECT_EQ(picture.Words, EveryColour().Words);
}

TEST(GifFile, OfAnimationsTheFirstFrameIsRead) {
  const FileBytes film = WithOneMoreFrame(AnimationOf(EveryColour()), Plain(17, 15, 0)).value();
  EXPECT_EQ(FirstFrameOf(film).value().Words, EveryColour().Words);
}

TEST(GifFile, IsReadInAnyPalette) {
  FileBytes other = GifOf(Plain(1, 1, kPalette0));  // black is colour 0 of our palette,
  other[13] = 1;                                    // which comes after 13 bytes of header
  other[14] = 2;
  other[15] = 3;
  EXPECT_EQ(FirstFrameOf(other).value().Words, std::vector<std::uint32_t>{0xFF010203});
}

TEST(GifFile, IsNotReadIfItIsNotAGifOrIsCutShort) {
  EXPECT_FALSE(FirstFrameOf({}));
  EXPECT_FALSE(FirstFrameOf(FileBytes(1000, 'G')));
  const FileBytes whole = GifOf(EveryColour());
  EXPECT_FALSE(FirstFrameOf(std::span(whole).first(whole.size() / 2)));
}

TEST(GifAnimation, LoopsForEverFromItsFirstFrame) {
  const ReadGif gif = ReadBack(AnimationOf(EveryColour()));
  ASSERT_EQ(gif.Frames.size(), 1u);
  EXPECT_TRUE(gif.Loops);
  EXPECT_EQ(gif.Rounds, 0);
  EXPECT_EQ(gif.Frames[0].Delay, 10);  // a tenth of a second
}

TEST(GifAnimation, EachFrameIsThePictureThatWasGiven) {
  Bitmap second = EveryColour(), third = EveryColour();
  second.Words[3 * 17 + 5] = WordOf(Rgb(255, 20, 147));
  second.Words[7 * 17 + 2] = WordOf(Rgb(255, 20, 147));
  std::reverse(third.Words.begin(), third.Words.end());

  FileBytes bytes = AnimationOf(EveryColour());
  bytes = WithOneMoreFrame(bytes, second).value();
  bytes = WithOneMoreFrame(bytes, third).value();
  const ReadGif gif = ReadBack(bytes);

  ASSERT_EQ(gif.Frames.size(), 3u);
  EXPECT_EQ(gif.Frames[0].Screen.Words, EveryColour().Words);
  EXPECT_EQ(gif.Frames[1].Screen.Words, second.Words);
  EXPECT_EQ(gif.Frames[2].Screen.Words, third.Words);
  for (const ReadFrame& frame : gif.Frames) EXPECT_EQ(frame.Delay, 10);
  EXPECT_TRUE(gif.Loops);
  EXPECT_EQ(gif.Rounds, 0);
}

TEST(GifAnimation, AFrameHoldsOnlyTheBoxThatChanged) {
  Bitmap second = Plain(20, 10, kPalette0);
  second.Words[3 * 20 + 5] = second.Words[7 * 20 + 2] = WordOf(kPalette15);

  const ReadGif gif =
      ReadBack(WithOneMoreFrame(AnimationOf(Plain(20, 10, kPalette0)), second).value());

  // Columns 2 to 5, rows 3 to 7.
  const ReadFrame& frame = gif.Frames.at(1);
  EXPECT_EQ(frame.Left, 2);
  EXPECT_EQ(frame.Top, 3);
  EXPECT_EQ(frame.Width, 4);
  EXPECT_EQ(frame.Height, 5);
}

TEST(GifAnimation, AFrameLikeTheOneBeforeIsAFrameAllTheSame) {
  const ReadGif gif = ReadBack(WithOneMoreFrame(AnimationOf(EveryColour()), EveryColour()).value());
  ASSERT_EQ(gif.Frames.size(), 2u);
  EXPECT_EQ(gif.Frames[1].Screen.Words, EveryColour().Words);
  EXPECT_EQ(gif.Frames[1].Delay, 10);
}

TEST(GifAnimation, GrowsWithALargerPictureAndIsBlackRoundASmallerOne) {
  const FileBytes small = AnimationOf(Plain(2, 2, kPalette15));
  const FileBytes large = WithOneMoreFrame(small, Plain(3, 4, Rgb(255, 0, 0))).value();
  const ReadGif gif = ReadBack(WithOneMoreFrame(large, Plain(1, 1, kPalette15)).value());

  ASSERT_EQ(gif.Frames.size(), 3u);
  EXPECT_EQ(gif.Width, 3);
  EXPECT_EQ(gif.Height, 4);
  EXPECT_EQ(gif.Frames[1].Screen.Words, Plain(3, 4, Rgb(255, 0, 0)).Words);
  Bitmap last = Plain(3, 4, kPalette0);
  last.Words[0] = WordOf(kPalette15);
  EXPECT_EQ(gif.Frames[2].Screen.Words, last.Words);
}

TEST(GifAnimation, IsNotAddedToWhatIsNotAGif) {
  EXPECT_FALSE(WithOneMoreFrame({}, EveryColour()));
  EXPECT_FALSE(WithOneMoreFrame({'B', 'M', 1, 2, 3, 4}, EveryColour()));
  EXPECT_FALSE(WithOneMoreFrame(FileBytes(1000, 'G'), EveryColour()));
}

TEST(GifAnimation, IsNotAddedToWhenItIsCutShortAnywhere) {
  const FileBytes whole = WithOneMoreFrame(AnimationOf(EveryColour()), Plain(17, 15, 0)).value();
  for (std::size_t length = 0; length < whole.size(); ++length) {
    const FileBytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
    EXPECT_FALSE(WithOneMoreFrame(cut, EveryColour())) << length << " of " << whole.size();
  }
}

// A header is 13 bytes, with its width at 6. Then follow 256 colours, two extensions of 19 and 8
// bytes, and the frame, with its place at 1 and its size at 5.
TEST(GifAnimation, IsNotAddedToAFileThatClaimsMoreThanAnyScreenHas) {
  const FileBytes film = AnimationOf(Plain(8, 6, kPalette15));
  constexpr std::size_t kFrame = 13 + 3 * 256 + 19 + 8;
  ASSERT_EQ(film[kFrame], 0x2C);
  const auto with = [&](std::initializer_list<std::pair<std::size_t, unsigned>> words) {
    FileBytes changed = film;
    for (const auto& [at, word] : words) {
      changed[at] = static_cast<unsigned char>(word);
      changed[at + 1] = static_cast<unsigned char>(word >> 8);
    }
    return changed;
  };
  const Bitmap next = Plain(8, 6, kPalette0);
  ASSERT_TRUE(WithOneMoreFrame(with({}), next).has_value());
  // 8192 by 8193 pixels are more than 2^26.
  EXPECT_TRUE(WithOneMoreFrame(with({{6, 512}, {8, 512}}), next).has_value());
  EXPECT_FALSE(WithOneMoreFrame(with({{6, 8192}, {8, 8193}}), next).has_value());
  // A frame of 8 by 6 whose left edge or width takes it past a screen of 8.
  EXPECT_FALSE(WithOneMoreFrame(with({{kFrame + 1, 1}}), next).has_value());
  EXPECT_FALSE(WithOneMoreFrame(with({{kFrame + 5, 9}}), next).has_value());
  // A frame as large as the largest screen, with data for 48 pixels only.
  EXPECT_FALSE(
      WithOneMoreFrame(with({{6, 8192}, {8, 8192}, {kFrame + 5, 8192}, {kFrame + 7, 8192}}), next)
          .has_value());
}

TEST(GifAnimation, IsNotAddedToAGifOfOtherColours) {
  FileBytes other = AnimationOf(EveryColour());
  ++other[13 + 3];  // the first part of colour 1; the palette comes after 13 bytes of header
  EXPECT_FALSE(WithOneMoreFrame(other, EveryColour()));
}

// Makes the frames of a recording in memory, both together and each by itself.
struct FilmingPlatform : FakePlatform {
  Raster raster;
  FileBytes film;
  std::vector<FileBytes> singles;

  void SavePicture(const SaveRequest& request) override {
    const Bitmap picture = raster.Paint(*dynamic_cast<PictureBox&>(*request.Source).Image());
    film = request.FirstFrame ? AnimationOf(picture) : WithOneMoreFrame(film, picture).value();
    singles.push_back(GifOf(picture));
  }
};

TEST(GifAnimation, ARecordingIsSmallerThanItsFramesAlone) {
  FilmingPlatform platform;
  const auto desk = StartDesk(platform);
  desk->main.Visible = true;
  SelectRow(*desk, desk->main.Pro_Lst, 1);
  platform.Answers = {"abc"};
  Click(*desk, desk->main.S_AnGif);
  for (int tick = 0; tick < 36; ++tick) Tick(*desk, desk->main.Timer1);

  const ReadGif gif = ReadBack(platform.film);
  ASSERT_EQ(platform.singles.size(), 18u);
  ASSERT_EQ(gif.Frames.size(), 18u);
  std::size_t alone = 0;
  std::set<FileBytes> different;
  for (std::size_t i = 0; i < 18; ++i) {
    const ReadGif single = ReadBack(platform.singles[i]);
    EXPECT_EQ(gif.Frames[i].Screen.Words == single.Frames.at(0).Screen.Words, true) << i;
    alone += platform.singles[i].size();
    different.insert(platform.singles[i]);
  }
  EXPECT_EQ(different.size(), 18u) << "it turns from frame to frame";
  EXPECT_LT(platform.film.size(), alone);
}

}  // namespace
}  // namespace orvane
