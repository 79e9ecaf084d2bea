#include "commands/pointer.h"

#include "measure/picks.h"
#include "stereo/refresh_tail.h"
#include "view/transform.h"
#include "windows/panels.h"

namespace orvane {
namespace {

constexpr Look kPressedTag{.Bevel = 1, .TextStyle = 4};
constexpr Look kRaisedTag{.Bevel = 2, .TextStyle = 2};

// One event makes a full turn when the pointer is this many surface widths away from the press.
constexpr int kWidthsToFullTurn = 25;

double DragAngle(double distance, int surface_side) {
  return distance * 360 / (surface_side * kWidthsToFullTurn);
}

void ChooseAxis(View& view, int x, int y, int z) {
  view.AxisX = x;
  view.AxisY = y;
  view.AxisZ = z;
}

}  // namespace

void Picture1_MouseDown(Orvane_Desk& desk, const Event& event) {
  View& view = desk.view;
  view.TurnAngle = 0;
  view.PressX = event.X;
  view.PressY = event.Y;
  view.SavedAxisX = view.AxisX == 1 ? 1 : 0;
  view.SavedAxisY = view.AxisY == 1 ? 1 : 0;
  view.SavedAxisZ = view.AxisZ == 1 ? 1 : 0;
  PickAtomsAt(desk, event.X, event.Y);
}

void Picture1_MouseMove(Orvane_Desk& desk, const Event& event) {
  MainWindow& main = desk.main;
  View& view = desk.view;
  if (!main.P_Clr_Holder.Visible && !main.V_RGB_H.Visible && !main.P_Dir_Holder.Visible) {
    main.MousePointer = kPointerCross;
  }
  if (desk.molecule.MoleculeReady != 1 || event.Button != kRightButton) return;

  view.TurnAngle = DragAngle(double{view.PressY} - event.Y, main.Picture1.ScaleWidth());
  ChooseAxis(view, 1, 0, 0);
  RotateAll(desk);
  view.TurnAngle = DragAngle(double{event.X} - view.PressX, main.Picture1.ScaleHeight());
  ChooseAxis(view, 0, 1, 0);
  RotateAll(desk);
  RefreshTail(desk, Tail::StereoAndRedGreen);
}

void Picture1_MouseUp(Orvane_Desk& desk) {
  View& view = desk.view;
  if (view.SavedAxisX == 1) view.SavedAxisY = view.SavedAxisZ = 0;
  if (view.SavedAxisY == 1) view.SavedAxisX = view.SavedAxisZ = 0;
  if (view.SavedAxisZ == 1) view.SavedAxisX = view.SavedAxisY = 0;
  ChooseAxis(view, view.SavedAxisX, view.SavedAxisY, view.SavedAxisZ);
}

void X_Tag_Click(Orvane_Desk& desk, const Event& event) {
  HidePanels(desk.main);
  ChooseAxis(desk.view, event.Index == 0, event.Index == 1, event.Index == 2);
  for (Panel& tag : desk.main.X_Tag)
    tag.Style = tag.Index == event.Index ? kPressedTag : kRaisedTag;
}

}  // namespace orvane
