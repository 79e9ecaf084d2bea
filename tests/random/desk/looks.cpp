#include "random/desk/looks.h"

#include <algorithm>

#include "view/spin.h"

namespace orvane {
namespace {

constexpr Look kPressedTag{.Bevel = 1, .TextStyle = 4};

struct Captions {
  const Control& Toggle;
  std::initializer_list<std::string_view> Known;
};

}  // namespace

int PressedTag(const MainWindow& main) {
  int pressed = -1;
  for (int axis = 0; axis < 3; ++axis) {
    if (main.X_Tag[static_cast<std::size_t>(axis)].Style != kPressedTag) continue;
    if (pressed >= 0) return -1;
    pressed = axis;
  }
  return pressed;
}

std::string UnknownCaption(const Orvane_Desk& desk) {
  const MainWindow& main = desk.main;
  const Captions rows[] = {
      {main.Bt_BlS, {"Ball-Stick", "Wire-Frame"}},
      {main.Bt_CA_Trace, {"Ca-trace OFF", "Ca-trace ON"}},
      {main.Bt3_Label, {"Label Off", "Label On"}},
      {main.Bt3_HBD, {"H-bond Off", "H-bond On"}},
      {main.Bt3_Sterio, {"Stereo Off", "Stereo On", "Sterio Off"}},
      {main.R_G_Stereo, {"Red-Green Stereo Off", "Red-Green Stereo On"}},
      {main.Bt3_Isomers, {"D / L Off", "D / L On", "D/L Off"}},
      {main.Bt3_D_L_Str, {"D/L Nst", "D/L Str", "D / L Nst"}},
  };
  for (const Captions& row : rows) {
    const std::string& caption = row.Toggle.Caption;
    if (std::find(row.Known.begin(), row.Known.end(), caption) == row.Known.end()) {
      return row.Toggle.Name + " reads \"" + caption + "\"";
    }
  }
  return "";
}

// Balls and trace have no row: the menu changes them but not their buttons.
std::string OtherThanItsField(const Orvane_Desk& desk) {
  const MainWindow& main = desk.main;
  const Stereo& stereo = desk.stereo;
  const bool labels = main.Bt3_Label.Caption == "Label On";
  const bool bonds = main.Bt3_HBD.Caption == "H-bond On";
  const bool pair = main.Bt3_Sterio.Caption == "Stereo On";
  const bool red_green = main.R_G_Stereo.Caption == "Red-Green Stereo On";
  const bool isomers = main.Bt3_Isomers.Caption == "D / L On";
  const bool four = main.Bt3_D_L_Str.Caption == "D/L Str";
  const Look spin = desk.main.P_Auto_Rotate.Style;
  // clang-format off
  const std::pair<const char*, bool> rows[] = {
      {"Bt3_HBD",       bonds == (desk.drawing.HBondShown == 1)},
      {"Bt3_Sterio",    pair == (stereo.StereoOn == 1)},
      {"R_G_Stereo",    red_green == (stereo.RedGreenOn == 1)},
      {"Bt3_D_L_Str",   four == (stereo.EnantiomerPairOn == 1)},
      // A measure switches the labels off and leaves the caption.
      {"Bt3_Label",     labels || desk.drawing.LabelsOn == 0},
      // Both forms stay on if the picture without them could not be drawn.
      {"Bt3_Isomers",   !(isomers || four) || stereo.EnantiomerOn == 1},
      {"P_Auto_Rotate", (spin == kSpinOnLook) == (desk.view.AutoRotateOn == 1)},
  };
  // clang-format on
  for (const auto& [name, agrees] : rows) {
    if (!agrees) return std::string(name) + " says another thing than its field";
  }
  if (stereo.StereoOn == 1 && stereo.EnantiomerOn == 1) return "two pairs are on at once";
  return PressedTag(main) < 0 ? "not just one tag of an axis is pressed" : "";
}

}  // namespace orvane
