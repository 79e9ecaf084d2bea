#include "stereo/compositions.h"

#include "draw/redraw_chain.h"
#include "draw/trace_painter.h"
#include "view/transform.h"
#include "windows/swatches.h"

namespace orvane {
namespace {

// Saves the axis selector in `cells` and puts the vertical axis in its place until the end of the
// scope, even when a failure ends the composition.
class VerticalAxis {
 public:
  VerticalAxis(View& view, AxisCells& cells) : view_(view), cells_(cells) {
    cells_ = {view_.AxisX, view_.AxisY, view_.AxisZ};
    view_.AxisX = 0;
    view_.AxisY = 1;
    view_.AxisZ = 0;
  }
  VerticalAxis(const VerticalAxis&) = delete;
  VerticalAxis& operator=(const VerticalAxis&) = delete;
  ~VerticalAxis() {
    view_.AxisX = cells_.X;
    view_.AxisY = cells_.Y;
    view_.AxisZ = cells_.Z;
  }

 private:
  View& view_;
  AxisCells& cells_;
};

// Keeps what is on the surface while the atom painter runs.
class Overdraw {
 public:
  explicit Overdraw(Drawing& drawing) : drawing_(drawing) { drawing_.OverdrawPass = 1; }
  Overdraw(const Overdraw&) = delete;
  Overdraw& operator=(const Overdraw&) = delete;
  ~Overdraw() { drawing_.OverdrawPass = 0; }

 private:
  Drawing& drawing_;
};

// Cells that are zero outside a composition: cleared at its start and at its end.
class EmptyOutside {
 public:
  explicit EmptyOutside(AxisCells& cells) : cells_(cells) { cells_ = {}; }
  EmptyOutside(const EmptyOutside&) = delete;
  EmptyOutside& operator=(const EmptyOutside&) = delete;
  ~EmptyOutside() { cells_ = {}; }

 private:
  AxisCells& cells_;
};

void Turn(Orvane_Desk& desk, double degrees) {
  desk.view.TurnAngle = degrees;
  RotateAll(desk);
}

}  // namespace

void ComposeStereoPair(Orvane_Desk& desk) {
  const EmptyOutside cells(desk.stereo.PairCells);
  RedrawView(desk);
  desk.main.L_Img.SetPicture(desk.main.Picture1.Image());
  const VerticalAxis axis(desk.view, desk.stereo.PairCells);
  Turn(desk, kEyeAngle);
  desk.main.R_Img.SetPicture(desk.main.Picture1.Image());
  Turn(desk, -kEyeAngle);
}

void ComposeStereoPairB(Orvane_Desk& desk) {
  desk.stereo.PairBCells = {};
  desk.main.L_Img_b.SetPicture(desk.main.Picture1.Image());
  const VerticalAxis axis(desk.view, desk.stereo.PairBCells);
  Turn(desk, kEyeAngle);
  desk.main.R_Img_b.SetPicture(desk.main.Picture1.Image());
  Turn(desk, -kEyeAngle);
}

void ComposeEnantiomerPair(Orvane_Desk& desk) {
  desk.stereo.EnantiomerCells = {-1, -1, -1};
  RedrawView(desk);
  if (desk.stereo.RedGreenOn == 1) ComposeRedGreen(desk);
  if (desk.stereo.EnantiomerPairOn == 0) desk.main.L_Img.SetPicture(desk.main.Picture1.Image());
  const VerticalAxis axis(desk.view, desk.stereo.EnantiomerCells);
  Turn(desk, kMirrorAngle);
  if (desk.stereo.RedGreenOn == 1) ComposeRedGreen(desk);
  if (desk.stereo.EnantiomerPairOn == 0) desk.main.R_Img.SetPicture(desk.main.Picture1.Image());
  Turn(desk, -kMirrorAngle);
}

void ComposeRedGreen(Orvane_Desk& desk) {
  const EmptyOutside cells(desk.stereo.RedGreenCells);
  const Overdraw overdraw(desk.drawing);
  const VerticalAxis axis(desk.view, desk.stereo.RedGreenCells);
  if (desk.drawing.DrawFamily == 1) PaintTraceFamily(desk);
  desk.colours.PenColour = desk.main.P_Clr[kRedSwatch].BackColor;
  Turn(desk, kEyeAngle);
  if (desk.drawing.DrawFamily == 1) PaintTraceFamily(desk);
  desk.colours.PenColour = desk.main.P_Clr[kGreenSwatch].BackColor;
  Turn(desk, -kEyeAngle);
}

}  // namespace orvane
