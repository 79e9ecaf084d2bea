// orvane-contact-sheet FILE: writes one picture (PPM) of all rows of the four lists, each as it
// looks after its row was chosen, with balls.

#include <algorithm>
#include <array>
#include <fstream>
#include <iostream>
#include <memory>
#include <vector>

#include "desk/actions.h"
#include "no_platform/no_platform.h"
#include "raster/raster.h"
#include "shell/start_up.h"

namespace orvane {
namespace {

constexpr int kColumns = 8;
constexpr int kThumb = 216;   // pixels; the surface at 0.6
constexpr int kCaption = 22;  // a line of type under each
constexpr int kGap = 6;
constexpr Colour kPaper = Rgb(24, 35, 44);
constexpr Colour kInk = Rgb(242, 246, 248);

struct Sheet {
  int Width, Height;
  std::vector<std::uint32_t> Words;
};

struct Thumb {
  std::string Key;
  std::shared_ptr<const Picture> Drawn;
};

std::vector<Thumb> ThumbsOf(Orvane_Desk& desk) {
  std::vector<Thumb> thumbs;
  for (List* list :
       {&desk.main.AA_Lst, &desk.main.Pro_Lst, &desk.main.Nuc_Lst, &desk.main.DNA_Lst}) {
    for (int row = 0; row < static_cast<int>(list->Rows.Get().size()); ++row) {
      SelectRow(desk, *list, row);
      desk.drawing.BallsOn = 1;
      desk.drawing.BondWidth = 2;
      for (int step = 1; step <= 4;
           ++step) {  // 1.1 to the fourth: nearly three quarters of the frame
        StepBar(desk, desk.main.ZoomBar, 5 * step);
      }
      const std::string text = list->Text();
      thumbs.push_back({text.substr(0, text.find(' ')), desk.main.Picture1.Image()});
    }
  }
  return thumbs;
}

Picture CaptionOf(const std::string& text) {
  Picture picture;
  picture.BackColor = kPaper;
  picture.Width = kThumb;
  picture.Height = kCaption;
  picture.Texts = {text};
  picture.Strokes = {{.Kind = StrokeKind::Print, .X1 = 2, .Y1 = 4, .Ink = kInk}};
  return picture;
}

Sheet Compose(const std::vector<Thumb>& thumbs) {
  const int rows = (static_cast<int>(thumbs.size()) + kColumns - 1) / kColumns;
  Sheet sheet{kGap + kColumns * (kThumb + kGap), kGap + rows * (kThumb + kCaption + kGap), {}};
  const std::uint32_t paper = 0xFF000000U | static_cast<std::uint32_t>(Red(kPaper)) << 16 |
                              static_cast<std::uint32_t>(Green(kPaper)) << 8 |
                              static_cast<std::uint32_t>(Blue(kPaper));
  sheet.Words.assign(static_cast<std::size_t>(sheet.Width) * sheet.Height, paper);
  Raster raster;
  for (std::size_t i = 0; i < thumbs.size(); ++i) {
    const int left = kGap + static_cast<int>(i) % kColumns * (kThumb + kGap);
    const int top = kGap + static_cast<int>(i) / kColumns * (kThumb + kCaption + kGap);
    std::uint32_t* corner = sheet.Words.data() + static_cast<std::size_t>(top) * sheet.Width + left;
    raster.Paint(*thumbs[i].Drawn, static_cast<double>(kThumb) / thumbs[i].Drawn->Width, corner,
                 kThumb, kThumb, sheet.Width);
    raster.Paint(CaptionOf(thumbs[i].Key), 1,
                 corner + static_cast<std::size_t>(kThumb) * sheet.Width, kThumb, kCaption,
                 sheet.Width);
  }
  return sheet;
}

}  // namespace
}  // namespace orvane

int main(int count, char** words) {
  using namespace orvane;
  if (count != 2) {
    std::cerr << "usage: orvane-contact-sheet FILE.ppm\n";
    return 2;
  }
  NoPlatform platform;
  const auto desk = StartDesk(platform);
  desk->main.Show();
  const Sheet sheet = Compose(ThumbsOf(*desk));
  std::ofstream file(words[1], std::ios::binary);
  file << "P6\n" << sheet.Width << " " << sheet.Height << "\n255\n";
  for (const std::uint32_t word : sheet.Words) {
    for (const int shift : {16, 8, 0}) file.put(static_cast<char>((word >> shift) & 255U));
  }
  if (!file.flush()) {
    std::cerr << words[1] << " could not be written\n";
    return 1;
  }
}
