#include "random/desk/kept_pictures.h"

#include "controls/surface.h"
#include "random/desk/digest.h"

namespace orvane {
namespace {

std::uint64_t DigestOf(const Picture& picture) {
  Digest digest;
  digest.Mix(static_cast<std::uint64_t>(picture.BackColor));
  digest.Mix(reinterpret_cast<std::uintptr_t>(picture.Backdrop.get()));
  digest.Mix(static_cast<std::uint64_t>(picture.Width));
  digest.Mix(static_cast<std::uint64_t>(picture.Height));
  for (const Stroke& stroke : picture.Strokes) {
    digest.Mix(static_cast<std::uint64_t>(stroke.Kind) << 16U |
               static_cast<std::uint64_t>(stroke.Width) << 8U | stroke.Style);
    for (const float place : {stroke.X1, stroke.Y1, stroke.X2, stroke.Y2}) digest.MixNumber(place);
    digest.Mix(static_cast<std::uint64_t>(stroke.Ink));
    digest.Mix(static_cast<std::uint64_t>(stroke.Fill));
    digest.Mix(stroke.Text);
  }
  for (const std::string& text : picture.Texts) digest.Mix(std::hash<std::string>()(text));
  return digest.Value;
}

}  // namespace

std::string ChangedPicture(const Orvane_Desk& desk, std::vector<KeptPicture>& kept) {
  for (const KeptPicture& picture : kept) {
    if (DigestOf(*picture.Image) != picture.Digest) {
      return "a picture that " + picture.Of + " showed has changed";
    }
  }
  kept.clear();
  const auto keep = [&](const Control& control, const std::shared_ptr<const Picture>& picture) {
    if (picture) kept.push_back({control.FullName(), picture, DigestOf(*picture)});
  };
  const MainWindow& main = desk.main;
  keep(main.Picture1, main.Picture1.Image());
  for (const ImageBox* half : {&main.L_Img, &main.R_Img, &main.L_Img_b, &main.R_Img_b}) {
    keep(*half, half->Shown());
  }
  return "";
}

}  // namespace orvane
