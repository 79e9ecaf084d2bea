#include "ramachandran/map_pictures.h"

#include <array>
#include <embedded/Map0.h>
#include <embedded/Map1.h>
#include <embedded/Map2.h>
#include <span>

namespace orvane {
namespace {

constexpr int kMapSide = 140;  // pixels; the file is a short header and 3 bytes for each

std::shared_ptr<const Bitmap> Decode(std::span<const unsigned char> file) {
  constexpr std::size_t kPixels = std::size_t{kMapSide} * kMapSide;
  const auto pixels = file.last(3 * kPixels);
  auto bitmap = std::make_shared<Bitmap>();
  bitmap->Width = kMapSide;
  bitmap->Height = kMapSide;
  bitmap->Words.reserve(kPixels);
  for (std::size_t i = 0; i < pixels.size(); i += 3) {
    bitmap->Words.push_back(0xFF000000U | std::uint32_t{pixels[i]} << 16 |
                            std::uint32_t{pixels[i + 1]} << 8 | pixels[i + 2]);
  }
  return bitmap;
}

}  // namespace

std::shared_ptr<const Bitmap> MapPicture(Orvane_Desk& desk, int index) {
  constexpr std::array kFiles = {embedded::Map0, embedded::Map1, embedded::Map2};
  const auto slot = static_cast<std::size_t>(index);
  auto& picture = desk.survey.ram.at(slot);
  if (!picture) picture = Decode(kFiles.at(slot)());
  return picture;
}

}  // namespace orvane
