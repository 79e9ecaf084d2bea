#include "view/transform.h"

#include <cmath>

#include "draw/redraw_chain.h"
#include "measure/picks.h"
#include "runtime/trigonometry.h"

namespace orvane {
namespace {

constexpr double kSpinDegrees = 10;
const double kPi = 4 * ArcTangent(1.0);

void TurnEveryAtom(Molecule& molecule, const View& view) {
  for (int i = 1; i <= molecule.AtomCount; ++i) {
    molecule.PointA = {molecule.CurX[i], molecule.CurY[i], molecule.CurZ[i]};
    TurnPoint(molecule, view);
    molecule.CurX[i] = molecule.PointA.X;
    molecule.CurY[i] = molecule.PointA.Y;
    molecule.CurZ[i] = molecule.PointA.Z;
  }
}

// Only size tells the steps that go away from the middle of their bar from those that come back.
void NegateIf(bool condition, Int16& step) {
  if (condition) step = -step;
}

}  // namespace

void BuildTurn(View& view, const Molecule& molecule) {
  const double d = 180 / kPi;
  view.TurnAngle = view.TurnAngle / d;

  const Point& from = molecule.PointB;
  const Point& to = molecule.PointA;
  const double a = view.AxisX == 1 ? to.X - from.X : 0;
  const double b = view.AxisY == 1 ? to.Y - from.Y : 0;
  const double c = view.AxisZ == 1 ? to.Z - from.Z : 0;
  const double r = std::sqrt(a * a + b * b + c * c);
  const double i = r == 0 ? 0 : 1 / r;  // the one division by zero that is allowed
  const double u = a * i;
  const double v = b * i;
  const double w = c * i;

  const double co = Cosine(view.TurnAngle);
  const double si = Sine(view.TurnAngle);
  const double t = 1 - co;
  auto& m = view.RotM;
  m[0][0] = u * u * t + co;
  m[0][1] = u * v * t - w * si;
  m[0][2] = w * u * t + v * si;
  m[1][0] = u * v * t + w * si;
  m[1][1] = v * v * t + co;
  m[1][2] = v * w * t - u * si;
  m[2][0] = w * u * t - v * si;
  m[2][1] = v * w * t + u * si;
  m[2][2] = w * w * t + co;
}

void TurnPoint(Molecule& molecule, const View& view) {
  const double x = molecule.PointA.X - molecule.PivotX;
  const double y = molecule.PointA.Y - molecule.PivotY;
  const double z = molecule.PointA.Z - molecule.PivotZ;
  // Each row is summed in the order of the columns 1, 0, 2.
  const auto row = [&](const double(&m)[4]) { return m[1] * y + m[0] * x + m[2] * z; };
  molecule.PointA.X = row(view.RotM[0]) + molecule.PivotX;
  molecule.PointA.Y = row(view.RotM[1]) + molecule.PivotY;
  molecule.PointA.Z = row(view.RotM[2]) + molecule.PivotZ;
}

void RotateAll(Orvane_Desk& desk) {
  BeginPicks(desk);
  BuildTurn(desk.view, desk.molecule);
  TurnEveryAtom(desk.molecule, desk.view);
  RedrawView(desk);
}

void BuildZoom(View& view) {
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 3; ++column) {
      view.RotM[row][column] = row == column ? view.ZoomFactor : 0;
    }
  }
}

void ZoomAll(Orvane_Desk& desk) {
  View& view = desk.view;
  if (std::abs(view.ZoomPrev) < std::abs(view.ZoomNow)) view.ZoomNow = -view.ZoomNow;
  view.ZoomFactor = view.ZoomNow < 0 ? 0.9 : 1.1;
  if (view.ZoomNow == 0) view.ZoomFactor = 1.0;
  BuildZoom(view);
  view.ZoomPrev = view.ZoomNow;
  TurnEveryAtom(desk.molecule, view);
  RedrawView(desk);
}

void SpinStep(Orvane_Desk& desk) {
  View& view = desk.view;
  // The end of the bar wraps to its start: a whole step runs inside the setter, and its SpinNow
  // counts.
  if (view.SpinNow == -360) desk.main.VScroll1.SetValue(1);
  NegateIf(std::abs(view.SpinNow) > std::abs(view.SpinPrev), view.SpinNow);
  view.TurnAngle = view.SpinNow < 0 ? -kSpinDegrees : kSpinDegrees;
  if (view.SpinNow == 0) view.TurnAngle = 0;
  RotateAll(desk);
  view.SpinPrev = view.SpinNow;
}

void ShiftAllX(Orvane_Desk& desk) {
  Molecule& molecule = desk.molecule;
  View& view = desk.view;
  view.XShiftNow = desk.main.X_TRANS.Value.Get();
  NegateIf(std::abs(view.XShiftNow) < std::abs(view.XShiftPrev), view.XShiftNow);
  for (int i = 1; i <= molecule.AtomCount; ++i) molecule.ScrX[i] += view.XShiftNow;
  view.PanX += view.XShiftNow;
  RepaintPasses(desk);
  view.XShiftPrev = view.XShiftNow;
}

void ShiftAllY(Orvane_Desk& desk) {
  Molecule& molecule = desk.molecule;
  View& view = desk.view;
  view.YShiftNow = desk.main.Y_TRANS.Value.Get();
  NegateIf(std::abs(view.YShiftNow) < std::abs(view.YShiftPrev), view.YShiftNow);
  for (int i = 1; i <= molecule.AtomCount; ++i) molecule.ScrY[i] += view.YShiftNow;
  view.PanY += view.YShiftNow;
  RepaintPasses(desk);
  view.YShiftPrev = view.YShiftNow;
}

}  // namespace orvane
