// orvane-vision-maker PAGE PICTURE: writes docs/colour-vision.md, and its picture as a PPM.

#include <fstream>
#include <iostream>

#include "vision_maker/page.h"
#include "vision_maker/sheet.h"

int main(int count, char** words) {
  if (count != 3) {
    std::cerr << "usage: orvane-vision-maker PAGE.md PICTURE.ppm\n";
    return 2;
  }
  std::ofstream page(words[1], std::ios::binary);
  page << orvane::vision::PageText();
  const orvane::Bitmap sheet = orvane::vision::Sheet();
  std::ofstream picture(words[2], std::ios::binary);
  picture << "P6\n" << sheet.Width << " " << sheet.Height << "\n255\n";
  for (const std::uint32_t word : sheet.Words) {
    for (const int shift : {16, 8, 0}) picture.put(static_cast<char>((word >> shift) & 255U));
  }
  if (!page.flush() || !picture.flush()) {
    std::cerr << "page or picture could not be written\n";
    return 1;
  }
}
