#include "replay/effect_watcher.h"

#include <algorithm>

#include "controls/kinds.h"

namespace orvane {
namespace {

// The small windows show stored images, and so does every icon; all other image controls get what
// was on the surface.
constexpr std::string_view kWindowsOfStoredImages[] = {"Orvane_Front", "Content", "Author_frm"};
constexpr std::string_view kIcon = "OVN_Icon";

bool ShowsASnapshot(const ImageBox& image) {
  const bool is_stored =
      image.Name == kIcon ||
      std::find(std::begin(kWindowsOfStoredImages), std::end(kWindowsOfStoredImages),
                image.Owner.Name) != std::end(kWindowsOfStoredImages);
  return !is_stored && image.Shown() != nullptr;
}

}  // namespace

void EffectWatcher::Changed(Control& control, Aspect aspect) {
  if (aspect == Aspect::Visible && &control == &control.Owner) {
    output_.Line((control.Visible ? "show " : "hide ") + control.Name);
  }
  if (aspect == Aspect::Picture) {
    const auto* image = dynamic_cast<const ImageBox*>(&control);
    if (image != nullptr && ShowsASnapshot(*image)) output_.Line("picture " + control.FullName());
  }
}

}  // namespace orvane
