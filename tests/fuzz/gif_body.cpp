#include "fuzz/bodies.h"
#include "output/picture_gif.h"

namespace orvane {
namespace {

Bitmap SmallPicture() {
  Bitmap picture{5, 4, std::vector<std::uint32_t>(20, 0xFFFFFFFFU)};
  picture.Words[7] = 0xFFFF0000U;
  return picture;
}

}  // namespace

std::string ReadAsGif(Bytes bytes) {
  const FileBytes file(bytes.begin(), bytes.end());
  const Bitmap picture = SmallPicture();
  const auto longer = WithOneMoreFrame(file, picture);
  if (!longer.has_value()) return "";
  if (longer->empty()) return "nothing was written";
  if (!WithOneMoreFrame(*longer, picture).has_value()) return "what was written cannot be read";
  return "";
}

}  // namespace orvane
