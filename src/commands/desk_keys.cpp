#include "commands/desk_keys.h"

#include <algorithm>
#include <array>

#include "desk/actions.h"
#include "desk/press_life.h"
#include "narration/atom_walk.h"
#include "ramachandran/map_walk.h"

namespace orvane {
namespace {

// Acts as a key on the control itself does.
template <auto kControl>
void Push(Orvane_Desk& desk) {
  PressAndClickInTheMiddle(desk, desk.main.*kControl);
}

template <auto kArray, std::size_t kIndex>
void PushOne(Orvane_Desk& desk) {
  PressAndClickInTheMiddle(desk, (desk.main.*kArray)[kIndex]);
}

// Acts as an arrow of the bar, or as its page area.
template <ScrollBar MainWindow::*kBar, int kSteps>
void Step(Orvane_Desk& desk) {
  ScrollBar& bar = desk.main.*kBar;
  StepBar(desk, bar, bar.Value + kSteps * bar.Range.SmallStep);
}

template <ScrollBar MainWindow::*kBar, int kPages>
void Page(Orvane_Desk& desk) {
  ScrollBar& bar = desk.main.*kBar;
  StepBar(desk, bar, bar.Value + kPages * bar.Range.LargeStep);
}

void GoToThePicture(Orvane_Desk& desk) {
  const bool is_split = !desk.main.P_Pic1.Visible && desk.main.P_Sterio.Visible;
  (is_split ? static_cast<Control&>(desk.main.P_Sterio) : desk.main.Picture1).SetFocus();
}

using enum KeyPlace;
using Main = MainWindow;

// By heading, in the order of the sheet.
// clang-format off
constexpr auto kKeys = std::to_array<DeskKey>({
    {Desk, "Anywhere on the desk", "F6", "",     "Go to the picture", false, GoToThePicture},
    {Desk, "Anywhere on the desk", "Escape", "", "Close the floating panels", false, Push<&Main::Panel3D5>},

    {Picture, "Turn", "Right", "Down",     "Turn forward about the chosen axis", true, Step<&Main::VScroll1, 1>},
    {Picture, "Turn", "Left", "Up",        "Turn back",                          true, Step<&Main::VScroll1, -1>},
    {Picture, "Turn", "Page Down", "",     "Turn forward, by a page of the bar", true, Page<&Main::VScroll1, 1>},
    {Picture, "Turn", "Page Up", "",       "Turn back, by a page",               true, Page<&Main::VScroll1, -1>},
    {Picture, "Turn", "X", "",             "Turn about the X axis", false, PushOne<&Main::X_Tag, 0>},
    {Picture, "Turn", "Y", "",             "Turn about the Y axis", false, PushOne<&Main::X_Tag, 1>},
    {Picture, "Turn", "Z", "",             "Turn about the Z axis", false, PushOne<&Main::X_Tag, 2>},
    {Picture, "Turn", "S", "",             "Spin, or stop spinning", false, Push<&Main::P_Auto_Rotate>},
    {Picture, "Turn", ".", "",             "Spin faster", true, Step<&Main::Rt_speed, -1>},
    {Picture, "Turn", ",", "",             "Spin slower", true, Step<&Main::Rt_speed, 1>},

    {Picture, "Move and enlarge", "Shift+Left", "",  "Move to the left",  true, Step<&Main::X_TRANS, -1>},
    {Picture, "Move and enlarge", "Shift+Right", "", "Move to the right", true, Step<&Main::X_TRANS, 1>},
    {Picture, "Move and enlarge", "Shift+Up", "",    "Move up",           true, Step<&Main::Y_TRANS, -1>},
    {Picture, "Move and enlarge", "Shift+Down", "",  "Move down",         true, Step<&Main::Y_TRANS, 1>},
    {Picture, "Move and enlarge", "+", "=",          "Enlarge",           true, Step<&Main::ZoomBar, 1>},
    {Picture, "Move and enlarge", "-", "",           "Make smaller",      true, Step<&Main::ZoomBar, -1>},
    {Picture, "Move and enlarge", "R", "",           "Go back to the start view", false, Push<&Main::Bt3_Reset>},

    {Picture, "Walk over the atoms", "N", "",          "Go to the next atom",        true, WalkToNext},
    {Picture, "Walk over the atoms", "P", "",          "Go to the previous atom",    true, WalkToPrevious},
    {Picture, "Walk over the atoms", "Home", "",       "Go to the first atom",       false, WalkToFirst},
    {Picture, "Walk over the atoms", "End", "",        "Go to the last atom",        false, WalkToLast},
    {Picture, "Walk over the atoms", "Space", "Enter", "Pick the atom in the ring",  false, PickWalked},

    {Picture, "Measure", "D", "", "Measure the first two atoms picked",   false, Push<&Main::Bt3_Dts>},
    {Picture, "Measure", "A", "", "Measure the angle at the second atom", false, Push<&Main::Bt3_Ang>},
    {Picture, "Measure", "T", "", "Measure the torsion of four atoms",    false, Push<&Main::Bt3_Trg>},
    {Picture, "Measure", "Delete", "", "Clear the result",                false, Push<&Main::P_Dst_Show>},

    {Picture, "Draw", "B", "", "Switch between wire frame and balls", false, Push<&Main::Bt_BlS>},
    {Picture, "Draw", "C", "", "Show the chain of alpha carbons",     false, Push<&Main::Bt_CA_Trace>},
    {Picture, "Draw", "L", "", "Print atom names",                    false, Push<&Main::Bt3_Label>},
    {Picture, "Draw", "H", "", "Show hydrogen bonds",                 false, Push<&Main::Bt3_HBD>},
    {Picture, "Draw", "1", "", "Make the balls larger",         true, PushOne<&Main::Sz_Balls, 0>},
    {Picture, "Draw", "2", "", "Make the balls smaller",        true, PushOne<&Main::Sz_Balls, 1>},
    {Picture, "Draw", "3", "", "Make the bonds thicker",        true, PushOne<&Main::Sz_Balls, 2>},
    {Picture, "Draw", "4", "", "Make the bonds thinner",        true, PushOne<&Main::Sz_Balls, 3>},
    {Picture, "Draw", "5", "", "Make the plane lines wider",    true, PushOne<&Main::Sz_Balls, 4>},
    {Picture, "Draw", "6", "", "Make the plane lines narrower", true, PushOne<&Main::Sz_Balls, 5>},

    {Picture, "Views", "V", "",       "Show two views, one for each eye",   false, Push<&Main::Bt3_Sterio>},
    {Picture, "Views", "G", "",       "Overlay a red and a green view",     false, Push<&Main::R_G_Stereo>},
    {Picture, "Views", "M", "",       "Show the left and the right form",   false, Push<&Main::Bt3_Isomers>},
    {Picture, "Views", "Shift+M", "", "Show both forms above a second pair", false, Push<&Main::Bt3_D_L_Str>},

    {Map, "On the Ramachandran map", "Right", "Down", "Show the next name",     true, ShowNextMapName},
    {Map, "On the Ramachandran map", "Left", "Up",    "Show the previous name", true, ShowPreviousMapName},
    {Map, "On the Ramachandran map", "Escape", "",    "Close the map", false,
     [](Orvane_Desk& desk) { CloseWindow(desk, desk.plot); }},
});
// clang-format on

}  // namespace

std::span<const DeskKey> DeskKeys() { return kKeys; }

const DeskKey* FindDeskKey(KeyPlace where, std::string_view key) {
  const auto* found = std::ranges::find_if(kKeys, [&](const DeskKey& row) {
    return row.Where == where && !key.empty() && (row.Key == key || row.Other == key);
  });
  return found == kKeys.end() ? nullptr : found;
}

}  // namespace orvane
