#include "look/window_dress.h"

#include <array>

namespace orvane {
namespace {

using namespace palette;

constexpr auto kWindows = std::to_array<WindowDress>({
    {"Orvane_Front", kBezel, 0},
    {"Content", kGround, 780},
    {"Author_frm", kGround, 780},
    {"Ramachandran", kFace, 0, false},
});
constexpr WindowDress kPlainWindow = {"", kGround, 0};

}  // namespace

const WindowDress& WindowDressOf(std::string_view window) {
  for (const WindowDress& dress : kWindows) {
    if (dress.Window == window) return dress;
  }
  return kPlainWindow;
}

}  // namespace orvane
