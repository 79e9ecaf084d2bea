#include "look/dress.h"

#include <array>

#include "controls/window.h"
#include "look/information_dress.h"

namespace orvane {
namespace {

using namespace palette;

// clang-format off
constexpr auto kDresses = std::to_array<Dress>({
    // Main window.
    {.Control = "Panel3D1", .Shape = DressShape::Heading, .Face = kBand, .Edge = kListEdge, .Corner = 4, .Letters = {11, 600}, .Align = Side::Left, .TextLeft = 6},
    {.Control = "Panel3D2", .Shape = DressShape::Heading, .Face = kBand, .Edge = kListEdge, .Corner = 4, .Letters = {11, 600}, .Align = Side::Left, .TextLeft = 6},
    {.Control = "Panel3D3", .Shape = DressShape::Heading, .Face = kBand, .Edge = kListEdge, .Corner = 4, .Letters = {11, 600}, .Align = Side::Left, .TextLeft = 6},
    {.Control = "Panel3D4", .Shape = DressShape::Heading, .Face = kBand, .Edge = kListEdge, .Corner = 4, .Letters = {11, 600}, .Align = Side::Left, .TextLeft = 6},
    {.Control = "Panel3D5", .Ink = kAccent, .Letters = {13, 700}, .Align = Side::Right, .TextRight = 2},
    {.Control = "Box", .Face = kBezel, .Corner = 4},
    {.Control = "P_Pic1", .Face = kBezel, .Corner = 4},
    {.Control = "P_Sterio", .Face = kDarkPanel, .Edge = kDarkEdge, .Corner = 4},
    {.Control = "P_Sterio_b", .Face = kDarkPanel, .Edge = kDarkEdge, .Corner = 4},
    {.Control = "Str_Entm", .Ink = kOnDark, .Letters = {11, 600}},
    {.Control = "L_Form", .Ink = kQuietOnDark},
    {.Control = "R_Form", .Ink = kQuietOnDark},
    {.Control = "AA_name", .Ink = kOnDark, .Letters = {11, 600}, .Align = Side::Left, .GrowsTo = 5310},
    {.Control = "Label1", .Ink = kInk2, .Letters = {11, 400}, .Align = Side::Left},
    {.Control = "Label2", .Ink = kInk2, .Letters = {11, 400}, .Upwards = true},
    {.Control = "Label3", .Ink = kInk2, .Letters = {11, 400}, .Align = Side::Left},
    {.Control = "Line1", .Face = kHair},
    {.Control = "Line2", .Face = kHair},
    {.Control = "Line5", .Face = kHair},
    {.Control = "Line6", .Face = kHair},
    {.Control = "Text1", .Face = kResult, .Edge = kListEdge, .Corner = 4},
    {.Control = "P_Dst_Show", .Letters = {11, 400}, .Align = Side::Left, .TextLeft = 6, .LineHeight = 16},
    {.Control = "P_Clr_Holder", .Face = kGround, .Edge = kEdge, .Corner = 6, .Floats = true},
    {.Control = "V_RGB_H", .Face = kGround, .Edge = kEdge, .Corner = 6, .Floats = true},
    {.Control = "P_Dir_Holder", .Face = kGround, .Edge = kEdge, .Corner = 6, .Letters = {11, 600}, .Align = Side::Left, .TextLeft = 12, .TextTop = 10, .Floats = true},
    {.Control = "P_Clr", .Shape = DressShape::Swatch, .Corner = 3, .Letters = {7, 700}},
    {.Control = "Do_color", .Shape = DressShape::Bevel, .Corner = 4, .LooksPressed = true},  // its panel is open while it shows
    {.Control = "Bt_M_Ld", .Shape = DressShape::Tab},
});
// clang-format on

constexpr Dress kBevelled = {.Control = "", .Shape = DressShape::Bevel, .Corner = 4};
constexpr Dress kBare = {.Control = ""};

}  // namespace

const Dress& DressOf(const Control& control) {
  const std::string name = control.Owner.Prefix + control.Name;
  for (const Dress& dress : kDresses) {
    if (dress.Control == name) return dress;
  }
  const std::string full_name = control.FullName();
  for (const Dress& dress : InformationDresses()) {
    if (dress.Control == full_name || dress.Control == name) return dress;
  }
  switch (control.Row.Kind) {
    case ControlKind::Panel:
    case ControlKind::Button:
    case ControlKind::Toggle:
      return kBevelled;
    default:
      return kBare;
  }
}

}  // namespace orvane
