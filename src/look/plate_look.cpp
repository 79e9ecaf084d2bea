#include "look/plate_look.h"

namespace orvane {
namespace {

using namespace palette;

constexpr double kDarker = 0.57;  // of each part of a swatch's colour

Argb InkOf(int text_style) { return text_style == 4 ? kDeep : text_style == 3 ? kInk2 : kInk; }

bool LooksPressed(const Control& control, const Dress& dress) {
  return dress.LooksPressed ||
         (control.Row.Kind == ControlKind::Toggle && CaptionSaysOn(control.Caption.Get()));
}

}  // namespace

BevelLook BevelLookOf(const Control& control, const Dress& dress, Touch touch) {
  const Look style = control.Style;
  const bool heavy = style.TextStyle == 4 || dress.LooksPressed;
  const Type letters{11, heavy ? 600 : 500};
  if (touch.Off) return {.Face = kDisabledFace, .Ink = kDisabled, .Letters = letters};
  const bool pressed = LooksPressed(control, dress);
  const int bevel = pressed ? 1 : style.Bevel;
  const bool touched = touch.Under || touch.Held;
  BevelLook look{
      .Ink = pressed ? kDeep : InkOf(style.TextStyle), .Letters = letters, .Sunken = bevel == 1};
  look.Face = touch.Held   ? kPress
              : bevel == 1 ? kTint
              : touched    ? kHover
              : bevel == 2 ? kFace
                           : kGround;
  look.Edge = touched || bevel == 1 ? kAccent : bevel == 2 ? kSoftEdge : kOffEdge;
  if (look.Edge == kSoftEdge) look.LowerEdge = kEdge;
  return look;
}

Argb SwatchEdge(Argb face) {
  const auto darker = [face](int shift) {
    return static_cast<Argb>(static_cast<int>((face >> shift) & 0xFFU) * kDarker) << shift;
  };
  return 0xFF000000 | darker(16) | darker(8) | darker(0);
}

}  // namespace orvane
